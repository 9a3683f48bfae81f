// Sub and SubC: differences (second source minus first, image minus constant),
// scaled by 2^-scaleFactor and saturated for the integer types.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/sub.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"

#if HWY_ONCE

#include "arith/members.h"

ZEL_ARITH_GRID(ZEL_IMAGES_MEMBERS, Sub, SubOp)
ZEL_ARITH_GRID(ZEL_CONST_MEMBERS, SubC, SubOp)

#endif  // HWY_ONCE
