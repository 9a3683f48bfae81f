// Runs every benchmark, then prints a ratio table: for each group and size,
// the time of each comparison divided by the time of zeli (above 1: zeli is
// faster).
#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "zeli.h"

namespace {

struct Timing {
    std::string group, impl, size;
    double microseconds;
};

class CollectingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
            const std::string name = run.benchmark_name();
            const auto first = name.find('/');
            const auto second = name.find('/', first + 1);
            if (first == std::string::npos || second == std::string::npos) continue;
            timings.push_back({name.substr(0, first), name.substr(first + 1, second - first - 1),
                               name.substr(second + 1, name.find('/', second + 1) - second - 1),
                               run.GetAdjustedRealTime()});
        }
    }
    std::vector<Timing> timings;
};

void printRatios(const std::vector<Timing>& timings) {
    std::map<std::pair<std::string, std::string>, std::map<std::string, double>> table;
    for (const auto& t : timings) table[{t.group, t.size}][t.impl] = t.microseconds;
    std::printf("\n| benchmark | size | zeli (us) | comparison: time / zeli time |\n|---|---|---|---|\n");
    for (const auto& [key, impls] : table) {
        const auto ours = impls.find("zeli");
        if (ours == impls.end()) continue;
        std::string others;
        for (const auto& [impl, us] : impls)
            if (impl != "zeli") {
                char cell[96];
                std::snprintf(cell, sizeof cell, "%s%s %.2f", others.empty() ? "" : ", ", impl.c_str(),
                              us / ours->second);
                others += cell;
            }
        std::printf("| %s | %s | %.4g | %s |\n", key.first.c_str(), key.second.c_str(), ours->second,
                    others.c_str());
    }
}

}  // namespace

int main(int argc, char** argv) {
    zelSetNumThreads(1);
    cv::setNumThreads(1);
    benchmark::Initialize(&argc, argv);
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printRatios(reporter.timings);
    benchmark::Shutdown();
    return 0;
}
