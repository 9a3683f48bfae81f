// CountInRange: per channel, the values inside [lower, upper]. A value is
// inside when clamping it to the bounds leaves it as it is (integers) or
// when both comparisons hold (32f, where a NaN is never inside). Counts go
// into 8-bit lanes emptied into 64-bit lanes every 255 vectors (8u) or
// 32-bit lanes emptied at the end of each row (32f).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/count_in_range.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "stats/channels-inl.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Adds to count[c] the values of channel c (c < computed) of a row inside
// [lo[c], hi[c]]. With computed < C the last pixel's other channels are
// not read.
template <class T, int C>
void CountRow(const T* HWY_RESTRICT row, std::ptrdiff_t pixels, int computed, const T* lo, const T* hi,
              std::uint64_t* HWY_RESTRICT count) {
    const hn::ScalableTag<T> d;
    using V = decltype(hn::Zero(d));
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const std::ptrdiff_t vectorPixels = computed < C ? pixels - 1 : pixels;
    V loV[C], hiV[C];
    for (int c = 0; c < C; ++c) {
        loV[c] = hn::Set(d, lo[c < computed ? c : 0]);
        hiV[c] = hn::Set(d, hi[c < computed ? c : 0]);
    }
    std::ptrdiff_t x = 0;
    if constexpr (std::is_same_v<T, std::uint8_t>) {
        const hn::Repartition<std::uint64_t, decltype(d)> d64;
        decltype(hn::Zero(d64)) acc64[C];
        for (int c = 0; c < C; ++c) acc64[c] = hn::Zero(d64);
        while (vectorPixels - x >= lanes) {
            V acc[C];
            for (int c = 0; c < C; ++c) acc[c] = hn::Zero(d);
            for (int i = 0; i < 255 && vectorPixels - x >= lanes; ++i, x += lanes) {
                V v[C];
                LoadPixels<C>(d, row + x * C, v);
                for (int c = 0; c < C; ++c) {
                    const auto inside = hn::Eq(hn::Min(hn::Max(v[c], loV[c]), hiV[c]), v[c]);
                    acc[c] = hn::Sub(acc[c], hn::VecFromMask(d, inside));
                }
            }
            for (int c = 0; c < C; ++c) acc64[c] = hn::Add(acc64[c], hn::SumsOf8(acc[c]));
        }
        for (int c = 0; c < computed; ++c) count[c] += LaneSum(d64, acc64[c]);
    } else {
        const hn::RebindToUnsigned<decltype(d)> du;
        const hn::Repartition<std::uint64_t, decltype(d)> d64;
        decltype(hn::Zero(du)) acc[C];
        for (int c = 0; c < C; ++c) acc[c] = hn::Zero(du);
        for (; vectorPixels - x >= lanes; x += lanes) {
            V v[C];
            LoadPixels<C>(d, row + x * C, v);
            for (int c = 0; c < C; ++c) {
                const auto inside = hn::And(hn::Le(loV[c], v[c]), hn::Le(v[c], hiV[c]));
                acc[c] = hn::Sub(acc[c], hn::BitCast(du, hn::VecFromMask(d, inside)));
            }
        }
        for (int c = 0; c < computed; ++c) {
            const auto w = hn::BitCast(d64, acc[c]);
            const auto low32 = hn::Set(d64, 0xFFFFFFFFull);
            count[c] += LaneSum(d64, hn::Add(hn::And(w, low32), hn::ShiftRight<32>(w)));
        }
    }
    for (; x < pixels; ++x)
        for (int c = 0; c < computed; ++c) {
            const T v = row[x * C + c];
            count[c] += (lo[c] <= v && v <= hi[c]) ? 1 : 0;
        }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "stats/stats.h"

namespace zel {
namespace {

template <class T, Layout L>
ZelStatus countInRange(const T* pSrc, int srcStep, ZeliSize roi, int* counts, const T* lower, const T* upper) {
    constexpr int C = kChannels<L>, N = kComputed<L>;
    bool crossed = false;
    if (Check().ptrs(pSrc, counts, lower, upper).failed()) return zelStatusNullPtr;
    for (int c = 0; c < N; ++c) crossed = crossed || upper[c] < lower[c];
    if (ZelStatus st = Check().steps(srcStep).roi(roi).that(!crossed, zelStatusBadRange)) return st;
    StandardFpEnvironment environment;  // denormal values compare as themselves
    using U = std::conditional_t<std::is_same_v<T, float>, float, std::uint8_t>;
    const auto kernel = ZEL_DISPATCH(CountRow<U, C>);
    struct Slot {
        std::uint64_t count[4];
    } total{};
    const int team = reductionTeam(roi.height, std::int64_t{roi.width} * C * sizeof(T));
    const bool ok = reduceRows(
        roi.height, team, total,
        [&](Slot& s, std::ptrdiff_t y) {
            kernel(reinterpret_cast<const U*>(rowAt(pSrc, srcStep, y)), roi.width, N,
                   reinterpret_cast<const U*>(lower), reinterpret_cast<const U*>(upper), s.count);
        },
        [](Slot& t, const Slot& s) {
            for (int c = 0; c < 4; ++c) t.count[c] += s.count[c];
        });
    if (!ok) return zelStatusNoMemory;
    for (int c = 0; c < N; ++c) counts[c] = static_cast<int>(static_cast<std::uint32_t>(total.count[c]));
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_COUNT_C1(type)                                                                                \
    ZelStatus zeliCountInRange_##type##_C1R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize, int* counts, \
                                            Zel##type lowerBound, Zel##type upperBound) {                   \
        return zel::countInRange<Zel##type, zel::Layout::C1>(pSrc, srcStep, roiSize, counts, &lowerBound,     \
                                                             &upperBound);                                   \
    }
#define ZELI_COUNT(type, layout)                                                                             \
    ZelStatus zeliCountInRange_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,     \
                                                    int counts[3], const Zel##type lowerBound[3],             \
                                                    const Zel##type upperBound[3]) {                          \
        return zel::countInRange<Zel##type, zel::Layout::layout>(pSrc, srcStep, roiSize, counts, lowerBound,  \
                                                                 upperBound);                                \
    }

ZELI_COUNT_C1(8u)
ZELI_COUNT(8u, C3)
ZELI_COUNT(8u, AC4)
ZELI_COUNT_C1(32f)
ZELI_COUNT(32f, C3)
ZELI_COUNT(32f, AC4)

#endif  // HWY_ONCE
