// Argument checks of the data families: each failure comes back with its
// status and writes nothing.
#include <gtest/gtest.h>

#include <cstring>

#include "harness/checkorder.h"
#include "harness/image.h"

namespace {

using zel::test::Image;

// Copy, Dup, CopyManaged, Set and Transpose check pointers, then the size
// (in place Transpose also that it is square, out of place with one buffer
// that it is a square with one step), never the steps.
TEST(DataChecks, NullThenSizeButNoStep) {
    const ZeliSize roi{4, 4};
    Image<Zel16s> src(roi, 4), dst(roi, 4), plane0(roi, 1), plane2(roi, 1);
    Image<Zel8u> mask(roi, 1);
    Zel16s* planes[3] = {plane0.roi(), nullptr, plane2.roi()};
    const Zel16s* srcPlanes[3] = {plane0.roi(), plane2.roi(), nullptr};
    const Zel16s v[4] = {1, 2, 3, 4};
    const int s = src.step();
    Zel16s* d = dst.roi();
    const Zel16s* p = src.roi();
    Zel8u* m = mask.roi();
    zel::test::expectRejected(
        {
            {"copy null src", zelStatusNullPtr, [&] { return zeliCopy_16s_C1R(nullptr, s, d, s, roi); }},
            {"copy null dst before size", zelStatusNullPtr, [&] { return zeliCopy_16s_C4CR(p, s, nullptr, s, {0, 0}); }},
            {"copy null mask", zelStatusNullPtr, [&] { return zeliCopy_16s_AC4MR(p, s, d, s, roi, nullptr, 4); }},
            {"copy null plane", zelStatusNullPtr, [&] { return zeliCopy_16s_C3P3R(p, s, planes, s, roi); }},
            {"copy null plane array", zelStatusNullPtr, [&] { return zeliCopy_16s_P4C4R(nullptr, s, d, s, roi); }},
            {"copy null source plane before size", zelStatusNullPtr,
             [&] { return zeliCopy_16s_P3C3R(srcPlanes, s, d, s, {0, 4}); }},
            {"copy zero width", zelStatusBadSize, [&] { return zeliCopy_16s_C4R(p, 0, d, 0, {0, 4}); }},
            {"copy negative height", zelStatusBadSize, [&] { return zeliCopy_16s_C1MR(p, s, d, s, {4, -1}, m, 4); }},
            {"managed null", zelStatusNullPtr, [&] { return zeliCopyManaged_8u_C1R(m, 4, nullptr, 4, {0, 0}, 1); }},
            {"managed zero height", zelStatusBadSize, [&] { return zeliCopyManaged_8u_C1R(m, 4, m, 4, {4, 0}, 1); }},
            {"dup null", zelStatusNullPtr, [&] { return zeliDup_8u_C1C3R(nullptr, 4, m, 4, {0, 0}); }},
            {"dup size", zelStatusBadSize, [&] { return zeliDup_8u_C1C3R(m, 4, m, 4, {1, 0}); }},
            {"set null value", zelStatusNullPtr, [&] { return zeliSet_16s_C4R(nullptr, d, s, roi); }},
            {"set null dst before size", zelStatusNullPtr, [&] { return zeliSet_16s_AC4R(v, nullptr, s, {0, 4}); }},
            {"set zero width", zelStatusBadSize, [&] { return zeliSet_16s_C4R(v, d, 0, {0, 4}); }},
            {"set zero height", zelStatusBadSize, [&] { return zeliSet_16s_C3R(v, d, s, {4, 0}); }},
            {"set null mask", zelStatusNullPtr, [&] { return zeliSet_16s_C3MR(v, d, s, roi, nullptr, 4); }},
            {"set masked null value", zelStatusNullPtr, [&] { return zeliSet_16s_AC4MR(nullptr, d, s, {0, 4}, m, 4); }},
            {"set masked size", zelStatusBadSize, [&] { return zeliSet_16s_C1MR(1, d, 0, {4, 0}, m, 0); }},
            {"set channel null", zelStatusNullPtr, [&] { return zeliSet_16s_C4CR(1, nullptr, s, {0, 0}); }},
            {"set channel size", zelStatusBadSize, [&] { return zeliSet_16s_C3CR(1, d, -3, {-2, 4}); }},
            {"transpose null src", zelStatusNullPtr, [&] { return zeliTranspose_16s_C1R(nullptr, s, d, s, {0, 4}); }},
            {"transpose null dst", zelStatusNullPtr, [&] { return zeliTranspose_16s_C3R(p, s, nullptr, s, {4, 0}); }},
            {"transpose null in place", zelStatusNullPtr, [&] { return zeliTranspose_16s_C4IR(nullptr, s, {4, 3}); }},
            {"transpose zero width", zelStatusBadSize, [&] { return zeliTranspose_16s_C4R(p, 0, d, 0, {0, 1}); }},
            {"in place zero", zelStatusBadSize, [&] { return zeliTranspose_16s_C1IR(d, 0, {0, 0}); }},
            {"in place 4x3", zelStatusBadSize, [&] { return zeliTranspose_16s_C1IR(d, s, {4, 3}); }},
            {"in place 1x2", zelStatusBadSize, [&] { return zeliTranspose_16s_C3IR(d, s, {1, 2}); }},
            // One buffer as source and destination: only a square with one
            // step, after the null and size checks.
            {"same buffer, size first", zelStatusBadSize, [&] { return zeliTranspose_16s_C1R(d, s, d, s, {0, 4}); }},
            {"same buffer, not square", zelStatusBadArgument, [&] { return zeliTranspose_16s_C1R(d, s, d, s, {4, 3}); }},
            {"same buffer, two steps", zelStatusBadArgument,
             [&] { return zeliTranspose_16s_C3R(d, s, d, s + 6, {2, 2}); }},
            {"same buffer, 1x2", zelStatusBadArgument, [&] { return zeliTranspose_16s_C4R(d, s, d, s, {1, 2}); }},
        },
        dst, plane0, plane2, mask);
    // Zero steps are accepted: one row is copied, one pixel filled or transposed.
    EXPECT_EQ(zeliCopy_16s_C4R(p, 0, d, 0, {4, 1}), zelStatusOk);
    EXPECT_EQ(std::memcmp(d, p, 4 * 4 * sizeof(Zel16s)), 0);
    EXPECT_EQ(zeliSet_16s_C4R(v, d, 0, {1, 1}), zelStatusOk);
    EXPECT_EQ(zeliTranspose_16s_C1R(p, 0, d, 0, {1, 1}), zelStatusOk);
}

TEST(DataChecks, SwapChannelsOrderPerMember) {
    const ZeliSize roi{4, 4};
    Image<Zel8u> src(roi, 4), dst(roi, 4);
    const int s = src.step();
    const int good[4] = {2, 1, 0, 3}, bad3[4] = {0, 3, 1, 0}, bad4[4] = {0, 1, 4, 0};
    const int negative[4] = {0, -1, 1, 0};
    Zel8u* d = dst.roi();
    const Zel8u* p = src.roi();
    zel::test::expectRejected(
        {
            // C3R, AC4R, C3IR: null, size, step, entries.
            {"C3R null order", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C3R(p, s, d, s, {0, 0}, nullptr); }},
            {"C3R size before step", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C3R(p, 0, d, 0, {0, 4}, bad3); }},
            {"C3R step before entries", zelStatusBadStep, [&] { return zeliSwapChannels_8u_C3R(p, 0, d, s, roi, bad3); }},
            {"C3R entry 3", zelStatusBadChannelOrder, [&] { return zeliSwapChannels_8u_C3R(p, s, d, s, roi, bad3); }},
            {"AC4R negative dst step", zelStatusBadStep,
             [&] { return zeliSwapChannels_16u_AC4R(reinterpret_cast<const Zel16u*>(p), s,
                                                    reinterpret_cast<Zel16u*>(d), -s, {2, 4}, good); }},
            {"C3IR step", zelStatusBadStep, [&] { return zeliSwapChannels_8u_C3IR(d, 0, roi, bad3); }},
            {"C3IR entry", zelStatusBadChannelOrder, [&] { return zeliSwapChannels_8u_C3IR(d, s, roi, negative); }},
            // C4IR: step before size.
            {"C4IR null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C4IR(d, 0, {0, 0}, nullptr); }},
            {"C4IR step before size", zelStatusBadStep, [&] { return zeliSwapChannels_8u_C4IR(d, 0, {0, 4}, bad4); }},
            {"C4IR size before entries", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C4IR(d, s, {4, 0}, bad4); }},
            {"C4IR entry 4", zelStatusBadChannelOrder, [&] { return zeliSwapChannels_8u_C4IR(d, s, roi, bad4); }},
            // C4C3R: no step check.
            {"C4C3R null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C4C3R(p, s, nullptr, s, roi, good); }},
            {"C4C3R size", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C4C3R(p, 0, d, 0, {-1, 4}, bad4); }},
            {"C4C3R entries, steps unchecked", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_8u_C4C3R(p, 0, d, 0, roi, bad4); }},
            {"C4C3R negative entry", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_8u_C4C3R(p, s, d, s, roi, negative); }},
            // C3C4R: only negative first-three entries are refused.
            {"C3C4R null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C3C4R(nullptr, s, d, s, roi, good, 0); }},
            {"C3C4R size", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C3C4R(p, s, d, s, {4, 0}, negative, 0); }},
            {"C3C4R negative entry", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_8u_C3C4R(p, 0, d, 0, roi, negative, 0); }},
        },
        dst);
    // Steps are not checked by C4C3R and C3C4R: one row goes through.
    const int wide[4] = {0, 1, 2, -3};
    EXPECT_EQ(zeliSwapChannels_8u_C4C3R(p, 0, d, 0, {4, 1}, good), zelStatusOk);
    EXPECT_EQ(zeliSwapChannels_8u_C3C4R(p, 0, d, -1, {1, 1}, wide, 9), zelStatusOk);
    EXPECT_EQ(zeliSwapChannels_8u_C3C4R(p, s, d, s, roi, bad4, 9), zelStatusOk);
}

}  // namespace
