/* zeli: image arithmetic. Included by <zeli.h>; callers include that. */
#ifndef ZELI_ARITH_H
#define ZELI_ARITH_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Image arithmetic ==================================================== */
/* Add: pDst = pSrc1 + pSrc2 (in place: pSrcDst += pSrc). Integer results are
   multiplied by 2^-scaleFactor, rounded half to even and saturated; a scale
   factor that makes every result 0 fills the ROI with 0. AC4 members leave the
   fourth channel as it is. Steps are not checked except by the 16sc and 32fc
   members. */
ZELAPI ZelStatus zeliAdd_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* AddC: pDst = pSrc + value per channel (in place: the value comes first).
   Scaled and saturated as Add. */
ZELAPI ZelStatus zeliAddC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C3IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C4IRSfs(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_AC4IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C3IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C4IRSfs(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_AC4IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C3IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C4IRSfs(const Zel16s value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_AC4IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C3IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_AC4IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C3IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_AC4IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C3IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C4IR(const Zel32f value[4], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_AC4IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C3IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_AC4IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Sub: pDst = pSrc2 - pSrc1, the first source is subtracted from the second
   (in place: pSrcDst -= pSrc). Scaled and saturated as Add. */
ZELAPI ZelStatus zeliSub_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* SubC: pDst = pSrc - value per channel. Scaled and saturated as Add. */
ZELAPI ZelStatus zeliSubC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C3IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C4IRSfs(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_AC4IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C3IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C4IRSfs(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_AC4IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C3IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C4IRSfs(const Zel16s value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_AC4IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C3IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_AC4IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C3IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_AC4IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C3IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C4IR(const Zel32f value[4], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_AC4IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C3IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_AC4IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Mul: pDst = pSrc1 * pSrc2; complex products (re1 re2 - im1 im2,
   re1 im2 + im1 re2) are formed exactly and each part is scaled. */
ZELAPI ZelStatus zeliMul_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* MulC: pDst = pSrc * value per channel. Scaled and saturated as Mul. */
ZELAPI ZelStatus zeliMulC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C3IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C4IRSfs(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_AC4IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C3IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C4IRSfs(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_AC4IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C3IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C4IRSfs(const Zel16s value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_AC4IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C3IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_AC4IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C3IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_AC4IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C3IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C4IR(const Zel32f value[4], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_AC4IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C3IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_AC4IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* MulScale: a * b as a fraction of the type maximum, (p + 1 + (p >> n)) >> n
   for p = a * b and n = 8 or 16. Checks the step before the ROI size. */
ZELAPI ZelStatus zeliMulScale_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* MulCScale: pSrc * value per channel as MulScale. */
ZELAPI ZelStatus zeliMulCScale_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C3IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C4IR(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_AC4IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C3IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C4IR(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_AC4IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Image logic and shifts ============================================= */
/* And, Or, Xor: pDst = pSrc1 AND / OR / XOR pSrc2 per channel (in place:
   pSrcDst op= pSrc). AndC, OrC, XorC: the same with a constant, one value per
   channel (three for AC4). Not: XOR with 255 (Not_8u_C1R is XorC_8u_C1R with
   255). AC4 members leave the fourth channel as it is: it is neither read nor
   written.
   Checks, in this order, for every member of these families (Not included)
   and of the shifts below: a null image or value-array pointer gives zelStatusNullPtr,
   then a step below 1 zelStatusBadStep, then a width or height below 1
   zelStatusBadSize (steps before size, the reverse of Copy). Nothing is
   written on failure. */
ZELAPI ZelStatus zeliAnd_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C1R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C1IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C3R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C3IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C4R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C4IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_AC4R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_AC4IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C3IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C4IR(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_AC4IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C3IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C4IR(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_AC4IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C1IR(Zel32s value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C3R(const Zel32s* pSrc, int srcStep, const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C3IR(const Zel32s value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C4R(const Zel32s* pSrc, int srcStep, const Zel32s value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C4IR(const Zel32s value[4], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_AC4R(const Zel32s* pSrc, int srcStep, const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_AC4IR(const Zel32s value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C1R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C1IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C3R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C3IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C4R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C4IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_AC4R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_AC4IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C3IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C4IR(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_AC4IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C3IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C4IR(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_AC4IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C1IR(Zel32s value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C3R(const Zel32s* pSrc, int srcStep, const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C3IR(const Zel32s value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C4R(const Zel32s* pSrc, int srcStep, const Zel32s value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C4IR(const Zel32s value[4], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_AC4R(const Zel32s* pSrc, int srcStep, const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_AC4IR(const Zel32s value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C1R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C1IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C3R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C3IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C4R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C4IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_AC4R(const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_AC4IR(const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C3IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C4IR(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_AC4IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C3IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C4IR(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_AC4IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C1IR(Zel32s value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C3R(const Zel32s* pSrc, int srcStep, const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C3IR(const Zel32s value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C4R(const Zel32s* pSrc, int srcStep, const Zel32s value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C4IR(const Zel32s value[4], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_AC4R(const Zel32s* pSrc, int srcStep, const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_AC4IR(const Zel32s value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
/* LShiftC: pDst = pSrc << value per channel. RShiftC: pDst = pSrc >> value,
   logical for the unsigned types, arithmetic (sign-propagating) for 8s, 16s
   and 32s. Counts are unsigned, one per channel for C3 and C4 (three for
   AC4, whose alpha is left as it is), each channel shifted by its own count:
   - a count of 0 leaves the element as it is; when every count is 0 the call
     is a Copy (in place: nothing is written);
   - left shifts and unsigned right shifts by W or more (W = 8, 16 or 32, the
     element's width) give 0; when every count is so the call is a Set of 0;
   - signed right shifts by W or more give the sign fill, -1 for negative
     elements and 0 for the others, however large the count. This holds for
     C3 as well when all three counts are 32 or more: those calls give the
     sign fill, not 0, so a C3 call always equals the C1 call over the same
     elements with the same count.
   Checks as for the logic families above (null, steps, size). */
ZELAPI ZelStatus zeliLShiftC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel32u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C1IR(Zel32u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel32u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C3IR(const Zel32u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel32u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C4IR(const Zel32u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel32u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_AC4IR(const Zel32u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel32u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C1IR(Zel32u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel32u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C3IR(const Zel32u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel32u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C4IR(const Zel32u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel32u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_AC4IR(const Zel32u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32u value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C1IR(Zel32u value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C3R(const Zel32s* pSrc, int srcStep, const Zel32u value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C3IR(const Zel32u value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C4R(const Zel32s* pSrc, int srcStep, const Zel32u value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C4IR(const Zel32u value[4], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_AC4R(const Zel32s* pSrc, int srcStep, const Zel32u value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_AC4IR(const Zel32u value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel32u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C1IR(Zel32u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel32u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C3IR(const Zel32u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel32u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C4IR(const Zel32u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel32u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_AC4IR(const Zel32u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C1R(const Zel8s* pSrc, int srcStep, Zel32u value, Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C1IR(Zel32u value, Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C3R(const Zel8s* pSrc, int srcStep, const Zel32u value[3], Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C3IR(const Zel32u value[3], Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C4R(const Zel8s* pSrc, int srcStep, const Zel32u value[4], Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C4IR(const Zel32u value[4], Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_AC4R(const Zel8s* pSrc, int srcStep, const Zel32u value[3], Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_AC4IR(const Zel32u value[3], Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel32u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C1IR(Zel32u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel32u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C3IR(const Zel32u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel32u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C4IR(const Zel32u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel32u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_AC4IR(const Zel32u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C1R(const Zel16s* pSrc, int srcStep, Zel32u value, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C1IR(Zel32u value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C3R(const Zel16s* pSrc, int srcStep, const Zel32u value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C3IR(const Zel32u value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C4R(const Zel16s* pSrc, int srcStep, const Zel32u value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C4IR(const Zel32u value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_AC4R(const Zel16s* pSrc, int srcStep, const Zel32u value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_AC4IR(const Zel32u value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32u value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C1IR(Zel32u value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C3R(const Zel32s* pSrc, int srcStep, const Zel32u value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C3IR(const Zel32u value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C4R(const Zel32s* pSrc, int srcStep, const Zel32u value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C4IR(const Zel32u value[4], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_AC4R(const Zel32s* pSrc, int srcStep, const Zel32u value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_AC4IR(const Zel32u value[3], Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Image arithmetic: division ======================================== */

/* Div: destination = source 2 / source 1 (the first source is the divisor);
   in place, image = image / source. Integer members: the exact quotient
   times 2^-scaleFactor, rounded to nearest even and saturated; complex
   members divide by (b * conj(a)) / |a|^2 and scale each part. A zero
   divisor gives the saturated sign of the dividend (0 for 0 / 0) and the
   call returns zelStatusWarnDivByZero after computing the whole ROI; 32f
   and 32fc divide in IEEE single precision and warn the same way. Checks:
   null pointers, ROI size, then steps. */
ZELAPI ZelStatus zeliDiv_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2,
    int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2,
    int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2,
    int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2,
    int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2,
    int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2,
    int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst,
    int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2,
    int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst,
    int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2,
    int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst,
    int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2,
    int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst,
    int srcDstStep, ZeliSize roi);

/* Div_Round: Div for 8u, 16u and 16s with the rounding mode of the scaled
   quotient given (toward zero, nearest even, half away from zero); any
   other mode returns zelStatusBadRoundMode after the step check. */
ZELAPI ZelStatus zeliDiv_Round_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);

/* DivC: destination = source / constant (a scalar for C1, 3 values for C3
   and AC4, 4 for C4); the in-place members take the constant first. A zero
   constant in any channel returns zelStatusDivByZero after the pointer,
   size and step checks, with nothing written. Integer and complex members
   round as Div does; 32f members multiply by the single-precision
   reciprocal, x * (1 / c). */
ZELAPI ZelStatus zeliDivC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst,
    int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[],
    Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C3IRSfs(const Zel8u value[], Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[],
    Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C4IRSfs(const Zel8u value[], Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[],
    Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_AC4IRSfs(const Zel8u value[], Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst,
    int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[],
    Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C3IRSfs(const Zel16u value[], Zel16u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[],
    Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C4IRSfs(const Zel16u value[], Zel16u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[],
    Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_AC4IRSfs(const Zel16u value[], Zel16u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst,
    int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roi,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[],
    Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C3IRSfs(const Zel16s value[], Zel16s* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[],
    Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C4IRSfs(const Zel16s value[], Zel16s* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[],
    Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_AC4IRSfs(const Zel16s value[], Zel16s* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value,
    Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[],
    Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C3IRSfs(const Zel16sc value[], Zel16sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[],
    Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_AC4IRSfs(const Zel16sc value[], Zel16sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value,
    Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[],
    Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C3IRSfs(const Zel32sc value[], Zel32sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[],
    Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_AC4IRSfs(const Zel32sc value[], Zel32sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst,
    int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[],
    Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C3IR(const Zel32f value[], Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[],
    Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C4IR(const Zel32f value[], Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[],
    Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_AC4IR(const Zel32f value[], Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst,
    int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[],
    Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C3IR(const Zel32fc value[], Zel32fc* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[],
    Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_AC4IR(const Zel32fc value[], Zel32fc* pSrcDst, int srcDstStep,
    ZeliSize roi);

/* ==== Unary mathematics ================================================== */
/* Abs: pDst = |pSrc|. 16s saturates: |-32768| is 32767; 32f clears the sign
   bit (NaN stays NaN, -0 becomes +0). Checks: null, then size, then steps
   (< 1 gives -14). Rows advance by the step rounded down to a multiple of
   the element size (a 7-byte step advances 6 bytes for 16s). AC4 members
   leave the fourth channel as it is. Returns 0. */
ZELAPI ZelStatus zeliAbs_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Sqr: pDst = pSrc^2. Integer results are the exact square times
   2^-scaleFactor, rounded half to even and saturated, exactly as Mul of the
   image with itself. 32f is the IEEE product. Checks: null, size, steps.
   32f rows advance by the step rounded down to a multiple of 4 bytes,
   integer rows by the full step. AC4 leaves the fourth channel as it is.
   Always returns 0. */
ZELAPI ZelStatus zeliSqr_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C1IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C3RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C3IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C4RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C4IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_AC4IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C1IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C3RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C3IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C4RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C4IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_AC4IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C1IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C3RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C3IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C4RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C4IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_AC4IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Sqrt: pDst = sqrt(pSrc). 32f is the IEEE square root (-0 gives -0, a
   negative value the default NaN); a negative element makes the call return
   zelStatusWarnSqrtOfNegative (3) after every row is computed. Integer
   members give sqrt(x) * 2^-scaleFactor rounded to nearest with ties to even
   (sqrt(9) with scale factor 1 gives 2), saturated; a negative 16s element
   gives 0; they always return 0. Checks: null, size, steps. 32f rows advance
   by the step rounded down to a multiple of 4 bytes, integer rows by the
   full step. Rows of at least 4096 elements (32f) or 2048 (8u) may be shared
   between two threads; results and status do not depend on it. 16u and 16s
   images of 2^18 elements or more first tabulate the rule (64 or 128 KiB
   from the aligned allocator): when that fails the call returns
   zelStatusNoMemory (-9) having written nothing; the same holds for the 16u
   and 16s members of Ln and Exp. */
ZELAPI ZelStatus zeliSqrt_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_C1IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_C3RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_C3IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_AC4IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C1IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C3RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C3IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_AC4IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C1IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C3RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C3IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_AC4IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Ln: pDst = ln(pSrc). 32f: zero gives -inf, a negative value (or -inf)
   the default NaN, +inf and NaN themselves; other results are within 1 ulp
   of the correctly rounded value (checked on every float), the same bits on
   every processor and in every floating-point environment. The row is
   worked in chunks of 256 elements and the first chunk that met a zero or a
   negative value sets the row's warning:
   zelStatusWarnLogOfZero (7) when it met only zeros, otherwise
   zelStatusWarnLogOfNegative (8). Integer members give ln(x) * 2^-scaleFactor
   rounded to nearest with ties to even, saturated; zero gives the type's
   lowest value (0, or -32768 for 16s) and warning 7, a negative 16s value
   gives 0 and warning 8 (a 16s row with both reports 8). The call returns
   the first warning of any row, after every row is computed. Checks: null,
   size, steps; rows advance by the full step. */
ZELAPI ZelStatus zeliLn_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_8u_C1IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_8u_C3RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_8u_C3IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C1IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C3RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C3IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C1IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C3RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C3IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLn_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLn_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLn_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Exp: pDst = e^pSrc. 32f results are within 1 ulp of the correctly
   rounded value (checked on every float, subnormal results included), the
   same bits on every processor and in every floating-point environment;
   -inf gives 0, overflow +inf, NaN stays NaN. Integer members give
   e^x * 2^-scaleFactor rounded half up (not half to even: with scale factor
   1, e^0 gives 1) and saturated; 8u with a scale factor below -7 gives 255
   everywhere. Checks: null, size, steps; rows advance by the full step.
   Always returns 0. */
ZELAPI ZelStatus zeliExp_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_8u_C1IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_8u_C3RSfs(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_8u_C3IRSfs(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C1IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C3RSfs(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C3IRSfs(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C1IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C3RSfs(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C3IRSfs(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliExp_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliExp_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliExp_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Complement: pSrcDst = ~pSrcDst, the bitwise complement (-x - 1) of every
   element. Checks: null, then the step (< 1 gives -14), then the size.
   Returns 0. */
ZELAPI ZelStatus zeliComplement_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Alpha compositing ================================================== */
/* Unsigned pixels are fractions of the type's maximum M (255 for 8u, 65535 for
   16u). m(x, y) = floor(x * y / M), exact for every pair (8u: formed as
   (t + (t >> 8) + 1) >> 8 with t = x * y; 16u: the same with 16), and
   s(x) = min(M, x). alphaType 0..5 (zelCompositeOver, In, Out, ATop, Xor,
   Plus) takes straight colours, which are premultiplied first,
   c1' = m(c1, a1) and c2' = m(c2, a2); 6..11 (the Premultiplied types) take
   colours that already are, c' = c. Per colour channel and for the alpha:
     Over  s(c1' + m(c2', M - a1))          alpha s(a1 + m(a2, M - a1))
     In    m(c1', a2)                       alpha m(a1, a2)
     Out   m(c1', M - a2)                   alpha m(a1, M - a2)
     ATop  s(m(c1', a2) + m(c2', M - a1))   alpha a2
     Xor   s(m(c1', M - a2) + m(c2', M - a1))
                                            alpha s(m(a1, M - a2) + m(a2, M - a1))
     Plus  s(c1' + c2')                     alpha s(a1 + a2)
   The result stays premultiplied (nothing is divided by its alpha); the
   second term is m(m(c2, a2), M - a1), in that order.

   AlphaComp: per-pixel alphas. AC4 pixels are (c0, c1, c2, a): colours and
   alpha written. AP4: four planes (array of four pointers sharing one step),
   the fourth the alpha. AC1: the images hold alpha values; the result is the
   alpha column. Checks: a null image or plane pointer (or plane array) gives
   zelStatusNullPtr, then a width or height below 1 zelStatusBadSize, then an
   alphaType outside 0..11 (tested as unsigned: negative types too)
   zelStatusBadAlphaType. Steps are not checked. Nothing is written on
   failure. Large calls of these families (not CompColorKey, below) are
   divided among threads by the library's fork rule; results never depend on
   the thread count. */
ZELAPI ZelStatus zeliAlphaComp_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaComp_8u_AC1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaComp_8u_AP4R(const Zel8u* const pSrc1[4], int src1Step, const Zel8u* const pSrc2[4], int src2Step, Zel8u* const pDst[4], int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaComp_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaComp_16u_AC1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaComp_16u_AP4R(const Zel16u* const pSrc1[4], int src1Step, const Zel16u* const pSrc2[4], int src2Step, Zel16u* const pDst[4], int dstStep, ZeliSize roiSize, int alphaType);

/* AlphaCompC: the same compositions with the constants alpha1 and alpha2 in
   place of the pixels' alphas. Every channel of C1, C3 and C4 pixels is a
   colour. AC4 and AP4 images: the colour channels are composited with the
   constants, and the destination alpha (fourth channel or plane) is the
   alpha column computed from alpha1 and alpha2, the same for every pixel, so
   the result is a consistent premultiplied image; the sources' alphas are
   not used. Checks as AlphaComp: null, size, alphaType (-50); steps are not
   checked. */
ZELAPI ZelStatus zeliAlphaCompC_8u_C1R(const Zel8u* pSrc1, int src1Step, Zel8u alpha1, const Zel8u* pSrc2, int src2Step, Zel8u alpha2, Zel8u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_8u_C3R(const Zel8u* pSrc1, int src1Step, Zel8u alpha1, const Zel8u* pSrc2, int src2Step, Zel8u alpha2, Zel8u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_8u_C4R(const Zel8u* pSrc1, int src1Step, Zel8u alpha1, const Zel8u* pSrc2, int src2Step, Zel8u alpha2, Zel8u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_8u_AC4R(const Zel8u* pSrc1, int src1Step, Zel8u alpha1, const Zel8u* pSrc2, int src2Step, Zel8u alpha2, Zel8u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_8u_AP4R(const Zel8u* const pSrc1[4], int src1Step, Zel8u alpha1, const Zel8u* const pSrc2[4], int src2Step, Zel8u alpha2, Zel8u* const pDst[4], int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_16u_C1R(const Zel16u* pSrc1, int src1Step, Zel16u alpha1, const Zel16u* pSrc2, int src2Step, Zel16u alpha2, Zel16u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_16u_C3R(const Zel16u* pSrc1, int src1Step, Zel16u alpha1, const Zel16u* pSrc2, int src2Step, Zel16u alpha2, Zel16u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_16u_C4R(const Zel16u* pSrc1, int src1Step, Zel16u alpha1, const Zel16u* pSrc2, int src2Step, Zel16u alpha2, Zel16u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_16u_AC4R(const Zel16u* pSrc1, int src1Step, Zel16u alpha1, const Zel16u* pSrc2, int src2Step, Zel16u alpha2, Zel16u* pDst, int dstStep, ZeliSize roiSize, int alphaType);
ZELAPI ZelStatus zeliAlphaCompC_16u_AP4R(const Zel16u* const pSrc1[4], int src1Step, Zel16u alpha1, const Zel16u* const pSrc2[4], int src2Step, Zel16u alpha2, Zel16u* const pDst[4], int dstStep, ZeliSize roiSize, int alphaType);

/* AlphaPremul: each AC4 pixel becomes (m(c0, a), m(c1, a), m(c2, a), a); the
   alpha is kept (copied out of place; in place the AC4 alpha is rewritten
   with its own value and the AP4 alpha plane is not touched). AP4: colour
   plane k by the alpha plane. Checks: null image or plane pointer
   zelStatusNullPtr, then size zelStatusBadSize; steps are not checked. */
ZELAPI ZelStatus zeliAlphaPremul_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_8u_AP4R(const Zel8u* const pSrc[4], int srcStep, Zel8u* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_8u_AP4IR(Zel8u* const pSrcDst[4], int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_16u_AC4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_16u_AP4R(const Zel16u* const pSrc[4], int srcStep, Zel16u* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremul_16u_AP4IR(Zel16u* const pSrcDst[4], int srcDstStep, ZeliSize roiSize);

/* AlphaPremulC: every colour channel multiplied by the constant alpha,
   m(c, alpha). C1, C3, C4: all channels are colours. AC4 and AP4: the three
   colour channels or planes are multiplied and the destination alpha
   (fourth channel or plane) is set to alpha, which makes the result the
   premultiplied form of the image under that alpha. Checks as AlphaPremul. */
ZELAPI ZelStatus zeliAlphaPremulC_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u alpha, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_C1IR(Zel8u alpha, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u alpha, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_C3IR(Zel8u alpha, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u alpha, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_C4IR(Zel8u alpha, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u alpha, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_AC4IR(Zel8u alpha, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_AP4R(const Zel8u* const pSrc[4], int srcStep, Zel8u alpha, Zel8u* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_8u_AP4IR(Zel8u alpha, Zel8u* const pSrcDst[4], int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u alpha, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_C1IR(Zel16u alpha, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u alpha, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_C3IR(Zel16u alpha, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u alpha, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_C4IR(Zel16u alpha, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u alpha, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_AC4IR(Zel16u alpha, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_AP4R(const Zel16u* const pSrc[4], int srcStep, Zel16u alpha, Zel16u* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAlphaPremulC_16u_AP4IR(Zel16u alpha, Zel16u* const pSrcDst[4], int srcDstStep, ZeliSize roiSize);

/* CompColorKey: pDst = pSrc2 where the pSrc1 pixel equals colorKey, else
   pSrc1. C3 and C4 compare whole pixels: every channel must equal the key's
   (a pixel matching two channels of three is not keyed); the whole source 2
   pixel is then taken. Checks: null image or key pointer zelStatusNullPtr,
   size zelStatusBadSize, then any step below 1 zelStatusBadStep. With at least
   two threads and a ROI at least 192 wide and 192 high, the rows are split
   among the threads (each takes height / threads rows, the last also the
   remainder); the result does not depend on it. */
ZELAPI ZelStatus zeliCompColorKey_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u colorKey);
ZELAPI ZelStatus zeliCompColorKey_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u colorKey[3]);
ZELAPI ZelStatus zeliCompColorKey_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u colorKey[4]);
ZELAPI ZelStatus zeliCompColorKey_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u colorKey);
ZELAPI ZelStatus zeliCompColorKey_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u colorKey[3]);
ZELAPI ZelStatus zeliCompColorKey_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel16u colorKey[4]);
ZELAPI ZelStatus zeliCompColorKey_16s_C1R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s colorKey);
ZELAPI ZelStatus zeliCompColorKey_16s_C3R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s colorKey[3]);
ZELAPI ZelStatus zeliCompColorKey_16s_C4R(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel16s colorKey[4]);

/* AlphaCompColorKey: AlphaCompC on AC4 images with one difference: a source 1
   pixel whose three colour channels equal colorKey[0..2] is transparent,
   composited with alpha 0 and colour 0 (whatever the type, so it contributes
   nothing: Over gives source 2 under alpha2). The other pixels take alpha1,
   source 2 pixels alpha2; the destination alpha is the alpha column of those.
   Checks: null image or key pointer zelStatusNullPtr, size zelStatusBadSize,
   any step below 1 zelStatusBadStep (steps are checked as by the colour-key
   members), then alphaType outside 0..11 zelStatusBadAlphaType. */
ZELAPI ZelStatus zeliAlphaCompColorKey_8u_AC4R(const Zel8u* pSrc1, int src1Step, Zel8u alpha1, const Zel8u* pSrc2, int src2Step, Zel8u alpha2, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u colorKey[3], int alphaType);

#ifdef __cplusplus
}
#endif

#endif /* ZELI_ARITH_H */
