// Laplace filters: 9 p - S9 (3x3) and the 5x5 kernel whose weights sum to
// zero; saturated on 8u and 16s, exact on 8u16s and 8s16s.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/laplace.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

namespace zel::filter {
using LaplaceSat = Kernels<Laplace3<Finish::Clamp>, Laplace5<Finish::Clamp>>;
using LaplaceExact = Kernels<Laplace3<Finish::Exact>, Laplace5<Finish::Exact>>;
}  // namespace zel::filter

using zel::filter::LaplaceExact;
using zel::filter::LaplaceSat;

ZEL_FIXED_FILTER_MASK_4(FilterLaplace, LaplaceSat, 8u)
ZEL_FIXED_FILTER_MASK_4(FilterLaplace, LaplaceSat, 16s)
ZEL_FIXED_FILTER_MASK_4(FilterLaplace, LaplaceSat, 32f)
ZEL_FIXED_FILTER_MASK(FilterLaplace, LaplaceExact, Strict, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterLaplace, LaplaceExact, Strict, 8s16s, 8s, 16s, C1)

#endif  // HWY_ONCE
