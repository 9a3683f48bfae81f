// Median over a rectangle of odd sides with a free anchor. After the checks
// the source pointer moves so that the window is centred on its pixel, and
// the mask size picks the work: the square 3x3, 5x5 and 7x7 kernels
// (columns sorted once, then a pruned network), the horizontal and vertical medians
// for the one-dimensional masks, a copy for 1 x 1, and the general kernel
// for any other size: a running histogram along each row (8u; 16u and 16s
// masks of 100 values and more), or a selection over the gathered window
// (smaller 16u and 16s masks).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/median.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/two_pass-inl.h"
#include "filter/median-inl.h"

#if HWY_ONCE

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "filter/median_filter.h"

namespace zel::filter {
namespace {

// Pixels [first, last) of channel c whose elements lie in [begin, end) of
// a row of pixels of `channels` elements.
struct PixelRange {
    std::ptrdiff_t first, last;
};
inline PixelRange pixelsOf(std::ptrdiff_t begin, std::ptrdiff_t end, int channels, int c) {
    const std::ptrdiff_t first = begin <= c ? 0 : (begin - c + channels - 1) / channels;
    const std::ptrdiff_t last = end <= c ? 0 : (end - 1 - c) / channels + 1;
    return {first, std::max(first, last)};
}

// Calls run(top, out, c, pixels) for every row of block b and every
// computed channel c that has pixels in it; `top` is the source row at the
// window's top, `out` the destination row.
template <class T, class Run>
void forEachChannelRun(const T* src, int srcStep, T* dst, int dstStep, const Block& b, int channels, int computed,
                       Run&& run) {
    for (std::ptrdiff_t y = b.y0; y < b.y1; ++y)
        for (int c = 0; c < computed; ++c) {
            const PixelRange px = pixelsOf(b.begin, b.end, channels, c);
            if (px.first < px.last) run(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), c, px);
        }
}

// General 8u kernel, one block: for each row and channel, the histogram of
// the first window is built, then the window moves along the row; the
// columns that leave and enter update the histogram and the count of
// values below the median candidate, and the candidate moves until exactly
// n / 2 values lie below it and more than n / 2 at or below it. `src`
// addresses the top-left corner of the window of the block's first pixel.
void histogramMedianBlock(const Zel8u* src, int srcStep, Zel8u* dst, int dstStep, const Block& b, ZeliSize mask,
                          int channels, int computed) {
    const std::ptrdiff_t half = std::ptrdiff_t{mask.width} * mask.height / 2;
    forEachChannelRun(src, srcStep, dst, dstStep, b, channels, computed, [&](const Zel8u* top, Zel8u* out, int c,
                                                                             PixelRange px) {
        std::ptrdiff_t hist[256] = {};
        auto at = [&](int r, std::ptrdiff_t p) { return rowAt(top, srcStep, r)[p * channels + c]; };
        for (int r = 0; r < mask.height; ++r)
            for (int dx = 0; dx < mask.width; ++dx) ++hist[at(r, px.first + dx)];
        int m = 0;
        std::ptrdiff_t below = 0;  // values < m
        while (below + hist[m] <= half) below += hist[m++];
        out[px.first * channels + c] = static_cast<Zel8u>(m);
        for (std::ptrdiff_t p = px.first + 1; p < px.last; ++p) {
            for (int r = 0; r < mask.height; ++r) {
                const int leaving = at(r, p - 1), entering = at(r, p - 1 + mask.width);
                --hist[leaving];
                ++hist[entering];
                below += (entering < m) - (leaving < m);
            }
            while (below > half) below -= hist[--m];
            while (below + hist[m] <= half) below += hist[m++];
            out[p * channels + c] = static_cast<Zel8u>(m);
        }
    });
}

// General 16-bit kernel, one block: each window gathered into the thread's
// scratch and its middle element selected.
template <class T>
void selectMedianBlock(const T* src, int srcStep, T* dst, int dstStep, const Block& b, ZeliSize mask, int channels,
                       int computed, T* window) {
    const std::ptrdiff_t count = std::ptrdiff_t{mask.width} * mask.height;
    forEachChannelRun(src, srcStep, dst, dstStep, b, channels, computed, [&](const T* top, T* out, int c,
                                                                             PixelRange px) {
        for (std::ptrdiff_t p = px.first; p < px.last; ++p) {
            T* w = window;
            for (int r = 0; r < mask.height; ++r) {
                const T* in = rowAt(top, srcStep, r) + p * channels + c;
                for (int dx = 0; dx < mask.width; ++dx) *w++ = in[std::ptrdiff_t{dx} * channels];
            }
            std::nth_element(window, window + count / 2, window + count);
            out[p * channels + c] = window[count / 2];
        }
    });
}

// Masks of at least this many values take the 16-bit histogram kernel.
constexpr std::int64_t kHistogramFrom = 100;

// General 16-bit kernel for large masks, one block: a running histogram of
// 256 coarse bins (the high byte) and 65536 fine ones (`fine`, zero on entry
// and on return). The coarse candidate moves as in the 8u kernel; the
// median's fine bin is then found inside the candidate's coarse bin, from
// whichever end is nearer in count. Values are keyed as unsigned (16s: the
// sign bit flipped), which keeps their order.
template <class T>
void histogram16MedianBlock(const T* src, int srcStep, T* dst, int dstStep, const Block& b, ZeliSize mask,
                            int channels, int computed, std::uint32_t* fine) {
    constexpr unsigned kFlip = std::is_signed_v<T> ? 0x8000u : 0u;
    const std::ptrdiff_t half = std::ptrdiff_t{mask.width} * mask.height / 2;
    forEachChannelRun(src, srcStep, dst, dstStep, b, channels, computed, [&](const T* top, T* out, int c,
                                                                             PixelRange px) {
        std::ptrdiff_t coarse[256] = {};
        auto key = [&](int r, std::ptrdiff_t p) {
            return static_cast<unsigned>(static_cast<std::uint16_t>(rowAt(top, srcStep, r)[p * channels + c])) ^
                   kFlip;
        };
        auto window = [&](std::ptrdiff_t p, int delta) {
            for (int r = 0; r < mask.height; ++r)
                for (int dx = 0; dx < mask.width; ++dx) {
                    const unsigned k = key(r, p + dx);
                    coarse[k >> 8] += delta;
                    fine[k] += static_cast<std::uint32_t>(delta);
                }
        };
        window(px.first, 1);
        int cb = 0;
        std::ptrdiff_t below = 0;  // values whose coarse bin is below cb
        for (std::ptrdiff_t p = px.first;; ++p) {
            while (below > half) below -= coarse[--cb];
            while (below + coarse[cb] <= half) below += coarse[cb++];
            unsigned f;
            if (half - below < coarse[cb] / 2) {
                std::ptrdiff_t at = below;
                for (f = static_cast<unsigned>(cb) << 8; at + fine[f] <= half; ++f) at += fine[f];
            } else {
                std::ptrdiff_t at = below + coarse[cb];  // values at or below the bin's top
                for (f = (static_cast<unsigned>(cb) << 8) | 255u; at - fine[f] > half; --f) at -= fine[f];
            }
            out[p * channels + c] = static_cast<T>(f ^ kFlip);
            if (p + 1 == px.last) break;
            for (int r = 0; r < mask.height; ++r) {
                const unsigned leaving = key(r, p), entering = key(r, p + mask.width);
                --coarse[leaving >> 8];
                --fine[leaving];
                ++coarse[entering >> 8];
                ++fine[entering];
                below += (static_cast<int>(entering >> 8) < cb) - (static_cast<int>(leaving >> 8) < cb);
            }
        }
        window(px.last - 1, -1);
    });
}

// The general kernel over the ROI; `src` addresses the window's top-left
// corner.
template <class T, Layout L>
ZelStatus generalMedian(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, ZeliSize mask) {
    constexpr int C = kChannels<L>;
    constexpr std::ptrdiff_t kGrain = 256;
    constexpr bool kByte = sizeof(T) == 1;
    const std::ptrdiff_t n = std::ptrdiff_t{roi.width} * C;
    const std::int64_t count = std::int64_t{mask.width} * mask.height;
    // Work per element: about 2 h histogram updates (8u), the window's count
    // (16-bit selection), each a histogram-weight byte.
    const std::int64_t perElement = kByte ? 2 * std::int64_t{mask.height} : std::min<std::int64_t>(count, 256);
    const double work = 2.0 * sizeof(T) * static_cast<double>(n) * roi.height * static_cast<double>(perElement);
    const std::int64_t touched = static_cast<std::int64_t>(std::min(work, 0x1p50));
    const int team = teamSize(touched, kCostHistogram, pieceCount(roi.height, n, kGrain));
    // 16-bit: a window buffer per thread, or the fine histogram. No window
    // of 2^40 values can be worked (nor read).
    if (!kByte && count >= (std::int64_t{1} << 40)) return zelStatusNoMemory;
    const bool histogram = !kByte && count >= kHistogramFrom && count < (std::int64_t{1} << 31);
    const std::size_t perThread = kByte ? 0 : histogram ? 65536 * sizeof(std::uint32_t) : count * sizeof(T);
    Buffer<std::uint8_t> scratch;
    if constexpr (!kByte) {
        scratch = allocBuffer<std::uint8_t>(perThread * team);
        if (!scratch) return zelStatusNoMemory;
        if (histogram) std::memset(scratch.get(), 0, perThread * team);
    }
    forEachBlock(roi.height, n, kGrain, team, [&](const Block& b) {
        void* mine = scratch.get() + perThread * b.thread;
        if constexpr (kByte)
            histogramMedianBlock(src, srcStep, dst, dstStep, b, mask, C, kComputed<L>);
        else if (histogram)
            histogram16MedianBlock(src, srcStep, dst, dstStep, b, mask, C, kComputed<L>,
                                   static_cast<std::uint32_t*>(mine));
        else
            selectMedianBlock(src, srcStep, dst, dstStep, b, mask, C, kComputed<L>, static_cast<T*>(mine));
    });
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus filterMedian(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, ZeliSize mask,
                       ZeliPoint anchor, ZelStatus (*horiz)(const T*, int, T*, int, ZeliSize, ZeliMaskCode),
                       ZelStatus (*vert)(const T*, int, T*, int, ZeliSize, ZeliMaskCode),
                       ZelStatus (*copy)(const T*, int, T*, int, ZeliSize)) {
    const bool oddMask = mask.width > 0 && mask.height > 0 && mask.width % 2 == 1 && mask.height % 2 == 1;
    const bool anchorInside = anchor.x >= 0 && anchor.x < mask.width && anchor.y >= 0 && anchor.y < mask.height;
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst)
                           .roi(roi)
                           .steps(srcStep, dstStep)
                           .that(oddMask, zelStatusBadMaskSize)
                           .that(anchorInside, zelStatusBadAnchor))
        return st;
    constexpr int C = kChannels<L>;
    constexpr bool kKeepAlpha = L == Layout::AC4;
    // The window centred on its pixel.
    const T* centred = byteOffset(pSrc, std::ptrdiff_t{srcStep} * (mask.height / 2 - anchor.y)) +
                       std::ptrdiff_t{mask.width / 2 - anchor.x} * C;
    const int w = mask.width, h = mask.height;
    if (w == 1 && h == 1) return copy(centred, srcStep, pDst, dstStep, roi);
    if (h == 1 && (w == 3 || w == 5))
        return horiz(centred, srcStep, pDst, dstStep, roi, w == 3 ? zelMaskCode3x1 : zelMaskCode5x1);
    if (w == 1 && (h == 3 || h == 5))
        return vert(centred, srcStep, pDst, dstStep, roi, h == 3 ? zelMaskCode1x3 : zelMaskCode1x5);
    if (w == 3 && h == 3)
        return runPlan<T, T, L>(squareMedianPlan<1, T, kKeepAlpha>(), centred, srcStep, pDst, dstStep, roi);
    if (w == 5 && h == 5)
        return runPlan<T, T, L>(squareMedianPlan<2, T, kKeepAlpha>(), centred, srcStep, pDst, dstStep, roi);
    if (w == 7 && h == 7)  // the general kernel's results, faster
        return runPlan<T, T, L>(squareMedianPlan<3, T, kKeepAlpha>(), centred, srcStep, pDst, dstStep, roi);
    const T* corner = byteOffset(pSrc, -std::ptrdiff_t{srcStep} * anchor.y) - std::ptrdiff_t{anchor.x} * C;
    return generalMedian<T, L>(corner, srcStep, pDst, dstStep, roi, mask);
}

}  // namespace
}  // namespace zel::filter

#define ZEL_MEDIAN(t, lay)                                                                                     \
    ZelStatus zeliFilterMedian_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,       \
                                              ZeliSize roi, ZeliSize maskSize, ZeliPoint anchor) {             \
        return ::zel::filter::filterMedian<Zel##t, ::zel::Layout::lay>(                                        \
            pSrc, srcStep, pDst, dstStep, roi, maskSize, anchor, &zeliFilterMedianHoriz_##t##_##lay##R,        \
            &zeliFilterMedianVert_##t##_##lay##R, &zeliCopy_##t##_##lay##R);                                   \
    }

ZEL_MEDIAN(8u, C1) ZEL_MEDIAN(8u, C3) ZEL_MEDIAN(8u, C4) ZEL_MEDIAN(8u, AC4)
ZEL_MEDIAN(16u, C1) ZEL_MEDIAN(16u, C3) ZEL_MEDIAN(16u, C4) ZEL_MEDIAN(16u, AC4)
ZEL_MEDIAN(16s, C1) ZEL_MEDIAN(16s, C3) ZEL_MEDIAN(16s, C4) ZEL_MEDIAN(16s, AC4)

#endif  // HWY_ONCE
