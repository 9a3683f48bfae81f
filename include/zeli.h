/*
 * zeli: image-processing primitives.
 *
 * Every image operand is described at each call by a pointer to the first
 * pixel of the region of interest (ROI), a row step in bytes and a ROI size
 * in pixels shared by all operands. Every function returns a ZelStatus:
 * 0 for success, a negative error code (nothing was written), or a positive
 * warning (the whole result was produced, some elements under a special rule).
 *
 * Arguments are checked in a fixed order and the first failure is returned:
 * null pointers, then the ROI size, then the steps, then the operation's own
 * arguments. Families that depart from that order say so below.
 *
 * Promises every function keeps:
 *
 * - Image size. Any image zeliMalloc_* can return can be processed whole:
 *   up to 2^31 - 1 pixels per row and 2^31 - 1 rows, with row steps up to
 *   2^31 - 1 bytes, so well over 2^31 elements per call. Element counts and
 *   offsets are 64-bit inside the library.
 * - Untouched bytes. Bytes a function leaves alone (the alpha channel of
 *   AC4 images, the other channels of a channel-of-interest call, pixels a
 *   mask excludes, everything outside the ROI) are never written, not even
 *   with their own value, and the ones the function does not need are not
 *   read. Another thread may update them during the call.
 * - Floating-point environment. Results never depend on the caller's SSE
 *   rounding mode, flush-to-zero or denormals-are-zero setting: functions
 *   that compute in floating point run under round-to-nearest without
 *   flushing, with exceptions masked, and give the caller's control word
 *   back on return (exception flags raised by the call are added to it).
 * - Operand overlap. Defined overlaps are exactly the in-place members (I),
 *   where one image is both source and destination, and a source passed
 *   with the destination's own pointer and step to a pixelwise member whose
 *   source and destination have the same type and layout (the arithmetic
 *   families, Copy, SwapChannels within one layout and the thresholds):
 *   that call equals
 *   the in-place form. Transpose states its own rule. Any other overlap of
 *   a source with a destination, such as a destination one element after
 *   its source, gives undefined results.
 * - Threads. A call divides its work among threads only when each thread
 *   gets enough work to pay for it; results never depend on the thread
 *   count or on the SIMD instructions of the processor.
 */
#ifndef ZELI_H
#define ZELI_H

#include "zeli/types.h"
#include "zeli/core.h"
#include "zeli/data.h"
#include "zeli/threshold.h"
#include "zeli/arith.h"
#include "zeli/filter.h"
#include "zeli/stats.h"

#endif /* ZELI_H */
