// AlphaCompColorKey: AC4 images composited under constant alphas, where a
// pixel of source 1 whose colour equals the key is transparent (alpha 0,
// colour 0) and contributes nothing.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/alpha_comp_color_key.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/alpha_row-inl.h"

#if HWY_ONCE

#include "arith/alpha_image.h"

ZelStatus zeliAlphaCompColorKey_8u_AC4R(const Zel8u* pSrc1, int src1Step, Zel8u alpha1, const Zel8u* pSrc2,
                                        int src2Step, Zel8u alpha2, Zel8u* pDst, int dstStep, ZeliSize roiSize,
                                        const Zel8u colorKey[3], int alphaType) {
    using namespace zel;
    using namespace zel::alpha;
    if (ZelStatus st = Check().ptrs(pSrc1, pSrc2, pDst, colorKey).roi(roiSize).steps(src1Step, src2Step, dstStep).that(
            !badType(alphaType), zelStatusBadAlphaType))
        return st;
    const std::int64_t rowBytes = std::int64_t{roiSize.width} * 4;
    const Rows rows = collapseRows(roiSize, rowBytes, {src1Step, src2Step, dstStep});
    const auto row = forType(alphaType, [](auto k) {
        return ZEL_DISPATCH(ComposePixelRow<Zel8u, decltype(k)::value, ::zel::alpha::AlphaFrom::ColorKey>);
    });
    const Zel8u key[3] = {colorKey[0], colorKey[1], colorKey[2]};
    forEachRowPiece(rows, 3 * rowBytes * roiSize.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        row(pixelAt(pSrc1, src1Step, y, x, 4), pixelAt(pSrc2, src2Step, y, x, 4), pixelAt(pDst, dstStep, y, x, 4), n,
            alpha1, alpha2, key);
    });
    return zelStatusOk;
}

#endif  // HWY_ONCE
