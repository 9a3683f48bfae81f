#include <gtest/gtest.h>
#include <omp.h>

#include <cmath>
#include <mutex>
#include <set>
#include <vector>
#include <xmmintrin.h>

#include "core/fpcontrol.h"
#include "core/parallel.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using zel::test::ConfigGuard;

TEST(Threads, SettingIsValidatedAndReadBack) {
    ConfigGuard restore;
    int n = 0;
    ASSERT_EQ(zelGetNumThreads(&n), zelStatusOk);
    EXPECT_GE(n, 1);
    EXPECT_EQ(zelGetNumThreads(nullptr), zelStatusNullPtr);
    EXPECT_EQ(zelSetNumThreads(0), zelStatusBadArgument);
    EXPECT_EQ(zelSetNumThreads(3), zelStatusOk);
    EXPECT_EQ(zelGetNumThreads(&n), zelStatusOk);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(ownGetNumThreads(), 3);
}

// Which thread of how large a team handled each row.
struct RowLog {
    std::vector<int> thread, team;
    explicit RowLog(int rows) : thread(rows, -1), team(rows, 0) {}
    void record(int y) {
        thread[y] = omp_get_thread_num();
        team[y] = omp_get_num_threads();
    }
};

TEST(RowSplit, OneThreadNeverForks) {
    ConfigGuard restore;
    zelSetNumThreads(1);
    RowLog log(100);
    zel::forEachRow(100, true, [&](int y) { log.record(y); });
    for (int y = 0; y < 100; ++y) EXPECT_EQ(log.team[y], 1);
}

TEST(RowSplit, RowsGoInContiguousBlocksEachToOneThread) {
    ConfigGuard restore;
    zelSetNumThreads(4);
    RowLog log(103);
    zel::forEachRow(103, true, [&](int y) { log.record(y); });
    std::set<int> seen;
    for (int y = 0; y < 103; ++y) {
        ASSERT_GE(log.thread[y], 0) << "row " << y << " was skipped";
        if (y > 0 && log.thread[y] != log.thread[y - 1]) {
            EXPECT_FALSE(seen.count(log.thread[y])) << "thread came back at row " << y;
        }
        seen.insert(log.thread[y]);
    }
    EXPECT_EQ(log.team[0], 4);
}

TEST(RowSplit, HeightOneRunsOnce) {
    ConfigGuard restore;
    zelSetNumThreads(4);
    int calls = 0;
    zel::forEachRow(1, true, [&](int) { ++calls; });
    EXPECT_EQ(calls, 1);
}

struct Chunk {
    int thread, begin, count;
    bool operator<(const Chunk& o) const { return begin < o.begin; }
};

std::vector<Chunk> chunksOf(int length, int threads) {
    zelSetNumThreads(threads);
    std::mutex m;
    std::set<Chunk> chunks;
    zel::splitVector(length, 1024, [&](int begin, int count) -> std::int64_t {
        std::lock_guard<std::mutex> lock(m);
        chunks.insert({omp_get_thread_num(), begin, count});
        return 0;
    });
    return {chunks.begin(), chunks.end()};
}

TEST(VectorSplit, ThresholdTeamOfTwoAndRemainderToTheLast) {
    ConfigGuard restore;
    struct Case {
        int length, threads;
        std::vector<int> counts;
    };
    const Case cases[] = {
        {1023, 4, {1023}}, {1024, 4, {512, 512}}, {1025, 4, {512, 513}},
        {1025, 2, {512, 513}}, {5000, 1, {5000}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.length << " elements, " << c.threads << " threads");
        const auto chunks = chunksOf(c.length, c.threads);
        ASSERT_EQ(chunks.size(), c.counts.size());
        int next = 0;
        for (std::size_t i = 0; i < chunks.size(); ++i) {
            EXPECT_EQ(chunks[i].begin, next);
            EXPECT_EQ(chunks[i].count, c.counts[i]);
            EXPECT_EQ(chunks[i].thread, static_cast<int>(i));
            next += chunks[i].count;
        }
    }
}

TEST(VectorSplit, SpecialCasesOfAllChunksAreCounted) {
    ConfigGuard restore;
    zelSetNumThreads(2);
    const auto met = zel::splitVector(4096, 1024, [](int, int count) -> std::int64_t { return count / 2; });
    EXPECT_EQ(met, 2048);
}

TEST(Reduction, FloatSumDoesNotDependOnTheThreadCount) {
    ConfigGuard restore;
    auto sum = [](int threads) {
        zelSetNumThreads(threads);
        double total = 0;
        EXPECT_TRUE(zel::reduceRows(
            1000, true, total, [](double& slot, int y) { slot += 1.0 / (y + 1) + 1e10 * (y % 3 - 1); },
            [](double& t, double slot) { t += slot; }));
        return total;
    };
    const double one = sum(1);
    for (int threads : {2, 3, 4, 7}) EXPECT_EQ(sum(threads), one) << threads << " threads";
}

TEST(PlatformServices, CacheSizeNaNAndRounding) {
    int cache = -1;
    EXPECT_EQ(zelGetMaxCacheSizeB(nullptr), zelStatusNullPtr);
    EXPECT_EQ(zelGetMaxCacheSizeB(&cache), zelStatusOk);
    EXPECT_GE(cache, 0);
    EXPECT_TRUE(std::isnan(zelConstantOfNAN_32f()));
    EXPECT_TRUE(std::isnan(zelConstantOfNAN_64f()));

    const std::uint32_t before = ps_get_ssx();
    {
        zel::ScopedSseRounding down(zel::kSseRoundDown);
        volatile float x = 2.5f;
        EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(x)), 2);
        EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(-x)), -3);
    }
    EXPECT_EQ(ps_get_ssx(), before);
    volatile float x = 2.5f;
    EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(x)), 2);  // nearest-even again
    EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(3.5f)), 4);
}

}  // namespace
