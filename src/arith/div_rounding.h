// The division rule, one element at a time.
//
// An integer quotient is the exact rational dividend / divisor, multiplied
// by 2^-s (s the scale factor), rounded once by the rounding mode and then
// saturated to the destination type. Rounding works on the magnitude, so
// all three modes are symmetric around zero. A zero divisor gives the
// saturated value of the dividend's sign (0 for 0 / 0).
//
// These functions are the reference the vector kernels must equal bit for
// bit, and they compute the elements the vector kernels leave over.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "zeli.h"

namespace zel::div {

// The values of ZelRoundingMode; Div and DivC always round to nearest even.
enum Rounding : int { kTowardZero = 0, kNearestEven = 1, kHalfAway = 2 };

inline bool validRounding(int mode) { return mode >= kTowardZero && mode <= kHalfAway; }

using u128 = unsigned __int128;
using i128 = __int128;

// No quotient of the supported types exceeds 2^33 in magnitude before
// scaling; anything at or above this bound saturates every destination.
constexpr std::uint64_t kSaturatedMagnitude = std::uint64_t{1} << 40;

// round(num * 2^-s / den) by `mode` for num >= 0, den > 0, capped at
// kSaturatedMagnitude. Exact for every s: a right scale divides the
// denominator, a left scale is applied 63 bits at a time to the remainder
// so nothing overflows.
inline std::uint64_t scaledQuotient(std::uint64_t num, std::uint64_t den, int s, int mode) {
    if (num == 0) return 0;
    u128 q, r, d;
    if (s >= 0) {
        // num / den < 2^34, so from s = 40 on every quotient is below 1/2.
        d = u128{den} << std::min(s, 40);
        q = num / d;
        r = num % d;
    } else {
        d = den;
        q = num / den;
        r = num % den;
        // s may be INT_MIN: cap before negating.
        for (int left = s <= -128 ? 128 : -s; left > 0 && q < kSaturatedMagnitude;) {
            const int k = std::min(left, 63);  // r < 2^64, so r << 63 fits
            q = (q << k) + ((r << k) / d);
            r = (r << k) % d;
            left -= k;
        }
        if (q >= kSaturatedMagnitude) return kSaturatedMagnitude;
    }
    bool up = false;
    if (mode == kNearestEven) up = 2 * r > d || (2 * r == d && (q & 1) != 0);
    if (mode == kHalfAway) up = 2 * r >= d;
    return static_cast<std::uint64_t>(std::min<u128>(q + up, kSaturatedMagnitude));
}

template <class T>
constexpr std::int64_t kLowest = std::numeric_limits<T>::lowest();
template <class T>
constexpr std::int64_t kHighest = std::numeric_limits<T>::max();

template <class T>
inline T saturate(std::int64_t v) {
    return static_cast<T>(std::clamp(v, kLowest<T>, kHighest<T>));
}

// The result for a zero divisor: the saturated sign of the dividend.
template <class T>
inline T saturatedSign(std::int64_t v) {
    return v > 0 ? static_cast<T>(kHighest<T>) : v < 0 ? static_cast<T>(kLowest<T>) : T(0);
}

template <class T>
inline T signedResult(bool negative, std::uint64_t magnitude) {
    const std::int64_t m = static_cast<std::int64_t>(magnitude);
    return saturate<T>(negative ? -m : m);
}

template <class V>
inline std::uint64_t magnitude(V v) {
    return v < 0 ? std::uint64_t(0) - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
}

// Scale factors beyond the bands where results still vary are moved to the
// band edge, which gives the constant result of the whole band: for 8u,
// s > 8 rounds every quotient of a non-zero divisor to 0 and s < -15
// saturates every non-zero dividend; 16u has the same bands at s >= 17 and
// s < -31, 16s at s > 15 and s < -30. At s = 16 the one 16s quotient not
// below 1/2, -32768 / 1, is exactly -1/2, which the band writes as 0 in
// every rounding mode, so 16s moves s > 15 to 17 where that holds anyway.
// The vector kernels rely on these limits to stay exact.
template <class T>
inline int bandScale(int s) {
    if constexpr (std::is_same_v<T, Zel8u>) return std::clamp(s, -16, 9);
    if constexpr (std::is_same_v<T, Zel16u>) return std::clamp(s, -32, 17);
    if constexpr (std::is_same_v<T, Zel16s>) return s > 15 ? 17 : std::max(s, -31);
    // 16sc keeps its band limits (s > 32, s < -32) visible; 32sc quotients
    // are constant long before these limits.
    if constexpr (std::is_same_v<T, Zel16sc>) return std::clamp(s, -33, 33);
    return std::clamp(s, -128, 64);
}

// dividend / divisor for 8u, 16u, 16s; `zeros` counts zero divisors.
template <class T>
inline T divideReal(T divisor, T dividend, int s, int mode, std::int64_t& zeros) {
    if (divisor == 0) {
        ++zeros;
        return saturatedSign<T>(dividend);
    }
    const bool negative = (divisor < 0) != (dividend < 0);
    return signedResult<T>(negative, scaledQuotient(magnitude(dividend), magnitude(divisor), s, mode));
}

// b / a for complex integers: (b * conj(a)) / |a|^2, every intermediate
// exact in 128 bits, each part rounded and saturated on its own. The 16sc
// members keep two bands of their own: above s = 32 every part is 0 and
// the warning is raised by an element whose divisor real part and dividend
// imaginary part are both 0 (this pairing of operands is intended); below
// s = -32 each part is the saturated sign of its numerator, and 0 with a
// warning for a zero divisor.
template <class C>
inline C divideComplex(C a, C b, int s, int mode, std::int64_t& warnings) {
    using P = decltype(a.re);
    constexpr bool k16sc = std::is_same_v<C, Zel16sc>;
    if (k16sc && s > 32) {
        warnings += a.re == 0 && b.im == 0;
        return C{0, 0};
    }
    const std::uint64_t den = magnitude(std::int64_t{a.re} * a.re) + magnitude(std::int64_t{a.im} * a.im);
    if (den == 0) {
        ++warnings;
        if (k16sc && s < -32) return C{0, 0};
        return C{saturatedSign<P>(b.re), saturatedSign<P>(b.im)};
    }
    const i128 re = i128{a.re} * b.re + i128{a.im} * b.im;
    const i128 im = i128{a.re} * b.im - i128{b.re} * a.im;
    if (k16sc && s < -32)
        return C{saturatedSign<P>(re > 0   ? 1
                                  : re < 0 ? -1
                                           : 0),
                 saturatedSign<P>(im > 0   ? 1
                                  : im < 0 ? -1
                                           : 0)};
    const auto part = [&](i128 n) {
        const std::uint64_t m = static_cast<std::uint64_t>(n < 0 ? -n : n);  // |n| <= 2^63
        return signedResult<P>(n < 0, scaledQuotient(m, den, s, mode));
    };
    return C{part(re), part(im)};
}

// Single precision: b * conj(a) / |a|^2 as written, so a zero divisor gives
// NaN parts (0 / 0) and is reported.
inline Zel32fc divideComplex(Zel32fc a, Zel32fc b, std::int64_t& zeros) {
    zeros += a.re == 0.0f && a.im == 0.0f;
    const float den = a.re * a.re + a.im * a.im;
    return Zel32fc{(a.re * b.re + a.im * b.im) / den, (a.re * b.im - b.re * a.im) / den};
}

}  // namespace zel::div
