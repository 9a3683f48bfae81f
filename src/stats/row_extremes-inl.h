// Per-target kernel shared by Min/Max/MinMax and MinIndx/MaxIndx: the
// smallest and largest key of each channel of a row (stats.h: the value
// for integer types, an order-preserving integer for 32f, whose NaNs are
// skipped). Per-target header.
#if defined(ZEL_STATS_ROW_EXTREMES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_STATS_ROW_EXTREMES_INL_H_
#undef ZEL_STATS_ROW_EXTREMES_INL_H_
#else
#define ZEL_STATS_ROW_EXTREMES_INL_H_
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/image.h"
#include "stats/channels-inl.h"
#include "stats/stats.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Lowers mn[c] and raises mx[c] to the extreme keys of channels
// 0..computed-1 of `rows` rows (from base, `step` bytes apart) of `pixels`
// pixels of C channels. With computed < C the last pixel's other channels
// are not read. The vector lanes are folded once, after the last row.
template <class T, int C>
void RowExtremes(const T* base, int step, std::ptrdiff_t rows, std::ptrdiff_t pixels, int computed,
                 KeyOf<T>* HWY_RESTRICT mn, KeyOf<T>* HWY_RESTRICT mx) {
    using K = KeyOf<T>;
    const hn::ScalableTag<T> d;
    const hn::RebindToSigned<decltype(d)> di;
    const hn::Rebind<K, decltype(d)> dk;
    using V = decltype(hn::Zero(d));
    using VK = decltype(hn::Zero(dk));
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const std::ptrdiff_t vectorPixels = computed < C ? pixels - 1 : pixels;
    const std::ptrdiff_t vectorEnd = vectorPixels - vectorPixels % lanes;
    if (vectorEnd > 0) {
        VK lo[C], hi[C];
        for (int c = 0; c < C; ++c) {
            lo[c] = hn::Set(dk, kNoMin<T>);
            hi[c] = hn::Set(dk, kNoMax<T>);
        }
        for (std::ptrdiff_t y = 0; y < rows; ++y) {
            const T* HWY_RESTRICT row = rowAt(base, step, y);
            for (std::ptrdiff_t x = 0; x < vectorEnd; x += lanes) {
                V v[C];
                LoadPixels<C>(d, row + x * C, v);
                for (int c = 0; c < C; ++c) {
                    if constexpr (std::is_same_v<T, float>) {
                        const auto bits = hn::BitCast(di, v[c]);
                        const auto key =
                            hn::Xor(bits, hn::And(hn::ShiftRight<31>(bits), hn::Set(di, 0x7FFFFFFF)));
                        const auto nan = hn::RebindMask(di, hn::IsNaN(v[c]));
                        lo[c] = hn::Min(lo[c], hn::IfThenElse(nan, hn::Set(di, kNoMin<T>), key));
                        hi[c] = hn::Max(hi[c], hn::IfThenElse(nan, hn::Set(di, kNoMax<T>), key));
                    } else {
                        lo[c] = hn::Min(lo[c], v[c]);
                        hi[c] = hn::Max(hi[c], v[c]);
                    }
                }
            }
        }
        // Lanes are folded in scalar code: not every target reduces 8-bit lanes.
        HWY_ALIGN K lanesLo[hn::MaxLanes(dk)], lanesHi[hn::MaxLanes(dk)];
        for (int c = 0; c < computed; ++c) {
            hn::Store(lo[c], dk, lanesLo);
            hn::Store(hi[c], dk, lanesHi);
            for (std::ptrdiff_t i = 0; i < lanes; ++i) {
                mn[c] = std::min(mn[c], lanesLo[i]);
                mx[c] = std::max(mx[c], lanesHi[i]);
            }
        }
    }
    for (std::ptrdiff_t y = 0; y < rows && vectorEnd < pixels; ++y) {
        const T* HWY_RESTRICT row = rowAt(base, step, y);
        for (std::ptrdiff_t x = vectorEnd; x < pixels; ++x)
            for (int c = 0; c < computed; ++c) {
                const T v = row[x * C + c];
                if constexpr (std::is_same_v<T, float>) {
                    if (v != v) continue;
                }
                const K key = keyOf(v);
                mn[c] = std::min(mn[c], key);
                mx[c] = std::max(mx[c], key);
            }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_STATS_ROW_EXTREMES_INL_H_
