// Channel moves: shuffles between interleaved layouts, masked copies and
// fills, and conversions between interleaved and planar images.
//
// The vector bodies load `lanes` whole pixels at a time, split into one
// vector per channel (LoadInterleaved), rearrange the channel vectors and
// store them interleaved again. Destination channels that must keep their
// contents are loaded first and stored back unchanged. Row tails, and for
// channel-of-interest pointers the last pixel of each row (whose other
// channels may lie outside the caller's image), take the scalar rule.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/channel_kernels.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/store_under_mask-inl.h"

#include <cstdint>
#include <type_traits>

#include "data/channel_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// At most 256-bit vectors: AVX-512's wider (de)interleaving shuffles cost
// more than they save on these memory-bound moves.
template <class B>
using PixelTag = hn::CappedTag<B, 32 / sizeof(B)>;

template <int C, class D>
HWY_INLINE void LoadPixels(D d, const hn::TFromD<D>* HWY_RESTRICT p, hn::Vec<D>* v) {
    if constexpr (C == 1) {
        v[0] = hn::LoadU(d, p);
    } else if constexpr (C == 3) {
        hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
    } else {
        hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
    }
}

template <int C, class D>
HWY_INLINE void StorePixels(D d, const hn::Vec<D>* v, hn::TFromD<D>* HWY_RESTRICT p) {
    if constexpr (C == 1) {
        hn::StoreU(v[0], d, p);
    } else if constexpr (C == 3) {
        hn::StoreInterleaved3(v[0], v[1], v[2], d, p);
    } else {
        hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, p);
    }
}

template <class Order>
constexpr bool kIsFixed = !std::is_same_v<Order, RuntimeOrder>;

// True when a fixed order only keeps some channels of a same-layout copy
// ({0, 1, 2, kKeep}, {0, kKeep, kKeep}): a per-lane blend then does the work
// without splitting pixels into channels.
template <int SC, int DC, class Order>
constexpr bool isChannelBlend() {
    if constexpr (!kIsFixed<Order> || SC != DC) {
        return false;
    } else {
        for (int k = 0; k < DC; ++k)
            if (Order::kFrom[k] != k && Order::kFrom[k] != kKeep) return false;
        return true;
    }
}

template <class B, int SC, int DC, class Order>
void ShuffleRow(const B* src, B* dst, int width, const ChannelOrder& order, int reserve) {
    const PixelTag<B> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    auto fromOf = [&](int k) {
        if constexpr (kIsFixed<Order>) {
            return Order::kFrom[k];
        } else {
            return order.from[k];
        }
    };
    const B fill = static_cast<B>(order.fill);
    int x = 0;
    const int vectorEnd = width - reserve;
    // Lane masks of the DC vectors that hold `lanes` whole pixels: set
    // where the destination channel is written, clear where it is kept.
    HWY_ALIGN B taken[DC * hn::MaxLanes(d)];
    bool keeps = false;
    for (int i = 0; i < DC * lanes; ++i) {
        keeps |= fromOf(i % DC) == kKeep;
        taken[i] = fromOf(i % DC) == kKeep ? B(0) : B(~B(0));
    }
    if constexpr (isChannelBlend<SC, DC, Order>()) {
        for (; x + lanes <= vectorEnd; x += lanes)
            for (int v = 0; v < DC; ++v) {
                const auto m = hn::MaskFromVec(hn::Load(d, taken + v * lanes));
                StoreUnderMask(hn::LoadU(d, src + x * SC + v * lanes), m, d, dst + x * DC + v * lanes);
            }
    } else {
        using V = hn::Vec<decltype(d)>;
        V in[SC];
        V out[DC];
        for (int k = 0; k < DC; ++k) out[k] = hn::Zero(d);
        const V fillVec = hn::Set(d, fill);
        // With kept channels the pixels are assembled in `staged` and
        // stored under the lane masks.
        HWY_ALIGN B staged[DC * hn::MaxLanes(d)];
        for (; x + lanes <= vectorEnd; x += lanes) {
            LoadPixels<SC>(d, src + x * SC, in);
            for (int k = 0; k < DC; ++k) {
                const int from = fromOf(k);
                if (from >= 0) {
                    out[k] = in[from];
                } else if (from == kFill) {
                    out[k] = fillVec;
                }
            }
            if (!keeps) {
                StorePixels<DC>(d, out, dst + x * DC);
                continue;
            }
            StorePixels<DC>(d, out, staged);
            for (int v = 0; v < DC; ++v)
                StoreUnderMask(hn::Load(d, staged + v * lanes), hn::MaskFromVec(hn::Load(d, taken + v * lanes)),
                                 d, dst + x * DC + v * lanes);
        }
    }
    for (; x < width; ++x) {
        B pixel[SC];
        for (int c = 0; c < SC; ++c) pixel[c] = src[x * SC + c];
        for (int k = 0; k < DC; ++k) {
            const int from = fromOf(k);
            if (from >= 0) {
                dst[x * DC + k] = pixel[from];
            } else if (from == kFill) {
                dst[x * DC + k] = fill;
            }
        }
    }
}

// Mask bytes of `lanes` pixels as a mask over lanes of D's type.
template <class D>
HWY_INLINE auto PixelMask(D d, const std::uint8_t* HWY_RESTRICT mask) {
    using B = hn::TFromD<D>;
    if constexpr (sizeof(B) == 1) {
        return hn::Ne(hn::LoadU(d, mask), hn::Zero(d));
    } else {
        const hn::Rebind<std::uint8_t, D> d8;
        return hn::Ne(hn::PromoteTo(d, hn::LoadU(d8, mask)), hn::Zero(d));
    }
}

// Where the mask is set, channels 0..W-1 of each C-channel pixel take the
// source pixel's (Fill: value[0..W-1]).
template <class B, int C, int W, bool Fill>
void MaskedRow(const B* HWY_RESTRICT src, B* HWY_RESTRICT dst, const std::uint8_t* HWY_RESTRICT mask,
               int width) {
    const PixelTag<B> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    using V = hn::Vec<decltype(d)>;
    V in[C];
    V out[C];
    for (int c = 0; c < C; ++c) in[c] = hn::Zero(d);
    if constexpr (Fill)
        for (int c = 0; c < W; ++c) in[c] = hn::Set(d, src[c]);
    int x = 0;
    for (; x + lanes <= width; x += lanes) {
        const auto m = PixelMask(d, mask + x);
        if constexpr (!Fill) LoadPixels<C>(d, src + x * C, in);
        LoadPixels<C>(d, dst + x * C, out);
        for (int c = 0; c < W; ++c) out[c] = hn::IfThenElse(m, in[c], out[c]);
        StorePixels<C>(d, out, dst + x * C);
    }
    for (; x < width; ++x)
        if (mask[x] != 0)
            for (int c = 0; c < W; ++c) dst[x * C + c] = Fill ? src[c] : src[x * C + c];
}

// True when p is aligned for a full vector of D.
template <class D>
HWY_INLINE bool vectorAligned(D d, const void* p) {
    return reinterpret_cast<std::uintptr_t>(p) % (hn::Lanes(d) * sizeof(hn::TFromD<D>)) == 0;
}

// With `stream` the plane stores bypass the caches once every plane is
// vector-aligned at the same pixel (planes that never line up take
// ordinary stores).
template <class B, int C>
void SplitRow(const B* HWY_RESTRICT src, B* const* planes, int width, bool stream) {
    const PixelTag<B> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    hn::Vec<decltype(d)> v[C];
    int x = 0;
    auto splitPixel = [&](int i) {
        for (int c = 0; c < C; ++c) planes[c][i] = src[i * C + c];
    };
    if (stream) {
        while (x < width && x < lanes && !vectorAligned(d, planes[0] + x)) splitPixel(x++);
        for (int c = 0; c < C; ++c) stream &= vectorAligned(d, planes[c] + x);
    }
    for (; x + lanes <= width; x += lanes) {
        LoadPixels<C>(d, src + x * C, v);
        for (int c = 0; c < C; ++c) {
            if (stream) {
                hn::Stream(v[c], d, planes[c] + x);
            } else {
                hn::StoreU(v[c], d, planes[c] + x);
            }
        }
    }
    for (; x < width; ++x) splitPixel(x);
}

// With `stream` the interleaved pixels are assembled in an aligned buffer
// and copied out with non-temporal stores once the destination is
// vector-aligned at a pixel boundary.
template <class B, int C>
void MergeRow(const B* const* planes, B* HWY_RESTRICT dst, int width, bool stream) {
    const PixelTag<B> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    hn::Vec<decltype(d)> v[C];
    int x = 0;
    auto mergePixel = [&](int i) {
        for (int c = 0; c < C; ++c) dst[i * C + c] = planes[c][i];
    };
    if (stream) {
        while (x < width && x < lanes && !vectorAligned(d, dst + x * C)) mergePixel(x++);
        stream = vectorAligned(d, dst + x * C);
    }
    HWY_ALIGN B staged[C * hn::MaxLanes(d)];
    for (; x + lanes <= width; x += lanes) {
        for (int c = 0; c < C; ++c) v[c] = hn::LoadU(d, planes[c] + x);
        if (stream) {
            StorePixels<C>(d, v, staged);
            for (int c = 0; c < C; ++c) hn::Stream(hn::Load(d, staged + c * lanes), d, dst + x * C + c * lanes);
        } else {
            StorePixels<C>(d, v, dst + x * C);
        }
    }
    for (; x < width; ++x) mergePixel(x);
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <hwy/cache_control.h>

#include <climits>

#include "core/image.h"
#include "core/simd.h"

namespace zel {

bool planarStreams(std::int64_t interleavedBytes) { return interleavedBytes > kPlanarStreamBytes; }

template <class B, int SC, int DC, class Order>
void shuffleImage(const B* src, int srcStep, B* dst, int dstStep, ZeliSize roi,
                  const ChannelOrder& order, bool partial) {
    const auto row = ZEL_DISPATCH(ShuffleRow<B, SC, DC, Order>);
    const std::int64_t pixelBytes = sizeof(B);
    const Rows rows = collapseRows(
        roi, {{srcStep, roi.width * SC * pixelBytes}, {dstStep, roi.width * DC * pixelBytes}});
    for (int y = 0; y < rows.height; ++y)
        row(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), rows.width, order, partial ? 1 : 0);
}

template <class B, int C, int W>
void maskedCopyImage(const B* src, int srcStep, B* dst, int dstStep, ZeliSize roi,
                     const Zel8u* mask, int maskStep) {
    const auto row = ZEL_DISPATCH(MaskedRow<B, C, W, false>);
    for (int y = 0; y < roi.height; ++y)
        row(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), rowAt(mask, maskStep, y), roi.width);
}

template <class B, int C, int W>
void maskedFillImage(const B* value, B* dst, int dstStep, ZeliSize roi, const Zel8u* mask,
                     int maskStep) {
    const auto row = ZEL_DISPATCH(MaskedRow<B, C, W, true>);
    for (int y = 0; y < roi.height; ++y)
        row(value, rowAt(dst, dstStep, y), rowAt(mask, maskStep, y), roi.width);
}

template <class B, int C>
void splitImage(const B* src, int srcStep, B* const planes[], int planeStep, ZeliSize roi, bool stream) {
    const auto row = ZEL_DISPATCH(SplitRow<B, C>);
    const std::int64_t elementBytes = sizeof(B);
    const Rows rows = collapseRows(
        roi, {{srcStep, roi.width * C * elementBytes}, {planeStep, roi.width * elementBytes}});
    for (int y = 0; y < rows.height; ++y) {
        B* rowPlanes[C];
        for (int c = 0; c < C; ++c) rowPlanes[c] = rowAt(planes[c], planeStep, y);
        row(rowAt(src, srcStep, y), rowPlanes, rows.width, stream);
    }
    if (stream) hwy::FlushStream();
}

template <class B, int C>
void mergeImage(const B* const planes[], int planeStep, B* dst, int dstStep, ZeliSize roi, bool stream) {
    const auto row = ZEL_DISPATCH(MergeRow<B, C>);
    const std::int64_t elementBytes = sizeof(B);
    const Rows rows = collapseRows(
        roi, {{dstStep, roi.width * C * elementBytes}, {planeStep, roi.width * elementBytes}});
    for (int y = 0; y < rows.height; ++y) {
        const B* rowPlanes[C];
        for (int c = 0; c < C; ++c) rowPlanes[c] = rowAt(planes[c], planeStep, y);
        row(rowPlanes, rowAt(dst, dstStep, y), rows.width, stream);
    }
    if (stream) hwy::FlushStream();
}

// The instantiations the exported families use, for each element size.
#define ZEL_CHANNEL_KERNELS(B)                                                                   \
    template void shuffleImage<B, 4, 4, FixedOrder<0, 1, 2, kKeep>>(                             \
        const B*, int, B*, int, ZeliSize, const ChannelOrder&, bool);                            \
    template void shuffleImage<B, 3, 3, FixedOrder<0, kKeep, kKeep>>(                            \
        const B*, int, B*, int, ZeliSize, const ChannelOrder&, bool);                            \
    template void shuffleImage<B, 4, 4, FixedOrder<0, kKeep, kKeep, kKeep>>(                     \
        const B*, int, B*, int, ZeliSize, const ChannelOrder&, bool);                            \
    template void shuffleImage<B, 1, 3, FixedOrder<0, kKeep, kKeep>>(                            \
        const B*, int, B*, int, ZeliSize, const ChannelOrder&, bool);                            \
    template void shuffleImage<B, 1, 4, FixedOrder<0, kKeep, kKeep, kKeep>>(                     \
        const B*, int, B*, int, ZeliSize, const ChannelOrder&, bool);                            \
    template void shuffleImage<B, 3, 1, FixedOrder<0>>(const B*, int, B*, int, ZeliSize,         \
                                                       const ChannelOrder&, bool);               \
    template void shuffleImage<B, 4, 1, FixedOrder<0>>(const B*, int, B*, int, ZeliSize,         \
                                                       const ChannelOrder&, bool);               \
    template void shuffleImage<B, 3, 4, FixedOrder<0, 1, 2, kKeep>>(                             \
        const B*, int, B*, int, ZeliSize, const ChannelOrder&, bool);                            \
    template void shuffleImage<B, 4, 3, FixedOrder<0, 1, 2>>(const B*, int, B*, int, ZeliSize,   \
                                                             const ChannelOrder&, bool);         \
    template void shuffleImage<B, 3, 3, RuntimeOrder>(const B*, int, B*, int, ZeliSize,          \
                                                      const ChannelOrder&, bool);                \
    template void shuffleImage<B, 4, 4, RuntimeOrder>(const B*, int, B*, int, ZeliSize,          \
                                                      const ChannelOrder&, bool);                \
    template void shuffleImage<B, 4, 3, RuntimeOrder>(const B*, int, B*, int, ZeliSize,          \
                                                      const ChannelOrder&, bool);                \
    template void shuffleImage<B, 3, 4, RuntimeOrder>(const B*, int, B*, int, ZeliSize,          \
                                                      const ChannelOrder&, bool);                \
    template void maskedCopyImage<B, 1, 1>(const B*, int, B*, int, ZeliSize, const Zel8u*, int); \
    template void maskedCopyImage<B, 3, 3>(const B*, int, B*, int, ZeliSize, const Zel8u*, int); \
    template void maskedCopyImage<B, 4, 4>(const B*, int, B*, int, ZeliSize, const Zel8u*, int); \
    template void maskedCopyImage<B, 4, 3>(const B*, int, B*, int, ZeliSize, const Zel8u*, int); \
    template void maskedFillImage<B, 1, 1>(const B*, B*, int, ZeliSize, const Zel8u*, int);      \
    template void maskedFillImage<B, 3, 3>(const B*, B*, int, ZeliSize, const Zel8u*, int);      \
    template void maskedFillImage<B, 4, 4>(const B*, B*, int, ZeliSize, const Zel8u*, int);      \
    template void maskedFillImage<B, 4, 3>(const B*, B*, int, ZeliSize, const Zel8u*, int);      \
    template void splitImage<B, 3>(const B*, int, B* const[], int, ZeliSize, bool);              \
    template void splitImage<B, 4>(const B*, int, B* const[], int, ZeliSize, bool);              \
    template void mergeImage<B, 3>(const B* const[], int, B*, int, ZeliSize, bool);              \
    template void mergeImage<B, 4>(const B* const[], int, B*, int, ZeliSize, bool);

ZEL_CHANNEL_KERNELS(std::uint8_t)
ZEL_CHANNEL_KERNELS(std::uint16_t)
ZEL_CHANNEL_KERNELS(std::uint32_t)

// Grey to three equal channels (8-bit only).
template void shuffleImage<std::uint8_t, 1, 3, FixedOrder<0, 0, 0>>(
    const std::uint8_t*, int, std::uint8_t*, int, ZeliSize, const ChannelOrder&, bool);

}  // namespace zel

#endif  // HWY_ONCE
