// CopyManaged: the plain 8-bit copy with the choice of stores left to the
// caller. Flags bit 0 asks for non-temporal stores (the destination will
// not be read soon); every other bit is ignored. Contiguous rows collapse
// as for Copy; steps are not checked.
#include "core/checks.h"
#include "data/copy_rows.h"

namespace zel {

// The flag bit that selects non-temporal stores.
constexpr int kCopyNonTemporal = 1;

}  // namespace zel

ZelStatus zeliCopyManaged_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,
                                 ZeliSize roi, int flags) {
    if (ZelStatus st = zel::Check().ptrs(pSrc, pDst).roi(roi)) return st;
    zel::CopyPlan plan = zel::planCopy(roi.width, roi.height, srcStep, dstStep, 0);
    plan.stream = (flags & zel::kCopyNonTemporal) != 0;
    zel::copyRows(pSrc, srcStep, pDst, dstStep, plan);
    return zelStatusOk;
}
