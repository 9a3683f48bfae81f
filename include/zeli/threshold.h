/* zeli: thresholds and comparisons. Included by <zeli.h>; callers include that. */
#ifndef ZELI_THRESHOLD_H
#define ZELI_THRESHOLD_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Thresholds ========================================================= */
/* Every threshold family clips or replaces channel values against one limit
   per channel (a scalar for C1, an array with an entry per channel for C3,
   AC4 and C4). Comparisons are strict, so a value equal to its threshold is
   always kept; a NaN compares false and is kept; so is every value when a
   32f threshold is NaN. AC4 members process channels 0-2 and never write the
   destination alpha. IR members work in place and check as their R members.

   Unless a family says otherwise the checks are, in order: null image
   pointers zelStatusNullPtr, ROI width or height below 1 zelStatusBadSize,
   steps below 1 zelStatusBadStep, then null threshold or value arrays
   zelStatusNullPtr. Nothing is written on an error. */

/* Threshold: op zelCompareLess (0) replaces every channel value x < threshold
   by the threshold, op zelCompareGreater (4) every x > threshold; other
   values are kept. The common checks come first (the threshold array after
   the steps); only then an op other than 0 and 4 gives
   zelStatusUnsupportedMode. */
ZELAPI ZelStatus zeliThreshold_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], ZelCompareOp cmpOp);

/* Threshold_LT: x < threshold gives the threshold (a floor). */
ZELAPI ZelStatus zeliThreshold_LT_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3]);
ZELAPI ZelStatus zeliThreshold_LT_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3]);

/* Threshold_GT: x > threshold gives the threshold (a ceiling). */
ZELAPI ZelStatus zeliThreshold_GT_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_GT_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_GT_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_GT_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_GT_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_GT_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_GT_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_GT_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_GT_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3]);
ZELAPI ZelStatus zeliThreshold_GT_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3]);

/* Threshold_Val: op 0 replaces x < threshold by value, op 4 x > threshold by
   value. The op is checked before everything else: an op other than 0 and 4
   returns zelStatusUnsupportedMode even when the image pointers are null.
   Then the common checks. */
ZELAPI ZelStatus zeliThreshold_Val_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3], ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3], ZelCompareOp cmpOp);

/* Threshold_LTVal: x < threshold gives value. Also C4 (four channels). */
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[4], const Zel8u value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[4], const Zel8u value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[4], const Zel16s value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[4], const Zel16s value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[4], const Zel16u value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[4], const Zel16u value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[4], const Zel32f value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[4], const Zel32f value[4]);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);

/* Threshold_GTVal: x > threshold gives value. Also C4 (four channels). */
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[4], const Zel8u value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[4], const Zel8u value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u threshold[3], const Zel8u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[4], const Zel16s value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[4], const Zel16s value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s threshold[3], const Zel16s value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[4], const Zel16u value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[4], const Zel16u value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u threshold[3], const Zel16u value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[4], const Zel32f value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[4], const Zel32f value[4]);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f threshold[3], const Zel32f value[3]);

/* Threshold_LTValGTVal: x < thresholdLT gives valueLT, x > thresholdGT gives
   valueGT, anything else is kept. After the common checks (every pointer,
   the four arrays with the images, then size, steps) a channel whose
   thresholdGT is below its thresholdLT gives zelStatusThresholdsCrossed;
   equal thresholds are accepted. */
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u thresholdLT, Zel8u valueLT, Zel8u thresholdGT, Zel8u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u thresholdLT, Zel8u valueLT, Zel8u thresholdGT, Zel8u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u thresholdLT[3], const Zel8u valueLT[3], const Zel8u thresholdGT[3], const Zel8u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u thresholdLT[3], const Zel8u valueLT[3], const Zel8u thresholdGT[3], const Zel8u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u thresholdLT[3], const Zel8u valueLT[3], const Zel8u thresholdGT[3], const Zel8u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u thresholdLT[3], const Zel8u valueLT[3], const Zel8u thresholdGT[3], const Zel8u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s thresholdLT, Zel16s valueLT, Zel16s thresholdGT, Zel16s valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s thresholdLT, Zel16s valueLT, Zel16s thresholdGT, Zel16s valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s thresholdLT[3], const Zel16s valueLT[3], const Zel16s thresholdGT[3], const Zel16s valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s thresholdLT[3], const Zel16s valueLT[3], const Zel16s thresholdGT[3], const Zel16s valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s thresholdLT[3], const Zel16s valueLT[3], const Zel16s thresholdGT[3], const Zel16s valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s thresholdLT[3], const Zel16s valueLT[3], const Zel16s thresholdGT[3], const Zel16s valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u thresholdLT, Zel16u valueLT, Zel16u thresholdGT, Zel16u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u thresholdLT, Zel16u valueLT, Zel16u thresholdGT, Zel16u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u thresholdLT[3], const Zel16u valueLT[3], const Zel16u thresholdGT[3], const Zel16u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u thresholdLT[3], const Zel16u valueLT[3], const Zel16u thresholdGT[3], const Zel16u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u thresholdLT[3], const Zel16u valueLT[3], const Zel16u thresholdGT[3], const Zel16u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u thresholdLT[3], const Zel16u valueLT[3], const Zel16u thresholdGT[3], const Zel16u valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f thresholdLT, Zel32f valueLT, Zel32f thresholdGT, Zel32f valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f thresholdLT, Zel32f valueLT, Zel32f thresholdGT, Zel32f valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f thresholdLT[3], const Zel32f valueLT[3], const Zel32f thresholdGT[3], const Zel32f valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f thresholdLT[3], const Zel32f valueLT[3], const Zel32f thresholdGT[3], const Zel32f valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel32f thresholdLT[3], const Zel32f valueLT[3], const Zel32f thresholdGT[3], const Zel32f valueGT[3]);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f thresholdLT[3], const Zel32f valueLT[3], const Zel32f thresholdGT[3], const Zel32f valueGT[3]);


/* ==== Comparisons ======================================================== */
/* Compare: 255 where cmpOp holds between source 1 and source 2 in every
   compared channel of the pixel (C1: 1, C3 and AC4: 3, C4: 4), else 0; the
   destination is one 8u channel. zelCompareGreaterOrEqual is computed as
   src2 <= src1 and zelCompareGreater as src2 < src1; with a NaN on either
   side every op is false. Checks: null pointers zelStatusNullPtr, steps
   zelStatusBadStep (before the size), size zelStatusBadSize; an op outside
   0..4 (negative ones too) returns zelStatusOk having written nothing. */
ZELAPI ZelStatus zeliCompare_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16s_C1R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16s_C3R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16s_C4R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16s_AC4R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompare_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);

/* CompareC: as Compare with a constant per channel as the second operand.
   The constant array is tested before the image pointers; then steps, size
   and the silent op rule of Compare. */
ZELAPI ZelStatus zeliCompareC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s value, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16s_C3R(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16s_C4R(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16s_AC4R(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);
ZELAPI ZelStatus zeliCompareC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp);

/* CompareEqualEps, CompareEqualEpsC: a channel passes when |a - b| <= eps,
   the difference rounded to single precision first (NaN never passes); the
   pixel is 255 when every compared channel passes. Checks: null pointers,
   steps, size, then eps < 0 zelStatusNegativeEpsilon (0 asks for equality). */
ZELAPI ZelStatus zeliCompareEqualEps_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEps_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEps_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEps_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps);


/* ==== Otsu threshold ===================================================== */
/* ComputeThreshold_Otsu: the grey level that maximises the between-class
   variance of the ROI's histogram, computed in double precision with bin
   centres at i + 0.5. Bins are walked in order; a bin where either class
   would hold less than 2^-23 of the pixels is passed over, but the running
   lower-class mean is still rescaled by the class weight at that bin (so
   after a passed-over bin of non-zero weight the mean is not a clean sum;
   this is deliberate). *pThreshold receives the first bin of maximal
   variance (ties keep the lower bin), or 0 when no bin qualifies (a
   constant image). Checks: pSrc or pThreshold null zelStatusNullPtr, size
   zelStatusBadSize, srcStep below the ROI width zelStatusBadStep. The
   result does not depend on the thread count. */
ZELAPI ZelStatus zeliComputeThreshold_Otsu_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize,
    Zel8u* pThreshold);

#ifdef __cplusplus
}
#endif

#endif /* ZELI_THRESHOLD_H */
