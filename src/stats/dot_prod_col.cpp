// DotProdCol: a linear combination of rows, in row order: the destination
// is coefficient 0 times row 0, then each further row's product is added
// (each product rounded, then each sum: no fused multiply-add, so every
// target gives the same bits). A null row pointer is found when its turn
// comes; the rows combined before it stay in the destination.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/dot_prod_col.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include <cstddef>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// dst = coeff x row (first) or dst + coeff x row, over len elements.
void CombineRow(const float* HWY_RESTRICT row, float coeff, float* HWY_RESTRICT dst, std::ptrdiff_t len,
                bool first) {
    const hn::ScalableTag<float> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const auto k = hn::Set(d, coeff);
    std::ptrdiff_t i = 0;
    if (first) {
        for (; len - i >= lanes; i += lanes) hn::StoreU(hn::Mul(k, hn::LoadU(d, row + i)), d, dst + i);
        for (; i < len; ++i) dst[i] = coeff * row[i];
    } else {
        for (; len - i >= lanes; i += lanes)
            hn::StoreU(hn::Add(hn::LoadU(d, dst + i), hn::Mul(k, hn::LoadU(d, row + i))), d, dst + i);
        for (; i < len; ++i) dst[i] = dst[i] + coeff * row[i];
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/simd.h"

ZelStatus zeliDotProdCol_32f_L2(const Zel32f* const* ppSrcRow, const Zel32f* pCoeffs, int numRows, Zel32f* pDst,
                                int len) {
    using namespace zel;
    if (ZelStatus st = Check().ptrs(ppSrcRow, pCoeffs, pDst).that(numRows >= 1 && len >= 1, zelStatusBadSize))
        return st;
    if (ppSrcRow[0] == nullptr) return zelStatusNullPtr;
    StandardFpEnvironment environment;
    const auto kernel = ZEL_DISPATCH(CombineRow);
    for (int i = 0; i < numRows; ++i) {
        if (ppSrcRow[i] == nullptr) return zelStatusNullPtr;
        kernel(ppSrcRow[i], pCoeffs[i], pDst, len, i == 0);
    }
    return zelStatusOk;
}

#endif  // HWY_ONCE
