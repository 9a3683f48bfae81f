// SwapChannels: destination channel k takes source channel dstOrder[k].
//
// Check orders differ between members and are kept as callers see them:
//   C3R, AC4R, C3IR: null, size, step, then entries 0..2
//   C4IR:            null, step, size, then entries 0..3
//   C4C3R:           null, size, entries 0..3 (steps unchecked)
//   C3C4R:           null, size, then only entries 0..2 and only for being
//                    negative (steps unchecked).
// C3C4R reads each of its four entries as: 0..2 take that source channel,
// 3 write the fill value (the 8u member's last argument; the other types
// have none and leave the channel as it is), anything else leave the
// destination channel as it was.
#include "core/checks.h"
#include "core/pixel.h"
#include "data/channel_kernels.h"

namespace zel {
namespace {

// A null array is judged by the pointer check that runs first.
bool entriesWithin(const int* order, int count, int channels) {
    if (order == nullptr) return true;
    for (int k = 0; k < count; ++k)
        if (order[k] < 0 || order[k] >= channels) return false;
    return true;
}

template <class T, int SC, int DC>
void swapImage(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const ChannelOrder& order) {
    using B = BitsOf<T>;
    shuffleImage<B, SC, DC, RuntimeOrder>(reinterpret_cast<const B*>(pSrc), srcStep,
                                          reinterpret_cast<B*>(pDst), dstStep, roi, order, false);
}

ChannelOrder orderOf(const int* dstOrder, int count) {
    ChannelOrder order;
    for (int k = 0; k < count; ++k) order.from[k] = dstOrder[k];
    return order;
}

template <class T, Layout L>
ZelStatus swapChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi,
                       const int* dstOrder) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst, dstOrder)
                           .roi(roi)
                           .steps(srcStep, dstStep)
                           .that(entriesWithin(dstOrder, 3, 3), zelStatusBadChannelOrder))
        return st;
    ChannelOrder order = orderOf(dstOrder, 3);
    order.from[3] = kKeep;  // AC4: alpha stays
    swapImage<T, kChannels<L>, kChannels<L>>(pSrc, srcStep, pDst, dstStep, roi, order);
    return zelStatusOk;
}

template <class T>
ZelStatus swapFourToThree(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi,
                          const int* dstOrder) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst, dstOrder)
                           .roi(roi)
                           .that(entriesWithin(dstOrder, 3, 4), zelStatusBadChannelOrder))
        return st;
    swapImage<T, 4, 3>(pSrc, srcStep, pDst, dstStep, roi, orderOf(dstOrder, 3));
    return zelStatusOk;
}

// `fill` is null for the members without a fill value.
template <class T>
ZelStatus swapThreeToFour(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi,
                          const int* dstOrder, const Zel8u* fill) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst, dstOrder).roi(roi)) return st;
    for (int k = 0; k < 3; ++k)
        if (dstOrder[k] < 0) return zelStatusBadChannelOrder;
    ChannelOrder order;
    for (int k = 0; k < 4; ++k) {
        const int entry = dstOrder[k];
        order.from[k] = entry >= 0 && entry <= 2 ? entry : entry == 3 && fill != nullptr ? kFill : kKeep;
    }
    if (fill != nullptr) order.fill = *fill;
    swapImage<T, 3, 4>(pSrc, srcStep, pDst, dstStep, roi, order);
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_SWAP_ARGS(type) \
    const Zel##type *pSrc, int srcStep, Zel##type *pDst, int dstStep, ZeliSize roi, const int dstOrder[]
#define ZELI_SWAP(type, layout)                                                                  \
    ZelStatus zeliSwapChannels_##type##_##layout##R(ZELI_SWAP_ARGS(type)) {                       \
        return zel::swapChannels<Zel##type, zel::Layout::layout>(pSrc, srcStep, pDst, dstStep, roi, \
                                                                 dstOrder);                       \
    }
#define ZELI_SWAP_C4C3(type)                                                                    \
    ZelStatus zeliSwapChannels_##type##_C4C3R(ZELI_SWAP_ARGS(type)) {                            \
        return zel::swapFourToThree<Zel##type>(pSrc, srcStep, pDst, dstStep, roi, dstOrder);     \
    }
#define ZELI_SWAP_C3C4(type)                                                                        \
    ZelStatus zeliSwapChannels_##type##_C3C4R(ZELI_SWAP_ARGS(type)) {                                \
        return zel::swapThreeToFour<Zel##type>(pSrc, srcStep, pDst, dstStep, roi, dstOrder, nullptr); \
    }
#define ZELI_SWAP_ALL_LAYOUTS(type) \
    ZELI_SWAP(type, C3) ZELI_SWAP(type, AC4) ZELI_SWAP_C4C3(type)

ZELI_SWAP_ALL_LAYOUTS(8u)
ZELI_SWAP_ALL_LAYOUTS(16u)
ZELI_SWAP_ALL_LAYOUTS(16s)
ZELI_SWAP_ALL_LAYOUTS(32s)
ZELI_SWAP_ALL_LAYOUTS(32f)
ZELI_SWAP_C3C4(16u)
ZELI_SWAP_C3C4(16s)
ZELI_SWAP_C3C4(32s)
ZELI_SWAP_C3C4(32f)

ZelStatus zeliSwapChannels_8u_C3C4R(ZELI_SWAP_ARGS(8u), Zel8u val) {
    return zel::swapThreeToFour<Zel8u>(pSrc, srcStep, pDst, dstStep, roi, dstOrder, &val);
}

ZelStatus zeliSwapChannels_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi, const int dstOrder[]) {
    return zel::swapChannels<Zel8u, zel::Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi,
                                                     dstOrder);
}

ZelStatus zeliSwapChannels_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi, const int dstOrder[]) {
    using zel::Check;
    if (ZelStatus st = Check()
                           .ptrs(pSrcDst, dstOrder)
                           .steps(srcDstStep)
                           .roi(roi)
                           .that(zel::entriesWithin(dstOrder, 4, 4), zelStatusBadChannelOrder))
        return st;
    zel::swapImage<Zel8u, 4, 4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi,
                                zel::orderOf(dstOrder, 4));
    return zelStatusOk;
}
