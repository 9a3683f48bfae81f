// Scharr filters: Sobel's directions with the weights 3 10 3, into exact
// 16-bit values or 32f.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/scharr.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

using ScharrHorizExact = zel::filter::Kernels<zel::filter::ScharrHoriz3<zel::filter::Finish::Exact>>;
using ScharrVertExact = zel::filter::Kernels<zel::filter::ScharrVert3<zel::filter::Finish::Exact>>;

ZEL_FIXED_FILTER(FilterScharrHoriz, ScharrHorizExact, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER(FilterScharrHoriz, ScharrHorizExact, 8s16s, 8s, 16s, C1)
ZEL_FIXED_FILTER(FilterScharrHoriz, ScharrHorizExact, 32f, 32f, 32f, C1)
ZEL_FIXED_FILTER(FilterScharrVert, ScharrVertExact, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER(FilterScharrVert, ScharrVertExact, 8s16s, 8s, 16s, C1)
ZEL_FIXED_FILTER(FilterScharrVert, ScharrVertExact, 32f, 32f, 32f, C1)

#endif  // HWY_ONCE
