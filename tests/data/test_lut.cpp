// Look-up tables and palettes against scalar references written from the
// rules: every 8-bit value through plain, linear and cubic curves (overlaps,
// equal levels, levels outside the range, one-entry intervals), the 16-bit
// extremes, 32f values on and between the levels and NaN, random odd-sized
// images under every SIMD target and thread count with guard bytes and the
// AC4 alpha watched, palettes at their bit-size limits, and the check orders.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace zel::lut {
// False keeps the AVX-512 VBMI byte look-up out, so that the AVX-512
// target's shuffle kernel is tested on processors that have VBMI too.
void useVbmiForTests(bool use);
}  // namespace zel::lut

namespace {

using namespace zel::test;

// Runs check under every configuration, with the VBMI kernel and without.
template <class F>
void forEachByteKernel(F&& check) {
    for (bool vbmi : {true, false}) {
        SCOPED_TRACE(vbmi ? "VBMI where the processor has it" : "no VBMI");
        zel::lut::useVbmiForTests(vbmi);
        forEachConfig(check);
    }
    zel::lut::useVbmiForTests(true);
}

enum Kind { kPlain, kLinear, kCubic };

template <class T>
using LevelOf = std::conditional_t<std::is_floating_point_v<T>, Zel32f, Zel32s>;

// One curve per channel (the fourth unused by C3 and AC4).
template <class V>
struct Curves {
    std::vector<V> values[4], levels[4];
    int n[4] = {0, 0, 0, 0};
    std::array<const V*, 4> valuePtrs() const { return {values[0].data(), values[1].data(), values[2].data(), values[3].data()}; }
    std::array<const V*, 4> levelPtrs() const { return {levels[0].data(), levels[1].data(), levels[2].data(), levels[3].data()}; }
    void set(int c, std::vector<V> lev, std::vector<V> val) {
        levels[c] = std::move(lev);
        values[c] = std::move(val);
        n[c] = int(levels[c].size());
    }
};

// ---- References --------------------------------------------------------------

// Cramer's rule for a u^3 + b u^2 + c u = w at three points; false when two
// of the four levels coincide.
bool cramer(const double u[3], const double w[3], double out[3]) {
    for (int i = 0; i < 3; ++i)
        if (u[i] == 0 || u[i] == u[(i + 1) % 3]) return false;
    auto det = [](double a, double b, double c, double d, double e, double f, double g, double h, double i) {
        return a * (e * i - f * h) - b * (d * i - f * g) + c * (d * h - e * g);
    };
    double m[3][3];
    for (int i = 0; i < 3; ++i) m[i][0] = u[i] * u[i] * u[i], m[i][1] = u[i] * u[i], m[i][2] = u[i];
    const double d = det(m[0][0], m[0][1], m[0][2], m[1][0], m[1][1], m[1][2], m[2][0], m[2][1], m[2][2]);
    out[0] = det(w[0], m[0][1], m[0][2], w[1], m[1][1], m[1][2], w[2], m[2][1], m[2][2]) / d;
    out[1] = det(m[0][0], w[0], m[0][2], m[1][0], w[1], m[1][2], m[2][0], w[2], m[2][2]) / d;
    out[2] = det(m[0][0], m[0][1], w[0], m[1][0], m[1][1], w[1], m[2][0], m[2][1], w[2]) / d;
    return std::isfinite(d) && d != 0 && std::isfinite(out[0]) && std::isfinite(out[1]) && std::isfinite(out[2]);
}

// The cubic of interval k (origin: pair j + 1), or false.
template <class V>
bool cubicOf(const std::vector<V>& lev, const std::vector<V>& val, int k, double abc[3], int* origin) {
    const int n = int(lev.size());
    const int j = std::clamp(k - 1, 0, n - 4);
    *origin = j + 1;
    double u[3], w[3];
    const int at[3] = {j, j + 2, j + 3};
    for (int i = 0; i < 3; ++i) {
        u[i] = double(lev[at[i]]) - double(lev[j + 1]);
        w[i] = double(val[at[i]]) - double(val[j + 1]);
    }
    return cramer(u, w, abc);
}

// The integer table, step by step: the identity below the first level,
// the intervals in order, the identity from the last level on.
template <class T>
std::vector<T> referenceTable(int kind, const std::vector<int>& lev, const std::vector<int>& val) {
    const long lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    const int n = int(lev.size());
    auto clampL = [&](long v) { return std::clamp(v, lo, hi + 1); };
    auto clampV = [&](double v) { return T(v < lo ? lo : v > hi ? hi : long(std::trunc(v))); };
    std::vector<T> map(std::size_t(hi - lo + 1));
    for (long i = lo; i < std::min<long>(clampL(lev[0]), hi + 1); ++i) map[i - lo] = T(i);
    if (kind == kCubic && n < 4) kind = kLinear;
    for (int k = 0; k + 1 < n; ++k) {
        if (kind == kPlain) {
            for (long i = clampL(lev[k]); i < clampL(lev[k + 1]); ++i) map[i - lo] = clampV(val[k]);
            continue;
        }
        if (lev[k + 1] <= lev[k]) continue;
        const long first = std::min(clampL(lev[k]), hi), end = clampL(lev[k + 1]);
        double abc[3];
        int origin;
        if (kind == kCubic && cubicOf(lev, val, k, abc, &origin)) {
            for (long i = first; i < end; ++i) {
                const double t = double(i) - lev[origin];
                map[i - lo] = clampV(((abc[0] * t + abc[1]) * t + abc[2]) * t + val[origin] + 0.5);
            }
        } else if (end - first == 1) {
            map[first - lo] = clampV(val[k]);
        } else {
            const double slope = (double(val[k + 1]) - val[k]) / (double(lev[k + 1]) - lev[k]);
            const double intercept = val[k] + 0.5 - lev[k] * slope;
            for (long i = first; i < end; ++i) map[i - lo] = clampV(i * slope + intercept);
        }
    }
    for (long i = clampL(lev[n - 1]); i <= hi; ++i) map[i - lo] = T(i);
    return map;
}

// 32f: the first interval from k = 0 holding x, else x.
float referenceFloat(int kind, const std::vector<float>& lev, const std::vector<float>& val, float x) {
    const int n = int(lev.size());
    if (kind == kCubic && n < 4) kind = kLinear;
    for (int k = 0; k + 1 < n; ++k) {
        if (!(lev[k] <= x && x < lev[k + 1])) continue;
        if (kind == kPlain) return val[k];
        double abc[3];
        int origin;
        if (kind == kCubic && cubicOf(lev, val, k, abc, &origin)) {
            const double t = double(x) - lev[origin];
            return float(((abc[0] * t + abc[1]) * t + abc[2]) * t + val[origin]);
        }
        const float slope = (val[k + 1] - val[k]) / (lev[k + 1] - lev[k]);
        return float((double(x) - lev[k]) * double(slope) + val[k]);
    }
    return x;
}

// Expected value of every channel of a source image.
template <class T>
struct Expect {
    int kind;
    const Curves<LevelOf<T>>& cv;
    std::vector<T> tables[4];
    Expect(int k, const Curves<LevelOf<T>>& c, int computed) : kind(k), cv(c) {
        if constexpr (!std::is_floating_point_v<T>)
            for (int ch = 0; ch < computed; ++ch) tables[ch] = referenceTable<T>(kind, cv.levels[ch], cv.values[ch]);
    }
    T operator()(T x, int ch) const {
        if constexpr (std::is_floating_point_v<T>) return referenceFloat(kind, cv.levels[ch], cv.values[ch], x);
        else return tables[ch][std::size_t(long(x) - long(std::numeric_limits<T>::min()))];
    }
};

// ---- The members -----------------------------------------------------------------

template <class T>
struct CurveMember {
    std::string name;
    int kind, channels, computed;
    std::function<ZelStatus(const T*, int, T*, int, ZeliSize, const Curves<LevelOf<T>>&)> r;
    std::function<ZelStatus(T*, int, ZeliSize, const Curves<LevelOf<T>>&)> ir;
};

#define LUT_C1(op, kind, t)                                                                                        \
    CurveMember<Zel##t>{#op "_" #t "_C1", kind, 1, 1,                                                               \
                        [](const Zel##t* s, int ss, Zel##t* d, int ds, ZeliSize roi, const auto& cv) {             \
                            return zeli##op##_##t##_C1R(s, ss, d, ds, roi, cv.values[0].data(), cv.levels[0].data(), \
                                                        cv.n[0]);                                                   \
                        },                                                                                          \
                        [](Zel##t* d, int ds, ZeliSize roi, const auto& cv) {                                       \
                            return zeli##op##_##t##_C1IR(d, ds, roi, cv.values[0].data(), cv.levels[0].data(), cv.n[0]); \
                        }}
#define LUT_CN(op, kind, t, lay, C, K)                                                                              \
    CurveMember<Zel##t>{#op "_" #t "_" #lay, kind, C, K,                                                            \
                        [](const Zel##t* s, int ss, Zel##t* d, int ds, ZeliSize roi, const auto& cv) {             \
                            auto v = cv.valuePtrs();                                                                \
                            auto l = cv.levelPtrs();                                                                \
                            return zeli##op##_##t##_##lay##R(s, ss, d, ds, roi, v.data(), l.data(), cv.n);          \
                        },                                                                                          \
                        [](Zel##t* d, int ds, ZeliSize roi, const auto& cv) {                                       \
                            auto v = cv.valuePtrs();                                                                \
                            auto l = cv.levelPtrs();                                                                \
                            return zeli##op##_##t##_##lay##IR(d, ds, roi, v.data(), l.data(), cv.n);                \
                        }}
#define LUT_OP(op, kind, t) \
    LUT_C1(op, kind, t), LUT_CN(op, kind, t, C3, 3, 3), LUT_CN(op, kind, t, C4, 4, 4), LUT_CN(op, kind, t, AC4, 4, 3)
#define LUT_TABLE(t)                                                                                     \
    template <>                                                                                          \
    std::vector<CurveMember<Zel##t>> curveMembers<Zel##t>() {                                            \
        return {LUT_OP(LUT, kPlain, t), LUT_OP(LUT_Linear, kLinear, t), LUT_OP(LUT_Cubic, kCubic, t)};   \
    }
template <class T>
std::vector<CurveMember<T>> curveMembers();
LUT_TABLE(8u)
LUT_TABLE(16s)
LUT_TABLE(16u)
LUT_TABLE(32f)

// Every member, out of place and in place, on `src` (laid out for each
// member's channel count by source(channels)): every computed channel bit
// for bit, nothing outside the ROI or in the alpha channel written.
template <class T>
void expectCurves(const std::function<Image<T>(int, int)>& source, const std::vector<Curves<LevelOf<T>>>& sets,
                  int onlyKind = -1) {
    for (const CurveMember<T>& m : curveMembers<T>()) {
        if (onlyKind >= 0 && m.kind != onlyKind) continue;
        const Image<T> src = source(m.channels, m.computed);
        const ZeliSize roi = src.size();
        for (std::size_t set = 0; set < sets.size(); ++set) {
            SCOPED_TRACE(m.name + ", curve set " + std::to_string(set));
            const Expect<T> want(m.kind, sets[set], m.computed);
            Image<T> dst(roi, m.channels, m.computed, 3 * sizeof(T), 11, 7), inPlace = src;
            inPlace.snapshot();
            ASSERT_EQ(m.r(src.roi(), src.step(), dst.roi(), dst.step(), roi, sets[set]), zelStatusOk);
            ASSERT_EQ(m.ir(inPlace.roi(), inPlace.step(), roi, sets[set]), zelStatusOk);
            ASSERT_TRUE(dst.outsideUnchanged());
            ASSERT_TRUE(inPlace.outsideUnchanged());
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x)
                    for (int c = 0; c < m.computed; ++c) {
                        const T e = want(src.at(x, y, c), c);
                        ASSERT_EQ(std::memcmp(&dst.at(x, y, c), &e, sizeof(T)), 0)
                            << "pixel " << x << "," << y << " channel " << c << " from " << +src.at(x, y, c)
                            << ": " << +dst.at(x, y, c) << ", expected " << +e;
                        ASSERT_EQ(std::memcmp(&inPlace.at(x, y, c), &e, sizeof(T)), 0) << "in place " << x << "," << y;
                    }
        }
    }
}

// Curve sets from a list of (levels, values) pairs: channel c of set i takes
// pair (i + c) mod count, and one set more gives every channel pair 0.
template <class V>
std::vector<Curves<V>> curveSets(const std::vector<std::pair<std::vector<V>, std::vector<V>>>& pairs) {
    std::vector<Curves<V>> sets;
    for (std::size_t i = 0; i <= pairs.size(); ++i) {
        Curves<V> cv;
        for (int c = 0; c < 4; ++c) {
            const auto& p = pairs[i == pairs.size() ? 0 : (i + c) % pairs.size()];
            cv.set(c, p.first, p.second);
        }
        sets.push_back(cv);
    }
    return sets;
}

const std::vector<std::pair<std::vector<int>, std::vector<int>>>& byteCurves() {
    static const std::vector<std::pair<std::vector<int>, std::vector<int>>> curves = {
        {{0, 100, 50, 200, 256}, {10, 300, -5, 128, 7}},             // overlapping intervals
        {{20, 20, 60, 60, 61, 180}, {5, 6, 250, 7, 100, 0}},         // equal levels
        {{-50, 30, 300, 400}, {-20, 500, 128, 64}},                  // levels outside 0..255
        {{0, 1, 2, 130, 131, 255}, {9, 200, 3, 77, 250, 1}},         // one-entry intervals
        {{0, 255}, {0, 255}},                                        // the identity line
        {{255, 128, 0}, {1, 2, 3}},                                  // descending: nothing but the ends
        {{10, 100, 200}, {200, 50, 250}},                            // three levels: cubic is linear
        {{3, 40, 41, 90, 170, 230, 251}, {250, 0, 255, 30, 220, 90, 10}},
        {{250, 300, 400, 500}, {1, 2, 3, 4}},                        // the top entry only
        {{-10, 1, 2, 3}, {100, 0, 50, 0}},
    };
    return curves;
}

TEST(LookupTables, EveryEightBitValue) {
    auto bytes = [](int channels, int writable) {
        Image<Zel8u> img({256 + 37, 2}, channels, writable, 5);
        img.fill([](int x, int y, int c) { return Zel8u(x * (y + 1) + 37 * c); });
        return img;
    };
    forEachByteKernel([&] { expectCurves<Zel8u>(bytes, curveSets(byteCurves())); });
}

// The 8-bit curves stretched over a 16-bit type's range, plus levels at and
// beyond its extremes.
template <class T>
std::vector<std::pair<std::vector<int>, std::vector<int>>> wideCurves() {
    const long lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    auto scale = [&](int v) { return int(lo + (long(v) * (hi - lo + 1)) / 256); };
    std::vector<std::pair<std::vector<int>, std::vector<int>>> curves;
    for (const auto& [lev, val] : byteCurves()) {
        std::vector<int> l, v;
        for (int x : lev) l.push_back(scale(x));
        for (int x : val) v.push_back(scale(x));
        curves.push_back({l, v});
    }
    curves.push_back({{int(lo), int(lo + 1), int(hi), int(hi + 1)}, {int(hi), int(lo), int(lo + 2), 0}});
    curves.push_back({{int(lo) - 5000, int(lo), int(hi - 1), int(hi) + 70000}, {int(lo) - 9, int(hi) + 9, int(lo), 5}});
    curves.push_back({{-2000000000, 0, 2000000000}, {2000000000, -2000000000, 0}});
    return curves;
}

template <class T>
void expectWide() {
    using L = std::numeric_limits<T>;
    const std::vector<T> specials = {L::min(), T(L::min() + 1), T(-1), T(0), T(1), T(L::max() - 1), L::max()};
    auto source = [&](int channels, int writable) {
        Image<T> img({67, 3}, channels, writable);
        std::mt19937 rng(5);
        img.fill([&](int x, int, int) { return x < int(specials.size()) * 2 ? specials[x % specials.size()] : T(rng()); });
        return img;
    };
    forEachConfig([&] { expectCurves<T>(source, curveSets(wideCurves<T>())); });
}

TEST(LookupTables, SixteenBitExtremes) {
    expectWide<Zel16u>();
    expectWide<Zel16s>();
}

TEST(LookupTables, FloatValuesOnAndBetweenLevelsAndNaN) {
    const std::vector<std::pair<std::vector<float>, std::vector<float>>> pairs = {
        {{-500.f, -10.5f, 0.f, 0.f, 3.25f, 700.f}, {1.f, -2.5f, 1e6f, 4.f, 0.125f, -7.f}},
        {{-1000.f, 1000.f}, {-3.f, 3.f}},
        {{5.f, -5.f, 100.f}, {0.f, 1.f, 2.f}},
        {{-1.f, 0.f, 1.f, 2.f, 900.f}, {-1.f, 0.f, 1.f, 8.f, 9.f}},
        {{0.f, 1e-30f, 3.f, 3.f, 3.5f}, {2.f, 7.f, 1.f, 1.f, 0.f}},
    };
    std::vector<float> probes = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                                 -std::numeric_limits<float>::infinity(), -0.f, 1e-45f, 999.99994f, 1000.f};
    for (const auto& p : pairs)
        for (float l : p.first) probes.insert(probes.end(), {l, std::nextafter(l, -2e9f), std::nextafter(l, 2e9f), l + 0.5f});
    auto source = [&](int channels, int writable) {
        Image<Zel32f> img({int(probes.size()) + 21, 2}, channels, writable);
        img.fill([&](int x, int y, int c) { return probes[(x + 7 * y + 3 * c) % probes.size()]; });
        return img;
    };
    forEachConfig([&] { expectCurves<Zel32f>(source, curveSets(pairs)); });
}

// Random curves of 2 to 7 levels (a third of them unsorted) over a type's
// range and a little beyond.
template <class T>
std::vector<Curves<LevelOf<T>>> randomCurves(std::mt19937& rng, int count) {
    using V = LevelOf<T>;
    const double lo = std::is_floating_point_v<T> ? -1000 : double(std::numeric_limits<T>::min());
    const double hi = std::is_floating_point_v<T> ? 1000 : double(std::numeric_limits<T>::max());
    std::uniform_real_distribution<double> any(lo - (hi - lo) / 8, hi + (hi - lo) / 8);
    std::vector<Curves<V>> sets;
    for (int s = 0; s < count; ++s) {
        Curves<V> cv;
        for (int c = 0; c < 4; ++c) {
            const int n = std::uniform_int_distribution<int>(2, 7)(rng);
            std::vector<V> lev, val;
            for (int k = 0; k < n; ++k) lev.push_back(V(any(rng))), val.push_back(V(any(rng)));
            if (rng() % 3) std::sort(lev.begin(), lev.end());
            cv.set(c, lev, val);
        }
        if (s % 3 == 0)
            for (int c = 1; c < 4; ++c) cv.set(c, cv.levels[0], cv.values[0]);  // shared: the vector paths
        sets.push_back(cv);
    }
    return sets;
}

template <class T>
void expectRandom() {
    std::mt19937 rng(11);
    const auto sets = randomCurves<T>(rng, 6);
    for (ZeliSize roi : oddSizes()) {
        SCOPED_TRACE(std::to_string(roi.width) + "x" + std::to_string(roi.height));
        auto source = [&](int channels, int writable) {
            Image<T> img(roi, channels, writable, 3 * sizeof(T));
            if constexpr (std::is_floating_point_v<T>) img.fillRandom(roi.width + channels, T(-1200), T(1200));
            else img.fillRandom(roi.width + channels);
            return img;
        };
        if constexpr (sizeof(T) == 1) forEachByteKernel([&] { expectCurves<T>(source, sets); });
        else forEachConfig([&] { expectCurves<T>(source, sets); });
    }
}

TEST(LookupTables, RandomImagesUnderEveryTargetAndThreadCount) {
    expectRandom<Zel8u>();
    expectRandom<Zel16u>();
    expectRandom<Zel16s>();
    expectRandom<Zel32f>();
}

TEST(LookupTables, RulesAtTheirEdges) {
    // Levels {0, 128, 256}: 0..127 become 0, 128..255 become 255.
    Zel8u src[256], dst[256];
    for (int i = 0; i < 256; ++i) src[i] = Zel8u(i);
    const Zel32s lev3[] = {0, 128, 256}, val3[] = {0, 255, 77};
    ASSERT_EQ(zeliLUT_8u_C1R(src, 256, dst, 256, {256, 1}, val3, lev3, 3), zelStatusOk);
    for (int i = 0; i < 256; ++i) EXPECT_EQ(dst[i], i < 128 ? 0 : 255) << i;
    // The line {0, 255} -> {0, 255}: the identity, and 255 on the last level.
    const Zel32s lev2[] = {0, 255}, val2[] = {0, 255};
    ASSERT_EQ(zeliLUT_Linear_8u_C1R(src, 256, dst, 256, {256, 1}, val2, lev2, 2), zelStatusOk);
    for (int i = 0; i < 256; ++i) EXPECT_EQ(dst[i], i) << i;
    // 32f: the last level and NaN unchanged.
    const float flev[] = {0.f, 1.f, 2.f}, fval[] = {5.f, 6.f, 7.f};
    float f[4] = {2.f, std::nanf(""), 0.5f, 1.5f}, g[4];
    ASSERT_EQ(zeliLUT_32f_C1R(f, 16, g, 16, {4, 1}, fval, flev, 3), zelStatusOk);
    EXPECT_EQ(g[0], 2.f);
    EXPECT_TRUE(std::isnan(g[1]));
    EXPECT_EQ(g[2], 5.f);
    EXPECT_EQ(g[3], 6.f);
    // Cubic with three levels is the linear curve.
    float h[4];
    ASSERT_EQ(zeliLUT_Cubic_32f_C1R(f, 16, g, 16, {4, 1}, fval, flev, 3), zelStatusOk);
    ASSERT_EQ(zeliLUT_Linear_32f_C1R(f, 16, h, 16, {4, 1}, fval, flev, 3), zelStatusOk);
    EXPECT_EQ(std::memcmp(g, h, sizeof g), 0);
    EXPECT_EQ(h[2], 5.5f);
}

// The cubic passes through all four pairs of each interval: at every level
// the value is the pair's (8u exactly, 32f to rounding).
TEST(LookupTables, CubicHitsEachPair) {
    const std::vector<int> lev = {10, 40, 90, 100, 180, 240}, val = {30, 200, 20, 90, 250, 5};
    Zel8u src[256], dst[256];
    for (int i = 0; i < 256; ++i) src[i] = Zel8u(i);
    ASSERT_EQ(zeliLUT_Cubic_8u_C1R(src, 256, dst, 256, {256, 1}, val.data(), lev.data(), int(lev.size())), zelStatusOk);
    for (std::size_t k = 0; k + 1 < lev.size(); ++k) EXPECT_EQ(dst[lev[k]], val[k]) << "level " << lev[k];
    EXPECT_EQ(dst[lev.back()], lev.back());  // the last level is unchanged
    std::vector<float> flev(lev.begin(), lev.end()), fval(val.begin(), val.end()), out(lev.size());
    ASSERT_EQ(zeliLUT_Cubic_32f_C1R(flev.data(), 64, out.data(), 64, {int(lev.size()), 1}, fval.data(), flev.data(),
                                    int(lev.size())),
              zelStatusOk);
    for (std::size_t k = 0; k + 1 < lev.size(); ++k) EXPECT_NEAR(out[k], fval[k], 1e-3) << "level " << lev[k];
}

// ---- Argument checks ----------------------------------------------------------

TEST(LookupTables, CheckOrder) {
    const ZeliSize roi{5, 3};
    Image<Zel8u> src(roi, 3), dst(roi, 3);
    Image<Zel16u> wide(roi, 4, 3);
    Image<Zel32f> flt(roi, 1);
    const Zel32s lev[] = {0, 10, 20}, val[] = {1, 2, 3};
    const Zel32s* levs[3] = {lev, lev, lev};
    const Zel32s* vals[3] = {val, val, val};
    const Zel32s* gap[3] = {val, nullptr, val};
    const int counts[3] = {3, 3, 3}, one[3] = {3, 3, 1};
    const float fv[] = {1.f, 2.f};
    const int s = src.step(), d = dst.step(), w = wide.step(), f = flt.step();
    expectRejected(
        {
            {"null source before size", zelStatusNullPtr, [&] { return zeliLUT_8u_C3R(nullptr, s, dst.roi(), d, {0, 0}, vals, levs, counts); }},
            {"null channel pointer before size", zelStatusNullPtr, [&] { return zeliLUT_8u_C3R(src.roi(), s, dst.roi(), d, {0, 0}, gap, levs, counts); }},
            {"null channel level before step", zelStatusNullPtr, [&] { return zeliLUT_Cubic_8u_C3R(src.roi(), 0, dst.roi(), d, roi, vals, gap, counts); }},
            {"size before step", zelStatusBadSize, [&] { return zeliLUT_8u_C3R(src.roi(), 0, dst.roi(), d, {5, 0}, vals, levs, one); }},
            {"step before levels", zelStatusBadStep, [&] { return zeliLUT_8u_C3R(src.roi(), s, dst.roi(), -d, roi, vals, levs, one); }},
            {"one level in channel 2", zelStatusBadLUTLevels, [&] { return zeliLUT_Cubic_8u_C3R(src.roi(), s, dst.roi(), d, roi, vals, levs, one); }},
            {"C1 null levels before size", zelStatusNullPtr, [&] { return zeliLUT_32f_C1IR(flt.roi(), f, {0, 1}, fv, nullptr, 2); }},
            {"AC4 in place, one level in channel 2", zelStatusBadLUTLevels, [&] { return zeliLUT_Linear_16u_AC4IR(wide.roi(), w, roi, vals, levs, one); }},
        },
        src, dst, wide, flt);
}

// ---- Palettes ---------------------------------------------------------------------

struct PaletteMember {
    std::string name;
    int srcBytes, srcChannels, entryBytes, dstChannels;  // dstChannels: entries written per pixel
    int tables;                                          // 1 or 3
    int alphaAt;                                         // C3A0C4: the alpha channel, else -1
    bool swap;
    int dstStride;                                       // elements of a destination pixel
    // (src, srcStep, dst, dstStep, roi, tables, bits, alpha)
    std::function<ZelStatus(const void*, int, void*, int, ZeliSize, const void* const*, int, int)> call;
};

#define PAL(name, S, D, E, sb, sc, eb, dc, nt, alphaAt, swap, stride, ...)                                          \
    PaletteMember{#name, sb, sc, eb, dc, nt, alphaAt, swap, stride,                                                 \
                  [](const void* s, int ss, void* d, int ds, ZeliSize roi, const void* const* t, int bits, int a) { \
                      (void)a;                                                                                      \
                      auto tab = reinterpret_cast<const E* const*>(t);                                              \
                      (void)tab;                                                                                    \
                      return zeli##name(static_cast<const S*>(s), ss, __VA_ARGS__);                                  \
                  }}
#define PAL_ONE(name, S, D, E, sb, eb, stride) \
    PAL(name, S, D, E, sb, 1, eb, 1, 1, -1, false, stride, static_cast<D*>(d), ds, roi, tab[0], bits)
#define PAL_THREE(name, T, b, sc) \
    PAL(name, T, T, T, b, sc, b, 3, 3, -1, false, sc, static_cast<T*>(d), ds, roi, tab, bits)
#define PAL_ALPHA(name, T, b, at, swap) \
    PAL(name, T, T, T, b, 3, b, 4, 3, at, swap, 4, a, static_cast<T*>(d), ds, roi, tab, bits)

const std::vector<PaletteMember>& paletteMembers() {
    static const std::vector<PaletteMember> members = {
        PAL_ONE(LUTPalette_8u_C1R, Zel8u, Zel8u, Zel8u, 1, 1, 1),
        PAL_ONE(LUTPalette_16u_C1R, Zel16u, Zel16u, Zel16u, 2, 2, 1),
        PAL_THREE(LUTPalette_8u_C3R, Zel8u, 1, 3),
        PAL_THREE(LUTPalette_8u_AC4R, Zel8u, 1, 4),
        PAL_THREE(LUTPalette_16u_C3R, Zel16u, 2, 3),
        PAL_THREE(LUTPalette_16u_AC4R, Zel16u, 2, 4),
        PAL_ONE(LUTPalette_16u8u_C1R, Zel16u, Zel8u, Zel8u, 2, 1, 1),
        PAL_ONE(LUTPalette_8u24u_C1R, Zel8u, Zel8u, Zel8u, 1, 3, 1),
        PAL_ONE(LUTPalette_16u24u_C1R, Zel16u, Zel8u, Zel8u, 2, 3, 1),
        PAL_ONE(LUTPalette_8u32u_C1R, Zel8u, Zel32u, Zel32u, 1, 4, 1),
        PAL_ONE(LUTPalette_16u32u_C1R, Zel16u, Zel32u, Zel32u, 2, 4, 1),
        PAL_ALPHA(LUTPalette_8u_C3A0C4R, Zel8u, 1, 0, false),
        PAL_ALPHA(LUTPalette_16u_C3A0C4R, Zel16u, 2, 0, false),
        PAL_ALPHA(LUTPaletteSwap_8u_C3A0C4R, Zel8u, 1, 3, true),
    };
    return members;
}

// Byte images of any element size: the source as raw elements, the
// destination as bytes with `written` bytes of every pixel its own.
struct Bytes {
    ZeliSize roi;
    int pixelBytes, step, offset;
    std::vector<std::uint8_t> mem, before;
    Bytes(ZeliSize r, int pb, std::uint32_t seed, int misalign) : roi(r), pixelBytes(pb) {
        step = r.width * pb + 13;
        step += (4 - step % 4) % 4;
        offset = step + misalign;
        mem.resize(std::size_t(offset + step * (r.height + 1) + 64));
        std::mt19937 rng(seed);
        for (auto& b : mem) b = std::uint8_t(rng());
        before = mem;
    }
    std::uint8_t* at(int x, int y) { return mem.data() + offset + std::ptrdiff_t(step) * y + std::ptrdiff_t(x) * pixelBytes; }
};

std::uint32_t element(const std::uint8_t* p, int bytes) {
    std::uint32_t v = 0;
    std::memcpy(&v, p, bytes);
    return v;
}

void expectPalette(const PaletteMember& m, ZeliSize roi, int bits, int alpha, bool upward) {
    SCOPED_TRACE(m.name + " bits " + std::to_string(bits) + " alpha " + std::to_string(alpha) + " " +
                 std::to_string(roi.width) + "x" + std::to_string(roi.height) + (upward ? " upward" : ""));
    Bytes src(roi, m.srcBytes * m.srcChannels, roi.width * 31 + bits, m.srcBytes);
    Bytes dst(roi, m.entryBytes * m.dstStride, roi.height * 7 + bits, m.entryBytes == 3 ? 1 : m.entryBytes);
    std::vector<std::vector<std::uint8_t>> tables(3);
    std::mt19937 rng(bits * 13 + m.entryBytes);
    for (auto& t : tables) {
        t.resize(std::size_t(m.entryBytes) << bits);
        for (auto& b : t) b = std::uint8_t(rng());
    }
    const void* tp[3] = {tables[0].data(), tables[1].data(), tables[2].data()};
    const int sStep = upward ? -src.step : src.step, dStep = upward ? -dst.step : dst.step;
    const int last = roi.height - 1;
    ASSERT_EQ(m.call(src.at(0, upward ? last : 0), sStep, dst.at(0, upward ? last : 0), dStep, roi, tp, bits, alpha),
              zelStatusOk);
    const unsigned mask = (1u << bits) - 1;
    const std::uint32_t alphaMax = m.entryBytes == 1 ? 255 : 65535;
    const bool alphaWritten = m.alphaAt >= 0 && alpha >= 0 && std::uint32_t(alpha) <= alphaMax;
    std::vector<bool> mine(dst.mem.size(), false);
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            for (int c = 0; c < m.dstChannels; ++c) {
                const int sc = m.alphaAt < 0 ? c : m.swap ? 2 - c : c - 1;
                const int dc = m.alphaAt < 0 ? c : c;
                if (m.alphaAt == dc) continue;
                const int t = m.tables == 1 ? 0 : sc;
                if (m.alphaAt >= 0 && (sc < 0 || sc > 2)) continue;
                const unsigned index = element(src.at(x, y) + sc * m.srcBytes, m.srcBytes) & mask;
                std::uint8_t* out = dst.at(x, y) + dc * m.entryBytes;
                ASSERT_EQ(std::memcmp(out, tables[t].data() + std::size_t(index) * m.entryBytes, m.entryBytes), 0)
                    << "pixel " << x << "," << y << " channel " << dc;
                std::fill_n(mine.begin() + (out - dst.mem.data()), m.entryBytes, true);
            }
            if (alphaWritten) {
                std::uint8_t* out = dst.at(x, y) + m.alphaAt * m.entryBytes;
                ASSERT_EQ(element(out, m.entryBytes), std::uint32_t(alpha)) << "alpha of " << x << "," << y;
                std::fill_n(mine.begin() + (out - dst.mem.data()), m.entryBytes, true);
            }
        }
    for (std::size_t i = 0; i < mine.size(); ++i)
        ASSERT_TRUE(mine[i] || dst.mem[i] == dst.before[i]) << "byte " << i << " not the call's changed";
    ASSERT_TRUE(src.mem == src.before);
}

TEST(Palettes, EveryMemberAtItsBitSizes) {
    for (const PaletteMember& m : paletteMembers()) {
        const int maxBits = 8 * m.srcBytes;
        forEachByteKernel([&] {
            for (int bits : {1, 4, 5, maxBits - 1, maxBits})
                for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{63, 5}, ZeliSize{130, 3}})
                    expectPalette(m, roi, bits, m.entryBytes == 1 ? 200 : 40000, false);
        });
        // Alpha at and beyond the destination's range; rows walked upwards.
        for (int alpha : {0, -1, 255, 256, 65535, 65536}) expectPalette(m, {17, 4}, 3, alpha, false);
        expectPalette(m, {33, 5}, maxBits, 7, true);
    }
}

TEST(Palettes, LowBitsIndexTheTable) {
    Zel8u table[16];
    for (int i = 0; i < 16; ++i) table[i] = Zel8u(100 + i);
    const Zel8u src[2] = {0x37, 0xF0};
    Zel8u dst[2] = {};
    ASSERT_EQ(zeliLUTPalette_8u_C1R(src, 2, dst, 2, {2, 1}, table, 4), zelStatusOk);
    EXPECT_EQ(dst[0], 107);
    EXPECT_EQ(dst[1], 100);
    EXPECT_EQ(zeliLUTPalette_8u_C1R(src, 2, dst, 2, {2, 1}, table, 9), zelStatusBadBitSize);
}

TEST(Palettes, CheckOrder) {
    const ZeliSize roi{4, 2};
    Image<Zel16u> src(roi, 3), dst(roi, 4);
    Image<Zel8u> bytes(roi, 3), out(roi, 4);
    std::vector<Zel16u> t(65536);
    std::vector<Zel8u> tb(256 * 3);
    const Zel16u* hole[3] = {t.data(), nullptr, t.data()};
    const Zel8u* bt[3] = {tb.data(), tb.data(), nullptr};
    const int s = src.step(), d = dst.step();
    expectRejected(
        {
            {"null table array", zelStatusNullPtr, [&] { return zeliLUTPalette_16u_C3A0C4R(src.roi(), s, 1, dst.roi(), d, {0, 0}, nullptr, 0); }},
            {"size before a null table", zelStatusBadSize, [&] { return zeliLUTPalette_16u_C3A0C4R(src.roi(), s, 1, dst.roi(), d, {0, 2}, hole, 3); }},
            {"null table before bit size", zelStatusNullPtr, [&] { return zeliLUTPaletteSwap_8u_C3A0C4R(bytes.roi(), s, 1, out.roi(), d, roi, bt, 0); }},
            {"null table of AC4", zelStatusNullPtr, [&] { return zeliLUTPalette_16u_AC4R(dst.roi(), d, dst.roi(), d, roi, hole, 16); }},
            {"bit size 17", zelStatusBadBitSize, [&] { return zeliLUTPalette_16u_C1R(src.roi(), s, dst.roi(), d, roi, t.data(), 17); }},
            {"bit size 9 for 8u", zelStatusBadBitSize, [&] { return zeliLUTPalette_8u32u_C1R(bytes.roi(), s, reinterpret_cast<Zel32u*>(out.roi()), d, roi, reinterpret_cast<const Zel32u*>(tb.data()), 9); }},
        },
        src, dst, bytes, out);
    // Steps are not checked: a zero step reads and writes one row again.
    Zel8u one[3] = {1, 2, 3}, res[3] = {};
    ASSERT_EQ(zeliLUTPalette_8u_C1R(one, 0, res, 0, {3, 2}, tb.data(), 8), zelStatusOk);
}

}  // namespace
