// High-pass filters: 9 p - S9 (the same kernel as Laplace 3x3) and
// 25 p - S25; saturated.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/hipass.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

using HipassSat = zel::filter::Kernels<zel::filter::Laplace3<zel::filter::Finish::Clamp>,
                                       zel::filter::Hipass5<zel::filter::Finish::Clamp>>;

ZEL_FIXED_FILTER_MASK_4(FilterHipass, HipassSat, 8u)
ZEL_FIXED_FILTER_MASK_4(FilterHipass, HipassSat, 16s)
ZEL_FIXED_FILTER_MASK_4(FilterHipass, HipassSat, 32f)

#endif  // HWY_ONCE
