#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <vector>

#include "data/channel_kernels.h"
#include "data/copy_rows.h"
#include "harness/checkorder.h"
#include "moves.h"

namespace {

using zel::test::ChannelMove;
using zel::test::Image;
using zel::test::kKept;

template <class T>
using CopyFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize);

template <class T>
struct CopyMember {
    const char* name;
    ChannelMove move;
    CopyFn<T> call;
};

constexpr int K = kKept;

#define COPY_MEMBERS(T, t)                                                               \
    std::vector<CopyMember<T>> {                                                         \
        {"C1R", {1, 1, 0, 0, {0}}, zeliCopy_##t##_C1R},                                  \
        {"C3R", {3, 3, 0, 0, {0, 1, 2}}, zeliCopy_##t##_C3R},                            \
        {"C4R", {4, 4, 0, 0, {0, 1, 2, 3}}, zeliCopy_##t##_C4R},                         \
        {"AC4R", {4, 4, 0, 0, {0, 1, 2, K}}, zeliCopy_##t##_AC4R},                       \
        {"C1C3R", {1, 3, 0, 2, {K, K, 0}}, zeliCopy_##t##_C1C3R},                        \
        {"C1C4R", {1, 4, 0, 1, {K, 0, K, K}}, zeliCopy_##t##_C1C4R},                     \
        {"C3C1R", {3, 1, 2, 0, {2}}, zeliCopy_##t##_C3C1R},                              \
        {"C4C1R", {4, 1, 3, 0, {3}}, zeliCopy_##t##_C4C1R},                              \
        {"C3CR", {3, 3, 1, 1, {K, 1, K}}, zeliCopy_##t##_C3CR},                          \
        {"C4CR", {4, 4, 3, 3, {K, K, K, 3}}, zeliCopy_##t##_C4CR},                       \
        {"C3AC4R", {3, 4, 0, 0, {0, 1, 2, K}}, zeliCopy_##t##_C3AC4R},                   \
        {"AC4C3R", {4, 3, 0, 0, {0, 1, 2}}, zeliCopy_##t##_AC4C3R},                      \
    }

template <class T>
void checkCopyMembers(const std::vector<CopyMember<T>>& members) {
    for (const auto& m : members)
        zel::test::checkMove<T>(m.name, m.move, [&](Image<T>& src, Image<T>& dst) {
            return m.call(src.roi() + m.move.srcOffset, src.step(), dst.roi() + m.move.dstOffset,
                          dst.step(), dst.size());
        });
}

TEST(Copy, LayoutMembersMatchTheReference) {
    checkCopyMembers(COPY_MEMBERS(Zel8u, 8u));
    checkCopyMembers(COPY_MEMBERS(Zel16u, 16u));
    checkCopyMembers(COPY_MEMBERS(Zel16s, 16s));
    checkCopyMembers(COPY_MEMBERS(Zel32s, 32s));
    checkCopyMembers(COPY_MEMBERS(Zel32f, 32f));
}

TEST(Dup, GreyGoesToEveryChannel) {
    zel::test::checkMove<Zel8u>("Dup", {1, 3, 0, 0, {0, 0, 0}}, [](Image<Zel8u>& src, Image<Zel8u>& dst) {
        return zeliDup_8u_C1C3R(src.roi(), src.step(), dst.roi(), dst.step(), dst.size());
    });
}

// Planar members: interleaved channel k is plane k.
template <class T, int N>
void checkPlanar(ZelStatus (*toPlanes)(const T*, int, T* const[N], int, ZeliSize),
                 ZelStatus (*fromPlanes)(const T* const[N], int, T*, int, ZeliSize)) {
    zel::test::forEachConfig([&] {
        for (ZeliSize roi : zel::test::oddSizes())
            for (int guard : {0, 11 * int(sizeof(T))}) {
                SCOPED_TRACE(testing::Message() << N << " planes " << roi.width << "x" << roi.height);
                Image<T> pixels(roi, N, -1, sizeof(T), guard * N, 4);
                std::vector<Image<T>> planes;
                for (int c = 0; c < N; ++c) planes.emplace_back(roi, 1, -1, 2 * sizeof(T), guard, 5 + c);
                T* dst[N];
                for (int c = 0; c < N; ++c) dst[c] = planes[c].roi();
                ASSERT_EQ(toPlanes(pixels.roi(), pixels.step(), dst, planes[0].step(), roi), zelStatusOk);
                for (int c = 0; c < N; ++c) {
                    ASSERT_TRUE(planes[c].outsideUnchanged());
                    for (int y = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x) ASSERT_EQ(planes[c].at(x, y), pixels.at(x, y, c));
                }
                // Back again into a fresh interleaved image.
                Image<T> back(roi, N, -1, 0, guard * N, 9);
                const T* src[N];
                for (int c = 0; c < N; ++c) src[c] = planes[c].roi();
                ASSERT_EQ(fromPlanes(src, planes[0].step(), back.roi(), back.step(), roi), zelStatusOk);
                ASSERT_TRUE(zel::test::sameRoi(back, pixels, N));
                ASSERT_TRUE(back.outsideUnchanged());
            }
    });
}

#define CHECK_PLANAR(t)                                                      \
    checkPlanar<Zel##t, 3>(zeliCopy_##t##_C3P3R, zeliCopy_##t##_P3C3R);       \
    checkPlanar<Zel##t, 4>(zeliCopy_##t##_C4P4R, zeliCopy_##t##_P4C4R)

TEST(Copy, PlanarMembersSplitAndMerge) {
    CHECK_PLANAR(8u);
    CHECK_PLANAR(16u);
    CHECK_PLANAR(16s);
    CHECK_PLANAR(32s);
    CHECK_PLANAR(32f);
}

// Planar moves with and without non-temporal stores, on planes that line
// up with the vectors and planes that do not.
TEST(CopyPaths, PlanarStoresGiveTheSameBytes) {
    EXPECT_FALSE(zel::planarStreams(zel::kPlanarStreamBytes));
    EXPECT_TRUE(zel::planarStreams(zel::kPlanarStreamBytes + 1));
    zel::test::forEachConfig([] {
        for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{63, 17}, ZeliSize{1031, 3}, ZeliSize{256, 2}})
            for (int offset : {0, 2, 3})
                for (bool stream : {false, true}) {
                    SCOPED_TRACE(testing::Message() << roi.width << "x" << roi.height << " offset " << offset
                                                    << " stream " << stream);
                    Image<Zel16u> pixels(roi, 3, -1, 0, 0, 4), back(roi, 3, -1, 2 * offset, 0, 6);
                    std::vector<Image<Zel16u>> planes;
                    for (int c = 0; c < 3; ++c) planes.emplace_back(roi, 1, -1, 2 * offset, 6, 5 + c);
                    Zel16u* dst[3] = {planes[0].roi(), planes[1].roi(), planes[2].roi()};
                    zel::splitImage<Zel16u, 3>(pixels.roi(), pixels.step(), dst, planes[0].step(), roi, stream);
                    const Zel16u* src[3] = {dst[0], dst[1], dst[2]};
                    zel::mergeImage<Zel16u, 3>(src, planes[0].step(), back.roi(), back.step(), roi, stream);
                    ASSERT_TRUE(zel::test::sameRoi(back, pixels, 3));
                    ASSERT_TRUE(back.outsideUnchanged());
                    for (const auto& plane : planes) ASSERT_TRUE(plane.outsideUnchanged());
                }
    });
}

template <class T>
using MaskedCopyFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize, const Zel8u*, int);

template <class T>
void checkMaskedCopy(const std::vector<std::pair<ChannelMove, MaskedCopyFn<T>>>& members) {
    for (const auto& [m, call] : members)
        zel::test::checkMasked<T>(
            m.dstChannels, m.from[3] == kKept ? 3 : m.dstChannels,
            [&, call = call](const Image<T>& src, Image<T>& dst, const Image<Zel8u>& mask) {
                return call(src.roi(), src.step(), dst.roi(), dst.step(), dst.size(), mask.roi(), mask.step());
            },
            [](const Image<T>& src, int x, int y, int c) { return src.at(x, y, c); });
}

#define MASKED_COPY_MEMBERS(T, t)                                             \
    std::vector<std::pair<ChannelMove, MaskedCopyFn<T>>> {                    \
        {{1, 1, 0, 0, {0}}, zeliCopy_##t##_C1MR},                             \
        {{3, 3, 0, 0, {0, 1, 2}}, zeliCopy_##t##_C3MR},                       \
        {{4, 4, 0, 0, {0, 1, 2, 3}}, zeliCopy_##t##_C4MR},                    \
        {{4, 4, 0, 0, {0, 1, 2, K}}, zeliCopy_##t##_AC4MR},                   \
    }

TEST(Copy, MaskedMembersWriteOnlySelectedPixels) {
    checkMaskedCopy(MASKED_COPY_MEMBERS(Zel8u, 8u));
    checkMaskedCopy(MASKED_COPY_MEMBERS(Zel16u, 16u));
    checkMaskedCopy(MASKED_COPY_MEMBERS(Zel16s, 16s));
    checkMaskedCopy(MASKED_COPY_MEMBERS(Zel32s, 32s));
    checkMaskedCopy(MASKED_COPY_MEMBERS(Zel32f, 32f));
}

TEST(Copy, AllZeroMaskLeavesTheDestination) {
    const ZeliSize roi{67, 5};
    Image<Zel8u> src(roi, 3, -1, 1, 5, 2), dst(roi, 3, -1, 1, 5, 3);
    Image<Zel8u> mask(roi, 1);
    mask.fill([](int, int, int) { return Zel8u(0); });
    EXPECT_EQ(zeliCopy_8u_C3MR(src.roi(), src.step(), dst.roi(), dst.step(), roi, mask.roi(), mask.step()),
              zelStatusOk);
    EXPECT_TRUE(dst.unchanged());
}

// The plan: collapse and non-temporal stores at their thresholds.
TEST(CopyPaths, PlanFollowsTheThresholds) {
    const int mib = 1 << 20;
    struct Case {
        const char* what;
        std::int64_t rowBytes;
        int height, srcStep, dstStep, cache;
        zel::CopyPlan want;
    };
    const Case cases[] = {
        {"padded rows stay rows", 100, 10, 128, 100, 0, {100, 10, false}},
        {"contiguous rows collapse", 100, 10, 100, 100, 0, {1000, 1, false}},
        {"one row never collapses", 100, 1, 7, 7, 0, {100, 1, false}},
        {"2 MiB, cache unknown", 2 * mib, 1, 0, 0, 0, {2 * mib, 1, false}},
        {"2 MiB, half of a 4 MiB cache", 1024, 2048, 1024, 1024, 4 * mib, {2 * mib, 1, true}},
        {"2 MiB, under half of the cache", 1024, 2048, 1024, 1024, 4 * mib + 2, {2 * mib, 1, false}},
        {"one byte under 2 MiB", 2 * mib - 1, 1, 0, 0, 1024, {2 * mib - 1, 1, false}},
        {"padded rows stream too", 1024, 4096, 2048, -2048, 8 * mib, {1024, 4096, true}},
        {"collapse would overflow", 65536, 32768, 65536, 65536, 0, {65536, 32768, true}},
        {"largest collapse", INT_MAX, 1, INT_MAX, INT_MAX, 0, {INT_MAX, 1, false}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const zel::CopyPlan plan = zel::planCopy(c.rowBytes, c.height, c.srcStep, c.dstStep, c.cache);
        EXPECT_EQ(plan.rowBytes, c.want.rowBytes);
        EXPECT_EQ(plan.height, c.want.height);
        EXPECT_EQ(plan.stream, c.want.stream);
    }
}

// Every plan copies the same bytes: rows or one collapsed row, cached or
// non-temporal stores, on unaligned rows of awkward lengths.
TEST(CopyPaths, EveryPlanGivesTheSameBytes) {
    zel::test::forEachConfig([] {
        for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{63, 17}, ZeliSize{1031, 3}, ZeliSize{4099, 2}})
            for (bool collapse : {false, true})
                for (bool stream : {false, true}) {
                    SCOPED_TRACE(testing::Message() << roi.width << "x" << roi.height << " collapse "
                                                    << collapse << " stream " << stream);
                    Image<Zel8u> src(roi, 1, -1, 3, 0, 2), dst(roi, 1, -1, 5, 0, 3);
                    const zel::CopyPlan plan =
                        collapse ? zel::CopyPlan{std::int64_t{roi.width} * roi.height, 1, stream}
                                 : zel::CopyPlan{roi.width, roi.height, stream};
                    zel::copyRows(src.roi(), src.step(), dst.roi(), dst.step(), plan);
                    ASSERT_TRUE(zel::test::sameRoi(dst, src, 1));
                    ASSERT_TRUE(dst.outsideUnchanged());
                }
    });
}

TEST(CopyManaged, EveryFlagCopiesTheSameBytes) {
    const ZeliSize roi{517, 9};
    for (int flags : {0, 1, 2, 3, -1}) {
        SCOPED_TRACE(flags);
        Image<Zel8u> src(roi, 1, -1, 1, 3, 2), dst(roi, 1, -1, 6, 5, 3);
        ASSERT_EQ(zeliCopyManaged_8u_C1R(src.roi(), src.step(), dst.roi(), dst.step(), roi, flags), zelStatusOk);
        EXPECT_TRUE(zel::test::sameRoi(dst, src, 1));
        EXPECT_TRUE(dst.outsideUnchanged());
    }
}

TEST(Copy, NegativeStepsWalkUpwards) {
    const ZeliSize roi{13, 6};
    Image<Zel32f> src(roi, 3, -1, 4, 8, 2), dst(roi, 3, -1, 4, 8, 3);
    ASSERT_EQ(zeliCopy_32f_C3R(src.row(5), -src.step(), dst.row(5), -dst.step(), roi), zelStatusOk);
    EXPECT_TRUE(zel::test::sameRoi(dst, src, 3));
    EXPECT_TRUE(dst.outsideUnchanged());
}

TEST(Copy, ChecksNullThenSizeButNoStep) {
    const ZeliSize roi{4, 4};
    Image<Zel16s> src(roi, 4), dst(roi, 4), plane0(roi, 1), plane1(roi, 1), plane2(roi, 1);
    Image<Zel8u> mask(roi, 1);
    Zel16s* planes[3] = {plane0.roi(), nullptr, plane2.roi()};
    const Zel16s* srcPlanes[3] = {plane0.roi(), plane1.roi(), nullptr};
    const int s = src.step();
    zel::test::expectRejected(
        {
            {"null src", zelStatusNullPtr, [&] { return zeliCopy_16s_C1R(nullptr, s, dst.roi(), s, roi); }},
            {"null dst", zelStatusNullPtr, [&] { return zeliCopy_16s_C4CR(src.roi(), s, nullptr, s, roi); }},
            {"null mask", zelStatusNullPtr,
             [&] { return zeliCopy_16s_AC4MR(src.roi(), s, dst.roi(), s, roi, nullptr, 4); }},
            {"null plane", zelStatusNullPtr, [&] { return zeliCopy_16s_C3P3R(src.roi(), s, planes, s, roi); }},
            {"null plane array", zelStatusNullPtr,
             [&] { return zeliCopy_16s_P4C4R(nullptr, s, dst.roi(), s, roi); }},
            {"null source plane before size", zelStatusNullPtr,
             [&] { return zeliCopy_16s_P3C3R(srcPlanes, s, dst.roi(), s, {0, 4}); }},
            {"null before size", zelStatusNullPtr,
             [&] { return zeliCopy_16s_C3AC4R(src.roi(), s, nullptr, s, {0, 0}); }},
            {"zero width", zelStatusBadSize, [&] { return zeliCopy_16s_C4R(src.roi(), 0, dst.roi(), 0, {0, 4}); }},
            {"negative height", zelStatusBadSize,
             [&] { return zeliCopy_16s_C1MR(src.roi(), s, dst.roi(), s, {4, -1}, mask.roi(), 4); }},
            {"managed zero height", zelStatusBadSize,
             [&] {
                 return zeliCopyManaged_8u_C1R(mask.roi(), 4, mask.roi(), 4, {4, 0}, 1);
             }},
            {"dup null", zelStatusNullPtr, [&] { return zeliDup_8u_C1C3R(nullptr, 4, mask.roi(), 4, {0, 0}); }},
            {"dup size", zelStatusBadSize, [&] { return zeliDup_8u_C1C3R(mask.roi(), 4, mask.roi(), 4, {1, 0}); }},
        },
        dst, plane0, plane2, mask);
    // Steps are not checked: one row with zero steps is copied.
    EXPECT_EQ(zeliCopy_16s_C4R(src.roi(), 0, dst.roi(), 0, {4, 1}), zelStatusOk);
    EXPECT_EQ(std::memcmp(dst.row(0), src.row(0), 4 * 4 * sizeof(Zel16s)), 0);
}

}  // namespace
