// Per-target kernels of the fixed-kernel filters (included by each filter
// file inside its Highway target loop). See fixed_kernels.h for the two
// kernel shapes.
//
// A block kernel computes rows [0, rows) of a block of destination rows,
// elements [begin, end) of rows of n elements (pixels times channels). The
// neighbour of element x in the next or previous column is x + channels or
// x - channels, so one kernel serves every interleaved layout; AC4
// destinations leave every fourth element out of the stores. Sources are
// read only where the kernel reaches: r rows above and below, r pixels left
// and right, and never the alpha element of an AC4 row's last pixel.
//
// Symmetric 5x5 kernels keep each source row's three row profiles in a
// ring of five rows. Separable kernels run the column pass into a scratch row of column values
// (one chunk of the row at a time, so scratch stays small and in the first
// level cache) and the row pass from it. Integer lanes hold every value
// exactly: 16-bit lanes for 8-bit sources, 32-bit lanes for 16-bit ones and
// for the 8-bit Gauss 5x5 sums. The last partial vector of a pass runs the
// same code on one-lane vectors.
#if defined(ZEL_FILTER_TWO_PASS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_FILTER_TWO_PASS_INL_H_
#undef ZEL_FILTER_TWO_PASS_INL_H_
#else
#define ZEL_FILTER_TWO_PASS_INL_H_
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/image.h"
#include "core/store_under_mask-inl.h"
#include "filter/fixed_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace filter_detail {

using filter::Finish;

// w * x, and acc + w * x; small weights are additions.
template <int W, class D, class V>
HWY_INLINE V Weighted(D d, V x) {
    if constexpr (W == 1) return x;
    else if constexpr (W == -1) return hn::Neg(x);
    else if constexpr (W == 2) return hn::Add(x, x);
    else return hn::Mul(x, hn::Set(d, static_cast<hn::TFromD<D>>(W)));
}
template <int W, class D, class V>
HWY_INLINE V AddWeighted(D d, V acc, V x) {
    if constexpr (W == 1) return hn::Add(acc, x);
    else if constexpr (W == -1) return hn::Sub(acc, x);
    else if constexpr (W == 2) return hn::Add(acc, hn::Add(x, x));
    else if constexpr (W == -2) return hn::Sub(acc, hn::Add(x, x));
    else return hn::Add(acc, hn::Mul(x, hn::Set(d, static_cast<hn::TFromD<D>>(W))));
}

template <class Tp, std::size_t K, class D, class Load, class V>
HWY_INLINE V AddTapsFrom(D d, const Load& load, V acc) {
    if constexpr (K == Tp::kCount) {
        return acc;
    } else if constexpr (Tp::kWeights[K] == 0) {
        return AddTapsFrom<Tp, K + 1>(d, load, acc);
    } else {
        return AddTapsFrom<Tp, K + 1>(d, load, AddWeighted<Tp::kWeights[K]>(d, acc, load(K)));
    }
}

// A symmetric kernel adds each pair of mirrored inputs before weighting it.
template <class Tp, std::size_t K, class Load>
HWY_INLINE auto MirroredPair(const Load& load) {
    constexpr std::size_t kMirror = Tp::kCount - 1 - K;
    if constexpr (K == kMirror) return load(K);
    else return hn::Add(load(K), load(kMirror));
}
template <class Tp, std::size_t K, class D, class Load, class V>
HWY_INLINE V AddPairsFrom(D d, const Load& load, V acc) {
    if constexpr (K > Tp::kCount - 1 - K) {
        return acc;
    } else if constexpr (Tp::kWeights[K] == 0) {
        return AddPairsFrom<Tp, K + 1>(d, load, acc);
    } else {
        return AddPairsFrom<Tp, K + 1>(d, load, AddWeighted<Tp::kWeights[K]>(d, acc, MirroredPair<Tp, K>(load)));
    }
}

// The taps' weighted sum of load(0) .. load(count - 1), starting from the
// first non-zero tap's product and adding the others in tap order; the
// inputs of a symmetric kernel are added in mirrored pairs first. The
// order is fixed, so 32f sums carry the same bits on every target.
template <class Tp, class D, class Load>
HWY_INLINE hn::VFromD<D> SumTaps(D d, const Load& load) {
    constexpr std::size_t kFirst = Tp::firstNonZero();
    static_assert(kFirst < Tp::kCount, "a kernel with no weight");
    constexpr int kWeight = Tp::kWeights[kFirst];
    if constexpr (Tp::symmetric()) {
        return AddPairsFrom<Tp, kFirst + 1>(d, load, Weighted<kWeight>(d, MirroredPair<Tp, kFirst>(load)));
    } else {
        return AddTapsFrom<Tp, kFirst + 1>(d, load, Weighted<kWeight>(d, load(kFirst)));
    }
}

// Elements of S at p, in the lanes of d.
template <class D, class S>
HWY_INLINE hn::VFromD<D> LoadAs(D d, const S* p) {
    if constexpr (std::is_same_v<hn::TFromD<D>, S>) {
        return hn::LoadU(d, p);
    } else {
        const hn::Rebind<S, D> ds;
        return hn::PromoteTo(d, hn::LoadU(ds, p));
    }
}

// v narrowed to the destination's lanes, saturated to its range (clamped
// in the wide lanes first: not every target's narrowing saturates).
template <class DD, class V>
HWY_INLINE hn::VFromD<DD> SaturateTo(DD dd, V v) {
    using A = hn::TFromV<V>;
    using T = hn::TFromD<DD>;
    if constexpr (std::is_same_v<A, T>) {
        return v;
    } else {
        const hn::Rebind<A, DD> da;
        v = hn::Min(hn::Max(v, hn::Set(da, A(std::numeric_limits<T>::lowest()))),
                    hn::Set(da, A(std::numeric_limits<T>::max())));
        return hn::DemoteTo(dd, v);
    }
}

// v / 2^k rounded to nearest, ties to even (arithmetic shift: negative
// values round the same way).
template <int K, class V>
HWY_INLINE V ShiftRoundEven(V v) {
    const hn::DFromV<V> d;
    using A = hn::TFromV<V>;
    const V odd = hn::And(hn::ShiftRight<K>(v), hn::Set(d, A(1)));
    return hn::ShiftRight<K>(hn::Add(hn::Add(v, hn::Set(d, A((1 << (K - 1)) - 1))), odd));
}

// v / Divisor rounded to nearest, exactly, for any 32-bit v; Divisor odd,
// so there are no ties. The single-precision quotient is within one of
// floor((v + Divisor / 2) / Divisor) and the remainder corrects it.
template <int Divisor, class V>
HWY_INLINE V DivideNearest(V v) {
    static_assert(Divisor % 2 == 1, "ties would need a rule");
    const hn::DFromV<V> di;
    const hn::Rebind<float, decltype(di)> df;
    const V n = hn::Add(v, hn::Set(di, Divisor / 2));
    const auto approx = hn::Floor(hn::Mul(hn::ConvertTo(df, n), hn::Set(df, 1.0f / Divisor)));
    V q = hn::ConvertTo(di, approx);
    const V r = hn::Sub(n, hn::Mul(q, hn::Set(di, Divisor)));
    q = hn::IfThenElse(hn::Lt(r, hn::Zero(di)), hn::Sub(q, hn::Set(di, 1)), q);
    return hn::IfThenElse(hn::Gt(r, hn::Set(di, Divisor - 1)), hn::Add(q, hn::Set(di, 1)), q);
}

// floor((s + bias) * multiplier / 2^shift) is s / divisor rounded to
// nearest for every s in 0..maxSum: the 16-bit fixed-point means of 8-bit
// sums.
constexpr bool fixedPointMeanExact(int divisor, int bias, int multiplier, int shift, int maxSum) {
    for (long s = 0; s <= maxSum; ++s)
        if (((s + bias) * multiplier >> shift) != (2 * s + divisor) / (2 * divisor)) return false;
    return true;
}
static_assert(fixedPointMeanExact(9, 5, 7281, 16, 9 * 255) && fixedPointMeanExact(25, 12, 10486, 18, 25 * 255),
              "a fixed-point mean is not exact");

// The float nearest to 1 / divisor, as the 32f members scale by it.
inline float FloatBits(std::uint32_t bits) {
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}
template <Finish F>
inline float FloatScale() {
    switch (F) {
        case Finish::Gauss16: return 0.0625f;
        case Finish::Sharpen8: return 0.125f;
        case Finish::Mean9: return FloatBits(0x3DE38E39);
        case Finish::Mean25: return FloatBits(0x3D23D70A);
        case Finish::Gauss571: return FloatBits(0x3AE58C54);
        default: return 1.0f;
    }
}

// The kernel value v (lanes of DA) as destination values (lanes of DD).
template <Finish F, class DA, class DD>
HWY_INLINE hn::VFromD<DD> FinishTo(DA da, DD dd, hn::VFromD<DA> v) {
    using A = hn::TFromD<DA>;
    using T = hn::TFromD<DD>;
    if constexpr (hwy::IsFloat<A>()) {
        if constexpr (F == Finish::Exact || F == Finish::Clamp) return v;
        else return hn::Mul(v, hn::Set(da, FloatScale<F>()));
    } else if constexpr (F == Finish::Exact || F == Finish::Clamp) {
        return SaturateTo(dd, v);
    } else if constexpr (F == Finish::Gauss16) {
        return SaturateTo(dd, ShiftRoundEven<4>(v));
    } else if constexpr (F == Finish::Sharpen8) {
        if constexpr (!std::is_signed_v<T>) v = hn::Max(v, hn::Zero(da));
        return SaturateTo(dd, ShiftRoundEven<3>(v));
    } else if constexpr ((F == Finish::Mean9 || F == Finish::Mean25) && sizeof(A) == 2) {
        // 8-bit sums (S9 <= 2295, S25 <= 6375): fixed-point reciprocals,
        // exact over those ranges (fixedPointMeanExact).
        const hn::RebindToUnsigned<DA> du;
        if constexpr (F == Finish::Mean9) {
            const auto q = hn::MulHigh(hn::BitCast(du, hn::Add(v, hn::Set(da, A(5)))), hn::Set(du, 7281));
            return SaturateTo(dd, hn::BitCast(da, q));
        } else {
            const auto q = hn::MulHigh(hn::BitCast(du, hn::Add(v, hn::Set(da, A(12)))), hn::Set(du, 10486));
            return SaturateTo(dd, hn::BitCast(da, hn::ShiftRight<2>(q)));
        }
    } else if constexpr (F == Finish::Mean9) {
        return SaturateTo(dd, DivideNearest<9>(v));
    } else if constexpr (F == Finish::Mean25) {
        return SaturateTo(dd, DivideNearest<25>(v));
    } else {
        static_assert(F == Finish::Gauss571);
        if constexpr (std::is_same_v<T, std::uint16_t>) {
            return SaturateTo(dd, DivideNearest<571>(v));
        } else {
            const hn::Rebind<float, DA> df;
            const auto scaled = hn::Mul(hn::ConvertTo(df, v), hn::Set(df, FloatScale<Finish::Gauss571>()));
            return SaturateTo(dd, hn::NearestInt(scaled));
        }
    }
}

// Stores v at p, leaving out the alpha lanes when KeepAlpha: `write` marks
// the lanes to store; every vector starts on a pixel boundary.
template <bool KeepAlpha, class DD, class M>
HWY_INLINE void StoreOut(hn::VFromD<DD> v, DD dd, const M& write, hn::TFromD<DD>* p) {
    if constexpr (KeepAlpha) StoreUnderMask(v, write, dd, p);
    else hn::StoreU(v, dd, p);
}

// The lanes of a vector that do not hold an alpha element, for vectors that
// start on a pixel boundary of four-channel pixels.
template <class DD>
HWY_INLINE auto ColourLanes(DD dd) {
    const hn::RebindToUnsigned<DD> du;
    using U = hn::TFromD<decltype(du)>;
    const auto colour = hn::Ne(hn::And(hn::Iota(du, 0), hn::Set(du, U(3))), hn::Set(du, U(3)));
    return hn::And(hn::RebindMask(dd, colour), hn::FirstN(dd, hn::Lanes(dd)));
}

}  // namespace filter_detail

// Separable kernel K on a block; scratch holds kChunk + 2 r channels lanes
// of column values.
template <class K, class S, class D, bool KeepAlpha>
void SeparableBlock(const void* srcBlock, std::ptrdiff_t srcStep, void* dstBlock, std::ptrdiff_t dstStep,
                    std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n,
                    int channels, void* scratch) {
    using namespace filter_detail;
    using A = filter::AccumulatorOf<K, S>;
    constexpr int R = K::kRadius;
    const hn::ScalableTag<A> da;
    const hn::Rebind<D, decltype(da)> dd;
    const hn::CappedTag<A, 1> da1;
    const hn::Rebind<D, decltype(da1)> dd1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
    const std::ptrdiff_t reach = std::ptrdiff_t{R} * channels;
    const auto write = ColourLanes(dd);
    const auto write1 = ColourLanes(dd1);
    A* mid = static_cast<A*>(scratch);
    const S* src = static_cast<const S*>(srcBlock);
    D* dst = static_cast<D*>(dstBlock);

    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const S* in[2 * R + 1];
        for (int k = 0; k <= 2 * R; ++k) in[k] = rowAt(src, srcStep, y - R + k);
        D* out = rowAt(dst, dstStep, y);
        for (std::ptrdiff_t x0 = begin; x0 < end; x0 += std::min(end - x0, filter::kChunk)) {
            const std::ptrdiff_t x1 = x0 + std::min(end - x0, filter::kChunk);
            // Column values for elements [lo, hi); mid[i - lo].
            const std::ptrdiff_t lo = x0 - reach;
            const std::ptrdiff_t hi = x1 + reach - (KeepAlpha && x1 == n ? 1 : 0);
            auto column = [&](auto d, std::ptrdiff_t i) {
                hn::StoreU(SumTaps<typename K::ColumnTaps>(d, [&](std::size_t k) { return LoadAs(d, in[k] + i); }),
                           d, mid + (i - lo));
            };
            std::ptrdiff_t i = lo;
            for (; hi - i >= N; i += N) column(da, i);
            for (; i < hi; ++i) column(da1, i);

            auto row = [&](auto d, auto dOut, const auto& writeMask, std::ptrdiff_t x) {
                const A* m = mid + (x - lo) - reach;
                auto v = SumTaps<typename K::RowTaps>(d, [&](std::size_t k) {
                    return hn::LoadU(d, m + static_cast<std::ptrdiff_t>(k) * channels);
                });
                if constexpr (K::kCentre != 0) v = hn::Add(Weighted<K::kCentre>(d, LoadAs(d, in[R] + x)), v);
                StoreOut<KeepAlpha>(FinishTo<K::kFinish>(d, dOut, v), dOut, writeMask, out + x);
            };
            std::ptrdiff_t x = x0;
            for (; x1 - x >= N; x += N) row(da, dd, write, x);
            for (; x < x1; ++x)
                if (!KeepAlpha || x % 4 != 3) row(da1, dd1, write1, x);
        }
    }
}

// Symmetric 5x5 kernel K on a block. Every source row's three horizontal
// profiles (the kernel's rows for |dy| = 2, 1 and 0) are computed once, into
// a ring of the five rows the current output row needs; the output row adds
// the five matching profiles from the top row down. The block is worked in
// strips of kRingChunk elements so that the ring stays in the first-level
// cache; each strip starts its ring afresh.
template <class K, class S, class D, bool KeepAlpha>
void Symmetric5Block(const void* srcBlock, std::ptrdiff_t srcStep, void* dstBlock, std::ptrdiff_t dstStep,
                     std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n,
                     int channels, void* scratch) {
    using namespace filter_detail;
    using A = filter::AccumulatorOf<K, S>;
    using P = filter::ProfileLaneOf<K, S>;
    const hn::ScalableTag<A> da;
    const hn::Rebind<D, decltype(da)> dd;
    const hn::CappedTag<A, 1> da1;
    const hn::Rebind<D, decltype(da1)> dd1;
    // Profiles fill whole vectors of their own lanes.
    const hn::ScalableTag<P> dp;
    const hn::CappedTag<P, 1> dp1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
    const std::ptrdiff_t NP = static_cast<std::ptrdiff_t>(hn::Lanes(dp));
    const auto write = ColourLanes(dd);
    const auto write1 = ColourLanes(dd1);
    const S* src = static_cast<const S*>(srcBlock);
    D* dst = static_cast<D*>(dstBlock);
    P* ring = static_cast<P*>(scratch);
    constexpr std::ptrdiff_t kStrip = filter::kRingChunk;
    // profile(slot, which): one profile row of the ring.
    auto profile = [&](std::ptrdiff_t slot, int which) { return ring + (slot * 3 + which) * kStrip; };

    for (std::ptrdiff_t x0 = begin; x0 < end; x0 += std::min(end - x0, kStrip)) {
        const std::ptrdiff_t x1 = x0 + std::min(end - x0, kStrip);
        // Vectors stop before an AC4 row's last alpha element, whose right
        // neighbours lie past the last byte the caller provides.
        const std::ptrdiff_t vectorEnd = KeepAlpha && x1 == n ? x1 - 1 : x1;

        // The three profiles of source row y (relative to the block) into
        // ring slot `slot`.
        auto profiles = [&](std::ptrdiff_t y, std::ptrdiff_t slot) {
            const S* in = rowAt(src, srcStep, y) - 2 * std::ptrdiff_t{channels};
            P* outer = profile(slot, 0);
            P* inner = profile(slot, 1);
            P* middle = profile(slot, 2);
            auto at = [&](auto d, std::ptrdiff_t x) {
                // The five pixels are loaded once for the three profiles
                // (the stores in between would otherwise force reloads).
                const hn::VFromD<decltype(d)> pixels[5] = {
                    LoadAs(d, in + x), LoadAs(d, in + x + channels), LoadAs(d, in + x + 2 * std::ptrdiff_t{channels}),
                    LoadAs(d, in + x + 3 * std::ptrdiff_t{channels}), LoadAs(d, in + x + 4 * std::ptrdiff_t{channels})};
                auto load = [&](std::size_t t) { return pixels[t]; };
                const auto o = SumTaps<typename K::OuterTaps>(d, load);
                const auto i = SumTaps<typename K::InnerTaps>(d, load);
                const auto m = SumTaps<typename K::MiddleTaps>(d, load);
                hn::StoreU(o, d, outer + (x - x0));
                hn::StoreU(i, d, inner + (x - x0));
                hn::StoreU(m, d, middle + (x - x0));
            };
            std::ptrdiff_t x = x0;
            for (; vectorEnd - x >= NP; x += NP) at(dp, x);
            for (; x < x1; ++x)
                if (!KeepAlpha || x % 4 != 3) at(dp1, x);
        };
        for (std::ptrdiff_t k = 0; k < 4; ++k) profiles(k - 2, k);

        for (std::ptrdiff_t y = 0; y < rows; ++y) {
            profiles(y + 2, (y + 4) % 5);
            const P* p[5] = {profile(y % 5, 0), profile((y + 1) % 5, 1), profile((y + 2) % 5, 2),
                             profile((y + 3) % 5, 1), profile((y + 4) % 5, 0)};
            D* out = rowAt(dst, dstStep, y);
            auto pixel = [&](auto d, auto dOut, const auto& writeMask, std::ptrdiff_t x) {
                hn::VFromD<decltype(d)> v;
                if constexpr (std::is_same_v<P, A>) {
                    v = hn::LoadU(d, p[0] + (x - x0));
                    for (int k = 1; k < 5; ++k) v = hn::Add(v, hn::LoadU(d, p[k] + (x - x0)));
                } else {
                    // Narrow integer profiles: the mirrored rows' sums still
                    // fit the profile lanes, so three widenings instead of five.
                    const hn::Rebind<P, decltype(d)> dq;
                    auto load = [&](int k) { return hn::LoadU(dq, p[k] + (x - x0)); };
                    v = hn::Add(hn::PromoteTo(d, hn::Add(load(0), load(4))),
                                hn::PromoteTo(d, hn::Add(load(1), load(3))));
                    v = hn::Add(v, hn::PromoteTo(d, load(2)));
                }
                StoreOut<KeepAlpha>(FinishTo<K::kFinish>(d, dOut, v), dOut, writeMask, out + x);
            };
            std::ptrdiff_t x = x0;
            for (; x1 - x >= N; x += N) pixel(da, dd, write, x);
            for (; x < x1; ++x)
                if (!KeepAlpha || x % 4 != 3) pixel(da1, dd1, write1, x);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_FILTER_TWO_PASS_INL_H_
