// Cross medians: the centre row and the centre column of the 3x3 (code 33,
// five values) or 5x5 (code 55, nine values) square, through a pruned
// selection network.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/median_cross.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"
#include "filter/median-inl.h"

#if HWY_ONCE

#include "filter/median_filter.h"

#define ZEL_MEDIAN_CROSS(t, lay) ZEL_MEDIAN_CODE(FilterMedianCross, Cross3, Cross5, 33, 55, t, lay)
ZEL_MEDIAN_CROSS(8u, C1) ZEL_MEDIAN_CROSS(8u, C3) ZEL_MEDIAN_CROSS(8u, AC4)
ZEL_MEDIAN_CROSS(16u, C1) ZEL_MEDIAN_CROSS(16u, C3) ZEL_MEDIAN_CROSS(16u, AC4)
ZEL_MEDIAN_CROSS(16s, C1) ZEL_MEDIAN_CROSS(16s, C3) ZEL_MEDIAN_CROSS(16s, AC4)

#endif  // HWY_ONCE
