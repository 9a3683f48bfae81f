// The threshold families against a scalar reference: every member through
// one table per element type (R and IR together), exhaustive 8-bit values,
// 16-bit extremes, 32f NaN, infinities and signed zeros, every SIMD target
// and thread count, AC4 alpha untouched, and the check orders.
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

enum class Family { Clip, LT, GT, Val, LTVal, GTVal, Both };

// The arguments after the ROI, per channel: threshold t and value v, the
// upper pair t2 and v2 of LTValGTVal, and the op of Threshold and _Val.
template <class T>
struct Args {
    T t[4], v[4], t2[4], v2[4];
    ZelCompareOp op = zelCompareLess;
};

template <class T>
struct Member {
    std::string name;
    Family family;
    int channels, computed;
    std::function<ZelStatus(const T*, int, T*, int, ZeliSize, const Args<T>&)> r;
    std::function<ZelStatus(T*, int, ZeliSize, const Args<T>&)> ir;
};

// C1 members take scalars, the others arrays.
template <int C, class T>
auto arg(const T* a) {
    if constexpr (C == 1) return a[0];
    else return a;
}

template <class T>
T expected(Family f, T x, int c, const Args<T>& a) {
    switch (f) {
        case Family::Clip: return a.op == zelCompareLess ? (x < a.t[c] ? a.t[c] : x) : (x > a.t[c] ? a.t[c] : x);
        case Family::LT: return x < a.t[c] ? a.t[c] : x;
        case Family::GT: return x > a.t[c] ? a.t[c] : x;
        case Family::Val: return a.op == zelCompareLess ? (x < a.t[c] ? a.v[c] : x) : (x > a.t[c] ? a.v[c] : x);
        case Family::LTVal: return x < a.t[c] ? a.v[c] : x;
        case Family::GTVal: return x > a.t[c] ? a.v[c] : x;
        case Family::Both: return x < a.t[c] ? a.v[c] : x > a.t2[c] ? a.v2[c] : x;
    }
    return x;
}

#define THR_ARGS_Clip(C) arg<C>(a.t), a.op
#define THR_ARGS_LT(C) arg<C>(a.t)
#define THR_ARGS_GT(C) arg<C>(a.t)
#define THR_ARGS_Val(C) arg<C>(a.t), arg<C>(a.v), a.op
#define THR_ARGS_LTVal(C) arg<C>(a.t), arg<C>(a.v)
#define THR_ARGS_GTVal(C) arg<C>(a.t), arg<C>(a.v)
#define THR_ARGS_Both(C) arg<C>(a.t), arg<C>(a.v), arg<C>(a.t2), arg<C>(a.v2)
#define THR_MEMBER(fn, fam, t, lay, C, computed)                                                            \
    Member<Zel##t>{#fn "_" #t "_" #lay, Family::fam, C, computed,                                           \
                   [](const Zel##t* s, int ss, Zel##t* d, int ds, ZeliSize roi, const Args<Zel##t>& a) {    \
                       return zeli##fn##_##t##_##lay##R(s, ss, d, ds, roi, THR_ARGS_##fam(C));              \
                   },                                                                                       \
                   [](Zel##t* d, int ds, ZeliSize roi, const Args<Zel##t>& a) {                             \
                       return zeli##fn##_##t##_##lay##IR(d, ds, roi, THR_ARGS_##fam(C));                    \
                   }}
#define THR_LAYOUTS3(fn, fam, t) \
    THR_MEMBER(fn, fam, t, C1, 1, 1), THR_MEMBER(fn, fam, t, C3, 3, 3), THR_MEMBER(fn, fam, t, AC4, 4, 3)
#define THR_LAYOUTS4(fn, fam, t) THR_LAYOUTS3(fn, fam, t), THR_MEMBER(fn, fam, t, C4, 4, 4)
#define THR_TABLE(t)                                                                              \
    template <>                                                                                   \
    std::vector<Member<Zel##t>> members<Zel##t>() {                                               \
        return {THR_LAYOUTS3(Threshold, Clip, t),        THR_LAYOUTS3(Threshold_LT, LT, t),       \
                THR_LAYOUTS3(Threshold_GT, GT, t),       THR_LAYOUTS3(Threshold_Val, Val, t),     \
                THR_LAYOUTS4(Threshold_LTVal, LTVal, t), THR_LAYOUTS4(Threshold_GTVal, GTVal, t), \
                THR_LAYOUTS3(Threshold_LTValGTVal, Both, t)};                                     \
    }

template <class T>
std::vector<Member<T>> members();
THR_TABLE(8u)
THR_TABLE(16s)
THR_TABLE(16u)
THR_TABLE(32f)

bool usesOp(Family f) { return f == Family::Clip || f == Family::Val; }

// Runs m out of place and in place on `src` and compares every computed
// channel bit for bit with the reference; alpha and guards stay untouched.
template <class T>
void expectMember(const Member<T>& m, const Image<T>& src, const Args<T>& a) {
    SCOPED_TRACE(m.name + " op " + std::to_string(a.op));
    const ZeliSize roi = src.size();
    Image<T> dst(roi, m.channels, m.computed, 3 * sizeof(T), 11, 7);
    ASSERT_EQ(m.r(src.roi(), src.step(), dst.roi(), dst.step(), roi, a), zelStatusOk);
    EXPECT_TRUE(dst.outsideUnchanged());
    Image<T> inPlace = src;
    inPlace.snapshot();
    ASSERT_EQ(m.ir(inPlace.roi(), inPlace.step(), roi, a), zelStatusOk);
    EXPECT_TRUE(inPlace.outsideUnchanged());
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.computed; ++c) {
                const T want = expected(m.family, src.at(x, y, c), c, a);
                ASSERT_EQ(std::memcmp(&dst.at(x, y, c), &want, sizeof(T)), 0)
                    << "pixel " << x << "," << y << " channel " << c << " from " << +src.at(x, y, c);
                ASSERT_EQ(std::memcmp(&inPlace.at(x, y, c), &want, sizeof(T)), 0) << "in place, pixel " << x;
            }
}

// Every member of T with each argument set, ops 0 and 4 where there is one.
template <class T>
void expectAll(const Image<T>& (*source)(int channels), const std::vector<Args<T>>& argSets) {
    for (const Member<T>& m : members<T>())
        for (Args<T> a : argSets)
            for (ZelCompareOp op : {zelCompareLess, zelCompareGreater}) {
                if (!usesOp(m.family) && op != zelCompareLess) continue;
                a.op = op;
                // Keep LTValGTVal's pair uncrossed.
                if (m.family == Family::Both)
                    for (int c = 0; c < 4; ++c)
                        if (a.t2[c] < a.t[c]) std::swap(a.t[c], a.t2[c]);
                expectMember(m, source(m.channels), a);
            }
}

template <class T>
Args<T> uniform(T t, T v, T t2, T v2) {
    Args<T> a;
    for (int c = 0; c < 4; ++c) {
        a.t[c] = t, a.v[c] = v, a.t2[c] = t2, a.v2[c] = v2;
    }
    return a;
}

// Every 8-bit value in every channel (shifted per channel), against
// thresholds at both ends and in the middle.
const Image<Zel8u>& allBytes(int channels) {
    static std::vector<Image<Zel8u>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    images.emplace_back(ZeliSize{256, 1}, channels);
    images.back().fill([](int x, int, int c) { return Zel8u(x + 37 * c); });
    return images.back();
}

TEST(ThresholdRules, EveryEightBitValue) {
    std::vector<Args<Zel8u>> sets = {uniform<Zel8u>(0, 9, 255, 250), uniform<Zel8u>(255, 1, 255, 2),
                                     uniform<Zel8u>(1, 200, 254, 3), uniform<Zel8u>(128, 0, 128, 255)};
    Args<Zel8u> perChannel = uniform<Zel8u>(0, 0, 0, 0);
    for (int c = 0; c < 4; ++c) {
        perChannel.t[c] = Zel8u(10 + 60 * c), perChannel.v[c] = Zel8u(7 * c);
        perChannel.t2[c] = Zel8u(100 + 40 * c), perChannel.v2[c] = Zel8u(255 - c);
    }
    sets.push_back(perChannel);
    expectAll<Zel8u>(&allBytes, sets);
}

// The worked example: 9 -> 0, 10 and 200 kept, 201 -> 255.
TEST(ThresholdRules, LTValGTValKeepsValuesOnItsThresholds) {
    const Zel8u src[4] = {9, 10, 200, 201};
    Zel8u dst[4] = {};
    ASSERT_EQ(zeliThreshold_LTValGTVal_8u_C1R(src, 4, dst, 4, {4, 1}, 10, 0, 200, 255), zelStatusOk);
    EXPECT_EQ(std::vector<int>(dst, dst + 4), (std::vector<int>{0, 10, 200, 255}));
}

template <class T>
const Image<T>& extremes(int channels) {
    static std::vector<Image<T>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    using L = std::numeric_limits<T>;
    const T values[] = {L::min(), T(L::min() + 1), T(-1), 0, 1, T(L::max() - 1), L::max(), T(L::max() / 2),
                        T(L::max() / 2 + 1)};
    images.emplace_back(ZeliSize{9 * 5, 3}, channels);
    images.back().fill([&](int x, int y, int c) { return values[(x + y + c) % 9]; });
    return images.back();
}

TEST(ThresholdRules, SixteenBitExtremes) {
    using S = std::numeric_limits<Zel16s>;
    expectAll<Zel16s>(&extremes<Zel16s>, {uniform<Zel16s>(S::min(), 5, S::max(), -5),
                                          uniform<Zel16s>(S::max(), S::min(), S::max(), 0),
                                          uniform<Zel16s>(0, S::max(), 1, S::min()),
                                          uniform<Zel16s>(S::min(), S::max(), S::min(), S::max())});
    using U = std::numeric_limits<Zel16u>;
    expectAll<Zel16u>(&extremes<Zel16u>, {uniform<Zel16u>(0, 5, U::max(), 9), uniform<Zel16u>(U::max(), 1, U::max(), 2),
                                          uniform<Zel16u>(1, U::max(), 32768, 0),
                                          uniform<Zel16u>(32767, 32768, 32768, 32767)});
}

// NaN is kept (every comparison with it is false), as is every value when
// a threshold is NaN; -0 and +0 are equal, so neither replaces the other.
const Image<Zel32f>& floatSpecials(int channels) {
    static std::vector<Image<Zel32f>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    const float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const float values[] = {nan, -nan, inf, -inf, 0.f, -0.f, 1e-45f, -1e-45f, 1.f, -1.f, 3.4e38f, 1e-38f, 2.5f};
    images.emplace_back(ZeliSize{13 * 3, 2}, channels);
    images.back().fill([&](int x, int y, int c) { return values[(x + 3 * y + c) % 13]; });
    return images.back();
}

TEST(ThresholdRules, FloatNaNInfinitiesAndSignedZeros) {
    const float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    // Denormal thresholds are not zero: the caller's DAZ setting does not
    // reach the comparisons.
    expectAll<Zel32f>(&floatSpecials, {uniform<Zel32f>(0.f, -7.f, -0.f, 7.f), uniform<Zel32f>(-0.f, 5.f, 0.f, -5.f),
                                       uniform<Zel32f>(nan, 1.f, nan, 2.f), uniform<Zel32f>(-inf, 3.f, inf, 4.f),
                                       uniform<Zel32f>(1e-45f, nan, 1e-45f, -inf), uniform<Zel32f>(-1.f, inf, 1.f, -0.f)});
}

// Random images of odd shapes, unaligned inside guarded buffers: vector
// heads and tails, AC4 patterns and thread pieces against the reference,
// under every SIMD target with one thread and several.
template <class T>
void expectRandom() {
    for (ZeliSize roi : oddSizes()) {
        std::vector<Image<T>> sources;
        for (int ch : {1, 3, 4}) {
            sources.emplace_back(roi, ch, ch, 3 * sizeof(T), 7, roi.width * 7 + ch);
            if constexpr (!std::is_floating_point_v<T>) sources.back().fillRandom(roi.height + ch);
        }
        auto source = [&](int ch) -> const Image<T>& { return sources[ch == 1 ? 0 : ch == 3 ? 1 : 2]; };
        const T lo = std::is_floating_point_v<T> ? T(-300) : std::numeric_limits<T>::max() / 3;
        const T hi = std::is_floating_point_v<T> ? T(250) : T(std::numeric_limits<T>::max() / 3 * 2);
        Args<T> a = uniform<T>(lo, T(7), hi, T(9));
        a.t[1] = T(lo + 3), a.v2[2] = T(hi - 11), a.t2[3] = T(hi + 1);
        for (const Member<T>& m : members<T>())
            for (ZelCompareOp op : {zelCompareLess, zelCompareGreater}) {
                if (!usesOp(m.family) && op != zelCompareLess) continue;
                a.op = op;
                expectMember(m, source(m.channels), a);
            }
    }
}

TEST(ThresholdRules, EveryTargetAndThreadCountMatchesTheReference) {
    forEachConfig([] {
        expectRandom<Zel8u>();
        expectRandom<Zel16s>();
        expectRandom<Zel16u>();
        expectRandom<Zel32f>();
    });
}

// Check orders: the rows name what is broken and what must come back.
TEST(ThresholdChecks, EachFamilyKeepsItsOrder) {
    Image<Zel8u> img({8, 4}, 3);
    Zel8u* p = img.roi();
    const int s = img.step();
    const ZeliSize ok{8, 4}, none{0, 4};
    const Zel8u t[3] = {5, 6, 7}, v[3] = {1, 2, 3}, hi[3] = {9, 9, 9}, crossed[3] = {9, 4, 9};
    const auto bad = static_cast<ZelCompareOp>(1);
    expectRejected(
        {
            // Threshold tests its op after everything else.
            {"Threshold op 1", zelStatusUnsupportedMode, [&] { return zeliThreshold_8u_C3R(p, s, p, s, ok, t, bad); }},
            {"Threshold op 1, null image", zelStatusNullPtr,
             [&] { return zeliThreshold_8u_C3R(nullptr, s, p, s, ok, t, bad); }},
            {"Threshold op 1, bad size", zelStatusBadSize, [&] { return zeliThreshold_8u_C3IR(p, s, none, t, bad); }},
            {"Threshold op 1, bad step", zelStatusBadStep, [&] { return zeliThreshold_8u_C3R(p, 0, p, s, ok, t, bad); }},
            {"Threshold op 1, null threshold", zelStatusNullPtr,
             [&] { return zeliThreshold_8u_C3R(p, s, p, s, ok, nullptr, bad); }},
            {"Threshold_8u_C1R op 3", zelStatusUnsupportedMode,
             [&] { return zeliThreshold_8u_C1R(p, s, p, s, ok, 5, zelCompareGreaterOrEqual); }},
            // Threshold_Val tests it first of all.
            {"Threshold_Val op 1, null images", zelStatusUnsupportedMode,
             [&] { return zeliThreshold_Val_8u_C3R(nullptr, s, nullptr, s, ok, t, v, bad); }},
            {"Threshold_Val op -1, bad size", zelStatusUnsupportedMode,
             [&] { return zeliThreshold_Val_8u_C1IR(p, s, none, 5, 1, static_cast<ZelCompareOp>(-1)); }},
            {"Threshold_Val null value", zelStatusNullPtr,
             [&] { return zeliThreshold_Val_8u_C3R(p, s, p, s, ok, t, nullptr, zelCompareLess); }},
            // The arrays of LT, GT, LTVal and GTVal come after the steps.
            {"Threshold_LT null threshold, bad step", zelStatusBadStep,
             [&] { return zeliThreshold_LT_8u_C3R(p, s, p, -1, ok, nullptr); }},
            {"Threshold_GTVal null value, bad size", zelStatusBadSize,
             [&] { return zeliThreshold_GTVal_8u_C3IR(p, s, none, t, nullptr); }},
            {"Threshold_LTVal null threshold", zelStatusNullPtr,
             [&] { return zeliThreshold_LTVal_8u_C3R(p, s, p, s, ok, nullptr, v); }},
            // LTValGTVal: every pointer first, crossed thresholds last.
            {"LTValGTVal null valueGT, bad step", zelStatusNullPtr,
             [&] { return zeliThreshold_LTValGTVal_8u_C3R(p, s, p, 0, ok, t, v, hi, nullptr); }},
            {"LTValGTVal crossed in channel 1", zelStatusThresholdsCrossed,
             [&] { return zeliThreshold_LTValGTVal_8u_C3R(p, s, p, s, ok, t, v, crossed, v); }},
            {"LTValGTVal crossed, bad size", zelStatusBadSize,
             [&] { return zeliThreshold_LTValGTVal_8u_C3IR(p, s, none, t, v, crossed, v); }},
            {"LTValGTVal 32f crossed", zelStatusThresholdsCrossed,
             [&] {
                 float f[4] = {};
                 return zeliThreshold_LTValGTVal_32f_C1R(f, 4, f, 4, {1, 1}, 2.f, 0.f, 1.f, 0.f);
             }},
        },
        img);
    // Equal thresholds are accepted.
    EXPECT_EQ(zeliThreshold_LTValGTVal_8u_C3R(p, s, p, s, ok, t, v, t, hi), zelStatusOk);
}

}  // namespace
