// One-dimensional vertical medians: the pixel and one (code 13) or two
// (code 15) neighbours above and below, through a pruned selection network.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/median_vert.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"
#include "filter/median-inl.h"

#if HWY_ONCE

#include "filter/median_filter.h"

#define ZEL_MEDIAN_VERT(t, lay) ZEL_MEDIAN_CODE(FilterMedianVert, Vert3, Vert5, 13, 15, t, lay)
ZEL_MEDIAN_VERT(8u, C1) ZEL_MEDIAN_VERT(8u, C3) ZEL_MEDIAN_VERT(8u, C4) ZEL_MEDIAN_VERT(8u, AC4)
ZEL_MEDIAN_VERT(16u, C1) ZEL_MEDIAN_VERT(16u, C3) ZEL_MEDIAN_VERT(16u, C4) ZEL_MEDIAN_VERT(16u, AC4)
ZEL_MEDIAN_VERT(16s, C1) ZEL_MEDIAN_VERT(16s, C3) ZEL_MEDIAN_VERT(16s, C4) ZEL_MEDIAN_VERT(16s, AC4)

#endif  // HWY_ONCE
