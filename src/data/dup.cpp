// Dup: a grey image becomes a three-channel image with equal channels.
// Checks: null pointers, then the ROI size; steps are not checked.
#include "core/checks.h"
#include "data/channel_kernels.h"

ZelStatus zeliDup_8u_C1C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = zel::Check().ptrs(pSrc, pDst).roi(roi)) return st;
    zel::shuffleImage<Zel8u, 1, 3, zel::FixedOrder<0, 0, 0>>(pSrc, srcStep, pDst, dstStep, roi,
                                                             zel::ChannelOrder{}, false);
    return zelStatusOk;
}
