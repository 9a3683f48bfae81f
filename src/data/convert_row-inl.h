// Per-target row kernel of the type conversions (included by the Convert
// and Scale family files inside their Highway target loop).
//
// A vector of the source type with as many lanes as a full vector of the
// working lanes is loaded, widened, mapped by the rule and narrowed to the
// destination type with saturation (SaturatingNarrow clamps first). The
// working lanes are 16-bit for pairs of 8- and 16-bit types whose rule
// stays within 16 bits, 32-bit (int32 or 32f) otherwise; 8-bit results of
// 32-bit lanes are packed four vectors at a time, and the double-precision
// rule splits the lanes into two halves. The head that aligns streamed
// stores and the tail of a row run the same vector code on a vector loaded
// with only the row's elements, so every element gets the same bits
// wherever it lies.
#if defined(ZEL_DATA_CONVERT_ROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_DATA_CONVERT_ROW_INL_H_
#undef ZEL_DATA_CONVERT_ROW_INL_H_
#else
#define ZEL_DATA_CONVERT_ROW_INL_H_
#endif

#include <hwy/highway.h>

#include <hwy/cache_control.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/image.h"
#include "core/narrow-inl.h"
#include "core/store_under_mask-inl.h"
#include "data/convert_rules.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

namespace convert_detail {

using DI = hn::ScalableTag<std::int32_t>;
using DF = hn::Rebind<float, DI>;

template <class Src, class V>
HWY_INLINE hn::Vec<DI> ToInt32(V x) {
    const DI di;
    if constexpr (std::is_same_v<Src, std::int32_t>) {
        return x;
    } else {
        return hn::PromoteTo(di, x);
    }
}

// min(x, hi), then max(., lo), as the vector unit takes them: the minimum
// is x < hi ? x : hi, so NaN (and -0 against +0) gives hi, and the maximum
// v > lo ? v : lo. Highway's Min and Max of 32f are these instructions on
// every x86 target, with the operands in this order.
HWY_INLINE hn::Vec<DF> ClampMinFirst(hn::Vec<DF> x, hn::Vec<DF> lo, hn::Vec<DF> hi) {
    return hn::Max(hn::Min(x, hi), lo);
}

// 32f lanes to int32, rounding to nearest even (under the standard
// environment) or toward zero: the plain conversion instructions, without
// Highway's fix-up of out-of-range lanes. Lanes must lie inside the int32
// range, or be negative (they give the lowest int32, which the narrowing
// saturates).
template <bool Truncate>
HWY_INLINE hn::Vec<DI> ConvertInRange(hn::Vec<DF> v) {
#if HWY_TARGET == HWY_AVX3
    return hn::Vec<DI>{Truncate ? _mm512_cvttps_epi32(v.raw) : _mm512_cvtps_epi32(v.raw)};
#elif HWY_TARGET == HWY_AVX2
    return hn::Vec<DI>{Truncate ? _mm256_cvttps_epi32(v.raw) : _mm256_cvtps_epi32(v.raw)};
#else
    return hn::Vec<DI>{Truncate ? _mm_cvttps_epi32(v.raw) : _mm_cvtps_epi32(v.raw)};
#endif
}

// The rule's value of each lane: 32f lanes for 32f destinations, 32-bit
// integers (exact, or to be saturated) for the others.
template <class Src, class Dst, convert::Rule R, class V>
HWY_INLINE auto Map(V x, const convert::Params& p) {
    using convert::Rule;
    const DI di;
    const DF df;
    if constexpr (R == Rule::Widen) {
        const auto i = ToInt32<Src>(x);
        if constexpr (std::is_same_v<Dst, float>) {
            return hn::ConvertTo(df, i);
        } else {
            return i;
        }
    } else if constexpr (R == Rule::Saturate) {
        return ToInt32<Src>(x);
    } else if constexpr (R == Rule::Truncate) {
        // The maximum with the lowest value is left to the narrowing's
        // saturation: rounding is monotonic and the limit an integer, so
        // saturating the rounded value gives the rounded clamped value.
        return ConvertInRange<true>(hn::Min(x, hn::Set(df, p.hi)));
    } else if constexpr (R == Rule::NearestEven) {
        return ConvertInRange<false>(hn::Min(x, hn::Set(df, p.hi)));
    } else if constexpr (R == Rule::HalfAway) {
        const auto v = hn::Min(x, hn::Set(df, p.hi));
        // -inf (and values below the int range) truncate to the lowest
        // integer, which the narrowing saturates.
        return ConvertInRange<true>(hn::Add(v, hn::CopySign(hn::Set(df, 0.5f), v)));
    } else if constexpr (R == Rule::ShiftScale32) {
        return hn::Add(hn::ShiftRight<24>(hn::Sub(x, hn::ShiftRight<8>(x))), hn::Set(di, 128));
    } else if constexpr (R == Rule::FloatScale16) {
        const auto f = hn::ConvertTo(df, hn::Add(ToInt32<Src>(x), hn::Set(di, p.offset)));
        return ConvertInRange<false>(hn::Mul(f, hn::Set(df, p.k)));  // 0 .. 255
    } else if constexpr (R == Rule::DoubleScale32) {
        const hn::Half<DI> dh;
        const hn::Rebind<double, decltype(dh)> dd;
        auto half = [&](auto ints) HWY_ATTR {
            const auto v = hn::Add(hn::Mul(hn::PromoteTo(dd, ints), hn::Set(dd, p.dk)), hn::Set(dd, p.db));
            return hn::DemoteTo(dh, hn::Round(v));  // exact: the value is a small integer
        };
        return hn::Combine(di, half(hn::UpperHalf(dh, x)), half(hn::LowerHalf(dh, x)));
    } else if constexpr (R == Rule::Repeat) {
        return hn::Add(hn::Mul(ToInt32<Src>(x), hn::Set(di, p.multiplier)), hn::Set(di, p.addend));
    } else if constexpr (R == Rule::ToFloatRange) {
        return hn::Add(hn::Mul(hn::ConvertTo(df, ToInt32<Src>(x)), hn::Set(df, p.k)), hn::Set(df, p.b));
    } else if constexpr (R == Rule::FromFiniteRange) {
        // Finite limits, factor and offset: y stays within a rounding error
        // of 0 .. 255, and the narrowing saturates it.
        const auto v = ClampMinFirst(x, hn::Set(df, p.lo), hn::Set(df, p.hi));
        return ConvertInRange<false>(hn::Add(hn::Mul(v, hn::Set(df, p.k)), hn::Set(df, p.b)));
    } else {
        static_assert(R == Rule::FromFloatRange);
        const auto v = ClampMinFirst(x, hn::Set(df, p.lo), hn::Set(df, p.hi));
        const auto y = hn::Add(hn::Mul(v, hn::Set(df, p.k)), hn::Set(df, p.b));
        // Saturated in 32f: max(y, 0) first, so a NaN (from a factor or
        // offset that is not finite) counts as 0.
        return ConvertInRange<false>(hn::Min(hn::Max(y, hn::Zero(df)), hn::Set(df, 255.0f)));
    }
}

// Rules whose values always lie in the destination's range: their
// narrowing needs no clamp.
template <convert::Rule R>
inline constexpr bool kInRange = R != convert::Rule::Saturate && R != convert::Rule::HalfAway &&
                                 R != convert::Rule::Truncate && R != convert::Rule::NearestEven &&
                                 R != convert::Rule::FromFiniteRange;

template <class Src, class Dst, convert::Rule R, class V>
HWY_INLINE auto Apply(V x, const convert::Params& p) {
    const DI di;
    const hn::Rebind<Dst, DI> dd;
    const auto m = Map<Src, Dst, R>(x, p);
    if constexpr (std::is_same_v<Dst, float> || std::is_same_v<Dst, std::int32_t>) {
        return m;
    } else if constexpr (kInRange<R>) {
        return hn::DemoteTo(dd, m);
    } else {
        return SaturatingNarrow(dd, di, m);
    }
}

// Pairs of 8- and 16-bit types whose rule needs no more than 16 bits work
// in 16-bit lanes, twice as many a vector.
template <class Src, class Dst, convert::Rule R>
inline constexpr bool kNarrowLanes =
    sizeof(Src) <= 2 && sizeof(Dst) <= 2 &&
    (R == convert::Rule::Widen || R == convert::Rule::Saturate || R == convert::Rule::ShiftScale16 ||
     R == convert::Rule::Repeat);

using DW16 = hn::ScalableTag<std::int16_t>;

template <class Src, class Dst, convert::Rule R>
using LaneTag = std::conditional_t<kNarrowLanes<Src, Dst, R>, DW16, DI>;

template <class Src, class Dst, convert::Rule R, class V>
HWY_INLINE auto Apply16(V x, const convert::Params& p) {
    using convert::Rule;
    const DW16 dw;
    const hn::RebindToUnsigned<DW16> du;
    const hn::Rebind<Dst, DW16> dd;
    if constexpr (R == Rule::Widen) {  // 8u to 16u or 16s
        return hn::BitCast(dd, hn::PromoteTo(du, x));
    } else if constexpr (R == Rule::Repeat) {  // 8u to 16u or 16s, wrapping in 16 bits
        const auto v = hn::Add(hn::Mul(hn::PromoteTo(du, x), hn::Set(du, std::uint16_t(p.multiplier))),
                               hn::Set(du, std::uint16_t(p.addend)));
        return hn::BitCast(dd, v);
    } else if constexpr (R == Rule::Saturate) {  // 16s or 16u to 8u
        return SaturatingNarrow(dd, hn::Rebind<Src, DW16>(), x);
    } else {
        // ((y - (y >> 8)) >> 8) + 128 stays within 16 bits: y - (y >> 8)
        // moves y toward 0. For 16u, y = x - 32768 is x with its top bit
        // flipped, read as signed.
        static_assert(R == Rule::ShiftScale16);
        hn::Vec<DW16> y;
        if constexpr (std::is_same_v<Src, std::uint16_t>) {
            y = hn::BitCast(dw, hn::Xor(x, hn::Set(du, std::uint16_t{0x8000})));
        } else {
            y = x;
        }
        return hn::DemoteTo(dd, hn::Add(hn::ShiftRight<8>(hn::Sub(y, hn::ShiftRight<8>(y))), hn::Set(dw, 128)));
    }
}

template <class Src, class Dst, convert::Rule R, class V>
HWY_INLINE auto Convert(V x, const convert::Params& p) {
    if constexpr (kNarrowLanes<Src, Dst, R>) {
        return Apply16<Src, Dst, R>(x, p);
    } else {
        return Apply<Src, Dst, R>(x, p);
    }
}

// 8-bit results of 32-bit lanes: four vectors of int32 packed into one
// full vector with saturation (signed to 16 bits, then to the 8-bit type)
// and put back in element order, instead of four narrowing demotions.
template <class Dst>
inline constexpr bool kPacksFour = sizeof(Dst) == 1;

template <class Dst>
HWY_INLINE hn::Vec<hn::ScalableTag<Dst>> PackFour(hn::Vec<DI> a, hn::Vec<DI> b, hn::Vec<DI> c, hn::Vec<DI> d) {
    using V8 = hn::Vec<hn::ScalableTag<Dst>>;
    constexpr bool kUnsigned = std::is_same_v<Dst, std::uint8_t>;
#if HWY_TARGET == HWY_AVX3
    const __m512i ab = _mm512_packs_epi32(a.raw, b.raw), cd = _mm512_packs_epi32(c.raw, d.raw);
    const __m512i bytes = kUnsigned ? _mm512_packus_epi16(ab, cd) : _mm512_packs_epi16(ab, cd);
    // Lane k of the 128-bit lanes holds four bytes of a, b, c, d each.
    const __m512i order = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
    return V8{_mm512_permutexvar_epi32(order, bytes)};
#elif HWY_TARGET == HWY_AVX2
    const __m256i ab = _mm256_packs_epi32(a.raw, b.raw), cd = _mm256_packs_epi32(c.raw, d.raw);
    const __m256i bytes = kUnsigned ? _mm256_packus_epi16(ab, cd) : _mm256_packs_epi16(ab, cd);
    return V8{_mm256_permutevar8x32_epi32(bytes, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
#else
    const __m128i ab = _mm_packs_epi32(a.raw, b.raw), cd = _mm_packs_epi32(c.raw, d.raw);
    return V8{kUnsigned ? _mm_packus_epi16(ab, cd) : _mm_packs_epi16(ab, cd)};
#endif
}

}  // namespace convert_detail

// Converts elements [begin * C, end * C) of `rows` rows, C = `channels`.
// With `alpha` (AC4, C = 4) every fourth destination element is left
// alone and the block's last source element, an alpha, is not read.
// `stream` stores 32-bit results past the caches.
template <class Src, class Dst, convert::Rule R>
void ConvertRows(const Src* HWY_RESTRICT src, int srcStep, Dst* HWY_RESTRICT dst, int dstStep,
                 std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, int channels, bool alpha,
                 const convert::Params& params, bool stream) {
    using namespace convert_detail;
    const convert::Params p = params;  // a local copy: the stores cannot alias it
    using DW = LaneTag<Src, Dst, R>;
    const DW dw;
    const hn::Rebind<Src, DW> ds;
    const hn::Rebind<Dst, DW> dd;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
    constexpr bool kStreamable = sizeof(Dst) == 4;
    stream = kStreamable && stream && !alpha;
    bool streamed = false;

    // count (< lanes) elements at x, through the same vector code.
    auto partial = [&](const Src* s, Dst* d, std::ptrdiff_t x, std::ptrdiff_t count) HWY_ATTR {
        const auto v = Convert<Src, Dst, R>(LoadFirst(ds, s + x, static_cast<std::size_t>(count)), p);
        HWY_ALIGN Dst out[hn::MaxLanes(dd)];
        hn::Store(v, dd, out);
        if (alpha) {
            for (std::ptrdiff_t i = 0; i < count; ++i)
                if (((x + i) & 3) != 3) std::memcpy(d + x + i, out + i, sizeof(Dst));
        } else {
            std::memcpy(d + x, out, static_cast<std::size_t>(count) * sizeof(Dst));
        }
    };

    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const Src* s = rowAt(src, srcStep, y);
        Dst* d = rowAt(dst, dstStep, y);
        std::ptrdiff_t x = begin * channels;
        const std::ptrdiff_t limit = end * channels - (alpha ? 1 : 0);
        bool rowStreams = false;
        if (stream) {
            // A head through the partial path brings the stores to a
            // vector boundary (elements misaligned within it never stream).
            const std::uintptr_t vectorBytes = static_cast<std::uintptr_t>(lanes) * sizeof(Dst);
            const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(d + x) % vectorBytes;
            if (at % sizeof(Dst) == 0) {
                std::ptrdiff_t head = at == 0 ? 0 : static_cast<std::ptrdiff_t>((vectorBytes - at) / sizeof(Dst));
                if (head > limit - x) head = limit - x;
                if (head > 0) partial(s, d, x, head);
                x += head;
                rowStreams = true;
            }
        }
        if (alpha) {
            for (; limit - x >= lanes; x += lanes)
                StorePixelRuns(Convert<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x, 4 * sizeof(Dst),
                               3 * sizeof(Dst));
        } else if (rowStreams) {
            if constexpr (kStreamable) {
                streamed = true;
                for (; limit - x >= lanes; x += lanes)
                    hn::Stream(Convert<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x);
            }
        } else if constexpr (kPacksFour<Dst> && !kNarrowLanes<Src, Dst, R>) {
            const hn::ScalableTag<Dst> d8;
            for (; limit - x >= 4 * lanes; x += 4 * lanes) {
                const auto v0 = Map<Src, Dst, R>(hn::LoadU(ds, s + x), p);
                const auto v1 = Map<Src, Dst, R>(hn::LoadU(ds, s + x + lanes), p);
                const auto v2 = Map<Src, Dst, R>(hn::LoadU(ds, s + x + 2 * lanes), p);
                const auto v3 = Map<Src, Dst, R>(hn::LoadU(ds, s + x + 3 * lanes), p);
                hn::StoreU(PackFour<Dst>(v0, v1, v2, v3), d8, d + x);
            }
            for (; limit - x >= lanes; x += lanes) hn::StoreU(Convert<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x);
        } else {
            for (; limit - x >= 4 * lanes; x += 4 * lanes) {
                const auto v0 = Convert<Src, Dst, R>(hn::LoadU(ds, s + x), p);
                const auto v1 = Convert<Src, Dst, R>(hn::LoadU(ds, s + x + lanes), p);
                const auto v2 = Convert<Src, Dst, R>(hn::LoadU(ds, s + x + 2 * lanes), p);
                const auto v3 = Convert<Src, Dst, R>(hn::LoadU(ds, s + x + 3 * lanes), p);
                hn::StoreU(v0, dd, d + x);
                hn::StoreU(v1, dd, d + x + lanes);
                hn::StoreU(v2, dd, d + x + 2 * lanes);
                hn::StoreU(v3, dd, d + x + 3 * lanes);
            }
            for (; limit - x >= lanes; x += lanes) hn::StoreU(Convert<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x);
        }
        if (limit > x) partial(s, d, x, limit - x);
    }
    if (streamed) hwy::FlushStream();
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_DATA_CONVERT_ROW_INL_H_
