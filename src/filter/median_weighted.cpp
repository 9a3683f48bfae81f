// The 3x3 median with a weighted centre: the centre value counts `weight`
// times. Even weights are lowered by one (with a warning); weight 1 is the
// square 3x3 median; 3, 5 and 7 take pruned selection networks over 11, 13
// and 15 values; from 9 on the centre alone decides, so the ROI is copied.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/median_weighted.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"
#include "filter/median-inl.h"

#if HWY_ONCE

#include "filter/median_filter.h"

namespace zel::filter {
namespace {

ZelStatus weightedCentre(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, int weight) {
    if (ZelStatus st =
            Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep).that(weight >= 1, zelStatusBadWeight))
        return st;
    const ZelStatus done = weight % 2 == 0 ? zelStatusWarnEvenWeight : zelStatusOk;
    if (weight % 2 == 0) --weight;
    if (weight >= 9) {
        const ZelStatus copied = zeliCopy_8u_C1R(pSrc, srcStep, pDst, dstStep, roi);
        return copied != zelStatusOk ? copied : done;
    }
    Plan plan{};
    switch (weight) {
        case 1: plan = squareMedianPlan<1, Zel8u, false>(); break;
        case 3: plan = tapMedianPlan<WeightedCentre<3>, Zel8u, false>(); break;
        case 5: plan = tapMedianPlan<WeightedCentre<5>, Zel8u, false>(); break;
        default: plan = tapMedianPlan<WeightedCentre<7>, Zel8u, false>(); break;
    }
    const ZelStatus st = runPlan<Zel8u, Zel8u, Layout::C1>(plan, pSrc, srcStep, pDst, dstStep, roi);
    return st != zelStatusOk ? st : done;
}

}  // namespace
}  // namespace zel::filter

ZelStatus zeliFilterMedianWeightedCenter3x3_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
                                                   ZeliSize roi, int weight) {
    return ::zel::filter::weightedCentre(pSrc, srcStep, pDst, dstStep, roi, weight);
}

#endif  // HWY_ONCE
