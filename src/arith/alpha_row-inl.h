// Row kernels of alpha compositing and premultiplication (per target).
//
// Pixels are widened to lanes twice their size (8u to 16-bit lanes, 16u to
// 32-bit lanes), where every product x * y and the sums of the rule are
// exact; the results, never above the maximum, are narrowed back. The vector
// path computes the expressions of alpha_rule.h lane by lane and gives their
// bits; row ends take the scalar rule.
//
// Interleaved (c0, c1, c2, a) rows keep whole pixels in a vector: each
// pixel's alpha is copied to its four lanes by a byte shuffle inside
// 128-bit blocks, and the alpha lane is premultiplied by the maximum, which
// leaves it as it is, so one expression serves colour and alpha lanes.
#if defined(ZEL_ARITH_ALPHA_ROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_ARITH_ALPHA_ROW_INL_H_
#undef ZEL_ARITH_ALPHA_ROW_INL_H_
#else
#define ZEL_ARITH_ALPHA_ROW_INL_H_
#endif

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>

#include "arith/alpha_rule.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
using alpha::AlphaFrom;
using alpha::PremulBy;

template <class T>
using WideTag = hn::ScalableTag<hwy::MakeWide<T>>;

// floor(x * y / M) and min(M, x) in wide lanes.
template <class T, class DW, class V = hn::VFromD<DW>>
HWY_INLINE V MulDivLanes(DW dw, V x, V y) {
    const V t = hn::Mul(x, y);
    return hn::ShiftRight<alpha::kShift<T>>(hn::Add(hn::Add(t, hn::ShiftRight<alpha::kShift<T>>(t)), hn::Set(dw, 1)));
}
template <class T, class DW, class V = hn::VFromD<DW>>
HWY_INLINE V SaturateLanes(DW dw, V x) {
    return hn::Min(x, hn::Set(dw, alpha::kMax<T>));
}

// The composition of alpha_rule.h's composeChannel on lanes; `alphaLanes`
// selects the lanes that take ATop's alpha rule.
template <class T, int Type, class DW, class V = hn::VFromD<DW>, class M = hn::MFromD<DW>>
HWY_INLINE V ComposeLanes(DW dw, V c1, V p1, V a1, V c2, V p2, V a2, M alphaLanes) {
    const V max = hn::Set(dw, alpha::kMax<T>);
    if constexpr (alpha::straightOf(Type)) {
        c1 = MulDivLanes<T>(dw, c1, p1);
        c2 = MulDivLanes<T>(dw, c2, p2);
    }
    constexpr int op = alpha::opOf(Type);
    if constexpr (op == alpha::kOver) {
        return SaturateLanes<T>(dw, hn::Add(c1, MulDivLanes<T>(dw, c2, hn::Sub(max, a1))));
    } else if constexpr (op == alpha::kIn) {
        return MulDivLanes<T>(dw, c1, a2);
    } else if constexpr (op == alpha::kOut) {
        return MulDivLanes<T>(dw, c1, hn::Sub(max, a2));
    } else if constexpr (op == alpha::kATop) {
        const V colour = SaturateLanes<T>(
            dw, hn::Add(MulDivLanes<T>(dw, c1, a2), MulDivLanes<T>(dw, c2, hn::Sub(max, a1))));
        return hn::IfThenElse(alphaLanes, c2, colour);
    } else if constexpr (op == alpha::kXor) {
        return SaturateLanes<T>(
            dw, hn::Add(MulDivLanes<T>(dw, c1, hn::Sub(max, a2)), MulDivLanes<T>(dw, c2, hn::Sub(max, a1))));
    } else {
        return SaturateLanes<T>(dw, hn::Add(c1, c2));
    }
}

// Lanes(dw) elements of T at p, widened; and the narrowing store.
template <class T, class DW>
HWY_INLINE hn::VFromD<DW> LoadWide(DW dw, const T* HWY_RESTRICT p) {
    const hn::Rebind<T, DW> dn;
    return hn::PromoteTo(dw, hn::LoadU(dn, p));
}
template <class T, class DW>
HWY_INLINE void StoreNarrow(DW /*dw*/, hn::VFromD<DW> v, T* HWY_RESTRICT p) {
    const hn::Rebind<T, DW> dn;
    const hn::RebindToSigned<DW> di;
    hn::StoreU(hn::DemoteTo(dn, hn::BitCast(di, v)), dn, p);
}

// Lanes 3, 7, 11, ...: the alpha channels of interleaved pixels.
template <class DW>
HWY_INLINE hn::MFromD<DW> AlphaLanes(DW dw) {
    const auto three = hn::Set(dw, 3);
    return hn::Eq(hn::And(hn::Iota(dw, 0), three), three);
}

// Each pixel's fourth lane copied to its four lanes (pixels never straddle
// a 128-bit block: 8 or 16 bytes each).
template <class DW>
HWY_INLINE hn::VFromD<DW> BroadcastAlpha(DW dw, hn::VFromD<DW> v) {
    using W = hn::TFromD<DW>;
    const hn::Repartition<std::uint8_t, DW> d8;
    HWY_ALIGN std::uint8_t index[hn::MaxLanes(d8)];
    constexpr std::size_t pixel = 4 * sizeof(W);
    for (std::size_t j = 0; j < hn::Lanes(d8); ++j) {
        const std::size_t inBlock = j % 16;
        index[j] = static_cast<std::uint8_t>(inBlock / pixel * pixel + 3 * sizeof(W) + inBlock % sizeof(W));
    }
    return hn::BitCast(dw, hn::TableLookupBytes(hn::BitCast(d8, v), hn::Load(d8, index)));
}

// One interleaved pixel by the scalar rule.
template <class T, int Type, AlphaFrom From>
HWY_INLINE void ComposePixel(const T* s1, const T* s2, T* d, T alpha1, T alpha2, const T* key) {
    std::uint32_t a1 = From == AlphaFrom::Pixels ? s1[3] : alpha1;
    const std::uint32_t a2 = From == AlphaFrom::Pixels ? s2[3] : alpha2;
    std::uint32_t c1[3] = {s1[0], s1[1], s1[2]};
    if (From == AlphaFrom::ColorKey && s1[0] == key[0] && s1[1] == key[1] && s1[2] == key[2]) {
        a1 = 0;
        c1[0] = c1[1] = c1[2] = 0;
    }
    for (int c = 0; c < 3; ++c) d[c] = T(alpha::composeChannel<T, Type>(c1[c], a1, a1, s2[c], a2, a2, false));
    d[3] = T(alpha::composeAlpha<T, Type>(a1, a2));
}

// `pixels` interleaved pixels (c0, c1, c2, a) of source 1 composited with
// those of source 2 into dst: colour and alpha channels.
template <class T, int Type, AlphaFrom From>
void ComposePixelRow(const T* HWY_RESTRICT s1, const T* HWY_RESTRICT s2, T* HWY_RESTRICT dst,
                     std::ptrdiff_t pixels, T alpha1, T alpha2, const T* key) {
    const WideTag<T> dw;
    using V = hn::VFromD<decltype(dw)>;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
    const std::ptrdiff_t n = pixels * 4;
    const auto alphaLanes = AlphaLanes(dw);
    const V maxInAlpha = hn::IfThenElseZero(alphaLanes, hn::Set(dw, alpha::kMax<T>));
    V keyLanes = hn::Zero(dw);
    if constexpr (From == AlphaFrom::ColorKey) {
        HWY_ALIGN hwy::MakeWide<T> pattern[hn::MaxLanes(dw)];
        for (std::ptrdiff_t i = 0; i < lanes; ++i) pattern[i] = i % 4 == 3 ? 0 : key[i % 4];
        keyLanes = hn::Load(dw, pattern);
    }
    std::ptrdiff_t i = 0;
    for (; n - i >= lanes; i += lanes) {
        V v1 = LoadWide(dw, s1 + i), v2 = LoadWide(dw, s2 + i);
        V a1, a2;
        if constexpr (From == AlphaFrom::Pixels) {
            a1 = BroadcastAlpha(dw, v1);
            a2 = BroadcastAlpha(dw, v2);
        } else {
            a1 = hn::Set(dw, alpha1);
            a2 = hn::Set(dw, alpha2);
            if constexpr (From == AlphaFrom::ColorKey) {
                // A pixel matches when its three colour lanes equal the key's.
                const hn::Repartition<std::uint64_t, decltype(dw)> d64;
                const auto lanesEqual = hn::Or(hn::Eq(v1, keyLanes), alphaLanes);
                const auto pixelEqual = hn::Eq(hn::BitCast(d64, hn::VecFromMask(dw, lanesEqual)),
                                               hn::Set(d64, ~std::uint64_t{0}));
                const auto match = hn::MaskFromVec(hn::BitCast(dw, hn::VecFromMask(d64, pixelEqual)));
                a1 = hn::IfThenZeroElse(match, a1);
                v1 = hn::IfThenZeroElse(match, v1);
            }
            v1 = hn::IfThenElse(alphaLanes, a1, v1);
            v2 = hn::IfThenElse(alphaLanes, a2, v2);
        }
        const V p1 = hn::Or(a1, maxInAlpha), p2 = hn::Or(a2, maxInAlpha);
        StoreNarrow(dw, ComposeLanes<T, Type>(dw, v1, p1, a1, v2, p2, a2, alphaLanes), dst + i);
    }
    for (; i < n; i += 4) ComposePixel<T, Type, From>(s1 + i, s2 + i, dst + i, alpha1, alpha2, key);
}

// `n` elements that are all colour or all alpha (isAlpha): c1 and c2 the
// values, a1 and a2 the alphas per element, or the constants alpha1 and
// alpha2 when Constant. Planes of AP4 images, AC1 rows (alpha values
// composited as alphas) and interleaved rows under constant alphas.
template <class T, int Type, bool Constant>
void ComposeElementRow(const T* HWY_RESTRICT c1, const T* HWY_RESTRICT a1p, const T* HWY_RESTRICT c2,
                       const T* HWY_RESTRICT a2p, T* HWY_RESTRICT dst, std::ptrdiff_t n, T alpha1, T alpha2,
                       bool isAlpha) {
    const WideTag<T> dw;
    using V = hn::VFromD<decltype(dw)>;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
    const auto alphaLanes = hn::FirstN(dw, isAlpha ? static_cast<std::size_t>(lanes) : 0);
    const V max = hn::Set(dw, alpha::kMax<T>);
    std::ptrdiff_t i = 0;
    for (; n - i >= lanes; i += lanes) {
        const V v1 = LoadWide(dw, c1 + i), v2 = LoadWide(dw, c2 + i);
        const V a1 = Constant ? hn::Set(dw, alpha1) : LoadWide(dw, a1p + i);
        const V a2 = Constant ? hn::Set(dw, alpha2) : LoadWide(dw, a2p + i);
        const V p1 = hn::IfThenElse(alphaLanes, max, a1), p2 = hn::IfThenElse(alphaLanes, max, a2);
        StoreNarrow(dw, ComposeLanes<T, Type>(dw, v1, p1, a1, v2, p2, a2, alphaLanes), dst + i);
    }
    for (; i < n; ++i) {
        const std::uint32_t a1 = Constant ? alpha1 : a1p[i], a2 = Constant ? alpha2 : a2p[i];
        const std::uint32_t p1 = isAlpha ? alpha::kMax<T> : a1, p2 = isAlpha ? alpha::kMax<T> : a2;
        dst[i] = T(alpha::composeChannel<T, Type>(c1[i], p1, a1, c2[i], p2, a2, isAlpha));
    }
}

// m(src[i], factor) for `n` elements.
template <class T, PremulBy By>
void PremultiplyRow(const T* HWY_RESTRICT src, const T* HWY_RESTRICT a, T* HWY_RESTRICT dst, std::ptrdiff_t n,
                    T alpha) {
    const WideTag<T> dw;
    using V = hn::VFromD<decltype(dw)>;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
    const auto alphaLanes = AlphaLanes(dw);
    const V maxInAlpha = hn::IfThenElseZero(alphaLanes, hn::Set(dw, alpha::kMax<T>));
    const V constant = hn::Set(dw, alpha);
    std::ptrdiff_t i = 0;
    for (; n - i >= lanes; i += lanes) {
        const V v = LoadWide(dw, src + i);
        V r;
        if constexpr (By == PremulBy::Constant) {
            r = MulDivLanes<T>(dw, v, constant);
        } else if constexpr (By == PremulBy::ConstantAlpha) {
            r = hn::IfThenElse(alphaLanes, constant, MulDivLanes<T>(dw, v, constant));
        } else if constexpr (By == PremulBy::PixelAlpha) {
            r = MulDivLanes<T>(dw, v, hn::Or(BroadcastAlpha(dw, v), maxInAlpha));
        } else {
            r = MulDivLanes<T>(dw, v, LoadWide(dw, a + i));
        }
        StoreNarrow(dw, r, dst + i);
    }
    for (; i < n; ++i) {
        const bool isAlpha = i % 4 == 3;
        std::uint32_t r;
        if constexpr (By == PremulBy::Constant) r = alpha::mulDiv<T>(src[i], alpha);
        else if constexpr (By == PremulBy::ConstantAlpha) r = isAlpha ? alpha : alpha::mulDiv<T>(src[i], alpha);
        else if constexpr (By == PremulBy::PixelAlpha) r = isAlpha ? src[i] : alpha::mulDiv<T>(src[i], src[i - i % 4 + 3]);
        else r = alpha::mulDiv<T>(src[i], a[i]);
        dst[i] = T(r);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_ARITH_ALPHA_ROW_INL_H_
