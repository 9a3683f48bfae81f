// The shared library's exported symbols against the project's function list
// and the public header. Families not built yet are reported, not failed.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "harness/declared.h"

namespace {

struct Listed {
    std::string area, family;
};

std::map<std::string, Listed> readFunctionList() {
    std::map<std::string, Listed> list;
    std::ifstream in(ZELI_FUNCTION_LIST);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream fields(line);
        std::string name;
        Listed entry;
        std::getline(fields, name, '\t');
        std::getline(fields, entry.area, '\t');
        std::getline(fields, entry.family, '\t');
        list[name] = entry;
    }
    return list;
}

std::set<std::string> exportedSymbols() {
    std::set<std::string> names;
    FILE* nm = popen("nm -D --defined-only '" ZELI_SHARED_LIB "'", "r");
    if (nm == nullptr) return names;
    char buffer[4096];
    while (std::fgets(buffer, sizeof buffer, nm)) {
        std::istringstream fields(buffer);
        std::string address, type, name;
        if (fields >> address >> type >> name) names.insert(name);
    }
    pclose(nm);
    return names;
}

TEST(ApiCoverage, ExportsOnlyListedApiNames) {
    const auto list = readFunctionList();
    const auto exported = exportedSymbols();
    ASSERT_FALSE(list.empty());
    ASSERT_FALSE(exported.empty()) << "could not read the symbols of " ZELI_SHARED_LIB;
    for (const auto& name : exported) {
        EXPECT_EQ(name.rfind("zel", 0), 0u) << "exported non-API symbol " << name;
        EXPECT_NE(name.rfind("zels", 0), 0u) << "exported internal helper " << name;
        if (name.rfind("zeli", 0) == 0) EXPECT_TRUE(list.count(name)) << name << " is not in the list";
    }
}

TEST(ApiCoverage, HeaderDeclaresExactlyWhatIsExported) {
    const auto exported = exportedSymbols();
    const auto declared = zel::test::declaredFunctions(ZELI_HEADER);
    ASSERT_FALSE(declared.empty());
    for (const auto& name : declared) EXPECT_TRUE(exported.count(name)) << name << " is declared, not exported";
    for (const auto& name : exported) EXPECT_TRUE(declared.count(name)) << name << " is exported, not declared";
}

TEST(ApiCoverage, ReportPerFamily) {
    const auto list = readFunctionList();
    const auto exported = exportedSymbols();
    std::map<std::string, std::pair<int, int>> families;  // "area/family" -> (built, listed)
    int built = 0;
    for (const auto& [name, entry] : list) {
        auto& counts = families[entry.area + "/" + entry.family];
        ++counts.second;
        if (exported.count(name)) ++counts.first, ++built;
    }
    std::printf("API coverage: %d of %zu listed functions exported\n", built, list.size());
    for (const auto& [family, counts] : families)
        if (counts.first > 0)
            std::printf("  %-36s %4d / %-4d %s\n", family.c_str(), counts.first, counts.second,
                        counts.first == counts.second ? "complete" : "partial");
    int missingFamilies = 0;
    for (const auto& [family, counts] : families) missingFamilies += counts.first == 0;
    std::printf("  (%d families not built yet)\n", missingFamilies);
}

}  // namespace
