/* zeli: data exchange. Included by <zeli.h>; callers include that. */
#ifndef ZELI_DATA_H
#define ZELI_DATA_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Data exchange: copy, set and channel exchange ====================== */

/* Set: every pixel of the ROI takes the value (a scalar for C1, an array of
   3 or 4 values otherwise; AC4 uses the first three and leaves alpha as it
   was). Checks: null pointers, then the ROI size; steps are not checked, so
   a negative step walks the rows upwards. */
ZELAPI ZelStatus zeliSet_8u_C1R(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_C3R(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_C4R(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_AC4R(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C1R(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C3R(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C4R(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_AC4R(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C1R(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C3R(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C4R(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_AC4R(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C1R(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C3R(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C4R(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_AC4R(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C1R(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C3R(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C4R(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_AC4R(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi);

/* Set, masked (C1MR, C3MR, C4MR, AC4MR): only pixels whose mask byte is
   non-zero are filled. Channel of interest (C3CR, C4CR): pDst points at one
   channel of 3-/4-channel pixels and only that channel takes the value.
   Checks as above (the mask pointer is one of the null checks). */
ZELAPI ZelStatus zeliSet_8u_C1MR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C3MR(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C4MR(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_AC4MR(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C3CR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_C4CR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C1MR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C3MR(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C4MR(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_AC4MR(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C3CR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C4CR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C1MR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C3MR(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C4MR(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_AC4MR(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C3CR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C4CR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C1MR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C3MR(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C4MR(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_AC4MR(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C3CR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C4CR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C1MR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C3MR(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C4MR(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_AC4MR(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C3CR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C4CR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi);

/* Copy: pixels move bit for bit (16u and 16s, 32s and 32f behave alike).
   C1R/C3R/C4R copy all channels; AC4R channels 0-2 (destination alpha kept).
   MR: only pixels whose mask byte is non-zero. C1C3R/C1C4R: a grey image
   into the channel of the destination at which pDst points; C3C1R/C4C1R:
   the channel at which pSrc points into a grey image; C3CR/C4CR: one channel
   (pointed at in both) to the same channel; C3AC4R/AC4C3R: three channels
   between 3- and 4-channel pixels (alpha kept); C3P3R/C4P4R and
   P3C3R/P4C4R: interleaved to planes (channel k to plane k) and back, the
   planes sharing one step. Checks: null pointers (each plane pointer
   included), then the ROI size; steps are not checked (a negative step walks
   the rows upwards). Large contiguous copies bypass the caches. */
ZELAPI ZelStatus zeliCopy_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C1MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C3MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C4MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_AC4MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C1C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C1C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3CR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4CR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_AC4C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3P3R(const Zel8u* pSrc, int srcStep, Zel8u* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4P4R(const Zel8u* pSrc, int srcStep, Zel8u* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_P3C3R(const Zel8u* const pSrc[3], int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_P4C4R(const Zel8u* const pSrc[4], int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C1MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C3MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C4MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_AC4MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C1C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C1C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3CR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4CR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_AC4C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3P3R(const Zel16u* pSrc, int srcStep, Zel16u* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4P4R(const Zel16u* pSrc, int srcStep, Zel16u* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_P3C3R(const Zel16u* const pSrc[3], int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_P4C4R(const Zel16u* const pSrc[4], int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C1MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C3MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C4MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_AC4MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C1C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C1C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3CR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4CR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_AC4C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3P3R(const Zel16s* pSrc, int srcStep, Zel16s* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4P4R(const Zel16s* pSrc, int srcStep, Zel16s* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_P3C3R(const Zel16s* const pSrc[3], int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_P4C4R(const Zel16s* const pSrc[4], int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_AC4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C1MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C3MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C4MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_AC4MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C1C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C1C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3CR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4CR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3AC4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_AC4C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3P3R(const Zel32s* pSrc, int srcStep, Zel32s* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4P4R(const Zel32s* pSrc, int srcStep, Zel32s* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_P3C3R(const Zel32s* const pSrc[3], int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_P4C4R(const Zel32s* const pSrc[4], int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C1MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C3MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C4MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_AC4MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C1C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C1C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3CR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4CR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_AC4C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3P3R(const Zel32f* pSrc, int srcStep, Zel32f* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4P4R(const Zel32f* pSrc, int srcStep, Zel32f* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_P3C3R(const Zel32f* const pSrc[3], int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_P4C4R(const Zel32f* const pSrc[4], int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);

/* CopyManaged: the plain 8-bit copy; flags bit 0 (value 1) asks for
   non-temporal stores, every other bit is ignored. Checks as Copy. */
ZELAPI ZelStatus zeliCopyManaged_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, int flags);

/* Dup: each grey value goes to all three channels. Checks as Copy. */
ZELAPI ZelStatus zeliDup_8u_C1C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);

/* SwapChannels: destination channel k takes source channel dstOrder[k].
   C3R, AC4R (alpha kept), C3IR: three entries, each 0..2; checks null
   pointers, size, steps (zelStatusBadStep), then the entries
   (zelStatusBadChannelOrder). C4IR: four entries 0..3; checks the step
   before the size. C4C3R: three entries 0..3; steps not checked.
   C3C4R: four entries: 0..2 take that source channel, 3 writes val (8u;
   the other types have no fill value and keep the channel), any other value
   keeps the destination channel; only the first three entries are checked
   and only for being negative; steps not checked. */
ZELAPI ZelStatus zeliSwapChannels_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C4C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C3C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[4], Zel8u val);
ZELAPI ZelStatus zeliSwapChannels_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_C4C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_C3C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_C4C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_C3C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_32s_C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_AC4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_C4C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_C3C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_C4C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_C3C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);

/* Transpose: destination pixel (x, y) = source pixel (y, x); roi is the
   source size (the destination is roi.height wide, roi.width high). The
   in-place members (IR) accept square ROIs only: a non-square ROI gives
   zelStatusBadSize. Checks: null pointers, then the size; steps are not
   checked. An out-of-place member (R) called with pSrc == pDst transposes
   in place when roi is square and srcStep == dstStep; any other call with
   pSrc == pDst returns zelStatusBadArgument (after the null and size
   checks) and writes nothing. Other overlaps of source and destination are
   not supported. */
ZELAPI ZelStatus zeliTranspose_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C3IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C4IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roi);

/* ==== Data exchange: border construction ================================= */

/* The destination (dstRoiSize) holds the source (srcRoiSize) with its top
   left pixel at column leftBorderWidth, row topBorderHeight; the bottom and
   right borders take what is left of dstRoiSize. Checks, in this order:
   a null image pointer gives zelStatusNullPtr; a step below 1 (both steps)
   zelStatusBadStep; then zelStatusBadSize when a source or destination
   side is below 1, topBorderHeight or leftBorderWidth is negative, or the
   source and its top/left border do not fit the destination; a null value
   array (C3, C4, AC4 constant members) is only then reported, with
   zelStatusNullPtr. Nothing is written when a check fails. AC4 members
   write channels 0-2 of the border and leave alpha as it was (never
   stored to); the constant AC4 members read value[0..2] only. Any border
   may be wider or taller than the source. The source rectangle of the
   destination is an exact copy of the source; the source and the
   destination of an out-of-place member must not overlap. 16u and 16s
   members are the same bit moves. Results do not depend on the SIMD
   target or the thread count.

   CopyConstBorder: every border pixel takes the value (the scalar for C1,
   value[c] for channel c otherwise). */

ZELAPI ZelStatus zeliCopyConstBorder_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel8u value);
ZELAPI ZelStatus zeliCopyConstBorder_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel8u value[]);
ZELAPI ZelStatus zeliCopyConstBorder_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel8u value[]);
ZELAPI ZelStatus zeliCopyConstBorder_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel8u value[]);
ZELAPI ZelStatus zeliCopyConstBorder_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel16u value);
ZELAPI ZelStatus zeliCopyConstBorder_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16u value[]);
ZELAPI ZelStatus zeliCopyConstBorder_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16u value[]);
ZELAPI ZelStatus zeliCopyConstBorder_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16u value[]);
ZELAPI ZelStatus zeliCopyConstBorder_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel16s value);
ZELAPI ZelStatus zeliCopyConstBorder_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16s value[]);
ZELAPI ZelStatus zeliCopyConstBorder_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16s value[]);
ZELAPI ZelStatus zeliCopyConstBorder_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16s value[]);
ZELAPI ZelStatus zeliCopyConstBorder_32s_C1R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel32s value);
ZELAPI ZelStatus zeliCopyConstBorder_32s_C3R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32s value[]);
ZELAPI ZelStatus zeliCopyConstBorder_32s_C4R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32s value[]);
ZELAPI ZelStatus zeliCopyConstBorder_32s_AC4R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32s value[]);

/* CopyReplicateBorder: border pixel (x, y) takes source pixel
   (clamp(x - left, 0, srcWidth - 1), clamp(y - top, 0, srcHeight - 1)):
   side borders repeat the first or last pixel of the row, top and bottom
   borders the first or last row with its side borders, corners the corner
   pixel. The in-place members (IR) take pSrcDst at the first source pixel
   inside a larger image of step srcDstStep and write the border around it,
   at negative offsets for the top and left borders; the source pixels are
   not moved, and the result is the one the out-of-place member gives. */

ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C1R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C3R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C3IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C4R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C4IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_AC4R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_AC4IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* CopyWrapBorder: border pixel (x, y) takes source pixel
   ((x - left) mod srcWidth, (y - top) mod srcHeight) with the modulo in
   0 .. size - 1: the left border shows the right end of each row, the top
   border the bottom rows. Borders wider or taller than the source repeat
   the source periodically, as the rule says for every (x, y). In place as
   for CopyReplicateBorder. */

ZELAPI ZelStatus zeliCopyWrapBorder_32s_C1R(const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyWrapBorder_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* ==== Look-up tables ===================================================== */
/* LUT, LUT_Linear and LUT_Cubic remap every channel value through a curve
   given by nLevels pairs (pLevels[k], pValues[k]); levels and values are
   Zel32s for 8u, 16u and 16s images and Zel32f for 32f ones. C1 members take
   the two arrays and the count; C3, C4 and AC4 members take one array and
   one count per computed channel (AC4: three; alpha is neither read nor
   written). Interval k covers pLevels[k] <= x < pLevels[k+1]; a value below
   pLevels[0] or at or above pLevels[nLevels-1] is never changed.
   IR members work in place and check as their R members.

   Checks, in order: a null image pointer, curve array or (for C3, C4 and
   AC4) per-channel pointer or count array zelStatusNullPtr; ROI width or
   height below 1 zelStatusBadSize; a step below 1 zelStatusBadStep; a
   channel's nLevels below 2 zelStatusBadLUTLevels; then zelStatusNoMemory
   when a work table cannot be allocated. Nothing is written on an error.

   Integer images (8u, 16u, 16s) are mapped through a table of every value of
   the type, built once per call and channel (65536 entries for the 16-bit
   types, 16s indexed from -32768) and then applied: applying a table costs
   a load per element whatever the curve, and building it costs less than
   evaluating the curve once per pixel from about a hundred thousand pixels
   on. The table starts as the identity; the intervals are written in order
   (a later one overwrites an earlier one where they overlap), each from
   clamp(pLevels[k]) up to, not including, clamp(pLevels[k+1]), clamped to
   the type's range plus one (0..256 for 8u, 0..65536 for 16u,
   -32768..32768 for 16s); finally every value from pLevels[nLevels-1] on is
   the identity again. Results are clamped to the type's range.

   32f images search the intervals for each value from k = 0 upward; the
   first that holds it gives the result; a value no interval holds, NaN
   among them, is copied unchanged. */

/* LUT: a step function: every value of interval k becomes pValues[k]. */
ZELAPI ZelStatus zeliLUT_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* pValues, const Zel32f* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* pValues, const Zel32f* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[4], const Zel32f* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[4], const Zel32f* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);

/* LUT_Linear: straight lines between neighbouring pairs. Integer images: for
   each interval with pLevels[k+1] > pLevels[k], slope =
   (pValues[k+1] - pValues[k]) / (pLevels[k+1] - pLevels[k]) and intercept =
   pValues[k] + 0.5 - pLevels[k] * slope in double precision, and entry i
   becomes clamp(trunc(i * slope + intercept)); the interval's lower bound is
   clamped to at most the type's largest value, so an interval lying wholly
   above the range still writes that largest entry. An interval that covers
   exactly one entry after clamping takes clamp(pValues[k]). Intervals whose
   upper level is not above the lower one are passed over.
   32f: slopes in single precision (one work array per channel); a value x
   of interval k becomes (x - pLevels[k]) * slope[k] + pValues[k], computed
   in double precision from the single-precision operands and rounded once
   to single. */
ZELAPI ZelStatus zeliLUT_Linear_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* pValues, const Zel32f* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* pValues, const Zel32f* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Linear_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[4], const Zel32f* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[4], const Zel32f* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Linear_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Linear_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);

/* LUT_Cubic: for each interval k with pLevels[k+1] > pLevels[k], the cubic
   through the four pairs j .. j+3, j = clamp(k - 1, 0, nLevels - 4), solved
   in double precision by Cramer's rule with the origin at pair j + 1; a
   value x of the interval becomes a t^3 + b t^2 + c t + pValues[j+1] with
   t = x - pLevels[j+1], evaluated in double precision as
   ((a t + b) t + c) t + pValues[j+1]. Integer entries are
   clamp(trunc(value + 0.5)) over the same clamped interval bounds as
   LUT_Linear (without its one-entry rule); 32f results are rounded once to
   single. A channel with two or three levels takes the LUT_Linear curve
   instead (its own channel only). Four pairs of which two share a level
   determine no cubic: such an interval takes the LUT_Linear rule. */
ZELAPI ZelStatus zeliLUT_Cubic_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* pValues, const Zel32s* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[4], const Zel32s* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32s* const pValues[3], const Zel32s* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* pValues, const Zel32f* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* pValues, const Zel32f* pLevels, int nLevels);
ZELAPI ZelStatus zeliLUT_Cubic_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[4], const Zel32f* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[4], const Zel32f* const pLevels[4], const int nLevels[4]);
ZELAPI ZelStatus zeliLUT_Cubic_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);
ZELAPI ZelStatus zeliLUT_Cubic_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* const pValues[3], const Zel32f* const pLevels[3], const int nLevels[3]);

/* ==== Palettes ========================================================== */
/* LUTPalette and LUTPaletteSwap index a table with the low nBitSize bits of
   each source value: dst = pTable[src & (2^nBitSize - 1)]. The table must
   hold 2^nBitSize entries. 3-channel sources (C3, AC4, C3A0C4) take one
   table per channel; AC4 leaves the destination alpha unwritten.
   16u8u, 8u24u, 16u24u, 8u32u and 16u32u write entries of another width:
   24-bit entries are three bytes each (pTable holds 3 * 2^nBitSize bytes)
   and are copied as they stand to three-byte destination pixels (pDst
   advances three bytes a pixel).
   C3A0C4R: a 3-channel source to a 4-channel destination: channel 0 takes
   alphaValue and channels 1..3 take T0[s0], T1[s1], T2[s2].
   LUTPaletteSwap C3A0C4R: channels 0, 1, 2 take T2[s2], T1[s1], T0[s0] and
   channel 3 takes alphaValue. An alphaValue outside the destination's range
   (below 0, above 255 for 8u, above 65535 for 16u) leaves that channel
   unwritten.

   Checks, in order: a null source, destination or table (array) pointer
   zelStatusNullPtr; ROI width or height below 1 zelStatusBadSize; for the
   3-table members a null table of the three zelStatusNullPtr; nBitSize
   outside 1..8 (8u sources) or 1..16 (16u sources) zelStatusBadBitSize.
   Steps are not checked: a negative step walks the rows upwards. */
ZELAPI ZelStatus zeliLUTPalette_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* const pTable[3], int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* const pTable[3], int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u* const pTable[3], int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u* const pTable[3], int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u8u_C1R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_8u24u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u24u_C1R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_8u32u_C1R(const Zel8u* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize, const Zel32u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u32u_C1R(const Zel16u* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize, const Zel32u* pTable, int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_8u_C3A0C4R(const Zel8u* pSrc, int srcStep, int alphaValue, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* const pTable[3], int nBitSize);
ZELAPI ZelStatus zeliLUTPalette_16u_C3A0C4R(const Zel16u* pSrc, int srcStep, int alphaValue, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u* const pTable[3], int nBitSize);
ZELAPI ZelStatus zeliLUTPaletteSwap_8u_C3A0C4R(const Zel8u* pSrc, int srcStep, int alphaValue, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* const pTable[3], int nBitSize);

/* Convert: change the element type, keeping the value. All members check
   null pointers (-8), then the ROI size (-6), then both steps (-14).
   Widening pairs are exact; integer narrowing saturates to the destination
   range. AC4 members convert channels 0-2 and leave the destination alpha
   untouched (it is not read either). Rows whose steps equal their length
   are worked as one row.

   32f sources: each value is clamped as max(min(x, HI), LO) with the
   destination's limits, the minimum first, so NaN gives HI; then rounded
   by roundMode: zelRoundTowardZero (0) truncates, zelRoundNearestEven (1)
   rounds to nearest with ties to even, and every other value, none of
   which is rejected, rounds half away from zero: the value after the
   minimum with HI gets 0.5 added with its own sign in single precision,
   is truncated and saturated to the range. That addition rounds, so the
   one value just below a half whose sum is inexact, 0.49999997f (and its
   negative), becomes 1 (-1); every other value rounds as half-away says.
   For modes 0 and 1 the call sets the vector unit's rounding control
   (toward zero, nearest) after the checks and writes the caller's control
   word back at the end only when its rounding field was a different one;
   other modes leave the control word as it is. The results never depend
   on the caller's rounding mode, flush-to-zero or denormals-are-zero
   setting. */


ZELAPI ZelStatus zeliConvert_8u16u_C1R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16u_C3R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16u_C4R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16u_AC4R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16s_C3R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16s_C4R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u16s_AC4R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32s_C1R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32s_C3R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32s_C4R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32s_AC4R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32s_C1R(const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32s_C3R(const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32s_C4R(const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32s_AC4R(const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32s_C1R(const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32s_C3R(const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32s_C4R(const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32s_AC4R(const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32s_C1R(const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32s_C3R(const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32s_C4R(const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32s_AC4R(const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32f_C1R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32f_C3R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32f_C4R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8u32f_AC4R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32f_C1R(const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32f_C3R(const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32f_C4R(const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_8s32f_AC4R(const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32f_C1R(const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32f_C3R(const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32f_C4R(const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s32f_AC4R(const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32f_C1R(const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32f_C3R(const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32f_C4R(const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u32f_AC4R(const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u8u_C1R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u8u_C3R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u8u_C4R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16u8u_AC4R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s8u_C1R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s8u_C3R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s8u_C4R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_16s8u_AC4R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8u_C1R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8u_C3R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8u_C4R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8u_AC4R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8s_C1R(const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8s_C3R(const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8s_C4R(const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32s8s_AC4R(const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliConvert_32f8u_C1R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_C3R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_C4R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_AC4R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_C1R(const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_C3R(const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_C4R(const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_AC4R(const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_C1R(const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_C3R(const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_C4R(const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_AC4R(const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_C1R(const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_C3R(const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_C4R(const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_AC4R(const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode roundMode);

/* Convert_8u1u: packs an 8-bit image into one bit a pixel by error
   diffusion. For each pixel v = x * 8192 + 23 * S, S the stored errors of
   the pixels already visited weighted 8, 4 (one and two back in the row),
   2 4 8 4 2 (the row above, offsets -2..+2) and 1 2 4 2 1 (two rows
   above); the bit is set when v > threshold * 8192, and the stored error
   is (v >> 10) - 2047 for a set bit, v >> 10 otherwise. Errors outside the
   image count as 0. The bits of a row start at bit dstBitOffset % 8 of the
   row's first byte (the most significant bit first): whole bytes of the
   offset are not skipped, so an offset of 9 acts as 1. Bits before the
   offset and after the row's end keep their values. The rule is the one
   above for every image: threshold 255 sets no bit in a dark image, but
   the errors a bright image gathers do set bits even then, and an image
   of 255 with threshold 0 sets every bit. Checks: null -8, ROI size or a
   negative offset -6; steps are not checked (a negative step walks
   upwards); -9 when the three error rows cannot be allocated. */

ZELAPI ZelStatus zeliConvert_8u1u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, int dstBitOffset, ZeliSize roi, Zel8u threshold);

/* Convert_1u8u: unpacks a 1-bit image, 255 for a set bit and 0 for a
   clear one. A row starts srcBitOffset / 8 bytes after the row's address,
   at bit srcBitOffset % 8 (the most significant bit first). Checks: null
   -8, ROI size -6, steps -14, a negative offset -6 (last). */

ZELAPI ZelStatus zeliConvert_1u8u_C1R(const Zel8u* pSrc, int srcStep, int srcBitOffset, Zel8u* pDst, int dstStep, ZeliSize roi);

/* Scale: maps the whole range of the source type onto the whole range of
   the destination type. Checks: null -8, ROI size -6, steps -14; the
   range members check the range first (-13 when vMax - vMin is not above
   0, even with null pointers). AC4 leaves the destination alpha alone.

   8u16u: x * 257; 8u16s: x * 257 - 32768; 8u32s: x * 16843009 - 2^31.
   16s8u, 16u8u, 32s8u with any hint but zelAccuracyHigh (2), in integers
   with arithmetic shifts: ((x - (x >> 8)) >> 8) + 128 for 16s,
   the same of x - 32768 for 16u, ((x - (x >> 8)) >> 24) + 128 for 32s.
   With hint 2, to nearest with ties to even: (x + 32768) * K (16s) and
   x * K (16u) in single precision, K = 0x3B7F00FF (the float nearest to
   255/65535), and x * (255 / 4294967295) + 2^31 * 255 / 4294967295 in
   double precision (32s); the call sets the rounding control to nearest
   after the checks and writes the caller's word back only if its rounding
   field was another. The two 16s formulas differ for 128 inputs.
   8u32f: x * ((vMax - vMin) / 255) + vMin in single precision.
   32f8u: with k = 255 / (vMax - vMin) and b = -k * vMin in single
   precision, round(max(min(x, vMax), vMin) * k + b) to nearest even,
   saturated to 0..255 (NaN gives vMax; a result that is NaN because the
   range is infinite gives 0). It sets the rounding control to nearest
   before any check and leaves it so when a check fails; after a call that
   ran, the caller's word comes back only if its rounding field was
   another. Results never depend on the caller's floating-point settings. */


ZELAPI ZelStatus zeliScale_8u16u_C1R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16u_C3R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16u_C4R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16u_AC4R(const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16s_C1R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16s_C3R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16s_C4R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u16s_AC4R(const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u32s_C1R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u32s_C3R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u32s_C4R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_8u32s_AC4R(const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliScale_16s8u_C1R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16s8u_C3R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16s8u_C4R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16s8u_AC4R(const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16u8u_C1R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16u8u_C3R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16u8u_C4R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_16u8u_AC4R(const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_32s8u_C1R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_32s8u_C3R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_32s8u_C4R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_32s8u_AC4R(const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint);
ZELAPI ZelStatus zeliScale_8u32f_C1R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_8u32f_C3R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_8u32f_C4R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_8u32f_AC4R(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_C1R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_C3R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_C4R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_AC4R(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax);

#ifdef __cplusplus
}
#endif

#endif /* ZELI_DATA_H */
