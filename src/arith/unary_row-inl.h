// Per-target row kernels of the unary mathematics (Abs, Sqrt, Ln, Exp of
// 32f, Abs of 16s, Complement of 32s). Included by each unary family file
// inside its Highway target loop.
//
// A row is a run of n elements; with `ac4` set the elements are pixels of
// four channels of which the fourth (alpha) is neither stored nor counted
// for warnings, and the caller ends the row before the last pixel's alpha.
// Every kernel returns the row's status code (0, or the warning of its
// family) and runs one code path for the whole row: the last partial
// vector is loaded and stored under a mask.
//
// Ln and Exp of 32f compute in float with plain additions and
// multiplications (no fused multiply-add, no table), each rounding once
// in a fixed order: the bits are the same on every target.
#if defined(ZEL_ARITH_UNARY_ROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_ARITH_UNARY_ROW_INL_H_
#undef ZEL_ARITH_UNARY_ROW_INL_H_
#else
#define ZEL_ARITH_UNARY_ROW_INL_H_
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/store_under_mask-inl.h"
#include "zeli.h"

#ifndef ZEL_ARITH_UNARY_MAPS_
#define ZEL_ARITH_UNARY_MAPS_
namespace zel::arith {
// The element-wise maps of MapRow.
struct AbsMap {};         // |x|: 16s saturates -32768 to 32767, 32f clears the sign bit
struct SqrtMap {};        // IEEE square root; negative elements (not -0, not NaN) are special
struct ComplementMap {};  // bitwise complement
}  // namespace zel::arith
#endif

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// The lanes of a vector (of whole pixels) that hold colour channels of an
// AC4 row, or every lane.
template <class DU>
HWY_INLINE hn::Mask<DU> ResultLanes(DU du, bool ac4) {
    using U = hn::TFromD<DU>;
    const auto three = hn::Set(du, U(3));
    const auto alpha = hn::Eq(hn::And(hn::Iota(du, 0), three), three);
    return ac4 ? hn::Not(alpha) : hn::FirstN(du, hn::Lanes(du));
}

// Stores a full vector of results: alpha lanes of AC4 rows are left out
// (by pixel runs where the target has no masked store for the lane size).
template <class D, class V, class M>
HWY_INLINE void StoreResults(D d, V r, hn::TFromD<D>* dst, bool ac4, M results) {
    using T = hn::TFromD<D>;
    const hn::RebindToUnsigned<D> du;
    using U = hn::TFromD<decltype(du)>;
    if (!ac4) {
        hn::StoreU(r, d, dst);
    } else if constexpr (kNativeMaskedAccess<U>) {
        StoreUnderMask(hn::BitCast(du, r), results, du, reinterpret_cast<U*>(dst));
    } else {
        StorePixelRuns(r, d, dst, 4 * sizeof(T), 3 * sizeof(T));
    }
}

// Stores the first `count` results (fewer than a vector).
template <class D, class V, class M>
HWY_INLINE void StoreFirstResults(D, V r, hn::TFromD<D>* dst, std::size_t count, M results) {
    const hn::RebindToUnsigned<D> du;
    using U = hn::TFromD<decltype(du)>;
    StoreUnderMask(hn::BitCast(du, r), hn::And(hn::FirstN(du, count), results), du, reinterpret_cast<U*>(dst));
}

// ---- element-wise maps in the element's own lanes ----

template <class Map>
inline constexpr bool kWarns = std::is_same_v<Map, arith::SqrtMap>;

template <class Map, class D, class V>
HWY_INLINE V ApplyMap(D d, V v) {
    using T = hn::TFromD<D>;
    if constexpr (std::is_same_v<Map, arith::SqrtMap>) {
        return hn::Sqrt(v);
    } else if constexpr (std::is_same_v<Map, arith::ComplementMap>) {
        return hn::Not(v);
    } else if constexpr (hwy::IsFloat<T>()) {
        return hn::Abs(v);
    } else {
        return hn::Abs(hn::Max(v, hn::Set(d, T(-32767))));
    }
}

// The lanes that make the row warn.
template <class Map, class D, class V>
HWY_INLINE hn::Mask<D> SpecialLanes(D d, V v) {
    if constexpr (std::is_same_v<Map, arith::SqrtMap>) {
        return hn::Lt(v, hn::Zero(d));
    } else {
        (void)v;
        return hn::FirstN(d, 0);
    }
}

// A row of n elements through Map; returns 1 when Map::Special met any
// result lane, else 0. Vectors of 256 bits: these maps run at the memory's
// pace, which wider vectors do not raise.
template <class Map, class T>
int MapRow(const T* HWY_RESTRICT src, T* dst, std::ptrdiff_t n, bool ac4) {
    const hn::CappedTag<T, 32 / sizeof(T)> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const auto results = ResultLanes(du, ac4);
    const auto resultsD = hn::RebindMask(d, results);
    auto special = hn::FirstN(d, 0);
    std::ptrdiff_t x = 0;
    if (!ac4) {
        for (; n - x >= 2 * lanes; x += 2 * lanes) {
            const auto v0 = hn::LoadU(d, src + x);
            const auto v1 = hn::LoadU(d, src + x + lanes);
            if constexpr (kWarns<Map>)
                special = hn::Or(special, hn::Or(SpecialLanes<Map>(d, v0), SpecialLanes<Map>(d, v1)));
            hn::StoreU(ApplyMap<Map>(d, v0), d, dst + x);
            hn::StoreU(ApplyMap<Map>(d, v1), d, dst + x + lanes);
        }
    }
    for (; n - x >= lanes; x += lanes) {
        const auto v = hn::LoadU(d, src + x);
        if constexpr (kWarns<Map>) special = hn::Or(special, hn::And(SpecialLanes<Map>(d, v), resultsD));
        StoreResults(d, ApplyMap<Map>(d, v), dst + x, ac4, results);
    }
    if (x < n) {
        const std::size_t rest = static_cast<std::size_t>(n - x);
        const auto v = LoadFirst(d, src + x, rest);
        if constexpr (kWarns<Map>)
            special = hn::Or(special, hn::And(SpecialLanes<Map>(d, v), hn::And(resultsD, hn::FirstN(d, rest))));
        StoreFirstResults(d, ApplyMap<Map>(d, v), dst + x, rest, results);
    }
    return hn::AllFalse(d, special) ? 0 : 1;
}

// ---- 32f logarithm and exponent ----
//
// Float arithmetic without fused multiply-adds: every operation rounds
// once, in the same order on every target.

// e^x: x = k ln2 + r with |r| <= ln2 / 2 (ln2 in two parts, the first
// exact in k * part), e^r = 1 + r + r^2 P(r) with a minimax P of degree 5,
// then 2^k applied in two exact-or-final steps so that subnormal results
// round once and 2^128 overflows to infinity. Inputs are clamped to
// [-104, 89], beyond which the result is 0 or infinity either way.
template <class DF>
HWY_INLINE hn::VFromD<DF> ExpOf(DF df, hn::VFromD<DF> vf) {
    const hn::RebindToSigned<DF> di;
    constexpr float kShifter = 12582912.0f;  // 1.5 * 2^23: adding it rounds to an integer
    const auto x = hn::Min(hn::Max(vf, hn::Set(df, -104.0f)), hn::Set(df, 89.0f));
    const auto k = hn::Sub(hn::Add(hn::Mul(x, hn::Set(df, 1.44269504088896341f)), hn::Set(df, kShifter)),
                           hn::Set(df, kShifter));
    const auto r = hn::Sub(hn::Sub(x, hn::Mul(k, hn::Set(df, 0.693359375f))), hn::Mul(k, hn::Set(df, -2.12194440e-4f)));
    auto p = hn::Set(df, 1.9875691500e-4f);
    p = hn::Add(hn::Mul(p, r), hn::Set(df, 1.3981999507e-3f));
    p = hn::Add(hn::Mul(p, r), hn::Set(df, 8.3334519073e-3f));
    p = hn::Add(hn::Mul(p, r), hn::Set(df, 4.1665795894e-2f));
    p = hn::Add(hn::Mul(p, r), hn::Set(df, 1.6666665459e-1f));
    p = hn::Add(hn::Mul(p, r), hn::Set(df, 5.0000001201e-1f));
    const auto e = hn::Add(hn::Add(hn::Mul(p, hn::Mul(r, r)), r), hn::Set(df, 1.0f));
    // 2^k = 2^k1 2^k2, k1 = k >> 1: e 2^k1 is exact, the second product
    // rounds once (into the subnormal range, or to infinity).
    const auto ki = hn::ConvertTo(di, k);
    const auto k1 = hn::ShiftRight<1>(ki);
    const auto k2 = hn::Sub(ki, k1);
    const auto bias = hn::Set(di, 127);
    const auto s1 = hn::BitCast(df, hn::ShiftLeft<23>(hn::Add(k1, bias)));
    const auto s2 = hn::BitCast(df, hn::ShiftLeft<23>(hn::Add(k2, bias)));
    const auto y = hn::Mul(hn::Mul(e, s1), s2);
    return hn::IfThenElse(hn::IsNaN(vf), hn::Add(vf, vf), y);
}

// ln x for a normal positive x: x = 2^e m with m in [sqrt(1/2), sqrt(2)),
// t = m - 1, ln m = t - t^2 / 2 + t^3 P(t) with a minimax P of degree 8,
// e ln2 added in two parts. `shift` is added to e (-23 for subnormal x
// scaled by 2^23).
template <class DF>
HWY_INLINE hn::VFromD<DF> LnNormal(DF df, hn::VFromD<DF> x, hn::VFromD<hn::RebindToSigned<DF>> shift) {
    const hn::RebindToSigned<DF> di;
    const auto bits = hn::BitCast(di, x);
    auto e = hn::Add(hn::Sub(hn::ShiftRight<23>(bits), hn::Set(di, 126)), shift);
    // m in [0.5, 1)
    const auto m = hn::BitCast(df, hn::Or(hn::And(bits, hn::Set(di, 0x007FFFFF)), hn::Set(di, 0x3F000000)));
    const auto low = hn::Lt(m, hn::Set(df, 0.707106781186547524f));
    e = hn::IfThenElse(hn::RebindMask(di, low), hn::Sub(e, hn::Set(di, 1)), e);
    const auto t = hn::Sub(hn::IfThenElse(low, hn::Add(m, m), m), hn::Set(df, 1.0f));
    const auto fe = hn::ConvertTo(df, e);
    const auto z = hn::Mul(t, t);
    auto p = hn::Set(df, 7.0376836292e-2f);
    p = hn::Add(hn::Mul(p, t), hn::Set(df, -1.1514610310e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, 1.1676998740e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, -1.2420140846e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, 1.4249322787e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, -1.6668057665e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, 2.0000714765e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, -2.4999993993e-1f));
    p = hn::Add(hn::Mul(p, t), hn::Set(df, 3.3333331174e-1f));
    auto y = hn::Mul(hn::Mul(p, t), z);
    y = hn::Add(y, hn::Mul(fe, hn::Set(df, -2.12194440e-4f)));
    y = hn::Sub(y, hn::Mul(z, hn::Set(df, 0.5f)));
    return hn::Add(hn::Add(t, y), hn::Mul(fe, hn::Set(df, 0.693359375f)));
}

// ln x for any float: vectors of normal positive values take LnNormal
// alone. Subnormal x is scaled by 2^23 first; zero gives -inf, negative
// values (and -inf) the default NaN, +inf and NaN themselves; `zero` and
// `negative` collect the lanes that met those cases.
template <class DF>
HWY_INLINE hn::VFromD<DF> LnOf(DF df, hn::VFromD<DF> vf, hn::Mask<DF>& zero, hn::Mask<DF>& negative) {
    const hn::RebindToSigned<DF> di;
    const auto bi = hn::BitCast(di, vf);
    const auto outside = hn::Or(hn::Lt(bi, hn::Set(di, 0x00800000)), hn::Gt(bi, hn::Set(di, 0x7F7FFFFF)));
    if (hn::AllFalse(di, outside)) return LnNormal(df, vf, hn::Zero(di));

    const auto tiny = hn::Lt(vf, hn::Set(df, 1.17549435e-38f));
    const auto xs = hn::IfThenElse(tiny, hn::Mul(vf, hn::Set(df, 8388608.0f)), vf);
    auto r = LnNormal(df, xs, hn::IfThenElseZero(hn::RebindMask(di, tiny), hn::Set(di, -23)));
    const auto isZero = hn::Eq(vf, hn::Zero(df));
    const auto isNegative = hn::Lt(vf, hn::Zero(df));
    zero = hn::Or(zero, isZero);
    negative = hn::Or(negative, isNegative);
    const auto inf = hn::BitCast(df, hn::Set(di, 0x7F800000));
    r = hn::IfThenElse(isZero, hn::Neg(inf), r);
    r = hn::IfThenElse(isNegative, hn::BitCast(df, hn::Set(di, std::int32_t(0xFFC00000u))), r);
    // +inf and NaN give themselves (a NaN quietened).
    return hn::IfThenElse(hn::Or(hn::IsNaN(vf), hn::Eq(vf, inf)), hn::Add(vf, vf), r);
}

// Exp of a 32f row; always 0.
inline int ExpRow32f(const float* HWY_RESTRICT src, float* dst, std::ptrdiff_t n) {
    const hn::ScalableTag<float> df;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(df));
    std::ptrdiff_t x = 0;
    for (; n - x >= 2 * lanes; x += 2 * lanes) {
        const auto r0 = ExpOf(df, hn::LoadU(df, src + x));
        const auto r1 = ExpOf(df, hn::LoadU(df, src + x + lanes));
        hn::StoreU(r0, df, dst + x);
        hn::StoreU(r1, df, dst + x + lanes);
    }
    for (; n - x >= lanes; x += lanes) hn::StoreU(ExpOf(df, hn::LoadU(df, src + x)), df, dst + x);
    if (x < n) {
        const std::size_t rest = static_cast<std::size_t>(n - x);
        const hn::RebindToUnsigned<decltype(df)> du;
        const auto r = ExpOf(df, LoadFirst(df, src + x, rest));
        StoreUnderMask(hn::BitCast(du, r), hn::FirstN(du, rest), du, reinterpret_cast<std::uint32_t*>(dst + x));
    }
    return 0;
}

// Elements per chunk of the 32f logarithm: the row's status is the code of
// the first chunk that met a zero or a negative value.
constexpr std::ptrdiff_t kLnChunk = 256;

// Ln of a 32f row. A chunk's code has bit 0 for a negative element and
// bit 1 for a zero; the first non-zero code gives 7 when it is 2 (zeros
// only) and 8 otherwise.
inline int LnRow32f(const float* HWY_RESTRICT src, float* dst, std::ptrdiff_t n) {
    const hn::ScalableTag<float> df;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(df));
    int status = 0;
    for (std::ptrdiff_t c = 0; c < n; c += std::min(kLnChunk, n - c)) {
        const std::ptrdiff_t end = c + std::min(kLnChunk, n - c);
        auto zero = hn::FirstN(df, 0);
        auto negative = zero;
        std::ptrdiff_t x = c;
        for (; end - x >= 2 * lanes; x += 2 * lanes) {
            const auto r0 = LnOf(df, hn::LoadU(df, src + x), zero, negative);
            const auto r1 = LnOf(df, hn::LoadU(df, src + x + lanes), zero, negative);
            hn::StoreU(r0, df, dst + x);
            hn::StoreU(r1, df, dst + x + lanes);
        }
        for (; end - x >= lanes; x += lanes) hn::StoreU(LnOf(df, hn::LoadU(df, src + x), zero, negative), df, dst + x);
        if (x < end) {
            const std::size_t rest = static_cast<std::size_t>(end - x);
            const hn::RebindToUnsigned<decltype(df)> du;
            auto z = hn::FirstN(df, 0);
            auto ng = z;
            // The lanes past the row are zeros: they must not count.
            const auto r = LnOf(df, LoadFirst(df, src + x, rest), z, ng);
            const auto inRow = hn::FirstN(df, rest);
            zero = hn::Or(zero, hn::And(z, inRow));
            negative = hn::Or(negative, hn::And(ng, inRow));
            StoreUnderMask(hn::BitCast(du, r), hn::FirstN(du, rest), du, reinterpret_cast<std::uint32_t*>(dst + x));
        }
        if (status == 0) {
            const int code = (hn::AllFalse(df, negative) ? 0 : 1) | (hn::AllFalse(df, zero) ? 0 : 2);
            if (code != 0) status = code == 2 ? zelStatusWarnLogOfZero : zelStatusWarnLogOfNegative;
        }
    }
    return status;
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_ARITH_UNARY_ROW_INL_H_
