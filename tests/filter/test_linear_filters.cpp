// User-kernel filters: every member against a direct transcription of the
// convolution formula and its division and rounding rules, over a table of
// kernel sizes, anchors (inside and outside the kernel), divisors and
// asymmetric kernels, under every SIMD target and with one and several
// threads; the check order with the steps at their exact limits; the
// rounding ties; the work-buffer sizes; the decimating filters.
#include <gtest/gtest.h>

#include <cfenv>
#include <climits>
#include <cmath>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "core/memory.h"
#include "filter/linear_members.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

const std::vector<LinearMember>& members() {
    static const std::vector<LinearMember> all = linearMembers();
    return all;
}

template <class T>
T saturateTo(double v) {
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(v);
    } else {
        const double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
        return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
    }
}

double roundByMode(int mode, double v) {
    if (mode == 0) return std::trunc(v);
    if (mode == 1) return std::nearbyint(v);
    return std::round(v);  // ties away from zero
}

// The integer filters' division of a 32-bit sum S by d, as written in the
// rules: d = 1 saturates; d = 2^n rounds to nearest even (8u: S < 1 gives
// 0, then the shift formula); any other d through the float reciprocal.
template <class T>
T divideSum(std::int32_t s, int d) {
    if (d == 1) return saturateTo<T>(s);
    if (d > 1 && (d & (d - 1)) == 0) {
        int n = 0;
        while ((1 << n) != d) ++n;
        if (std::is_same_v<T, Zel8u>) {
            if (s < 1) return 0;
            const std::int64_t q = (std::int64_t{s} >> n) +
                                   (((s % d) + (std::int64_t{1} << (n - 1)) + ((s >> n) & 1) - 1) >> n);
            return saturateTo<T>(static_cast<double>(q));
        }
        // Ties to even, negative sums too (floor division).
        const std::int64_t q = static_cast<std::int64_t>(std::floor(static_cast<double>(s) / d));
        const std::int64_t r = s - q * d;
        const std::int64_t rounded = r * 2 > d || (r * 2 == d && (q & 1)) ? q + 1 : q;
        return saturateTo<T>(static_cast<double>(rounded));
    }
    const float q = static_cast<float>(s) * static_cast<float>(1.0 / d);
    if (std::is_same_v<T, Zel8u>) {
        if (q >= 255.0f) return 255;
        if (q <= 0.5f) return 0;
        float r = std::trunc(q + 0.5f);
        if (r - q == 0.5f && std::fmod(r, 2.0f) == 1.0f) r -= 1.0f;
        return static_cast<T>(r);
    }
    return saturateTo<T>(std::nearbyint(static_cast<double>(q)));
}

// Where a test source holds the window of dst(0, 0): the ROI's first
// pixel sits at (ox, oy) of an image large enough for every window.
struct Placement {
    int ox, oy, width, height;
};
Placement placementOf(const LinearKernel& k, ZeliSize roi) {
    const int lox = std::min(0, -(k.kw - 1 - k.ax)), hix = std::max(0, k.ax);
    const int loy = std::min(0, -(k.kh - 1 - k.ay)), hiy = std::max(0, k.ay);
    return {-lox, -loy, roi.width + hix - lox, roi.height + hiy - loy};
}

// dst(x, y) by the formula, in window order: rows from the top, columns
// from the left; weight of window pixel (u, v) is K[kh-1-u][kw-1-v].
template <class T>
T referencePixel(const LinearMember& m, const LinearKernel& k, const Image<T>& src, Placement at, int x, int y,
                 int c) {
    const int col = at.ox + x - (k.kw - 1 - k.ax), row = at.oy + y - (k.kh - 1 - k.ay);
    auto weight = [&](int u, int v) { return k.w[std::size_t(k.kh - 1 - u) * k.kw + (k.kw - 1 - v)]; };
    auto pixel = [&](int u, int v) { return src.at(col + v, row + u, c); };
    switch (m.kind) {
        case LinearKind::IntDivide: {
            std::int64_t s = 0;
            for (int u = 0; u < k.kh; ++u)
                for (int v = 0; v < k.kw; ++v) s += static_cast<std::int64_t>(weight(u, v)) * pixel(u, v);
            return divideSum<T>(static_cast<std::int32_t>(s), k.divisor);
        }
        case LinearKind::IntViaFloat:
        case LinearKind::Float:
        case LinearKind::Same32f:
        case LinearKind::Round32f: {
            const float r = static_cast<float>(1.0 / k.divisor);
            auto w = [&](int u, int v) {
                return m.kind == LinearKind::IntViaFloat ? static_cast<float>(weight(u, v)) * r
                                                         : static_cast<float>(weight(u, v));
            };
            float s = w(0, 0) * static_cast<float>(pixel(0, 0));
            for (int u = 0; u < k.kh; ++u)
                for (int v = 0; v < k.kw; ++v)
                    if (u + v > 0) s = s + w(u, v) * static_cast<float>(pixel(u, v));
            if (m.kind == LinearKind::Same32f) return static_cast<T>(s);
            if (m.kind == LinearKind::Round32f) return saturateTo<T>(roundByMode(k.rndMode, s));
            return saturateTo<T>(std::nearbyint(static_cast<double>(s)));
        }
        case LinearKind::Same64f: {
            double s = weight(0, 0) * static_cast<double>(pixel(0, 0));
            for (int u = 0; u < k.kh; ++u)
                for (int v = 0; v < k.kw; ++v)
                    if (u + v > 0) s = s + weight(u, v) * static_cast<double>(pixel(u, v));
            return static_cast<T>(s);
        }
        case LinearKind::RoundInt: {
            std::int64_t s = 0;
            for (int u = 0; u < k.kh; ++u)
                for (int v = 0; v < k.kw; ++v) s += static_cast<std::int64_t>(weight(u, v)) * pixel(u, v);
            return saturateTo<T>(roundByMode(k.rndMode, static_cast<double>(s) / k.divisor));
        }
    }
    return T(0);
}

bool integerKernel(const LinearMember& m) {
    return m.kind == LinearKind::IntDivide || m.kind == LinearKind::IntViaFloat || m.kind == LinearKind::RoundInt;
}
bool roundingMember(const LinearMember& m) {
    return m.kind == LinearKind::Round32f || m.kind == LinearKind::RoundInt;
}

// Kernel cases: sizes, anchors inside and outside, divisors 1, powers of
// two, others and negative ones; weights asymmetric. Float members take
// the weights times `scale`.
struct KernelCase {
    int kw, kh, ax, ay, divisor;
    std::vector<int> w;  // empty: drawn
    double scale;
};
std::vector<int> drawWeights(int count, std::uint32_t seed) {
    std::mt19937 rng(seed);
    std::vector<int> w(count);
    for (int& x : w) x = static_cast<int>(rng() % 15) - 5;
    w[0] = 7;  // never all zero, never symmetric
    return w;
}
std::vector<KernelCase> planeCases() {
    return {
        {1, 2, 0, 0, 1, {0, 1}, 1.0},     // the window's second pixel: the one above
        {2, 1, 0, 0, 1, {0, 1}, 1.0},     // the pixel to the left
        {3, 3, 1, 1, 1, {}, 0.125},
        {3, 3, 0, 2, 16, {}, 0.37},
        {5, 3, 4, 0, 7, {}, 0.1},
        {2, 4, -1, 5, -3, {}, -0.3},      // anchor outside the kernel
        {7, 5, 3, 2, 9, {}, 0.05},
        {1, 1, 0, 0, 2, {3}, 0.5},
    };
}
std::vector<KernelCase> lineCases() {  // length along the line, anchor
    return {
        {1, 1, 0, 0, 2, {3}, 0.5},
        {2, 1, 0, 0, 1, {0, 1}, 1.0},
        {3, 1, 1, 0, 4, {}, 0.25},
        {5, 1, 3, 0, 5, {}, 0.11},
        {8, 1, 9, 0, -2, {}, -0.07},     // anchor past the end
        {4, 1, -2, 0, 3, {}, 0.3},       // anchor before the start
    };
}
LinearKernel kernelOf(const LinearMember& m, const KernelCase& kc, int index) {
    LinearKernel k;
    const bool column = m.shape == Shape1::Column;
    k.kw = column ? 1 : kc.kw;
    k.kh = column ? kc.kw : kc.kh;
    k.ax = column ? 0 : kc.ax;
    k.ay = column ? kc.ax : kc.ay;
    k.divisor = kc.divisor;
    const std::vector<int> w = kc.w.empty() ? drawWeights(kc.kw * kc.kh, 100 + index) : kc.w;
    for (int x : w) k.w.push_back(integerKernel(m) ? x : x * kc.scale);
    return k;
}

template <class T>
void checkCase(const LinearMember& m, const LinearKernel& k, ZeliSize roi, std::uint32_t seed) {
    const Placement at = placementOf(k, roi);
    Image<T> src({at.width, at.height}, m.channels, -1, sizeof(T), 5, seed);
    if constexpr (std::is_floating_point_v<T>) src.fillRandom(seed, T(-100), T(100));
    Image<T> dst(roi, m.channels, m.written, 3 * sizeof(T), 7, seed + 1);
    std::vector<T> want;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.written; ++c) want.push_back(referencePixel(m, k, src, at, x, y, c));
    std::vector<std::uint8_t> buffer(std::size_t(16) * k.kw * k.kh + 8 * roi.width + 64);
    forEachConfig([&] {
        ASSERT_EQ(m.call(&src.at(at.ox, at.oy), src.step(), dst.roi(), dst.step(), roi, k, buffer.data() + 3),
                  zelStatusOk);
        ASSERT_TRUE(dst.outsideUnchanged());
        std::size_t i = 0;
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < m.written; ++c, ++i) {
                    const T got = dst.at(x, y, c);
                    ASSERT_EQ(std::memcmp(&got, &want[i], sizeof(T)), 0)
                        << "pixel (" << x << ", " << y << ") channel " << c << ": got " << +got << ", want "
                        << +want[i];
                }
    });
}

template <class F>
void withType(const LinearMember& m, F&& f) {
    switch (m.type) {
        case LElem::u8: f(Zel8u{}); break;
        case LElem::u16: f(Zel16u{}); break;
        case LElem::s16: f(Zel16s{}); break;
        case LElem::f32: f(Zel32f{}); break;
        case LElem::f64: f(Zel64f{}); break;
    }
}

TEST(LinearFilters, EveryMemberFollowsTheFormula) {
    ASSERT_EQ(members().size(), 109u);
    std::uint32_t seed = 1;
    for (const LinearMember& m : members()) {
        SCOPED_TRACE(m.name);
        const auto cases = m.shape == Shape1::Plane ? planeCases() : lineCases();
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const LinearKernel base = kernelOf(m, cases[i], static_cast<int>(i));
            // Large ROIs (bands of rows for the threads) for two cases.
            std::vector<ZeliSize> rois = {{1, 1}, {13, 5}};
            if (i == 2 || i == 4) rois.push_back({67, 65});
            for (int mode : roundingMember(m) ? std::vector<int>{0, 1, 2} : std::vector<int>{1})
                for (ZeliSize roi : rois) {
                    LinearKernel k = base;
                    k.rndMode = mode;
                    SCOPED_TRACE("case " + std::to_string(i) + ", mode " + std::to_string(mode) + ", roi " +
                                 std::to_string(roi.width) + "x" + std::to_string(roi.height));
                    withType(m, [&](auto t) { checkCase<decltype(t)>(m, k, roi, seed++); });
                    if (HasFatalFailure()) return;
                }
        }
    }
}

// Sums past the 8-bit and 16-bit ranges, and past the vector chunking of
// long rows, under every configuration.
TEST(LinearFilters, LongRowsAndSaturation) {
    for (const LinearMember& m : members()) {
        if (m.channels != 1) continue;
        SCOPED_TRACE(m.name);
        LinearKernel k = kernelOf(m, m.shape == Shape1::Plane ? planeCases()[6] : lineCases()[3], 6);
        for (double& w : k.w) w *= 3;
        withType(m, [&](auto t) { checkCase<decltype(t)>(m, k, {6000, 2}, 77); });
        if (HasFatalFailure()) return;
    }
}

// ---- Check order -------------------------------------------------------

template <class T>
void checkOrderOf(const LinearMember& m) {
    const ZeliSize roi{6, 4};
    LinearKernel k;
    k.kw = m.shape == Shape1::Column ? 1 : 3;
    k.kh = m.shape == Shape1::Row ? 1 : 2;
    k.ax = k.ay = 0;
    k.w.assign(std::size_t(k.kw) * k.kh, 1.0);
    k.divisor = 3;
    const int px = m.channels * static_cast<int>(sizeof(T));
    const int srcLimit = (m.shape == Shape1::Column ? roi.width : roi.width + k.kw - 1) * px;
    const int dstLimit = roi.width * px;
    // Images whose steps are exactly the limits.
    Image<T> src({srcLimit / px, roi.height + k.kh - 1}, m.channels, -1, sizeof(T), 0);
    Image<T> dst(roi, m.channels, m.written, sizeof(T), 0);
    std::vector<std::uint8_t> buffer(4096);
    const bool viaFloat = m.kind == LinearKind::IntViaFloat;
    const bool hasDivisor = integerKernel(m);
    const bool rounding = roundingMember(m);
    const bool bufferArg = rounding || m.kind == LinearKind::Same64f;
    ASSERT_EQ(src.step(), srcLimit);
    ASSERT_EQ(dst.step(), dstLimit);
    const T* s = &src.at(k.kw - 1, k.kh - 1);
    struct Args {
        const T* src;
        int srcStep;
        T* dst;
        int dstStep;
        ZeliSize roi;
        LinearKernel k;
        void* buffer;
        bool nullKernel;
    };
    auto call = [&](Args a) {
        if (a.nullKernel) {
            // A null kernel pointer: the adapters pass w.data(), which an
            // empty vector makes null.
            a.k.w.clear();
        }
        return m.call(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.k, a.buffer);
    };
    const Args ok{s, srcLimit, dst.roi(), dstLimit, roi, k, buffer.data(), false};
    auto with = [&](auto change) {
        Args a = ok;
        change(a);
        return [=] { return call(a); };
    };
    std::vector<Rejection> cases = {
        {"null source", zelStatusNullPtr, with([](Args& a) { a.src = nullptr; })},
        {"null destination", zelStatusNullPtr, with([](Args& a) { a.dst = nullptr; })},
        {"null kernel", zelStatusNullPtr, with([](Args& a) { a.nullKernel = true; })},
        {"roi width 0", zelStatusBadSize, with([](Args& a) { a.roi.width = 0; })},
        {"roi height -1", zelStatusBadSize, with([](Args& a) { a.roi.height = -1; })},
        {"source step one byte short", zelStatusBadStep, with([](Args& a) { a.srcStep -= 1; })},
        {"destination step one byte short", zelStatusBadStep, with([](Args& a) { a.dstStep -= 1; })},
        {"roi 0 and bad steps", zelStatusBadSize, with([](Args& a) { a.roi.width = 0; a.srcStep = a.dstStep = 0; })},
    };
    // Kernel length below 1 along the member's direction.
    cases.push_back({"kernel length 0", zelStatusBadSize, with([&](Args& a) {
                         if (m.shape == Shape1::Column) a.k.kh = 0;
                         else a.k.kw = 0;
                         a.k.w.assign(1, 1.0);
                     })});
    if (m.shape == Shape1::Plane)
        cases.push_back({"kernel height 0", zelStatusBadSize, with([](Args& a) { a.k.kh = 0; a.k.w.assign(1, 1.0); })});
    if (hasDivisor) {
        cases.push_back({"divisor 0", zelStatusZeroDivisor, with([](Args& a) { a.k.divisor = 0; })});
        cases.push_back({"divisor 0 and bad step", zelStatusZeroDivisor,
                         with([](Args& a) { a.k.divisor = 0; a.srcStep = 0; })});
        // Members that convert the kernel first see the divisor before the
        // images.
        cases.push_back({"divisor 0 and null source", viaFloat ? zelStatusZeroDivisor : zelStatusNullPtr,
                         with([](Args& a) { a.k.divisor = 0; a.src = nullptr; })});
        cases.push_back({"divisor 0 and roi 0", viaFloat ? zelStatusZeroDivisor : zelStatusBadSize,
                         with([](Args& a) { a.k.divisor = 0; a.roi.height = 0; })});
    }
    cases.push_back({"kernel length 0 and null source", viaFloat ? zelStatusBadSize : zelStatusNullPtr,
                     with([&](Args& a) {
                         if (m.shape == Shape1::Column) a.k.kh = 0;
                         else a.k.kw = 0;
                         a.k.w.assign(1, 1.0);
                         a.src = nullptr;
                     })});
    if (rounding) {
        for (int mode : {3, -1, -213})
            cases.push_back({"mode " + std::to_string(mode), zelStatusBadRoundMode,
                             with([mode](Args& a) { a.k.rndMode = mode; })});
        cases.push_back({"mode 3 and bad step", zelStatusBadStep,
                         with([](Args& a) { a.k.rndMode = 3; a.dstStep = 0; })});
        cases.push_back({"mode 3 and null buffer", zelStatusBadRoundMode,
                         with([](Args& a) { a.k.rndMode = 3; a.buffer = nullptr; })});
    }
    if (bufferArg) {
        cases.push_back({"null buffer", zelStatusNullPtr, with([](Args& a) { a.buffer = nullptr; })});
        cases.push_back({"null buffer and bad step", zelStatusBadStep,
                         with([](Args& a) { a.buffer = nullptr; a.srcStep -= 1; })});
    }
    expectRejected(cases, dst);
    // Steps at their exact limits are accepted.
    EXPECT_EQ(call(ok), zelStatusOk);
    EXPECT_TRUE(dst.outsideUnchanged());
}

TEST(LinearFilters, CheckOrderAndStepLimits) {
    for (const LinearMember& m : members()) {
        SCOPED_TRACE(m.name);
        withType(m, [&](auto t) { checkOrderOf<decltype(t)>(m); });
    }
}

// ---- Rounding edges ----------------------------------------------------

// One channel of a 1 x 1 ROI from a 3 x 3 (or 1 x 1) neighbourhood.
template <class T, class F>
T single(F call, std::vector<T> pixels) {
    T out{};
    const int side = pixels.size() == 9 ? 3 : 1;
    const ZelStatus st = call(pixels.data() + (side == 3 ? 4 : 0), side * int(sizeof(T)), &out, int(sizeof(T)));
    EXPECT_EQ(st, zelStatusOk);
    return out;
}

TEST(LinearFilters, DivisionRulesAtTheirEdges) {
    const Zel32s ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    auto box8u = [&](int divisor) {
        return [&ones, divisor](const Zel8u* s, int ss, Zel8u* d, int ds) {
            return zeliFilter_8u_C1R(s, ss, d, ds, {1, 1}, ones, {3, 3}, {1, 1}, divisor);
        };
    };
    // 2.5 and 1.5 round to even.
    EXPECT_EQ(single<Zel8u>(box8u(2), {1, 1, 1, 1, 1, 0, 0, 0, 0}), 2);
    EXPECT_EQ(single<Zel8u>(box8u(6), {1, 1, 1, 1, 1, 1, 1, 1, 1}), 2);
    EXPECT_EQ(single<Zel8u>(box8u(2), {1, 1, 1, 1, 1, 1, 1, 0, 0}), 4);   // 3.5 -> 4
    EXPECT_EQ(single<Zel8u>(box8u(-1), {9, 9, 9, 9, 9, 9, 9, 9, 9}), 0);  // negative divisor
    EXPECT_EQ(single<Zel8u>(box8u(1), {255, 255, 255, 0, 0, 0, 0, 0, 0}), 255);
    // Reciprocal path: q <= 0.5 gives 0, just above gives 1; >= 255 saturates.
    EXPECT_EQ(single<Zel8u>(box8u(6), {1, 1, 1, 0, 0, 0, 0, 0, 0}), 0);   // 0.5
    EXPECT_EQ(single<Zel8u>(box8u(6), {1, 1, 1, 1, 0, 0, 0, 0, 0}), 1);   // 0.67
    EXPECT_EQ(single<Zel8u>(box8u(3), {255, 255, 255, 255, 255, 255, 255, 255, 255}), 255);
    // 16s: negative sums, power of two and reciprocal, saturation.
    auto box16s = [&](int divisor) {
        return [&ones, divisor](const Zel16s* s, int ss, Zel16s* d, int ds) {
            return zeliFilter_16s_C1R(s, ss, d, ds, {1, 1}, ones, {3, 3}, {1, 1}, divisor);
        };
    };
    EXPECT_EQ(single<Zel16s>(box16s(2), {-1, -1, -1, -1, -1, 0, 0, 0, 0}), -2);  // -2.5 -> -2
    EXPECT_EQ(single<Zel16s>(box16s(2), {-1, -1, -1, 0, 0, 0, 0, 0, 0}), -2);    // -1.5 -> -2
    EXPECT_EQ(single<Zel16s>(box16s(6), {-1, -1, -1, -1, -1, -1, -1, -1, -1}), -2);
    EXPECT_EQ(single<Zel16s>(box16s(1), {30000, 30000, 0, 0, 0, 0, 0, 0, 0}), 32767);
    EXPECT_EQ(single<Zel16s>(box16s(-1), {30000, 30000, 0, 0, 0, 0, 0, 0, 0}), -32768);
    // The 16u member converts the kernel: 1/3 in single precision.
    auto box16u = [&](int divisor) {
        return [&ones, divisor](const Zel16u* s, int ss, Zel16u* d, int ds) {
            return zeliFilter_16u_C1R(s, ss, d, ds, {1, 1}, ones, {3, 3}, {1, 1}, divisor);
        };
    };
    EXPECT_EQ(single<Zel16u>(box16u(2), {1, 1, 1, 1, 1, 0, 0, 0, 0}), 2);
    EXPECT_EQ(single<Zel16u>(box16u(-1), {1, 1, 1, 1, 1, 0, 0, 0, 0}), 0);
    EXPECT_EQ(single<Zel16u>(box16u(1), {65535, 65535, 0, 0, 0, 0, 0, 0, 0}), 65535);
}

TEST(LinearFilters, RoundingModesAtTies) {
    const Zel32f half = 0.5f;
    Zel8u buffer[128];
    struct Case {
        int mode;
        Zel16s in;
        Zel16s want;
    };
    // x * 0.5 through the 16s members: the three modes at ties of both signs.
    for (Case c : {Case{0, 5, 2}, {1, 5, 2}, {2, 5, 3}, {0, 7, 3}, {1, 7, 4}, {2, 7, 4}, {0, -5, -2}, {1, -5, -2},
                   {2, -5, -3}, {0, -7, -3}, {1, -7, -4}, {2, -7, -4}, {2, -3, -2}, {0, 4, 2}}) {
        SCOPED_TRACE("mode " + std::to_string(c.mode) + " of " + std::to_string(c.in) + " / 2");
        Zel16s out = 0;
        EXPECT_EQ(zeliFilter_Round32f_16s_C1R(&c.in, 2, &out, 2, {1, 1}, &half, {1, 1}, {0, 0},
                                              static_cast<ZelRoundingMode>(c.mode), buffer),
                  zelStatusOk);
        EXPECT_EQ(out, c.want);
        const Zel32s one = 1;
        out = 0;
        EXPECT_EQ(zeliFilter_Round32s_16s_C1R(&c.in, 2, &out, 2, {1, 1}, &one, {1, 1}, {0, 0}, 2,
                                              static_cast<ZelRoundingMode>(c.mode), buffer),
                  zelStatusOk);
        EXPECT_EQ(out, c.want);
    }
    // 8u: negative values saturate to 0 in every mode, 255.5 to 255.
    const Zel16s minusOne = -1, three = 3;
    for (int mode : {0, 1, 2}) {
        Zel8u in = 7, out = 1;
        EXPECT_EQ(zeliFilter_Round16s_8u_C1R(&in, 1, &out, 1, {1, 1}, &minusOne, {1, 1}, {0, 0}, 1,
                                             static_cast<ZelRoundingMode>(mode), buffer),
                  zelStatusOk);
        EXPECT_EQ(out, 0);
        in = 170;  // 510 / 2 = 255
        EXPECT_EQ(zeliFilter_Round16s_8u_C1R(&in, 1, &out, 1, {1, 1}, &three, {1, 1}, {0, 0}, 2,
                                             static_cast<ZelRoundingMode>(mode), buffer),
                  zelStatusOk);
        EXPECT_EQ(out, 255);
    }
}

// The caller's rounding mode and flush-to-zero do not reach the results.
TEST(LinearFilters, CallerRoundingModeDoesNotMatter) {
    for (const LinearMember& m : members()) {
        if (m.kind == LinearKind::IntDivide || m.channels != 1) continue;
        SCOPED_TRACE(m.name);
        LinearKernel k = kernelOf(m, planeCases()[4], 4);
        if (m.shape != Shape1::Plane) k = kernelOf(m, lineCases()[3], 3);
        k.rndMode = 2;
        for (double& w : k.w) w = static_cast<float>(w);  // the adapters' conversion stays exact
        withType(m, [&](auto t) {
            using T = decltype(t);
            const ZeliSize roi{19, 3};
            const Placement at = placementOf(k, roi);
            Image<T> src({at.width, at.height}, 1);
            if constexpr (std::is_floating_point_v<T>) src.fillRandom(5, T(-100), T(100));
            Image<T> a(roi, 1), b(roi, 1);
            std::vector<std::uint8_t> buffer(4096);
            ASSERT_EQ(m.call(&src.at(at.ox, at.oy), src.step(), a.roi(), a.step(), roi, k, buffer.data()), zelStatusOk);
            const int saved = std::fegetround();
            std::fesetround(FE_UPWARD);
            const ZelStatus st = m.call(&src.at(at.ox, at.oy), src.step(), b.roi(), b.step(), roi, k, buffer.data());
            const int during = std::fegetround();
            std::fesetround(saved);
            ASSERT_EQ(st, zelStatusOk);
            EXPECT_EQ(during, FE_UPWARD) << "the caller's mode was not restored";
            EXPECT_TRUE(sameRoi(a, b, 1));
        });
    }
}

// Scratch rows that cannot be had: integer data reports zelStatusNoMemory
// and writes nothing; float data is read where it lies and needs none.
TEST(LinearFilters, ScratchFailure) {
    for (const LinearMember& m : members()) {
        if (roundingMember(m)) continue;  // these allocate nothing
        SCOPED_TRACE(m.name);
        const LinearKernel k = kernelOf(m, m.shape == Shape1::Plane ? planeCases()[6] : lineCases()[3], 6);
        withType(m, [&](auto t) {
            using T = decltype(t);
            const ZeliSize roi{21, 4};
            const Placement at = placementOf(k, roi);
            Image<T> src({at.width, at.height}, m.channels);
            if constexpr (std::is_floating_point_v<T>) src.fillRandom(5, T(-100), T(100));
            Image<T> a(roi, m.channels, m.written), b(roi, m.channels, m.written);
            std::vector<std::uint8_t> buffer(4096);
            const T* in = &src.at(at.ox, at.oy);
            ASSERT_EQ(m.call(in, src.step(), a.roi(), a.step(), roi, k, buffer.data()), zelStatusOk);
            failAllocationForTests(1);
            const ZelStatus st = m.call(in, src.step(), b.roi(), b.step(), roi, k, buffer.data());
            failAllocationForTests(0);
            if (std::is_floating_point_v<T>) {
                EXPECT_EQ(st, zelStatusOk);
                EXPECT_TRUE(sameRoi(a, b, m.channels));
            } else {
                EXPECT_EQ(st, zelStatusNoMemory);
                EXPECT_TRUE(b.unchanged());
            }
        });
    }
}

// ---- Work-buffer sizes ---------------------------------------------------

using SizeQuery = ZelStatus (*)(ZeliSize, int, int*);
const std::vector<std::pair<const char*, SizeQuery>>& sizeQueries() {
#define ZT_Q(f) {#f, &f}
#define ZT_Q4(p) ZT_Q(p##_C1R), ZT_Q(p##_C3R), ZT_Q(p##_C4R), ZT_Q(p##_AC4R)
    static const std::vector<std::pair<const char*, SizeQuery>> all = {
        ZT_Q4(zeliFilterRoundGetBufSize16s_8u), ZT_Q4(zeliFilterRoundGetBufSize32f_8u),
        ZT_Q4(zeliFilterRoundGetBufSize32f_16s), ZT_Q4(zeliFilterRoundGetBufSize32f_16u),
        ZT_Q4(zeliFilterRoundGetBufSize32s_16s), ZT_Q4(zeliFilterRoundGetBufSize32s_16u),
        ZT_Q(zeliFilterGetBufSize_64f_C1R)};
#undef ZT_Q4
#undef ZT_Q
    return all;
}

TEST(LinearFilters, WorkBufferSizesFollowTheFormulaPerThread) {
    ASSERT_EQ(sizeQueries().size(), 25u);
    ConfigGuard restore;
    for (const auto& [name, query] : sizeQueries()) {
        SCOPED_TRACE(name);
        for (int threads : {1, 3}) {
            zelSetNumThreads(threads);
            int size = -1;
            ASSERT_EQ(query({5, 3}, 640, &size), zelStatusOk);
            EXPECT_EQ(size, (8 * 640 + 16 * 15 + 43) * threads);
            ASSERT_EQ(query({1, 1}, 1, &size), zelStatusOk);
            EXPECT_EQ(size, (8 + 16 + 43) * threads);
        }
        zelSetNumThreads(1);
        int size = 99;
        EXPECT_EQ(query({5, 3}, 640, nullptr), zelStatusNullPtr);
        EXPECT_EQ(query({0, 3}, 0, nullptr), zelStatusNullPtr);
        EXPECT_EQ(query({0, 3}, 640, &size), zelStatusBadSize);
        EXPECT_EQ(query({5, -1}, 640, &size), zelStatusBadSize);
        EXPECT_EQ(query({5, 3}, 0, &size), zelStatusBadSize);
        EXPECT_EQ(query({5, 3}, INT_MAX / 4, &size), zelStatusBadSize);  // beyond int
        EXPECT_EQ(size, 99);
    }
}

// ---- Decimating filters ----------------------------------------------------

using Decimate = ZelStatus (*)(const Zel8u*, int, Zel8u*, int, ZeliSize, int);

TEST(DecimateFilters, TriangleMeanOfEveryFactorThSample) {
    for (bool row : {true, false}) {
        const Decimate f = row ? zeliDecimateFilterRow_8u_C1R : zeliDecimateFilterColumn_8u_C1R;
        for (int factor : {1, 2, 3, 4, 5}) {
            for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{13, 5}, ZeliSize{70, 66}}) {
                SCOPED_TRACE(std::string(row ? "row" : "column") + ", factor " + std::to_string(factor) + ", roi " +
                             std::to_string(roi.width) + "x" + std::to_string(roi.height));
                const int r = factor - 1;
                const ZeliSize srcSize = row ? ZeliSize{(roi.width + 1) * factor - 1, roi.height}
                                             : ZeliSize{roi.width, (roi.height + 1) * factor - 1};
                Image<Zel8u> src(srcSize, 1, -1, 1, 5, factor);
                Image<Zel8u> dst(roi, 1, -1, 3, 7, factor + 1);
                std::vector<Zel8u> want;
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x) {
                        std::int32_t s = 0;
                        for (int k = -r; k <= r; ++k)
                            s += (factor - std::abs(k)) *
                                 (row ? src.at(r + x * factor + k, y) : src.at(x, r + y * factor + k));
                        want.push_back(divideSum<Zel8u>(s, factor * factor));
                    }
                const Zel8u* at = row ? &src.at(r, 0) : &src.at(0, r);
                forEachConfig([&] {
                    ASSERT_EQ(f(at, src.step(), dst.roi(), dst.step(), roi, factor), zelStatusOk);
                    ASSERT_TRUE(dst.outsideUnchanged());
                    for (int y = 0, i = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x, ++i) ASSERT_EQ(dst.at(x, y), want[i]) << x << ", " << y;
                });
                if (factor == 1) {  // a copy
                    for (int y = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x) EXPECT_EQ(dst.at(x, y), src.at(x, y));
                }
            }
        }
    }
}

TEST(DecimateFilters, CheckOrderAndStepLimits) {
    for (bool row : {true, false}) {
        SCOPED_TRACE(row ? "row" : "column");
        const Decimate f = row ? zeliDecimateFilterRow_8u_C1R : zeliDecimateFilterColumn_8u_C1R;
        const ZeliSize roi{5, 4};
        const int factor = 3;
        Image<Zel8u> src({40, 40}, 1);
        Image<Zel8u> dst(roi, 1);
        const Zel8u* s = &src.at(4, 4);
        const int srcLimit = row ? (roi.width + 1) * factor - 1 : roi.width;
        auto call = [&](const Zel8u* ps, int ss, Zel8u* pd, int ds, ZeliSize r, int n) {
            return [=] { return f(ps, ss, pd, ds, r, n); };
        };
        expectRejected({{"null source", zelStatusNullPtr, call(nullptr, srcLimit, dst.roi(), 5, roi, 0)},
                        {"null destination", zelStatusNullPtr, call(s, srcLimit, nullptr, 5, roi, 3)},
                        {"roi 0", zelStatusBadSize, call(s, srcLimit, dst.roi(), 5, {0, 4}, 0)},
                        {"factor 0", zelStatusBadUpDownFactor, call(s, 0, dst.roi(), 5, roi, 0)},
                        {"factor 257", zelStatusBadUpDownFactor, call(s, srcLimit, dst.roi(), 5, roi, 257)},
                        {"source step short", zelStatusBadStep, call(s, srcLimit - 1, dst.roi(), 5, roi, 3)},
                        {"destination step short", zelStatusBadStep, call(s, srcLimit, dst.roi(), 4, roi, 3)}},
                       dst);
        EXPECT_EQ(f(s, srcLimit, dst.roi(), 5, roi, factor), zelStatusOk);
    }
}

}  // namespace
}  // namespace zel::test
