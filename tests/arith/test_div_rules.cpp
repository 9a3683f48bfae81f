// The division rule itself: every 8u pair, large random samples of the
// wider types, the shortcut bands, warnings, and the argument checks.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "arith/div_reference.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using zel::test::Image;

// Divisor x, dividend y for every 8u pair; the reference is computed once
// per scale factor and mode and met by every SIMD target and thread count.
template <class Call>
void expectEvery8uPair(std::initializer_list<int> modes, Call call) {
    const ZeliSize roi{256, 256};
    Image<Zel8u> divisor(roi, 1), dividend(roi, 1), dst(roi, 1);
    divisor.fill([](int x, int, int) { return Zel8u(x); });
    dividend.fill([](int, int y, int) { return Zel8u(y); });
    std::vector<Zel8u> expected(256 * 256);
    for (int mode : modes)
        for (int s : {-16, -15, -9, -8, -1, 0, 1, 2, 8, 9, 10}) {
            for (int i = 0; i < 256 * 256; ++i)
                expected[i] = divref::real<Zel8u>(Zel8u(i % 256), Zel8u(i / 256), s, mode);
            zel::test::forEachConfig([&] {
                ASSERT_EQ(call(divisor, dividend, dst, mode, s), zelStatusWarnDivByZero);
                for (int i = 0; i < 256 * 256; ++i)
                    ASSERT_EQ(dst.at(i % 256, i / 256), expected[i])
                        << i / 256 << " / " << i % 256 << " s=" << s << " mode " << mode;
                ASSERT_TRUE(dst.outsideUnchanged());
            });
        }
}

#define PAIR_CALL(fn, ...)                                                                              \
    [](auto& a, auto& b, auto& d, [[maybe_unused]] int mode, int s) {                                   \
        return int(fn(a.roi(), a.step(), b.roi(), b.step(), d.roi(), d.step(), a.size(), __VA_ARGS__)); \
    }

TEST(DivRule, Every8uPairAtEveryBand) { expectEvery8uPair({1}, PAIR_CALL(zeliDiv_8u_C1RSfs, s)); }

TEST(DivRule, Every8uPairInEveryRoundingMode) {
    expectEvery8uPair({0, 1, 2}, PAIR_CALL(zeliDiv_Round_8u_C1RSfs, ZelRoundingMode(mode), s));
}

// 65536 sampled pairs per type against the reference at scale factors
// around every band edge, with the 128-bit complex intermediates at their
// extremes.
template <class T, class Call>
void expectSampled(Call call, std::initializer_list<int> scales, std::initializer_list<int> modes) {
    const ZeliSize roi{256, 256};
    Image<T> divisor(roi, 1), dividend(roi, 1), dst(roi, 1);
    std::mt19937 rng(7);
    divisor.fill([&](int, int, int) { return divref::sampleElement<T>(rng); });
    dividend.fill([&](int, int, int) { return divref::sampleElement<T>(rng); });
    for (int mode : modes)
        for (int s : scales) {
            bool warn = false;
            const int status = call(divisor, dividend, dst, mode, s);
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x) {
                    const T a = divisor.at(x, y), b = dividend.at(x, y);
                    warn |= divref::warns(a, b, s);
                    ASSERT_TRUE(divref::same(dst.at(x, y), divref::quotient(a, b, s, mode)))
                        << "at " << x << "," << y << " s=" << s << " mode " << mode;
                }
            EXPECT_EQ(status, warn ? zelStatusWarnDivByZero : zelStatusOk) << "s=" << s;
        }
}

TEST(DivRule, SampledWideTypes) {
    zel::test::ConfigGuard restore;  // one thread: the thread split is tested with the members
    zelSetNumThreads(1);
    const auto scales16u = {-40, -32, -31, -17, -1, 0, 1, 2, 15, 16, 17, 30};
    const auto scales16s = {-40, -31, -30, -15, -1, 0, 1, 2, 14, 15, 16, 17};
    expectSampled<Zel16u>(PAIR_CALL(zeliDiv_16u_C1RSfs, s), scales16u, {1});
    expectSampled<Zel16s>(PAIR_CALL(zeliDiv_16s_C1RSfs, s), scales16s, {1});
    expectSampled<Zel16u>(PAIR_CALL(zeliDiv_Round_16u_C1RSfs, ZelRoundingMode(mode), s), scales16u, {0, 2});
    expectSampled<Zel16s>(PAIR_CALL(zeliDiv_Round_16s_C1RSfs, ZelRoundingMode(mode), s), scales16s, {0, 2});
    expectSampled<Zel16sc>(PAIR_CALL(zeliDiv_16sc_C1RSfs, s),
                           {-100, -34, -33, -32, -31, -16, -1, 0, 1, 2, 15, 16, 17, 32, 33, 100}, {1});
    expectSampled<Zel32sc>(PAIR_CALL(zeliDiv_32sc_C1RSfs, s), {-60, -33, -31, -1, 0, 1, 2, 31, 33, 34, 40},
                           {1});
}

TEST(DivRule, ExtremeScaleFactorsAndQuotients) {
    Zel32sc a[2] = {{INT32_MIN, INT32_MIN}, {0, 1}}, b[2] = {{1, 0}, {INT32_MIN, INT32_MAX}}, d[2];
    const int stride = int(sizeof a);
    EXPECT_EQ(zeliDiv_32sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, -200), zelStatusOk);
    EXPECT_EQ(d[0].re, INT32_MIN);  // 1 * 2^200 / -2^31 per part, saturated
    EXPECT_EQ(d[0].im, INT32_MAX);
    EXPECT_EQ(d[1].re, INT32_MAX);  // b / i = (b.im, -b.re)
    EXPECT_EQ(zeliDiv_32sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 0), zelStatusOk);
    EXPECT_EQ(d[1].re, INT32_MAX);
    EXPECT_EQ(d[1].im, INT32_MAX);  // -INT32_MIN saturates
    Zel16s n = -7, z = 0, q = 0;
    EXPECT_EQ(zeliDiv_16s_C1RSfs(&z, 2, &n, 2, &q, 2, {1, 1}, INT32_MIN), zelStatusWarnDivByZero);
    EXPECT_EQ(q, -32768);
    EXPECT_EQ(zeliDiv_Round_16s_C1RSfs(&z, 2, &n, 2, &q, 2, {1, 1}, zelRoundHalfAway, INT32_MAX),
              zelStatusWarnDivByZero);
    EXPECT_EQ(q, -32768);
}

TEST(DivRule, ComplexTopBandPairsDivisorRealWithDividendImaginary) {
    Zel16sc a[2] = {{0, 5}, {3, 0}}, b[2] = {{7, 0}, {9, 9}}, d[2] = {{1, 1}, {1, 1}};
    const int stride = int(sizeof a);
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 33), zelStatusWarnDivByZero);
    EXPECT_EQ(d[0].re | d[0].im | d[1].re | d[1].im, 0);
    b[0].im = 1;  // no pair left: the warning goes although a[0] is still not zero
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 33), zelStatusOk);
    a[0] = {0, 0};  // nor does a zero divisor alone
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 33), zelStatusOk);
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, -33), zelStatusWarnDivByZero);
    EXPECT_EQ(d[0].re | d[0].im, 0);
    EXPECT_EQ(d[1].re, 32767);  // 9 * 3 > 0
    EXPECT_EQ(d[1].im, 32767);
}

TEST(DivRule, AlphaDivisorsNeverWarn) {
    Zel8u a[8] = {1, 1, 1, 0, 1, 1, 1, 0}, b[8] = {4, 4, 4, 4, 4, 4, 4, 4}, d[8] = {};
    zel::test::forEachConfig([&] {
        EXPECT_EQ(zeliDiv_8u_AC4RSfs(a, 8, b, 8, d, 8, {2, 1}, 1), zelStatusOk);
        EXPECT_EQ(zeliDiv_8u_C4RSfs(a, 8, b, 8, d, 8, {2, 1}, 1), zelStatusWarnDivByZero);
        float fa[4] = {2, 2, 2, 0}, fb[4] = {1, 1, 1, 1}, fd[4];
        EXPECT_EQ(zeliDiv_32f_AC4R(fa, 16, fb, 16, fd, 16, {1, 1}), zelStatusOk);
        EXPECT_EQ(zeliDiv_32f_C4R(fa, 16, fb, 16, fd, 16, {1, 1}), zelStatusWarnDivByZero);
    });
}

TEST(DivC, Float32MultipliesByTheReciprocal) {
    const ZeliSize roi{67, 5};
    Image<Zel32f> src(roi, 3), dst(roi, 3);
    const float c[3] = {3.0f, -7.0f, 0.1f};
    bool someDiffer = false;
    zel::test::forEachConfig([&] {
        ASSERT_EQ(zeliDivC_32f_C3R(src.roi(), src.step(), c, dst.roi(), dst.step(), roi), zelStatusOk);
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x)
                for (int k = 0; k < 3; ++k) {
                    const float product = src.at(x, y, k) * (1.0f / c[k]);
                    ASSERT_EQ(std::memcmp(&dst.at(x, y, k), &product, 4), 0) << x << "," << y;
                    someDiffer |= product != src.at(x, y, k) / c[k];
                }
    });
    EXPECT_TRUE(someDiffer) << "the data does not tell x * (1 / c) from x / c";
}

// A mode value as a caller might pass it, also outside the enumeration.
ZelRoundingMode rawMode(int value) {
    ZelRoundingMode mode;
    std::memcpy(&mode, &value, sizeof mode);
    return mode;
}

TEST(DivChecks, OrderIsNullSizeStepThenOwnChecks) {
    Image<Zel8u> s1({4, 4}, 3), s2({4, 4}, 3), d({4, 4}, 3);
    const Zel8u c[3] = {1, 0, 1}, ok[3] = {1, 2, 3};
    const Zel16sc zero{0, 0}, imaginary{0, 1};
    Zel16sc z16[4] = {};
    const int st = d.step();
    const ZelRoundingMode bad = rawMode(3);
    zel::test::expectRejected(
        {
            {"null src1", -8,
             [&] {
                 return zeliDiv_8u_C3RSfs(nullptr, st, s2.roi(), st, d.roi(), st, {4, 4}, 0);
             }},
            {"null dst", -8,
             [&] {
                 return zeliDiv_8u_C3IRSfs(s1.roi(), st, nullptr, st, {4, 4}, 0);
             }},
            {"null before size", -8,
             [&] {
                 return zeliDiv_32f_C1R(nullptr, 4, nullptr, 4, nullptr, 4, {0, 0});
             }},
            {"size", -6,
             [&] {
                 return zeliDiv_8u_C3RSfs(s1.roi(), st, s2.roi(), st, d.roi(), st, {0, 4}, 0);
             }},
            {"size before step", -6,
             [&] {
                 return zeliDiv_8u_C3RSfs(s1.roi(), 0, s2.roi(), st, d.roi(), st, {4, 0}, 0);
             }},
            {"divisor step", -14,
             [&] {
                 return zeliDiv_8u_C3RSfs(s1.roi(), 0, s2.roi(), st, d.roi(), st, {4, 4}, 0);
             }},
            {"dst step", -14,
             [&] {
                 return zeliDiv_8u_C3IRSfs(s1.roi(), st, d.roi(), -st, {4, 4}, 0);
             }},
            {"mode", -213,
             [&] {
                 return zeliDiv_Round_8u_C3RSfs(s1.roi(), st, s2.roi(), st, d.roi(), st, {4, 4}, bad, 0);
             }},
            {"step before mode", -14,
             [&] {
                 return zeliDiv_Round_8u_C3IRSfs(s1.roi(), st, d.roi(), 0, {4, 4}, bad, 0);
             }},
            {"size before mode", -6,
             [&] {
                 return zeliDiv_Round_8u_C3IRSfs(s1.roi(), st, d.roi(), st, {-1, 4}, bad, 0);
             }},
            {"null constant", -8,
             [&] {
                 return zeliDivC_8u_C3RSfs(s1.roi(), st, nullptr, d.roi(), st, {4, 4}, 0);
             }},
            {"zero constant", -10,
             [&] {
                 return zeliDivC_8u_C3RSfs(s1.roi(), st, c, d.roi(), st, {4, 4}, 0);
             }},
            {"zero constant in place", -10,
             [&] {
                 return zeliDivC_8u_C3IRSfs(c, d.roi(), st, {4, 4}, 0);
             }},
            {"step before constant", -14,
             [&] {
                 return zeliDivC_8u_C3IRSfs(c, d.roi(), 0, {4, 4}, 0);
             }},
            {"size before constant", -6,
             [&] {
                 return zeliDivC_8u_C1IRSfs(0, d.roi(), st, {4, 0}, 0);
             }},
            {"null before constant", -8,
             [&] {
                 return zeliDivC_32f_C1R(nullptr, st, 0.0f, nullptr, st, {0, 0});
             }},
            {"zero 32f constant", -10,
             [&] {
                 return zeliDivC_32f_C1IR(-0.0f, reinterpret_cast<float*>(d.roi()), st, {1, 1});
             }},
            {"zero 16sc constant", -10,
             [&] {
                 return zeliDivC_16sc_C1IRSfs(zero, reinterpret_cast<Zel16sc*>(d.roi()), st, {1, 1}, 0);
             }},
        },
        s1, s2, d);
    // A mode outside the enumeration's values is rejected too; an imaginary constant is not zero.
    for (int mode : {-1, 3, 7})
        EXPECT_EQ(zeliDiv_Round_16s_C1IRSfs(reinterpret_cast<Zel16s*>(s1.roi()), st,
                                            reinterpret_cast<Zel16s*>(d.roi()), st, {1, 1}, rawMode(mode), 0),
                  zelStatusBadRoundMode);
    EXPECT_EQ(zeliDivC_16sc_C1IRSfs(imaginary, z16, 16, {4, 1}, 0), zelStatusOk);
    EXPECT_EQ(zeliDivC_8u_C3IRSfs(ok, d.roi(), st, {4, 4}, 0), zelStatusOk);
}

}  // namespace
