// Mul and MulC: products of two images or of an image and a constant per channel,
// scaled by 2^-scaleFactor and saturated for the integer types.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/mul.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"

#if HWY_ONCE

#include "arith/members.h"

ZEL_ARITH_GRID(ZEL_IMAGES_MEMBERS, Mul, MulOp)
ZEL_ARITH_GRID(ZEL_CONST_MEMBERS, MulC, MulOp)

#endif  // HWY_ONCE
