// The scale-factor rule of the integer arithmetic, and the facts about each
// operation that the rule needs.
//
// An integer result v (formed exactly, in a type wide enough) is multiplied
// by 2^-s: for s > 0 it is rounded to nearest with ties to even, for s < 0 it
// is shifted left; then it is saturated to the destination type. A call
// picks one band of s once and runs that band's kernel for every pixel:
//
//   Plain  s = 0            Pos    2 <= s < zeroFrom
//   One    s = 1            Neg    -boundShift < s < 0
//   Zero   s >= zeroFrom    Bound  s <= -boundShift (every non-zero value saturates)
//
// This header is plain C++ so that the scalar kernels, the SIMD kernels and
// the wrappers share one definition.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "zeli.h"

namespace zel::arith {

// The operations. Sub computes p - q, the wrapper puts the minuend first.
struct AddOp {};
struct SubOp {};
struct MulOp {};
struct MulScaleOp {};    // p * q as a fraction of the type's maximum
struct ComplexMulOp {};  // 16sc and 32fc products, computed on interleaved parts
// Bitwise operations and shifts (logic.cpp, shift.cpp): exact in the
// element's own lanes, and the same on every element type of one size.
struct AndOp {};
struct OrOp {};
struct XorOp {};
struct ShiftLeftOp {};       // by ScaleArgs::shift, one count for every element
struct ShiftRightOp {};      // logical on unsigned lanes, arithmetic on signed ones
struct ShiftLeftEachOp {};   // by the count in q's lane (see ShiftEach)
struct ShiftRightEachOp {};

template <class Op>
inline constexpr bool kBitwise =
    std::is_same_v<Op, AndOp> || std::is_same_v<Op, OrOp> || std::is_same_v<Op, XorOp> ||
    std::is_same_v<Op, ShiftLeftOp> || std::is_same_v<Op, ShiftRightOp> ||
    std::is_same_v<Op, ShiftLeftEachOp> || std::is_same_v<Op, ShiftRightEachOp>;

enum class Band { Plain, One, Pos, Neg, Bound, Zero };

// Element traits: complex pixels are pairs of their base type.
template <class T>
struct Element {
    using Base = T;
    static constexpr bool kComplex = false;
};
template <class B>
struct ComplexElement {
    using Base = B;
    static constexpr bool kComplex = true;
};
template <>
struct Element<Zel16sc> : ComplexElement<Zel16s> {};
template <>
struct Element<Zel32sc> : ComplexElement<Zel32s> {};
template <>
struct Element<Zel32fc> : ComplexElement<Zel32f> {};

template <class T>
using BaseOf = typename Element<T>::Base;
template <class T>
inline constexpr bool kIsComplex = Element<T>::kComplex;
template <class T>
inline constexpr bool kIsFloat = std::is_floating_point_v<BaseOf<T>>;

// Largest magnitude of an exact result that can still be non-zero after
// saturation (negative results of unsigned types become 0 anyway).
template <class Op, class T>
constexpr std::uint64_t maxMagnitude() {
    using B = std::conditional_t<kIsFloat<T>, Zel8u, BaseOf<T>>;  // floats are not scaled
    const std::uint64_t hi = std::uint64_t(std::numeric_limits<B>::max());
    const std::uint64_t lo = std::is_signed_v<B> ? hi + 1 : 0;  // |min|
    const std::uint64_t top = std::max(hi, lo);
    if constexpr (std::is_same_v<Op, MulOp>) {
        // A complex product adds two real products: |re|, |im| <= 2 top^2.
        return kIsComplex<T> ? 2 * top * top : top * top;
    } else if constexpr (std::is_same_v<Op, AddOp>) {
        return 2 * top;
    } else {  // SubOp: for unsigned types only the positive differences count
        return std::is_signed_v<B> ? hi + lo : hi;
    }
}

constexpr int ceilLog2(std::uint64_t x) {
    int bits = 0;
    while (bits < 64 && (std::uint64_t{1} << bits) < x) ++bits;
    return x > (std::uint64_t{1} << 63) ? 64 : bits;
}

// Smallest s for which every result rounds to 0: once 2^(s-1) >= |v| the
// quotient is at most one half, and a half rounds to the even 0.
template <class Op, class T>
inline constexpr int kZeroFrom = ceilLog2(maxMagnitude<Op, T>()) + 1;

// The left shift 2^-s of a scale factor s < 0, capped at `cap`; s may be
// INT_MIN, whose negation does not fit in an int.
constexpr int leftShiftOf(int s, int cap) { return s <= -cap ? cap : -s; }

// Left shifts from this count on saturate every non-zero result.
template <class Op, class T>
inline constexpr int kBoundShift =
    std::is_same_v<BaseOf<T>, Zel16s> && std::is_same_v<Op, MulOp> && !kIsComplex<T>
        ? 15
        : int(sizeof(BaseOf<T>) * 8);

template <class Op, class T>
constexpr Band chooseBand(int s) {
    if (kIsFloat<T> || std::is_same_v<Op, MulScaleOp> || s == 0) return Band::Plain;
    if (s >= kZeroFrom<Op, T>) return Band::Zero;
    if (s == 1) return Band::One;
    if (s > 0) return Band::Pos;
    return s <= -kBoundShift<Op, T> ? Band::Bound : Band::Neg;
}

// Operations whose exact result needs no wider lane: saturating sums and
// differences (s = 0) of the 8-bit and 16-bit types, the halved unsigned
// sums (s = 1), and the bitwise operations and shifts of every integer
// type. They run at the memory's pace.
template <class Op, class B, Band Bd>
inline constexpr bool kNativeLanes =
    std::is_integral_v<B> &&
    ((Bd == Band::Plain && kBitwise<Op>) ||
     (sizeof(B) <= 2 &&
      ((Bd == Band::Plain && (std::is_same_v<Op, AddOp> || std::is_same_v<Op, SubOp>)) ||
       (Bd == Band::One && std::is_same_v<Op, AddOp> && std::is_unsigned_v<B>))));

// ---- the scalar rule ----

template <class Dst, class Wide>
constexpr Dst saturate(Wide v) {
    if (v < Wide(std::numeric_limits<Dst>::min())) return std::numeric_limits<Dst>::min();
    if (v > Wide(std::numeric_limits<Dst>::max())) return std::numeric_limits<Dst>::max();
    return Dst(v);
}

// v * 2^-s, rounded half to even, saturated to Dst. Wide must hold |v|
// with at least 24 bits to spare (int64 for 16-bit results, a 128-bit
// integer for 32-bit ones).
template <class Dst, class Wide>
constexpr Dst scaleSaturate(Wide v, int s) {
    constexpr int kWideBits = int(sizeof(Wide) * 8);
    if (s > 0) {
        // Beyond kWideBits - 24 every |v| we meet is below 2^(s-1): the
        // result is 0 either way, and the shifts stay defined.
        s = std::min(s, kWideBits - 24);
        const Wide half = Wide(1) << (s - 1);
        return saturate<Dst>((v + half - 1 + ((v >> s) & 1)) >> s);
    }
    if (s < 0) {
        const int n = leftShiftOf(s, int(sizeof(Dst) * 8));  // more saturates all the same
        return saturate<Dst>(v * (Wide(1) << n));
    }
    return saturate<Dst>(v);
}

// What a band's kernel needs besides the pixels: the scale factor, the
// shift count, and for left shifts the largest and smallest values that
// survive the shift without saturating (hi >> n, lo >> n).
struct ScaleArgs {
    int scale = 0;
    int shift = 0;
    std::int32_t keepHi = 0, keepLo = 0;
    // The 16sc product's imaginary part reaches 2^31 (for -32768 - 32768i
    // squared), one more than 32-bit lanes hold: its result, scaled.
    std::int32_t imagTop = 0;
};

template <class Op, class T>
ScaleArgs scaleArgs(int s) {
    using B = BaseOf<T>;
    ScaleArgs a;
    if (kIsFloat<T>) return a;
    a.scale = s;
    if constexpr (std::is_same_v<T, Zel16sc>) a.imagTop = scaleSaturate<Zel16s>(std::int64_t{1} << 31, s);
    if (s > 0) a.shift = s;
    if (s < 0) {
        a.shift = leftShiftOf(s, kBoundShift<Op, T>);
        if constexpr (sizeof(B) <= 2) {
            a.keepHi = std::int32_t(std::numeric_limits<B>::max()) >> a.shift;
            a.keepLo = std::int32_t(std::numeric_limits<B>::min()) >> a.shift;
        }
    }
    return a;
}

// The fraction-of-maximum product of MulScale: (p + 1 + (p >> bits)) >> bits
// approximates p / max rounded, exactly as callers expect it bit for bit.
template <class T>
constexpr T mulScale(T a, T b) {
    constexpr int kBits = int(sizeof(T) * 8);
    const std::uint32_t p = std::uint32_t(a) * std::uint32_t(b);
    return T((p + 1 + (p >> kBits)) >> kBits);
}

}  // namespace zel::arith
