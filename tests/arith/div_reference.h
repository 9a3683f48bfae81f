// The division rule written out plainly for the tests: exact 128-bit
// quotients rounded by mode, saturated, and the scale-factor bands as the
// documented table states them. Deliberately simple rather than fast.
#pragma once

#include <cstdint>
#include <limits>
#include <random>
#include <type_traits>

#include "zeli.h"

namespace divref {

using i128 = __int128;

template <class T>
constexpr bool kComplex = std::is_class_v<T>;
template <class T>
auto partOf() {
    if constexpr (kComplex<T>)
        return T{}.re;
    else
        return T{};
}
template <class T>
using Part = decltype(partOf<T>());

// num / den (den > 0) rounded: 0 toward zero, 1 nearest even, 2 half away.
inline i128 roundDiv(i128 num, i128 den, int mode) {
    i128 q = num / den;
    const i128 r = num % den;
    const i128 twice = 2 * (r < 0 ? -r : r);
    const bool up = mode != 0 && (twice > den || (twice == den && (mode == 2 || q % 2 != 0)));
    return up ? q + (num < 0 ? -1 : 1) : q;
}

// num * 2^-s / den for den != 0.
inline i128 scaled(i128 num, i128 den, int s, int mode) {
    if (den < 0) num = -num, den = -den;
    return s >= 0 ? roundDiv(num, den << s, mode) : roundDiv(num * (i128{1} << -s), den, mode);
}

template <class P>
P sat(i128 v) {
    const i128 lo = std::numeric_limits<P>::lowest(), hi = std::numeric_limits<P>::max();
    return static_cast<P>(v < lo ? lo : v > hi ? hi : v);
}
template <class P>
P satSign(i128 v) {
    return sat<P>(v > 0 ? std::numeric_limits<i128>::max() : v < 0 ? std::numeric_limits<i128>::min() : 0);
}

// b / a for 8u, 16u, 16s with the shortcut bands: above `upper` a non-zero
// divisor gives 0; below `lower` the result is the saturated sign of
// sign(b) * sign(a), a zero divisor counting as positive.
template <class T>
T real(T a, T b, int s, int mode) {
    const int upper = std::is_same_v<T, Zel8u> ? 8 : std::is_same_v<T, Zel16u> ? 16 : 15;
    const int lower = std::is_same_v<T, Zel8u> ? -15 : std::is_same_v<T, Zel16u> ? -31 : -30;
    if (a == 0 && s >= lower) return satSign<T>(b);
    if (s > upper) return 0;
    if (s < lower) return satSign<T>(i128{b} * (a < 0 ? -1 : 1));
    return sat<T>(scaled(b, a, s, mode));
}

// b / a for 16sc and 32sc: (b * conj(a)) / |a|^2 per part; the 16sc bands.
template <class C>
C complex(C a, C b, int s, int mode) {
    using P = Part<C>;
    const bool is16 = std::is_same_v<C, Zel16sc>;
    const i128 re = i128{a.re} * b.re + i128{a.im} * b.im, im = i128{a.re} * b.im - i128{b.re} * a.im;
    const i128 den = i128{a.re} * a.re + i128{a.im} * a.im;
    if (is16 && s > 32) return C{0, 0};
    if (is16 && s < -32) return den == 0 ? C{0, 0} : C{satSign<P>(re), satSign<P>(im)};
    if (den == 0) return C{satSign<P>(b.re), satSign<P>(b.im)};
    return C{sat<P>(scaled(re, den, s, mode)), sat<P>(scaled(im, den, s, mode))};
}

inline Zel32f floating(Zel32f a, Zel32f b, int, int) { return b / a; }
inline Zel32fc floating(Zel32fc a, Zel32fc b, int, int) {
    const float den = a.re * a.re + a.im * a.im;
    return Zel32fc{(a.re * b.re + a.im * b.im) / den, (a.re * b.im - b.re * a.im) / den};
}

template <class T>
T quotient(T a, T b, int s, int mode) {
    if constexpr (std::is_same_v<T, Zel32f> || std::is_same_v<T, Zel32fc>)
        return floating(a, b, s, mode);
    else if constexpr (kComplex<T>)
        return complex(a, b, s, mode);
    else
        return real(a, b, s, mode);
}

// Whether the element raises the warning: a zero divisor, or for 16sc
// above s = 32 a zero divisor real part paired with a zero dividend
// imaginary part.
template <class T>
bool warns(T a, T b, int s) {
    if constexpr (std::is_same_v<T, Zel16sc>)
        if (s > 32) return a.re == 0 && b.im == 0;
    if constexpr (kComplex<T>)
        return a.re == 0 && a.im == 0;
    else
        return a == 0;
}

template <class T>
bool same(T x, T y) {
    if constexpr (kComplex<T>)
        return same(x.re, y.re) && same(x.im, y.im);
    else if constexpr (std::is_floating_point_v<T>)
        return x == y || (x != x && y != y);
    else
        return x == y;
}

// Test values: many zeros, the extremes and values next to them, small
// values, and values from the whole range.
template <class P>
P sample(std::mt19937& rng) {
    if constexpr (std::is_floating_point_v<P>) {
        switch (rng() % 8) {
            case 0:
                return rng() % 2 ? 0.0f : -0.0f;
            case 1:
                return std::uniform_real_distribution<P>(-1e-3f, 1e-3f)(rng);
            default:
                return std::uniform_real_distribution<P>(-1000, 1000)(rng);
        }
    } else {
        using L = std::numeric_limits<P>;
        switch (rng() % 10) {
            case 0:
            case 1:
                return 0;
            case 2:
                return L::lowest() + P(rng() % 2);
            case 3:
                return P(L::max() - P(rng() % 2));
            case 4:
                return P(int(rng() % 17) - (std::is_signed_v<P> ? 8 : 0));
            default:
                return P(std::uniform_int_distribution<std::int64_t>(L::lowest(), L::max())(rng));
        }
    }
}
template <class T>
T sampleElement(std::mt19937& rng) {
    if constexpr (kComplex<T>) {
        using P = Part<T>;
        const P re = sample<P>(rng);
        return T{re, sample<P>(rng)};
    } else {
        return sample<T>(rng);
    }
}

}  // namespace divref
