// Division kernels and the row loop that drives them.
//
// The 8u, 16u and 16s kernels divide in floating point and still give the
// exact rounded quotient. With P = |dividend| * 2^max(-s,0) and
// Q = |divisor| * 2^max(s,0) (both exact after the scale factor has been
// moved into its band, see bandScale), a non-integer P/Q lies at least 1/Q
// away from every integer, while the rounding error of the quotient is at
// most (P/Q) * 2^-p for a p-bit mantissa. That is below 1/Q whenever
// P < 2^p: true for 8u in single precision (P < 2^24) and for 16u/16s in
// double precision (P < 2^48). So truncating the floating-point quotient
// gives floor(P/Q) exactly, the remainder P - q*Q is exact, and comparing
// twice the remainder with Q decides the rounding as the integer rule does.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/div_engine.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "arith/div_rounding.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Elements [begin, begin + count) of one row; with `Alpha` every fourth
// element (AC4 alpha) is neither read for the warning nor written.
template <class T, bool Alpha>
std::int64_t DivideIntRow(const T* divisor, const T* dividend, T* dst, int begin,
                          int count, int mode, int scale) {
    using F = std::conditional_t<sizeof(T) == 1, float, double>;
    const hn::ScalableTag<F> df;
    const hn::Rebind<std::int32_t, decltype(df)> di;
    const hn::Rebind<T, decltype(df)> dt;
    const int lanes = static_cast<int>(hn::Lanes(df));
    const auto toF = [&](auto v) {
        if constexpr (sizeof(T) == 1) return hn::ConvertTo(df, v);
        else return hn::PromoteTo(df, v);
    };
    const auto toInt = [&](auto v) {  // truncates; inputs are below 2^31
        if constexpr (sizeof(T) == 1) return hn::ConvertTo(di, v);
        else return hn::DemoteTo(di, v);
    };
    const auto zeroF = hn::Zero(df);
    const auto one = hn::Set(df, F(1));
    const auto numScale = hn::Set(df, F(std::ldexp(1.0, std::max(-scale, 0))));
    const auto denScale = hn::Set(df, F(std::ldexp(1.0, std::max(scale, 0))));
    const auto lo = hn::Set(df, F(div::kLowest<T>));
    const auto hi = hn::Set(df, F(div::kHighest<T>));
    const auto cap = hn::Set(df, F(1 << 20));  // beyond every saturation limit
    // Increment for 2r > Q, and for 2r == Q the parts that depend on q's parity and not.
    const auto aboveHalf = hn::Set(df, F(mode == div::kTowardZero ? 0 : 1));
    const auto tieIfOdd = hn::Set(df, F(mode == div::kNearestEven ? 1 : 0));
    const auto tieAlways = hn::Set(df, F(mode == div::kHalfAway ? 1 : 0));

    std::int64_t zeros = 0;
    int i = begin;
    const int end = begin + count;
    for (; i + lanes <= end; i += lanes) {
        const auto ai = hn::PromoteTo(di, hn::LoadU(dt, divisor + i));
        const auto a = toF(ai);
        const auto b = toF(hn::PromoteTo(di, hn::LoadU(dt, dividend + i)));
        const auto zero = hn::Eq(a, zeroF);
        const auto Q = hn::IfThenElse(zero, one, hn::Mul(hn::Abs(a), denScale));
        const auto P = hn::Mul(hn::Abs(b), numScale);
        const auto qi = toInt(hn::Min(hn::Div(P, Q), cap));
        const auto q = toF(qi);
        const auto twoR = hn::Mul(hn::Sub(P, hn::Mul(q, Q)), hn::Set(df, F(2)));
        const auto odd = toF(hn::And(qi, hn::Set(di, 1)));
        const auto tie = hn::Add(hn::Mul(odd, tieIfOdd), tieAlways);
        const auto rounded =
            hn::Add(q, hn::IfThenElse(hn::Gt(twoR, Q), aboveHalf, hn::IfThenElseZero(hn::Eq(twoR, Q), tie)));
        auto v = rounded;
        if constexpr (std::is_signed_v<T>) v = hn::IfThenElse(hn::Lt(hn::Mul(a, b), zeroF), hn::Neg(v), v);
        v = hn::Min(hn::Max(v, lo), hi);
        const auto zeroDivisorValue =
            hn::IfThenElse(hn::Gt(b, zeroF), hi, hn::IfThenElseZero(hn::Lt(b, zeroF), lo));
        const auto out = hn::DemoteTo(dt, toInt(hn::IfThenElse(zero, zeroDivisorValue, v)));
        if constexpr (Alpha) {
            const int phase = i & 3;
            const auto keepT = hn::Ne(hn::And(hn::Iota(dt, phase), hn::Set(dt, T(3))), hn::Set(dt, T(3)));
            const auto keepI = hn::Ne(hn::And(hn::Iota(di, phase), hn::Set(di, 3)), hn::Set(di, 3));
            hn::BlendedStore(out, keepT, dt, dst + i);
            zeros += hn::CountTrue(di, hn::And(hn::Eq(ai, hn::Zero(di)), keepI));
        } else {
            hn::StoreU(out, dt, dst + i);
            zeros += hn::CountTrue(df, zero);
        }
    }
    for (; i < end; ++i)
        if (!Alpha || (i & 3) != 3) dst[i] = div::divideReal(divisor[i], dividend[i], scale, mode, zeros);
    return zeros;
}

// IEEE single-precision division; zero divisors (either sign) are counted.
template <bool Alpha>
std::int64_t DivideFloatRow(const float* divisor, const float* dividend, float* dst,
                            int begin, int count, int /*mode*/, int /*scale*/) {
    const hn::ScalableTag<float> df;
    const hn::RebindToSigned<decltype(df)> di;
    const int lanes = static_cast<int>(hn::Lanes(df));
    // Lanes are a multiple of 4, so the alpha lanes sit at the same place in every vector.
    const auto keep = hn::RebindMask(df, hn::Ne(hn::And(hn::Iota(di, begin & 3), hn::Set(di, 3)), hn::Set(di, 3)));
    std::int64_t zeros = 0;
    int i = begin;
    const int end = begin + count;
    for (; i + lanes <= end; i += lanes) {
        const auto a = hn::LoadU(df, divisor + i);
        const auto q = hn::Div(hn::LoadU(df, dividend + i), a);
        const auto zero = hn::Eq(a, hn::Zero(df));
        if constexpr (Alpha) {
            hn::BlendedStore(q, keep, df, dst + i);
            zeros += hn::CountTrue(df, hn::And(zero, keep));
        } else {
            hn::StoreU(q, df, dst + i);
            zeros += hn::CountTrue(df, zero);
        }
    }
    for (; i < end; ++i)
        if (!Alpha || (i & 3) != 3) {
            zeros += divisor[i] == 0.0f;
            dst[i] = dividend[i] / divisor[i];
        }
    return zeros;
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "arith/div_engine.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/simd.h"

namespace zel::div {
namespace {

// Complex rows stay scalar: their 128-bit intermediates have no vector form.
template <class T, bool Alpha>
std::int64_t divideComplexRow(const T* divisor, const T* dividend, T* dst, int begin, int count,
                              int mode, int scale) {
    std::int64_t warnings = 0;
    for (int i = begin; i < begin + count; ++i) {
        if (Alpha && (i & 3) == 3) continue;
        if constexpr (std::is_same_v<T, Zel32fc>) dst[i] = divideComplex(divisor[i], dividend[i], warnings);
        else dst[i] = divideComplex(divisor[i], dividend[i], scale, mode, warnings);
    }
    return warnings;
}

// Rows at least this long (in elements) are split between two threads: a
// division costs more per element than the fork, the more so for complex
// elements. 16u and 32fc follow their closest relatives (16s, 16sc).
template <class T>
constexpr int kSplitThreshold = std::is_same_v<T, Zel32f> ? 4096
                                : std::is_same_v<T, Zel16sc> || std::is_same_v<T, Zel32sc> ? 256
                                                                                            : 1024;

template <class T, bool Alpha>
auto rowKernel() {
    if constexpr (std::is_same_v<T, Zel32f>) return ZEL_DISPATCH(DivideFloatRow<Alpha>);
    else if constexpr (std::is_integral_v<T>) return ZEL_DISPATCH(DivideIntRow<T, Alpha>);
    else return &divideComplexRow<T, Alpha>;
}

}  // namespace

template <class T, Layout L>
std::int64_t divideImage(const T* divisor, int divisorStep, const T* dividend, int dividendStep,
                         T* dst, int dstStep, ZeliSize roi, int mode, int scale) {
    constexpr int C = kChannels<L>;
    ZeliSize work = collapseRows(roi, std::int64_t{roi.width} * C * sizeof(T),
                                 {divisorStep, dividendStep, dstStep});
    if (std::int64_t{work.width} * C > INT32_MAX) work = roi;
    const int length = work.width * C;
    const auto row = rowKernel<T, L == Layout::AC4>();
    const int s = bandScale<T>(scale);
    std::int64_t warnings = 0;
    for (int y = 0; y < work.height; ++y) {
        const T* a = rowAt(divisor, divisorStep, y);
        const T* b = rowAt(dividend, dividendStep, y);
        T* out = rowAt(dst, dstStep, y);
        warnings += splitVector(length, kSplitThreshold<T>,
                                [&](int begin, int count) { return row(a, b, out, begin, count, mode, s); });
    }
    return warnings;
}

#define ZEL_DIVIDE_IMAGE(T, L)                                                                  \
    template std::int64_t divideImage<T, Layout::L>(const T*, int, const T*, int, T*, int, ZeliSize, \
                                                    int, int);
#define ZEL_DIVIDE_IMAGE_3(T) ZEL_DIVIDE_IMAGE(T, C1) ZEL_DIVIDE_IMAGE(T, C3) ZEL_DIVIDE_IMAGE(T, AC4)
#define ZEL_DIVIDE_IMAGE_4(T) ZEL_DIVIDE_IMAGE_3(T) ZEL_DIVIDE_IMAGE(T, C4)

ZEL_DIVIDE_IMAGE_4(Zel8u)
ZEL_DIVIDE_IMAGE_4(Zel16u)
ZEL_DIVIDE_IMAGE_4(Zel16s)
ZEL_DIVIDE_IMAGE_4(Zel32f)
ZEL_DIVIDE_IMAGE_3(Zel16sc)
ZEL_DIVIDE_IMAGE_3(Zel32sc)
ZEL_DIVIDE_IMAGE_3(Zel32fc)

}  // namespace zel::div

#endif  // HWY_ONCE
