// MinEvery, MaxEvery: the destination becomes the element-wise minimum
// (maximum) of source and destination, row after row. A destination value
// is replaced only where the source is strictly smaller (larger), so for
// 32f a NaN on either side and a zero of the other sign keep the
// destination. AC4 rows store their colour channels under a mask and take
// the last pixel alone, so alpha bytes are neither read past the row nor
// written.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/min_every.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/store_under_mask-inl.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <bool kMax, class D, class V>
HWY_INLINE V Pick(D, V s, V t) {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
        return hn::IfThenElse(kMax ? hn::Lt(t, s) : hn::Lt(s, t), s, t);
    } else {
        return kMax ? hn::Max(s, t) : hn::Min(s, t);
    }
}

template <bool kMax, class T>
HWY_INLINE T PickScalar(T s, T t) {
    return (kMax ? t < s : s < t) ? s : t;
}

// One row: `pixels` pixels of `channels` elements (4 for AC4, whose
// fourth is left alone when alpha is true).
template <class T, bool kMax, bool kAlpha>
void EveryRow(const T* HWY_RESTRICT src, T* HWY_RESTRICT dst, std::ptrdiff_t pixels, int channels) {
    const hn::ScalableTag<T> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const std::ptrdiff_t n = kAlpha ? (pixels - 1) * 4 : pixels * channels;
    std::ptrdiff_t i = 0;
    if constexpr (kAlpha) {
        if (kNativeMaskedAccess<T> && lanes >= 4) {
            const auto colour = hn::Ne(hn::And(hn::Iota(hn::RebindToUnsigned<decltype(d)>(), 0),
                                               hn::Set(hn::RebindToUnsigned<decltype(d)>(), 3)),
                                       hn::Set(hn::RebindToUnsigned<decltype(d)>(), 3));
            const auto m = hn::RebindMask(d, colour);
            for (; n - i >= lanes; i += lanes) {
                const auto r = Pick<kMax>(d, hn::LoadU(d, src + i), hn::LoadU(d, dst + i));
                StoreUnderMask(r, m, d, dst + i);
            }
        }
        for (; i < pixels * 4; i += 4)
            for (int c = 0; c < 3; ++c) dst[i + c] = PickScalar<kMax>(src[i + c], dst[i + c]);
    } else {
        for (; n - i >= lanes; i += lanes)
            hn::StoreU(Pick<kMax>(d, hn::LoadU(d, src + i), hn::LoadU(d, dst + i)), d, dst + i);
        for (; i < n; ++i) dst[i] = PickScalar<kMax>(src[i], dst[i]);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"

namespace zel {
namespace {

template <class T, Layout L, bool kMax>
ZelStatus every(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pSrcDst).roi(roi).steps(srcStep, srcDstStep)) return st;
    constexpr int C = kChannels<L>;
    constexpr bool kAlpha = L == Layout::AC4;
    StandardFpEnvironment environment;  // denormal values compare as themselves
    const auto kernel = ZEL_DISPATCH(EveryRow<T, kMax, kAlpha>);
    const int team = teamSize(std::int64_t{roi.width} * C * sizeof(T) * 3 * roi.height, kCostMove, roi.height);
    forEachRow(roi.height, team, [&](std::ptrdiff_t y) {
        kernel(rowAt(pSrc, srcStep, y), rowAt(pSrcDst, srcDstStep, y), roi.width, C);
    });
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_EVERY(type, layout)                                                                             \
    ZelStatus zeliMinEvery_##type##_##layout##IR(const Zel##type* pSrc, int srcStep, Zel##type* pSrcDst,      \
                                                 int srcDstStep, ZeliSize roiSize) {                          \
        return zel::every<Zel##type, zel::Layout::layout, false>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize); \
    }                                                                                                         \
    ZelStatus zeliMaxEvery_##type##_##layout##IR(const Zel##type* pSrc, int srcStep, Zel##type* pSrcDst,      \
                                                 int srcDstStep, ZeliSize roiSize) {                          \
        return zel::every<Zel##type, zel::Layout::layout, true>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize);  \
    }
#define ZELI_EVERY_LAYOUTS(type) ZELI_EVERY(type, C1) ZELI_EVERY(type, C3) ZELI_EVERY(type, C4) ZELI_EVERY(type, AC4)

ZELI_EVERY_LAYOUTS(8u)
ZELI_EVERY_LAYOUTS(16u)
ZELI_EVERY_LAYOUTS(16s)
ZELI_EVERY_LAYOUTS(32f)

#endif  // HWY_ONCE
