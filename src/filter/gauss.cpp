// Gaussian smoothing: (1 2 1)x(1 2 1) / 16 and the 5x5 kernel of weight
// 571. Integer 3x3 results round to nearest, ties to even; the 8u and 16s
// 5x5 results are the single-precision product with the float nearest
// 1/571, rounded to nearest even whatever the caller's rounding mode; 16u
// 5x5 results are the exact quotient rounded to nearest.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/gauss.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

using GaussKernels = zel::filter::Kernels<zel::filter::Gauss3, zel::filter::Gauss5>;

ZEL_FIXED_FILTER_MASK_4(FilterGauss, GaussKernels, 8u)
ZEL_FIXED_FILTER_MASK_4(FilterGauss, GaussKernels, 16u)
ZEL_FIXED_FILTER_MASK_4(FilterGauss, GaussKernels, 16s)
ZEL_FIXED_FILTER_MASK_4(FilterGauss, GaussKernels, 32f)

#endif  // HWY_ONCE
