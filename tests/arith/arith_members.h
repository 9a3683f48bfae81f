// The arithmetic members as data: every exported Add, Sub, Mul, their
// constant forms and MulScale/MulCScale behind one calling interface, and a
// reference that computes the expected result from the rule directly
// (exact 128-bit values, round half to even, saturation).
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "zeli.h"

namespace zel::test {

enum class Op { Add, Sub, Mul, MulScale };

template <class T>
struct Parts {
    using Base = T;
    static constexpr int kCount = 1;
};
template <class B>
struct ComplexParts {
    using Base = B;
    static constexpr int kCount = 2;
};
template <>
struct Parts<Zel16sc> : ComplexParts<Zel16s> {};
template <>
struct Parts<Zel32sc> : ComplexParts<Zel32s> {};
template <>
struct Parts<Zel32fc> : ComplexParts<Zel32f> {};

// The rule as written: multiply by 2^-s, ties to even, saturate.
template <class D>
D referenceScale(__int128 v, int s) {
    if (s > 0) {
        s = std::min(s, 100);  // every |v| here is far below 2^99
        const __int128 q = v >> s;  // floor
        const __int128 r = v - (q * (__int128(1) << s));
        const __int128 half = __int128(1) << (s - 1);
        v = (r > half || (r == half && (q & 1))) ? q + 1 : q;
    } else if (s < 0) {
        v *= __int128(1) << std::min(-s, 40);
    }
    if (v < __int128(std::numeric_limits<D>::min())) return std::numeric_limits<D>::min();
    if (v > __int128(std::numeric_limits<D>::max())) return std::numeric_limits<D>::max();
    return D(v);
}

// Expected result for the operands p (minuend, in-place image, source of a
// constant form) and q, as arrays of parts.
template <class T>
void referenceOp(Op op, const T& pIn, const T& qIn, int s, T& out) {
    using B = typename Parts<T>::Base;
    const B* p = reinterpret_cast<const B*>(&pIn);
    const B* q = reinterpret_cast<const B*>(&qIn);
    B* o = reinterpret_cast<B*>(&out);
    if constexpr (std::is_floating_point_v<B>) {
        if (op == Op::Mul && Parts<T>::kCount == 2) {
            o[0] = p[0] * q[0] - p[1] * q[1];
            o[1] = p[0] * q[1] + p[1] * q[0];
            return;
        }
        for (int i = 0; i < Parts<T>::kCount; ++i)
            o[i] = op == Op::Add ? p[i] + q[i] : op == Op::Sub ? p[i] - q[i] : p[i] * q[i];
    } else {
        using W = __int128;
        if (op == Op::MulScale) {
            const std::uint64_t prod = std::uint64_t(p[0]) * std::uint64_t(q[0]);
            const int bits = 8 * sizeof(B);
            o[0] = B((prod + 1 + (prod >> bits)) >> bits);
        } else if (op == Op::Mul && Parts<T>::kCount == 2) {
            o[0] = referenceScale<B>(W(p[0]) * q[0] - W(p[1]) * q[1], s);
            o[1] = referenceScale<B>(W(p[0]) * q[1] + W(p[1]) * q[0], s);
        } else {
            for (int i = 0; i < Parts<T>::kCount; ++i) {
                const W v = op == Op::Add ? W(p[i]) + q[i] : op == Op::Sub ? W(p[i]) - q[i] : W(p[i]) * q[i];
                o[i] = referenceScale<B>(v, s);
            }
        }
    }
}

// One member with a uniform call: a and b are the two sources (b unused by
// in-place and constant forms), d the destination or the in-place image.
template <class T>
struct Member {
    std::string name;
    Op op;
    int channels, computed;
    bool isConst, inPlace;
    ZelStatus (*call)(const T* a, int aStep, const T* b, int bStep, T* d, int dStep, ZeliSize roi,
                      int scale, const T* value);
};

template <auto F, class T, bool IsConst, bool InPlace>
ZelStatus callMember(const T* a, int as, const T* b, int bs, T* d, int ds, ZeliSize roi, int s,
                     const T* value) {
    using Fn = decltype(F);
    if constexpr (!IsConst && !InPlace) {
        if constexpr (std::is_invocable_v<Fn, const T*, int, const T*, int, T*, int, ZeliSize, int>)
            return F(a, as, b, bs, d, ds, roi, s);
        else
            return F(a, as, b, bs, d, ds, roi);
    } else if constexpr (!IsConst) {
        if constexpr (std::is_invocable_v<Fn, const T*, int, T*, int, ZeliSize, int>)
            return F(a, as, d, ds, roi, s);
        else
            return F(a, as, d, ds, roi);
    } else if constexpr (!InPlace) {
        if constexpr (std::is_invocable_v<Fn, const T*, int, T, T*, int, ZeliSize, int>)
            return F(a, as, *value, d, ds, roi, s);
        else if constexpr (std::is_invocable_v<Fn, const T*, int, T, T*, int, ZeliSize>)
            return F(a, as, *value, d, ds, roi);
        else if constexpr (std::is_invocable_v<Fn, const T*, int, const T*, T*, int, ZeliSize, int>)
            return F(a, as, value, d, ds, roi, s);
        else
            return F(a, as, value, d, ds, roi);
    } else {
        if constexpr (std::is_invocable_v<Fn, T, T*, int, ZeliSize, int>)
            return F(*value, d, ds, roi, s);
        else if constexpr (std::is_invocable_v<Fn, T, T*, int, ZeliSize>)
            return F(*value, d, ds, roi);
        else if constexpr (std::is_invocable_v<Fn, const T*, T*, int, ZeliSize, int>)
            return F(value, d, ds, roi, s);
        else
            return F(value, d, ds, roi);
    }
}

constexpr int channelsOf(const char* layout) { return layout[0] == 'C' && layout[1] == '1' ? 1 : layout[1] == '3' ? 3 : 4; }
constexpr int computedOf(const char* layout) { return layout[0] == 'A' ? 3 : channelsOf(layout); }

#define ZT_MEMBER(fn, op, T, lay, isConst, inPlace)                                        \
    ::zel::test::Member<T> {                                                                \
        #fn, ::zel::test::Op::op, ::zel::test::channelsOf(#lay), ::zel::test::computedOf(#lay), \
            isConst, inPlace, &::zel::test::callMember<fn, T, isConst, inPlace>             \
    }
#define ZT_FORMS(name, op, t, lay, sfs)                                  \
    ZT_MEMBER(zeli##name##_##t##_##lay##R##sfs, op, Zel##t, lay, false, false), \
        ZT_MEMBER(zeli##name##_##t##_##lay##IR##sfs, op, Zel##t, lay, false, true), \
        ZT_MEMBER(zeli##name##C_##t##_##lay##R##sfs, op, Zel##t, lay, true, false), \
        ZT_MEMBER(zeli##name##C_##t##_##lay##IR##sfs, op, Zel##t, lay, true, true)
#define ZT_LAYOUTS4(name, op, t, sfs)                                                  \
    ZT_FORMS(name, op, t, C1, sfs), ZT_FORMS(name, op, t, C3, sfs), ZT_FORMS(name, op, t, C4, sfs), \
        ZT_FORMS(name, op, t, AC4, sfs)
#define ZT_LAYOUTS3(name, op, t, sfs) \
    ZT_FORMS(name, op, t, C1, sfs), ZT_FORMS(name, op, t, C3, sfs), ZT_FORMS(name, op, t, AC4, sfs)
#define ZT_OPS4(t, sfs) \
    ZT_LAYOUTS4(Add, Add, t, sfs), ZT_LAYOUTS4(Sub, Sub, t, sfs), ZT_LAYOUTS4(Mul, Mul, t, sfs)
#define ZT_OPS3(t, sfs) \
    ZT_LAYOUTS3(Add, Add, t, sfs), ZT_LAYOUTS3(Sub, Sub, t, sfs), ZT_LAYOUTS3(Mul, Mul, t, sfs)

// MulScale's constant form is named MulCScale.
#define ZT_SCALE_FORMS(t, lay)                                                   \
    ZT_MEMBER(zeliMulScale_##t##_##lay##R, MulScale, Zel##t, lay, false, false),   \
        ZT_MEMBER(zeliMulScale_##t##_##lay##IR, MulScale, Zel##t, lay, false, true), \
        ZT_MEMBER(zeliMulCScale_##t##_##lay##R, MulScale, Zel##t, lay, true, false), \
        ZT_MEMBER(zeliMulCScale_##t##_##lay##IR, MulScale, Zel##t, lay, true, true)
#define ZT_SCALE_LAYOUTS(t) \
    ZT_SCALE_FORMS(t, C1), ZT_SCALE_FORMS(t, C3), ZT_SCALE_FORMS(t, C4), ZT_SCALE_FORMS(t, AC4)

inline std::vector<Member<Zel8u>> members8u() { return {ZT_OPS4(8u, Sfs), ZT_SCALE_LAYOUTS(8u)}; }
inline std::vector<Member<Zel16u>> members16u() { return {ZT_OPS4(16u, Sfs), ZT_SCALE_LAYOUTS(16u)}; }
inline std::vector<Member<Zel16s>> members16s() { return {ZT_OPS4(16s, Sfs)}; }
inline std::vector<Member<Zel16sc>> members16sc() { return {ZT_OPS3(16sc, Sfs)}; }
inline std::vector<Member<Zel32sc>> members32sc() { return {ZT_OPS3(32sc, Sfs)}; }
inline std::vector<Member<Zel32f>> members32f() { return {ZT_OPS4(32f, )}; }
inline std::vector<Member<Zel32fc>> members32fc() { return {ZT_OPS3(32fc, )}; }

}  // namespace zel::test
