// CountInRange, MinEvery/MaxEvery and DotProdCol against scalar references:
// inclusive bounds per channel and crossed bounds, element-wise extremes
// with the AC4 alpha and the guard bytes untouched, the row-order linear
// combination with its partial result at a null row, and the check orders.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

// ---- CountInRange ---------------------------------------------------------------

template <class T>
struct CountMember {
    std::string name;
    int channels, computed;
    std::function<ZelStatus(const T*, int, ZeliSize, int*, const T*, const T*)> fn;
};

#define COUNT_C1(t) \
    CountMember<Zel##t> { #t "_C1", 1, 1, [](const Zel##t* s, int st, ZeliSize r, int* n, const Zel##t* lo, const Zel##t* hi) { return zeliCountInRange_##t##_C1R(s, st, r, n, *lo, *hi); } }
#define COUNT(t, l, ch) CountMember<Zel##t>{#t "_" #l, ch, 3, &zeliCountInRange_##t##_##l##R}

template <class T>
std::vector<CountMember<T>> countMembers();
template <> std::vector<CountMember<Zel8u>> countMembers() { return {COUNT_C1(8u), COUNT(8u, C3, 3), COUNT(8u, AC4, 4)}; }
template <> std::vector<CountMember<Zel32f>> countMembers() { return {COUNT_C1(32f), COUNT(32f, C3, 3), COUNT(32f, AC4, 4)}; }

template <class T>
class CountTest : public ::testing::Test {};
using CountTypes = ::testing::Types<Zel8u, Zel32f>;
TYPED_TEST_SUITE(CountTest, CountTypes);

TYPED_TEST(CountTest, InclusiveBoundsPerChannel) {
    using T = TypeParam;
    std::vector<ZeliSize> sizes = oddSizes();
    sizes.push_back({300, 9});  // more than 255 vectors in a row
    sizes.push_back({4100, 3});
    const T bounds[][2][3] = {{{T(7), T(0), T(100)}, {T(7), T(255), T(100)}},  // lower = upper; everything
                              {{T(20), T(100), T(0)}, {T(200), T(101), T(0)}}};
    for (const auto& m : countMembers<T>())
        for (ZeliSize roi : sizes)
            for (const auto& b : bounds) {
                SCOPED_TRACE(m.name + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height));
                Image<T> img(roi, m.channels, -1, sizeof(T) * 3);
                if constexpr (std::is_floating_point_v<T>) {
                    img.fill([](int x, int y, int c) { return (x * 5 + y * 3 + c) % 11 == 0 ? std::nanf("") : T((x * 31 + y * 17 + c * 5) % 260); });
                } else {
                    img.fill([](int x, int y, int c) { return T((x * 31 + y * 17 + c * 5) % 256); });
                }
                int want[3] = {0, 0, 0};
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        for (int c = 0; c < m.computed; ++c) want[c] += b[0][c] <= img.at(x, y, c) && img.at(x, y, c) <= b[1][c];
                forEachConfig([&] {
                    int got[4] = {-1, -1, -1, -1};
                    ASSERT_EQ(m.fn(img.roi(), img.step(), roi, got, b[0], b[1]), zelStatusOk);
                    for (int c = 0; c < m.computed; ++c) EXPECT_EQ(got[c], want[c]) << "channel " << c;
                    EXPECT_EQ(got[m.computed], -1);
                    EXPECT_TRUE(img.unchanged());
                });
            }
}

// Pointers, then the step before the size, then crossed bounds in any
// channel; nothing written on failure.
TYPED_TEST(CountTest, ChecksPointersStepSizeThenBounds) {
    using T = TypeParam;
    for (const auto& m : countMembers<T>()) {
        SCOPED_TRACE(m.name);
        Image<T> img({6, 4}, m.channels);
        int n[3] = {9, 9, 9};
        const T lo[3] = {T(1), T(2), T(3)}, hi[3] = {T(5), T(5), T(5)}, crossedLast[3] = {T(5), T(5), T(2)};
        const T *s = img.roi(), *upper = m.computed == 3 ? crossedLast : lo;
        EXPECT_EQ(m.fn(nullptr, 0, {0, 0}, n, hi, lo), zelStatusNullPtr);
        EXPECT_EQ(m.fn(s, img.step(), img.size(), nullptr, lo, hi), zelStatusNullPtr);
        EXPECT_EQ(m.fn(s, 0, {0, 0}, n, hi, lo), zelStatusBadStep);
        EXPECT_EQ(m.fn(s, -img.step(), img.size(), n, lo, hi), zelStatusBadStep);
        EXPECT_EQ(m.fn(s, img.step(), {6, 0}, n, hi, lo), zelStatusBadSize);
        EXPECT_EQ(m.fn(s, img.step(), img.size(), n, hi, upper), zelStatusBadRange);
        if (m.computed == 3) {
            EXPECT_EQ(m.fn(s, 0, img.size(), n, lo, nullptr), zelStatusNullPtr);
        }
        EXPECT_TRUE(n[0] == 9 && n[1] == 9 && n[2] == 9);
    }
}

TEST(CountInRange, EqualBoundsCountThatValue) {
    Image<Zel8u> img({13, 7}, 1);
    img.fill([](int x, int y, int) { return Zel8u((x + y) % 9); });
    int n = 0, want = 0;
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 13; ++x) want += (x + y) % 9 == 7;
    ASSERT_EQ(zeliCountInRange_8u_C1R(img.roi(), img.step(), img.size(), &n, 7, 7), zelStatusOk);
    EXPECT_EQ(n, want);
    EXPECT_EQ(zeliCountInRange_8u_C1R(img.roi(), img.step(), img.size(), &n, 8, 7), zelStatusBadRange);
}

// ---- MinEvery / MaxEvery ---------------------------------------------------------

template <class T>
struct EveryMember {
    std::string name;
    int channels, computed;
    std::function<ZelStatus(const T*, int, T*, int, ZeliSize)> min, max;
};
#define EVERY(t, l, ch, comp) EveryMember<Zel##t>{#t "_" #l, ch, comp, &zeliMinEvery_##t##_##l##IR, &zeliMaxEvery_##t##_##l##IR}
#define EVERY_MEMBERS(t) {EVERY(t, C1, 1, 1), EVERY(t, C3, 3, 3), EVERY(t, C4, 4, 4), EVERY(t, AC4, 4, 3)}
template <class T>
std::vector<EveryMember<T>> everyMembers();
template <> std::vector<EveryMember<Zel8u>> everyMembers() { return EVERY_MEMBERS(8u); }
template <> std::vector<EveryMember<Zel16u>> everyMembers() { return EVERY_MEMBERS(16u); }
template <> std::vector<EveryMember<Zel16s>> everyMembers() { return EVERY_MEMBERS(16s); }
template <> std::vector<EveryMember<Zel32f>> everyMembers() { return EVERY_MEMBERS(32f); }

template <class T>
class EveryTest : public ::testing::Test {};
using EveryTypes = ::testing::Types<Zel8u, Zel16u, Zel16s, Zel32f>;
TYPED_TEST_SUITE(EveryTest, EveryTypes);

TYPED_TEST(EveryTest, ElementwiseExtremeWithAlphaAndGuardsUntouched) {
    using T = TypeParam;
    std::vector<T> specials;
    if constexpr (std::is_floating_point_v<T>)
        specials = {std::nanf(""), -0.f, 0.f, std::numeric_limits<T>::infinity(), -1.f, 1.f};
    else
        specials = {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(), T(0), T(1)};
    for (const auto& m : everyMembers<T>())
        for (ZeliSize roi : oddSizes())
            for (bool wantMax : {false, true}) {
                SCOPED_TRACE(m.name + (wantMax ? " max " : " min ") + std::to_string(roi.width) + "x" + std::to_string(roi.height));
                Image<T> src(roi, m.channels, -1, sizeof(T) * 2, 3 * sizeof(T) + 5, 11);
                Image<T> dst(roi, m.channels, m.computed, sizeof(T) * (roi.width % 4), 3 * sizeof(T) + 5, 12);
                // Some equal pairs and the special values on both sides.
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        for (int c = 0; c < m.channels; ++c) {
                            const int k = x * 7 + y * 3 + c;
                            if (k % 5 == 0) src.at(x, y, c) = dst.at(x, y, c);
                            if (k % 7 == 1) src.at(x, y, c) = specials[k % specials.size()];
                            if (k % 11 == 2) dst.at(x, y, c) = specials[(k / 3) % specials.size()];
                        }
                src.snapshot();
                dst.snapshot();
                const Image<T> before = dst;
                forEachConfig([&] {
                    Image<T> out = before;
                    ASSERT_EQ((wantMax ? m.max : m.min)(src.roi(), src.step(), out.roi(), out.step(), roi), zelStatusOk);
                    EXPECT_TRUE(out.outsideUnchanged());
                    EXPECT_TRUE(src.unchanged());
                    for (int y = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x)
                            for (int c = 0; c < m.computed; ++c) {
                                const T s = src.at(x, y, c), d = before.at(x, y, c);
                                const T want = (wantMax ? d < s : s < d) ? s : d;
                                const T got = out.at(x, y, c);
                                ASSERT_EQ(std::memcmp(&got, &want, sizeof(T)), 0) << x << "," << y << "," << c;
                            }
                });
            }
}

TYPED_TEST(EveryTest, ChecksPointersSizeThenSteps) {
    using T = TypeParam;
    for (const auto& m : everyMembers<T>()) {
        SCOPED_TRACE(m.name);
        Image<T> src({5, 3}, m.channels), dst({5, 3}, m.channels);
        for (auto fn : {m.min, m.max}) {
            const std::vector<Rejection> cases = {
                {"null src", zelStatusNullPtr, [&] { return fn(nullptr, src.step(), dst.roi(), 0, {0, 0}); }},
                {"size before step", zelStatusBadSize, [&] { return fn(src.roi(), 0, dst.roi(), 0, {5, 0}); }},
                {"src step 0", zelStatusBadStep, [&] { return fn(src.roi(), 0, dst.roi(), dst.step(), {5, 3}); }},
                {"dst step negative", zelStatusBadStep, [&] { return fn(src.roi(), src.step(), dst.roi(), -dst.step(), {5, 3}); }},
            };
            expectRejected(cases, dst);
        }
    }
}

// ---- DotProdCol -------------------------------------------------------------------

TEST(DotProdCol, RowOrderSinglePrecisionCombination) {
    for (int len : {1, 3, 8, 17, 100, 1027})
        for (int rows : {1, 2, 5}) {
            SCOPED_TRACE(std::to_string(len) + " elements, " + std::to_string(rows) + " rows");
            std::vector<std::vector<float>> data(rows, std::vector<float>(len + 1));
            std::vector<const float*> ptrs;
            std::vector<float> coeffs;
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j <= len; ++j) data[i][j] = std::sin(float(i * 131 + j * 7)) * 1000.f;
                ptrs.push_back(data[i].data() + (i % 2));  // unaligned rows too
                coeffs.push_back(0.1f * float(i + 1) - 0.37f);
            }
            std::vector<float> want(len);
            for (int j = 0; j < len; ++j) {
                float acc = coeffs[0] * ptrs[0][j];
                for (int i = 1; i < rows; ++i) {
                    const float product = coeffs[i] * ptrs[i][j];
                    acc = acc + product;
                }
                want[j] = acc;
            }
            forEachConfig([&] {
                std::vector<float> got(len + 2, 123.f);
                ASSERT_EQ(zeliDotProdCol_32f_L2(ptrs.data(), coeffs.data(), rows, got.data() + 1, len), zelStatusOk);
                EXPECT_EQ(got[0], 123.f);
                EXPECT_EQ(got[len + 1], 123.f);
                EXPECT_EQ(std::memcmp(got.data() + 1, want.data(), sizeof(float) * len), 0);
            });
        }
}

TEST(DotProdCol, NullRowKeepsThePartialResult) {
    const float r0[5] = {1, 2, 3, 4, 5}, r1[5] = {10, 20, 30, 40, 50};
    const float coeffs[3] = {2.f, 3.f, 4.f};
    float dst[5] = {-1, -1, -1, -1, -1};
    const float* partial[3] = {r0, r1, nullptr};
    EXPECT_EQ(zeliDotProdCol_32f_L2(partial, coeffs, 3, dst, 5), zelStatusNullPtr);
    for (int j = 0; j < 5; ++j) EXPECT_EQ(dst[j], 2.f * r0[j] + 3.f * r1[j]);
    const float* second[2] = {r0, nullptr};
    EXPECT_EQ(zeliDotProdCol_32f_L2(second, coeffs, 2, dst, 5), zelStatusNullPtr);
    for (int j = 0; j < 5; ++j) EXPECT_EQ(dst[j], 2.f * r0[j]);
    // A null first row is found before anything is written; so are the
    // other checks, in their order.
    float untouched[5] = {-1, -1, -1, -1, -1};
    const float* first[2] = {nullptr, r1};
    const float* good[2] = {r0, r1};
    EXPECT_EQ(zeliDotProdCol_32f_L2(first, coeffs, 2, untouched, 5), zelStatusNullPtr);
    EXPECT_EQ(zeliDotProdCol_32f_L2(nullptr, coeffs, 0, untouched, 5), zelStatusNullPtr);
    EXPECT_EQ(zeliDotProdCol_32f_L2(good, nullptr, 2, untouched, 5), zelStatusNullPtr);
    EXPECT_EQ(zeliDotProdCol_32f_L2(good, coeffs, 2, nullptr, 5), zelStatusNullPtr);
    EXPECT_EQ(zeliDotProdCol_32f_L2(good, coeffs, 0, untouched, 5), zelStatusBadSize);
    EXPECT_EQ(zeliDotProdCol_32f_L2(good, coeffs, 2, untouched, 0), zelStatusBadSize);
    EXPECT_EQ(zeliDotProdCol_32f_L2(first, coeffs, 2, untouched, -1), zelStatusBadSize);
    for (float v : untouched) EXPECT_EQ(v, -1.f);
}

}  // namespace
