// Min, Max, MinMax: the extreme values of each channel. One kernel
// (row_extremes-inl.h) finds both extremes of a row; the rows are reduced in
// blocks (reduceRows), so any thread count gives the same result. 32f
// values compare through order-preserving integer keys: NaN is skipped and
// -0 lies below +0, the same on every target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/minmax.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "stats/row_extremes-inl.h"

#if HWY_ONCE

#include "core/checks.h"
#include "core/image.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "stats/stats.h"

namespace zel {
namespace {

template <class T, Layout L>
ZelStatus extremes(const T* pSrc, int srcStep, ZeliSize roi, T* pMin, T* pMax) {
    using K = KeyOf<T>;
    constexpr int C = kChannels<L>;
    const auto kernel = ZEL_DISPATCH(RowExtremes<T, C>);
    struct Slot {
        K mn[4] = {kNoMin<T>, kNoMin<T>, kNoMin<T>, kNoMin<T>};
        K mx[4] = {kNoMax<T>, kNoMax<T>, kNoMax<T>, kNoMax<T>};
    } total;
    const int team = reductionTeam(roi.height, std::int64_t{roi.width} * C * sizeof(T));
    // The kernel takes a slot's rows at once, at its first row.
    const bool ok = reduceRows(
        roi.height, team, total,
        [&](Slot& s, std::ptrdiff_t y) {
            if (y % kRowsPerSlot != 0) return;
            const std::ptrdiff_t rows = std::min<std::ptrdiff_t>(kRowsPerSlot, roi.height - y);
            kernel(rowAt(pSrc, srcStep, y), srcStep, rows, roi.width, kComputed<L>, s.mn, s.mx);
        },
        [](Slot& t, const Slot& s) {
            for (int c = 0; c < 4; ++c) {
                t.mn[c] = std::min(t.mn[c], s.mn[c]);
                t.mx[c] = std::max(t.mx[c], s.mx[c]);
            }
        });
    if (!ok) return zelStatusNoMemory;
    for (int c = 0; c < kComputed<L>; ++c) {
        if (pMin) pMin[c] = reported<T>(total.mn[c], total.mn[c] == kNoMin<T>);
        if (pMax) pMax[c] = reported<T>(total.mx[c], total.mx[c] == kNoMax<T>);
    }
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus minImage(const T* pSrc, int srcStep, ZeliSize roi, T* pMin) {
    if (ZelStatus st = Check().ptrs(pSrc, pMin).roi(roi)) return st;
    return extremes<T, L>(pSrc, srcStep, roi, pMin, nullptr);
}
template <class T, Layout L>
ZelStatus maxImage(const T* pSrc, int srcStep, ZeliSize roi, T* pMax) {
    if (ZelStatus st = Check().ptrs(pSrc, pMax).roi(roi)) return st;
    return extremes<T, L>(pSrc, srcStep, roi, nullptr, pMax);
}
template <class T, Layout L>
ZelStatus minMaxImage(const T* pSrc, int srcStep, ZeliSize roi, T* pMin, T* pMax) {
    if (ZelStatus st = Check().ptrs(pSrc, pMin, pMax).roi(roi)) return st;
    return extremes<T, L>(pSrc, srcStep, roi, pMin, pMax);
}

}  // namespace
}  // namespace zel

#define ZELI_MIN_MAX(type, layout)                                                                        \
    ZelStatus zeliMin_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,           \
                                           Zel##type* pMin) {                                              \
        return zel::minImage<Zel##type, zel::Layout::layout>(pSrc, srcStep, roiSize, pMin);                \
    }                                                                                                      \
    ZelStatus zeliMax_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,           \
                                           Zel##type* pMax) {                                              \
        return zel::maxImage<Zel##type, zel::Layout::layout>(pSrc, srcStep, roiSize, pMax);                \
    }                                                                                                      \
    ZelStatus zeliMinMax_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,        \
                                              Zel##type* pMin, Zel##type* pMax) {                          \
        return zel::minMaxImage<Zel##type, zel::Layout::layout>(pSrc, srcStep, roiSize, pMin, pMax);       \
    }
#define ZELI_MIN_MAX_LAYOUTS(type) \
    ZELI_MIN_MAX(type, C1) ZELI_MIN_MAX(type, C3) ZELI_MIN_MAX(type, C4) ZELI_MIN_MAX(type, AC4)

ZELI_MIN_MAX_LAYOUTS(8u)
ZELI_MIN_MAX_LAYOUTS(16u)
ZELI_MIN_MAX_LAYOUTS(16s)
ZELI_MIN_MAX_LAYOUTS(32f)

#endif  // HWY_ONCE
