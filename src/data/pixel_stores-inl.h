// Stores of some channels of whole pixels that write no other byte.
// Per-target header (include it after hwy/highway.h inside
// HWY_BEFORE_NAMESPACE, like Highway's own -inl files).
//
// Where the target has a masked store for the lane size, StoreUnderMask
// writes the channels of a vector of pixels at once. Elsewhere it would
// store lane by lane; writing each pixel's run of channels with one or two
// scalar moves (CopyPixelChannels, CopySelectedPixels) does the same with
// fewer stores.
#if defined(ZEL_DATA_PIXEL_STORES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_DATA_PIXEL_STORES_INL_H_
#undef ZEL_DATA_PIXEL_STORES_INL_H_
#else
#define ZEL_DATA_PIXEL_STORES_INL_H_
#endif

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/store_under_mask-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {

// Copies `Count` adjacent elements of each of `pixels` pixels of C
// elements, from element `first` on.
template <int C, int Count, class B>
HWY_INLINE void CopyRuns(const B* from, B* to, std::ptrdiff_t pixels, int first) {
    for (std::ptrdiff_t i = 0; i < pixels; ++i) std::memcpy(to + i * C + first, from + i * C + first, Count * sizeof(B));
}

// Copies channels [first, first + count) (count 1..4) of every one of
// `pixels` pixels of C elements. The run length is a constant inside the
// loop, so each pixel is one or two moves.
template <int C, class B>
HWY_INLINE void CopyPixelChannels(const B* from, B* to, std::ptrdiff_t pixels, int first, int count) {
    switch (count) {
        case 1: CopyRuns<C, 1>(from, to, pixels, first); break;
        case 2: CopyRuns<C, 2>(from, to, pixels, first); break;
        case 3: CopyRuns<C, 3>(from, to, pixels, first); break;
        default: CopyRuns<C, 4>(from, to, pixels, first); break;
    }
}

// The same for the pixels i whose bit is set in `selected`, channels
// [0, Count); the bytes of the other pixels are not touched.
template <int C, int Count, class B>
HWY_INLINE void CopySelectedPixels(const B* from, B* to, std::uint64_t selected) {
    while (selected != 0) {
        const int i = __builtin_ctzll(selected);
        std::memcpy(to + i * C, from + i * C, Count * sizeof(B));
        selected &= selected - 1;
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_DATA_PIXEL_STORES_INL_H_
