// MinIndx, MaxIndx: the extreme of each channel and its first position in
// row-major order. Rows are scanned from the top (row_extremes-inl.h gives
// a row's extremes); a row takes a channel over only when its extreme is
// strictly better, so the recorded row is the first that holds the
// extreme, and that row is searched from the left at the end. Threads take
// blocks of 16 rows with a slot each; the slots are combined in order with
// the same strict rule. Once every channel of a block has reached the
// type's bound no later row can win, so the block stops and later blocks
// are skipped.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/minmax_indx.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "stats/row_extremes-inl.h"

#if HWY_ONCE

#include <atomic>
#include <cfloat>

#include "core/checks.h"
#include "core/image.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "stats/stats.h"

namespace zel {
namespace {

template <class T, Layout L, bool kMax>
ZelStatus extremeIndex(const T* pSrc, int srcStep, ZeliSize roi, T* pValue, int* pIndexX, int* pIndexY) {
    if (ZelStatus st = Check().ptrs(pSrc, pValue, pIndexX, pIndexY).roi(roi)) return st;
    using K = KeyOf<T>;
    constexpr int C = kChannels<L>, N = kComputed<L>;
    constexpr K kNone = kMax ? kNoMax<T> : kNoMin<T>;
    const auto kernel = ZEL_DISPATCH(RowExtremes<T, C>);
    const K bound = boundKey<T, kMax>();
    auto better = [](K a, K b) { return kMax ? a > b : a < b; };
    struct Slot {
        K best[4] = {kNone, kNone, kNone, kNone};
        std::ptrdiff_t row[4] = {0, 0, 0, 0};
        bool done = false;
    };
    // The 32f C1 maximum starts from -FLT_MAX in row 0, the others from
    // nothing (the first pixel, which row 0 always matches or beats).
    Slot total;
    if constexpr (kMax && C == 1 && std::is_same_v<T, float>) total.best[0] = floatKey(-FLT_MAX);
    std::atomic<std::ptrdiff_t> firstDone{PTRDIFF_MAX};
    const int team = reductionTeam(roi.height, std::int64_t{roi.width} * C * sizeof(T));
    const bool ok = reduceRows(
        roi.height, team, total,
        [&](Slot& s, std::ptrdiff_t y) {
            const std::ptrdiff_t block = y / kRowsPerSlot;
            if (s.done || block > firstDone.load(std::memory_order_relaxed)) return;
            K mn[4] = {kNoMin<T>, kNoMin<T>, kNoMin<T>, kNoMin<T>};
            K mx[4] = {kNoMax<T>, kNoMax<T>, kNoMax<T>, kNoMax<T>};
            kernel(rowAt(pSrc, srcStep, y), srcStep, 1, roi.width, N, mn, mx);
            bool all = true;
            for (int c = 0; c < N; ++c) {
                const K v = kMax ? mx[c] : mn[c];
                if (better(v, s.best[c])) {
                    s.best[c] = v;
                    s.row[c] = y;
                }
                all = all && s.best[c] == bound;
            }
            if (all) {
                s.done = true;
                std::ptrdiff_t seen = firstDone.load(std::memory_order_relaxed);
                while (block < seen && !firstDone.compare_exchange_weak(seen, block, std::memory_order_relaxed)) {
                }
            }
        },
        [&](Slot& t, const Slot& s) {
            for (int c = 0; c < N; ++c)
                if (better(s.best[c], t.best[c])) {
                    t.best[c] = s.best[c];
                    t.row[c] = s.row[c];
                }
        });
    if (!ok) return zelStatusNoMemory;
    for (int c = 0; c < N; ++c) {
        const T* row = rowAt(pSrc, srcStep, total.row[c]);
        std::ptrdiff_t x = 0;
        if (total.best[c] != kNone) {
            while (x < roi.width && !(row[x * C + c] == row[x * C + c] && keyOf(row[x * C + c]) == total.best[c])) ++x;
            if (x == roi.width) x = 0;  // only the 32f C1 maximum's start value is never found
        }
        pValue[c] = reported<T>(total.best[c], total.best[c] == kNone);
        pIndexX[c] = static_cast<int>(x);
        pIndexY[c] = static_cast<int>(total.row[c]);
    }
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_INDX(type, layout)                                                                              \
    ZelStatus zeliMinIndx_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,          \
                                               Zel##type* pMin, int* pIndexX, int* pIndexY) {                 \
        return zel::extremeIndex<Zel##type, zel::Layout::layout, false>(pSrc, srcStep, roiSize, pMin, pIndexX, \
                                                                        pIndexY);                             \
    }                                                                                                         \
    ZelStatus zeliMaxIndx_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,          \
                                               Zel##type* pMax, int* pIndexX, int* pIndexY) {                 \
        return zel::extremeIndex<Zel##type, zel::Layout::layout, true>(pSrc, srcStep, roiSize, pMax, pIndexX,  \
                                                                       pIndexY);                              \
    }
#define ZELI_INDX_LAYOUTS(type) ZELI_INDX(type, C1) ZELI_INDX(type, C3) ZELI_INDX(type, C4) ZELI_INDX(type, AC4)

ZELI_INDX_LAYOUTS(8u)
ZELI_INDX_LAYOUTS(16u)
ZELI_INDX_LAYOUTS(16s)
ZELI_INDX_LAYOUTS(32f)

#endif  // HWY_ONCE
