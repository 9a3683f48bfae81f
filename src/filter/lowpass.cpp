// Low-pass (box mean) filters: S9 / 9 and S25 / 25 rounded to nearest
// (no ties: the divisors are odd); 32f multiplies by the float nearest the
// reciprocal. No four-channel members.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/lowpass.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

using LowpassKernels = zel::filter::Kernels<zel::filter::Lowpass3, zel::filter::Lowpass5>;

ZEL_FIXED_FILTER_MASK_3(FilterLowpass, LowpassKernels, 8u)
ZEL_FIXED_FILTER_MASK_3(FilterLowpass, LowpassKernels, 16u)
ZEL_FIXED_FILTER_MASK_3(FilterLowpass, LowpassKernels, 16s)
ZEL_FIXED_FILTER_MASK_3(FilterLowpass, LowpassKernels, 32f)

#endif  // HWY_ONCE
