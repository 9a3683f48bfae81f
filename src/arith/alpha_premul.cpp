// AlphaPremul and AlphaPremulC: colours multiplied by an alpha as fractions
// of the type's maximum, m(c, a) = floor(c * a / max).
//
// AlphaPremul takes each pixel's own alpha (the fourth channel or plane)
// and keeps it: out of place it is copied, in place left alone (AP4) or
// rewritten with its own value (AC4). AlphaPremulC multiplies every colour
// channel by one constant; AC4 and AP4 images get that constant as their
// alpha, so the result is a premultiplied image with a consistent alpha.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/alpha_premul.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/alpha_row-inl.h"

#if HWY_ONCE

#include <algorithm>
#include <cstring>

#include "arith/alpha_image.h"
#include "core/pixel.h"

namespace zel::alpha {
namespace {

// Interleaved images: by each pixel's alpha (AC4 with Own), or by the
// constant (C1, C3, C4; AC4 also setting the alpha).
template <class T, Layout L, bool Own>
ZelStatus premultiply(const T* pSrc, int srcStep, T alpha, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi)) return st;
    constexpr int C = kChannels<L>;
    constexpr PremulBy By = Own ? PremulBy::PixelAlpha
                            : L == Layout::AC4 ? PremulBy::ConstantAlpha : PremulBy::Constant;
    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {srcStep, dstStep});
    const auto row = ZEL_DISPATCH(PremultiplyRow<T, By>);
    forEachRowPiece(rows, 2 * rowBytes * roi.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        row(pixelAt(pSrc, srcStep, y, x, C), nullptr, pixelAt(pDst, dstStep, y, x, C), n * C, alpha);
    });
    return zelStatusOk;
}

// Four planes: colour planes by the alpha plane (Own) or the constant; the
// alpha plane copied (Own, out of place), set to the constant, or, in
// place with Own, left as it is.
template <class T, bool Own>
ZelStatus premultiplyPlanes(const T* const pSrc[4], int srcStep, T alpha, T* const pDst[4], int dstStep,
                            ZeliSize roi, bool inPlace) {
    if (ZelStatus st = Check().planes(pSrc, 4).planes(pDst, 4).roi(roi)) return st;
    const std::int64_t rowBytes = std::int64_t{roi.width} * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {srcStep, dstStep});
    const auto row = ZEL_DISPATCH(PremultiplyRow<T, Own ? PremulBy::Plane : PremulBy::Constant>);
    forEachRowPiece(rows, 8 * rowBytes * roi.height, [&](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) {
        const T* a = pixelAt(pSrc[3], srcStep, y, x, 1);
        for (int k = 0; k < 3; ++k)
            row(pixelAt(pSrc[k], srcStep, y, x, 1), a, pixelAt(pDst[k], dstStep, y, x, 1), n, alpha);
        T* out = pixelAt(pDst[3], dstStep, y, x, 1);
        if (!Own) std::fill_n(out, n, alpha);
        else if (!inPlace) std::memmove(out, a, static_cast<std::size_t>(n) * sizeof(T));
    });
    return zelStatusOk;
}

}  // namespace
}  // namespace zel::alpha

#define ZELI_ALPHA_PREMUL(t)                                                                                    \
    ZelStatus zeliAlphaPremul_##t##_AC4R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,            \
                                         ZeliSize roiSize) {                                                    \
        return zel::alpha::premultiply<Zel##t, zel::Layout::AC4, true>(pSrc, srcStep, 0, pDst, dstStep, roiSize); \
    }                                                                                                          \
    ZelStatus zeliAlphaPremul_##t##_AC4IR(Zel##t* pSrcDst, int srcDstStep, ZeliSize roiSize) {                  \
        return zel::alpha::premultiply<Zel##t, zel::Layout::AC4, true>(pSrcDst, srcDstStep, 0, pSrcDst,         \
                                                                       srcDstStep, roiSize);                    \
    }                                                                                                          \
    ZelStatus zeliAlphaPremul_##t##_AP4R(const Zel##t* const pSrc[4], int srcStep, Zel##t* const pDst[4],       \
                                         int dstStep, ZeliSize roiSize) {                                       \
        return zel::alpha::premultiplyPlanes<Zel##t, true>(pSrc, srcStep, 0, pDst, dstStep, roiSize, false);     \
    }                                                                                                          \
    ZelStatus zeliAlphaPremul_##t##_AP4IR(Zel##t* const pSrcDst[4], int srcDstStep, ZeliSize roiSize) {         \
        return zel::alpha::premultiplyPlanes<Zel##t, true>(pSrcDst, srcDstStep, 0, pSrcDst, srcDstStep, roiSize, \
                                                           true);                                               \
    }
#define ZELI_ALPHA_PREMUL_C(t, lay)                                                                             \
    ZelStatus zeliAlphaPremulC_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t alpha, Zel##t* pDst,       \
                                              int dstStep, ZeliSize roiSize) {                                  \
        return zel::alpha::premultiply<Zel##t, zel::Layout::lay, false>(pSrc, srcStep, alpha, pDst, dstStep,    \
                                                                        roiSize);                               \
    }                                                                                                          \
    ZelStatus zeliAlphaPremulC_##t##_##lay##IR(Zel##t alpha, Zel##t* pSrcDst, int srcDstStep, ZeliSize roiSize) { \
        return zel::alpha::premultiply<Zel##t, zel::Layout::lay, false>(pSrcDst, srcDstStep, alpha, pSrcDst,    \
                                                                        srcDstStep, roiSize);                   \
    }
#define ZELI_ALPHA_PREMUL_C_AP4(t)                                                                              \
    ZelStatus zeliAlphaPremulC_##t##_AP4R(const Zel##t* const pSrc[4], int srcStep, Zel##t alpha,               \
                                          Zel##t* const pDst[4], int dstStep, ZeliSize roiSize) {               \
        return zel::alpha::premultiplyPlanes<Zel##t, false>(pSrc, srcStep, alpha, pDst, dstStep, roiSize, false); \
    }                                                                                                          \
    ZelStatus zeliAlphaPremulC_##t##_AP4IR(Zel##t alpha, Zel##t* const pSrcDst[4], int srcDstStep,              \
                                           ZeliSize roiSize) {                                                  \
        return zel::alpha::premultiplyPlanes<Zel##t, false>(pSrcDst, srcDstStep, alpha, pSrcDst, srcDstStep,    \
                                                            roiSize, true);                                     \
    }
#define ZELI_ALPHA_PREMUL_ALL(t)                                                                      \
    ZELI_ALPHA_PREMUL(t) ZELI_ALPHA_PREMUL_C(t, C1) ZELI_ALPHA_PREMUL_C(t, C3) ZELI_ALPHA_PREMUL_C(t, C4) \
    ZELI_ALPHA_PREMUL_C(t, AC4) ZELI_ALPHA_PREMUL_C_AP4(t)

ZELI_ALPHA_PREMUL_ALL(8u)
ZELI_ALPHA_PREMUL_ALL(16u)

#endif  // HWY_ONCE
