/* zeli: sums, means and extrema. Included by <zeli.h>; callers include that. */
#ifndef ZELI_STATS_H
#define ZELI_STATS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Sums, means and extrema ============================================ */
/* Whole-ROI statistics over interleaved images. AC4 members read and report
   channels 0-2 only. Reductions run over blocks of rows that threads may
   share; the results never depend on the thread count or the processor. */

/* Sum: the sum of each channel over the ROI (one value for C1, three for C3
   and AC4, four for C4). Integer sums are exact (64-bit integer totals)
   and returned as doubles. The 32f members follow the accuracy hint, which
   is never checked. zelAccuracyHigh (2) adds each channel in two running
   double totals, one for the even columns and one for the odd ones, in
   row-major order, and returns odd + even. Any other value adds each row
   in single precision, the element at address p going to lane
   (p / 4) mod 4 of four running sums of its channel (each starting at +0;
   the lanes follow the 16-byte alignment of the row on every processor),
   adds each channel's lanes as ((l0 + l1) + l2) + l3 and accumulates these
   row sums in double. Both rules restart their double totals for every
   block of 16 rows and add the blocks' totals in order, so the result
   never depends on the thread count or the SIMD target; it does depend on
   the row order, so a negative step may change the last bits. NaN and
   infinities propagate as in ordinary addition. The accurate rule is one
   chain of double additions per channel and column parity, several times
   slower than a read of the image; the fast rule runs at memory speed.
   Checks: null pSrc or pSum zelStatusNullPtr, then a ROI width or height
   below 1 zelStatusBadSize. The step is not checked: a step of 0 or a
   negative step walks the rows it describes. */
ZELAPI ZelStatus zeliSum_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3]);
ZELAPI ZelStatus zeliSum_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[4]);
ZELAPI ZelStatus zeliSum_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3]);
ZELAPI ZelStatus zeliSum_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3]);
ZELAPI ZelStatus zeliSum_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[4]);
ZELAPI ZelStatus zeliSum_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3]);
ZELAPI ZelStatus zeliSum_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3]);
ZELAPI ZelStatus zeliSum_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[4]);
ZELAPI ZelStatus zeliSum_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3]);
ZELAPI ZelStatus zeliSum_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliSum_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3], ZelAccuracyHint hint);
ZELAPI ZelStatus zeliSum_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[4], ZelAccuracyHint hint);
ZELAPI ZelStatus zeliSum_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f pSum[3], ZelAccuracyHint hint);

/* Mean: Sum divided by width x height, that product formed in signed
   32-bit arithmetic (it wraps for ROIs of 2^31 pixels or more) and
   converted to double. The 32f members check pMean first and then return
   whatever the Sum with the same hint returns; the others check as Sum. */
ZELAPI ZelStatus zeliMean_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3]);
ZELAPI ZelStatus zeliMean_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[4]);
ZELAPI ZelStatus zeliMean_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3]);
ZELAPI ZelStatus zeliMean_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3]);
ZELAPI ZelStatus zeliMean_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[4]);
ZELAPI ZelStatus zeliMean_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3]);
ZELAPI ZelStatus zeliMean_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3]);
ZELAPI ZelStatus zeliMean_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[4]);
ZELAPI ZelStatus zeliMean_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3]);
ZELAPI ZelStatus zeliMean_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliMean_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3], ZelAccuracyHint hint);
ZELAPI ZelStatus zeliMean_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[4], ZelAccuracyHint hint);
ZELAPI ZelStatus zeliMean_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f pMean[3], ZelAccuracyHint hint);

/* Min, Max, MinMax: the smallest and largest value of each channel.
   32f: NaN values are ignored; a channel holding nothing but NaN reports
   NaN. -0 counts as smaller than +0, so the sign of a zero result is the
   same on every processor. Checks as Sum (no step check). */
ZELAPI ZelStatus zeliMin_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin);
ZELAPI ZelStatus zeliMin_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[3]);
ZELAPI ZelStatus zeliMin_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[4]);
ZELAPI ZelStatus zeliMin_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[3]);
ZELAPI ZelStatus zeliMin_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin);
ZELAPI ZelStatus zeliMin_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[3]);
ZELAPI ZelStatus zeliMin_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[4]);
ZELAPI ZelStatus zeliMin_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[3]);
ZELAPI ZelStatus zeliMin_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin);
ZELAPI ZelStatus zeliMin_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[3]);
ZELAPI ZelStatus zeliMin_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[4]);
ZELAPI ZelStatus zeliMin_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[3]);
ZELAPI ZelStatus zeliMin_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin);
ZELAPI ZelStatus zeliMin_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[3]);
ZELAPI ZelStatus zeliMin_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[4]);
ZELAPI ZelStatus zeliMin_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[3]);
ZELAPI ZelStatus zeliMax_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax);
ZELAPI ZelStatus zeliMax_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMax[3]);
ZELAPI ZelStatus zeliMax_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMax[4]);
ZELAPI ZelStatus zeliMax_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMax[3]);
ZELAPI ZelStatus zeliMax_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax);
ZELAPI ZelStatus zeliMax_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMax[3]);
ZELAPI ZelStatus zeliMax_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMax[4]);
ZELAPI ZelStatus zeliMax_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMax[3]);
ZELAPI ZelStatus zeliMax_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax);
ZELAPI ZelStatus zeliMax_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMax[3]);
ZELAPI ZelStatus zeliMax_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMax[4]);
ZELAPI ZelStatus zeliMax_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMax[3]);
ZELAPI ZelStatus zeliMax_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax);
ZELAPI ZelStatus zeliMax_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMax[3]);
ZELAPI ZelStatus zeliMax_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMax[4]);
ZELAPI ZelStatus zeliMax_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMax[3]);
ZELAPI ZelStatus zeliMinMax_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, Zel8u* pMax);
ZELAPI ZelStatus zeliMinMax_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[3], Zel8u pMax[3]);
ZELAPI ZelStatus zeliMinMax_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[4], Zel8u pMax[4]);
ZELAPI ZelStatus zeliMinMax_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[3], Zel8u pMax[3]);
ZELAPI ZelStatus zeliMinMax_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, Zel16u* pMax);
ZELAPI ZelStatus zeliMinMax_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[3], Zel16u pMax[3]);
ZELAPI ZelStatus zeliMinMax_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[4], Zel16u pMax[4]);
ZELAPI ZelStatus zeliMinMax_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[3], Zel16u pMax[3]);
ZELAPI ZelStatus zeliMinMax_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, Zel16s* pMax);
ZELAPI ZelStatus zeliMinMax_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[3], Zel16s pMax[3]);
ZELAPI ZelStatus zeliMinMax_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[4], Zel16s pMax[4]);
ZELAPI ZelStatus zeliMinMax_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[3], Zel16s pMax[3]);
ZELAPI ZelStatus zeliMinMax_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, Zel32f* pMax);
ZELAPI ZelStatus zeliMinMax_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[3], Zel32f pMax[3]);
ZELAPI ZelStatus zeliMinMax_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[4], Zel32f pMax[4]);
ZELAPI ZelStatus zeliMinMax_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[3], Zel32f pMax[3]);

/* MinIndx, MaxIndx: the extreme of each channel and the position of its
   first occurrence in row-major order (smallest y, then smallest x), per
   channel. Rows are scanned from the top; a row replaces a channel's
   extreme only when its own extreme is strictly better, the scan stops
   once every channel has reached the type's bound (255 for 8u MaxIndx, 0
   for 8u MinIndx, the infinities for 32f), and the recorded row is then
   searched from the left. 32f values compare as in Min and Max (NaN ignored,
   -0 below +0; a channel of nothing but NaN reports NaN at (0, 0)).
   zeliMaxIndx_32f_C1R starts from -3.4028235e38 in row 0 instead of the
   first pixel: on an image whose values are all below that (-inf or NaN)
   it reports -3.4028235e38 at (0, 0), and when -3.4028235e38 is the
   maximum but row 0 lacks it the position is (0, 0) as well.
   Checks as Sum (no step check). */
ZELAPI ZelStatus zeliMinIndx_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMinIndx_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMinIndx_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMinIndx_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMinIndx_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMinIndx_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMin[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMax[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMaxIndx_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMax[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMaxIndx_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMax[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMaxIndx_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMax[3], int pIndexX[3], int pIndexY[3]);
ZELAPI ZelStatus zeliMaxIndx_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMax[4], int pIndexX[4], int pIndexY[4]);
ZELAPI ZelStatus zeliMaxIndx_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f pMax[3], int pIndexX[3], int pIndexY[3]);

/* CountInRange: per channel, the number of values v with
   lowerBound <= v <= upperBound (both included; a NaN value or bound counts
   nothing). The count is a signed 32-bit value. Checks: null pSrc, counts
   or bound arrays zelStatusNullPtr, then a step below 1 zelStatusBadStep,
   then the ROI size zelStatusBadSize (the step before the size), then an
   upper bound below its lower bound in any channel zelStatusBadRange. */
ZELAPI ZelStatus zeliCountInRange_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, int* counts, Zel8u lowerBound, Zel8u upperBound);
ZELAPI ZelStatus zeliCountInRange_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, int counts[3], const Zel8u lowerBound[3], const Zel8u upperBound[3]);
ZELAPI ZelStatus zeliCountInRange_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, int counts[3], const Zel8u lowerBound[3], const Zel8u upperBound[3]);
ZELAPI ZelStatus zeliCountInRange_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, int* counts, Zel32f lowerBound, Zel32f upperBound);
ZELAPI ZelStatus zeliCountInRange_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, int counts[3], const Zel32f lowerBound[3], const Zel32f upperBound[3]);
ZELAPI ZelStatus zeliCountInRange_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, int counts[3], const Zel32f lowerBound[3], const Zel32f upperBound[3]);

/* MinEvery, MaxEvery: pSrcDst = min (max) of pSrc and pSrcDst, element by
   element, row after row; AC4 alpha is neither read nor written. The
   destination value is replaced only where the source is strictly smaller
   (larger): a NaN on either side keeps the destination value, and so does
   a zero of the other sign. Checks: null pointers, ROI size, then steps
   below 1 zelStatusBadStep. */
ZELAPI ZelStatus zeliMinEvery_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_C1IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_C3IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_C4IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_AC4IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_C1IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_C3IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_C4IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_AC4IR(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* DotProdCol: pDst[j] = sum over i of pCoeffs[i] x ppSrcRow[i][j] for
   j < len, in single precision and in row order: pDst = pCoeffs[0] x row 0,
   then pDst += pCoeffs[i] x row i (each product rounded, then each sum).
   Checks: null ppSrcRow, pCoeffs or pDst zelStatusNullPtr, then numRows or
   len below 1 zelStatusBadSize. A null row pointer gives zelStatusNullPtr
   when it is reached: row 0 is checked before anything is written, but a
   null row i >= 1 is found after rows 0 .. i-1 have been combined, and
   pDst keeps that partial result. */
ZELAPI ZelStatus zeliDotProdCol_32f_L2(const Zel32f* const* ppSrcRow, const Zel32f* pCoeffs, int numRows, Zel32f* pDst, int len);
#ifdef __cplusplus
}
#endif

#endif /* ZELI_STATS_H */
