// Per-target row kernel of the type conversions (included by the Convert
// and Scale family files inside their Highway target loop).
//
// Every element pair is worked in 32-bit lanes: a vector of the source type
// with as many lanes as a full vector of 32-bit lanes is loaded, widened to
// 32-bit integers (or read as 32f), mapped by the rule and narrowed to the
// destination type with saturation (SaturatingNarrow clamps first). The
// double-precision rule splits the lanes into two halves. The head that
// aligns streamed stores and the tail of a row run the same vector code on
// a vector loaded with only the row's elements, so every element gets the
// same bits wherever it lies.
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

// min(x, hi) as the vector unit's minimum takes it: x < hi ? x : hi, so
// NaN gives hi; then max(., lo) the same way.
HWY_INLINE hn::Vec<DF> ClampMinFirst(hn::Vec<DF> x, hn::Vec<DF> lo, hn::Vec<DF> hi) {
    const hn::Vec<DF> v = hn::IfThenElse(hn::Lt(x, hi), x, hi);
    return hn::IfThenElse(hn::Gt(v, lo), v, lo);
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
        return hn::ConvertTo(di, ClampMinFirst(x, hn::Set(df, p.lo), hn::Set(df, p.hi)));
    } else if constexpr (R == Rule::NearestEven) {
        return hn::NearestInt(ClampMinFirst(x, hn::Set(df, p.lo), hn::Set(df, p.hi)));
    } else if constexpr (R == Rule::HalfAway) {
        const auto hi = hn::Set(df, p.hi);
        const auto v = hn::IfThenElse(hn::Lt(x, hi), x, hi);
        // -inf (and values below the int range) truncate to the lowest
        // integer, which the narrowing saturates.
        return hn::ConvertTo(di, hn::Add(v, hn::CopySign(hn::Set(df, 0.5f), v)));
    } else if constexpr (R == Rule::ShiftScale16) {
        const auto y = hn::Add(ToInt32<Src>(x), hn::Set(di, p.offset));
        return hn::Add(hn::ShiftRight<8>(hn::Sub(y, hn::ShiftRight<8>(y))), hn::Set(di, 128));
    } else if constexpr (R == Rule::ShiftScale32) {
        return hn::Add(hn::ShiftRight<24>(hn::Sub(x, hn::ShiftRight<8>(x))), hn::Set(di, 128));
    } else if constexpr (R == Rule::FloatScale16) {
        const auto f = hn::ConvertTo(df, hn::Add(ToInt32<Src>(x), hn::Set(di, p.offset)));
        return hn::NearestInt(hn::Mul(f, hn::Set(df, p.k)));
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
    } else {
        static_assert(R == Rule::FromFloatRange);
        const auto v = ClampMinFirst(x, hn::Set(df, p.lo), hn::Set(df, p.hi));
        const auto y = hn::Add(hn::Mul(v, hn::Set(df, p.k)), hn::Set(df, p.b));
        // A factor or offset that is not finite can give NaN: it counts as 0.
        return hn::NearestInt(hn::IfThenElseZero(hn::Eq(y, y), y));
    }
}

template <class Src, class Dst, convert::Rule R, class V>
HWY_INLINE auto Apply(V x, const convert::Params& p) {
    const DI di;
    const hn::Rebind<Dst, DI> dd;
    const auto m = Map<Src, Dst, R>(x, p);
    if constexpr (std::is_same_v<Dst, float> || std::is_same_v<Dst, std::int32_t>) {
        return m;
    } else {
        return SaturatingNarrow(dd, di, m);
    }
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
    const DI di;
    const hn::Rebind<Src, DI> ds;
    const hn::Rebind<Dst, DI> dd;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(di));
    constexpr bool kStreamable = sizeof(Dst) == 4;
    stream = kStreamable && stream && !alpha;
    bool streamed = false;

    // count (< lanes) elements at x, through the same vector code.
    auto partial = [&](const Src* s, Dst* d, std::ptrdiff_t x, std::ptrdiff_t count) HWY_ATTR {
        const auto v = Apply<Src, Dst, R>(LoadFirst(ds, s + x, static_cast<std::size_t>(count)), p);
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
                StorePixelRuns(Apply<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x, 4 * sizeof(Dst),
                               3 * sizeof(Dst));
        } else if (rowStreams) {
            if constexpr (kStreamable) {
                streamed = true;
                for (; limit - x >= lanes; x += lanes)
                    hn::Stream(Apply<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x);
            }
        } else {
            for (; limit - x >= 4 * lanes; x += 4 * lanes) {
                const auto v0 = Apply<Src, Dst, R>(hn::LoadU(ds, s + x), p);
                const auto v1 = Apply<Src, Dst, R>(hn::LoadU(ds, s + x + lanes), p);
                const auto v2 = Apply<Src, Dst, R>(hn::LoadU(ds, s + x + 2 * lanes), p);
                const auto v3 = Apply<Src, Dst, R>(hn::LoadU(ds, s + x + 3 * lanes), p);
                hn::StoreU(v0, dd, d + x);
                hn::StoreU(v1, dd, d + x + lanes);
                hn::StoreU(v2, dd, d + x + 2 * lanes);
                hn::StoreU(v3, dd, d + x + 3 * lanes);
            }
            for (; limit - x >= lanes; x += lanes) hn::StoreU(Apply<Src, Dst, R>(hn::LoadU(ds, s + x), p), dd, d + x);
        }
        if (limit > x) partial(s, d, x, limit - x);
    }
    if (streamed) hwy::FlushStream();
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_DATA_CONVERT_ROW_INL_H_
