// Add and AddC: sums of two images or of an image and a constant per channel,
// scaled by 2^-scaleFactor and saturated for the integer types.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/add.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"

#if HWY_ONCE

#include "arith/members.h"

ZEL_ARITH_GRID(ZEL_IMAGES_MEMBERS, Add, AddOp)
ZEL_ARITH_GRID(ZEL_CONST_MEMBERS, AddC, AddOp)

#endif  // HWY_ONCE
