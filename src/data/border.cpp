// Border construction: the source placed inside a larger destination, and
// the pixels around it filled with a constant, the nearest edge pixel
// (replicate) or the source repeated periodically (wrap).
//
// Every call works on the destination rectangle in two phases of rows.
// First the source band: each source row is copied to its place (out of
// place only; in place it already lies there) and extended left and right
// with vector stores of one repeated pixel, or, for wrap, with copies of
// whole periods of the row itself. Then the border rows: whole extended
// rows of the band are copied up and down (the constant fill writes them
// from the value instead). No pixel's source coordinate is computed on the
// way; the coordinate rules only decide which row or pixel is repeated.
//
// A border row reads only rows of the band, and a band row only its own
// pixels, so the two phases run as two worksharing loops of one parallel
// region with a barrier between them: every pixel is written once, by the
// same code, whatever the team. AC4 alpha is neither read nor stored to.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/border.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/store_under_mask-inl.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// `pixels` copies of one C1 element with vectors of d; the last vector
// overlaps the one before it instead of a scalar tail. pixels >= Lanes(d).
template <class D, class B>
HWY_INLINE void RepeatLanes(D d, B* HWY_RESTRICT dst, std::ptrdiff_t pixels, B value) {
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const auto v = hn::Set(d, value);
    std::ptrdiff_t x = 0;
    for (; pixels - x >= lanes; x += lanes) hn::StoreU(v, d, dst + x);
    if (x < pixels) hn::StoreU(v, d, dst + pixels - lanes);
}

// Writes `pixels` pixels of C elements, channels 0..W-1 of each taken from
// `pixel` and the others left alone (AC4: W = 3 of C = 4). `pixel` may lie
// in the same row, outside the pixels written; only its first W elements
// are read.
template <class B, int C, int W>
void RepeatPixel(B* HWY_RESTRICT dst, std::ptrdiff_t pixels, const B* pixel) {
    const hn::ScalableTag<B> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    B value[C] = {};
    std::memcpy(value, pixel, W * sizeof(B));
    if constexpr (C == 1) {
        const hn::Full128<B> d128;
        if (pixels >= lanes) return RepeatLanes(d, dst, pixels, value[0]);
        if (pixels >= static_cast<std::ptrdiff_t>(hn::Lanes(d128))) return RepeatLanes(d128, dst, pixels, value[0]);
        for (std::ptrdiff_t x = 0; x < pixels; ++x) dst[x] = value[0];
        return;
    }
    std::ptrdiff_t x = 0;
    // Short runs, and AC4 where the target has no masked store: a pixel at
    // a time is fewer stores than building the vector pattern.
    const bool vectors = pixels >= lanes && (W == C || kNativeMaskedAccess<B>);
    if (vectors) {
        // C vectors hold `lanes` whole pixels, so every store starts on a
        // pixel boundary.
        HWY_ALIGN B pattern[C * hn::MaxLanes(d)];
        HWY_ALIGN B written[C * hn::MaxLanes(d)];
        for (int i = 0; i < C * int(lanes); ++i) {
            pattern[i] = value[i % C];
            written[i] = i % C < W ? B(~B(0)) : B(0);
        }
        for (; pixels - x >= lanes; x += lanes) {
            B* out = dst + x * C;
            for (int v = 0; v < C; ++v) {
                const auto p = hn::Load(d, pattern + v * lanes);
                if constexpr (W < C) {
                    StoreUnderMask(p, hn::MaskFromVec(hn::Load(d, written + v * lanes)), d, out + v * lanes);
                } else {
                    hn::StoreU(p, d, out + v * lanes);
                }
            }
        }
    }
    for (; x < pixels; ++x) std::memcpy(dst + x * C, value, W * sizeof(B));
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <algorithm>

#include "core/checks.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "data/channel_kernels.h"

namespace zel {
namespace {

enum class Fill { constant, replicate, wrap };

// Where the source lies in the destination, in pixels; 64-bit so that
// products with the channel count and element size cannot overflow.
struct Placement {
    std::ptrdiff_t srcWidth, srcHeight, dstWidth, dstHeight, top, left;
    std::ptrdiff_t right() const { return dstWidth - left - srcWidth; }
    std::ptrdiff_t bottom() const { return dstHeight - top - srcHeight; }
};

Placement placementOf(ZeliSize src, ZeliSize dst, int top, int left) {
    return {src.width, src.height, dst.width, dst.height, top, left};
}

// The size conditions, checked after the pointers and the steps.
bool fits(ZeliSize src, ZeliSize dst, int top, int left) {
    return src.width >= 1 && src.height >= 1 && dst.width >= 1 && dst.height >= 1 && top >= 0 && left >= 0 &&
           std::int64_t{dst.width} >= std::int64_t{src.width} + left &&
           std::int64_t{dst.height} >= std::int64_t{src.height} + top;
}

// The moves of one layout: pixels of `channels` elements of which the first
// `written` are ours.
template <class B, Layout L>
struct Pixels {
    static constexpr int channels = kChannels<L>, written = kComputed<L>;
    // Borders of a few pixels, as most filters need, are written here
    // without a call; longer runs take the vector kernel.
    static constexpr std::ptrdiff_t kShortRun = 8;
    void (*repeat)(B*, std::ptrdiff_t, const B*) = ZEL_DISPATCH(RepeatPixel<B, channels, written>);

    void fill(B* to, std::ptrdiff_t pixels, const B* pixel) const {
        if (pixels > kShortRun) return repeat(to, pixels, pixel);
        B value[channels];
        std::memcpy(value, pixel, written * sizeof(B));
        for (std::ptrdiff_t x = 0; x < pixels; ++x) std::memcpy(to + x * channels, value, written * sizeof(B));
    }
    // Copies `pixels` pixels (ours only: AC4 alpha is not touched); the
    // ranges do not overlap.
    static void copy(const B* from, B* to, std::ptrdiff_t pixels) {
        if (pixels <= 0) return;
        if constexpr (written == channels) {
            std::memcpy(to, from, static_cast<std::size_t>(pixels) * channels * sizeof(B));
        } else {
            shuffleImage<B, 4, 4, FixedOrder<0, 1, 2, kKeep>>(from, 0, to, 0, ZeliSize{int(pixels), 1},
                                                              ChannelOrder{}, false);
        }
    }
};

// Wrap: the right border continues the row's period from its source
// pixels, doubling the copied stretch each time; the left border is then
// filled right to left with whole periods taken from the filled part.
template <class B, Layout L>
void wrapRow(B* row, const Placement& p, const Pixels<B, L>& px) {
    const int c = px.channels;
    B* s = row + p.left * c;
    const std::ptrdiff_t need = p.srcWidth + p.right();
    for (std::ptrdiff_t filled = p.srcWidth; filled < need;) {
        const std::ptrdiff_t n = std::min(filled, need - filled);
        px.copy(s, s + filled * c, n);
        filled += n;
    }
    std::ptrdiff_t start = p.left, length = need;
    while (start > 0) {
        // Pixel x equals pixel x + period: a whole number of periods that
        // the filled part [start, start + length) holds.
        const std::ptrdiff_t period = length / p.srcWidth * p.srcWidth;
        const std::ptrdiff_t n = std::min(start, period);
        px.copy(row + (start - n + period) * c, row + (start - n) * c, n);
        start -= n;
        length += n;
    }
}

// Extends the source pixels of one destination row to its full width.
template <class B, Layout L, Fill F>
void extendRow(B* row, const Placement& p, const B* value, const Pixels<B, L>& px) {
    const int c = px.channels;
    B* s = row + p.left * c;
    B* after = s + p.srcWidth * c;
    if constexpr (F == Fill::constant) {
        px.fill(row, p.left, value);
        px.fill(after, p.right(), value);
    } else if constexpr (F == Fill::replicate) {
        px.fill(row, p.left, s);
        px.fill(after, p.right(), after - c);
    } else {
        wrapRow(row, p, px);
    }
}

// Builds the border of the destination whose first pixel is `origin`; the
// band rows top .. top + srcHeight - 1 get their source pixels from
// place(y, row) (a copy, or nothing in place) before they are extended.
template <class B, Layout L, Fill F, class Place>
void buildBorder(B* origin, int step, const Placement& p, const B* value, const Pixels<B, L>& px,
                 std::int64_t bytes, Place&& place) {
    const std::ptrdiff_t borderRows = p.top + p.bottom();
    auto band = [&](std::ptrdiff_t i) {
        B* row = rowAt(origin, step, p.top + i);
        place(i, row + p.left * px.channels);
        extendRow<B, L, F>(row, p, value, px);
    };
    auto border = [&](std::ptrdiff_t k) {
        const std::ptrdiff_t y = k < p.top ? k : k + p.srcHeight;
        B* row = rowAt(origin, step, y);
        if constexpr (F == Fill::constant) {
            px.fill(row, p.dstWidth, value);
        } else {
            std::ptrdiff_t from;  // the band row this row repeats
            if constexpr (F == Fill::replicate) {
                from = y < p.top ? p.top : p.top + p.srcHeight - 1;
            } else {
                const std::ptrdiff_t r = (y - p.top) % p.srcHeight;
                from = p.top + (r < 0 ? r + p.srcHeight : r);
            }
            px.copy(rowAt(origin, step, from), row, p.dstWidth);
        }
    };
    const int team = teamSize(bytes, kCostMove, p.dstHeight);
    if (team <= 1) {
        for (std::ptrdiff_t i = 0; i < p.srcHeight; ++i) band(i);
        for (std::ptrdiff_t k = 0; k < borderRows; ++k) border(k);
        return;
    }
    runTeam(team, [&] {
        // The loop's closing barrier finishes the band before any border
        // row copies it.
#pragma omp for schedule(static)
        for (std::ptrdiff_t i = 0; i < p.srcHeight; ++i) band(i);
#pragma omp for schedule(static)
        for (std::ptrdiff_t k = 0; k < borderRows; ++k) border(k);
    });
}

template <class T, Layout L, Fill F>
ZelStatus copyBorder(const T* pSrc, int srcStep, ZeliSize srcRoi, T* pDst, int dstStep, ZeliSize dstRoi, int top,
                     int left, const T* value) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst)
                           .steps(srcStep, dstStep)
                           .that(fits(srcRoi, dstRoi, top, left), zelStatusBadSize)
                           .that(F != Fill::constant || value != nullptr, zelStatusNullPtr))
        return st;
    using B = BitsOf<T>;
    const Pixels<B, L> px;
    B fill[4] = {};
    if (value != nullptr) std::memcpy(fill, value, kComputed<L> * sizeof(T));
    const Placement p = placementOf(srcRoi, dstRoi, top, left);
    const auto* src = reinterpret_cast<const B*>(pSrc);
    const std::int64_t pixelBytes = kChannels<L> * sizeof(T);
    const std::int64_t bytes = (p.dstWidth * p.dstHeight + p.srcWidth * p.srcHeight) * pixelBytes;
    buildBorder<B, L, F>(reinterpret_cast<B*>(pDst), dstStep, p, fill, px, bytes,
                      [&](std::ptrdiff_t i, B* at) { px.copy(rowAt(src, srcStep, i), at, p.srcWidth); });
    return zelStatusOk;
}

template <class T, Layout L, Fill F>
ZelStatus copyBorderInPlace(T* pSrcDst, int step, ZeliSize srcRoi, ZeliSize dstRoi, int top, int left) {
    if (ZelStatus st = Check().ptrs(pSrcDst).steps(step).that(fits(srcRoi, dstRoi, top, left), zelStatusBadSize))
        return st;
    using B = BitsOf<T>;
    const Placement p = placementOf(srcRoi, dstRoi, top, left);
    const std::int64_t pixelBytes = kChannels<L> * sizeof(T);
    B* origin = byteOffset(rowAt(reinterpret_cast<B*>(pSrcDst), step, -p.top), -p.left * pixelBytes);
    buildBorder<B, L, F>(origin, step, p, static_cast<const B*>(nullptr), Pixels<B, L>(),
                      p.dstWidth * p.dstHeight * pixelBytes, [](std::ptrdiff_t, B*) {});
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_BORDER_ARGS(type)                                                                       \
    const Zel##type *pSrc, int srcStep, ZeliSize srcRoiSize, Zel##type *pDst, int dstStep, ZeliSize dstRoiSize, \
        int topBorderHeight, int leftBorderWidth
#define ZELI_BORDER_PASS pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth
#define ZELI_CONST_BORDER_C1(type)                                                                        \
    ZelStatus zeliCopyConstBorder_##type##_C1R(ZELI_BORDER_ARGS(type), Zel##type value) {                 \
        return zel::copyBorder<Zel##type, zel::Layout::C1, zel::Fill::constant>(ZELI_BORDER_PASS, &value); \
    }
#define ZELI_CONST_BORDER(type, layout)                                                                       \
    ZelStatus zeliCopyConstBorder_##type##_##layout##R(ZELI_BORDER_ARGS(type), const Zel##type value[]) {     \
        return zel::copyBorder<Zel##type, zel::Layout::layout, zel::Fill::constant>(ZELI_BORDER_PASS, value); \
    }
#define ZELI_BORDER(name, fill, type, layout)                                                               \
    ZelStatus zeliCopy##name##Border_##type##_##layout##R(ZELI_BORDER_ARGS(type)) {                         \
        return zel::copyBorder<Zel##type, zel::Layout::layout, zel::Fill::fill>(ZELI_BORDER_PASS, nullptr); \
    }                                                                                                       \
    ZelStatus zeliCopy##name##Border_##type##_##layout##IR(Zel##type* pSrcDst, int srcDstStep,              \
                                                           ZeliSize srcRoiSize, ZeliSize dstRoiSize,        \
                                                           int topBorderHeight, int leftBorderWidth) {      \
        return zel::copyBorderInPlace<Zel##type, zel::Layout::layout, zel::Fill::fill>(                     \
            pSrcDst, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);                 \
    }
#define ZELI_BORDER_TYPE(type)                                                                   \
    ZELI_CONST_BORDER_C1(type) ZELI_CONST_BORDER(type, C3) ZELI_CONST_BORDER(type, C4)           \
    ZELI_CONST_BORDER(type, AC4) ZELI_BORDER(Replicate, replicate, type, C1)                     \
    ZELI_BORDER(Replicate, replicate, type, C3) ZELI_BORDER(Replicate, replicate, type, C4)      \
    ZELI_BORDER(Replicate, replicate, type, AC4)

// 16u and 16s are the same moves (BitsOf), as are the two signs elsewhere.
ZELI_BORDER_TYPE(8u)
ZELI_BORDER_TYPE(16u)
ZELI_BORDER_TYPE(16s)
ZELI_BORDER_TYPE(32s)
ZELI_BORDER(Wrap, wrap, 32s, C1)

#endif  // HWY_ONCE
