// One-dimensional horizontal medians: the pixel and one (code 31) or two
// (code 51) neighbours on each side, through a pruned selection network.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/median_horiz.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"
#include "filter/median-inl.h"

#if HWY_ONCE

#include "filter/median_filter.h"

#define ZEL_MEDIAN_HORIZ(t, lay) ZEL_MEDIAN_CODE(FilterMedianHoriz, Horiz3, Horiz5, 31, 51, t, lay)
ZEL_MEDIAN_HORIZ(8u, C1) ZEL_MEDIAN_HORIZ(8u, C3) ZEL_MEDIAN_HORIZ(8u, C4) ZEL_MEDIAN_HORIZ(8u, AC4)
ZEL_MEDIAN_HORIZ(16u, C1) ZEL_MEDIAN_HORIZ(16u, C3) ZEL_MEDIAN_HORIZ(16u, C4) ZEL_MEDIAN_HORIZ(16u, AC4)
ZEL_MEDIAN_HORIZ(16s, C1) ZEL_MEDIAN_HORIZ(16s, C3) ZEL_MEDIAN_HORIZ(16s, C4) ZEL_MEDIAN_HORIZ(16s, AC4)

#endif  // HWY_ONCE
