// MulScale and MulCScale: products of unsigned pixels taken as fractions of
// the type's maximum, a * b / max rounded by the exact integer formula.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/mul_scale.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"

#if HWY_ONCE

#include "arith/members.h"

ZEL_ARITH_4(ZEL_IMAGES_MEMBERS, MulScale, MulScaleOp, 8u, )
ZEL_ARITH_4(ZEL_IMAGES_MEMBERS, MulScale, MulScaleOp, 16u, )
ZEL_ARITH_4(ZEL_CONST_MEMBERS, MulCScale, MulScaleOp, 8u, )
ZEL_ARITH_4(ZEL_CONST_MEMBERS, MulCScale, MulScaleOp, 16u, )

#endif  // HWY_ONCE
