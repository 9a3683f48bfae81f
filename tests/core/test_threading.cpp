#include <gtest/gtest.h>
#include <omp.h>

#include <climits>
#include <cmath>
#include <cstdint>
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

TEST(Threads, SettingIsValidatedClampedAndReadBack) {
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
    for (int huge : {zel::kMaxThreads + 1, 30000, INT_MAX}) {
        EXPECT_EQ(zelSetNumThreads(huge), zelStatusOk);
        EXPECT_EQ(zelGetNumThreads(&n), zelStatusOk);
        EXPECT_EQ(n, zel::kMaxThreads);
    }
}

TEST(ForkRule, TeamGrowsWithWorkAndNeverExceedsSettingOrPieces) {
    ConfigGuard restore;
    const std::int64_t share = zel::kForkBytesPerThread;
    zelSetNumThreads(4);
    EXPECT_EQ(zel::teamSize(share - 1, zel::kCostMove, 1000), 1);      // too little work
    EXPECT_EQ(zel::teamSize(2 * share, zel::kCostMove, 1000), 2);
    EXPECT_EQ(zel::teamSize(3 * share - 1, zel::kCostMove, 1000), 2);
    EXPECT_EQ(zel::teamSize(100 * share, zel::kCostMove, 1000), 4);    // the setting
    EXPECT_EQ(zel::teamSize(100 * share, zel::kCostMove, 3), 3);       // the pieces
    EXPECT_EQ(zel::teamSize(100 * share, zel::kCostMove, 1), 1);
    // A costlier kernel forks on fewer bytes.
    EXPECT_EQ(zel::teamSize(share, zel::kCostMove, 1000), 1);
    EXPECT_EQ(zel::teamSize(share, zel::kCostDivide, 1000), 4);
    zelSetNumThreads(1);
    EXPECT_EQ(zel::teamSize(100 * share, zel::kCostDivide, 1000), 1);
    zelSetNumThreads(zel::kMaxThreads);
    EXPECT_EQ(zel::teamSize(INT64_MAX / 2, zel::kCostComplexDivide, INT64_MAX), zel::kMaxThreads);
    // The tests' eager mode forks any work as far as its pieces go, and
    // leaves the thread count alone.
    zelSetNumThreads(4);
    zel::forkEagerlyForTests(true);
    EXPECT_EQ(zel::teamSize(1, zel::kCostMove, 3), 3);
    EXPECT_EQ(zel::teamSize(1, zel::kCostMove, 1000), 4);
    EXPECT_EQ(zelSetNumThreads(2), zelStatusOk);
    EXPECT_EQ(zel::teamSize(1, zel::kCostMove, 1000), 2);
    EXPECT_EQ(ownGetNumThreads(), 2);
    zel::forkEagerlyForTests(false);
    EXPECT_EQ(zel::teamSize(1, zel::kCostMove, 1000), 1);
    EXPECT_EQ(ownGetNumThreads(), 2);
}

// Which thread of how large a team handled each row.
struct RowLog {
    std::vector<int> thread, team;
    explicit RowLog(int rows) : thread(rows, -1), team(rows, 0) {}
    void record(std::ptrdiff_t y) {
        thread[y] = omp_get_thread_num();
        team[y] = omp_get_num_threads();
    }
};

TEST(RowSplit, TeamOfOneRunsOnTheCaller) {
    RowLog log(100);
    zel::forEachRow(100, 1, [&](std::ptrdiff_t y) { log.record(y); });
    for (int y = 0; y < 100; ++y) EXPECT_EQ(log.team[y], 1);
}

TEST(RowSplit, RowsGoInContiguousBlocksEachToOneThread) {
    RowLog log(103);
    zel::forEachRow(103, 4, [&](std::ptrdiff_t y) { log.record(y); });
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

struct Piece {
    std::ptrdiff_t y, begin, end;
    bool operator<(const Piece& o) const { return y != o.y ? y < o.y : begin < o.begin; }
};

std::vector<Piece> piecesOf(std::ptrdiff_t rows, std::ptrdiff_t width, std::ptrdiff_t grain, int team) {
    std::mutex m;
    std::set<Piece> pieces;
    zel::forEachBlock(rows, width, grain, team, [&](const zel::Block& b) {
        std::lock_guard<std::mutex> lock(m);
        for (std::ptrdiff_t y = b.y0; y < b.y1; ++y) pieces.insert({y, b.begin, b.end});
    });
    return {pieces.begin(), pieces.end()};
}

TEST(PieceSplit, EveryElementOnceOnGrainBoundaries) {
    struct Case {
        std::ptrdiff_t rows, width, grain;
        int team;
        std::size_t pieces;
    };
    const Case cases[] = {
        {1, 1000, 64, 2, 2},  {1, 1025, 64, 4, 4}, {2, 5000, 64, 4, 8}, {8, 100, 64, 4, 8},
        {1, 100, 64, 4, 2},   {1, 10, 64, 4, 1},   {3, 6400, 192, 2, 3}, {1, 7, 1, 16, 7},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.rows << " x " << c.width << ", grain " << c.grain
                                        << ", team " << c.team);
        const auto pieces = piecesOf(c.rows, c.width, c.grain, c.team);
        EXPECT_EQ(pieces.size(), c.pieces);
        std::ptrdiff_t y = 0, next = 0;
        for (const Piece& p : pieces) {
            if (p.y != y) {
                EXPECT_EQ(next, c.width) << "row " << y << " not covered";
                y = p.y;
                next = 0;
            }
            EXPECT_EQ(p.begin, next);
            EXPECT_EQ(p.begin % c.grain, 0);
            EXPECT_GT(p.end, p.begin);
            next = p.end;
        }
        EXPECT_EQ(y, c.rows - 1);
        EXPECT_EQ(next, c.width);
    }
}

TEST(PieceSplit, OneBlockOfWholeRowsPerThreadOrOneForTheCaller) {
    for (int team : {1, 2, 4}) {
        std::mutex m;
        std::vector<zel::Block> blocks;
        zel::forEachBlock(103, 50, 64, team, [&](const zel::Block& b) {
            std::lock_guard<std::mutex> lock(m);
            blocks.push_back(b);
        });
        ASSERT_EQ(blocks.size(), std::size_t(team));
        std::ptrdiff_t rows = 0;
        for (const zel::Block& b : blocks) {
            EXPECT_EQ(b.begin, 0);
            EXPECT_EQ(b.end, 50);
            EXPECT_GE(b.y1 - b.y0, 103 / team);
            rows += b.y1 - b.y0;
        }
        EXPECT_EQ(rows, 103);
    }
}

TEST(PieceSplit, WorkersComputeUnderTheCallersControlWord) {
    std::vector<std::uint32_t> seen(4, 0);
    {
        zel::ScopedSseRounding down(zel::kSseRoundDown);
        zel::forEachBlock(1, 4, 1, 4, [&](const zel::Block& b) { seen[b.begin] = ps_get_ssx(); });
    }
    for (std::uint32_t cw : seen) EXPECT_EQ((cw >> 13) & 3u, zel::kSseRoundDown);
    // The workers' own words come back afterwards.
    std::vector<std::uint32_t> after(4, 0);
    zel::forEachBlock(1, 4, 1, 4, [&](const zel::Block& b) { after[b.begin] = ps_get_ssx(); });
    for (std::uint32_t cw : after) EXPECT_EQ((cw >> 13) & 3u, zel::kSseRoundNearest);
}

TEST(FpControl, StandardEnvironmentRestoresTheWordAndKeepsRaisedFlags) {
    const std::uint32_t before = ps_get_ssx();
    ps_set_ssx((before & ~zel::kExceptionFlags) | (3u << 13) | 0x8040);  // toward zero, FTZ, DAZ
    const std::uint32_t caller = ps_get_ssx();
    {
        zel::StandardFpEnvironment standard;
        EXPECT_EQ(ps_get_ssx() & ~zel::kExceptionFlags, zel::kStandardControlWord);
        volatile float one = 1.0f, three = 3.0f;
        volatile float third = one / three;  // inexact
        (void)third;
    }
    EXPECT_EQ(ps_get_ssx() & ~zel::kExceptionFlags, caller & ~zel::kExceptionFlags);
    EXPECT_NE(ps_get_ssx() & 0x20u, 0u) << "the inexact flag raised inside was dropped";
    ps_set_ssx(before);
}

TEST(Reduction, FloatSumDoesNotDependOnTheThreadCount) {
    auto sum = [](int team) {
        double total = 0;
        EXPECT_TRUE(zel::reduceRows(
            1000, team, total,
            [](double& slot, std::ptrdiff_t y) { slot += 1.0 / (y + 1) + 1e10 * (y % 3 - 1); },
            [](double& t, double slot) { t += slot; }));
        return total;
    };
    const double one = sum(1);
    for (int team : {2, 3, 4, 7}) EXPECT_EQ(sum(team), one) << team << " threads";
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
