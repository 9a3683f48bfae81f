// Channel moves: shuffles between interleaved layouts, masked copies and
// fills, and conversions between interleaved and planar images.
//
// The vector bodies load `lanes` whole pixels at a time, split into one
// vector per channel (LoadInterleaved), rearrange the channel vectors and
// store them interleaved again. Bytes the call does not own are never
// stored to, not even with their own value (another thread may be writing
// them, or they may lie on a read-only page), and the destination is never
// read: destination channels that keep their contents, and pixels under a
// zero mask byte, are left out of the stores (StoreUnderMask, or pixel by
// pixel where the target has no masked store for the lane size). A vector
// load of whole source pixels would read channels the call does not own
// past the end of a row (AC4 alpha, the channels after a channel-of-
// interest pointer), so the last pixel of such a row takes the scalar rule,
// which loads only the channels it uses. Counts and indices are 64-bit: a
// collapsed image is one row of more than 2^31 elements.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/channel_kernels.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/interleaved-inl.h"
#include "core/store_under_mask-inl.h"
#include "data/pixel_stores-inl.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

template <class Order>
constexpr bool kIsFixed = !std::is_same_v<Order, RuntimeOrder>;

// True when a fixed order only keeps some channels of a same-layout copy
// ({0, 1, 2, kKeep}, {0, kKeep, kKeep}): the written channels then come
// straight from the source without splitting pixels into channels.
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
void ShuffleRow(const B* src, B* dst, std::ptrdiff_t width, const ChannelOrder& order, std::ptrdiff_t reserve) {
    const PixelTag<B> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    auto fromOf = [&](int k) {
        if constexpr (kIsFixed<Order>) {
            return Order::kFrom[k];
        } else {
            return order.from[k];
        }
    };
    const B fill = static_cast<B>(order.fill);
    // The written destination channels (a run [first, first + count) when
    // they are adjacent) and the source channels the row reads.
    int first = -1, count = 0, lastRead = -1;
    bool run = true;
    for (int k = 0; k < DC; ++k) {
        lastRead = std::max(lastRead, fromOf(k));
        if (fromOf(k) == kKeep) continue;
        if (first < 0) first = k;
        run &= first + count == k;
        ++count;
    }
    if (count == 0) return;
    const bool keeps = count < DC;
    if constexpr (isChannelBlend<SC, DC, Order>() && !kNativeMaskedAccess<B>) {
        // The written channels are a run of each source pixel's own.
        CopyPixelChannels<DC>(src, dst, width, first, count);
        return;
    }
    if (lastRead < SC - 1) reserve = std::max<std::ptrdiff_t>(reserve, 1);
    // Without masked stores, kept channels that split the written ones
    // leave only the scalar rule.
    const std::ptrdiff_t vectorEnd = keeps && !run && !kNativeMaskedAccess<B> ? 0 : width - reserve;
    std::ptrdiff_t x = 0;
    // Lane masks of the DC vectors that hold `lanes` whole pixels: set
    // where the destination channel is written, clear where it is kept.
    HWY_ALIGN B taken[DC * hn::MaxLanes(d)];
    for (int i = 0; i < DC * int(lanes); ++i) taken[i] = fromOf(i % DC) == kKeep ? B(0) : B(~B(0));
    // Stores `lanes` pixels of DC interleaved channels from `from` to `to`,
    // kept channels left out.
    auto storeWritten = [&](const B* from, B* to) {
        if constexpr (kNativeMaskedAccess<B>) {
            for (int v = 0; v < DC; ++v)
                StoreUnderMask(hn::LoadU(d, from + v * lanes), hn::MaskFromVec(hn::Load(d, taken + v * lanes)), d,
                               to + v * lanes);
        } else {
            CopyPixelChannels<DC>(from, to, lanes, first, count);
        }
    };
    if constexpr (isChannelBlend<SC, DC, Order>()) {
        for (; vectorEnd - x >= lanes; x += lanes) storeWritten(src + x * SC, dst + x * DC);
    } else {
        using V = hn::Vec<decltype(d)>;
        V in[SC];
        V out[DC];
        for (int k = 0; k < DC; ++k) out[k] = hn::Zero(d);
        const V fillVec = hn::Set(d, fill);
        // With kept channels the pixels are assembled in `staged` first.
        HWY_ALIGN B staged[DC * hn::MaxLanes(d)];
        for (; vectorEnd - x >= lanes; x += lanes) {
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
            storeWritten(staged, dst + x * DC);
        }
    }
    // One pixel at a time, loading only the source channels that are used
    // (all of them before any store: src may be dst).
    for (; x < width; ++x) {
        B pixel[SC];
        for (int c = 0; c <= lastRead; ++c) pixel[c] = src[x * SC + c];
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
// source pixel's (Fill: value[0..W-1]). Nothing else is stored, and the
// destination is never loaded.
template <class B, int C, int W, bool Fill>
void MaskedRow(const B* HWY_RESTRICT src, B* HWY_RESTRICT dst, const std::uint8_t* HWY_RESTRICT mask,
               std::ptrdiff_t width) {
    const PixelTag<B> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    using V = hn::Vec<decltype(d)>;
    // Fill: the value over `lanes` pixels, in place of the source.
    HWY_ALIGN B pattern[C * hn::MaxLanes(d)];
    if constexpr (Fill)
        for (int i = 0; i < C * int(lanes); ++i) pattern[i] = src[i % C];
    // A source channel that is not copied (AC4 alpha) is not loaded past
    // the last pixel's copied ones.
    const std::ptrdiff_t vectorEnd = !Fill && W < C ? width - 1 : width;
    std::ptrdiff_t x = 0;
    for (; vectorEnd - x >= lanes; x += lanes) {
        const auto m = PixelMask(d, mask + x);
        if (hn::AllFalse(d, m)) continue;
        const B* from = Fill ? pattern : src + x * C;
        B* to = dst + x * C;
        if (W == C && hn::AllTrue(d, m)) {
            for (int v = 0; v < C; ++v) hn::StoreU(hn::LoadU(d, from + v * lanes), d, to + v * lanes);
        } else if constexpr (kNativeMaskedAccess<B>) {
            // The pixel mask spread over the interleaved channel lanes.
            V selected[C];
            for (int c = 0; c < C; ++c) selected[c] = c < W ? hn::VecFromMask(d, m) : hn::Zero(d);
            HWY_ALIGN B laneMask[C * hn::MaxLanes(d)];
            StorePixels<C>(d, selected, laneMask);
            for (int v = 0; v < C; ++v)
                StoreUnderMask(hn::LoadU(d, from + v * lanes), hn::MaskFromVec(hn::Load(d, laneMask + v * lanes)), d,
                               to + v * lanes);
        } else {
            std::uint64_t pixels = 0;
            hn::StoreMaskBits(d, m, reinterpret_cast<std::uint8_t*>(&pixels));
            CopySelectedPixels<C, W>(from, to, pixels);
        }
    }
    for (; x < width; ++x)
        if (mask[x] != 0) std::memcpy(dst + x * C, Fill ? src : src + x * C, W * sizeof(B));
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
void SplitRow(const B* HWY_RESTRICT src, B* const* planes, std::ptrdiff_t width, bool stream) {
    const PixelTag<B> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    hn::Vec<decltype(d)> v[C];
    std::ptrdiff_t x = 0;
    auto splitPixel = [&](std::ptrdiff_t i) {
        for (int c = 0; c < C; ++c) planes[c][i] = src[i * C + c];
    };
    if (stream) {
        while (x < width && x < lanes && !vectorAligned(d, planes[0] + x)) splitPixel(x++);
        for (int c = 0; c < C; ++c) stream &= vectorAligned(d, planes[c] + x);
    }
    for (; width - x >= lanes; x += lanes) {
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
void MergeRow(const B* const* planes, B* HWY_RESTRICT dst, std::ptrdiff_t width, bool stream) {
    const PixelTag<B> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    hn::Vec<decltype(d)> v[C];
    std::ptrdiff_t x = 0;
    auto mergePixel = [&](std::ptrdiff_t i) {
        for (int c = 0; c < C; ++c) dst[i * C + c] = planes[c][i];
    };
    if (stream) {
        while (x < width && x < lanes && !vectorAligned(d, dst + x * C)) mergePixel(x++);
        stream = vectorAligned(d, dst + x * C);
    }
    HWY_ALIGN B staged[C * hn::MaxLanes(d)];
    for (; width - x >= lanes; x += lanes) {
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

bool planarStreams(std::int64_t interleavedBytes) { return interleavedBytes > kStreamStoreBytes; }

template <class B, int SC, int DC, class Order>
void shuffleImage(const B* src, int srcStep, B* dst, int dstStep, ZeliSize roi,
                  const ChannelOrder& order, bool partial) {
    const auto row = ZEL_DISPATCH(ShuffleRow<B, SC, DC, Order>);
    const std::int64_t elementBytes = sizeof(B);  // first, so the products are 64-bit
    const Rows rows = collapseRows(
        roi, {{srcStep, elementBytes * SC * roi.width}, {dstStep, elementBytes * DC * roi.width}});
    for (std::ptrdiff_t y = 0; y < rows.height; ++y)
        row(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), rows.width, order, partial ? 1 : 0);
}

template <class B, int C, int W>
void maskedCopyImage(const B* src, int srcStep, B* dst, int dstStep, ZeliSize roi,
                     const Zel8u* mask, int maskStep) {
    const auto row = ZEL_DISPATCH(MaskedRow<B, C, W, false>);
    for (std::ptrdiff_t y = 0; y < roi.height; ++y)
        row(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), rowAt(mask, maskStep, y), roi.width);
}

template <class B, int C, int W>
void maskedFillImage(const B* value, B* dst, int dstStep, ZeliSize roi, const Zel8u* mask,
                     int maskStep) {
    const auto row = ZEL_DISPATCH(MaskedRow<B, C, W, true>);
    for (std::ptrdiff_t y = 0; y < roi.height; ++y)
        row(value, rowAt(dst, dstStep, y), rowAt(mask, maskStep, y), roi.width);
}

template <class B, int C>
void splitImage(const B* src, int srcStep, B* const planes[], int planeStep, ZeliSize roi, bool stream) {
    const auto row = ZEL_DISPATCH(SplitRow<B, C>);
    const std::int64_t elementBytes = sizeof(B);
    const Rows rows = collapseRows(
        roi, {{srcStep, elementBytes * C * roi.width}, {planeStep, elementBytes * roi.width}});
    for (std::ptrdiff_t y = 0; y < rows.height; ++y) {
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
        roi, {{dstStep, elementBytes * C * roi.width}, {planeStep, elementBytes * roi.width}});
    for (std::ptrdiff_t y = 0; y < rows.height; ++y) {
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
