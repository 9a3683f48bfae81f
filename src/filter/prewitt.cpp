// Prewitt filters: the row below minus the row above (horizontal) and the
// left column minus the right one (vertical), unweighted; saturated.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/prewitt.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

using PrewittHorizSat = zel::filter::Kernels<zel::filter::PrewittHoriz3<zel::filter::Finish::Clamp>>;
using PrewittVertSat = zel::filter::Kernels<zel::filter::PrewittVert3<zel::filter::Finish::Clamp>>;

ZEL_FIXED_FILTER_4(FilterPrewittHoriz, PrewittHorizSat, 8u)
ZEL_FIXED_FILTER_4(FilterPrewittHoriz, PrewittHorizSat, 16s)
ZEL_FIXED_FILTER_4(FilterPrewittHoriz, PrewittHorizSat, 32f)
ZEL_FIXED_FILTER_4(FilterPrewittVert, PrewittVertSat, 8u)
ZEL_FIXED_FILTER_4(FilterPrewittVert, PrewittVertSat, 16s)
ZEL_FIXED_FILTER_4(FilterPrewittVert, PrewittVertSat, 32f)

#endif  // HWY_ONCE
