// Compare, CompareC, CompareEqualEps(C) and ComputeThreshold_Otsu against
// scalar references: every member through one table, exhaustive 8-bit
// pairs, the all-channels conjunction, NaN and signed zeros, the single-
// precision difference of the eps forms, every SIMD target and thread
// count, and the check orders with Compare's silent op rule.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

constexpr int kEqualEps = 5;  // the eps members' predicate, after the five ops

template <class T>
bool holds(int op, T a, T b, float eps) {
    switch (op) {
        case 0: return a < b;
        case 1: return a <= b;
        case 2: return a == b;
        case 3: return a >= b;
        case 4: return a > b;
        default: {
            const float diff = static_cast<float>(a) - static_cast<float>(b);
            return std::fabs(diff) <= eps;
        }
    }
}

// One member: `constant` members read b[] instead of a second image; `eps`
// members take the tolerance instead of an op.
template <class T>
struct Member {
    std::string name;
    int channels, computed;
    bool constant, eps;
    std::function<ZelStatus(const T*, int, const T*, int, Zel8u*, int, ZeliSize, int, float)> call;
};

template <int C, class T>
auto arg(const T* a) {
    if constexpr (C == 1) return a[0];
    else return a;
}

#define CMP_MEMBERS(t, lay, C, computed)                                                                     \
    Member<Zel##t>{"Compare_" #t "_" #lay, C, computed, false, false,                                      \
                   [](const Zel##t* a, int as, const Zel##t* b, int bs, Zel8u* d, int ds, ZeliSize roi, int op, \
                      float) { return zeliCompare_##t##_##lay##R(a, as, b, bs, d, ds, roi, ZelCompareOp(op)); }}, \
        Member<Zel##t>{"CompareC_" #t "_" #lay, C, computed, true, false,                                   \
                       [](const Zel##t* a, int as, const Zel##t* b, int, Zel8u* d, int ds, ZeliSize roi, int op, \
                          float) {                                                                          \
                           return zeliCompareC_##t##_##lay##R(a, as, arg<C>(b), d, ds, roi, ZelCompareOp(op)); \
                       }}
#define CMP_EPS_MEMBERS(lay, C, computed)                                                                   \
    Member<Zel32f>{"CompareEqualEps_32f_" #lay, C, computed, false, true,                                  \
                   [](const Zel32f* a, int as, const Zel32f* b, int bs, Zel8u* d, int ds, ZeliSize roi, int,  \
                      float e) { return zeliCompareEqualEps_32f_##lay##R(a, as, b, bs, d, ds, roi, e); }},    \
        Member<Zel32f>{"CompareEqualEpsC_32f_" #lay, C, computed, true, true,                               \
                       [](const Zel32f* a, int as, const Zel32f* b, int, Zel8u* d, int ds, ZeliSize roi, int, \
                          float e) { return zeliCompareEqualEpsC_32f_##lay##R(a, as, arg<C>(b), d, ds, roi, e); }}
#define CMP_TABLE(t)                                                                                        \
    template <>                                                                                             \
    std::vector<Member<Zel##t>> members<Zel##t>() {                                                         \
        std::vector<Member<Zel##t>> list = {CMP_MEMBERS(t, C1, 1, 1), CMP_MEMBERS(t, C3, 3, 3),             \
                                            CMP_MEMBERS(t, C4, 4, 4), CMP_MEMBERS(t, AC4, 4, 3)};           \
        addEps(list);                                                                                       \
        return list;                                                                                        \
    }

template <class T>
void addEps(std::vector<Member<T>>&) {}
void addEps(std::vector<Member<Zel32f>>& list) {
    list.insert(list.end(), {CMP_EPS_MEMBERS(C1, 1, 1), CMP_EPS_MEMBERS(C3, 3, 3), CMP_EPS_MEMBERS(C4, 4, 4),
                             CMP_EPS_MEMBERS(AC4, 4, 3)});
}
template <class T>
std::vector<Member<T>> members();
CMP_TABLE(8u)
CMP_TABLE(16s)
CMP_TABLE(16u)
CMP_TABLE(32f)

// Runs m on a and b (or b's first pixel as the constant) and checks every
// destination byte against the conjunction over the compared channels;
// the destination's guards stay untouched.
template <class T>
void expectMember(const Member<T>& m, const Image<T>& a, const Image<T>& b, int op, float eps) {
    SCOPED_TRACE(m.name + " op " + std::to_string(op) + " eps " + std::to_string(eps));
    const ZeliSize roi = a.size();
    Image<Zel8u> dst(roi, 1, 1, 5, 9, 3);
    ASSERT_EQ(m.call(a.roi(), a.step(), b.roi(), b.step(), dst.roi(), dst.step(), roi, op, eps), zelStatusOk);
    EXPECT_TRUE(dst.outsideUnchanged());
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            bool all = true;
            for (int c = 0; c < m.computed; ++c)
                all = all && holds(m.eps ? kEqualEps : op, a.at(x, y, c), m.constant ? b.at(0, 0, c) : b.at(x, y, c), eps);
            ASSERT_EQ(dst.at(x, y), all ? 255 : 0) << "pixel " << x << "," << y;
        }
}

template <class T>
void expectAll(const Image<T>& (*first)(int), const Image<T>& (*second)(int), std::vector<float> epsilons = {0.f}) {
    for (const Member<T>& m : members<T>()) {
        if (m.eps) {
            for (float e : epsilons) expectMember(m, first(m.channels), second(m.channels), 0, e);
        } else {
            for (int op = 0; op <= 4; ++op) expectMember(m, first(m.channels), second(m.channels), op, 0.f);
        }
    }
}

// Every pair of 8-bit values: the image of rows 0..255 against the image
// of columns 0..255, channel c shifted by 85c so that pixels mix outcomes.
template <bool Rows>
const Image<Zel8u>& byteGrid(int channels) {
    static std::vector<Image<Zel8u>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    images.emplace_back(ZeliSize{256, 256}, channels);
    images.back().fill([](int x, int y, int c) { return Zel8u((Rows ? y : x) + (c == 0 ? 0 : 85 * c + (Rows ? 0 : 1))); });
    return images.back();
}

TEST(CompareRules, EveryPairOfEightBitValues) { expectAll<Zel8u>(&byteGrid<false>, &byteGrid<true>); }

// CompareC with every 8-bit constant, unsigned: 0x80 and above are large.
TEST(CompareRules, EveryEightBitConstant) {
    Image<Zel8u> src({256, 1}, 1);
    src.fill([](int x, int, int) { return Zel8u(x); });
    Image<Zel8u> dst({256, 1}, 1);
    for (int k = 0; k < 256; ++k)
        for (int op = 0; op <= 4; ++op) {
            ASSERT_EQ(zeliCompareC_8u_C1R(src.roi(), src.step(), Zel8u(k), dst.roi(), dst.step(), {256, 1},
                                          ZelCompareOp(op)),
                      zelStatusOk);
            for (int x = 0; x < 256; ++x)
                ASSERT_EQ(dst.at(x, 0), holds(op, x, k, 0.f) ? 255 : 0) << "x " << x << " k " << k << " op " << op;
        }
}

// One failing channel makes the pixel 0; the AC4 alpha never counts.
template <class T>
const Image<T>& oneChannelOff(int channels) {
    static std::vector<Image<T>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    images.emplace_back(ZeliSize{4 * 3, 2}, channels);
    // Pixel x: every channel 10, except channel x % 4 which is 10 + (x / 4 - 1)
    // (9, 10 or 11); row 1 holds alpha values far off.
    images.back().fill([](int x, int y, int c) { return T(c == x % 4 ? 9 + x / 4 : c == 3 && y == 1 ? 100 : 10); });
    return images.back();
}
template <class T>
const Image<T>& tens(int channels) {
    static std::vector<Image<T>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    images.emplace_back(ZeliSize{4 * 3, 2}, channels);
    images.back().fill([](int, int, int) { return T(10); });
    return images.back();
}

TEST(CompareRules, EveryCompareChannelMustHold) {
    expectAll<Zel8u>(&oneChannelOff<Zel8u>, &tens<Zel8u>);
    expectAll<Zel16s>(&oneChannelOff<Zel16s>, &tens<Zel16s>);
    expectAll<Zel16u>(&oneChannelOff<Zel16u>, &tens<Zel16u>);
    expectAll<Zel32f>(&oneChannelOff<Zel32f>, &tens<Zel32f>, {0.f, 0.5f, 1.f});
}

// 16-bit extremes on both sides: no wrap-around in the comparisons.
template <class T, bool Second>
const Image<T>& extremes(int channels) {
    static std::vector<Image<T>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    using L = std::numeric_limits<T>;
    const T v[] = {L::min(), T(L::min() + 1), T(-1), 0, 1, T(L::max() / 2), T(L::max() / 2 + 1), T(L::max() - 1), L::max()};
    images.emplace_back(ZeliSize{81, 1}, channels);
    images.back().fill([&](int x, int, int) { return Second ? v[x % 9] : v[x / 9]; });
    return images.back();
}

TEST(CompareRules, SixteenBitExtremes) {
    expectAll<Zel16s>(&extremes<Zel16s, false>, &extremes<Zel16s, true>);
    expectAll<Zel16u>(&extremes<Zel16u, false>, &extremes<Zel16u, true>);
}

// NaN on either side fails every op and every eps (even infinite); -0
// equals +0; infinities are equal to themselves but their difference is
// NaN; denormals are not zero.
template <bool Second>
const Image<Zel32f>& floatSpecials(int channels) {
    static std::vector<Image<Zel32f>> images;
    for (auto& im : images)
        if (im.channels() == channels) return im;
    const float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const float v[] = {nan, inf, -inf, 0.f, -0.f, 1e-45f, 1.f, 1.f + 0x1p-23f, 0x1p-25f, -2.f};
    images.emplace_back(ZeliSize{100, 1}, channels);
    images.back().fill([&](int x, int, int) { return Second ? v[x % 10] : v[x / 10]; });
    return images.back();
}

TEST(CompareRules, FloatNaNInfinitiesAndSignedZeros) {
    const float inf = std::numeric_limits<float>::infinity();
    expectAll<Zel32f>(&floatSpecials<false>, &floatSpecials<true>, {0.f, 1e-45f, 0x1p-23f, 1.f, 3.f, inf});
}

// |a - b| <= eps on the difference rounded to single precision: 1 - 2^-25
// rounds to 1, so 1 and 2^-25 are equal within eps 1; and the boundary is
// inclusive.
TEST(CompareRules, EqualEpsUsesTheRoundedDifference) {
    const float a[2] = {1.f, 5.f}, b[2] = {0x1p-25f, 3.f};
    Zel8u dst[2] = {7, 7};
    ASSERT_EQ(zeliCompareEqualEps_32f_C1R(a, 8, b, 8, dst, 2, {2, 1}, 1.f), zelStatusOk);
    EXPECT_EQ(dst[0], 255);
    EXPECT_EQ(dst[1], 0);
    ASSERT_EQ(zeliCompareEqualEpsC_32f_C1R(a, 8, 4.f, dst, 2, {2, 1}, 1.f), zelStatusOk);
    EXPECT_EQ(dst[0], 0);
    EXPECT_EQ(dst[1], 255);
}

template <class T>
void expectRandom() {
    for (ZeliSize roi : oddSizes()) {
        for (int ch : {1, 3, 4}) {
            // Few distinct values, so that ties and all-channel passes occur.
            Image<T> a(roi, ch, ch, 3 * sizeof(T), 5, 11 + ch), b(roi, ch, ch, 2 * sizeof(T), 9, 23 + ch);
            a.fillRandom(roi.width + ch, T(0), T(2));
            b.fillRandom(roi.height + ch, T(0), T(2));
            for (const Member<T>& m : members<T>()) {
                if (m.channels != ch) continue;
                if (m.eps) {
                    for (float e : {0.f, 0.5f, 1.f}) expectMember(m, a, b, 0, e);
                } else {
                    for (int op = 0; op <= 4; ++op) expectMember(m, a, b, op, 0.f);
                }
            }
        }
    }
}

TEST(CompareRules, EveryTargetAndThreadCountMatchesTheReference) {
    forEachConfig([] {
        expectRandom<Zel8u>();
        expectRandom<Zel16s>();
        expectRandom<Zel16u>();
        expectRandom<Zel32f>();
    });
}

TEST(CompareChecks, EachFamilyKeepsItsOrder) {
    Image<Zel32f> a({6, 3}, 3);
    Image<Zel8u> dst({6, 3}, 1);
    const float* p = a.roi();
    const int s = a.step();
    Zel8u* d = dst.roi();
    const int ds = dst.step();
    const ZeliSize ok{6, 3}, none{0, 3};
    const float k[3] = {1, 2, 3};
    expectRejected(
        {
            {"Compare null, bad step", zelStatusNullPtr,
             [&] { return zeliCompare_32f_C3R(p, 0, nullptr, s, d, ds, ok, zelCompareLess); }},
            // Steps come before the size.
            {"Compare bad step and size", zelStatusBadStep,
             [&] { return zeliCompare_32f_C3R(p, s, p, s, d, -ds, none, zelCompareLess); }},
            {"Compare bad size", zelStatusBadSize, [&] { return zeliCompare_32f_C3R(p, s, p, s, d, ds, none, zelCompareLess); }},
            {"Compare bad size, bad op", zelStatusBadSize,
             [&] { return zeliCompare_32f_C3R(p, s, p, s, d, ds, none, ZelCompareOp(7)); }},
            // An op outside 0..4 (also negative) succeeds and writes nothing.
            {"Compare op 7", zelStatusOk, [&] { return zeliCompare_32f_C3R(p, s, p, s, d, ds, ok, ZelCompareOp(7)); }},
            {"Compare op 5", zelStatusOk, [&] { return zeliCompare_8u_C1R(d, ds, d, ds, d, ds, ok, ZelCompareOp(5)); }},
            {"Compare op -1", zelStatusOk, [&] { return zeliCompare_32f_C3R(p, s, p, s, d, ds, ok, ZelCompareOp(-1)); }},
            {"CompareC null constant", zelStatusNullPtr,
             [&] { return zeliCompareC_32f_C3R(p, s, nullptr, d, ds, ok, zelCompareLess); }},
            {"CompareC bad step and size", zelStatusBadStep,
             [&] { return zeliCompareC_32f_C3R(p, 0, k, d, ds, none, zelCompareLess); }},
            {"CompareC op INT_MIN", zelStatusOk,
             [&] { return zeliCompareC_32f_C3R(p, s, k, d, ds, ok, ZelCompareOp(std::numeric_limits<int>::min())); }},
            {"EqualEps null, negative eps", zelStatusNullPtr,
             [&] { return zeliCompareEqualEps_32f_C3R(p, s, p, s, nullptr, ds, ok, -1.f); }},
            {"EqualEps bad step and size", zelStatusBadStep,
             [&] { return zeliCompareEqualEps_32f_C3R(p, s, p, 0, d, ds, none, 1.f); }},
            {"EqualEps bad size, negative eps", zelStatusBadSize,
             [&] { return zeliCompareEqualEps_32f_C3R(p, s, p, s, d, ds, none, -1.f); }},
            {"EqualEps negative eps", zelStatusNegativeEpsilon,
             [&] { return zeliCompareEqualEps_32f_C3R(p, s, p, s, d, ds, ok, -1e-30f); }},
            {"EqualEpsC negative eps", zelStatusNegativeEpsilon,
             [&] { return zeliCompareEqualEpsC_32f_C3R(p, s, k, d, ds, ok, -1.f); }},
        },
        a, dst);
}

// ---- Otsu -------------------------------------------------------------------

// The threshold rule written out plainly from the histogram.
int otsuReference(const std::vector<double>& h) {
    const double eps = 1.1920928955078125e-07;
    double n = 0, m = 0;
    for (int i = 0; i < 256; ++i) {
        n += h[i];
        m += (i + 0.5) * h[i];
    }
    const double inv = float(std::fabs(std::trunc(n))) > eps ? 1 / n : 0;
    const double muT = m * inv;
    double s = 0, w = 0, best = 0, t = 0;
    for (int i = 0; i < 256; ++i) {
        s *= w;
        const double p = inv * h[i];
        w += p;
        const double w2 = 1 - w;
        if (std::min(w, w2) < eps || std::max(w, w2) > 1 - eps) continue;
        s = (s + p * (i + 0.5)) / w;
        const double mu2 = (muT - w * s) / w2;
        const double sigma = w2 * w * (s - mu2) * (s - mu2);
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

std::vector<double> histogramOf(const Image<Zel8u>& im) {
    std::vector<double> h(256, 0);
    for (int y = 0; y < im.size().height; ++y)
        for (int x = 0; x < im.size().width; ++x) ++h[im.at(x, y)];
    return h;
}

TEST(Otsu, FollowsTheRuleOnEveryTargetAndThreadCount) {
    Image<Zel8u> twoLevels({40, 20}, 1), constant({33, 7}, 1), single({1, 1}, 1), skewed({1031, 70}, 1);
    twoLevels.fill([](int x, int, int) { return Zel8u(x % 2 ? 200 : 50); });
    constant.fill([](int, int, int) { return Zel8u(93); });
    single.fill([](int, int, int) { return Zel8u(5); });
    std::mt19937 rng(5);
    skewed.fill([&](int, int, int) { return Zel8u(rng() % 3 ? rng() % 90 : 120 + rng() % 136); });
    std::vector<Image<Zel8u>> randoms;
    for (ZeliSize roi : oddSizes()) randoms.emplace_back(roi, 1, 1, 1, 5, roi.width);
    forEachConfig([&] {
        EXPECT_EQ(otsuOf(twoLevels), 50);
        EXPECT_EQ(otsuOf(constant), 0);
        EXPECT_EQ(otsuOf(single), 0);
        EXPECT_EQ(otsuOf(skewed), otsuReference(histogramOf(skewed)));
        for (const auto& im : randoms) EXPECT_EQ(otsuOf(im), otsuReference(histogramOf(im))) << im.size().width;
    });
}

// More than 2^23 pixels: single pixels at either end weigh less than the
// 2^-23 class limit, and the counts gathered by many row blocks add up.
TEST(Otsu, LargeImagesWithBinsBelowTheClassLimit) {
    Image<Zel8u> im({4096, 2049}, 1, 1, 1, 0, 3);
    im.fill([](int x, int y, int) { return Zel8u(y < 1024 ? 60 + x % 3 : 190 + x % 5); });
    im.at(0, 0) = 0, im.at(7, 2048) = 255;
    EXPECT_EQ(otsuOf(im), otsuReference(histogramOf(im)));
}

TEST(Otsu, ChecksInOrder) {
    Image<Zel8u> im({8, 4}, 1);
    Zel8u t = 9;
    const Zel8u* p = im.roi();
    expectRejected(
        {
            {"null source, bad size", zelStatusNullPtr, [&] { return zeliComputeThreshold_Otsu_8u_C1R(nullptr, 8, {0, 4}, &t); }},
            {"null result", zelStatusNullPtr, [&] { return zeliComputeThreshold_Otsu_8u_C1R(p, 8, {8, 4}, nullptr); }},
            {"bad size, bad step", zelStatusBadSize, [&] { return zeliComputeThreshold_Otsu_8u_C1R(p, 0, {8, 0}, &t); }},
            {"step below the width", zelStatusBadStep, [&] { return zeliComputeThreshold_Otsu_8u_C1R(p, 7, {8, 4}, &t); }},
        },
        im);
    EXPECT_EQ(t, 9);
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(p, 8, {8, 4}, &t), zelStatusOk);
}

}  // namespace
