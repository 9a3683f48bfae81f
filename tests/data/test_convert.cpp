// Convert and Scale against a scalar transcription of their rules, on every
// SIMD target with one and several threads, in ROIs with guard bytes.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/memory.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

// ---- Scalar rules ----------------------------------------------------------

template <class D>
D saturate(double v) {
    if (std::isnan(v)) return D(0);
    return static_cast<D>(std::fmin(std::fmax(v, double(std::numeric_limits<D>::lowest())),
                                    double(std::numeric_limits<D>::max())));
}

// 32f to D by rounding mode, in the standard environment.
template <class D>
D roundTo(float x, int mode) {
    const float lo = float(std::numeric_limits<D>::min()), hi = float(std::numeric_limits<D>::max());
    float v = x < hi ? x : hi;
    if (mode == 0 || mode == 1) {
        v = v > lo ? v : lo;
        return static_cast<D>(mode == 0 ? std::trunc(v) : std::nearbyint(v));
    }
    const float sum = v + std::copysign(0.5f, v);  // rounds in single precision
    return saturate<D>(std::trunc(double(sum)));
}

float k16() {
    const std::uint32_t bits = 0x3B7F00FF;
    float k;
    std::memcpy(&k, &bits, 4);
    return k;
}

// Scale down to 8u; hint 2 accurate.
template <class S>
Zel8u scaleDown(S x, int hint) {
    const std::int64_t v = x;
    if (hint != 2) {
        if constexpr (sizeof(S) == 4) return Zel8u(((v - (v >> 8)) >> 24) + 128);
        const std::int64_t y = std::is_same_v<S, Zel16u> ? v - 32768 : v;
        return Zel8u(((y - (y >> 8)) >> 8) + 128);
    }
    if constexpr (sizeof(S) == 4)
        return saturate<Zel8u>(std::nearbyint(double(x) * (255.0 / 4294967295.0) + 127.5000000296859));
    const float f = float(std::is_same_v<S, Zel16s> ? v + 32768 : v) * k16();
    return saturate<Zel8u>(std::nearbyint(f));
}

Zel8u scaleFromRange(float x, float vMin, float vMax) {
    const float k = 255.0f / (vMax - vMin), b = -k * vMin;
    float v = x < vMax ? x : vMax;
    v = v > vMin ? v : vMin;
    const float y = v * k + b;
    return saturate<Zel8u>(std::isnan(y) ? 0.0 : std::nearbyint(y));
}

// ---- Every member over random and exhaustive sources -----------------------

// Source values: every value of 8- and 16-bit types in turn from a random
// start; 32f values random across the destination's range and beyond, every
// third one a special value.
template <class S>
void fillSource(Image<S>& img, std::uint32_t seed, double span) {
    std::mt19937 rng(seed);
    static const float specials[] = {0.5f, -0.5f, 1.5f, -1.5f, 2.5f, -2.5f, 0.49999997f, -0.49999997f,
                                     0.50000006f, 127.5f, -128.5f, 255.5f, 254.5f, 32767.5f, -32768.5f,
                                     65535.5f, 65534.5f, 127.49999f, 255.49998f, std::nextafter(255.0f, 300.0f),
                                     std::nextafter(-128.0f, -200.0f), -0.0f, 1e-45f, -1e-45f, 1e-38f,
                                     std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::quiet_NaN(),
                                     INFINITY, -INFINITY, 3e9f, -3e9f, 65536.0f, -1.0f};
    std::uint64_t k = rng();
    img.fill([&](int, int, int) {
        ++k;
        if constexpr (std::is_floating_point_v<S>) {
            if (k % 3 == 0) return specials[(k / 3) % (sizeof specials / sizeof specials[0])];
            return float(std::uniform_real_distribution<double>(-span, span)(rng));
        } else if constexpr (sizeof(S) == 4) {
            return S(rng());
        } else {
            return S(std::numeric_limits<S>::min() + std::int64_t(k % (1u << (8 * sizeof(S)))));
        }
    });
}

// Runs fn (pSrc, srcStep, pDst, dstStep, roi) on odd sizes and one that
// holds every 16-bit value, under every target and thread count; every
// written element must equal ref(source element), and nothing else change.
template <class S, class D, class Fn, class Ref>
void checkMember(const std::string& name, int channels, bool alpha, Fn fn, Ref ref, double span = 70000) {
    SCOPED_TRACE(name);
    auto sizes = oddSizes();
    sizes.push_back({4099, 17});
    for (ZeliSize roi : sizes) {
        Image<S> src(roi, channels, -1, 3 * sizeof(S));
        fillSource(src, roi.width * 31 + roi.height, span);
        forEachConfig([&] {
            Image<D> dst(roi, channels, alpha ? 3 : channels);
            ASSERT_EQ(fn(src.roi(), src.step(), dst.roi(), dst.step(), roi), zelStatusOk);
            ASSERT_TRUE(dst.outsideUnchanged());
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x)
                    for (int c = 0; c < (alpha ? 3 : channels); ++c) {
                        const D want = ref(src.at(x, y, c)), got = dst.at(x, y, c);
                        ASSERT_EQ(std::memcmp(&want, &got, sizeof(D)), 0)
                            << x << "," << y << "," << c << " of " << roi.width << "x" << roi.height << ": "
                            << double(src.at(x, y, c)) << " gave " << double(got) << ", want " << double(want);
                    }
        });
    }
}

#define LAYOUTS(m, ...) m(__VA_ARGS__, C1, 1, false) m(__VA_ARGS__, C3, 3, false) \
                        m(__VA_ARGS__, C4, 4, false) m(__VA_ARGS__, AC4, 4, true)

#define EXACT(s, d, lay, ch, alpha)                                                                  \
    checkMember<Zel##s, Zel##d>("Convert_" #s #d "_" #lay, ch, alpha, zeliConvert_##s##d##_##lay##R, \
                                [](Zel##s x) { return saturate<Zel##d>(double(x)); });

TEST(Convert, IntegerMembersWidenExactlyAndSaturate) {
    LAYOUTS(EXACT, 8u, 16u) LAYOUTS(EXACT, 8u, 16s) LAYOUTS(EXACT, 8u, 32s) LAYOUTS(EXACT, 8s, 32s)
    LAYOUTS(EXACT, 16s, 32s) LAYOUTS(EXACT, 16u, 32s) LAYOUTS(EXACT, 8u, 32f) LAYOUTS(EXACT, 8s, 32f)
    LAYOUTS(EXACT, 16s, 32f) LAYOUTS(EXACT, 16u, 32f) LAYOUTS(EXACT, 16u, 8u) LAYOUTS(EXACT, 16s, 8u)
    LAYOUTS(EXACT, 32s, 8u) LAYOUTS(EXACT, 32s, 8s)
}

#define ROUNDED(dt, lay, ch, alpha)                                                                    \
    for (int mode : {0, 1, 2, 7, -1})                                                                  \
        checkMember<Zel32f, Zel##dt>("Convert_32f" #dt "_" #lay " mode " + std::to_string(mode), ch, alpha, \
                                     [mode](const Zel32f* a, int as, Zel##dt* b, int bs, ZeliSize r) {   \
                                         return zeliConvert_32f##dt##_##lay##R(a, as, b, bs, r,         \
                                                                               ZelRoundingMode(mode));  \
                                     },                                                                 \
                                     [mode](Zel32f x) { return roundTo<Zel##dt>(x, mode); });

TEST(Convert, FloatMembersClampAndRoundByMode) {
    LAYOUTS(ROUNDED, 8u) LAYOUTS(ROUNDED, 8s) LAYOUTS(ROUNDED, 16s) LAYOUTS(ROUNDED, 16u)
}

#define SCALE_UP(d, lay, ch, alpha)                                                                  \
    checkMember<Zel8u, Zel##d>("Scale_8u" #d "_" #lay, ch, alpha, zeliScale_8u##d##_##lay##R,        \
                               [](Zel8u x) {                                                         \
                                   const std::uint32_t r = sizeof(Zel##d) == 4 ? x * 16843009u       \
                                                                               : x * 257u;           \
                                   const std::uint32_t bias = std::is_same_v<Zel##d, Zel16u> ? 0 :   \
                                                              sizeof(Zel##d) == 2 ? 32768u : 1u << 31; \
                                   return Zel##d(r - bias);                                          \
                               });
#define SCALE_DOWN(st, lay, ch, alpha)                                                                  \
    for (int hint : {0, 1, 2, 3})                                                                       \
        checkMember<Zel##st, Zel8u>("Scale_" #st "8u_" #lay " hint " + std::to_string(hint), ch, alpha, \
                                    [hint](const Zel##st* a, int as, Zel8u* b, int bs, ZeliSize r) {    \
                                        return zeliScale_##st##8u_##lay##R(a, as, b, bs, r, ZelAccuracyHint(hint)); \
                                    },                                                                  \
                                    [hint](Zel##st x) { return scaleDown(x, hint); });
#define SCALE_RANGE(unused, lay, ch, alpha)                                                              \
    for (auto [lo, hi] : std::vector<std::pair<float, float>>{{-10.0f, 300.0f}, {0.0f, 1.0f}, {5.0f, 5.5f}, {-1e30f, 1e30f}, {0.0f, INFINITY}, {-INFINITY, 0.0f}}) { \
        checkMember<Zel8u, Zel32f>("Scale_8u32f_" #lay, ch, alpha,                                       \
                                   [lo = lo, hi = hi](const Zel8u* a, int as, Zel32f* b, int bs, ZeliSize r) { \
                                       return zeliScale_8u32f_##lay##R(a, as, b, bs, r, lo, hi);         \
                                   },                                                                    \
                                   [lo = lo, hi = hi](Zel8u x) { return float(x) * ((hi - lo) / 255.0f) + lo; }); \
        checkMember<Zel32f, Zel8u>("Scale_32f8u_" #lay, ch, alpha,                                       \
                                   [lo = lo, hi = hi](const Zel32f* a, int as, Zel8u* b, int bs, ZeliSize r) { \
                                       return zeliScale_32f8u_##lay##R(a, as, b, bs, r, lo, hi);         \
                                   },                                                                    \
                                   [lo = lo, hi = hi](Zel32f x) { return scaleFromRange(x, lo, hi); },   \
                                   std::fmin(std::fmax(std::fabs(lo), std::fabs(hi)) * 1.1, 1e6));                       \
    }

TEST(Scale, EveryMemberFollowsItsFormula) {
    LAYOUTS(SCALE_UP, 16u) LAYOUTS(SCALE_UP, 16s) LAYOUTS(SCALE_UP, 32s)
    LAYOUTS(SCALE_DOWN, 16s) LAYOUTS(SCALE_DOWN, 16u) LAYOUTS(SCALE_DOWN, 32s)
    LAYOUTS(SCALE_RANGE, range)
}

// ---- Rounding boundaries and the control word -----------------------------

TEST(Convert, RoundingEdgeCases) {
    const Zel32f in[] = {2.5f, -0.5f, 300.0f, std::numeric_limits<float>::quiet_NaN()};
    const Zel8u want[3][4] = {{2, 0, 255, 255}, {2, 0, 255, 255}, {3, 0, 255, 255}};
    const int modes[] = {0, 1, 7};
    for (int m = 0; m < 3; ++m) {
        Zel8u out[4] = {};
        ASSERT_EQ(zeliConvert_32f8u_C1R(in, 16, out, 4, {4, 1}, ZelRoundingMode(modes[m])), zelStatusOk);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(out[i], want[m][i]) << "mode " << modes[m] << " value " << in[i];
    }
    const Zel32f neg = -2.5f;
    for (auto [mode, want16] : std::vector<std::pair<int, int>>{{0, -2}, {1, -2}, {2, -3}}) {
        Zel16s out = 0;
        ASSERT_EQ(zeliConvert_32f16s_C1R(&neg, 4, &out, 2, {1, 1}, ZelRoundingMode(mode)), zelStatusOk);
        EXPECT_EQ(out, want16) << "mode " << mode;
    }
    // Half-away: the one float below a half whose sum with 0.5 rounds up.
    const Zel32f below[] = {0.49999997f, -0.49999997f, 0.4999999f, 1.4999999f};
    Zel16s out[4];
    ASSERT_EQ(zeliConvert_32f16s_C1R(below, 16, out, 8, {4, 1}, zelRoundHalfAway), zelStatusOk);
    EXPECT_EQ(out[0], 1);
    EXPECT_EQ(out[1], -1);
    EXPECT_EQ(out[2], 0);
    EXPECT_EQ(out[3], 1);
}

// Every caller control word (rounding field, FTZ, DAZ) gives the same
// results; afterwards the control bits are the caller's, and where the
// rule says the word is not written back, the flags raised stay.
TEST(Convert, CallerControlWordChangesNothing) {
    std::vector<Zel32f> src;
    for (float base : {0.0f, 1.0f, 127.0f, 255.0f, -128.0f, 32767.0f, 65535.0f})
        for (float d : {-0.5f, 0.5f, 0.49999997f, -0.49999997f, 1e-40f, -1e-40f})
            src.push_back(std::nextafter(base + d, base + 2 * d + 1));
    const ZeliSize roi{int(src.size()), 1};
    const std::uint32_t standard = _mm_getcsr() & ~0x3Fu;
    for (int mode : {0, 1, 2}) {
        std::vector<Zel16u> want(src.size()), got(src.size());
        for (std::size_t i = 0; i < src.size(); ++i) want[i] = roundTo<Zel16u>(src[i], mode);
        for (std::uint32_t rc = 0; rc < 4; ++rc)
            for (std::uint32_t ftzDaz : {0u, 0x8040u}) {
                const std::uint32_t caller = (standard & ~0x6000u) | (rc << 13) | ftzDaz;
                _mm_setcsr(caller);
                const int st = zeliConvert_32f16u_C1R(src.data(), roi.width * 4, got.data(), roi.width * 2, roi,
                                                      ZelRoundingMode(mode));
                const std::uint32_t after = _mm_getcsr();
                _mm_setcsr(standard);
                SCOPED_TRACE("mode " + std::to_string(mode) + " rc " + std::to_string(rc));
                EXPECT_EQ(st, zelStatusOk);
                EXPECT_EQ(got, want);
                EXPECT_EQ(after & ~0x3Fu, caller);
                // The inexact flag raised by the call stays only when the
                // word was not written back (mode 2, or the same field).
                const bool restored = mode != 2 && rc != (mode == 0 ? 3u : 0u);
                EXPECT_EQ((after & 0x20u) != 0, !restored);
            }
    }
}

TEST(Scale, RangeMembersSetNearestBeforeTheirChecks) {
    const std::uint32_t standard = _mm_getcsr() & ~0x3Fu;
    _mm_setcsr(standard | 0x6000u);  // toward zero
    EXPECT_EQ(zeliScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, 3.0f, 3.0f), zelStatusEmptyRange);
    EXPECT_EQ((_mm_getcsr() >> 13) & 3u, 0u) << "an error return leaves the control at nearest";
    _mm_setcsr(standard | 0x6000u);
    const Zel32f x = 1.5f;
    Zel8u out = 0;
    EXPECT_EQ(zeliScale_32f8u_C1R(&x, 4, &out, 1, {1, 1}, 0.0f, 255.0f), zelStatusOk);
    EXPECT_EQ(out, 2);
    EXPECT_EQ((_mm_getcsr() >> 13) & 3u, 3u) << "a call that ran gives the caller's rounding back";
    _mm_setcsr(standard | 0x6000u);
    EXPECT_EQ(zeliScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, 1.0f, 0.5f), zelStatusEmptyRange);
    EXPECT_EQ((_mm_getcsr() >> 13) & 3u, 3u);
    _mm_setcsr(standard);
}

// The fast and accurate 16-bit formulas, every input: the ends map to 0 and
// 255 under both, and the 16s pair differs for 128 inputs.
TEST(Scale, FastAndAccurateFormulasOverEveryInput) {
    std::vector<Zel16s> s(65536);
    std::vector<Zel16u> u(65536);
    for (int i = 0; i < 65536; ++i) s[i] = Zel16s(i - 32768), u[i] = Zel16u(i);
    std::vector<Zel8u> fast(65536), accurate(65536);
    const ZeliSize roi{256, 256};
    ASSERT_EQ(zeliScale_16s8u_C1R(s.data(), 512, fast.data(), 256, roi, zelAccuracyFast), zelStatusOk);
    ASSERT_EQ(zeliScale_16s8u_C1R(s.data(), 512, accurate.data(), 256, roi, zelAccuracyHigh), zelStatusOk);
    int differ = 0;
    for (int i = 0; i < 65536; ++i) {
        EXPECT_EQ(fast[i], scaleDown(s[i], 0));
        EXPECT_EQ(accurate[i], scaleDown(s[i], 2));
        differ += fast[i] != accurate[i];
    }
    EXPECT_EQ(differ, 128);
    EXPECT_EQ(fast[0], 0);
    EXPECT_EQ(accurate[0], 0);
    EXPECT_EQ(fast[65535], 255);
    EXPECT_EQ(accurate[65535], 255);
    ASSERT_EQ(zeliScale_16u8u_C1R(u.data(), 512, fast.data(), 256, roi, zelAccuracyDefault), zelStatusOk);
    ASSERT_EQ(zeliScale_16u8u_C1R(u.data(), 512, accurate.data(), 256, roi, zelAccuracyHigh), zelStatusOk);
    for (int i = 0; i < 65536; ++i) {
        EXPECT_EQ(fast[i], scaleDown(u[i], 0));
        EXPECT_EQ(accurate[i], scaleDown(u[i], 2));
    }
    const Zel32s ends[] = {INT32_MIN, INT32_MAX, 0, -1, 8388607, -8388609};
    const Zel8u wantFast[] = {0, 255, 128, 128, 128, 127}, wantAccurate[] = {0, 255, 128, 127, 128, 127};
    Zel8u out[6];
    for (int hint : {0, 2}) {
        ASSERT_EQ(zeliScale_32s8u_C1R(ends, 24, out, 6, {6, 1}, ZelAccuracyHint(hint)), zelStatusOk);
        for (int i = 0; i < 6; ++i) EXPECT_EQ(out[i], hint ? wantAccurate[i] : wantFast[i]) << ends[i];
    }
}

// Results above the streaming threshold and half the largest cache,
// contiguous (one long row) and padded, from unaligned starts.
TEST(Convert, LargeResultsStreamWithTheSameBits) {
    int cache = 0;
    ASSERT_EQ(zelGetMaxCacheSizeB(&cache), zelStatusOk);
    for (int pad : {0, 12}) {
        const ZeliSize roi{1201, std::max(900, cache / 2 / (1201 * 4) + 1)};
        const int srcStep = roi.width + pad, dstStep = roi.width * 4 + pad;
        std::vector<Zel8u> src(std::size_t(srcStep) * roi.height);
        std::vector<Zel8u> bytes(std::size_t(dstStep) * roi.height + 8, 0xA5);
        for (std::size_t i = 0; i < src.size(); ++i) src[i] = Zel8u(i * 7);
        Zel32f* dst = reinterpret_cast<Zel32f*>(bytes.data() + 4);
        forEachConfig([&] {
            ASSERT_EQ(zeliConvert_8u32f_C1R(src.data(), srcStep, dst, dstStep, roi), zelStatusOk);
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x) {
                    float v;
                    std::memcpy(&v, bytes.data() + 4 + std::size_t(y) * dstStep + x * 4, 4);
                    ASSERT_EQ(v, float(src[std::size_t(y) * srcStep + x]));
                }
            EXPECT_EQ(bytes[0], 0xA5);
            EXPECT_EQ(bytes.back(), 0xA5);
        });
    }
}

// ---- Checks ----------------------------------------------------------------

TEST(ConvertChecks, OrderAndNothingWritten) {
    Image<Zel32f> f({5, 3}, 4);
    Image<Zel8u> b({5, 3}, 4);
    Image<Zel16s> s({5, 3}, 4);
    const ZeliSize roi{5, 3};
    expectRejected(
        {
            {"exact: null before size", zelStatusNullPtr,
             [&] { return zeliConvert_16s8u_C1R(nullptr, s.step(), b.roi(), b.step(), {0, 0}); }},
            {"exact: size before step", zelStatusBadSize,
             [&] { return zeliConvert_16s8u_C3R(s.roi(), 0, b.roi(), b.step(), {5, 0}); }},
            {"exact: source step", zelStatusBadStep, [&] { return zeliConvert_8u16s_AC4R(b.roi(), 0, s.roi(), s.step(), roi); }},
            {"exact: destination step", zelStatusBadStep,
             [&] { return zeliConvert_8u16s_C4R(b.roi(), b.step(), s.roi(), -2, roi); }},
            {"rounded: null", zelStatusNullPtr,
             [&] { return zeliConvert_32f8u_C1R(f.roi(), f.step(), nullptr, 0, {0, 0}, ZelRoundingMode(9)); }},
            {"rounded: step", zelStatusBadStep,
             [&] { return zeliConvert_32f16s_C4R(f.roi(), 0, s.roi(), s.step(), roi, zelRoundNearestEven); }},
            {"scale: size", zelStatusBadSize,
             [&] { return zeliScale_16s8u_AC4R(s.roi(), 0, b.roi(), 0, {-1, 3}, zelAccuracyHigh); }},
            {"scale: step", zelStatusBadStep, [&] { return zeliScale_8u16s_C1R(b.roi(), 0, s.roi(), s.step(), roi); }},
            {"range: empty before null", zelStatusEmptyRange,
             [&] { return zeliScale_32f8u_C3R(nullptr, 0, nullptr, 0, {0, 0}, 1.0f, 1.0f); }},
            {"range: NaN is empty", zelStatusEmptyRange,
             [&] { return zeliScale_8u32f_C4R(b.roi(), b.step(), f.roi(), f.step(), roi, NAN, 1.0f); }},
            {"range: then null", zelStatusNullPtr,
             [&] { return zeliScale_8u32f_AC4R(nullptr, b.step(), f.roi(), f.step(), roi, 0.0f, 1.0f); }},
            {"range: then step", zelStatusBadStep,
             [&] { return zeliScale_32f8u_C4R(f.roi(), f.step(), b.roi(), 0, roi, 0.0f, 1.0f); }},
            {"pack: null", zelStatusNullPtr, [&] { return zeliConvert_8u1u_C1R(b.roi(), 0, nullptr, 0, -1, roi, 0); }},
            {"pack: negative offset", zelStatusBadSize,
             [&] { return zeliConvert_8u1u_C1R(b.roi(), 0, b.roi(), 0, -1, roi, 0); }},
            {"unpack: step before offset", zelStatusBadStep,
             [&] { return zeliConvert_1u8u_C1R(b.roi(), 0, -1, b.roi(), b.step(), roi); }},
            {"unpack: negative offset last", zelStatusBadSize,
             [&] { return zeliConvert_1u8u_C1R(b.roi(), b.step(), -1, b.roi(), b.step(), roi); }},
        },
        f, b, s);
}

TEST(ConvertChecks, PackingWithoutItsErrorRowsReturnsNoMemory) {
    Image<Zel8u> src({9, 2}, 1), dst({9, 2}, 1);
    zel::failAllocationForTests(1);
    const int st = zeliConvert_8u1u_C1R(src.roi(), src.step(), dst.roi(), dst.step(), 0, {9, 2}, 128);
    zel::failAllocationForTests(0);
    EXPECT_EQ(st, zelStatusNoMemory);
    EXPECT_TRUE(dst.unchanged());
}

// ---- 1-bit images ----------------------------------------------------------

// Error diffusion written out on a whole error image with zero borders.
std::vector<int> packReference(const Image<Zel8u>& src, int threshold) {
    const int w = src.size().width, h = src.size().height;
    std::vector<int> err(std::size_t(w + 4) * (h + 2), 0), bits(std::size_t(w) * h);
    auto e = [&](int x, int y) -> int& { return err[std::size_t(y + 2) * (w + 4) + x + 2]; };
    const int wr[3][5] = {{1, 2, 4, 2, 1}, {2, 4, 8, 4, 2}, {0, 0, 0, 0, 0}};
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            int s = 8 * e(x - 1, y) + 4 * e(x - 2, y);
            for (int r = 0; r < 2; ++r)
                for (int dx = -2; dx <= 2; ++dx) s += wr[r][dx + 2] * e(x + dx, y - 2 + r);
            const int v = src.at(x, y) * 8192 + 23 * s;
            const bool set = v > threshold * 8192;
            e(x, y) = set ? (v >> 10) - 2047 : v >> 10;
            bits[std::size_t(y) * w + x] = set;
        }
    return bits;
}

TEST(ConvertBits, PackingDiffusesTheErrorAndKeepsTheOtherBits) {
    for (ZeliSize roi : {ZeliSize{1, 1}, {3, 4}, {7, 2}, {8, 3}, {13, 5}, {63, 7}, {100, 9}})
        for (int offset = 0; offset <= 9; ++offset)
            for (int threshold : {0, 90, 128, 255}) {
                SCOPED_TRACE(std::to_string(roi.width) + "x" + std::to_string(roi.height) + " offset " +
                             std::to_string(offset) + " threshold " + std::to_string(threshold));
                Image<Zel8u> src({roi.width, roi.height}, 1);
                src.fillRandom(offset * 7 + threshold, 0, 255);
                const int bytes = (offset % 8 + roi.width + 7) / 8;
                Image<Zel8u> dst({bytes, roi.height}, 1);
                const Image<Zel8u> fresh = dst;  // the bytes as they were
                ASSERT_EQ(zeliConvert_8u1u_C1R(src.roi(), src.step(), dst.roi(), dst.step(), offset, roi,
                                               Zel8u(threshold)),
                          zelStatusOk);
                EXPECT_TRUE(dst.outsideUnchanged());
                const std::vector<int> want = packReference(src, threshold);
                for (int y = 0; y < roi.height; ++y)
                    for (int i = 0; i < bytes * 8; ++i) {
                        const int x = i - offset % 8;
                        const bool inRow = x >= 0 && x < roi.width;
                        const int before = (fresh.at(i / 8, y) >> (7 - i % 8)) & 1;
                        const int got = (dst.at(i / 8, y) >> (7 - i % 8)) & 1;
                        ASSERT_EQ(got, inRow ? want[std::size_t(y) * roi.width + x] : before) << "bit " << i;
                    }
            }
    // All 255 with threshold 0: every bit; a bright image with threshold
    // 255 still sets bits by the error rule; a dark one sets none.
    Image<Zel8u> bright({16, 2}, 1), dst({2, 2}, 1);
    bright.fill([](int, int, int) { return Zel8u(255); });
    ASSERT_EQ(zeliConvert_8u1u_C1R(bright.roi(), bright.step(), dst.roi(), dst.step(), 0, {16, 2}, 0), zelStatusOk);
    EXPECT_EQ(dst.at(0, 1), 0xFF);
    EXPECT_EQ(dst.at(1, 0), 0xFF);
    ASSERT_EQ(zeliConvert_8u1u_C1R(bright.roi(), bright.step(), dst.roi(), dst.step(), 0, {16, 2}, 255), zelStatusOk);
    EXPECT_NE(dst.at(0, 0), 0);
    EXPECT_EQ(dst.at(0, 0) & 0x80, 0) << "the first pixel meets no error yet";
    bright.fill([](int, int, int) { return Zel8u(10); });
    ASSERT_EQ(zeliConvert_8u1u_C1R(bright.roi(), bright.step(), dst.roi(), dst.step(), 0, {16, 2}, 255), zelStatusOk);
    EXPECT_EQ(dst.at(0, 0) | dst.at(1, 0) | dst.at(0, 1) | dst.at(1, 1), 0);
}

TEST(ConvertBits, UnpackingExpandsEveryBit) {
    for (ZeliSize roi : {ZeliSize{1, 1}, {5, 3}, {8, 2}, {17, 4}, {63, 3}, {257, 5}})
        for (int offset = 0; offset <= 9; ++offset) {
            const int bytes = (offset + roi.width + 7) / 8;
            Image<Zel8u> src({bytes, roi.height}, 1);
            forEachConfig([&] {
                Image<Zel8u> dst(roi, 1);
                ASSERT_EQ(zeliConvert_1u8u_C1R(src.roi(), src.step(), offset, dst.roi(), dst.step(), roi), zelStatusOk);
                ASSERT_TRUE(dst.outsideUnchanged());
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x) {
                        const int i = offset + x;
                        ASSERT_EQ(dst.at(x, y), (src.at(i / 8, y) >> (7 - i % 8)) & 1 ? 255 : 0)
                            << x << "," << y << " offset " << offset;
                    }
            });
        }
}

}  // namespace
