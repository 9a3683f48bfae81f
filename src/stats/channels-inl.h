// Per-target helpers of the statistics kernels: loading whole pixels split
// into one vector per channel, and adding the lanes of a vector.
// Per-target header (include it after hwy/highway.h, like Highway's own
// -inl files).
#if defined(ZEL_STATS_CHANNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_STATS_CHANNELS_INL_H_
#undef ZEL_STATS_CHANNELS_INL_H_
#else
#define ZEL_STATS_CHANNELS_INL_H_
#endif

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Loads Lanes(d) pixels of C interleaved channels from p: v[c] holds
// channel c of every pixel, in pixel order.
template <int C, class D, class V>
HWY_INLINE void LoadChannels(D d, const hn::TFromD<D>* HWY_RESTRICT p, V* v) {
    if constexpr (C == 1) {
        v[0] = hn::LoadU(d, p);
    } else if constexpr (C == 3) {
        hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
    } else {
        hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
    }
}

// The sum of the lanes of a vector of 64-bit counters.
template <class D, class V>
HWY_INLINE std::uint64_t LaneSum(D d, V v) {
    HWY_ALIGN std::uint64_t lanes[hn::MaxLanes(d)];
    hn::Store(v, d, lanes);
    std::uint64_t total = 0;
    for (std::size_t i = 0; i < hn::Lanes(d); ++i) total += lanes[i];
    return total;
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_STATS_CHANNELS_INL_H_
