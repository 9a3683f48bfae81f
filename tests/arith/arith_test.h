// Shared by the arithmetic tests: complex elements as arrays of parts, random
// operands with the types' extremes, the rules written out plainly (exact
// 128-bit values, rounding by mode, saturation, the division shortcut bands),
// every exported Add, Sub, Mul, Div, Div_Round and MulScale member with its
// constant form behind one calling interface, and the check that runs one
// member on guarded, unaligned images against the rules.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "harness/image.h"
#include "zeli.h"

namespace zel::test {

using i128 = __int128;

template <class T>
constexpr bool kComplex = std::is_class_v<T>;
template <class T>
constexpr int kParts = kComplex<T> ? 2 : 1;
template <class T>
auto partOf() {
    if constexpr (kComplex<T>)
        return T{}.re;
    else
        return T{};
}
template <class T>
using Part = decltype(partOf<T>());
template <class T>
Part<T>* parts(T& v) {
    return reinterpret_cast<Part<T>*>(&v);
}

// Random parts: zeros often, the extremes and their neighbours, small values
// and values from the whole range; for floats signed zeros, tiny and
// subnormal values.
template <class P>
P samplePart(std::mt19937& rng) {
    using L = std::numeric_limits<P>;
    const unsigned kind = rng() % 10;
    if constexpr (std::is_floating_point_v<P>) {
        if (kind == 0) return rng() % 2 ? P(0) : -P(0);
        // Subnormal values: their sums and products depend on flush-to-zero
        // and denormals-are-zero.
        if (kind == 2) return std::ldexp(std::uniform_real_distribution<P>(-1, 1)(rng), -128);
        const P range = kind == 1 ? P(1e-3) : P(1000);
        return std::uniform_real_distribution<P>(-range, range)(rng);
    } else {
        if (kind < 2) return 0;
        if (kind == 2) return P(L::lowest() + P(rng() % 2));
        if (kind == 3) return P(L::max() - P(rng() % 2));
        if (kind == 4) return P(int(rng() % 17) - (std::is_signed_v<P> ? 8 : 0));
        return P(std::uniform_int_distribution<std::int64_t>(L::lowest(), L::max())(rng));
    }
}
template <class T>
T sample(std::mt19937& rng) {
    T v;
    for (int i = 0; i < kParts<T>; ++i) parts(v)[i] = samplePart<Part<T>>(rng);
    return v;
}

// num * 2^-s / den (den != 0) rounded: mode 0 toward zero, 1 to nearest with
// ties to even, 2 to nearest with ties away from zero. Operands stay below
// 2^64, so past 2^100 the result saturates any type or is 0.
inline i128 scaledQuotient(i128 num, i128 den, int s, int mode) {
    const i128 big = i128{1} << 100;
    if (den < 0) num = -num, den = -den;
    for (; s < 0; ++s) {
        if (num == 0 || num > big || num < -big) return num;
        num *= 2;
    }
    for (; s > 0; --s) {
        if (den > big) return 0;
        den *= 2;
    }
    const i128 q = num / den, r = num % den, twice = 2 * (r < 0 ? -r : r);
    const bool up = mode != 0 && (twice > den || (twice == den && (mode == 2 || q % 2 != 0)));
    return up ? q + (num < 0 ? -1 : 1) : q;
}

template <class P>
P saturate(i128 v) {
    return P(std::clamp<i128>(v, std::numeric_limits<P>::lowest(), std::numeric_limits<P>::max()));
}
template <class P>
P saturatedSign(i128 v) {
    return v == 0 ? P(0) : v > 0 ? std::numeric_limits<P>::max() : std::numeric_limits<P>::lowest();
}

// b / a. Integers: above `upper` a non-zero divisor gives 0; below `lower`
// the saturated sign of sign(b) * sign(a), a zero divisor counting as
// positive. Complex: (b * conj(a)) / |a|^2 per part, with the 16sc bands.
template <class T>
T quotient(T a, T b, int s, int mode) {
    if constexpr (std::is_same_v<T, Zel32f>) {
        return b / a;
    } else if constexpr (std::is_same_v<T, Zel32fc>) {
        const float den = a.re * a.re + a.im * a.im;
        return T{(a.re * b.re + a.im * b.im) / den, (a.re * b.im - b.re * a.im) / den};
    } else if constexpr (kComplex<T>) {
        using P = Part<T>;
        const bool is16 = std::is_same_v<T, Zel16sc>;
        const i128 re = i128{a.re} * b.re + i128{a.im} * b.im, im = i128{a.re} * b.im - i128{b.re} * a.im;
        const i128 den = i128{a.re} * a.re + i128{a.im} * a.im;
        if (is16 && s > 32) return T{0, 0};
        if (is16 && s < -32) return den == 0 ? T{0, 0} : T{saturatedSign<P>(re), saturatedSign<P>(im)};
        if (den == 0) return T{saturatedSign<P>(b.re), saturatedSign<P>(b.im)};
        return T{saturate<P>(scaledQuotient(re, den, s, mode)), saturate<P>(scaledQuotient(im, den, s, mode))};
    } else {
        const int upper = std::is_same_v<T, Zel8u> ? 8 : std::is_same_v<T, Zel16u> ? 16 : 15;
        const int lower = std::is_same_v<T, Zel8u> ? -15 : std::is_same_v<T, Zel16u> ? -31 : -30;
        if (a == 0 && s >= lower) return saturatedSign<T>(b);
        if (s > upper) return 0;
        if (s < lower) return saturatedSign<T>(i128{b} * (a < 0 ? -1 : 1));
        return saturate<T>(scaledQuotient(b, a, s, mode));
    }
}

// Whether b / a raises the warning: a zero divisor, or for 16sc above s = 32
// a zero divisor real part paired with a zero dividend imaginary part.
template <class T>
bool warns(T a, T b, int s) {
    if constexpr (std::is_same_v<T, Zel16sc>)
        if (s > 32) return a.re == 0 && b.im == 0;
    if constexpr (kComplex<T>)
        return a.re == 0 && a.im == 0;
    else
        return a == 0;
}

enum class Op { Add, Sub, Mul, MulScale, Div, DivRound };

// p op q, where p is the operand the result starts from (source 2, the
// in-place image, the source of a constant form) and q the other one.
template <class T>
T expected(Op op, bool constant, T p, T q, int s, int mode) {
    using P = Part<T>;
    if constexpr (std::is_same_v<T, Zel32f>)
        if (op == Op::Div && constant) return p * (1.0f / q);  // DivC multiplies by the reciprocal
    if (op == Op::Div || op == Op::DivRound) return quotient(q, p, s, mode);
    T out{};
    P *o = parts(out), *x = parts(p), *y = parts(q);
    using W = std::conditional_t<std::is_floating_point_v<P>, P, i128>;
    const auto put = [&](int i, W v) {
        if constexpr (std::is_floating_point_v<P>)
            o[i] = v;
        else
            o[i] = saturate<P>(scaledQuotient(v, 1, s, 1));
    };
    if (op == Op::MulScale) {
        const std::uint64_t product = std::uint64_t(x[0]) * std::uint64_t(y[0]), bits = 8 * sizeof(P);
        o[0] = P((product + 1 + (product >> bits)) >> bits);
    } else if (op == Op::Mul && kComplex<T>) {
        put(0, W(x[0]) * y[0] - W(x[1]) * y[1]);
        put(1, W(x[0]) * y[1] + W(x[1]) * y[0]);
    } else {
        for (int i = 0; i < kParts<T>; ++i)
            put(i, op == Op::Add ? W(x[i]) + y[i] : op == Op::Sub ? W(x[i]) - y[i] : W(x[i]) * y[i]);
    }
    return out;
}

template <class T>
std::string show(T v) {
    std::string out;
    for (int i = 0; i < kParts<T>; ++i) out += (i ? "," : "") + std::to_string(+parts(v)[i]);
    return out;
}

// Bit for bit, except that any NaN matches any NaN.
template <class T>
testing::AssertionResult same(T actual, T expected) {
    for (int i = 0; i < kParts<T>; ++i) {
        const auto x = parts(actual)[i], y = parts(expected)[i];
        if (std::memcmp(&x, &y, sizeof x) != 0 && !(x != x && y != y))
            return testing::AssertionFailure() << show(actual) << " instead of " << show(expected);
    }
    return testing::AssertionSuccess();
}

// One member behind a uniform call: a and b are the two sources (b unused by
// in-place and constant forms), d the destination or the in-place image,
// value the constant per channel.
template <class T>
struct Member {
    std::string name;
    Op op;
    int channels, computed;
    bool isConst, inPlace;
    ZelStatus (*call)(const T* a, int aStep, const T* b, int bStep, T* d, int dStep, ZeliSize roi, int mode,
                      int scale, const T* value);
};

template <auto F, class T, bool IsConst, bool InPlace, bool Scalar>
ZelStatus callMember(const T* a, int as, const T* b, int bs, T* d, int ds, ZeliSize roi, int mode, int s,
                     const T* value) {
    // The size, then the rounding mode and the scale factor where F takes them.
    const auto call = [&](auto... head) {
        using Fn = decltype(F);
        if constexpr (std::is_invocable_v<Fn, decltype(head)..., ZeliSize, ZelRoundingMode, int>)
            return F(head..., roi, ZelRoundingMode(mode), s);
        else if constexpr (std::is_invocable_v<Fn, decltype(head)..., ZeliSize, int>)
            return F(head..., roi, s);
        else
            return F(head..., roi);
    };
    if constexpr (!IsConst && InPlace)
        return call(a, as, d, ds);
    else if constexpr (!IsConst)
        return call(a, as, b, bs, d, ds);
    else if constexpr (Scalar && InPlace)  // C1 constants are passed by value
        return call(*value, d, ds);
    else if constexpr (Scalar)
        return call(a, as, *value, d, ds);
    else if constexpr (InPlace)
        return call(value, d, ds);
    else
        return call(a, as, value, d, ds);
}

constexpr int channelsOf(const char* lay) { return lay[1] == '1' ? 1 : lay[1] == '3' ? 3 : 4; }
constexpr int computedOf(const char* lay) { return lay[0] == 'A' ? 3 : channelsOf(lay); }

#define ZT_MEMBER(fn, op, t, lay, isConst, inPlace)                                               \
    ::zel::test::Member<Zel##t> {                                                                 \
        #fn, ::zel::test::Op::op, ::zel::test::channelsOf(#lay), ::zel::test::computedOf(#lay),    \
            isConst, inPlace,                                                                     \
            &::zel::test::callMember<fn, Zel##t, isConst, inPlace, ::zel::test::channelsOf(#lay) == 1> \
    }
#define ZT_FORMS(name, op, t, lay, sfs, isConst)                            \
    ZT_MEMBER(zeli##name##_##t##_##lay##R##sfs, op, t, lay, isConst, false), \
        ZT_MEMBER(zeli##name##_##t##_##lay##IR##sfs, op, t, lay, isConst, true)
#define ZT_WITH_CONST(name, cname, op, t, lay, sfs) \
    ZT_FORMS(name, op, t, lay, sfs, false), ZT_FORMS(cname, op, t, lay, sfs, true)
#define ZT_GRID(t, lay, sfs)                                                                       \
    ZT_WITH_CONST(Add, AddC, Add, t, lay, sfs), ZT_WITH_CONST(Sub, SubC, Sub, t, lay, sfs),         \
        ZT_WITH_CONST(Mul, MulC, Mul, t, lay, sfs), ZT_WITH_CONST(Div, DivC, Div, t, lay, sfs)
// 8u, 16u and 16s add Div_Round; 8u and 16u also MulScale and MulCScale.
#define ZT_INTEGER(t, lay) ZT_GRID(t, lay, Sfs), ZT_FORMS(Div_Round, DivRound, t, lay, Sfs, false)
#define ZT_UNSIGNED(t, lay) ZT_INTEGER(t, lay), ZT_WITH_CONST(MulScale, MulCScale, MulScale, t, lay, )
#define ZT_SCALED(t, lay) ZT_GRID(t, lay, Sfs)
#define ZT_FLOAT(t, lay) ZT_GRID(t, lay, )
#define ZT_4(X, t) X(t, C1), X(t, C3), X(t, C4), X(t, AC4)
#define ZT_3(X, t) X(t, C1), X(t, C3), X(t, AC4)

// Every exported member per element type (456 in all).
template <class T>
std::vector<Member<T>> members();
template <>
inline std::vector<Member<Zel8u>> members<Zel8u>() { return {ZT_4(ZT_UNSIGNED, 8u)}; }
template <>
inline std::vector<Member<Zel16u>> members<Zel16u>() { return {ZT_4(ZT_UNSIGNED, 16u)}; }
template <>
inline std::vector<Member<Zel16s>> members<Zel16s>() { return {ZT_4(ZT_INTEGER, 16s)}; }
template <>
inline std::vector<Member<Zel16sc>> members<Zel16sc>() { return {ZT_3(ZT_SCALED, 16sc)}; }
template <>
inline std::vector<Member<Zel32sc>> members<Zel32sc>() { return {ZT_3(ZT_SCALED, 32sc)}; }
template <>
inline std::vector<Member<Zel32f>> members<Zel32f>() { return {ZT_4(ZT_FLOAT, 32f)}; }
template <>
inline std::vector<Member<Zel32fc>> members<Zel32fc>() { return {ZT_3(ZT_FLOAT, 32fc)}; }

// One run: ROI, misalignment in bytes, scale factor, rounding mode (used by
// Div_Round only), seed. Contiguous rows (no padding) are run as one long
// row; with lastDivisorOnly every divisor is 1 but the last pixel's, 0.
struct Run {
    ZeliSize roi;
    int offset = 0, scale = 0, mode = 1;
    std::uint32_t seed = 1;
    bool contiguous = false, lastDivisorOnly = false;
};

// The operands of one run: random images a and b (the first and second
// source), the destination d, the constant per channel (never a zero
// divisor), and which of them the member writes and starts from.
template <class T>
struct Operands {
    Image<T> a, b, d;
    T value[4];
    bool isConst, inPlace;

    Operands(const Member<T>& m, const Run& r)
        : a(image(m, r, r.offset, 3 * sizeof(T) + 5)),
          b(image(m, r, r.offset + sizeof(T), 3 * sizeof(T) + 7)),
          d(m.inPlace ? Image<T>({1, 1}, 1) : image(m, r, r.offset, 3 * sizeof(T) + 9)),  // must stay untouched
          isConst(m.isConst),
          inPlace(m.inPlace) {
        std::mt19937 rng(r.seed);
        const ZeliSize roi = r.roi;
        a.fill([&](int x, int y, int) {
            T one{};
            parts(one)[0] = x < roi.width - 1 || y < roi.height - 1;
            return r.lastDivisorOnly ? one : sample<T>(rng);
        });
        b.fill([&](int, int, int) { return sample<T>(rng); });
        const bool division = m.op == Op::Div || m.op == Op::DivRound;
        for (T& v : value) {
            do v = sample<T>(rng);
            while (division && warns(v, v, 0));  // DivC rejects a zero constant
        }
    }
    Image<T>& target() { return inPlace ? (isConst ? a : b) : d; }
    // The member on these operands.
    ZelStatus run(const Member<T>& m, const Run& r) {
        const int mode = m.op == Op::DivRound ? r.mode : 1;
        Image<T>& t = target();
        return m.call(a.roi(), a.step(), b.roi(), b.step(), t.roi(), t.step(), r.roi, mode, r.scale, value);
    }

private:
    static Image<T> image(const Member<T>& m, const Run& r, int offset, int guard) {
        return Image<T>(r.roi, m.channels, m.computed, offset, r.contiguous ? 0 : guard, r.seed + guard);
    }
};

// Runs the member on fresh random images and checks every computed element,
// the status (the division warning), and that guards, padding, AC4 alpha and
// the operands it does not write keep their bytes. The in-place forms are
// held to the same expected values as the others.
template <class T>
void checkMember(const Member<T>& m, const Run& r) {
    const ZeliSize roi = r.roi;
    const int mode = m.op == Op::DivRound ? r.mode : 1, s = r.scale;
    const bool division = m.op == Op::Div || m.op == Op::DivRound;
    SCOPED_TRACE(testing::Message() << m.name << " " << roi.width << "x" << roi.height << " offset " << r.offset
                                    << " scale " << s << " mode " << mode << (r.contiguous ? " contiguous" : ""));
    Operands<T> o(m, r);
    const Image<T> start = m.isConst ? o.a : o.b;
    const ZelStatus status = o.run(m, r);
    const Image<T>& target = o.target();
    bool warn = false;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.computed; ++c) {
                const T p = start.at(x, y, c), q = m.isConst ? o.value[c] : o.a.at(x, y, c);
                warn |= division && !m.isConst && warns(q, p, s);
                ASSERT_TRUE(same(target.at(x, y, c), expected(m.op, m.isConst, p, q, s, mode)))
                    << "at " << x << "," << y << " channel " << c << " from " << show(p) << " and " << show(q);
            }
    EXPECT_EQ(status, warn ? zelStatusWarnDivByZero : zelStatusOk);
    for (const Image<T>* image : {&o.a, &o.b, &o.d})
        EXPECT_TRUE(image == &target ? image->outsideUnchanged() : testing::AssertionResult(image->unchanged()));
}

}  // namespace zel::test
