// Per-target kernels of the fixed-window medians (included by each median
// file inside its Highway target loop, after two_pass-inl.h). They are
// block kernels of the filtering frame (see two_pass-inl.h): rows [0, rows)
// of a block, elements [begin, end) of rows of n elements, the neighbour in
// the next column `channels` elements away, AC4 stores leaving every fourth
// element out.
//
// A median is a pruned selection network (median_network.h) of lane-wise
// minima and maxima: every lane gets the exact middle value of its own
// window, whatever the target. Vectors stop before an AC4 row's last alpha
// element, whose right neighbours lie past the last byte the caller
// provides; the tail runs the same network on one-lane vectors.
#if defined(ZEL_FILTER_MEDIAN_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_FILTER_MEDIAN_INL_H_
#undef ZEL_FILTER_MEDIAN_INL_H_
#else
#define ZEL_FILTER_MEDIAN_INL_H_
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include "core/image.h"
#include "filter/median_network.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace median_detail {

// Runs exchange I of network Net on the wires.
template <const filter::Network& Net, std::size_t I, class V>
HWY_INLINE void ExchangeAt(V* w) {
    constexpr filter::Exchange e = Net.at[I];
    const V a = w[e.a], b = w[e.b];
    if constexpr ((e.keep & 1) != 0) w[e.a] = hn::Min(a, b);
    if constexpr ((e.keep & 2) != 0) w[e.b] = hn::Max(a, b);
}
template <const filter::Network& Net, class V, std::size_t... I>
HWY_INLINE void RunExchanges(V* w, std::index_sequence<I...>) {
    (ExchangeAt<Net, I>(w), ...);
}
template <const filter::Network& Net, class V>
HWY_INLINE void Run(V* w) {
    RunExchanges<Net>(w, std::make_index_sequence<Net.count>());
}

// Loads wire I with load(I) when the network reads it.
template <const filter::Network& Net, std::size_t I, class V, class Load>
HWY_INLINE void LoadWire(V* w, const Load& load) {
    if constexpr (Net.reads(static_cast<int>(I))) w[I] = load(I);
}
template <const filter::Network& Net, class V, class Load, std::size_t... I>
HWY_INLINE void LoadWires(V* w, const Load& load, std::index_sequence<I...>) {
    (LoadWire<Net, I>(w, load), ...);
}

// Calls pixel(d, writeMask, x) for the elements x in [x0, x1): whole
// vectors while they end before vectorEnd, then one-lane vectors, which
// skip AC4 alpha elements.
template <class T, bool KeepAlpha, class Pixel>
HWY_INLINE void ForEachVector(std::ptrdiff_t x0, std::ptrdiff_t x1, std::ptrdiff_t vectorEnd, const Pixel& pixel) {
    using filter_detail::ColourLanes;
    const hn::ScalableTag<T> d;
    const hn::CappedTag<T, 1> d1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const auto write = ColourLanes(d);
    const auto write1 = ColourLanes(d1);
    std::ptrdiff_t x = x0;
    for (; vectorEnd - x >= N; x += N) pixel(d, write, x);
    for (; x < x1; ++x)
        if (!KeepAlpha || x % 4 != 3) pixel(d1, write1, x);
}

}  // namespace median_detail

// Median of a tap window (Shape of median_network.h) on a block.
template <class Shape, class T, bool KeepAlpha>
void TapMedianBlock(const void* srcBlock, std::ptrdiff_t srcStep, void* dstBlock, std::ptrdiff_t dstStep,
                    std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n, int channels,
                    void* /*scratch*/) {
    using namespace filter_detail;
    using namespace median_detail;
    constexpr const filter::Network& kNet = filter::TapNetwork<Shape>::kNet;
    constexpr int R = Shape::kRadius;
    const T* src = static_cast<const T*>(srcBlock);
    T* dst = static_cast<T*>(dstBlock);
    const std::ptrdiff_t vectorEnd = KeepAlpha && end == n ? end - 1 : end;
    std::ptrdiff_t offset[Shape::kCount];
    for (int k = 0; k < Shape::kCount; ++k)
        offset[k] = std::ptrdiff_t{Shape::kTaps[k].dx} * channels;

    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* in[2 * R + 1];
        for (int k = 0; k <= 2 * R; ++k) in[k] = byteOffset(src, srcStep * (y - R + k));
        T* out = byteOffset(dst, dstStep * y);
        auto pixel = [&](auto dv, const auto& writeMask, std::ptrdiff_t x) {
            using V = hn::VFromD<decltype(dv)>;
            V w[Shape::kCount];
            LoadWires<kNet>(w, [&](std::size_t k) {
                return hn::LoadU(dv, in[Shape::kTaps[k].dy + R] + x + offset[k]);
            }, std::make_index_sequence<Shape::kCount>());
            Run<kNet>(w);
            StoreOut<KeepAlpha>(w[kNet.out], dv, writeMask, out + x);
        };
        ForEachVector<T, KeepAlpha>(begin, end, vectorEnd, pixel);
    }
}

// Median of the (2R+1)^2 square on a block. Per chunk of a row, the column
// pass sorts every source column of 2R+1 values once into 2R+1 scratch
// rows (smallest first); the row pass feeds the 2R+1 sorted columns around
// each pixel to the square network. Scratch: (2R+1) * (kMedianChunk + 2R
// channels) elements.
template <int R, class T, bool KeepAlpha>
void SquareMedianBlock(const void* srcBlock, std::ptrdiff_t srcStep, void* dstBlock, std::ptrdiff_t dstStep,
                       std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n,
                       int channels, void* scratch) {
    using namespace filter_detail;
    using namespace median_detail;
    constexpr int K = 2 * R + 1;
    constexpr const filter::Network& kColumn = filter::SquareNetworks<R>::kColumn;
    constexpr const filter::Network& kNet = filter::SquareNetworks<R>::kNet;
    const hn::ScalableTag<T> d;
    const hn::CappedTag<T, 1> d1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const T* src = static_cast<const T*>(srcBlock);
    T* dst = static_cast<T*>(dstBlock);
    const std::ptrdiff_t reach = std::ptrdiff_t{R} * channels;
    const std::ptrdiff_t stride = filter::kMedianChunk + 2 * reach;
    T* sorted[K];
    for (int k = 0; k < K; ++k) sorted[k] = static_cast<T*>(scratch) + k * stride;

    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* in[K];
        for (int k = 0; k < K; ++k) in[k] = byteOffset(src, srcStep * (y - R + k));
        T* out = byteOffset(dst, dstStep * y);
        for (std::ptrdiff_t x0 = begin; x0 < end; x0 += std::min(end - x0, filter::kMedianChunk)) {
            const std::ptrdiff_t x1 = x0 + std::min(end - x0, filter::kMedianChunk);
            const std::ptrdiff_t lo = x0 - reach;
            const std::ptrdiff_t hi = x1 + reach - (KeepAlpha && x1 == n ? 1 : 0);
            auto column = [&](auto dv, std::ptrdiff_t i) {
                using V = hn::VFromD<decltype(dv)>;
                V w[K];
                for (int k = 0; k < K; ++k) w[k] = hn::LoadU(dv, in[k] + i);
                Run<kColumn>(w);
                for (int k = 0; k < K; ++k) hn::StoreU(w[k], dv, sorted[k] + (i - lo));
            };
            std::ptrdiff_t i = lo;
            for (; hi - i >= N; i += N) column(d, i);
            for (; i < hi; ++i) column(d1, i);

            const std::ptrdiff_t vectorEnd = KeepAlpha && x1 == n ? x1 - 1 : x1;
            auto pixel = [&](auto dv, const auto& writeMask, std::ptrdiff_t x) {
                using V = hn::VFromD<decltype(dv)>;
                V w[K * K];
                // Wire K c + r: row r of the sorted column c - R pixels away.
                LoadWires<kNet>(w, [&](std::size_t wire) {
                    const std::ptrdiff_t c = static_cast<std::ptrdiff_t>(wire) / K;
                    const int r = static_cast<int>(wire % K);
                    return hn::LoadU(dv, sorted[r] + (x - lo) + c * channels - reach);
                }, std::make_index_sequence<K * K>());
                Run<kNet>(w);
                StoreOut<KeepAlpha>(w[kNet.out], dv, writeMask, out + x);
            };
            ForEachVector<T, KeepAlpha>(x0, x1, vectorEnd, pixel);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_FILTER_MEDIAN_INL_H_
