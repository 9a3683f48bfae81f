#include <gtest/gtest.h>

#include <climits>
#include <tuple>
#include <vector>

#include "core/pixel.h"
#include "data/channel_kernels.h"
#include "core/streaming.h"
#include "data/copy_rows.h"
#include "moves.h"

namespace {

using namespace zel::test;

#define CHECK_COPY(T, t) checkMembers<T>(COPY_MEMBERS(T, t));

TEST(Copy, EveryMemberMatchesTheReference) {
    FOR_EACH_TYPE(CHECK_COPY)
    checkMembers(byteOnlyMembers());
}

// Planar members: interleaved channel k is plane k, there and back again.
// Images this small never stream, so the non-temporal stores are run
// through the kernels directly.
template <class T, int N>
void checkPlanar(ZelStatus (*toPlanes)(const T*, int, T* const[N], int, ZeliSize),
                 ZelStatus (*fromPlanes)(const T* const[N], int, T*, int, ZeliSize)) {
    using B = zel::BitsOf<T>;
    forEachConfig([&] {
        for (ZeliSize roi : oddSizes())
            for (int guard : {0, 11 * int(sizeof(T))})
                for (bool stream : {false, true}) {
                    SCOPED_TRACE(testing::Message() << N << " planes " << roi.width << "x" << roi.height << " guard "
                                                    << guard << " stream " << stream);
                    Image<T> pixels(roi, N, -1, sizeof(T), guard * N, 4), back(roi, N, -1, 0, guard * N, 9);
                    std::vector<Image<T>> planes;
                    for (int c = 0; c < N; ++c) planes.emplace_back(roi, 1, -1, 2 * sizeof(T), guard, 5 + c);
                    T* dst[N];
                    B* bits[N];
                    for (int c = 0; c < N; ++c) bits[c] = reinterpret_cast<B*>(dst[c] = planes[c].roi());
                    const int ps = planes[0].step();
                    if (stream)
                        zel::splitImage<B, N>(reinterpret_cast<B*>(pixels.roi()), pixels.step(), bits, ps, roi, true);
                    else
                        ASSERT_EQ(toPlanes(pixels.roi(), pixels.step(), dst, ps, roi), zelStatusOk);
                    for (int c = 0; c < N; ++c) {
                        ASSERT_TRUE(planes[c].outsideUnchanged());
                        for (int y = 0; y < roi.height; ++y)
                            for (int x = 0; x < roi.width; ++x) ASSERT_EQ(planes[c].at(x, y), pixels.at(x, y, c));
                    }
                    if (stream)
                        zel::mergeImage<B, N>(bits, ps, reinterpret_cast<B*>(back.roi()), back.step(), roi, true);
                    else
                        ASSERT_EQ(fromPlanes(dst, ps, back.roi(), back.step(), roi), zelStatusOk);
                    ASSERT_TRUE(sameRoi(back, pixels, N));
                    ASSERT_TRUE(back.outsideUnchanged());
                }
    });
}

#define CHECK_PLANAR(T, t)                                         \
    checkPlanar<T, 3>(zeliCopy_##t##_C3P3R, zeliCopy_##t##_P3C3R); \
    checkPlanar<T, 4>(zeliCopy_##t##_C4P4R, zeliCopy_##t##_P4C4R);

TEST(Copy, PlanarMembersSplitAndMerge) { FOR_EACH_TYPE(CHECK_PLANAR) }

// The plan: collapse and non-temporal stores at their thresholds.
TEST(CopyPaths, PlanFollowsTheThresholds) {
    const int mib = 1 << 20;
    struct Case { const char* what; std::int64_t rowBytes; int height, srcStep, dstStep, cache; zel::CopyPlan want; };
    const Case cases[] = {
        {"padded rows stay rows", 100, 10, 128, 100, 0, {100, 10, false}},
        {"contiguous rows collapse", 100, 10, 100, 100, 0, {1000, 1, false}},
        {"one row never collapses", 100, 1, 7, 7, 0, {100, 1, false}},
        {"4 MiB + 1, cache unknown", 4 * mib + 1, 1, 0, 0, 0, {4 * mib + 1, 1, false}},
        {"4 MiB + 1 KiB, half of the cache", 1024, 4097, 1024, 1024, 8 * mib + 2048, {4 * mib + 1024, 1, true}},
        {"4 MiB + 1 KiB, under half of the cache", 1024, 4097, 1024, 1024, 8 * mib + 2050,
         {4 * mib + 1024, 1, false}},
        {"exactly the threshold", 4 * mib, 1, 0, 0, 1024, {4 * mib, 1, false}},
        {"padded rows stream too", 1024, 8192, 2048, -2048, 8 * mib, {1024, 8192, true}},
        {"collapse would overflow", 65536, 32768, 65536, 65536, 0, {65536, 32768, true}},
        {"largest collapse", INT_MAX, 1, INT_MAX, INT_MAX, 0, {INT_MAX, 1, false}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const zel::CopyPlan plan = zel::planCopy(c.rowBytes, c.height, c.srcStep, c.dstStep, c.cache);
        EXPECT_EQ(std::tie(plan.rowBytes, plan.height, plan.stream),
                  std::tie(c.want.rowBytes, c.want.height, c.want.stream));
    }
    EXPECT_FALSE(zel::planarStreams(zel::kStreamStoreBytes));
    EXPECT_TRUE(zel::planarStreams(zel::kStreamStoreBytes + 1));
}

}  // namespace
