// Per-target block kernels of the user-kernel filters (see linear_filter.h).
//
// Every destination vector sums its taps in one fixed order: the first tap's
// product, then each further product added, kernel row by kernel row. Four
// vectors side by side and two destination rows per pass keep independent
// additions in flight and let the rows share their loads; the remainder runs
// one vector, then one lane, at a time with the same arithmetic. The block
// is worked in strips of columns whose source rows stay in the first-level
// cache. Integer sources are converted once per row into a ring of kh + 1
// rows of accumulator lanes (each row then serves every output row that
// needs it); float data, the rounding-mode members and strided windows read
// the source at every tap (direct plans). A row of AC4 pixels is never read
// at its last alpha element.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/linear_kernels.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/image.h"
#include "core/store_under_mask-inl.h"
#include "filter/linear_filter.h"
#include "filter/two_pass-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace linear_detail {

using filter::linear::Out;
using filter::linear::Params;

// Elements of S at p in the lanes of da (integers widened exactly).
template <class DA, class S>
HWY_INLINE hn::VFromD<DA> LoadAs(DA da, const S* p) {
    using A = hn::TFromD<DA>;
    if constexpr (std::is_same_v<A, S>) {
        return hn::LoadU(da, p);
    } else {
        const hn::Rebind<S, DA> ds;
        const hn::Rebind<std::int32_t, DA> di;
        const auto wide = hn::PromoteTo(di, hn::LoadU(ds, p));
        if constexpr (std::is_same_v<A, std::int32_t>) return wide;
        else if constexpr (std::is_same_v<A, float>) return hn::ConvertTo(da, wide);
        else return hn::PromoteTo(da, wide);
    }
}

// Lanes of a vector starting at element x that are not the alpha element
// of an AC4 pixel.
template <class DD>
HWY_INLINE auto AlphaFree(DD dd, std::ptrdiff_t x) {
    const hn::RebindToUnsigned<DD> du;
    using U = hn::TFromD<decltype(du)>;
    const auto index = hn::Add(hn::Iota(du, 0), hn::Set(du, static_cast<U>(x & 3)));
    const auto colour = hn::RebindMask(dd, hn::Ne(hn::And(index, hn::Set(du, U(3))), hn::Set(du, U(3))));
    // Partial vectors: AVX-512's masked stores see the register's upper
    // lanes too, so the mask must not select them.
    return hn::And(colour, hn::FirstN(dd, hn::Lanes(dd)));
}

template <bool KeepAlpha, class DD>
HWY_INLINE void Store(hn::VFromD<DD> v, DD dd, hn::TFromD<DD>* out, std::ptrdiff_t x) {
    if constexpr (KeepAlpha) StoreUnderMask(v, AlphaFree(dd, x), dd, out + x);
    else hn::StoreU(v, dd, out + x);
}

// 32-bit lanes clamped to the range of T and narrowed (the fixed filters'
// saturation).
template <class DD, class V>
HWY_INLINE hn::VFromD<DD> Narrow(DD dd, V v) {
    return filter_detail::SaturateTo(dd, v);
}

// A float or double value clamped to one beyond the range of T (so that
// the integer conversion cannot overflow; saturation follows).
template <class T, class V>
HWY_INLINE V ClampFor(V v) {
    const hn::DFromV<V> d;
    using F = hn::TFromV<V>;
    return hn::Max(hn::Min(v, hn::Set(d, F(double(std::numeric_limits<T>::max()) + 1))),
                   hn::Set(d, F(double(std::numeric_limits<T>::lowest()) - 1)));
}

// Rounding modes 0 (toward zero), 1 (nearest, ties to even), 2 (nearest,
// ties away from zero) of a float or double value.
template <class V>
HWY_INLINE V RoundBy(int mode, V v) {
    const hn::DFromV<V> d;
    using F = hn::TFromV<V>;
    if (mode == 0) return hn::Trunc(v);
    const V even = hn::Round(v);
    if (mode == 1) return even;
    const V t = hn::Trunc(v);
    const auto tie = hn::Eq(hn::Abs(hn::Sub(v, t)), hn::Set(d, F(0.5)));
    return hn::IfThenElse(tie, hn::Add(t, hn::CopySign(hn::Set(d, F(1)), v)), even);
}

// The accumulated value v (lanes of DA) as destination values.
template <Out O, class DA, class DD>
HWY_INLINE hn::VFromD<DD> Finish(const Params& p, DA da, DD dd, hn::VFromD<DA> v) {
    using A = hn::TFromD<DA>;
    using T = hn::TFromD<DD>;
    if constexpr (O == Out::Same) {
        return v;
    } else if constexpr (O == Out::Divide) {
        if (p.division == 0) return Narrow(dd, v);
        if (p.division == 1) {
            // (S >> n) + ((S mod 2^n) + 2^(n-1) - 1 + bit n of S) >> n:
            // ties to even, without overflow.
            const int n = p.shift;
            const auto q = hn::ShiftRightSame(v, n);
            const auto odd = hn::And(q, hn::Set(da, 1));
            const auto low = hn::And(v, hn::Set(da, static_cast<A>((std::uint32_t{1} << n) - 1)));
            const auto bump = hn::Add(hn::Add(low, hn::Set(da, static_cast<A>((std::uint32_t{1} << (n - 1)) - 1))), odd);
            return Narrow(dd, hn::Add(q, hn::ShiftRightSame(bump, n)));
        }
        const hn::Rebind<float, DA> df;
        const auto q = hn::Mul(hn::ConvertTo(df, v), hn::Set(df, p.reciprocal));
        return Narrow(dd, hn::NearestInt(ClampFor<T>(q)));
    } else if constexpr (O == Out::Nearest) {
        return Narrow(dd, hn::NearestInt(ClampFor<T>(v)));
    } else {
        static_assert(O == Out::Round);
        if constexpr (std::is_same_v<A, double>) {
            if (p.divisor != 1.0) v = hn::Div(v, hn::Set(da, p.divisor));
            const hn::Rebind<std::int32_t, DA> di;
            return Narrow(dd, hn::DemoteTo(di, ClampFor<T>(RoundBy(p.division, v))));
        } else {
            return Narrow(dd, hn::NearestInt(ClampFor<T>(RoundBy(p.division, v))));
        }
    }
}

// Sums M vectors of each of R destination rows that lie on top of each
// other: window row r (from rowAt(r), elements of E positioned at the first
// output element) serves kernel row r - j of destination row j. Each row's
// taps still come in kernel order, so its bits are those of a row summed
// alone; the rows share their loads.
template <int M, int R, class DA, class E, class RowAt>
HWY_INLINE void SumWindow(DA da, const Params& p, const RowAt& rowAt, hn::VFromD<DA> (&acc)[R][M]) {
    using A = hn::TFromD<DA>;
    const A* taps = static_cast<const A*>(p.taps);
    const std::ptrdiff_t step = p.tapStep, C = p.channels;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
    for (std::ptrdiff_t r = 0; r < p.kh + R - 1; ++r) {
        const E* row = rowAt(r);
        for (std::ptrdiff_t v = 0; v < p.kw; ++v) {
            hn::VFromD<DA> x[M];
            for (int m = 0; m < M; ++m) x[m] = LoadAs(da, row + v * C + m * N);
            for (int j = 0; j < R; ++j) {
                const std::ptrdiff_t u = r - j;
                if (u < 0 || u >= p.kh) continue;
                const auto k = hn::Set(da, taps[(u * p.kw + v) * step]);
                if (u == 0 && v == 0) {
                    for (int m = 0; m < M; ++m) acc[j][m] = hn::Mul(k, x[m]);
                } else {
                    for (int m = 0; m < M; ++m) acc[j][m] = hn::Add(acc[j][m], hn::Mul(k, x[m]));
                }
            }
        }
    }
}

// R destination rows (out[j] is row j), elements [x0, x1): rowAt(r, x)
// addresses element x of window row r.
template <int R, class S, class A, class D, Out O, bool KeepAlpha, class E, class RowAt>
HWY_INLINE void FilterRows(const Params& p, const RowAt& rowAt, D* const (&out)[R], std::ptrdiff_t x0,
                           std::ptrdiff_t x1) {
    const hn::ScalableTag<A> da;
    const hn::Rebind<D, decltype(da)> dd;
    const hn::CappedTag<A, 1> da1;
    const hn::Rebind<D, decltype(da1)> dd1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
    // Vectors stop before an AC4 row's last alpha element: its window would
    // reach past the last byte of the source row.
    const std::ptrdiff_t vectorEnd = KeepAlpha && x1 == p.n ? x1 - 1 : x1;
    std::ptrdiff_t x = x0;
    for (; vectorEnd - x >= 4 * N; x += 4 * N) {
        hn::VFromD<decltype(da)> acc[R][4];
        SumWindow<4, R, decltype(da), E>(da, p, [&](std::ptrdiff_t r) { return rowAt(r, x); }, acc);
        for (int j = 0; j < R; ++j)
            for (int m = 0; m < 4; ++m) Store<KeepAlpha>(Finish<O>(p, da, dd, acc[j][m]), dd, out[j], x + m * N);
    }
    for (; vectorEnd - x >= N; x += N) {
        hn::VFromD<decltype(da)> acc[R][1];
        SumWindow<1, R, decltype(da), E>(da, p, [&](std::ptrdiff_t r) { return rowAt(r, x); }, acc);
        for (int j = 0; j < R; ++j) Store<KeepAlpha>(Finish<O>(p, da, dd, acc[j][0]), dd, out[j], x);
    }
    for (; x < x1; ++x) {
        if (KeepAlpha && x % 4 == 3) continue;
        hn::VFromD<decltype(da1)> acc[R][1];
        SumWindow<1, R, decltype(da1), E>(da1, p, [&](std::ptrdiff_t r) { return rowAt(r, x); }, acc);
        for (int j = 0; j < R; ++j) hn::StoreU(Finish<O>(p, da1, dd1, acc[j][0]), dd1, out[j] + x);
    }
}

// Destination rows y and y + 1 (two) or row y alone; returns the rows done.
template <class S, class A, class D, Out O, bool KeepAlpha, class E, class RowAt, class OutRow>
HWY_INLINE std::ptrdiff_t PassRows(const Params& p, const RowAt& rowAt, const OutRow& outRow, std::ptrdiff_t y,
                                   bool two, std::ptrdiff_t x0, std::ptrdiff_t x1) {
    if (two) {
        D* const out[2] = {outRow(y), outRow(y + 1)};
        FilterRows<2, S, A, D, O, KeepAlpha, E>(p, rowAt, out, x0, x1);
        return 2;
    }
    D* const out[1] = {outRow(y)};
    FilterRows<1, S, A, D, O, KeepAlpha, E>(p, rowAt, out, x0, x1);
    return 1;
}

// Elements [lo, hi) of a source row converted into accumulator lanes at
// ring[0 ..); `skipLast` leaves the last element (an AC4 row's last alpha)
// unread and zero.
template <class S, class A>
HWY_INLINE void ConvertRow(const S* row, A* ring, std::ptrdiff_t lo, std::ptrdiff_t hi, bool skipLast) {
    const hn::ScalableTag<A> da;
    const hn::CappedTag<A, 1> da1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
    const std::ptrdiff_t end = skipLast ? hi - 1 : hi;
    std::ptrdiff_t i = lo;
    for (; end - i >= N; i += N) hn::StoreU(LoadAs(da, row + i), da, ring + (i - lo));
    for (; i < end; ++i) hn::StoreU(LoadAs(da1, row + i), da1, ring + (i - lo));
    if (skipLast) ring[end - lo] = A(0);
}

}  // namespace linear_detail

template <class S, class A, class D, filter::linear::Out O, bool KeepAlpha>
void LinearBlock(const filter::linear::Params& p, std::ptrdiff_t y0, std::ptrdiff_t y1, std::ptrdiff_t begin,
                 std::ptrdiff_t end, void* scratch) {
    using namespace linear_detail;
    const std::ptrdiff_t C = p.channels;
    const std::ptrdiff_t reach = (p.kw - 1) * C;  // elements a window reaches right of its output element
    auto outRow = [&](std::ptrdiff_t y) { return byteOffset(static_cast<D*>(p.dst), y * p.dstStep); };
    if (p.direct || std::is_same_v<S, A>) {
        // Strips of `chunk` elements down the block, two destination rows at
        // a time: the source rows of a strip stay in the first-level cache
        // for the next rows.
        for (std::ptrdiff_t x0 = begin; x0 < end; x0 += std::min(end - x0, p.chunk)) {
            const std::ptrdiff_t x1 = x0 + std::min(end - x0, p.chunk);
            for (std::ptrdiff_t y = y0; y < y1;) {
                const S* origin = byteOffset(static_cast<const S*>(p.src), y * p.srcAdvance);
                auto rowAt = [&](std::ptrdiff_t r, std::ptrdiff_t x) { return byteOffset(origin, r * p.srcStep) + x; };
                // The two rows the next pass adds to the window, on their way
                // to the cache while this pass computes.
                if (y + 2 < y1 && p.srcAdvance == p.srcStep)
                    for (std::ptrdiff_t r = p.kh + 1; r <= p.kh + 2; ++r) {
                        const char* from = reinterpret_cast<const char*>(rowAt(r, x0));
                        const char* to = reinterpret_cast<const char*>(rowAt(r, x1 + reach));
                        for (; from < to; from += 64) hwy::Prefetch(from);
                    }
                y += PassRows<S, A, D, O, KeepAlpha, S>(p, rowAt, outRow, y,
                                                       y1 - y >= 2 && p.srcAdvance == p.srcStep, x0, x1);
            }
        }
        return;
    }
    // Ring of kh + 1 converted rows per strip of `chunk` elements; row r of
    // the source (relative to the block's first window) sits in slot
    // r mod (kh + 1).
    A* ring = static_cast<A*>(scratch);
    const std::ptrdiff_t width = p.chunk + reach, slots = p.kh + 1;
    for (std::ptrdiff_t x0 = begin; x0 < end; x0 += std::min(end - x0, p.chunk)) {
        const std::ptrdiff_t x1 = x0 + std::min(end - x0, p.chunk);
        const bool skipLast = KeepAlpha && x1 == p.n;
        auto convert = [&](std::ptrdiff_t r) {
            const S* row = byteOffset(static_cast<const S*>(p.src), y0 * p.srcAdvance + r * p.srcStep);
            ConvertRow(row, ring + (r % slots) * width, x0, x1 + reach, skipLast);
        };
        for (std::ptrdiff_t r = 0; r + 1 < p.kh; ++r) convert(r);
        for (std::ptrdiff_t y = y0; y < y1;) {
            const std::ptrdiff_t first = y - y0;  // the window's top row
            const std::ptrdiff_t slot0 = first % slots;
            auto rowAt = [&](std::ptrdiff_t r, std::ptrdiff_t x) {
                std::ptrdiff_t slot = slot0 + r;
                if (slot >= slots) slot -= slots;
                return ring + slot * width + (x - x0);
            };
            const bool two = y1 - y >= 2;
            convert(first + p.kh - 1);
            if (two) convert(first + p.kh);
            y += PassRows<S, A, D, O, KeepAlpha, A>(p, rowAt, outRow, y, two, x0, x1);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "core/simd.h"

namespace zel::filter::linear {

template <class S, class A, class D, Out O, bool KeepAlpha>
Kernel kernelFor() {
    return ZEL_DISPATCH(LinearBlock<S, A, D, O, KeepAlpha>);
}

// The combinations the members use, each with and without AC4 stores.
#define ZEL_LINEAR_KERNEL(S, A, D, O)                       \
    template Kernel kernelFor<S, A, D, Out::O, false>();    \
    template Kernel kernelFor<S, A, D, Out::O, true>();
ZEL_LINEAR_KERNEL(Zel8u, std::int32_t, Zel8u, Divide)
ZEL_LINEAR_KERNEL(Zel16s, std::int32_t, Zel16s, Divide)
ZEL_LINEAR_KERNEL(Zel8u, float, Zel8u, Nearest)
ZEL_LINEAR_KERNEL(Zel16s, float, Zel16s, Nearest)
ZEL_LINEAR_KERNEL(Zel16u, float, Zel16u, Nearest)
ZEL_LINEAR_KERNEL(Zel32f, float, Zel32f, Same)
ZEL_LINEAR_KERNEL(Zel8u, float, Zel8u, Round)
ZEL_LINEAR_KERNEL(Zel16s, float, Zel16s, Round)
ZEL_LINEAR_KERNEL(Zel16u, float, Zel16u, Round)
ZEL_LINEAR_KERNEL(Zel8u, double, Zel8u, Round)
ZEL_LINEAR_KERNEL(Zel16s, double, Zel16s, Round)
ZEL_LINEAR_KERNEL(Zel16u, double, Zel16u, Round)
template Kernel kernelFor<Zel64f, double, Zel64f, Out::Same, false>();
#undef ZEL_LINEAR_KERNEL

}  // namespace zel::filter::linear

#endif  // HWY_ONCE
