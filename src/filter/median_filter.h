// The wrappers of the fixed-window medians: plans of the tap and square
// kernels (median-inl.h) for the filtering frame's runPlan, and the
// members that take a mask code.
//
// Include inside HWY_ONCE, after the per-target kernels (two_pass-inl.h,
// median-inl.h). The fixed windows run on the calling thread.
#pragma once

#include "filter/fixed_filter.h"
#include "filter/median_network.h"

namespace zel::filter {

// The tap kernels need no scratch; the frame's allocation is one element.
template <class Shape, class T, bool KeepAlpha>
Plan tapMedianPlan() {
    return Plan{ZEL_DISPATCH(TapMedianBlock<Shape, T, KeepAlpha>), Shape::kRadius, 1, 0, sizeof(T), false};
}

// Scratch: 2R+1 rows of sorted columns, each a chunk plus the R pixels
// on either side.
template <int R, class T, bool KeepAlpha>
Plan squareMedianPlan() {
    constexpr int K = 2 * R + 1;
    return Plan{ZEL_DISPATCH(SquareMedianBlock<R, T, KeepAlpha>), R, K * kMedianChunk, K * 2 * R, sizeof(T), false};
}

// A member with a mask code: code3 selects Shape3, code5 Shape5, anything
// else is zelStatusBadMaskSize after the common checks.
template <class Shape3, class Shape5, class T, Layout L>
ZelStatus codeMedian(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, int mask, int code3,
                     int code5) {
    const int radius = mask == code3 ? 1 : mask == code5 ? 2 : 0;
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep).that(radius != 0,
                                                                                      zelStatusBadMaskSize))
        return st;
    constexpr bool kKeepAlpha = L == Layout::AC4;
    const Plan plan = radius == 1 ? tapMedianPlan<Shape3, T, kKeepAlpha>() : tapMedianPlan<Shape5, T, kKeepAlpha>();
    return runPlan<T, T, L>(plan, pSrc, srcStep, pDst, dstStep, roi);
}

}  // namespace zel::filter

// zeli<name>_<t>_<lay>R with a mask code: Shape3 for code c3, Shape5 for c5.
#define ZEL_MEDIAN_CODE(name, Shape3, Shape5, c3, c5, t, lay)                                                 \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,           \
                                          ZeliSize roi, ZeliMaskCode mask) {                                   \
        return ::zel::filter::codeMedian<::zel::filter::Shape3, ::zel::filter::Shape5, Zel##t, ::zel::Layout::lay>( \
            pSrc, srcStep, pDst, dstStep, roi, mask, c3, c5);                                                  \
    }
