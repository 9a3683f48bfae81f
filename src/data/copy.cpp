// Copy: move pixels between images of every layout pair without changing
// a bit of them.
//
// Plain copies are byte copies (copy_rows); layout changes, channels of
// interest and masked copies are channel moves (channel_kernels). The
// steps are not checked: a negative step walks the rows upwards.
#include "core/checks.h"
#include "core/pixel.h"
#include "data/channel_kernels.h"
#include "data/copy_rows.h"

namespace zel {
namespace {

template <class T>
const BitsOf<T>* bitsOf(const T* p) {
    return reinterpret_cast<const BitsOf<T>*>(p);
}
template <class T>
BitsOf<T>* bitsOf(T* p) {
    return reinterpret_cast<BitsOf<T>*>(p);
}

// Bytes of a ROI of C-channel pixels.
template <class T, int C>
std::int64_t pixelBytes(ZeliSize roi) {
    return std::int64_t{roi.width} * roi.height * C * sizeof(T);
}

template <class T, int C>
ZelStatus copyPlain(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi)) return st;
    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    copyRows(pSrc, srcStep, pDst, dstStep,
             planCopy(rowBytes, roi.height, srcStep, dstStep, largestCacheBytes()));
    return zelStatusOk;
}

// `Partial`: the pointers address one channel of wider pixels.
template <class T, int SC, int DC, class Order, bool Partial>
ZelStatus copyChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi)) return st;
    shuffleImage<BitsOf<T>, SC, DC, Order>(bitsOf(pSrc), srcStep, bitsOf(pDst), dstStep, roi,
                                           ChannelOrder{}, Partial);
    return zelStatusOk;
}

template <class T, int C, int W>
ZelStatus copyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi,
                     const Zel8u* pMask, int maskStep) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst, pMask).roi(roi)) return st;
    maskedCopyImage<BitsOf<T>, C, W>(bitsOf(pSrc), srcStep, bitsOf(pDst), dstStep, roi, pMask,
                                     maskStep);
    return zelStatusOk;
}

template <class T, int C>
ZelStatus copyToPlanes(const T* pSrc, int srcStep, T* const pDst[], int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc).planes(pDst, C).roi(roi)) return st;
    BitsOf<T>* planes[C];
    for (int c = 0; c < C; ++c) planes[c] = bitsOf(pDst[c]);
    splitImage<BitsOf<T>, C>(bitsOf(pSrc), srcStep, planes, dstStep, roi, planarStreams(pixelBytes<T, C>(roi)));
    return zelStatusOk;
}

template <class T, int C>
ZelStatus copyFromPlanes(const T* const pSrc[], int srcStep, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().planes(pSrc, C).ptrs(pDst).roi(roi)) return st;
    const BitsOf<T>* planes[C];
    for (int c = 0; c < C; ++c) planes[c] = bitsOf(pSrc[c]);
    mergeImage<BitsOf<T>, C>(planes, srcStep, bitsOf(pDst), dstStep, roi, planarStreams(pixelBytes<T, C>(roi)));
    return zelStatusOk;
}

using ExceptAlpha = FixedOrder<0, 1, 2, kKeep>;
using FirstOfThree = FixedOrder<0, kKeep, kKeep>;
using FirstOfFour = FixedOrder<0, kKeep, kKeep, kKeep>;
using FirstOnly = FixedOrder<0>;
using FirstThree = FixedOrder<0, 1, 2>;

}  // namespace
}  // namespace zel

#define ZELI_COPY_ARGS(type) const Zel##type *pSrc, int srcStep, Zel##type *pDst, int dstStep, ZeliSize roi
#define ZELI_COPY(type, layout, C)                               \
    ZelStatus zeliCopy_##type##_##layout##R(ZELI_COPY_ARGS(type)) { \
        return zel::copyPlain<Zel##type, C>(pSrc, srcStep, pDst, dstStep, roi); \
    }
#define ZELI_COPY_CHANNELS(type, layout, SC, DC, order, partial)                            \
    ZelStatus zeliCopy_##type##_##layout##R(ZELI_COPY_ARGS(type)) {                          \
        return zel::copyChannels<Zel##type, SC, DC, zel::order, partial>(pSrc, srcStep, pDst, \
                                                                         dstStep, roi);      \
    }
#define ZELI_COPY_MASKED(type, layout, C, W)                                                     \
    ZelStatus zeliCopy_##type##_##layout##MR(ZELI_COPY_ARGS(type), const Zel8u* pMask,            \
                                             int maskStep) {                                      \
        return zel::copyMasked<Zel##type, C, W>(pSrc, srcStep, pDst, dstStep, roi, pMask, maskStep); \
    }
#define ZELI_COPY_TO_PLANES(type, N)                                                          \
    ZelStatus zeliCopy_##type##_C##N##P##N##R(const Zel##type* pSrc, int srcStep,               \
                                              Zel##type* const pDst[N], int dstStep, ZeliSize roi) { \
        return zel::copyToPlanes<Zel##type, N>(pSrc, srcStep, pDst, dstStep, roi);             \
    }
#define ZELI_COPY_FROM_PLANES(type, N)                                                          \
    ZelStatus zeliCopy_##type##_P##N##C##N##R(const Zel##type* const pSrc[N], int srcStep,        \
                                              Zel##type* pDst, int dstStep, ZeliSize roi) {        \
        return zel::copyFromPlanes<Zel##type, N>(pSrc, srcStep, pDst, dstStep, roi);             \
    }

#define ZELI_COPY_ALL_LAYOUTS(type)                                 \
    ZELI_COPY(type, C1, 1)                                          \
    ZELI_COPY(type, C3, 3)                                          \
    ZELI_COPY(type, C4, 4)                                          \
    ZELI_COPY_CHANNELS(type, AC4, 4, 4, ExceptAlpha, false)         \
    ZELI_COPY_MASKED(type, C1, 1, 1)                                \
    ZELI_COPY_MASKED(type, C3, 3, 3)                                \
    ZELI_COPY_MASKED(type, C4, 4, 4)                                \
    ZELI_COPY_MASKED(type, AC4, 4, 3)                               \
    ZELI_COPY_CHANNELS(type, C1C3, 1, 3, FirstOfThree, true)        \
    ZELI_COPY_CHANNELS(type, C1C4, 1, 4, FirstOfFour, true)         \
    ZELI_COPY_CHANNELS(type, C3C1, 3, 1, FirstOnly, true)           \
    ZELI_COPY_CHANNELS(type, C4C1, 4, 1, FirstOnly, true)           \
    ZELI_COPY_CHANNELS(type, C3C, 3, 3, FirstOfThree, true)         \
    ZELI_COPY_CHANNELS(type, C4C, 4, 4, FirstOfFour, true)          \
    ZELI_COPY_CHANNELS(type, C3AC4, 3, 4, ExceptAlpha, false)       \
    ZELI_COPY_CHANNELS(type, AC4C3, 4, 3, FirstThree, false)        \
    ZELI_COPY_TO_PLANES(type, 3)                                    \
    ZELI_COPY_TO_PLANES(type, 4)                                    \
    ZELI_COPY_FROM_PLANES(type, 3)                                  \
    ZELI_COPY_FROM_PLANES(type, 4)

ZELI_COPY_ALL_LAYOUTS(8u)
ZELI_COPY_ALL_LAYOUTS(16u)
ZELI_COPY_ALL_LAYOUTS(16s)
ZELI_COPY_ALL_LAYOUTS(32s)
ZELI_COPY_ALL_LAYOUTS(32f)
