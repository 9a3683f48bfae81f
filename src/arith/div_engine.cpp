// Division kernels and the row loop that drives them.
//
// The 8u, 16u and 16s kernels divide in floating point and still give the
// exact rounded quotient. With P = dividend * 2^max(-s,0) and
// Q = divisor * 2^max(s,0) (integers; the scale factor has been moved into
// its band, see bandScale), x = fl(P / Q) is correctly rounded. An exact
// quotient that is not an integer lies at least 1/Q away from every
// integer, one that is not a half-integer at least 1/(2Q) away from every
// half-integer, while x is off by at most |P/Q| * 2^-p for a p-bit
// significand: less than 1/(2Q) whenever |P| < 2^(p-1). Integers and
// half-integers are themselves exact in x. So x lies on the same side of
// every integer and half-integer as the exact quotient, and rounding x
// rounds the exact quotient, ties included. 8u uses single precision
// (|P| <= 255 * 2^15 < 2^23; at s = -16 every non-zero result saturates
// anyway), 16u and 16s double precision (|P| < 2^48).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/div_engine.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include <hwy/cache_control.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "arith/div_rounding.h"
#include "core/image.h"
#include "core/store_under_mask-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// `count` elements of each of `rows` rows (or of runs within them) from the
// given addresses, each row's first element a pixel's first channel; the
// steps, in bytes, lead from one row to the next (a step of 0 reuses the
// row). With `Alpha` every fourth element (AC4 alpha) is neither read for
// the warning nor written. Row tails run as one partial vector that reads
// and writes nothing past the row.
template <class T, bool Alpha>
std::int64_t DivideIntRows(const T* divisor, std::ptrdiff_t divisorStep, const T* dividend,
                           std::ptrdiff_t dividendStep, T* dst, std::ptrdiff_t dstStep, std::ptrdiff_t count,
                           std::ptrdiff_t rows, int mode, int scale, bool /*stream*/) {
    using F = std::conditional_t<sizeof(T) == 1, float, double>;
    using U = std::make_unsigned_t<T>;
    const hn::ScalableTag<F> df;
    const hn::RebindToUnsigned<decltype(df)> du;
    const hn::RebindToSigned<decltype(df)> ds;
    const hn::Rebind<std::int32_t, decltype(df)> di;
    const hn::Rebind<T, decltype(df)> dt;
    const hn::Rebind<U, decltype(df)> dtu;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(df));
    const auto widen = [&](hn::VFromD<decltype(dt)> v) {
        if constexpr (sizeof(T) == 1)
            return hn::ConvertTo(df, hn::PromoteTo(di, v));
        else
            return hn::PromoteTo(df, hn::PromoteTo(di, v));
    };
    // Adding 1.5 * 2^(p-1) to an integral value in T's range puts it, in
    // two's complement, into the low bits of the significand.
    const auto magic = hn::Set(df, F(std::ldexp(1.5, std::numeric_limits<F>::digits - 1)));
    const auto toT = [&](auto integral) {
        return hn::BitCast(dt, hn::TruncateTo(dtu, hn::BitCast(du, hn::Add(integral, magic))));
    };
    // x = dividend / (divisor * 2^s) is the quotient (dividend * 2^-s) / divisor
    // exactly rounded. A zero divisor becomes a tiny one: the quotient then
    // saturates to the sign of the dividend, and 0 / tiny stays 0.
    const auto divisorScale = hn::Set(df, F(std::ldexp(1.0, scale)));
    const auto tiny = hn::Set(df, F(std::ldexp(1.0, -40)));
    const auto lo = hn::Set(df, F(div::kLowest<T>));
    const auto hi = hn::Set(df, F(div::kHighest<T>));
    const auto half = hn::Set(df, F(0.5));
    // Increments of the truncated magnitude above one half, and at exactly
    // one half for an odd and for any truncated value.
    const auto aboveHalf = hn::Set(df, F(mode == div::kTowardZero ? 0 : 1));
    const auto tieIfOdd = hn::Set(df, F(mode == div::kNearestEven ? 1 : 0));
    const auto tieAlways = hn::Set(df, F(mode == div::kHalfAway ? 1 : 0));

    // The rounded quotients of one vector of elements.
    const auto quotients = [&](hn::VFromD<decltype(df)> a, hn::VFromD<decltype(df)> b, hn::MFromD<decltype(df)> zero) {
        const auto scaled = scale == 0 ? a : hn::Mul(a, divisorScale);
        auto x = hn::Div(b, hn::IfThenElse(zero, tiny, scaled));
        x = hn::Min(x, hi);
        if constexpr (std::is_signed_v<T>) x = hn::Max(x, lo);
        if (mode == div::kNearestEven) return toT(hn::Round(x));
        const auto t = hn::Trunc(x);
        const auto frac = hn::Abs(hn::Sub(x, t));
        const auto odd = hn::Ne(hn::Trunc(hn::Mul(t, half)), hn::Mul(t, half));
        const auto tie = hn::IfThenElse(odd, hn::Add(tieIfOdd, tieAlways), tieAlways);
        const auto up = hn::IfThenElse(hn::Gt(frac, half), aboveHalf, hn::IfThenElseZero(hn::Eq(frac, half), tie));
        return toT(hn::Add(t, hn::CopySign(up, x)));
    };
    // The lanes of a vector starting at element i that belong to the result
    // (vectors of two doubles start at either half of a pixel).
    const auto colourT = [&](std::ptrdiff_t i) {
        return hn::Ne(hn::And(hn::Iota(dtu, static_cast<int>(i & 3)), hn::Set(dtu, 3)), hn::Set(dtu, 3));
    };
    const auto colourF = [&](std::ptrdiff_t i) {
        return hn::RebindMask(df, hn::Ne(hn::And(hn::Iota(du, static_cast<int>(i & 3)), hn::Set(du, 3)),
                                         hn::Set(du, 3)));
    };

    std::int64_t zeros = 0;
    auto zeroLanes = hn::Zero(ds);  // zero divisors per lane (a true mask is -1)
    const auto countZeros = [&](hn::MFromD<decltype(df)> zero) {
        zeroLanes = hn::Sub(zeroLanes, hn::VecFromMask(ds, hn::RebindMask(ds, zero)));
    };
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* a = byteOffset(divisor, divisorStep * y);
        const T* b = byteOffset(dividend, dividendStep * y);
        T* out = byteOffset(dst, dstStep * y);
        std::ptrdiff_t i = 0;
        for (; count - i >= lanes; i += lanes) {
            const auto va = widen(hn::LoadU(dt, a + i));
            auto zero = hn::Eq(va, hn::Zero(df));
            const auto q = quotients(va, widen(hn::LoadU(dt, b + i)), zero);
            if constexpr (Alpha) {
                StoreUnderMask(hn::BitCast(dtu, q), colourT(i), dtu, reinterpret_cast<U*>(out + i));
                zero = hn::And(zero, colourF(i));
            } else {
                hn::StoreU(q, dt, out + i);
            }
            countZeros(zero);
        }
        if (i < count) {
            const auto rest = static_cast<std::size_t>(count - i);
            const auto va = widen(LoadFirst(dt, a + i, rest));
            auto zero = hn::And(hn::Eq(va, hn::Zero(df)), hn::FirstN(df, rest));
            const auto q = quotients(va, widen(LoadFirst(dt, b + i, rest)), zero);
            auto written = hn::FirstN(dtu, rest);
            if constexpr (Alpha) {
                written = hn::And(written, colourT(i));
                zero = hn::And(zero, colourF(i));
            }
            StoreUnderMask(hn::BitCast(dtu, q), written, dtu, reinterpret_cast<U*>(out + i));
            countZeros(zero);
        }
        // Per row, so that no lane's count can overflow.
        zeros += hn::GetLane(hn::SumOfLanes(ds, zeroLanes));
        zeroLanes = hn::Zero(ds);
    }
    return zeros;
}

// IEEE single-precision division; zero divisors (either sign) are counted.
// One row of the contract of DivideIntRows. With `stream` (large images)
// the stores bypass the caches once the destination is vector-aligned.
template <bool Alpha>
HWY_INLINE std::int64_t DivideFloatRow(const float* divisor, const float* dividend, float* dst,
                                       std::ptrdiff_t count, bool stream) {
    const hn::ScalableTag<float> df;
    const hn::RebindToSigned<decltype(df)> di;
    const hn::RebindToUnsigned<decltype(df)> du;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(df));
    std::int64_t zeros = 0;
    const auto one = [&](std::ptrdiff_t i) {
        if (Alpha && (i & 3) == 3) return;
        zeros += divisor[i] == 0.0f;
        dst[i] = dividend[i] / divisor[i];
    };
    std::ptrdiff_t i = 0;
    const auto misaligned = [&] {
        return reinterpret_cast<std::uintptr_t>(dst + i) % (lanes * sizeof(float)) != 0;
    };
    stream = stream && !Alpha;
    if (stream) {
        while (i < count && i < lanes && misaligned()) one(i++);
        stream = !misaligned();
    }
    // Lanes are a multiple of 4, so the alpha lanes sit at the same place in
    // every vector (the head above runs only without alpha).
    const auto keep = hn::Ne(hn::And(hn::Iota(du, 0), hn::Set(du, 3)), hn::Set(du, 3));
    auto zeroLanes = hn::Zero(di);  // zero divisors per lane (a true mask is -1)
    for (; count - i >= lanes; i += lanes) {
        const auto a = hn::LoadU(df, divisor + i);
        const auto q = hn::Div(hn::LoadU(df, dividend + i), a);
        auto zero = hn::Eq(a, hn::Zero(df));
        if constexpr (Alpha) {
            StoreUnderMask(hn::BitCast(du, q), keep, du, reinterpret_cast<std::uint32_t*>(dst + i));
            zero = hn::And(zero, hn::RebindMask(df, keep));
        } else if (stream) {
            hn::Stream(q, df, dst + i);
        } else {
            hn::StoreU(q, df, dst + i);
        }
        zeroLanes = hn::Sub(zeroLanes, hn::VecFromMask(di, hn::RebindMask(di, zero)));
    }
    if (stream) hwy::FlushStream();
    zeros += hn::GetLane(hn::SumOfLanes(di, zeroLanes));
    for (; i < count; ++i) one(i);
    return zeros;
}

template <bool Alpha>
std::int64_t DivideFloatRows(const float* divisor, std::ptrdiff_t divisorStep, const float* dividend,
                             std::ptrdiff_t dividendStep, float* dst, std::ptrdiff_t dstStep, std::ptrdiff_t count,
                             std::ptrdiff_t rows, int /*mode*/, int /*scale*/, bool stream) {
    std::int64_t zeros = 0;
    for (std::ptrdiff_t y = 0; y < rows; ++y)
        zeros += DivideFloatRow<Alpha>(byteOffset(divisor, divisorStep * y), byteOffset(dividend, dividendStep * y),
                                       byteOffset(dst, dstStep * y), count, stream);
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
#include "core/streaming.h"

namespace zel::div {
namespace {

// Complex rows stay scalar: their 128-bit intermediates have no vector form.
template <class T, bool Alpha>
std::int64_t divideComplexRows(const T* divisor, std::ptrdiff_t divisorStep, const T* dividend,
                               std::ptrdiff_t dividendStep, T* dst, std::ptrdiff_t dstStep, std::ptrdiff_t count,
                               std::ptrdiff_t rows, int mode, int scale, bool /*stream*/) {
    std::int64_t warnings = 0;
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* a = byteOffset(divisor, divisorStep * y);
        const T* b = byteOffset(dividend, dividendStep * y);
        T* out = byteOffset(dst, dstStep * y);
        for (std::ptrdiff_t i = 0; i < count; ++i) {
            if (Alpha && (i & 3) == 3) continue;
            if constexpr (std::is_same_v<T, Zel32fc>)
                out[i] = divideComplex(a[i], b[i], warnings);
            else
                out[i] = divideComplex(a[i], b[i], scale, mode, warnings);
        }
    }
    return warnings;
}

template <class T, bool Alpha>
auto rowKernel() {
    if constexpr (std::is_same_v<T, Zel32f>)
        return ZEL_DISPATCH(DivideFloatRows<Alpha>);
    else if constexpr (std::is_integral_v<T>)
        return ZEL_DISPATCH(DivideIntRows<T, Alpha>);
    else
        return &divideComplexRows<T, Alpha>;
}

// Weight of the work per byte for the fork rule (parallel.h).
template <class T>
constexpr int forkCost() {
    if constexpr (std::is_same_v<T, Zel32f>) return kCostWiden;  // IEEE division, near memory speed
    if constexpr (std::is_same_v<T, Zel32fc>) return kCostComplexDivide;
    if constexpr (!kDividesInFloat<T>) return kCostExactDivide;  // 16sc, 32sc
    return kCostDivide;
}

// Pieces of a long row start on multiples of this many elements: whole
// pixels of every layout, AC4 alpha at the same place in each piece.
constexpr std::ptrdiff_t kGrain = 64;

}  // namespace

template <class T, Layout L>
std::int64_t divideImage(Divisor<T> divisor, const T* dividend, int dividendStep, T* dst, int dstStep,
                         ZeliSize roi, int mode, int scale) {
    constexpr int C = kChannels<L>;
    constexpr bool kAlpha = L == Layout::AC4;
    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    const Rows work = divisor.pattern ? collapseRows(roi, rowBytes, {dividendStep, dstStep})
                                      : collapseRows(roi, rowBytes, {divisor.step, dividendStep, dstStep});
    const std::ptrdiff_t length = work.width * C;
    const auto row = rowKernel<T, kAlpha>();
    const int s = bandScale<T>(scale);
    const std::int64_t imageBytes = rowBytes * roi.height;
    const bool stream = imageBytes > kStreamStoreBytes;
    const int team = teamSize(imageBytes * (divisor.pattern ? 2 : 3), forkCost<T>(),
                              pieceCount(work.height, length, kGrain));
    std::atomic<std::int64_t> warnings{0};
    forEachBlock(work.height, length, kGrain, team, [&](const Block& block) {
        // The last alpha element of a row is not read: a page the caller
        // may not read can follow it.
        const std::ptrdiff_t begin = block.begin;
        const std::ptrdiff_t end = kAlpha && block.end == length ? block.end - 1 : block.end;
        const std::ptrdiff_t rows = block.y1 - block.y0;
        const T* b = rowAt(dividend, dividendStep, block.y0) + begin;
        T* out = rowAt(dst, dstStep, block.y0) + begin;
        std::int64_t met = 0;
        if (!divisor.pattern) {
            const T* a = rowAt(divisor.base, divisor.step, block.y0) + begin;
            met = row(a, divisor.step, b, dividendStep, out, dstStep, end - begin, rows, mode, s, stream);
        } else if (begin % kDivisorPattern + (end - begin) <= kDivisorPattern) {
            // Rows within one period of the pattern: every row reuses it.
            met = row(divisor.base + begin % kDivisorPattern, 0, b, dividendStep, out, dstStep, end - begin, rows,
                      mode, s, stream);
        } else {
            // Longer rows in runs that end at the pattern's end; each starts
            // on a pixel.
            for (std::ptrdiff_t y = 0; y < rows; ++y)
                for (std::ptrdiff_t x = begin; x < end;) {
                    const std::ptrdiff_t at = x % kDivisorPattern;
                    const std::ptrdiff_t run = std::min(end - x, kDivisorPattern - at);
                    met += row(divisor.base + at, 0, rowAt(b, dividendStep, y) + (x - begin), 0,
                               rowAt(out, dstStep, y) + (x - begin), 0, run, 1, mode, s, stream);
                    x += run;
                }
        }
        if (met != 0) warnings += met;
    });
    return warnings.load();
}

#define ZEL_DIVIDE_IMAGE(T, L)                                                                       \
    template std::int64_t divideImage<T, Layout::L>(Divisor<T>, const T*, int, T*, int, ZeliSize, int, int);
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
