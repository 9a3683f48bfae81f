// Sum: the sum of each channel over the ROI.
//
// Integer channels are added exactly: 8u through SumsOf8 into 64-bit lanes,
// 16u through pairs added into 32-bit lanes that are moved into 64-bit lanes
// before they could overflow, 16s as 16u with the sign bit flipped (the
// wrapper takes 32768 per value off again). Channels are split with
// interleaved loads, so C1, C3 and C4 share the code and AC4 is C4 whose
// fourth channel is dropped (and whose last alpha is never read).
//
// 32f follows the accuracy hint. The fast path adds each row in four
// single-precision lanes per channel, lanes following the 16-byte alignment
// of the element's address: 128-bit vectors on every target, so the bits do
// not depend on the processor. The accurate path keeps double totals for
// even and odd columns. Both keep their totals per block of 16 rows
// (reduceRows) and add the blocks in order.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/sum.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/image.h"
#include "stats/channels-inl.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Adds channels 0..computed-1 of a row of `pixels` pixels of C channels
// into total[]. T is uint8_t or uint16_t; every value is XORed with `flip`
// first. With computed < C the last pixel's other channels are not read.
template <class T, int C>
void SumRowInt(const T* HWY_RESTRICT row, std::ptrdiff_t pixels, int computed, T flip,
               std::uint64_t* HWY_RESTRICT total) {
    const hn::ScalableTag<T> d;
    const hn::Repartition<std::uint64_t, decltype(d)> d64;
    using V = decltype(hn::Zero(d));
    using V64 = decltype(hn::Zero(d64));
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const std::ptrdiff_t vectorPixels = computed < C ? pixels - 1 : pixels;
    const V flipV = hn::Set(d, flip);
    V64 acc64[C];
    for (int c = 0; c < C; ++c) acc64[c] = hn::Zero(d64);
    std::ptrdiff_t x = 0;
    if constexpr (sizeof(T) == 1) {
        for (; vectorPixels - x >= lanes; x += lanes) {
            V v[C];
            LoadPixels<C>(d, row + x * C, v);
            for (int c = 0; c < C; ++c) acc64[c] = hn::Add(acc64[c], hn::SumsOf8(v[c]));  // 8u is never flipped
        }
    } else {
        const hn::Repartition<std::uint32_t, decltype(d)> d32;
        using V32 = decltype(hn::Zero(d32));
        const V32 low16 = hn::Set(d32, 0xFFFFu);
        const V64 low32 = hn::Set(d64, 0xFFFFFFFFull);
        // A 32-bit lane gains at most 2 x 65535 per vector.
        constexpr std::ptrdiff_t kChunk = 32767;
        while (vectorPixels - x >= lanes) {
            V32 acc32[C];
            for (int c = 0; c < C; ++c) acc32[c] = hn::Zero(d32);
            for (std::ptrdiff_t i = 0; i < kChunk && vectorPixels - x >= lanes; ++i, x += lanes) {
                V v[C];
                LoadPixels<C>(d, row + x * C, v);
                for (int c = 0; c < C; ++c) {
                    const V32 w = hn::BitCast(d32, hn::Xor(v[c], flipV));
                    acc32[c] = hn::Add(acc32[c], hn::Add(hn::And(w, low16), hn::ShiftRight<16>(w)));
                }
            }
            for (int c = 0; c < C; ++c) {
                const V64 w = hn::BitCast(d64, acc32[c]);
                acc64[c] = hn::Add(acc64[c], hn::Add(hn::And(w, low32), hn::ShiftRight<32>(w)));
            }
        }
    }
    for (int c = 0; c < computed; ++c) total[c] += LaneSum(d64, acc64[c]);
    for (; x < pixels; ++x)
        for (int c = 0; c < computed; ++c) total[c] += static_cast<T>(row[x * C + c] ^ flip);
}

// The fast 32f rule: element k of a row (k counts channels, n of them)
// goes to lane (address / 4) mod 4; a period of P elements (4, or 12 for
// C3) holds every (channel, lane) pair once, and slot s of the period
// accumulates its elements in order. Each channel's row sum is its lanes
// added in lane order, in single precision; row sums are added to total[]
// in double, in row order. A lane is one chain of dependent additions, so
// several rows are worked side by side to keep the adder busy; each row's
// bits are those of the row alone.
template <int C>
void SumRows32f(const float* HWY_RESTRICT base, int step, std::ptrdiff_t rows, std::ptrdiff_t pixels, int computed,
                double* HWY_RESTRICT total) {
    constexpr std::ptrdiff_t P = C == 3 ? 12 : 4, V = P / 4;
    // Rows worked side by side: eight chains of one vector, or four of three.
    constexpr std::ptrdiff_t G = C == 3 ? 4 : 8;
    const hn::Full128<float> d4;
    using VF = decltype(hn::Zero(d4));
    const std::ptrdiff_t n = pixels * C;
    // The last pixel of an AC4 row is added without its alpha.
    const std::ptrdiff_t body = computed < C ? n - C : n;
    auto skip = [&](std::ptrdiff_t k) { return computed < C && k % C == C - 1; };
    for (std::ptrdiff_t r0 = 0; r0 < rows; r0 += G) {
        const std::ptrdiff_t g = std::min<std::ptrdiff_t>(G, rows - r0);
        const float* row[G];
        std::ptrdiff_t a[G], h[G], k[G];
        HWY_ALIGN float slot[G][P] = {};
        for (std::ptrdiff_t i = 0; i < g; ++i) {
            row[i] = rowAt(base, step, r0 + i);
            a[i] = static_cast<std::ptrdiff_t>((reinterpret_cast<std::uintptr_t>(row[i]) >> 2) & 3);
            h[i] = std::min<std::ptrdiff_t>(n, (4 - a[i]) & 3);
            for (k[i] = 0; k[i] < h[i]; ++k[i])
                if (!skip(k[i])) slot[i][k[i] - h[i] + P] += row[i][k[i]];
        }
        // Whole periods: the G rows together as far as all have them,
        // then each row alone.
        auto periods = [&](std::ptrdiff_t i) { return body - k[i] >= P ? (body - k[i]) / P : 0; };
        std::ptrdiff_t together = 0;
        if (g == G) {
            together = periods(0);
            for (std::ptrdiff_t i = 1; i < G; ++i) together = std::min(together, periods(i));
        }
        if (together > 0) {
            VF acc[G][V];
            const float* p[G];
            for (int i = 0; i < G; ++i) {
                p[i] = row[i] + k[i];
                for (std::ptrdiff_t j = 0; j < V; ++j) acc[i][j] = hn::Load(d4, slot[i] + 4 * j);
            }
            for (std::ptrdiff_t t = 0; t < together; ++t)
                for (int i = 0; i < G; ++i) {
                    for (std::ptrdiff_t j = 0; j < V; ++j) acc[i][j] = hn::Add(acc[i][j], hn::LoadU(d4, p[i] + 4 * j));
                    p[i] += P;
                }
            for (int i = 0; i < G; ++i) {
                for (std::ptrdiff_t j = 0; j < V; ++j) hn::Store(acc[i][j], d4, slot[i] + 4 * j);
                k[i] += together * P;
            }
        }
        for (std::ptrdiff_t i = 0; i < g; ++i) {
            if (periods(i) > 0) {
                VF acc[V];
                for (std::ptrdiff_t j = 0; j < V; ++j) acc[j] = hn::Load(d4, slot[i] + 4 * j);
                for (; body - k[i] >= P; k[i] += P)
                    for (std::ptrdiff_t j = 0; j < V; ++j) acc[j] = hn::Add(acc[j], hn::LoadU(d4, row[i] + k[i] + 4 * j));
                for (std::ptrdiff_t j = 0; j < V; ++j) hn::Store(acc[j], d4, slot[i] + 4 * j);
            }
            for (; k[i] < n; ++k[i])
                if (!skip(k[i])) slot[i][(k[i] - h[i]) % P] += row[i][k[i]];
            for (int c = 0; c < computed; ++c) {
                // Slot s holds channel (h + s) mod C in lane (s + h + a) mod 4;
                // lanes a channel does not reach stay +0, as untouched slots
                // do (no slot can hold -0).
                float lane[4] = {0.f, 0.f, 0.f, 0.f};
                for (std::ptrdiff_t s = ((c - h[i]) % C + C) % C; s < P; s += C) lane[(s + h[i] + a[i]) % 4] = slot[i][s];
                total[c] += static_cast<double>(((lane[0] + lane[1]) + lane[2]) + lane[3]);
            }
        }
    }
}

// The accurate 32f rule for one row: run[e] for e < 2C is the running
// double total of channel e mod C over the even (e < C) or odd columns.
template <int C>
void SumRowHigh(const float* HWY_RESTRICT row, std::ptrdiff_t pixels, int computed, double* HWY_RESTRICT run) {
    const hn::Full128<double> d2;
    const hn::Rebind<float, decltype(d2)> df;
    const std::ptrdiff_t vectorPixels = computed < C ? pixels - 1 : pixels;
    std::ptrdiff_t x = 0;
    if (vectorPixels >= 2) {
        decltype(hn::Zero(d2)) acc[C];
        for (int j = 0; j < C; ++j) acc[j] = hn::LoadU(d2, run + 2 * j);
        for (; vectorPixels - x >= 2; x += 2)
            for (int j = 0; j < C; ++j)
                acc[j] = hn::Add(acc[j], hn::PromoteTo(d2, hn::LoadU(df, row + x * C + 2 * j)));
        for (int j = 0; j < C; ++j) hn::StoreU(acc[j], d2, run + 2 * j);
    }
    for (; x < pixels; ++x)
        for (int c = 0; c < computed; ++c) run[(x & 1) * C + c] += static_cast<double>(row[x * C + c]);
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
ZelStatus sumInt(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pSum) {
    if (ZelStatus st = Check().ptrs(pSrc, pSum).roi(roi)) return st;
    constexpr int C = kChannels<L>;
    constexpr bool kSigned = std::is_signed_v<T>;
    using U = std::make_unsigned_t<T>;
    const U flip = kSigned ? U(1u << (8 * sizeof(T) - 1)) : U(0);
    const auto kernel = ZEL_DISPATCH(SumRowInt<U, C>);
    struct Slot {
        std::uint64_t sum[4];
    } total{};
    const int team = reductionTeam(roi.height, std::int64_t{roi.width} * C * sizeof(T));
    const bool ok = reduceRows(
        roi.height, team, total,
        [&](Slot& s, std::ptrdiff_t y) {
            kernel(reinterpret_cast<const U*>(rowAt(pSrc, srcStep, y)), roi.width, kComputed<L>, flip, s.sum);
        },
        [](Slot& t, const Slot& s) {
            for (int c = 0; c < 4; ++c) t.sum[c] += s.sum[c];
        });
    if (!ok) return zelStatusNoMemory;
    StandardFpEnvironment environment;  // sums beyond 2^53 round to nearest
    const std::uint64_t offset = std::uint64_t{flip} * std::uint64_t(roi.width) * std::uint64_t(roi.height);
    for (int c = 0; c < kComputed<L>; ++c)
        pSum[c] = kSigned ? static_cast<double>(static_cast<std::int64_t>(total.sum[c] - offset))
                          : static_cast<double>(total.sum[c]);
    return zelStatusOk;
}

template <Layout L>
ZelStatus sum32f(const Zel32f* pSrc, int srcStep, ZeliSize roi, Zel64f* pSum, ZelAccuracyHint hint) {
    if (ZelStatus st = Check().ptrs(pSrc, pSum).roi(roi)) return st;
    constexpr int C = kChannels<L>;
    StandardFpEnvironment environment;
    const int team = reductionTeam(roi.height, std::int64_t{roi.width} * C * 4);
    struct Slot {
        double v[8];
    } total{};
    auto add = [](Slot& t, const Slot& s) {
        for (int i = 0; i < 8; ++i) t.v[i] += s.v[i];
    };
    bool ok;
    if (hint == zelAccuracyHigh) {
        const auto kernel = ZEL_DISPATCH(SumRowHigh<C>);
        ok = reduceRows(
            roi.height, team, total,
            [&](Slot& s, std::ptrdiff_t y) { kernel(rowAt(pSrc, srcStep, y), roi.width, kComputed<L>, s.v); }, add);
        if (ok)
            for (int c = 0; c < kComputed<L>; ++c) total.v[c] = total.v[C + c] + total.v[c];
    } else {
        // The kernel takes a slot's rows at once, at its first row.
        const auto kernel = ZEL_DISPATCH(SumRows32f<C>);
        ok = reduceRows(
            roi.height, team, total,
            [&](Slot& s, std::ptrdiff_t y) {
                if (y % kRowsPerSlot != 0) return;
                const std::ptrdiff_t rows = std::min<std::ptrdiff_t>(kRowsPerSlot, roi.height - y);
                kernel(rowAt(pSrc, srcStep, y), srcStep, rows, roi.width, kComputed<L>, s.v);
            },
            add);
    }
    if (!ok) return zelStatusNoMemory;
    for (int c = 0; c < kComputed<L>; ++c) pSum[c] = total.v[c];
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_SUM_INT(type, layout)                                                                    \
    ZelStatus zeliSum_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,       \
                                           Zel64f* pSum) {                                             \
        return zel::sumInt<Zel##type, zel::Layout::layout>(pSrc, srcStep, roiSize, pSum);              \
    }
#define ZELI_SUM_32F(layout)                                                                          \
    ZelStatus zeliSum_32f_##layout##R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum,  \
                                      ZelAccuracyHint hint) {                                          \
        return zel::sum32f<zel::Layout::layout>(pSrc, srcStep, roiSize, pSum, hint);                   \
    }
#define ZELI_SUM_LAYOUTS(type) \
    ZELI_SUM_INT(type, C1) ZELI_SUM_INT(type, C3) ZELI_SUM_INT(type, C4) ZELI_SUM_INT(type, AC4)

ZELI_SUM_LAYOUTS(8u)
ZELI_SUM_LAYOUTS(16u)
ZELI_SUM_LAYOUTS(16s)
ZELI_SUM_32F(C1)
ZELI_SUM_32F(C3)
ZELI_SUM_32F(C4)
ZELI_SUM_32F(AC4)

#endif  // HWY_ONCE
