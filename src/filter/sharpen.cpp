// Sharpening: (17 p - S9) / 8, rounded to nearest with ties to even; on
// 8u a negative numerator gives 0 first, and the result saturates.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/sharpen.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

using SharpenKernels = zel::filter::Kernels<zel::filter::Sharpen3>;

ZEL_FIXED_FILTER_4(FilterSharpen, SharpenKernels, 8u)
ZEL_FIXED_FILTER_4(FilterSharpen, SharpenKernels, 16s)
ZEL_FIXED_FILTER_4(FilterSharpen, SharpenKernels, 32f)

#endif  // HWY_ONCE
