// Set: fill the ROI with a constant pixel value.
//
// The value is replicated into a pattern of whole pixels as long as
// `channels` vectors, so every vector store begins on a pixel boundary;
// AC4 stores leave the alpha channel out (it is neither read nor written).
// Large fills use non-temporal stores. A channel of interest (CR) is filled
// the same way from its own address, as channel 0 of pixels that start
// there; the last pixel of a row is written alone since its other channels
// may end the caller's image. Masked fills are channel moves
// (channel_kernels). Counts are 64-bit: contiguous rows collapse into one
// row of more than 2^31 elements.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/set.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/store_under_mask-inl.h"
#include "data/pixel_stores-inl.h"

#include <hwy/cache_control.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Writes `pixels` pixels of C channels, of which the first `Written` take
// value[0..Written-1] and the others are left alone. With `stream` the
// vector stores bypass the caches once the destination is vector-aligned
// at a pixel boundary (an element-misaligned row takes ordinary stores).
template <class T, int C, int Written>
void FillRow(T* HWY_RESTRICT dst, std::ptrdiff_t pixels, const T* HWY_RESTRICT value, bool stream) {
    const hn::ScalableTag<T> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    std::ptrdiff_t x = 0;
    auto fillPixel = [&](std::ptrdiff_t i) { std::memcpy(dst + i * C, value, Written * sizeof(T)); };
    if constexpr (Written < C && !kNativeMaskedAccess<T>) {
        // Without masked stores the vector loop would store lane by lane;
        // a pixel at a time is fewer stores.
        for (; x < pixels; ++x) fillPixel(x);
        return;
    }
    if (stream) {
        const auto misaligned = [&] {
            return reinterpret_cast<std::uintptr_t>(dst + x * C) % (lanes * sizeof(T)) != 0;
        };
        while (x < pixels && x < lanes && misaligned()) fillPixel(x++);
        stream = !misaligned();
    }
    // C vectors hold `lanes` whole pixels.
    HWY_ALIGN T pattern[C * hn::MaxLanes(d)];
    HWY_ALIGN T written[C * hn::MaxLanes(d)];
    for (int i = 0; i < C * int(lanes); ++i) {
        pattern[i] = value[i % C];
        written[i] = i % C < Written ? T(~T(0)) : T(0);
    }
    for (; pixels - x >= lanes; x += lanes) {
        T* out = dst + x * C;
        for (int v = 0; v < C; ++v) {
            const auto p = hn::Load(d, pattern + v * lanes);
            if constexpr (Written < C) {
                const auto m = hn::MaskFromVec(hn::Load(d, written + v * lanes));
                StoreUnderMask(p, m, d, out + v * lanes);
            } else if (stream) {
                hn::Stream(p, d, out + v * lanes);
            } else {
                hn::StoreU(p, d, out + v * lanes);
            }
        }
    }
    for (; x < pixels; ++x) fillPixel(x);
    if (stream) hwy::FlushStream();
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "core/checks.h"
#include "core/image.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "core/streaming.h"
#include "data/channel_kernels.h"
#include "data/copy_rows.h"

namespace zel {
namespace {

// Fills larger than this many bytes bypass the caches, unless the image
// would fit in the largest cache (filling it through the cache is faster
// then, and leaves the result where the next operation reads it).
bool streamFill(std::int64_t bytes) {
    const int cache = largestCacheBytes();
    return bytes > kStreamStoreBytes && (cache == 0 || bytes >= cache / 2);
}

template <class T, Layout L>
ZelStatus setImage(const T* value, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(value, pDst).roi(roi)) return st;
    using B = BitsOf<T>;
    constexpr int C = kChannels<L>;
    B pixel[C] = {};
    for (int c = 0; c < kComputed<L>; ++c) std::memcpy(&pixel[c], &value[c], sizeof(T));

    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    const bool stream = streamFill(rowBytes * roi.height);
    const Rows rows = L == Layout::AC4 ? rowsOf(roi) : collapseRows(roi, rowBytes, {dstStep});
    const auto fillRow = ZEL_DISPATCH(FillRow<B, C, kComputed<L>>);
    B* dst = reinterpret_cast<B*>(pDst);
    for (std::ptrdiff_t y = 0; y < rows.height; ++y) fillRow(rowAt(dst, dstStep, y), rows.width, pixel, stream);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus setMasked(const T* value, T* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask,
                    int maskStep) {
    if (ZelStatus st = Check().ptrs(value, pDst, pMask).roi(roi)) return st;
    using B = BitsOf<T>;
    B pixel[kChannels<L>] = {};
    std::memcpy(pixel, value, kComputed<L> * sizeof(T));
    maskedFillImage<B, kChannels<L>, kComputed<L>>(pixel, reinterpret_cast<B*>(pDst), dstStep, roi,
                                                   pMask, maskStep);
    return zelStatusOk;
}

template <class T, int C>
ZelStatus setChannel(T value, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pDst).roi(roi)) return st;
    using B = BitsOf<T>;
    B pixel[C] = {};
    std::memcpy(pixel, &value, sizeof(T));
    const auto fillRow = ZEL_DISPATCH(FillRow<B, C, 1>);
    B* dst = reinterpret_cast<B*>(pDst);
    const std::ptrdiff_t last = roi.width - 1;
    for (std::ptrdiff_t y = 0; y < roi.height; ++y) {
        B* row = rowAt(dst, dstStep, y);
        fillRow(row, last, pixel, false);
        row[last * C] = pixel[0];
    }
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

// The scalar members take the value itself; the others an array of values.
#define ZELI_SET_C1(type)                                                        \
    ZelStatus zeliSet_##type##_C1R(Zel##type value, Zel##type* pDst, int dstStep, \
                                   ZeliSize roi) {                               \
        return zel::setImage<Zel##type, zel::Layout::C1>(&value, pDst, dstStep, roi); \
    }
#define ZELI_SET(type, layout)                                                    \
    ZelStatus zeliSet_##type##_##layout##R(const Zel##type value[], Zel##type* pDst, \
                                           int dstStep, ZeliSize roi) {           \
        return zel::setImage<Zel##type, zel::Layout::layout>(value, pDst, dstStep, roi); \
    }
#define ZELI_SET_MASKED_C1(type)                                                                 \
    ZelStatus zeliSet_##type##_C1MR(Zel##type value, Zel##type* pDst, int dstStep, ZeliSize roi,   \
                                    const Zel8u* pMask, int maskStep) {                            \
        return zel::setMasked<Zel##type, zel::Layout::C1>(&value, pDst, dstStep, roi, pMask, maskStep); \
    }
#define ZELI_SET_MASKED(type, layout)                                                              \
    ZelStatus zeliSet_##type##_##layout##MR(const Zel##type value[], Zel##type* pDst, int dstStep,  \
                                            ZeliSize roi, const Zel8u* pMask, int maskStep) {       \
        return zel::setMasked<Zel##type, zel::Layout::layout>(value, pDst, dstStep, roi, pMask,     \
                                                              maskStep);                           \
    }
#define ZELI_SET_CHANNEL(type, C)                                                                  \
    ZelStatus zeliSet_##type##_C##C##CR(Zel##type value, Zel##type* pDst, int dstStep, ZeliSize roi) { \
        return zel::setChannel<Zel##type, C>(value, pDst, dstStep, roi);                           \
    }
#define ZELI_SET_ALL_LAYOUTS(type)                                                   \
    ZELI_SET_C1(type) ZELI_SET(type, C3) ZELI_SET(type, C4) ZELI_SET(type, AC4)      \
    ZELI_SET_MASKED_C1(type) ZELI_SET_MASKED(type, C3) ZELI_SET_MASKED(type, C4)     \
    ZELI_SET_MASKED(type, AC4) ZELI_SET_CHANNEL(type, 3) ZELI_SET_CHANNEL(type, 4)

ZELI_SET_ALL_LAYOUTS(8u)
ZELI_SET_ALL_LAYOUTS(16u)
ZELI_SET_ALL_LAYOUTS(16s)
ZELI_SET_ALL_LAYOUTS(32s)
ZELI_SET_ALL_LAYOUTS(32f)

#endif  // HWY_ONCE
