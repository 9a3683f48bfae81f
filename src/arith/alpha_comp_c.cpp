// AlphaCompC: two images composited under one constant alpha each. Every
// channel of C1, C3 and C4 pixels is a colour; AC4 and AP4 images have
// their alpha channel or plane written with the composition of the two
// constants (their source alphas are not used).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/alpha_comp_c.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/alpha_row-inl.h"

#if HWY_ONCE

#include <algorithm>

#include "arith/alpha_image.h"
#include "core/pixel.h"

namespace zel::alpha {
namespace {

template <class T, Layout L>
ZelStatus composeConstant(const T* pSrc1, int src1Step, T alpha1, const T* pSrc2, int src2Step, T alpha2, T* pDst,
                          int dstStep, ZeliSize roi, int type) {
    if (ZelStatus st = checkImages(pSrc1, pSrc2, pDst, roi, type)) return st;
    constexpr int C = kChannels<L>;
    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {src1Step, src2Step, dstStep});
    const std::int64_t bytes = 3 * rowBytes * roi.height;
    if constexpr (L == Layout::AC4) {
        const auto row = forType(type, [](auto k) {
            return ZEL_DISPATCH(ComposePixelRow<T, decltype(k)::value, ::zel::alpha::AlphaFrom::Constants>);
        });
        forEachRowPiece(rows, bytes, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
            row(pixelAt(pSrc1, src1Step, y, x, C), pixelAt(pSrc2, src2Step, y, x, C), pixelAt(pDst, dstStep, y, x, C),
                n, alpha1, alpha2, nullptr);
        });
    } else {
        const auto row = forType(type, [](auto k) {
            return ZEL_DISPATCH(ComposeElementRow<T, decltype(k)::value, true>);
        });
        forEachRowPiece(rows, bytes, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
            row(pixelAt(pSrc1, src1Step, y, x, C), nullptr, pixelAt(pSrc2, src2Step, y, x, C), nullptr,
                pixelAt(pDst, dstStep, y, x, C), n * C, alpha1, alpha2, false);
        });
    }
    return zelStatusOk;
}

template <class T>
ZelStatus composeConstantPlanes(const T* const pSrc1[4], int src1Step, T alpha1, const T* const pSrc2[4],
                                int src2Step, T alpha2, T* const pDst[4], int dstStep, ZeliSize roi, int type) {
    if (ZelStatus st = checkPlanes(pSrc1, pSrc2, pDst, roi, type)) return st;
    const std::int64_t rowBytes = std::int64_t{roi.width} * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {src1Step, src2Step, dstStep});
    const auto row = forType(type, [](auto k) {
        return ZEL_DISPATCH(ComposeElementRow<T, decltype(k)::value, true>);
    });
    const T alpha = T(composeAlphaOf<T>(type, alpha1, alpha2));
    forEachRowPiece(rows, 10 * rowBytes * roi.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        for (int k = 0; k < 3; ++k)
            row(pixelAt(pSrc1[k], src1Step, y, x, 1), nullptr, pixelAt(pSrc2[k], src2Step, y, x, 1), nullptr,
                pixelAt(pDst[k], dstStep, y, x, 1), n, alpha1, alpha2, false);
        std::fill_n(pixelAt(pDst[3], dstStep, y, x, 1), n, alpha);
    });
    return zelStatusOk;
}

}  // namespace
}  // namespace zel::alpha

#define ZELI_ALPHA_COMP_C(t, lay)                                                                              \
    ZelStatus zeliAlphaCompC_##t##_##lay##R(const Zel##t* pSrc1, int src1Step, Zel##t alpha1, const Zel##t* pSrc2, \
                                            int src2Step, Zel##t alpha2, Zel##t* pDst, int dstStep,           \
                                            ZeliSize roiSize, int alphaType) {                                \
        return zel::alpha::composeConstant<Zel##t, zel::Layout::lay>(pSrc1, src1Step, alpha1, pSrc2, src2Step,   \
                                                                    alpha2, pDst, dstStep, roiSize, alphaType); \
    }
#define ZELI_ALPHA_COMP_C_AP4(t)                                                                               \
    ZelStatus zeliAlphaCompC_##t##_AP4R(const Zel##t* const pSrc1[4], int src1Step, Zel##t alpha1,              \
                                        const Zel##t* const pSrc2[4], int src2Step, Zel##t alpha2,              \
                                        Zel##t* const pDst[4], int dstStep, ZeliSize roiSize, int alphaType) {  \
        return zel::alpha::composeConstantPlanes(pSrc1, src1Step, alpha1, pSrc2, src2Step, alpha2, pDst,        \
                                                 dstStep, roiSize, alphaType);                                  \
    }
#define ZELI_ALPHA_COMP_C_ALL(t) \
    ZELI_ALPHA_COMP_C(t, C1) ZELI_ALPHA_COMP_C(t, C3) ZELI_ALPHA_COMP_C(t, C4) ZELI_ALPHA_COMP_C(t, AC4) \
    ZELI_ALPHA_COMP_C_AP4(t)

ZELI_ALPHA_COMP_C_ALL(8u)
ZELI_ALPHA_COMP_C_ALL(16u)

#endif  // HWY_ONCE
