// Minimum and maximum filters: the extremum of every channel over a
// rectangular window placed by its anchor (even sides allowed); a 1x1
// window copies the ROI. On the calling thread.
#include "core/checks.h"
#include "core/pixel.h"
#include "filter/extremum.h"
#include "zeli.h"

namespace zel::filter {
namespace {

template <class T>
using CopyFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize);

template <class T, Layout L, bool IsMax>
ZelStatus filterExtremum(CopyFn<T> copy, const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi,
                         ZeliSize maskSize, ZeliPoint anchor) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst)
                           .roi(roi)
                           .steps(srcStep, dstStep)
                           .that(maskSize.width >= 1 && maskSize.height >= 1, zelStatusBadMaskSize)
                           .that(anchor.x >= 0 && anchor.x < maskSize.width && anchor.y >= 0 &&
                                     anchor.y < maskSize.height,
                                 zelStatusBadAnchor))
        return st;
    if (maskSize.width == 1 && maskSize.height == 1) return copy(pSrc, srcStep, pDst, dstStep, roi);
    constexpr int C = kChannels<L>;
    const WindowPlan plan = planRect(rectKernel<T, IsMax, L == Layout::AC4>(), maskSize.width, maskSize.height, C,
                                     sizeof(T));
    const T* origin = rowAt(pSrc, srcStep, -std::ptrdiff_t{anchor.y}) - std::ptrdiff_t{anchor.x} * C;
    return runWindow<T, L>(plan, origin, srcStep, pDst, dstStep, roi);
}

}  // namespace
}  // namespace zel::filter

#define ZEL_FILTER_EXTREMUM(name, IsMax, t, lay)                                                            \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,        \
                                          ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor) {              \
        return ::zel::filter::filterExtremum<Zel##t, ::zel::Layout::lay, IsMax>(                            \
            &zeliCopy_##t##_##lay##R, pSrc, srcStep, pDst, dstStep, roi, maskSize, anchor);                 \
    }
#define ZEL_FILTER_EXTREMUM_4(name, IsMax, t)                                          \
    ZEL_FILTER_EXTREMUM(name, IsMax, t, C1) ZEL_FILTER_EXTREMUM(name, IsMax, t, C3) \
    ZEL_FILTER_EXTREMUM(name, IsMax, t, C4) ZEL_FILTER_EXTREMUM(name, IsMax, t, AC4)

ZEL_FILTER_EXTREMUM_4(FilterMin, false, 8u)
ZEL_FILTER_EXTREMUM_4(FilterMin, false, 16u)
ZEL_FILTER_EXTREMUM_4(FilterMin, false, 16s)
ZEL_FILTER_EXTREMUM_4(FilterMin, false, 32f)
ZEL_FILTER_EXTREMUM_4(FilterMax, true, 8u)
ZEL_FILTER_EXTREMUM_4(FilterMax, true, 16u)
ZEL_FILTER_EXTREMUM_4(FilterMax, true, 16s)
ZEL_FILTER_EXTREMUM_4(FilterMax, true, 32f)
