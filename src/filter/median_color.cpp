// Colour medians: the vector median of the 3x3 or 5x5 window, the window
// pixel whose sum of L1 distances to all the window's pixels is smallest
// (ties to the first in scan order). The distances of each pair of window
// pixels are computed once per window; integer sums are exact, 32f sums are
// doubles added in a fixed order under the standard rounding, so results
// never depend on the processor, the thread count or the caller's mode.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <type_traits>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "zeli.h"

namespace zel::filter {
namespace {

template <class T>
using DistanceOf = std::conditional_t<std::is_floating_point_v<T>, double, std::int64_t>;

// |a - b| per channel over the three colour channels; equal values
// (infinities included) are at distance 0.
template <class T>
inline DistanceOf<T> distance(const T* a, const T* b) {
    DistanceOf<T> sum = 0;
    for (int c = 0; c < 3; ++c) {
        const DistanceOf<T> x = a[c], y = b[c];
        if (!(x == y)) sum += x > y ? x - y : y - x;
    }
    return sum;
}

template <class T>
inline bool isNan(DistanceOf<T> v) {
    if constexpr (std::is_floating_point_v<T>) return std::isnan(v);
    else return false;
}

// Rows [y0, y1) of the colour median of the (2R+1)^2 window; `src` at the
// ROI's first pixel, C elements per pixel.
template <int R, class T, int C>
void colourMedianRows(const T* src, int srcStep, T* dst, int dstStep, std::ptrdiff_t width, std::ptrdiff_t y0,
                      std::ptrdiff_t y1) {
    constexpr int K = 2 * R + 1, N = K * K;
    for (std::ptrdiff_t y = y0; y < y1; ++y) {
        T* out = rowAt(dst, dstStep, y);
        for (std::ptrdiff_t x = 0; x < width; ++x) {
            const T* px[N];
            for (int r = 0; r < K; ++r)
                for (int c = 0; c < K; ++c) px[r * K + c] = rowAt(src, srcStep, y - R + r) + (x - R + c) * C;
            DistanceOf<T> sum[N] = {};
            for (int i = 0; i < N; ++i)
                for (int j = i + 1; j < N; ++j) {
                    const DistanceOf<T> d = distance(px[i], px[j]);
                    sum[i] += d;
                    sum[j] += d;
                }
            int best = -1;
            for (int i = 0; i < N; ++i)
                if (!isNan<T>(sum[i]) && (best < 0 || sum[i] < sum[best])) best = i;
            const T* chosen = px[best < 0 ? N / 2 : best];
            for (int c = 0; c < 3; ++c) out[x * C + c] = chosen[c];
        }
    }
}

template <class T, Layout L>
ZelStatus colourMedian(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, int mask) {
    const int radius = mask == zelMaskCode3x3 ? 1 : mask == zelMaskCode5x5 ? 2 : 0;
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep).that(radius != 0,
                                                                                      zelStatusBadMaskSize))
        return st;
    constexpr int C = kChannels<L>;
    std::optional<StandardFpEnvironment> environment;
    if constexpr (std::is_floating_point_v<T>) environment.emplace();
    if (radius == 2) {
        colourMedianRows<2, T, C>(pSrc, srcStep, pDst, dstStep, roi.width, 0, roi.height);
        return zelStatusOk;
    }
    // 3x3: bands of rows; 36 distances of three channels per pixel.
    const std::int64_t touched = std::int64_t{2} * sizeof(T) * C * roi.width * roi.height * 36;
    const int team = teamSize(touched, kCostMove, roi.height);
    forEachRow(team, team, [&](std::ptrdiff_t t) {
        colourMedianRows<1, T, C>(pSrc, srcStep, pDst, dstStep, roi.width, shareStart(roi.height, team, t),
                                  shareStart(roi.height, team, t + 1));
    });
    return zelStatusOk;
}

}  // namespace
}  // namespace zel::filter

#define ZEL_MEDIAN_COLOR(t, lay)                                                                              \
    ZelStatus zeliFilterMedianColor_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep, \
                                                   ZeliSize roi, ZeliMaskCode mask) {                        \
        return ::zel::filter::colourMedian<Zel##t, ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roi, mask); \
    }

ZEL_MEDIAN_COLOR(8u, C3) ZEL_MEDIAN_COLOR(8u, AC4)
ZEL_MEDIAN_COLOR(16s, C3) ZEL_MEDIAN_COLOR(16s, AC4)
ZEL_MEDIAN_COLOR(32f, C3) ZEL_MEDIAN_COLOR(32f, AC4)
