/* zeli: filtering. Included by <zeli.h>; callers include that. */
#ifndef ZELI_FILTER_H
#define ZELI_FILTER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Fixed-kernel filters ============================================== */
/* Every filter here is a no-border operation: destination pixel (x, y) is
   computed from the source pixels around source pixel (x, y) (the 3x3 or
   5x5 neighbourhood centred on it; Roberts: the row above), so the source
   must have 1 (3x3) or 2 (5x5) valid pixels on every side of the ROI,
   which the caller provides (zeliCopyConstBorder and
   zeliCopyReplicateBorder build them). Nothing else is read.

   Checks, in order: pSrc or pDst null (zelStatusNullPtr), ROI width or
   height below 1 (zelStatusBadSize), srcStep or dstStep below 1
   (zelStatusBadStep), the mask code where there is one, then scratch rows
   that cannot be allocated (zelStatusNoMemory). Nothing is written on an
   error. C3 and C4 filter every channel; AC4 filters the three colour
   channels and leaves the destination alpha unwritten.

   32f results are single-precision sums in one fixed order, the same on
   every processor and for any thread count: the column pass, then the row
   pass (Gauss and Laplace 5x5: each source row's row sum, then the five
   row sums from the top down); within a pass the terms from the top row
   (left column) on, where a symmetric weighting adds the two mirrored
   pixels before weighting them; multiplications by the reciprocal of a
   divisor come last. Integer results are the exact kernel value, then
   rounded and saturated as each family states. */

/* FilterSobelHoriz: (row below) - (row above), each weighted 1 2 1. The
   same-type members are 3x3 and saturate (8u: negative responses give 0;
   16s: -32768..32767; 32f unclamped). The 8u16s and 8s16s members take a
   mask code, 33 (3x3) or 55 (5x5: rows weighted -1 -2 0 2 1 top to bottom,
   columns 1 4 6 4 1), any other code zelStatusBadMaskSize, and write the
   exact kernel value. */
ZELAPI ZelStatus zeliFilterSobelHoriz_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelHoriz_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelHoriz_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelHoriz_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);

/* FilterSobelVert: (left column) - (right column), each weighted 1 2 1; a
   bright-to-dark edge going rightwards gives a positive response. Layouts,
   saturation and mask codes as FilterSobelHoriz; the 5x5 kernel weights
   columns 1 2 0 -2 -1 left to right and rows 1 4 6 4 1. */
ZELAPI ZelStatus zeliFilterSobelVert_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelVert_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelVert_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSobelVert_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);

/* FilterSobelHorizMask, FilterSobelVertMask (32f): the Sobel kernels of
   the mask code, where 33 selects 3x3 and every other value, valid or
   not, selects 5x5; the mask is never an error. */
ZELAPI ZelStatus zeliFilterSobelHorizMask_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelVertMask_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterSobelHorizSecond: second derivative down the rows, rows weighted
   1 -2 1 (5x5: 1 0 -2 0 1) times columns 1 2 1 (5x5: 1 4 6 4 1).
   FilterSobelVertSecond: the same across the columns. 8u16s and 8s16s
   write exact values and accept 33 and 55 only (else
   zelStatusBadMaskSize); 32f takes 33 as 3x3 and anything else as 5x5. */
ZELAPI ZelStatus zeliFilterSobelHorizSecond_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelHorizSecond_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelHorizSecond_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelVertSecond_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelVertSecond_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelVertSecond_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterSobelCross: the mixed derivative: 3x3 corners only (top-left -1,
   top-right +1, bottom-left +1, bottom-right -1); 5x5 rows -1 -2 0 2 1
   times columns 1 2 0 -2 -1. Mask codes as FilterSobelHorizSecond. */
ZELAPI ZelStatus zeliFilterSobelCross_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelCross_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterSobelCross_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterPrewittHoriz / FilterPrewittVert: as the 3x3 Sobel filters with
   unweighted rows (columns): below minus above, left minus right;
   saturated as FilterSobelHoriz. */
ZELAPI ZelStatus zeliFilterPrewittHoriz_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittHoriz_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterPrewittVert_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);

/* FilterScharrHoriz / FilterScharrVert: below minus above (left minus
   right) weighted 3 10 3; exact 16-bit results from 8-bit data, 32f. */
ZELAPI ZelStatus zeliFilterScharrHoriz_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterScharrHoriz_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterScharrHoriz_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterScharrVert_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterScharrVert_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterScharrVert_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);

/* FilterRobertsDown: p(x, y) - p(x - 1, y - 1); FilterRobertsUp:
   p(x, y) - p(x + 1, y - 1). They read the row above and one pixel to the
   side, nothing below. Computed as the saturating subtraction zeliSub
   with scale factor 0 of two views of the source: a plain difference
   (negative differences give 0 on 8u), not an absolute value. Moving one
   row up uses srcStep rounded down to a multiple of the element size on
   16s and 32f, and srcStep itself on 8u. */
ZELAPI ZelStatus zeliFilterRobertsDown_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsDown_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterRobertsUp_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);

/* FilterLaplace: 3x3: 9 p - (sum of the 9 pixels); 5x5: rows
   (-1 -3 -4 -3 -1), (-3 0 6 0 -3), (-4 6 20 6 -4), (-3 0 6 0 -3),
   (-1 -3 -4 -3 -1). Mask code 33 or 55, else zelStatusBadMaskSize.
   Saturated on 8u (negatives give 0) and 16s; exact on 8u16s and 8s16s. */
ZELAPI ZelStatus zeliFilterLaplace_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_8s16s_C1R(const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLaplace_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterGauss: 3x3 (1 2 1)x(1 2 1) / 16; 5x5 rows (2 7 12 7 2),
   (7 31 52 31 7), (12 52 127 52 12), (7 31 52 31 7), (2 7 12 7 2) / 571.
   Mask code 33 or 55, else zelStatusBadMaskSize. Rounding: 3x3 on 8u, 16u
   and 16s to nearest with ties to even; 5x5 on 8u and 16s the weighted
   sum in single precision times the float nearest 1/571 (0x3AE58C54),
   rounded to nearest even whatever the caller's rounding mode; 5x5 on 16u
   the exact quotient rounded to nearest (571 is odd: no ties); then
   saturation. 32f: single precision, times 0.0625 or the float nearest
   1/571, the 5x5 rows summed first and the five row sums added top down. */
ZELAPI ZelStatus zeliFilterGauss_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterGauss_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterHipass: 3x3: 9 p - (sum of 9), the same kernel as FilterLaplace
   3x3; 5x5: 25 p - (sum of 25). Mask code 33 or 55, else
   zelStatusBadMaskSize; saturated (8u: negatives give 0). */
ZELAPI ZelStatus zeliFilterHipass_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterHipass_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterLowpass: the mean of the 3x3 or 5x5 neighbourhood (mask code 33
   or 55, else zelStatusBadMaskSize). Integer results are the sum divided
   by 9 or 25 rounded to nearest (the divisors are odd: no ties, on 16u
   and 16s as on 8u); 32f multiplies the sum by the float nearest 1/9
   (0x3DE38E39) or 0.04 (0x3D23D70A). No C4 members. */
ZELAPI ZelStatus zeliFilterLowpass_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterLowpass_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterSharpen: (17 p - (sum of the 9 pixels)) / 8, 3x3. 8u: a negative
   numerator gives 0, the quotient rounds to nearest with ties to even and
   saturates at 255; 16s: the same rounding (also for negative values),
   saturated; 32f: the numerator times 0.125. */
ZELAPI ZelStatus zeliFilterSharpen_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliFilterSharpen_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);

/* ==== Median filters ==================================================== */
/* Every destination pixel is the median of the source values in a window
   around the corresponding source pixel, channel by channel: the values
   are ordered and the result is the one of rank n / 2 + 1 (n, the window's
   count, is always odd, so this is the exact middle value; nothing is
   averaged). Like every neighbourhood filter these are no-border
   operations: the source pixels the window reaches around the ROI must be
   valid, and nothing else is read. Results are the same on every processor
   and for any thread count.

   Checks, in order: pSrc or pDst null (zelStatusNullPtr), ROI width or
   height below 1 (zelStatusBadSize), srcStep or dstStep below 1
   (zelStatusBadStep; a step shorter than a row is not detected), the mask
   (zelStatusBadMaskSize, then for FilterMedian the anchor,
   zelStatusBadAnchor; for FilterMedianWeightedCenter3x3 the weight,
   zelStatusBadWeight), then work buffers that cannot be allocated
   (zelStatusNoMemory). Nothing is written on an error. C3 and C4 filter
   every channel; AC4 filters the three colour channels and leaves the
   destination alpha unwritten. */

/* FilterMedian: a maskSize.width x maskSize.height rectangle (both odd and
   positive) whose element anchor lies over the pixel: destination pixel
   (x, y) is the median of source columns x - anchor.x .. x - anchor.x +
   width - 1 and rows y - anchor.y .. y - anchor.y + height - 1 (the mask
   is not mirrored). A 1 x 1 mask copies the ROI (zeliCopy); 3 x 1, 5 x 1,
   1 x 3 and 1 x 5 masks are FilterMedianHoriz and FilterMedianVert on the
   window's centre. 3 x 3, 5 x 5 and 7 x 7 masks sort columns once and
   select through a fixed network; the 8u members of other sizes keep a
   running histogram along each row. Large images share their rows among
   threads (every median filter does; results never depend on it). */
ZELAPI ZelStatus zeliFilterMedian_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMedian_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);

/* FilterMedianHoriz: the median of the pixel and its one (mask code 31) or
   two (51) neighbours on each side in its row; any other code gives
   zelStatusBadMaskSize. */
ZELAPI ZelStatus zeliFilterMedianHoriz_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianHoriz_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterMedianVert: the median of the pixel and its one (mask code 13) or
   two (15) neighbours above and below; any other code gives
   zelStatusBadMaskSize. */
ZELAPI ZelStatus zeliFilterMedianVert_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianVert_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterMedianCross: the median over a cross centred on the pixel: its row
   and its column of the 3x3 square (mask code 33: 5 values) or of the 5x5
   square (55: 9 values); any other code gives zelStatusBadMaskSize. */
ZELAPI ZelStatus zeliFilterMedianCross_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianCross_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterMedianColor: the vector median of the 3x3 (mask code 33) or 5x5
   (55) window centred on the pixel; any other code gives
   zelStatusBadMaskSize. The channels are not ordered separately: the result
   is the whole colour of one window pixel, the one whose sum of L1
   distances to all the window's pixels (|dR| + |dG| + |dB|) is smallest;
   among equal sums the first in scan order (rows top down, each left to
   right) wins. The result is therefore always a colour that occurs in the
   window, and a window of one colour gives that colour. 32f distances are
   added in double precision, in scan order, under round-to-nearest
   whatever the caller's mode; two equal values (infinities included) are
   at distance 0, and a window whose sums are all NaN (a NaN in any
   channel) gives its centre pixel. AC4 alpha is neither read nor written.
   The 3x3 members share their rows among threads. */
ZELAPI ZelStatus zeliFilterMedianColor_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianColor_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianColor_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianColor_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianColor_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);
ZELAPI ZelStatus zeliFilterMedianColor_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliMaskCode mask);

/* FilterMedianWeightedCenter3x3: the 3x3 median in which the centre value
   counts `weight` times and each of the eight others once. Weight below 1
   gives zelStatusBadWeight. An even weight is lowered by one and the call
   returns zelStatusWarnEvenWeight instead of zelStatusOk (the result being
   that of the odd weight). Weight 1 is the plain 3x3 median; weights 3, 5
   and 7 take the median of 11, 13 or 15 values; from 9 on the centre
   outweighs the other eight together, so the ROI is copied (zeliCopy_8u_C1R)
   and a failing copy's status is returned. */
ZELAPI ZelStatus zeliFilterMedianWeightedCenter3x3_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst,
    int dstStep, ZeliSize roi, int weight);

/* ==== General linear filters ============================================ */
/* A user kernel of kernelSize.width x kernelSize.height elements (row-major,
   top row first) is applied as a true convolution with its anchor element
   over the output pixel:

       dst(x, y) = sum over kernel rows i, columns j of
                   K[i][j] * src(x + anchor.x - j, y + anchor.y - i)

   so the last kernel element multiplies the top-left pixel of the window
   and the first one the bottom-right pixel (a symmetric kernel gives the
   same as a correlation). The window of dst(x, y) spans source columns
   x - (kw - 1 - anchor.x) .. x + anchor.x and rows y - (kh - 1 - anchor.y)
   .. y + anchor.y; the caller provides those pixels around the ROI (a
   border from zeliCopy*Border). The anchor is not range-checked: any value
   moves the window. C3 and C4 filter every channel with the same kernel,
   AC4 the three colour channels, leaving the destination alpha unwritten
   (the source alpha is not read).

   Checks, in order: pSrc, pDst or pKernel null (zelStatusNullPtr); ROI
   width or height, kernel width or kernel height below 1
   (zelStatusBadSize); divisor 0 (zelStatusZeroDivisor, integer kernels);
   srcStep below the bytes of roi.width + kernel width - 1 pixels or dstStep
   below the bytes of roi.width pixels (zelStatusBadStep); then the
   members' own arguments (rounding mode, work buffer) as stated below;
   finally scratch that cannot be allocated (zelStatusNoMemory). Nothing is
   written on an error.

   Results do not depend on the processor's vector width, the thread count
   or the caller's floating-point environment: float sums are formed in one
   order, kernel row by kernel row from the top of the window, left to
   right within a row, each product rounded and then added (no fused
   multiply-add); integer sums are exact (32-bit, wrapping only when a
   kernel's weights are large enough to overflow them). ROIs of at least
   64 x 64 pixels may be split into bands of rows among the threads. */

/* Filter (integer kernel, divisor). 8u and 16s: the products are summed in
   a signed 32-bit integer S, then divided by the divisor d in one of three
   ways chosen once per call: d = 1: S saturated; d = 2^n: S / 2^n rounded
   to nearest, ties to even, saturated (8u: S below 1 gives 0; 16s: negative
   sums round the same way, ties to even, through an arithmetic shift); any
   other d, every negative one included: q = S * r in single precision with
   r the float nearest 1/d, rounded to nearest even and saturated (8u: q >=
   255 gives 255, q <= 0.5 gives 0). 16u: the kernel is converted to single
   precision, each element times the single-precision reciprocal of d, and
   the call continues as zeliFilter32f_16u with that kernel; it checks the
   kernel pointer, the kernel size and the divisor first (so a zero divisor
   is reported even with a null image), then converts the kernel (kernels of
   more than 256 elements on the heap: zelStatusNoMemory), then runs the
   float member's checks. */
ZELAPI ZelStatus zeliFilter_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);

/* Filter32f: a single-precision kernel on integer data. The sum is formed
   in single precision, rounded to nearest with ties to even and saturated
   to the destination type (8u: >= 255 gives 255, <= 0.5 gives 0). */
ZELAPI ZelStatus zeliFilter32f_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);

/* Filter_32f, Filter_64f: float data, single (double for 64f) precision
   sums, no clamping. Both read the kernel and the source where they lie
   and allocate nothing, so they never report zelStatusNoMemory (the float
   row and column members likewise). Filter_64f takes a work buffer (null:
   zelStatusNullPtr, checked after the steps) of the size
   zeliFilterGetBufSize_64f_C1R reports; it is checked but the call needs
   none of its bytes, and leaves them as they are.

   FilterGetBufSize_64f: pBufferSize null gives zelStatusNullPtr; kernel
   width or height or maxWidth below 1 zelStatusBadSize; otherwise
   *pBufferSize = (8 * maxWidth + 16 * kernel width * kernel height + 43)
   bytes times the thread setting (zelGetNumThreads), as for the Filter_Round
   queries. A size beyond the range of int is zelStatusBadSize too. */
ZELAPI ZelStatus zeliFilter_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_64f_C1R(const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize roi,
    const Zel64f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilterGetBufSize_64f_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);

/* Filter_Round: as Filter32f (Round32f: single-precision kernel and sum) or
   with an integer kernel and divisor (Round16s: 16-bit kernel on 8u data;
   Round32s: 32-bit kernel on 16-bit data; the sum S is formed exactly in
   double precision, which holds every sum below 2^53 in magnitude, and
   divided by the divisor in double precision), but the value becomes a
   destination value by the rounding mode rndMode: 0 toward zero, 1 to
   nearest with ties to even, 2 to nearest with ties away from zero; then
   it is saturated. Other rndMode values give zelStatusBadRoundMode (after
   the step check), then a null pBuffer zelStatusNullPtr. pBuffer is the
   caller's work buffer, of the size the matching
   zeliFilterRoundGetBufSize* reports for this kernel size and a maxWidth
   of at least roi.width. Round16s and Round32s store their kernel,
   mirrored and in double precision, at the buffer's first 8-byte boundary
   (at most 8 * kernel width * kernel height + 7 bytes) and write nothing
   else there; Round32f reads its kernel in place and leaves the buffer
   alone. A buffer queried under another thread setting therefore serves as
   well. These members allocate nothing.

   FilterRoundGetBufSize: pBufferSize null gives zelStatusNullPtr; kernel
   width or height or maxWidth below 1 zelStatusBadSize; otherwise
   *pBufferSize = (8 * maxWidth + 16 * kernel width * kernel height + 43)
   times the thread setting, one part per thread; a size beyond the range of
   int is zelStatusBadSize. */
ZELAPI ZelStatus zeliFilter_Round16s_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundingMode rndMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundingMode rndMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_C3R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_C4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_AC4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_C3R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_C4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_AC4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_C3R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_C4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_AC4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_C3R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_C4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_AC4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_C3R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_C4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_AC4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_C3R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_C4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_AC4R(ZeliSize kernelSize, int maxWidth, int* pBufferSize);

/* FilterRow: the 2-D filter with a kernel one row high (kernelSize
   elements, xAnchor the anchor column): dst(x, y) = sum over j of K[j] *
   src(x + xAnchor - j, y). Checks as the 2-D filters (kernelSize below 1 is
   zelStatusBadSize), srcStep against roi.width + kernelSize - 1 pixels.
   8u with an integer kernel divides as Filter_8u; 16s and 16u convert the
   integer kernel to single precision (each element times the
   single-precision reciprocal of the divisor, checking the kernel pointer,
   kernelSize and divisor first, as Filter_16u) and continue as
   FilterRow32f. FilterRow32f rounds like Filter32f, FilterRow_32f sums like
   Filter_32f. */
ZELAPI ZelStatus zeliFilterRow_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow32f_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int xAnchor);

/* FilterColumn: the 2-D filter with a kernel one column wide (yAnchor the
   anchor row): dst(x, y) = sum over i of K[i] * src(x, y + yAnchor - i).
   Both steps are checked against roi.width pixels only. Types and
   rounding as FilterRow. */
ZELAPI ZelStatus zeliFilterColumn_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, const Zel32f* pKernel, int kernelSize, int yAnchor);

/* DecimateFilterRow, DecimateFilterColumn: a low-pass filter along the row
   (the column) followed by keeping one sample in `factor`. Destination
   pixel (x, y) is the triangle-weighted mean of the 2 * factor - 1 source
   pixels centred on source pixel (x * factor, y) (Row) or (x, y * factor)
   (Column), weights factor - |k| for k = -(factor - 1) .. factor - 1, whose
   sum is factor^2; the sum is divided by factor^2 as Filter_8u divides by
   its divisor (a power of two: to nearest, ties to even; other squares
   through the single-precision reciprocal). Factor 1 copies the source;
   factor 2 weights 1 2 1 / 4, factor 3 weights 1 2 3 2 1 / 9. roi is the
   destination's size; the source pointer addresses the source pixel of
   destination pixel (0, 0), and the caller provides factor - 1 pixels
   (rows) before it and after the last one used. Checks, in order: pSrc or
   pDst null (zelStatusNullPtr), ROI width or height below 1
   (zelStatusBadSize), factor outside 1..256 (zelStatusBadUpDownFactor),
   then steps (zelStatusBadStep): Row checks srcStep against
   (roi.width + 1) * factor - 1 pixels, Column against roi.width pixels;
   dstStep against roi.width pixels. */
ZELAPI ZelStatus zeliDecimateFilterRow_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, int factor);
ZELAPI ZelStatus zeliDecimateFilterColumn_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, int factor);

/* ==== Minimum and maximum filters ======================================= */
/* FilterMin, FilterMax: destination pixel (x, y) is the smallest or largest
   value of each channel over the rectangular window of maskSize pixels whose
   element anchor lies over source pixel (x, y): source columns
   x - anchor.x .. x - anchor.x + maskSize.width - 1 and rows
   y - anchor.y .. y - anchor.y + maskSize.height - 1 (not mirrored; every
   window pixel counts; even sides are allowed). The caller provides the
   source pixels the window reaches around the ROI. A 1x1 mask copies the
   ROI (zeliCopy). C3 and C4 filter every channel; AC4 the three colour
   channels, leaving the destination alpha unwritten. 32f follows the
   ordinary order of floats: -0 and +0 compare equal and either may come
   out, the same one on every processor (NaN sources give unspecified
   values). The cost per pixel does not grow with the window's height and
   grows with the logarithm of its width. Large images share their rows
   among threads; results never depend on it.

   Checks, in order: pSrc or pDst null (zelStatusNullPtr), ROI width or
   height below 1 (zelStatusBadSize), srcStep or dstStep below 1
   (zelStatusBadStep; a step shorter than a row is not detected), mask width
   or height below 1 (zelStatusBadMaskSize), anchor outside the mask
   (zelStatusBadAnchor), scratch rows not obtainable (zelStatusNoMemory).
   Nothing is written on an error. */
ZELAPI ZelStatus zeliFilterMin_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMin_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterMax_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor);

/* ==== Morphology ========================================================= */
/* Dilate3x3, Erode3x3, Dilate, Erode: destination pixel (x, y) is the
   largest (dilation) or smallest (erosion) value of each channel over the
   source pixels under a structuring element. 3x3: the square of source
   columns x-1..x+1, rows y-1..y+1. Dilate and Erode: pMask is a dense
   maskSize.width x maskSize.height array of bytes, top row first, whose
   non-zero bytes are the members (1 and 255 mean the same); the member in
   mask row i, column j covers source pixel (x - anchor.x + j,
   y - anchor.y + i): the mask is not mirrored. The caller provides the
   source pixels the element reaches around the ROI; they are read, never
   written. 8u and 16u compare as unsigned integers, 32f in the ordinary
   order of floats (-0 and +0 are equal and either may come out, the same
   one on every processor and for any thread count). C3 and C4 work every
   channel; AC4 the colour channels, leaving the destination alpha (in
   place: the image's alpha) as it was.

   In-place members (IR) give exactly the out-of-place result of the image
   as it was before the call: result rows are held back until no later
   window reads the rows they replace; they run on the calling thread. The
   out-of-place members split large images into bands of rows for the
   library's threads. Cost per pixel: rectangular elements (also any mask
   whose members fill their bounding rectangle) do not grow with the
   element's height and grow with the logarithm of its width; other masks
   cost one vector operation per member.

   Checks, in this order (the step before the size): a null pointer
   (zelStatusNullPtr); a step below 1 (zelStatusBadStep); ROI width or
   height below 1 (zelStatusBadSize); mask width or height below 1
   (zelStatusBadMaskSize), no non-zero mask byte (zelStatusZeroMask), anchor
   outside the mask (zelStatusBadAnchor); a source step shorter than
   roi.width + mask width - 1 pixels (3x3: roi.width + 2) or a destination
   step shorter than roi.width pixels (zelStatusStepTooSmall); work buffers
   not obtainable (zelStatusNoMemory). Nothing is written on an error. */
ZELAPI ZelStatus zeliDilate3x3_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDilate3x3_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliErode3x3_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDilate_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliDilate_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep,
    ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliErode_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roi,
    const Zel8u* pMask, ZeliSize maskSize, ZeliPoint anchor);

#ifdef __cplusplus
}
#endif

#endif /* ZELI_FILTER_H */
