// AlphaComp: two images composited by their own alphas. AC4 pixels carry
// their alpha in the fourth channel, AP4 images in the fourth plane; AC1
// images are alpha values, composited as alphas.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/alpha_comp.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/alpha_row-inl.h"

#if HWY_ONCE

#include "arith/alpha_image.h"

namespace zel::alpha {
namespace {

template <class T>
ZelStatus composeInterleaved(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                             ZeliSize roi, int type) {
    if (ZelStatus st = checkImages(pSrc1, pSrc2, pDst, roi, type)) return st;
    const std::int64_t rowBytes = std::int64_t{roi.width} * 4 * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {src1Step, src2Step, dstStep});
    const auto row = forType(type, [](auto k) {
        return ZEL_DISPATCH(ComposePixelRow<T, decltype(k)::value, ::zel::alpha::AlphaFrom::Pixels>);
    });
    forEachRowPiece(rows, 3 * rowBytes * roi.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        row(pixelAt(pSrc1, src1Step, y, x, 4), pixelAt(pSrc2, src2Step, y, x, 4), pixelAt(pDst, dstStep, y, x, 4),
            n, T(0), T(0), nullptr);
    });
    return zelStatusOk;
}

// Alpha values composited as alphas: each image is its own alpha.
template <class T>
ZelStatus composeAlphas(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                        ZeliSize roi, int type) {
    if (ZelStatus st = checkImages(pSrc1, pSrc2, pDst, roi, type)) return st;
    const std::int64_t rowBytes = std::int64_t{roi.width} * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {src1Step, src2Step, dstStep});
    const auto row = forType(type, [](auto k) {
        return ZEL_DISPATCH(ComposeElementRow<T, decltype(k)::value, false>);
    });
    forEachRowPiece(rows, 3 * rowBytes * roi.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        const T* a1 = pixelAt(pSrc1, src1Step, y, x, 1);
        const T* a2 = pixelAt(pSrc2, src2Step, y, x, 1);
        row(a1, a1, a2, a2, pixelAt(pDst, dstStep, y, x, 1), n, T(0), T(0), true);
    });
    return zelStatusOk;
}

// Four planes sharing one step; the fourth holds the alphas.
template <class T>
ZelStatus composePlanes(const T* const pSrc1[4], int src1Step, const T* const pSrc2[4], int src2Step,
                        T* const pDst[4], int dstStep, ZeliSize roi, int type) {
    if (ZelStatus st = checkPlanes(pSrc1, pSrc2, pDst, roi, type)) return st;
    const std::int64_t rowBytes = std::int64_t{roi.width} * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {src1Step, src2Step, dstStep});
    const auto row = forType(type, [](auto k) {
        return ZEL_DISPATCH(ComposeElementRow<T, decltype(k)::value, false>);
    });
    forEachRowPiece(rows, 12 * rowBytes * roi.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        const T* a1 = pixelAt(pSrc1[3], src1Step, y, x, 1);
        const T* a2 = pixelAt(pSrc2[3], src2Step, y, x, 1);
        for (int k = 0; k < 4; ++k)
            row(pixelAt(pSrc1[k], src1Step, y, x, 1), a1, pixelAt(pSrc2[k], src2Step, y, x, 1), a2,
                pixelAt(pDst[k], dstStep, y, x, 1), n, T(0), T(0), k == 3);
    });
    return zelStatusOk;
}

}  // namespace
}  // namespace zel::alpha

#define ZELI_ALPHA_COMP(t)                                                                                    \
    ZelStatus zeliAlphaComp_##t##_AC4R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2, int src2Step,  \
                                       Zel##t* pDst, int dstStep, ZeliSize roiSize, int alphaType) { \
        return zel::alpha::composeInterleaved(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize,      \
                                              alphaType);                                                   \
    }                                                                                                        \
    ZelStatus zeliAlphaComp_##t##_AC1R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2, int src2Step,  \
                                       Zel##t* pDst, int dstStep, ZeliSize roiSize, int alphaType) { \
        return zel::alpha::composeAlphas(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, alphaType); \
    }                                                                                                        \
    ZelStatus zeliAlphaComp_##t##_AP4R(const Zel##t* const pSrc1[4], int src1Step,                           \
                                       const Zel##t* const pSrc2[4], int src2Step, Zel##t* const pDst[4],    \
                                       int dstStep, ZeliSize roiSize, int alphaType) {              \
        return zel::alpha::composePlanes(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, alphaType); \
    }

ZELI_ALPHA_COMP(8u)
ZELI_ALPHA_COMP(16u)

#endif  // HWY_ONCE
