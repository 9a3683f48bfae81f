#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "harness/image.h"
#include "harness/sweep.h"

namespace {

using zel::test::Image;

template <class T>
::testing::AssertionResult isTransposeOf(const Image<T>& dst, const Image<T>& src, int channels) {
    for (int y = 0; y < src.size().height; ++y)
        for (int x = 0; x < src.size().width; ++x)
            if (std::memcmp(&dst.row(x)[y * channels], &src.row(y)[x * channels], channels * sizeof(T)) != 0)
                return ::testing::AssertionFailure() << "source pixel " << x << "," << y;
    return dst.outsideUnchanged();
}

// Odd sizes and sizes around the register blocks (16 / pixel size) and the
// 64-pixel tiles; the squares in place too, by the in-place member and by
// the out-of-place one given the same buffer twice.
template <class T, int C>
void checkTranspose(ZelStatus (*outOfPlace)(const T*, int, T*, int, ZeliSize),
                    ZelStatus (*inPlace)(T*, int, ZeliSize)) {
    std::vector<ZeliSize> sizes = zel::test::oddSizes();
    sizes.insert(sizes.end(), {{64, 8}, {100, 37}, {130, 67}, {4, 129}, {2, 2}, {15, 15}, {16, 16}, {17, 17}});
    sizes.insert(sizes.end(), {{33, 33}, {64, 64}, {70, 70}});
    zel::test::forEachConfig([&] {
        for (ZeliSize roi : sizes) {
            SCOPED_TRACE(testing::Message() << "C" << C << " " << roi.width << "x" << roi.height);
            Image<T> src(roi, C, -1, sizeof(T), 5 * sizeof(T), 2);
            Image<T> dst({roi.height, roi.width}, C, -1, 3 * sizeof(T), 7 * sizeof(T), 3);
            ASSERT_EQ(outOfPlace(src.roi(), src.step(), dst.roi(), dst.step(), roi), zelStatusOk);
            ASSERT_TRUE(isTransposeOf(dst, src, C));
            if (roi.width != roi.height) continue;
            Image<T> img = src, same = src;
            ASSERT_EQ(inPlace(img.roi(), img.step(), roi), zelStatusOk);
            ASSERT_TRUE(isTransposeOf(img, src, C));
            ASSERT_EQ(outOfPlace(same.roi(), same.step(), same.roi(), same.step(), roi), zelStatusOk);
            ASSERT_TRUE(isTransposeOf(same, src, C));
        }
    });
}

#define CHECK_TRANSPOSE(T, t)                                                \
    checkTranspose<T, 1>(zeliTranspose_##t##_C1R, zeliTranspose_##t##_C1IR); \
    checkTranspose<T, 3>(zeliTranspose_##t##_C3R, zeliTranspose_##t##_C3IR); \
    checkTranspose<T, 4>(zeliTranspose_##t##_C4R, zeliTranspose_##t##_C4IR);

TEST(Transpose, EveryMemberMatchesTheReference) {
    CHECK_TRANSPOSE(Zel8u, 8u) CHECK_TRANSPOSE(Zel16u, 16u) CHECK_TRANSPOSE(Zel16s, 16s) CHECK_TRANSPOSE(Zel32s, 32s)
}

}  // namespace
