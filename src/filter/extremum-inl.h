// Per-target window kernels of the minimum and maximum filters and of
// morphology (included by extremum.cpp inside its Highway target loop).
//
// Rectangles are separable: a column pass takes the extremum of the window's
// rows for every column the destination row reaches (a scratch row of
// column values, one chunk of the row at a time), and a row pass takes the
// extremum of `width` column values `channels` elements apart.
// - Column pass: up to kDirectRows rows are combined one by one. Higher
//   windows use van Herk / Gil-Werman segments: the source rows are cut
//   into segments of `height` rows; for every row the extremum from it to
//   its segment's end (suffix) and from its segment's start to it (prefix)
//   are kept, and a window, which spans at most two segments, is the
//   extremum of one suffix and one prefix: three operations per element
//   whatever the height.
// - Row pass: up to kDirectColumns values are combined one by one; wider
//   windows double the span of the scratch row in place (1, 2, 4, ... pixels)
//   and take the extremum of two overlapping spans.
// Other masks are runs of members in mask rows; each member is one vector
// load, combined without any select.
//
// Every element is combined in the same order by every target, thread and
// block (segments are aligned on the ROI's rows), so 32f results carry the
// same bits everywhere even where -0 and +0 meet. AC4 destinations leave
// the alpha elements out of the stores, and no source element beyond the
// last colour element of a row's last window pixel is read.
#if defined(ZEL_FILTER_EXTREMUM_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_FILTER_EXTREMUM_INL_H_
#undef ZEL_FILTER_EXTREMUM_INL_H_
#else
#define ZEL_FILTER_EXTREMUM_INL_H_
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "core/image.h"
#include "filter/two_pass-inl.h"
#include "filter/window.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace extremum_detail {

template <bool IsMax, class V>
HWY_INLINE V Ext(V a, V b) {
    if constexpr (IsMax) return hn::Max(a, b);
    else return hn::Min(a, b);
}

// out[i] = body(d, i) for i in [0, count): whole vectors, then one lane at
// a time.
template <class T, class Body>
HWY_INLINE void ForLanes(std::ptrdiff_t count, const Body& body) {
    const hn::ScalableTag<T> d;
    const hn::CappedTag<T, 1> d1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    std::ptrdiff_t i = 0;
    for (; count - i >= N; i += N) body(d, i);
    for (; i < count; ++i) body(d1, i);
}

// Destination elements [x0, x1) of a row: body(d, x) gives the vector for
// x, whole vectors up to vectorEnd, then one lane at a time; AC4 rows keep
// their alpha elements.
template <class T, bool KeepAlpha, class Body>
HWY_INLINE void StoreRow(T* out, std::ptrdiff_t x0, std::ptrdiff_t vectorEnd, std::ptrdiff_t x1,
                         const Body& body) {
    using filter_detail::ColourLanes;
    using filter_detail::StoreOut;
    const hn::ScalableTag<T> d;
    const hn::CappedTag<T, 1> d1;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const auto write = ColourLanes(d);
    const auto write1 = ColourLanes(d1);
    std::ptrdiff_t x = x0;
    for (; vectorEnd - x >= N; x += N) StoreOut<KeepAlpha>(body(d, x), d, write, out + x);
    for (; x < x1; ++x)
        if (!KeepAlpha || x % 4 != 3) StoreOut<KeepAlpha>(body(d1, x), d1, write1, out + x);
}

}  // namespace extremum_detail

// Rectangle of window.width x window.height pixels. Scratch: the column
// values (chunk + reach elements) and, for low windows, a second row of
// them, for high windows a prefix row and two segments of suffix rows.
template <class T, bool IsMax, bool KeepAlpha>
void RectBlock(const void* srcBlock, std::ptrdiff_t srcStep, void* dstBlock, std::ptrdiff_t dstStep,
               std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n, int channels,
               void* scratch, const filter::Window& window, std::ptrdiff_t firstRow) {
    using namespace extremum_detail;
    const std::ptrdiff_t W = window.width, H = window.height, C = channels;
    const std::ptrdiff_t reach = (W - 1) * C;
    const std::ptrdiff_t stride = window.chunk + reach;
    T* column = static_cast<T*>(scratch);
    T* prefix = column + stride;
    T* suffix[2] = {prefix + stride, prefix + stride + H * stride};
    const T* src = static_cast<const T*>(srcBlock);
    T* dst = static_cast<T*>(dstBlock);
    const std::ptrdiff_t R = rows + H - 1;  // source rows of the block

    for (std::ptrdiff_t x0 = begin; x0 < end; x0 += std::min(end - x0, window.chunk)) {
        const std::ptrdiff_t x1 = x0 + std::min(end - x0, window.chunk);
        // Column values of elements [x0, x0 + full); the alpha element of an
        // AC4 row's last window pixel is not read (it may not exist) and
        // reads as 0.
        const std::ptrdiff_t full = x1 - x0 + reach;
        const std::ptrdiff_t count = full - (KeepAlpha && x1 == n ? 1 : 0);
        if (count < full) column[count] = T(0);
        auto in = [&](std::ptrdiff_t r) { return rowAt(src, srcStep, r) + x0; };

        // The row pass from the column values to destination row y.
        auto rowPass = [&](std::ptrdiff_t y, T* values) {
            T* out = rowAt(dst, dstStep, y);
            const T* m = values - x0;
            if (W <= filter::kDirectColumns) {
                StoreRow<T, KeepAlpha>(out, x0, x1, x1, [&](auto d, std::ptrdiff_t x) {
                    auto v = hn::LoadU(d, m + x);
                    for (std::ptrdiff_t k = 1; k < W; ++k) v = Ext<IsMax>(v, hn::LoadU(d, m + x + k * C));
                    return v;
                });
                return;
            }
            // Spans of 2, 4, ... pixels in place: after the level of span s,
            // values[i] is the extremum of s pixels from i on.
            std::ptrdiff_t span = 1, valid = full;
            for (; 2 * span <= W; span *= 2) {
                valid -= span * C;
                const std::ptrdiff_t shift = span * C;
                ForLanes<T>(valid, [&](auto d, std::ptrdiff_t i) {
                    hn::StoreU(Ext<IsMax>(hn::LoadU(d, values + i), hn::LoadU(d, values + i + shift)), d,
                               values + i);
                });
            }
            const std::ptrdiff_t last = (W - span) * C;
            StoreRow<T, KeepAlpha>(out, x0, x1, x1, [&](auto d, std::ptrdiff_t x) {
                return Ext<IsMax>(hn::LoadU(d, m + x), hn::LoadU(d, m + x + last));
            });
        };

        if (H <= filter::kDirectRows) {
            // Rows in pairs from even rows of the ROI: both windows share
            // rows y + 1 .. y + H - 1, whose extremum S is taken once; the
            // even row is ext(row y, S), the odd one ext(S, row y + H). A row
            // without its partner takes the same order, so every value is
            // combined alike whichever band computes it.
            T* second = prefix;
            for (std::ptrdiff_t y = 0; y < rows;) {
                const T* r[filter::kDirectRows + 1];
                const bool even = (firstRow + y) % 2 == 0;
                if (H >= 2 && even && rows - y >= 2) {
                    for (std::ptrdiff_t k = 0; k <= H; ++k) r[k] = in(y + k);
                    ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                        auto shared = hn::LoadU(d, r[1] + i);
                        for (std::ptrdiff_t k = 2; k < H; ++k) shared = Ext<IsMax>(shared, hn::LoadU(d, r[k] + i));
                        hn::StoreU(Ext<IsMax>(hn::LoadU(d, r[0] + i), shared), d, column + i);
                        hn::StoreU(Ext<IsMax>(shared, hn::LoadU(d, r[H] + i)), d, second + i);
                    });
                    if (count < full) second[count] = T(0);
                    rowPass(y, column);
                    rowPass(y + 1, second);
                    y += 2;
                    continue;
                }
                for (std::ptrdiff_t k = 0; k < H; ++k) r[k] = in(y + k);
                ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                    hn::VFromD<decltype(d)> v;
                    if (H == 1) {
                        v = hn::LoadU(d, r[0] + i);
                    } else if (even) {
                        auto shared = hn::LoadU(d, r[1] + i);
                        for (std::ptrdiff_t k = 2; k < H; ++k) shared = Ext<IsMax>(shared, hn::LoadU(d, r[k] + i));
                        v = Ext<IsMax>(hn::LoadU(d, r[0] + i), shared);
                    } else {
                        auto shared = hn::LoadU(d, r[0] + i);
                        for (std::ptrdiff_t k = 1; k < H - 1; ++k) shared = Ext<IsMax>(shared, hn::LoadU(d, r[k] + i));
                        v = Ext<IsMax>(shared, hn::LoadU(d, r[H - 1] + i));
                    }
                    hn::StoreU(v, d, column + i);
                });
                rowPass(y, column);
                ++y;
            }
            continue;
        }

        // Segments of H rows, aligned on multiples of H from the ROI's first
        // row; segment k covers block rows [s, s + H).
        std::ptrdiff_t s = -(firstRow % H);
        for (int k = 0; s < R; s += H, ++k) {
            const std::ptrdiff_t a = std::max<std::ptrdiff_t>(s, 0), e = std::min(s + H, R);
            // Suffixes, for the windows that start in this segment.
            T* S = suffix[k & 1];
            const std::ptrdiff_t needed = std::min(e, rows);
            if (a < needed) {
                // A window starting here ends in the next segment, so the
                // segment is whole (e == s + H).
                T* next = nullptr;
                for (std::ptrdiff_t r = e - 1; r >= a; --r) {
                    T* here = S + (r - s) * stride;
                    const T* row = in(r);
                    if (next == nullptr) {
                        std::memcpy(here, row, sizeof(T) * count);
                    } else {
                        ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                            hn::StoreU(Ext<IsMax>(hn::LoadU(d, row + i), hn::LoadU(d, next + i)), d, here + i);
                        });
                    }
                    next = here;
                }
            }
            // Prefixes; the window ending at row r starts at y = r - H + 1.
            const T* P = suffix[(k + 1) & 1];  // the previous segment's suffixes
            for (std::ptrdiff_t r = a; r < e; ++r) {
                const T* row = in(r);
                const std::ptrdiff_t y = r - H + 1;
                const bool emits = y >= 0 && y < rows;
                if (r == a) std::memcpy(prefix, row, sizeof(T) * count);
                if (emits && y == s) {
                    // The window is this whole segment: its last prefix.
                    if (r != a)
                        ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                            hn::StoreU(Ext<IsMax>(hn::LoadU(d, prefix + i), hn::LoadU(d, row + i)), d, column + i);
                        });
                    else
                        std::memcpy(column, row, sizeof(T) * count);
                } else if (emits) {
                    const T* before = P + (y - (s - H)) * stride;
                    if (r == a) {
                        ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                            hn::StoreU(Ext<IsMax>(hn::LoadU(d, before + i), hn::LoadU(d, row + i)), d, column + i);
                        });
                    } else {
                        ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                            const auto p = Ext<IsMax>(hn::LoadU(d, prefix + i), hn::LoadU(d, row + i));
                            hn::StoreU(p, d, prefix + i);
                            hn::StoreU(Ext<IsMax>(hn::LoadU(d, before + i), p), d, column + i);
                        });
                    }
                } else if (r != a) {
                    ForLanes<T>(count, [&](auto d, std::ptrdiff_t i) {
                        hn::StoreU(Ext<IsMax>(hn::LoadU(d, prefix + i), hn::LoadU(d, row + i)), d, prefix + i);
                    });
                }
                if (emits) rowPass(y, column);
            }
        }
    }
}

// Any mask: for each destination row the addresses of its members' source
// rows and columns are laid out run by run in scratch, and every vector
// takes the extremum of one load per member, two vectors at a time.
template <class T, bool IsMax, bool KeepAlpha>
void RunsBlock(const void* srcBlock, std::ptrdiff_t srcStep, void* dstBlock, std::ptrdiff_t dstStep,
               std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n, int channels,
               void* scratch, const filter::Window& window, std::ptrdiff_t /*firstRow*/) {
    using namespace extremum_detail;
    const std::ptrdiff_t C = channels;
    const T* src = static_cast<const T*>(srcBlock);
    T* dst = static_cast<T*>(dstBlock);
    const T** at = static_cast<const T**>(scratch);
    const hn::ScalableTag<T> d;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    // Vectors stop short of an AC4 row's last alpha element, whose window
    // reaches past the row's last colour element.
    const std::ptrdiff_t vectorEnd = KeepAlpha && end == n ? end - 1 : end;
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        std::ptrdiff_t members = 0;
        for (int r = 0; r < window.runCount; ++r) {
            const T* p = rowAt(src, srcStep, y + window.runs[r].row) + window.runs[r].col * C;
            for (int k = 0; k < window.runs[r].length; ++k) at[members++] = p + k * C;
        }
        auto extremum = [&](auto dv, std::ptrdiff_t x) {
            auto v = hn::LoadU(dv, at[0] + x);
            for (std::ptrdiff_t k = 1; k < members; ++k) v = Ext<IsMax>(v, hn::LoadU(dv, at[k] + x));
            return v;
        };
        T* out = rowAt(dst, dstStep, y);
        std::ptrdiff_t x = begin;
        if constexpr (!KeepAlpha) {
            for (; vectorEnd - x >= 2 * N; x += 2 * N) {
                auto v0 = hn::LoadU(d, at[0] + x), v1 = hn::LoadU(d, at[0] + x + N);
                for (std::ptrdiff_t k = 1; k < members; ++k) {
                    v0 = Ext<IsMax>(v0, hn::LoadU(d, at[k] + x));
                    v1 = Ext<IsMax>(v1, hn::LoadU(d, at[k] + x + N));
                }
                hn::StoreU(v0, d, out + x);
                hn::StoreU(v1, d, out + x + N);
            }
        }
        StoreRow<T, KeepAlpha>(out, x, vectorEnd, end, extremum);
    }
}

// Colour elements of AC4 pixels from `from` to `to` (count pixels): the
// write-back of held-back rows of in-place AC4 members.
template <class T>
void CopyColour(const T* from, T* to, std::ptrdiff_t pixels) {
    using namespace extremum_detail;
    StoreRow<T, true>(to, 0, 4 * pixels, 4 * pixels, [&](auto d, std::ptrdiff_t x) { return hn::LoadU(d, from + x); });
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_FILTER_EXTREMUM_INL_H_
