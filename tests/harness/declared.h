// The functions a header declares (every ZELAPI declaration), by name.
#pragma once

#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace zel::test {

inline std::set<std::string> declaredFunctions(const char* headerPath) {
    std::ifstream in(headerPath);
    std::stringstream text;
    text << in.rdbuf();
    const std::string header = text.str();
    const std::regex declaration(R"(ZELAPI[^;(]*\b(zel\w+)\s*\()");
    std::set<std::string> names;
    for (std::sregex_iterator it(header.begin(), header.end(), declaration), end; it != end; ++it)
        names.insert((*it)[1]);
    return names;
}

}  // namespace zel::test
