// The functions a header declares (every ZELAPI declaration), by name,
// following its #include "zeli/..." lines to the area headers.
#pragma once

#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace zel::test {

inline std::set<std::string> declaredFunctions(const std::string& headerPath) {
    std::ifstream in(headerPath);
    std::stringstream text;
    text << in.rdbuf();
    const std::string header = text.str();
    const std::regex declaration(R"(ZELAPI[^;(]*\b(zel\w+)\s*\()");
    std::set<std::string> names;
    for (std::sregex_iterator it(header.begin(), header.end(), declaration), end; it != end; ++it)
        names.insert((*it)[1]);
    const std::string dir = headerPath.substr(0, headerPath.find_last_of('/') + 1);
    const std::regex areaHeader(R"re(#include "(zeli/\w+\.h)")re");
    for (std::sregex_iterator it(header.begin(), header.end(), areaHeader), end; it != end; ++it)
        names.merge(declaredFunctions(dir + std::string((*it)[1])));
    return names;
}

}  // namespace zel::test
