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
// Ln and Exp of 32f compute in double precision with plain additions,
// multiplications and one division (no fused multiply-add, no table), and
// round once to float at the end: the bits are the same on every target.
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

// ---- 32f logarithm and exponent in double precision ----

// e^x for float x, promoted: x = k ln2 + r with |r| <= ln2 / 2, e^r by its
// Taylor polynomial of degree 9 (relative error below 1e-11), 2^k built in
// the exponent field. Inputs are clamped to [-120, 100], beyond which the
// float result is 0 or infinity either way; the conversion to float rounds
// once, into subnormal values too.
template <class DD, class DF>
HWY_INLINE hn::VFromD<DF> ExpOf(DD dd, DF df, hn::VFromD<DF> vf) {
    const hn::RebindToUnsigned<DD> du;
    constexpr double kShifter = 6755399441055744.0;  // 1.5 * 2^52: adding it rounds to an integer
    auto x = hn::PromoteTo(dd, vf);
    x = hn::Min(hn::Max(x, hn::Set(dd, -120.0)), hn::Set(dd, 100.0));
    const auto m = hn::Add(hn::Mul(x, hn::Set(dd, 1.4426950408889634)), hn::Set(dd, kShifter));
    const auto k = hn::Sub(m, hn::Set(dd, kShifter));
    // ln2 in two parts; k * kLn2Hi is exact for |k| < 2^20.
    const auto r = hn::Sub(hn::Sub(x, hn::Mul(k, hn::Set(dd, 6.93147180369123816490e-01))),
                           hn::Mul(k, hn::Set(dd, 1.90821492927058770002e-10)));
    auto p = hn::Set(dd, 1.0 / 362880.0);
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0 / 40320.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0 / 5040.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0 / 720.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0 / 120.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0 / 24.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0 / 6.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 0.5));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0));
    p = hn::Add(hn::Mul(p, r), hn::Set(dd, 1.0));
    // The low bits of m hold k (offset by the shifter's own bits).
    const auto biased = hn::Add(hn::BitCast(du, m), hn::Set(du, std::uint64_t{1023} - 0x4338000000000000ull));
    const auto scale = hn::BitCast(dd, hn::ShiftLeft<52>(biased));
    const auto y = hn::DemoteTo(df, hn::Mul(p, scale));
    return hn::IfThenElse(hn::IsNaN(vf), hn::Add(vf, vf), y);
}

// ln x for float x > 0, promoted: x = 2^e m with m in [sqrt(1/2), sqrt(2)),
// ln m = 2 atanh(f), f = (m - 1) / (m + 1), |f| < 0.172, by its series to
// f^13 (relative error below 2e-11). Zero gives -inf, negative values
// (and -inf) the default NaN, +inf and NaN themselves; `zero` and
// `negative` collect the lanes that met those cases.
template <class DD, class DF>
HWY_INLINE hn::VFromD<DF> LnOf(DD dd, DF df, hn::VFromD<DF> vf, hn::Mask<DF>& zero, hn::Mask<DF>& negative) {
    const hn::RebindToUnsigned<DD> du;
    const hn::RebindToUnsigned<DF> duf;
    const auto x = hn::PromoteTo(dd, vf);
    const auto bits = hn::BitCast(du, x);
    // The biased exponent as a double: its bits under the exponent of 2^52.
    const auto field = hn::BitCast(dd, hn::Or(hn::ShiftRight<52>(bits), hn::Set(du, 0x4330000000000000ull)));
    auto e = hn::Sub(field, hn::Set(dd, 4503599627370496.0 + 1023.0));
    auto m = hn::BitCast(dd, hn::Or(hn::And(bits, hn::Set(du, 0x000FFFFFFFFFFFFFull)),
                                    hn::Set(du, 0x3FF0000000000000ull)));
    const auto high = hn::Gt(m, hn::Set(dd, 1.4142135623730951));
    m = hn::IfThenElse(high, hn::Mul(m, hn::Set(dd, 0.5)), m);
    e = hn::IfThenElse(high, hn::Add(e, hn::Set(dd, 1.0)), e);
    const auto f = hn::Div(hn::Sub(m, hn::Set(dd, 1.0)), hn::Add(m, hn::Set(dd, 1.0)));
    const auto f2 = hn::Mul(f, f);
    auto s = hn::Set(dd, 1.0 / 13.0);
    s = hn::Add(hn::Mul(s, f2), hn::Set(dd, 1.0 / 11.0));
    s = hn::Add(hn::Mul(s, f2), hn::Set(dd, 1.0 / 9.0));
    s = hn::Add(hn::Mul(s, f2), hn::Set(dd, 1.0 / 7.0));
    s = hn::Add(hn::Mul(s, f2), hn::Set(dd, 1.0 / 5.0));
    s = hn::Add(hn::Mul(s, f2), hn::Set(dd, 1.0 / 3.0));
    const auto twoF = hn::Add(f, f);
    const auto lnM = hn::Add(twoF, hn::Mul(hn::Mul(twoF, f2), s));
    const auto y = hn::Add(hn::Mul(e, hn::Set(dd, 0.6931471805599453)), lnM);
    auto r = hn::DemoteTo(df, y);

    const auto isZero = hn::Eq(vf, hn::Zero(df));
    const auto isNegative = hn::Lt(vf, hn::Zero(df));
    zero = hn::Or(zero, isZero);
    negative = hn::Or(negative, isNegative);
    const auto inf = hn::BitCast(df, hn::Set(duf, 0x7F800000u));
    r = hn::IfThenElse(isZero, hn::Neg(inf), r);
    r = hn::IfThenElse(isNegative, hn::BitCast(df, hn::Set(duf, 0xFFC00000u)), r);
    // +inf and NaN give themselves (a NaN quietened).
    return hn::IfThenElse(hn::Or(hn::IsNaN(vf), hn::Eq(vf, inf)), hn::Add(vf, vf), r);
}

// Exp of a 32f row; always 0.
inline int ExpRow32f(const float* HWY_RESTRICT src, float* dst, std::ptrdiff_t n) {
    const hn::ScalableTag<double> dd;
    const hn::Rebind<float, decltype(dd)> df;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dd));
    std::ptrdiff_t x = 0;
    for (; n - x >= 2 * lanes; x += 2 * lanes) {
        const auto r0 = ExpOf(dd, df, hn::LoadU(df, src + x));
        const auto r1 = ExpOf(dd, df, hn::LoadU(df, src + x + lanes));
        hn::StoreU(r0, df, dst + x);
        hn::StoreU(r1, df, dst + x + lanes);
    }
    for (; n - x >= lanes; x += lanes) hn::StoreU(ExpOf(dd, df, hn::LoadU(df, src + x)), df, dst + x);
    if (x < n) {
        const std::size_t rest = static_cast<std::size_t>(n - x);
        const hn::RebindToUnsigned<decltype(df)> du;
        const auto r = ExpOf(dd, df, LoadFirst(df, src + x, rest));
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
    const hn::ScalableTag<double> dd;
    const hn::Rebind<float, decltype(dd)> df;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dd));
    int status = 0;
    for (std::ptrdiff_t c = 0; c < n; c += std::min(kLnChunk, n - c)) {
        const std::ptrdiff_t end = c + std::min(kLnChunk, n - c);
        auto zero = hn::FirstN(df, 0);
        auto negative = zero;
        std::ptrdiff_t x = c;
        for (; end - x >= 2 * lanes; x += 2 * lanes) {
            const auto r0 = LnOf(dd, df, hn::LoadU(df, src + x), zero, negative);
            const auto r1 = LnOf(dd, df, hn::LoadU(df, src + x + lanes), zero, negative);
            hn::StoreU(r0, df, dst + x);
            hn::StoreU(r1, df, dst + x + lanes);
        }
        for (; end - x >= lanes; x += lanes) hn::StoreU(LnOf(dd, df, hn::LoadU(df, src + x), zero, negative), df, dst + x);
        if (x < end) {
            const std::size_t rest = static_cast<std::size_t>(end - x);
            const hn::RebindToUnsigned<decltype(df)> du;
            auto z = hn::FirstN(df, 0);
            auto ng = z;
            // The lanes past the row are zeros: they must not count.
            const auto r = LnOf(dd, df, LoadFirst(df, src + x, rest), z, ng);
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
