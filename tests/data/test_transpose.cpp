#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"

namespace {

using zel::test::Image;

template <class T>
struct TransposeMember {
    int channels;
    ZelStatus (*outOfPlace)(const T*, int, T*, int, ZeliSize);
    ZelStatus (*inPlace)(T*, int, ZeliSize);
};

#define TRANSPOSE_MEMBERS(t)                                            \
    std::vector<TransposeMember<Zel##t>> {                              \
        {1, zeliTranspose_##t##_C1R, zeliTranspose_##t##_C1IR},         \
        {3, zeliTranspose_##t##_C3R, zeliTranspose_##t##_C3IR},         \
        {4, zeliTranspose_##t##_C4R, zeliTranspose_##t##_C4IR},         \
    }

template <class T>
::testing::AssertionResult isTransposeOf(const Image<T>& dst, const Image<T>& src, int channels) {
    for (int y = 0; y < src.size().height; ++y)
        for (int x = 0; x < src.size().width; ++x)
            if (std::memcmp(&dst.row(x)[y * channels], &src.row(y)[x * channels], channels * sizeof(T)) != 0)
                return ::testing::AssertionFailure() << "source pixel " << x << "," << y;
    return dst.outsideUnchanged();
}

// Sizes around the register blocks (16 / pixel size) and the 64-pixel tiles.
std::vector<ZeliSize> transposeSizes() {
    std::vector<ZeliSize> sizes = zel::test::oddSizes();
    for (ZeliSize s : {ZeliSize{16, 16}, ZeliSize{64, 8}, ZeliSize{100, 37}, ZeliSize{130, 67}, ZeliSize{4, 129}})
        sizes.push_back(s);
    return sizes;
}

template <class T>
void checkTranspose(const std::vector<TransposeMember<T>>& members) {
    zel::test::forEachConfig([&] {
        for (const auto& m : members) {
            for (ZeliSize roi : transposeSizes()) {
                SCOPED_TRACE(testing::Message() << "C" << m.channels << " " << roi.width << "x" << roi.height);
                Image<T> src(roi, m.channels, -1, sizeof(T), 5 * sizeof(T), 2);
                Image<T> dst({roi.height, roi.width}, m.channels, -1, 3 * sizeof(T), 7 * sizeof(T), 3);
                ASSERT_EQ(m.outOfPlace(src.roi(), src.step(), dst.roi(), dst.step(), roi), zelStatusOk);
                ASSERT_TRUE(isTransposeOf(dst, src, m.channels));
            }
            for (int n : {1, 2, 15, 16, 17, 33, 64, 70}) {
                SCOPED_TRACE(testing::Message() << "in place C" << m.channels << " " << n);
                const Image<T> src({n, n}, m.channels, -1, sizeof(T), 5 * sizeof(T), 2);
                Image<T> img = src;
                ASSERT_EQ(m.inPlace(img.roi(), img.step(), {n, n}), zelStatusOk);
                ASSERT_TRUE(isTransposeOf(img, src, m.channels));
            }
        }
    });
}

TEST(Transpose, EveryMemberMatchesTheReference) {
    checkTranspose(TRANSPOSE_MEMBERS(8u));
    checkTranspose(TRANSPOSE_MEMBERS(16u));
    checkTranspose(TRANSPOSE_MEMBERS(16s));
    checkTranspose(TRANSPOSE_MEMBERS(32s));
}

TEST(Transpose, ChecksNullThenSizeAndSquareInPlace) {
    Image<Zel8u> src({4, 4}, 1), dst({4, 4}, 1);
    const int s = src.step();
    zel::test::expectRejected(
        {
            {"null src", zelStatusNullPtr, [&] { return zeliTranspose_8u_C1R(nullptr, s, dst.roi(), s, {0, 4}); }},
            {"null dst", zelStatusNullPtr, [&] { return zeliTranspose_16s_C3R(nullptr, s, nullptr, s, {4, 4}); }},
            {"null in place", zelStatusNullPtr, [&] { return zeliTranspose_32s_C4IR(nullptr, s, {4, 3}); }},
            {"zero width", zelStatusBadSize, [&] { return zeliTranspose_8u_C4R(src.roi(), 0, dst.roi(), 0, {0, 1}); }},
            {"in place zero", zelStatusBadSize, [&] { return zeliTranspose_8u_C1IR(dst.roi(), 0, {0, 0}); }},
            {"in place 4x3", zelStatusBadSize, [&] { return zeliTranspose_8u_C1IR(dst.roi(), s, {4, 3}); }},
            {"in place 3x4", zelStatusBadSize,
             [&] { return zeliTranspose_16u_C1IR(reinterpret_cast<Zel16u*>(dst.roi()), s, {1, 2}); }},
        },
        dst);
    // Steps are not checked: a single pixel goes through with zero steps.
    EXPECT_EQ(zeliTranspose_8u_C1R(src.roi(), 0, dst.roi(), 0, {1, 1}), zelStatusOk);
    EXPECT_EQ(dst.at(0, 0), src.at(0, 0));
}

}  // namespace
