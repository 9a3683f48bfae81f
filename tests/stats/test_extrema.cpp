// Min, Max, MinMax, MinIndx and MaxIndx against a scalar reference in
// row-major order: random images on odd sizes inside guarded buffers under
// every SIMD target and thread count, ties in several rows and columns,
// constant images, the extreme in the last pixel, the 32f rules (NaN
// skipped, -0 below +0, the C1 maximum's start value) and the check order.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

template <class T>
struct ExtremaMember {
    std::string name;
    int channels, computed;
    std::function<ZelStatus(const T*, int, ZeliSize, T*)> min, max;
    std::function<ZelStatus(const T*, int, ZeliSize, T*, T*)> minMax;
    std::function<ZelStatus(const T*, int, ZeliSize, T*, int*, int*)> minIndx, maxIndx;
};

#define EXTREMA_MEMBER(t, l, ch, comp)                                                                   \
    ExtremaMember<Zel##t> {                                                                              \
        #t "_" #l, ch, comp, &zeliMin_##t##_##l##R, &zeliMax_##t##_##l##R, &zeliMinMax_##t##_##l##R,       \
            &zeliMinIndx_##t##_##l##R, &zeliMaxIndx_##t##_##l##R                                          \
    }
#define EXTREMA_MEMBERS(t) \
    {EXTREMA_MEMBER(t, C1, 1, 1), EXTREMA_MEMBER(t, C3, 3, 3), EXTREMA_MEMBER(t, C4, 4, 4), EXTREMA_MEMBER(t, AC4, 4, 3)}

template <class T>
std::vector<ExtremaMember<T>> members();
template <> std::vector<ExtremaMember<Zel8u>> members() { return EXTREMA_MEMBERS(8u); }
template <> std::vector<ExtremaMember<Zel16u>> members() { return EXTREMA_MEMBERS(16u); }
template <> std::vector<ExtremaMember<Zel16s>> members() { return EXTREMA_MEMBERS(16s); }
template <> std::vector<ExtremaMember<Zel32f>> members() { return EXTREMA_MEMBERS(32f); }

// The reference order: a < b, with -0 below +0 for floats.
template <class T>
bool less(T a, T b) {
    if constexpr (std::is_floating_point_v<T>) {
        if (a == b) return std::signbit(a) && !std::signbit(b);
    }
    return a < b;
}

template <class T>
bool isNan(T v) {
    if constexpr (std::is_floating_point_v<T>) return v != v;
    else return false;
}

// First occurrence in row-major order of each channel's extreme (NaN
// skipped). found false: the channel held nothing but NaN.
template <class T>
struct Extreme {
    T value;
    int x, y;
    bool found;
};

template <class T>
Extreme<T> reference(const Image<T>& img, int c, bool wantMax) {
    Extreme<T> e{T(0), 0, 0, false};
    for (int y = 0; y < img.size().height; ++y)
        for (int x = 0; x < img.size().width; ++x) {
            const T v = img.at(x, y, c);
            if (isNan(v)) continue;
            if (!e.found || (wantMax ? less(e.value, v) : less(v, e.value))) e = {v, x, y, true};
        }
    return e;
}

template <class T>
::testing::AssertionResult same(T got, const Extreme<T>& want) {
    if constexpr (std::is_floating_point_v<T>) {
        if (!want.found) return got != got ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << got << ", expected NaN";
        if (std::memcmp(&got, &want.value, sizeof(T)) != 0)
            return ::testing::AssertionFailure() << got << ", expected " << want.value;
        return ::testing::AssertionSuccess();
    } else {
        if (got != want.value) return ::testing::AssertionFailure() << +got << ", expected " << +want.value;
        return ::testing::AssertionSuccess();
    }
}

template <class T>
void expectAllMatch(const ExtremaMember<T>& m, const Image<T>& img) {
    const ZeliSize roi = img.size();
    T mn[4], mx[4], mn2[4], mx2[4], vi[4], va[4];
    int xi[4], yi[4], xa[4], ya[4];
    ASSERT_EQ(m.min(img.roi(), img.step(), roi, mn), zelStatusOk);
    ASSERT_EQ(m.max(img.roi(), img.step(), roi, mx), zelStatusOk);
    ASSERT_EQ(m.minMax(img.roi(), img.step(), roi, mn2, mx2), zelStatusOk);
    ASSERT_EQ(m.minIndx(img.roi(), img.step(), roi, vi, xi, yi), zelStatusOk);
    ASSERT_EQ(m.maxIndx(img.roi(), img.step(), roi, va, xa, ya), zelStatusOk);
    for (int c = 0; c < m.computed; ++c) {
        SCOPED_TRACE("channel " + std::to_string(c));
        const Extreme<T> lo = reference(img, c, false), hi = reference(img, c, true);
        // MaxIndx 32f C1 starts from the lowest finite value in row 0.
        Extreme<T> hiIndx = hi;
        if constexpr (std::is_floating_point_v<T>)
            if (m.channels == 1 && (!hi.found || hi.value < -3.4028235e38f)) hiIndx = {-3.4028235e38f, 0, 0, true};
        EXPECT_TRUE(same(mn[c], lo));
        EXPECT_TRUE(same(mn2[c], lo));
        EXPECT_TRUE(same(vi[c], lo));
        EXPECT_TRUE(same(mx[c], hi));
        EXPECT_TRUE(same(mx2[c], hi));
        EXPECT_TRUE(same(va[c], hiIndx));
        EXPECT_EQ(xi[c], lo.x);
        EXPECT_EQ(yi[c], lo.y);
        EXPECT_EQ(xa[c], hiIndx.x);
        EXPECT_EQ(ya[c], hiIndx.y);
    }
    EXPECT_TRUE(img.unchanged());
}

template <class T>
class ExtremaTest : public ::testing::Test {};
using ExtremaTypes = ::testing::Types<Zel8u, Zel16u, Zel16s, Zel32f>;
TYPED_TEST_SUITE(ExtremaTest, ExtremaTypes);

TYPED_TEST(ExtremaTest, MatchesReferenceOnRandomImages) {
    using T = TypeParam;
    std::vector<ZeliSize> sizes = oddSizes();
    sizes.push_back({70, 41});
    for (const auto& m : members<T>())
        for (ZeliSize roi : sizes) {
            SCOPED_TRACE(m.name + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height));
            Image<T> img(roi, m.channels, -1, sizeof(T) * (1 + roi.width % 3), 3 * sizeof(T) + 5, roi.height);
            // A narrow value range makes ties in many rows and columns.
            if constexpr (std::is_floating_point_v<T>) img.fill([](int x, int y, int c) { return T((x * 13 + y * 7 + c) % 9) - 4; });
            else if (roi.width * roi.height > 100) img.fillRandom(3, T(std::numeric_limits<T>::lowest() + 1), T(std::numeric_limits<T>::max() - 1));
            forEachConfig([&] { expectAllMatch(m, img); });
        }
}

TYPED_TEST(ExtremaTest, TiesConstantImagesAndTheLastPixel) {
    using T = TypeParam;
    using L = std::numeric_limits<T>;
    for (const auto& m : members<T>()) {
        SCOPED_TRACE(m.name);
        const ZeliSize roi{41, 37};
        Image<T> img(roi, m.channels);
        // Constant: every extreme at (0, 0).
        img.fill([](int, int, int) { return T(5); });
        forEachConfig([&] { expectAllMatch(m, img); });
        // The bounds of the type in several rows and columns, after 20 rows
        // (another block of rows) and at the last pixel alone.
        img.fill([&](int x, int y, int c) {
            if ((x == 30 && y == 20) || (x == 3 && y == 33) || (x == 10 && y == 20)) return c == 1 ? L::lowest() : L::max();
            if (x == roi.width - 1 && y == roi.height - 1) return c == 1 ? L::max() : L::lowest();
            return T(7);
        });
        forEachConfig([&] { expectAllMatch(m, img); });
        // Every channel at the type's bound from the first row on: the scan
        // stops early and still reports (0, 0).
        img.fill([&](int x, int, int) { return x % 2 ? L::max() : L::lowest(); });
        forEachConfig([&] { expectAllMatch(m, img); });
        // Extremes only in the last pixel.
        img.fill([&](int x, int y, int c) { return x == roi.width - 1 && y == roi.height - 1 ? T(9 + c) : T(1); });
        forEachConfig([&] { expectAllMatch(m, img); });
    }
}

TEST(MaxIndx, FirstOccurrenceInRowMajorOrder) {
    Image<Zel8u> img({8, 6}, 1);
    img.fill([](int x, int y, int) { return Zel8u((x == 5 && y == 2) || (x == 1 && y == 3) ? 200 : 10); });
    Zel8u v;
    int x, y;
    ASSERT_EQ(zeliMaxIndx_8u_C1R(img.roi(), img.step(), img.size(), &v, &x, &y), zelStatusOk);
    EXPECT_EQ(v, 200);
    EXPECT_EQ(x, 5);
    EXPECT_EQ(y, 2);
}

TEST(Extrema32f, NanIsSkippedAndNegativeZeroIsTheSmaller) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const auto& m : members<Zel32f>()) {
        SCOPED_TRACE(m.name);
        Image<Zel32f> img({19, 5}, m.channels);
        img.fill([&](int x, int y, int c) {
            if ((x + y + c) % 3 == 0) return nan;
            if (x == 4 && y == 1) return -0.f;
            return (x * y) % 2 ? 0.f : 1.f;
        });
        forEachConfig([&] { expectAllMatch(m, img); });
        img.fill([&](int, int, int c) { return c == 0 ? nan : float(c); });
        forEachConfig([&] { expectAllMatch(m, img); });
        img.fill([&](int x, int y, int) { return x + y == 0 ? nan : -std::numeric_limits<float>::infinity(); });
        forEachConfig([&] { expectAllMatch(m, img); });
    }
}

TEST(Extrema32f, C1MaximumStartsFromLowestFinite) {
    Image<Zel32f> img({7, 4}, 1);
    img.fill([](int, int, int) { return -std::numeric_limits<float>::infinity(); });
    float v;
    int x = -1, y = -1;
    ASSERT_EQ(zeliMaxIndx_32f_C1R(img.roi(), img.step(), img.size(), &v, &x, &y), zelStatusOk);
    EXPECT_EQ(v, -3.4028235e38f);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    // Max without index reports the true maximum.
    ASSERT_EQ(zeliMax_32f_C1R(img.roi(), img.step(), img.size(), &v), zelStatusOk);
    EXPECT_EQ(v, -std::numeric_limits<float>::infinity());
    // C3 starts from the first pixel.
    Image<Zel32f> c3({7, 4}, 3);
    c3.fill([](int, int, int) { return -std::numeric_limits<float>::infinity(); });
    float v3[3];
    int x3[3], y3[3];
    ASSERT_EQ(zeliMaxIndx_32f_C3R(c3.roi(), c3.step(), c3.size(), v3, x3, y3), zelStatusOk);
    EXPECT_EQ(v3[1], -std::numeric_limits<float>::infinity());
}

// Every output pointer, then the size; nothing written on failure; no
// step check (0 reads the first row for every row).
TYPED_TEST(ExtremaTest, ChecksPointersThenSizeAndNeverTheStep) {
    using T = TypeParam;
    for (const auto& m : members<T>()) {
        SCOPED_TRACE(m.name);
        Image<T> img({6, 5}, m.channels);
        const T* s = img.roi();
        const int st = img.step();
        T a[4] = {}, b[4] = {};
        int xs[4] = {-5, -5, -5, -5}, ys[4] = {-5, -5, -5, -5};
        EXPECT_EQ(m.min(s, st, {0, 0}, nullptr), zelStatusNullPtr);
        EXPECT_EQ(m.max(nullptr, st, {0, 0}, a), zelStatusNullPtr);
        EXPECT_EQ(m.minMax(s, st, {0, 0}, a, nullptr), zelStatusNullPtr);
        EXPECT_EQ(m.minIndx(s, st, {0, 0}, a, nullptr, ys), zelStatusNullPtr);
        EXPECT_EQ(m.maxIndx(s, st, {0, 0}, a, xs, nullptr), zelStatusNullPtr);
        EXPECT_EQ(m.minMax(s, st, {6, 0}, a, b), zelStatusBadSize);
        EXPECT_EQ(m.maxIndx(s, st, {-1, 5}, a, xs, ys), zelStatusBadSize);
        EXPECT_EQ(m.minIndx(s, st, {0, 0}, a, xs, ys), zelStatusBadSize);
        for (int c = 0; c < 4; ++c) EXPECT_TRUE(a[c] == T() && b[c] == T() && xs[c] == -5 && ys[c] == -5);
        EXPECT_EQ(m.maxIndx(s, 0, img.size(), a, xs, ys), zelStatusOk);
        EXPECT_EQ(ys[0], 0);
    }
}

}  // namespace
