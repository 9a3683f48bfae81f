// Thresholds, comparisons and Otsu's threshold against scalar references.
// Every member runs through one table per element type (threshold R and IR
// together): exhaustive 8-bit values and pairs, the extremes of each type
// (16-bit limits; 32f NaN, infinities, signed zeros, denormals), the
// all-channels conjunction, random odd-sized images under every SIMD target
// and thread count with guards and AC4 alpha watched, and the check orders.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "harness/checkorder.h"
#include "harness/pages.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

template <int C, class T>
auto arg(const T* a) {  // C1 members take scalars, the others arrays
    if constexpr (C == 1) return a[0];
    else return a;
}

// Test images by name and channel count, filled once by valueAt(x, y, c).
template <class T, class F>
const Image<T>& cached(const std::string& name, ZeliSize roi, int channels, F valueAt) {
    static std::map<std::string, Image<T>> images;
    const std::string key = name + std::to_string(channels);
    auto it = images.find(key);
    if (it == images.end()) {
        it = images.emplace(key, Image<T>(roi, channels)).first;
        it->second.fill(valueAt);
    }
    return it->second;
}

// Values at the edges of each type's comparisons.
template <class T>
std::vector<T> specials() {
    if constexpr (std::is_floating_point_v<T>) {
        const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
        return {nan, inf, -inf, T(0), T(-0.0), T(1e-45f), T(-1e-45f), T(1), T(1 + 0x1p-23f), T(0x1p-25f), T(-2)};
    } else {
        using L = std::numeric_limits<T>;
        return {L::min(), T(L::min() + 1), T(-1), T(0), T(1), T(L::max() / 2), T(L::max() / 2 + 1), T(L::max() - 1),
                L::max()};
    }
}

// ---- Thresholds ------------------------------------------------------------

enum class Family { Clip, LT, GT, Val, LTVal, GTVal, Both };

// Per channel: threshold t and value v, LTValGTVal's upper pair t2, v2.
template <class T>
struct Args {
    T t[4], v[4], t2[4], v2[4];
    ZelCompareOp op = zelCompareLess;
};

template <class T>
struct Threshold {
    std::string name;
    Family family;
    int channels, computed;
    std::function<ZelStatus(const T*, int, T*, int, ZeliSize, const Args<T>&)> r;
    std::function<ZelStatus(T*, int, ZeliSize, const Args<T>&)> ir;
};

template <class T>
T expected(Family f, T x, int c, const Args<T>& a) {
    const bool lower = f == Family::LT || f == Family::LTVal || f == Family::Both ||
                       ((f == Family::Clip || f == Family::Val) && a.op == zelCompareLess);
    const bool keepsThreshold = f == Family::Clip || f == Family::LT || f == Family::GT;
    const T replace = keepsThreshold ? a.t[c] : a.v[c];
    if (f == Family::Both) return x < a.t[c] ? a.v[c] : x > a.t2[c] ? a.v2[c] : x;
    return lower ? (x < a.t[c] ? replace : x) : (x > a.t[c] ? replace : x);
}

#define THR_ARGS_Clip(C) arg<C>(a.t), a.op
#define THR_ARGS_LT(C) arg<C>(a.t)
#define THR_ARGS_GT(C) arg<C>(a.t)
#define THR_ARGS_Val(C) arg<C>(a.t), arg<C>(a.v), a.op
#define THR_ARGS_LTVal(C) arg<C>(a.t), arg<C>(a.v)
#define THR_ARGS_GTVal(C) arg<C>(a.t), arg<C>(a.v)
#define THR_ARGS_Both(C) arg<C>(a.t), arg<C>(a.v), arg<C>(a.t2), arg<C>(a.v2)
#define THR(fn, fam, t, lay, C, computed)                                                                            \
    Threshold<Zel##t>{#fn "_" #t "_" #lay, Family::fam, C, computed,                                                 \
                      [](const Zel##t* s, int ss, Zel##t* d, int ds, ZeliSize roi, const Args<Zel##t>& a) {          \
                          return zeli##fn##_##t##_##lay##R(s, ss, d, ds, roi, THR_ARGS_##fam(C));                    \
                      },                                                                                             \
                      [](Zel##t* d, int ds, ZeliSize roi, const Args<Zel##t>& a) {                                   \
                          return zeli##fn##_##t##_##lay##IR(d, ds, roi, THR_ARGS_##fam(C));                          \
                      }}
#define THR3(fn, fam, t) THR(fn, fam, t, C1, 1, 1), THR(fn, fam, t, C3, 3, 3), THR(fn, fam, t, AC4, 4, 3)
#define THR_TABLE(t)                                                                                                 \
    template <>                                                                                                      \
    std::vector<Threshold<Zel##t>> thresholds<Zel##t>() {                                                            \
        return {THR3(Threshold, Clip, t),      THR3(Threshold_LT, LT, t),           THR3(Threshold_GT, GT, t),       \
                THR3(Threshold_Val, Val, t),   THR3(Threshold_LTVal, LTVal, t),     THR3(Threshold_GTVal, GTVal, t), \
                THR(Threshold_LTVal, LTVal, t, C4, 4, 4), THR(Threshold_GTVal, GTVal, t, C4, 4, 4),                  \
                THR3(Threshold_LTValGTVal, Both, t)};                                                                \
    }
template <class T>
std::vector<Threshold<T>> thresholds();
THR_TABLE(8u)
THR_TABLE(16s)
THR_TABLE(16u)
THR_TABLE(32f)

// Every member out of place and in place on src, for each argument set and
// op 0 and 4 where there is an op: every computed channel bit for bit.
template <class T>
void expectThresholds(const std::function<const Image<T>&(int)>& source, std::vector<Args<T>> argSets) {
    for (const Threshold<T>& m : thresholds<T>())
        for (Args<T> a : argSets)
            for (ZelCompareOp op : {zelCompareLess, zelCompareGreater}) {
                if (op != zelCompareLess && m.family != Family::Clip && m.family != Family::Val) continue;
                a.op = op;
                for (int c = 0; c < 4; ++c)  // LTValGTVal's pair must not cross
                    if (m.family == Family::Both && a.t2[c] < a.t[c]) std::swap(a.t[c], a.t2[c]);
                SCOPED_TRACE(m.name + " op " + std::to_string(op));
                const Image<T>& src = source(m.channels);
                const ZeliSize roi = src.size();
                Image<T> dst(roi, m.channels, m.computed, 3 * sizeof(T), 11, 7), inPlace = src;
                inPlace.snapshot();
                ASSERT_EQ(m.r(src.roi(), src.step(), dst.roi(), dst.step(), roi, a), zelStatusOk);
                ASSERT_EQ(m.ir(inPlace.roi(), inPlace.step(), roi, a), zelStatusOk);
                EXPECT_TRUE(dst.outsideUnchanged());
                EXPECT_TRUE(inPlace.outsideUnchanged());
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        for (int c = 0; c < m.computed; ++c) {
                            const T want = expected(m.family, src.at(x, y, c), c, a);
                            ASSERT_EQ(std::memcmp(&dst.at(x, y, c), &want, sizeof(T)), 0)
                                << x << "," << y << " channel " << c << " from " << +src.at(x, y, c);
                            ASSERT_EQ(std::memcmp(&inPlace.at(x, y, c), &want, sizeof(T)), 0) << "in place " << x;
                        }
            }
}

template <class T>
Args<T> uniform(T t, T v, T t2, T v2) {
    Args<T> a;
    for (int c = 0; c < 4; ++c) a.t[c] = t, a.v[c] = v, a.t2[c] = t2, a.v2[c] = v2;
    return a;
}

TEST(Thresholds, EveryEightBitValue) {
    auto bytes = [](int ch) -> const Image<Zel8u>& {
        return cached<Zel8u>("bytes", {256, 1}, ch, [](int x, int, int c) { return Zel8u(x + 37 * c); });
    };
    Args<Zel8u> perChannel{};
    for (int c = 0; c < 4; ++c)
        perChannel.t[c] = Zel8u(10 + 60 * c), perChannel.v[c] = Zel8u(7 * c), perChannel.t2[c] = Zel8u(100 + 40 * c),
        perChannel.v2[c] = Zel8u(255 - c);
    expectThresholds<Zel8u>(bytes, {uniform<Zel8u>(0, 9, 255, 250), uniform<Zel8u>(255, 1, 255, 2),
                                    uniform<Zel8u>(1, 200, 254, 3), uniform<Zel8u>(128, 0, 128, 255), perChannel});
    // 9 -> 0, values on the thresholds kept, 201 -> 255.
    const Zel8u src[4] = {9, 10, 200, 201};
    Zel8u dst[4] = {};
    ASSERT_EQ(zeliThreshold_LTValGTVal_8u_C1R(src, 4, dst, 4, {4, 1}, 10, 0, 200, 255), zelStatusOk);
    EXPECT_EQ(std::vector<int>(dst, dst + 4), (std::vector<int>{0, 10, 200, 255}));
}

// Every special value against thresholds and values taken from the same
// list: a NaN is kept, a NaN threshold keeps everything, -0 and +0 are
// equal, denormals are not zero whatever the caller's DAZ.
template <class T>
void expectSpecials() {
    const std::vector<T> v = specials<T>();
    const int n = int(v.size());
    auto src = [&](int ch) -> const Image<T>& {
        return cached<T>("specials", {n * 3, 2}, ch, [&](int x, int y, int c) { return v[(x + 3 * y + c) % n]; });
    };
    std::vector<Args<T>> sets;
    for (int k = 0; k < n; ++k) sets.push_back(uniform<T>(v[k], v[(k + 3) % n], v[(k + 5) % n], v[(k + 7) % n]));
    expectThresholds<T>(src, sets);
}

TEST(Thresholds, ExtremesOfEachType) {
    expectSpecials<Zel16s>();
    expectSpecials<Zel16u>();
    expectSpecials<Zel32f>();
}

template <class T>
void expectRandomThresholds() {
    const bool isFloat = std::is_floating_point_v<T>;
    const T lo = isFloat ? T(-300) : T(std::numeric_limits<T>::max() / 3), hi = isFloat ? T(250) : T(lo * 2);
    Args<T> a = uniform<T>(lo, T(7), hi, T(9));
    a.t[1] = T(lo + 3), a.v2[2] = T(hi - 11), a.t2[3] = T(hi + 1);
    for (ZeliSize roi : oddSizes())
        expectThresholds<T>([&](int ch) -> const Image<T>& {
            static std::map<int, Image<T>> images;  // random bytes (32f: -1000..1000), unaligned
            images.erase(ch);
            return images.emplace(ch, Image<T>(roi, ch, ch, 3 * sizeof(T), 7, roi.width * 7 + ch)).first->second;
        }, {a});
}

TEST(Thresholds, EveryTargetAndThreadCountMatchesTheReference) {
    forEachConfig([] {
        expectRandomThresholds<Zel8u>();
        expectRandomThresholds<Zel16s>();
        expectRandomThresholds<Zel16u>();
        expectRandomThresholds<Zel32f>();
    });
}

// The orders where two broken arguments tell them apart.
TEST(Thresholds, ChecksInEachFamilysOrder) {
    Image<Zel8u> img({8, 4}, 3);
    Zel8u* p = img.roi();
    const int s = img.step();
    const ZeliSize ok{8, 4}, none{0, 4};
    const Zel8u t[3] = {5, 6, 7}, v[3] = {1, 2, 3}, hi[3] = {9, 9, 9}, crossed[3] = {9, 4, 9};
    const auto bad = static_cast<ZelCompareOp>(1);
    expectRejected(
        {
            {"Threshold: op last", zelStatusNullPtr, [&] { return zeliThreshold_8u_C3R(p, s, p, s, ok, nullptr, bad); }},
            {"Threshold op 3", zelStatusUnsupportedMode, [&] { return zeliThreshold_8u_C1IR(p, s, ok, 5, ZelCompareOp(3)); }},
            {"Threshold_Val: op first", zelStatusUnsupportedMode,
             [&] { return zeliThreshold_Val_8u_C3R(nullptr, s, nullptr, s, none, t, v, bad); }},
            {"Threshold_LT: array after steps", zelStatusBadStep, [&] { return zeliThreshold_LT_8u_C3R(p, s, p, -1, ok, nullptr); }},
            {"Threshold_GTVal: array after size", zelStatusBadSize,
             [&] { return zeliThreshold_GTVal_8u_C3IR(p, s, none, t, nullptr); }},
            {"LTValGTVal: arrays with the images", zelStatusNullPtr,
             [&] { return zeliThreshold_LTValGTVal_8u_C3R(p, s, p, 0, ok, t, v, hi, nullptr); }},
            {"LTValGTVal crossed in channel 1", zelStatusThresholdsCrossed,
             [&] { return zeliThreshold_LTValGTVal_8u_C3R(p, s, p, s, ok, t, v, crossed, v); }},
            {"LTValGTVal crossed, bad size", zelStatusBadSize,
             [&] { return zeliThreshold_LTValGTVal_8u_C3IR(p, s, none, t, v, crossed, v); }},
        },
        img);
    EXPECT_EQ(zeliThreshold_LTValGTVal_8u_C3R(p, s, p, s, ok, t, v, t, hi), zelStatusOk);  // equal is fine
}

// ---- Comparisons -----------------------------------------------------------

constexpr int kEqualEps = 5;  // the eps members' predicate, after the five ops

template <class T>
bool holds(int op, T a, T b, float eps) {
    switch (op) {
        case 0: return a < b;
        case 1: return a <= b;
        case 2: return a == b;
        case 3: return a >= b;
        case 4: return a > b;
        default: return std::fabs(static_cast<float>(a) - static_cast<float>(b)) <= eps;
    }
}

// `constant` members take the first pixel of b as their constant.
template <class T>
struct Comparison {
    std::string name;
    int channels, computed;
    bool constant, eps;
    std::function<ZelStatus(const T*, int, const T*, int, Zel8u*, int, ZeliSize, int, float)> call;
};

#define CMP(t, lay, C, computed)                                                                                     \
    Comparison<Zel##t>{"Compare_" #t "_" #lay, C, computed, false, false,                                            \
                       [](const Zel##t* a, int as, const Zel##t* b, int bs, Zel8u* d, int ds, ZeliSize r, int op,      \
                          float) { return zeliCompare_##t##_##lay##R(a, as, b, bs, d, ds, r, ZelCompareOp(op)); }},    \
        Comparison<Zel##t>{"CompareC_" #t "_" #lay, C, computed, true, false,                                        \
                           [](const Zel##t* a, int as, const Zel##t* b, int, Zel8u* d, int ds, ZeliSize r, int op,     \
                              float) { return zeliCompareC_##t##_##lay##R(a, as, arg<C>(b), d, ds, r, ZelCompareOp(op)); }}
#define CMP_EPS(lay, C, computed)                                                                                    \
    Comparison<Zel32f>{"CompareEqualEps_32f_" #lay, C, computed, false, true,                                        \
                       [](const Zel32f* a, int as, const Zel32f* b, int bs, Zel8u* d, int ds, ZeliSize r, int,         \
                          float e) { return zeliCompareEqualEps_32f_##lay##R(a, as, b, bs, d, ds, r, e); }},           \
        Comparison<Zel32f>{"CompareEqualEpsC_32f_" #lay, C, computed, true, true,                                    \
                           [](const Zel32f* a, int as, const Zel32f* b, int, Zel8u* d, int ds, ZeliSize r, int,        \
                              float e) { return zeliCompareEqualEpsC_32f_##lay##R(a, as, arg<C>(b), d, ds, r, e); }}
template <class T>
std::vector<Comparison<T>> comparisons() {
    using T8 = Zel8u;
    using T16s = Zel16s;
    using T16u = Zel16u;
    if constexpr (std::is_same_v<T, T8>) return {CMP(8u, C1, 1, 1), CMP(8u, C3, 3, 3), CMP(8u, C4, 4, 4), CMP(8u, AC4, 4, 3)};
    if constexpr (std::is_same_v<T, T16s>)
        return {CMP(16s, C1, 1, 1), CMP(16s, C3, 3, 3), CMP(16s, C4, 4, 4), CMP(16s, AC4, 4, 3)};
    if constexpr (std::is_same_v<T, T16u>)
        return {CMP(16u, C1, 1, 1), CMP(16u, C3, 3, 3), CMP(16u, C4, 4, 4), CMP(16u, AC4, 4, 3)};
    if constexpr (std::is_same_v<T, Zel32f>)
        return {CMP(32f, C1, 1, 1), CMP(32f, C3, 3, 3), CMP(32f, C4, 4, 4), CMP(32f, AC4, 4, 3),
                CMP_EPS(C1, 1, 1),  CMP_EPS(C3, 3, 3),  CMP_EPS(C4, 4, 4),  CMP_EPS(AC4, 4, 3)};
    return {};
}

// Every member with every op (eps members: every eps given) on a and b:
// each destination byte is the conjunction over the compared channels, and
// the destination's guards stay untouched.
template <class T>
void expectComparisons(const std::function<const Image<T>&(int)>& first,
                       const std::function<const Image<T>&(int)>& second, std::vector<float> epsilons = {0.f}) {
    for (const Comparison<T>& m : comparisons<T>())
        for (int op = 0; op <= 4; ++op)
            for (float eps : m.eps ? epsilons : std::vector<float>{0.f}) {
                if (m.eps && op > 0) continue;
                SCOPED_TRACE(m.name + " op " + std::to_string(op) + " eps " + std::to_string(eps));
                const Image<T>&a = first(m.channels), &b = second(m.channels);
                Image<Zel8u> dst(a.size(), 1, 1, 5, 9, 3);
                ASSERT_EQ(m.call(a.roi(), a.step(), b.roi(), b.step(), dst.roi(), dst.step(), a.size(), op, eps),
                          zelStatusOk);
                EXPECT_TRUE(dst.outsideUnchanged());
                for (int y = 0; y < a.size().height; ++y)
                    for (int x = 0; x < a.size().width; ++x) {
                        bool all = true;
                        for (int c = 0; c < m.computed; ++c)
                            all = all && holds(m.eps ? kEqualEps : op, a.at(x, y, c),
                                               m.constant ? b.at(0, 0, c) : b.at(x, y, c), eps);
                        ASSERT_EQ(dst.at(x, y), all ? 255 : 0) << "pixel " << x << "," << y;
                    }
            }
}

// Every pair of 8-bit values (channels shifted so that pixels mix
// outcomes), and CompareC with every constant.
TEST(Comparisons, EveryPairOfEightBitValues) {
    auto grid = [](bool rows) {
        return [rows](int ch) -> const Image<Zel8u>& {
            return cached<Zel8u>(rows ? "rows" : "columns", {256, 256}, ch,
                                 [rows](int x, int y, int c) { return Zel8u((rows ? y : x) + 85 * c + (c && !rows)); });
        };
    };
    expectComparisons<Zel8u>(grid(false), grid(true));
    Image<Zel8u> src({256, 1}, 1), dst({256, 1}, 1);
    src.fill([](int x, int, int) { return Zel8u(x); });
    for (int k = 0; k < 256; ++k)
        for (int op = 0; op <= 4; ++op) {
            ASSERT_EQ(zeliCompareC_8u_C1R(src.roi(), src.step(), Zel8u(k), dst.roi(), dst.step(), {256, 1}, ZelCompareOp(op)),
                      zelStatusOk);
            for (int x = 0; x < 256; ++x) ASSERT_EQ(dst.at(x, 0), holds(op, x, k, 0) ? 255 : 0) << x << " op " << op;
        }
}

// Pixel x has channel x % 4 at 9, 10 or 11 and the others at 10: one
// failing channel makes 0; the AC4 alpha (far off in row 1) never counts.
template <class T>
void expectConjunction(std::vector<float> eps = {0.f}) {
    expectComparisons<T>([](int ch) -> const Image<T>& {
        return cached<T>("one off", {12, 2}, ch, [](int x, int y, int c) { return T(c == x % 4 ? 9 + x / 4 : c == 3 && y ? 100 : 10); });
    }, [](int ch) -> const Image<T>& { return cached<T>("tens", {12, 2}, ch, [](int, int, int) { return T(10); }); }, eps);
}

// Every pair of special values: NaN fails every op and every eps, even an
// infinite one; inf - inf is NaN; 1 - 2^-25 rounds to 1 in single precision,
// so 1 and 2^-25 are equal within eps 1.
template <class T>
void expectSpecialPairs(std::vector<float> eps = {0.f}) {
    const std::vector<T> v = specials<T>();
    const int n = int(v.size());
    expectComparisons<T>([&](int ch) -> const Image<T>& {
        return cached<T>("first", {n * n, 1}, ch, [&](int x, int, int) { return v[x / n]; });
    }, [&](int ch) -> const Image<T>& { return cached<T>("second", {n * n, 1}, ch, [&](int x, int, int) { return v[x % n]; }); }, eps);
}

TEST(Comparisons, ConjunctionAndExtremesOfEachType) {
    const std::vector<float> eps = {0.f, 1e-45f, 0x1p-23f, 0.5f, 1.f, 3.f, std::numeric_limits<float>::infinity()};
    expectConjunction<Zel8u>();
    expectConjunction<Zel16s>();
    expectConjunction<Zel16u>();
    expectConjunction<Zel32f>(eps);
    expectSpecialPairs<Zel16s>();
    expectSpecialPairs<Zel16u>();
    expectSpecialPairs<Zel32f>(eps);
}

// Values 0..2 only, so that ties and all-channel passes are common.
template <class T>
void expectRandomComparisons() {
    for (ZeliSize roi : oddSizes()) {
        auto random = [&](int seed) {
            return [&roi, seed](int ch) -> const Image<T>& {
                static std::map<int, Image<T>> images;
                images.erase(ch + 8 * seed);
                auto& im = images.emplace(ch + 8 * seed, Image<T>(roi, ch, ch, (2 + seed) * sizeof(T), 5 + seed, 11 + seed))
                               .first->second;
                std::mt19937 rng(roi.width * 3 + roi.height + seed * 7 + ch);
                im.fill([&](int, int, int) { return T(rng() % 3); });
                return im;
            };
        };
        expectComparisons<T>(random(0), random(1), {0.f, 1.f});
    }
}

TEST(Comparisons, EveryTargetAndThreadCountMatchesTheReference) {
    forEachConfig([] {
        expectRandomComparisons<Zel8u>();
        expectRandomComparisons<Zel16s>();
        expectRandomComparisons<Zel16u>();
        expectRandomComparisons<Zel32f>();
    });
}

TEST(Comparisons, ChecksInEachFamilysOrder) {
    Image<Zel32f> a({6, 3}, 3);
    Image<Zel8u> dst({6, 3}, 1);
    const float* p = a.roi();
    const int s = a.step(), ds = dst.step();
    Zel8u* d = dst.roi();
    const ZeliSize ok{6, 3}, none{0, 3};
    const float k[3] = {1, 2, 3};
    expectRejected(
        {
            {"Compare: steps before size", zelStatusBadStep, [&] { return zeliCompare_32f_C3R(p, s, p, s, d, -ds, none, ZelCompareOp(0)); }},
            {"Compare: op after size", zelStatusBadSize, [&] { return zeliCompare_32f_C3R(p, s, p, s, d, ds, none, ZelCompareOp(7)); }},
            {"Compare op 7 writes nothing", zelStatusOk, [&] { return zeliCompare_32f_C3R(p, s, p, s, d, ds, ok, ZelCompareOp(7)); }},
            {"Compare op -1 writes nothing", zelStatusOk, [&] { return zeliCompare_8u_C1R(d, ds, d, ds, d, ds, ok, ZelCompareOp(-1)); }},
            {"CompareC: steps before size", zelStatusBadStep, [&] { return zeliCompareC_32f_C3R(p, 0, k, d, ds, none, ZelCompareOp(0)); }},
            {"EqualEps: steps before size", zelStatusBadStep, [&] { return zeliCompareEqualEps_32f_C3R(p, s, p, 0, d, ds, none, 1.f); }},
            {"EqualEps: eps after size", zelStatusBadSize, [&] { return zeliCompareEqualEps_32f_C3R(p, s, p, s, d, ds, none, -1.f); }},
            {"EqualEpsC eps -1e-30", zelStatusNegativeEpsilon, [&] { return zeliCompareEqualEpsC_32f_C3R(p, s, k, d, ds, ok, -1e-30f); }},
        },
        a, dst);
}

// An AC4 image whose last pixel ends at its third channel, right before an
// inaccessible page: no member may load (or store) that pixel's alpha.
template <class T>
void expectLastAlphaUntouched() {
    for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{17, 3}, ZeliSize{67, 2}}) {
        const int step = roi.width * 4 * sizeof(T) + 8;
        const std::size_t owned = std::size_t(roi.height - 1) * step + (roi.width * 4 - 1) * sizeof(T);
        const Args<T> a = uniform<T>(T(1), T(2), T(3), T(4));
        for (const Threshold<T>& m : thresholds<T>()) {
            if (m.computed == m.channels) continue;
            Fenced src(owned), dst(owned);
            EXPECT_EQ(m.r(reinterpret_cast<const T*>(src.data()), step, reinterpret_cast<T*>(dst.data()), step, roi, a), 0);
            EXPECT_EQ(m.ir(reinterpret_cast<T*>(dst.data()), step, roi, a), 0) << m.name;
        }
        for (const Comparison<T>& m : comparisons<T>()) {
            if (m.computed == m.channels) continue;
            Fenced first(owned), second(owned);
            std::vector<Zel8u> dst(std::size_t(roi.width) * roi.height);
            EXPECT_EQ(m.call(reinterpret_cast<const T*>(first.data()), step, reinterpret_cast<const T*>(second.data()),
                             step, dst.data(), roi.width, roi, 1, 1.f),
                      0) << m.name;
        }
    }
}

TEST(Comparisons, TheLastAlphaOfAnImageIsNeverRead) {
    forEachConfig([] {
        expectLastAlphaUntouched<Zel8u>();
        expectLastAlphaUntouched<Zel16s>();
        expectLastAlphaUntouched<Zel16u>();
        expectLastAlphaUntouched<Zel32f>();
    });
}

// ---- Otsu --------------------------------------------------------------------

// The rule written out plainly from a histogram.
int otsuReference(const Image<Zel8u>& im) {
    std::vector<double> h(256, 0);
    for (int y = 0; y < im.size().height; ++y)
        for (int x = 0; x < im.size().width; ++x) ++h[im.at(x, y)];
    const double eps = 1.1920928955078125e-07;
    double n = 0, m = 0, s = 0, w = 0, best = 0, t = 0;
    for (int i = 0; i < 256; ++i) n += h[i], m += (i + 0.5) * h[i];
    const double inv = float(std::fabs(std::trunc(n))) > eps ? 1 / n : 0, muT = m * inv;
    for (int i = 0; i < 256; ++i) {
        s *= w;
        const double p = inv * h[i];
        w += p;
        if (std::min(w, 1 - w) < eps || std::max(w, 1 - w) > 1 - eps) continue;
        s = (s + p * (i + 0.5)) / w;
        const double mu2 = (muT - w * s) / (1 - w), sigma = (1 - w) * w * (s - mu2) * (s - mu2);
        if (sigma > best) t = i + 0.5;
        best = std::max(best, sigma);
    }
    return int(t);
}

int otsuOf(const Image<Zel8u>& im) {
    Zel8u t = 77;
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(im.roi(), im.step(), im.size(), &t), zelStatusOk);
    return t;
}

// Two levels give the lower one; a constant image or one pixel gives 0;
// random and skewed images, and one of more than 2^23 pixels whose end bins
// weigh less than the class limit, give the reference's level.
TEST(Otsu, FollowsTheRuleOnEveryTargetAndThreadCount) {
    Image<Zel8u> twoLevels({40, 20}, 1), constant({33, 7}, 1), single({1, 1}, 1), skewed({1031, 70}, 1),
        large({4096, 2049}, 1, 1, 1, 0);
    twoLevels.fill([](int x, int, int) { return Zel8u(x % 2 ? 200 : 50); });
    constant.fill([](int, int, int) { return Zel8u(93); });
    std::mt19937 rng(5);
    skewed.fill([&](int, int, int) { return Zel8u(rng() % 3 ? rng() % 90 : 120 + rng() % 136); });
    large.fill([](int x, int y, int) { return Zel8u(y == 0 && x == 0 ? 0 : y == 2048 && x == 7 ? 255 : y < 1024 ? 60 + x % 3 : 190 + x % 5); });
    EXPECT_EQ(otsuOf(large), otsuReference(large));
    std::vector<Image<Zel8u>> randoms;
    for (ZeliSize roi : oddSizes()) randoms.emplace_back(roi, 1, 1, 1, 5, roi.width);
    forEachConfig([&] {
        EXPECT_EQ(otsuOf(twoLevels), 50);
        EXPECT_EQ(otsuOf(constant), 0);
        EXPECT_EQ(otsuOf(single), 0);
        EXPECT_EQ(otsuOf(skewed), otsuReference(skewed));
        for (const auto& im : randoms) EXPECT_EQ(otsuOf(im), otsuReference(im)) << im.size().width;
    });
    Zel8u t = 9;
    expectRejected({{"null result", zelStatusNullPtr, [&] { return zeliComputeThreshold_Otsu_8u_C1R(single.roi(), 1, {1, 1}, nullptr); }},
                    {"size before step", zelStatusBadSize, [&] { return zeliComputeThreshold_Otsu_8u_C1R(skewed.roi(), 0, {8, 0}, &t); }},
                    {"step below the width", zelStatusBadStep, [&] { return zeliComputeThreshold_Otsu_8u_C1R(skewed.roi(), 7, {8, 4}, &t); }}},
                   skewed);
    EXPECT_EQ(t, 9);
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(skewed.roi(), 8, {8, 4}, &t), zelStatusOk);  // step == width
}

}  // namespace
