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
   grows with the logarithm of its width. The filters run on the calling
   thread.

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
