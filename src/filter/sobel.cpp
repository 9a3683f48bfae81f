// Sobel filters: first derivatives (3x3 on every layout; 3x3 and 5x5 into
// 16-bit results, and the float mask forms), second derivatives and the
// cross (corner) operator. Horizontal operators give the lower rows minus
// the upper ones, vertical ones the left columns minus the right ones.
// Same-type integer results saturate (negative responses give 0 on 8u);
// the 8u16s and 8s16s results are the exact kernel values.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/sobel.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"

#if HWY_ONCE

#include "filter/fixed_filter.h"

namespace zel::filter {
using SobelHorizSat = Kernels<SobelHoriz3<Finish::Clamp>>;
using SobelVertSat = Kernels<SobelVert3<Finish::Clamp>>;
using SobelHorizExact = Kernels<SobelHoriz3<Finish::Exact>, SobelHoriz5<Finish::Exact>>;
using SobelVertExact = Kernels<SobelVert3<Finish::Exact>, SobelVert5<Finish::Exact>>;
using SobelHorizSecondExact = Kernels<SobelHorizSecond3<Finish::Exact>, SobelHorizSecond5<Finish::Exact>>;
using SobelVertSecondExact = Kernels<SobelVertSecond3<Finish::Exact>, SobelVertSecond5<Finish::Exact>>;
using SobelCrossExact = Kernels<SobelCross3<Finish::Exact>, SobelCross5<Finish::Exact>>;
}  // namespace zel::filter

using zel::filter::SobelHorizSat;
using zel::filter::SobelVertSat;
using zel::filter::SobelHorizExact;
using zel::filter::SobelVertExact;
using zel::filter::SobelHorizSecondExact;
using zel::filter::SobelVertSecondExact;
using zel::filter::SobelCrossExact;

ZEL_FIXED_FILTER_4(FilterSobelHoriz, SobelHorizSat, 8u)
ZEL_FIXED_FILTER_4(FilterSobelHoriz, SobelHorizSat, 16s)
ZEL_FIXED_FILTER_4(FilterSobelHoriz, SobelHorizSat, 32f)
ZEL_FIXED_FILTER_4(FilterSobelVert, SobelVertSat, 8u)
ZEL_FIXED_FILTER_4(FilterSobelVert, SobelVertSat, 16s)
ZEL_FIXED_FILTER_4(FilterSobelVert, SobelVertSat, 32f)

// Widening members: the mask code must be 33 or 55.
ZEL_FIXED_FILTER_MASK(FilterSobelHoriz, SobelHorizExact, Strict, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelHoriz, SobelHorizExact, Strict, 8s16s, 8s, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelVert, SobelVertExact, Strict, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelVert, SobelVertExact, Strict, 8s16s, 8s, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelHorizSecond, SobelHorizSecondExact, Strict, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelHorizSecond, SobelHorizSecondExact, Strict, 8s16s, 8s, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelVertSecond, SobelVertSecondExact, Strict, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelVertSecond, SobelVertSecondExact, Strict, 8s16s, 8s, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelCross, SobelCrossExact, Strict, 8u16s, 8u, 16s, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelCross, SobelCrossExact, Strict, 8s16s, 8s, 16s, C1)

// Float members with a mask code: 33 selects 3x3, every other value 5x5.
ZEL_FIXED_FILTER_MASK(FilterSobelHorizMask, SobelHorizExact, Lenient, 32f, 32f, 32f, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelVertMask, SobelVertExact, Lenient, 32f, 32f, 32f, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelHorizSecond, SobelHorizSecondExact, Lenient, 32f, 32f, 32f, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelVertSecond, SobelVertSecondExact, Lenient, 32f, 32f, 32f, C1)
ZEL_FIXED_FILTER_MASK(FilterSobelCross, SobelCrossExact, Lenient, 32f, 32f, 32f, C1)

#endif  // HWY_ONCE
