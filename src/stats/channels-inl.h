// Per-target helpers of the statistics kernels: adding the lanes of a
// vector (whole pixels are loaded by LoadPixels of core/interleaved-inl.h).
// Per-target header (include it after hwy/highway.h, like Highway's own
// -inl files).
#if defined(ZEL_STATS_CHANNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_STATS_CHANNELS_INL_H_
#undef ZEL_STATS_CHANNELS_INL_H_
#else
#define ZEL_STATS_CHANNELS_INL_H_
#endif

#include <hwy/highway.h>

#include "core/interleaved-inl.h"

#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

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
