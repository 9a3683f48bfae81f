// Look-up tables (LUT, LUT_Linear, LUT_Cubic) and palettes (LUTPalette,
// LUTPaletteSwap).
//
// Integer images go through a table of every value of their type: the
// curve is turned into the table once per call and channel, then each
// element is one look-up. 8-bit tables are applied with byte shuffles where
// the layout allows one table for every element (C1, or C3 and C4 whose
// channels share a curve): sixteen 16-entry shuffles on the low nibble,
// merged by the high nibble's bits; a table that repeats every 16 entries
// (a palette of at most 4 bits) is one shuffle. On processors with AVX-512
// VBMI every 8-bit table, per-channel ones included, is two 128-entry
// permutes and a blend. Other layouts, the 16-bit tables and the palettes of
// other entry widths are scalar look-ups.
//
// 32f images search the intervals of each value from the first upward; the
// vector kernel tests a whole vector against every interval in turn and
// stops once every lane has found its interval. Linear and cubic values are
// then computed lane by lane in double precision by the same function as
// the scalar path, so every target gives the same bits.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/lut.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/image.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifndef ZEL_DATA_LUT_SHARED_
#define ZEL_DATA_LUT_SHARED_
namespace zel::lut {

enum Kind : int { kPlain = 0, kLinear = 1, kCubic = 2 };

// One channel's 32f curve, ready for the per-value search.
struct Curve32f {
    const float* levels;
    const float* values;
    int nLevels;
    int kind;              // kPlain, kLinear or kCubic (at least four levels)
    const float* slopes;   // kLinear: one per interval
    const double* coef;    // kCubic: a, b, c per interval; a NaN marks the linear rule, c its slope
};

// The value of x, which lies in interval k of the curve.
inline float evaluate(const Curve32f& c, int k, float x) {
    if (c.kind == kPlain) return c.values[k];
    if (c.kind == kLinear)
        return static_cast<float>((double(x) - double(c.levels[k])) * double(c.slopes[k]) + double(c.values[k]));
    const double* abc = c.coef + 3 * std::ptrdiff_t{k};
    if (std::isnan(abc[0])) return static_cast<float>((double(x) - double(c.levels[k])) * abc[2] + double(c.values[k]));
    const int origin = std::clamp(k - 1, 0, c.nLevels - 4) + 1;
    const double t = double(x) - double(c.levels[origin]);
    return static_cast<float>(((abc[0] * t + abc[1]) * t + abc[2]) * t + double(c.values[origin]));
}

// The first interval holding x (none: x itself, NaN included).
inline float mapValue(const Curve32f& c, float x) {
    for (int k = 0; k + 1 < c.nLevels; ++k)
        if (c.levels[k] <= x && x < c.levels[k + 1]) return evaluate(c, k, x);
    return x;
}

}  // namespace zel::lut
#endif  // ZEL_DATA_LUT_SHARED_

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Lanes of `yes` where the sign bit of sel is set, else of `no`. SSSE3 has
// no byte blend on the sign bit alone: it compares first.
template <class V>
HWY_INLINE V SelectOnSign(V sel, V yes, V no) {
#if HWY_TARGET == HWY_SSSE3
    return hn::IfThenElse(hn::Lt(sel, hn::Zero(hn::DFromV<V>())), yes, no);
#else
    return hn::IfNegativeThenElse(sel, yes, no);
#endif
}

// `rows` rows of n bytes through a 256-entry table (dst may be src).
void Lookup256Rows(const std::uint8_t* src, std::ptrdiff_t srcStep, std::uint8_t* dst, std::ptrdiff_t dstStep,
                   std::ptrdiff_t n, std::ptrdiff_t rows, const std::uint8_t* map) {
    const hn::ScalableTag<std::int8_t> d;
    const hn::Repartition<std::uint16_t, decltype(d)> d16;
    using V = hn::VFromD<decltype(d)>;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const std::int8_t* table = reinterpret_cast<const std::int8_t*>(map);
    const V nibble = hn::Set(d, 0x0F);
    auto lookup = [&](V x) HWY_ATTR {
        const V low = hn::And(x, nibble);
        V r[16];
        for (int k = 0; k < 16; ++k) r[k] = hn::TableLookupBytes(hn::LoadDup128(d, table + 16 * k), low);
        // Bits 4, 5, 6, 7 of x pick the sub-table: each moved to the sign bit.
        const V b4 = hn::BitCast(d, hn::ShiftLeft<3>(hn::BitCast(d16, x)));
        for (int k = 0; k < 8; ++k) r[k] = SelectOnSign(b4, r[2 * k + 1], r[2 * k]);
        const V b5 = hn::BitCast(d, hn::ShiftLeft<2>(hn::BitCast(d16, x)));
        for (int k = 0; k < 4; ++k) r[k] = SelectOnSign(b5, r[2 * k + 1], r[2 * k]);
        const V b6 = hn::BitCast(d, hn::ShiftLeft<1>(hn::BitCast(d16, x)));
        for (int k = 0; k < 2; ++k) r[k] = SelectOnSign(b6, r[2 * k + 1], r[2 * k]);
        return SelectOnSign(x, r[1], r[0]);
    };
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const std::int8_t* s = reinterpret_cast<const std::int8_t*>(byteOffset(src, srcStep * y));
        std::int8_t* o = reinterpret_cast<std::int8_t*>(byteOffset(dst, dstStep * y));
        std::ptrdiff_t x = 0;
        for (; n - x >= lanes; x += lanes) hn::StoreU(lookup(hn::LoadU(d, s + x)), d, o + x);
        for (; x < n; ++x) o[x] = static_cast<std::int8_t>(map[static_cast<std::uint8_t>(s[x])]);
    }
}

// The same for a table that repeats every 16 entries: one shuffle.
void Lookup16Rows(const std::uint8_t* src, std::ptrdiff_t srcStep, std::uint8_t* dst, std::ptrdiff_t dstStep,
                  std::ptrdiff_t n, std::ptrdiff_t rows, const std::uint8_t* map) {
    const hn::ScalableTag<std::uint8_t> d;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const auto table = hn::LoadDup128(d, map);
    const auto nibble = hn::Set(d, 0x0F);
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const std::uint8_t* s = byteOffset(src, srcStep * y);
        std::uint8_t* o = byteOffset(dst, dstStep * y);
        std::ptrdiff_t x = 0;
        for (; n - x >= 2 * lanes; x += 2 * lanes) {
            const auto r0 = hn::TableLookupBytes(table, hn::And(hn::LoadU(d, s + x), nibble));
            const auto r1 = hn::TableLookupBytes(table, hn::And(hn::LoadU(d, s + x + lanes), nibble));
            hn::StoreU(r0, d, o + x);
            hn::StoreU(r1, d, o + x + lanes);
        }
        for (; n - x >= lanes; x += lanes) hn::StoreU(hn::TableLookupBytes(table, hn::And(hn::LoadU(d, s + x), nibble)), d, o + x);
        for (; x < n; ++x) o[x] = map[s[x] & 15];
    }
}

// `rows` rows of n 32f values through one curve (dst may be src).
template <int Kind>
void CurveRows32f(const float* src, std::ptrdiff_t srcStep, float* dst, std::ptrdiff_t dstStep, std::ptrdiff_t n,
                  std::ptrdiff_t rows, const lut::Curve32f& c) {
    const hn::ScalableTag<float> d;
    const hn::RebindToSigned<decltype(d)> di;
    using V = hn::VFromD<decltype(d)>;
    using VI = hn::VFromD<decltype(di)>;
    constexpr std::size_t kMax = hn::MaxLanes(d);
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const int intervals = c.nLevels - 1;
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const float* s = byteOffset(src, srcStep * y);
        float* o = byteOffset(dst, dstStep * y);
        std::ptrdiff_t x = 0;
        for (; n - x >= lanes; x += lanes) {
            const V v = hn::LoadU(d, s + x);
            auto found = hn::FirstN(d, 0);  // no lane has its interval yet
            V r = v;
            VI index = hn::Set(di, -1);
            V lo = hn::Set(d, c.levels[0]);
            for (int k = 0; k < intervals; ++k) {
                const V hi = hn::Set(d, c.levels[k + 1]);
                const auto in = hn::AndNot(found, hn::And(hn::Le(lo, v), hn::Lt(v, hi)));
                if constexpr (Kind == lut::kPlain) r = hn::IfThenElse(in, hn::Set(d, c.values[k]), r);
                else index = hn::IfThenElse(hn::RebindMask(di, in), hn::Set(di, k), index);
                found = hn::Or(found, in);
                lo = hi;
                if ((k & 3) == 3 && hn::AllTrue(d, found)) break;
            }
            if constexpr (Kind == lut::kPlain) {
                hn::StoreU(r, d, o + x);
            } else if (hn::AllFalse(d, found)) {
                hn::StoreU(v, d, o + x);
            } else {
                HWY_ALIGN float values[kMax];
                HWY_ALIGN std::int32_t at[kMax];
                hn::Store(v, d, values);
                hn::Store(index, di, at);
                for (std::ptrdiff_t i = 0; i < lanes; ++i)
                    if (at[i] >= 0) values[i] = lut::evaluate(c, at[i], values[i]);
                hn::StoreU(hn::Load(d, values), d, o + x);
            }
        }
        for (; x < n; ++x) o[x] = lut::mapValue(c, s[x]);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <immintrin.h>

#include <atomic>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"

namespace zel::lut {

// ---- Tables of integer curves ------------------------------------------------

// Index of value v in a table of every value of T (16s from -32768).
template <class T>
constexpr std::int64_t kLow = std::numeric_limits<T>::min();
template <class T>
constexpr std::int64_t kHigh = std::numeric_limits<T>::max();
template <class T>
constexpr std::size_t kEntries = std::size_t(kHigh<T> - kLow<T> + 1);

template <class T>
T clampValue(std::int64_t v) {
    return static_cast<T>(std::clamp(v, kLow<T>, kHigh<T>));
}
// A double result truncated toward zero, then clamped (NaN: the lowest).
template <class T>
T clampTruncated(double v) {
    if (!(v >= double(kLow<T>))) return static_cast<T>(kLow<T>);
    if (v >= double(kHigh<T>)) return static_cast<T>(kHigh<T>);
    return static_cast<T>(static_cast<std::int64_t>(v));
}

// Solves a u^3 + b u^2 + c u = w at three points by Cramer's rule.
// False when two of the four levels (the origin's among them) coincide.
inline bool solveCubic(const double u[3], const double w[3], double abc[3]) {
    if (u[0] == 0 || u[1] == 0 || u[2] == 0 || u[0] == u[1] || u[0] == u[2] || u[1] == u[2]) return false;
    auto det = [](const double m[3][3]) {
        return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
               m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
    };
    double m[3][3];
    for (int i = 0; i < 3; ++i) m[i][0] = u[i] * u[i] * u[i], m[i][1] = u[i] * u[i], m[i][2] = u[i];
    const double whole = det(m);
    if (!(std::isfinite(whole) && whole != 0)) return false;
    for (int col = 0; col < 3; ++col) {
        double r[3][3];
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) r[i][j] = j == col ? w[i] : m[i][j];
        abc[col] = det(r) / whole;
    }
    return std::isfinite(abc[0]) && std::isfinite(abc[1]) && std::isfinite(abc[2]);
}

// The cubic of interval k: coefficients with the origin at pair k's j + 1.
template <class V>
bool cubicOf(const V* levels, const V* values, int n, int k, double abc[3]) {
    const int j = std::clamp(k - 1, 0, n - 4);
    double u[3], w[3];
    const int at[3] = {j, j + 2, j + 3};
    for (int i = 0; i < 3; ++i) {
        u[i] = double(levels[at[i]]) - double(levels[j + 1]);
        w[i] = double(values[at[i]]) - double(values[j + 1]);
    }
    return solveCubic(u, w, abc);
}

// The table of one channel's integer curve: map[v - low] for every v of T.
template <class T>
void buildTable(T* map, const Zel32s* values, const Zel32s* levels, int n, int kind) {
    const std::int64_t lo = kLow<T>, hi = kHigh<T>;
    auto clampLevel = [&](std::int64_t v) { return std::clamp(v, lo, hi + 1); };
    for (std::int64_t i = lo; i <= hi; ++i) map[i - lo] = static_cast<T>(i);
    if (kind == kCubic && n < 4) kind = kLinear;
    for (int k = 0; k + 1 < n; ++k) {
        const std::int64_t a = levels[k], b = levels[k + 1];
        if (kind == kPlain) {
            const T v = clampValue<T>(values[k]);
            for (std::int64_t i = clampLevel(a); i < clampLevel(b); ++i) map[i - lo] = v;
            continue;
        }
        if (b <= a) continue;
        const std::int64_t first = std::min(clampLevel(a), hi), end = clampLevel(b);
        double abc[3];
        const bool cubic = kind == kCubic && cubicOf(levels, values, n, k, abc);
        if (!cubic) {
            if (end - first == 1) {
                map[first - lo] = clampValue<T>(values[k]);
                continue;
            }
            const double slope = (double(values[k + 1]) - double(values[k])) / (double(b) - double(a));
            const double intercept = double(values[k]) + 0.5 - double(a) * slope;
            for (std::int64_t i = first; i < end; ++i) map[i - lo] = clampTruncated<T>(double(i) * slope + intercept);
        } else {
            const int origin = std::clamp(k - 1, 0, n - 4) + 1;
            const double base = double(values[origin]);
            for (std::int64_t i = first; i < end; ++i) {
                const double t = double(i) - double(levels[origin]);
                map[i - lo] = clampTruncated<T>(((abc[0] * t + abc[1]) * t + abc[2]) * t + base + 0.5);
            }
        }
    }
    for (std::int64_t i = clampLevel(levels[n - 1]); i <= hi; ++i) map[i - lo] = static_cast<T>(i);
}

// ---- Scalar look-ups ----------------------------------------------------------

// `pixels` pixels of `rows` rows: channel c (c < K of C) of every pixel
// becomes the entry of tables[c] at ((source bits) ^ flip) & mask. Entries
// and destination elements are EB bytes (3: packed 24-bit values).
template <class S, int EB, int C, int K>
void tableRows(const S* src, std::ptrdiff_t srcStep, std::uint8_t* dst, std::ptrdiff_t dstStep, std::ptrdiff_t pixels,
               std::ptrdiff_t rows, const std::uint8_t* const* tables, unsigned flip, unsigned mask) {
    using U = BitsOf<S>;
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const U* s = reinterpret_cast<const U*>(byteOffset(src, srcStep * y));
        std::uint8_t* o = byteOffset(dst, dstStep * y);
        for (std::ptrdiff_t p = 0; p < pixels; ++p)
            for (int c = 0; c < K; ++c) {
                const unsigned index = (unsigned(s[p * C + c]) ^ flip) & mask;
                std::memcpy(o + (p * C + c) * EB, tables[c] + std::size_t(index) * EB, EB);
            }
    }
}

// Palettes from three channels to four: the tables' entries in channels
// 1..3 (kSwap: 2..0) and the alpha value in channel 0 (kSwap: 3) when
// `alpha` is set.
template <class T, bool kSwap>
void alphaRows(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep, std::ptrdiff_t pixels,
               std::ptrdiff_t rows, const T* const* tables, unsigned mask, bool alpha, T alphaValue) {
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* s = byteOffset(src, srcStep * y);
        T* o = byteOffset(dst, dstStep * y);
        for (std::ptrdiff_t p = 0; p < pixels; ++p) {
            const T* in = s + 3 * p;
            T* out = o + 4 * p;
            for (int c = 0; c < 3; ++c) out[kSwap ? 2 - c : c + 1] = tables[c][in[c] & mask];
            if (alpha) out[kSwap ? 3 : 0] = alphaValue;
        }
    }
}

// ---- The pass over the image ------------------------------------------------

// Pixels handed to a thread at a time when rows are cut into pieces.
constexpr std::ptrdiff_t kGrainPixels = 256;

// A scalar table look-up costs per element about what a histogram's counter
// update does.
constexpr int kCostLookup = kCostHistogram;

// Calls body(src, dst, pixels, rows) over blocks that cover `width` pixels
// of `height` rows exactly once (rows that follow one another without
// padding are one long row), on the calling thread or a team. `cost` is the
// fork rule's weight of the kernel per byte touched.
template <class S, class D, class Body>
void overImage(const S* src, int srcStep, std::ptrdiff_t srcPixelBytes, D* dst, int dstStep,
               std::ptrdiff_t dstPixelBytes, std::ptrdiff_t width, std::ptrdiff_t height, int cost, Body&& body) {
    const std::int64_t srcRow = std::int64_t{width} * srcPixelBytes, dstRow = std::int64_t{width} * dstPixelBytes;
    Rows rows{width, height};
    if (srcStep == srcRow && dstStep == dstRow) rows = Rows{width * height, 1};
    const int team = teamSize((srcRow + dstRow) * height, cost, pieceCount(rows.height, rows.width, kGrainPixels));
    forEachBlock(rows.height, rows.width, kGrainPixels, team, [&](const Block& b) {
        body(byteOffset(src, std::ptrdiff_t{srcStep} * b.y0 + b.begin * srcPixelBytes),
             byteOffset(dst, std::ptrdiff_t{dstStep} * b.y0 + b.begin * dstPixelBytes), b.end - b.begin, b.y1 - b.y0);
    });
}

// AVX-512 VBMI looks up a 128-entry byte table in one instruction, so a
// 256-entry table is two look-ups and a blend on the high bit. The build's
// AVX-512 target does not assume VBMI: these kernels are taken where that
// target is chosen and the processor has it.
#define ZEL_VBMI __attribute__((target("avx512f,avx512bw,avx512vbmi")))

struct VbmiTable {
    __m512i quarter[4];
};

ZEL_VBMI inline __m512i lookupVbmi(const VbmiTable& t, __m512i v, __mmask64 high) {
    return _mm512_mask_blend_epi8(high, _mm512_permutex2var_epi8(t.quarter[0], v, t.quarter[1]),
                                  _mm512_permutex2var_epi8(t.quarter[2], v, t.quarter[3]));
}

// `rows` rows of n elements, pixels of C channels of which the first K
// take tables maps[0..K-1] (the others are neither read nor written). Rows
// start on a pixel; the last bytes of a row go under a mask, so nothing
// after them is touched.
ZEL_VBMI void lookupVbmi(const std::uint8_t* src, std::ptrdiff_t srcStep, std::uint8_t* dst, std::ptrdiff_t dstStep,
                         std::ptrdiff_t n, std::ptrdiff_t rows, const std::uint8_t (*maps)[256], int C, int K) {
    VbmiTable t[4];
    for (int c = 0; c < K; ++c)
        for (int q = 0; q < 4; ++q) t[c].quarter[q] = _mm512_loadu_si512(maps[c] + 64 * q);
    // Lanes of channel c, and the lanes written, for a vector that starts at
    // channel `phase` of a pixel.
    __mmask64 channel[4][4] = {}, written[4] = {};
    for (int phase = 0; phase < C; ++phase)
        for (int i = 0; i < 64; ++i) {
            const int c = (phase + i) % C;
            channel[phase][c] |= __mmask64{1} << i;
            if (c < K) written[phase] |= __mmask64{1} << i;
        }
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const std::uint8_t* s = byteOffset(src, srcStep * y);
        std::uint8_t* o = byteOffset(dst, dstStep * y);
        int phase = 0;
        for (std::ptrdiff_t x = 0; x < n; x += 64, phase = (phase + 64) % C) {
            const __mmask64 m = (n - x >= 64 ? ~__mmask64{0} : ~__mmask64{0} >> (64 - (n - x))) & written[phase];
            const __m512i v = _mm512_maskz_loadu_epi8(m, s + x);
            const __mmask64 high = _mm512_movepi8_mask(v);
            __m512i r = lookupVbmi(t[0], v, high);
            for (int c = 1; c < K; ++c) r = _mm512_mask_blend_epi8(channel[phase][c], r, lookupVbmi(t[c], v, high));
            _mm512_mask_storeu_epi8(o + x, m, r);
        }
    }
}

std::atomic<bool> gVbmiAllowed{true};

bool vbmiChosen() {
    static const bool present = __builtin_cpu_supports("avx512vbmi");
    return present && gVbmiAllowed.load(std::memory_order_relaxed) && simd::chosenIndex() == simd::avx3Index();
}

// Tests: false keeps the VBMI kernel out, so the AVX-512 target's shuffle
// kernel runs too.
void useVbmiForTests(bool use) { gVbmiAllowed = use; }

// Applies K 256-entry tables to an 8-bit image of layout L. One table for
// every element (C1, or C3 and C4 whose channels share a table) takes the
// shuffle kernels; per-channel tables a scalar look-up per element. With
// AVX-512 VBMI both take the VBMI kernel.
template <Layout L>
void apply8u(const Zel8u* src, int srcStep, Zel8u* dst, int dstStep, ZeliSize roi, const Zel8u (*maps)[256]) {
    constexpr int C = kChannels<L>, K = kComputed<L>;
    bool shared = C == K;
    for (int c = 1; c < K && shared; ++c) shared = std::memcmp(maps[0], maps[c], 256) == 0;
    if (shared) {
        bool periodic = true;
        for (int i = 16; i < 256 && periodic; ++i) periodic = maps[0][i] == maps[0][i & 15];
        if (!periodic && vbmiChosen()) {
            overImage(src, srcStep, 1, dst, dstStep, 1, std::ptrdiff_t{roi.width} * C, roi.height, kCostMove,
                      [&](const Zel8u* s, Zel8u* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                          lookupVbmi(s, srcStep, d, dstStep, n, rows, maps, 1, 1);
                      });
            return;
        }
        auto kernel = periodic ? ZEL_DISPATCH(Lookup16Rows) : ZEL_DISPATCH(Lookup256Rows);
        const Zel8u* map = maps[0];
        overImage(src, srcStep, 1, dst, dstStep, 1, std::ptrdiff_t{roi.width} * C, roi.height,
                  periodic ? kCostMove : kCostWiden, [&](const Zel8u* s, Zel8u* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                      kernel(s, srcStep, d, dstStep, n, rows, map);
                  });
        return;
    }
    if (vbmiChosen()) {
        overImage(src, srcStep, C, dst, dstStep, C, roi.width, roi.height, kCostMove,
                  [&](const Zel8u* s, Zel8u* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                      lookupVbmi(s, srcStep, d, dstStep, n * C, rows, maps, C, K);
                  });
        return;
    }
    const std::uint8_t* tables[4] = {maps[0], maps[K > 1 ? 1 : 0], maps[K > 2 ? 2 : 0], maps[K > 3 ? 3 : 0]};
    overImage(src, srcStep, C, dst, dstStep, C, roi.width, roi.height, kCostLookup,
              [&](const Zel8u* s, Zel8u* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                  tableRows<Zel8u, 1, C, K>(s, srcStep, d, dstStep, n, rows, tables, 0, 0xFF);
              });
}

// Applies K tables of 65536 entries (16s indexed from -32768).
template <class T, Layout L>
void apply16(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, const T* maps, unsigned mask) {
    constexpr int C = kChannels<L>, K = kComputed<L>;
    const unsigned flip = std::is_signed_v<T> ? 0x8000u : 0u;
    const std::uint8_t* tables[4];
    for (int c = 0; c < 4; ++c) tables[c] = reinterpret_cast<const std::uint8_t*>(maps + kEntries<T> * (c < K ? c : 0));
    overImage(src, srcStep, C * sizeof(T), dst, dstStep, C * sizeof(T), roi.width, roi.height, kCostLookup / 2,
              [&](const T* s, T* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                  tableRows<T, 2, C, K>(s, srcStep, reinterpret_cast<std::uint8_t*>(d), dstStep, n, rows, tables,
                                        flip, mask);
              });
}

// The checks of the curve members: pointers (the arrays and every
// channel's), size, steps, level counts.
template <class V>
ZelStatus checkCurves(const void* pSrc, int srcStep, const void* pDst, int dstStep, ZeliSize roi,
                      const V* const* values, const V* const* levels, const int* counts, int channels) {
    Check check;
    check.ptrs(pSrc, pDst, values, levels, counts)
        .planes(values, channels)
        .planes(levels, channels)
        .roi(roi)
        .steps(srcStep, dstStep);
    for (int c = 0; c < channels && !check.failed(); ++c) check.that(counts[c] >= 2, zelStatusBadLUTLevels);
    return check;
}

template <class T, Layout L>
ZelStatus integerCurve(int kind, const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi,
                       const Zel32s* const* values, const Zel32s* const* levels, const int* counts) {
    constexpr int K = kComputed<L>;
    if (ZelStatus st = checkCurves(pSrc, srcStep, pDst, dstStep, roi, values, levels, counts, K)) return st;
    if constexpr (sizeof(T) == 1) {
        HWY_ALIGN Zel8u maps[4][256];
        {
            StandardFpEnvironment environment;
            for (int c = 0; c < K; ++c) buildTable(maps[c], values[c], levels[c], counts[c], kind);
        }
        apply8u<L>(pSrc, srcStep, pDst, dstStep, roi, maps);
    } else {
        Buffer<T> maps = allocBuffer<T>(kEntries<T> * K);
        if (!maps) return zelStatusNoMemory;
        {
            StandardFpEnvironment environment;
            for (int c = 0; c < K; ++c) buildTable(maps.get() + kEntries<T> * c, values[c], levels[c], counts[c], kind);
        }
        apply16<T, L>(pSrc, srcStep, pDst, dstStep, roi, maps.get(), 0xFFFF);
    }
    return zelStatusOk;
}

// ---- 32f curves ----------------------------------------------------------------

template <Layout L>
ZelStatus floatCurve(int kind, const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi,
                     const Zel32f* const* values, const Zel32f* const* levels, const int* counts) {
    constexpr int C = kChannels<L>, K = kComputed<L>;
    if (ZelStatus st = checkCurves(pSrc, srcStep, pDst, dstStep, roi, values, levels, counts, K)) return st;
    Curve32f curves[4];
    Buffer<float> slopes[4];
    Buffer<double> coef[4];
    std::int64_t intervals = 0;
    for (int c = 0; c < K; ++c) {
        const int n = counts[c];
        const float* lev = levels[c];
        const float* val = values[c];
        const int own = kind == kCubic && n < 4 ? kLinear : kind;
        curves[c] = Curve32f{lev, val, n, own, nullptr, nullptr};
        intervals = std::max<std::int64_t>(intervals, n - 1);
        auto slopeOf = [&](int k) {
            const float diff = lev[k + 1] - lev[k];
            return diff != 0 ? (val[k + 1] - val[k]) / diff : 0.f;
        };
        if (own == kLinear) {
            slopes[c] = allocBuffer<float>(std::size_t(n - 1));
            if (!slopes[c]) return zelStatusNoMemory;
            for (int k = 0; k + 1 < n; ++k) slopes[c][k] = slopeOf(k);
            curves[c].slopes = slopes[c].get();
        } else if (own == kCubic) {
            coef[c] = allocBuffer<double>(3 * std::size_t(n - 1));
            if (!coef[c]) return zelStatusNoMemory;
            for (int k = 0; k + 1 < n; ++k) {
                double* abc = coef[c].get() + 3 * std::ptrdiff_t{k};
                abc[0] = abc[1] = abc[2] = 0;
                if (!(lev[k + 1] > lev[k])) continue;
                if (!cubicOf(lev, val, n, k, abc)) {
                    abc[0] = std::numeric_limits<double>::quiet_NaN();
                    abc[2] = double(slopeOf(k));
                }
            }
            curves[c].coef = coef[c].get();
        }
    }
    StandardFpEnvironment environment;
    bool shared = C == K;
    for (int c = 1; c < K && shared; ++c)
        shared = counts[c] == counts[0] &&
                 std::memcmp(levels[c], levels[0], sizeof(float) * std::size_t(counts[0])) == 0 &&
                 std::memcmp(values[c], values[0], sizeof(float) * std::size_t(counts[0])) == 0;
    // A vector search costs about two plain passes per interval, the scalar
    // one about eight.
    if (shared) {
        const Curve32f& curve = curves[0];
        auto kernel = curve.kind == kPlain    ? ZEL_DISPATCH(CurveRows32f<kPlain>)
                      : curve.kind == kLinear ? ZEL_DISPATCH(CurveRows32f<kLinear>)
                                              : ZEL_DISPATCH(CurveRows32f<kCubic>);
        const int cost = int(std::min<std::int64_t>(kCostExactDivide, 2 + 2 * intervals));
        overImage(pSrc, srcStep, sizeof(float), pDst, dstStep, sizeof(float), std::ptrdiff_t{roi.width} * C,
                  roi.height, cost, [&](const Zel32f* s, Zel32f* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                      kernel(s, srcStep, d, dstStep, n, rows, curve);
                  });
        return zelStatusOk;
    }
    const int cost = int(std::min<std::int64_t>(kCostExactDivide, 8 + 8 * intervals));
    overImage(pSrc, srcStep, C * sizeof(float), pDst, dstStep, C * sizeof(float), roi.width, roi.height, cost,
              [&](const Zel32f* s, Zel32f* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                  for (std::ptrdiff_t y = 0; y < rows; ++y) {
                      const Zel32f* in = byteOffset(s, std::ptrdiff_t{srcStep} * y);
                      Zel32f* out = byteOffset(d, std::ptrdiff_t{dstStep} * y);
                      for (std::ptrdiff_t p = 0; p < n; ++p)
                          for (int c = 0; c < K; ++c) out[p * C + c] = mapValue(curves[c], in[p * C + c]);
                  }
              });
    return zelStatusOk;
}

template <class T, Layout L, class V>
ZelStatus curve(int kind, const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const V* const* values,
                const V* const* levels, const int* counts) {
    if constexpr (std::is_floating_point_v<T>)
        return floatCurve<L>(kind, pSrc, srcStep, pDst, dstStep, roi, values, levels, counts);
    else
        return integerCurve<T, L>(kind, pSrc, srcStep, pDst, dstStep, roi, values, levels, counts);
}

// ---- Palettes --------------------------------------------------------------------

// Pointers, size, the three tables of 3-table members, the bit size.
template <class S>
ZelStatus checkPalette(const void* pSrc, const void* pDst, const void* table, ZeliSize roi,
                       const void* const* tables, int nBitSize) {
    Check check;
    check.ptrs(pSrc, pDst, table).roi(roi);
    if (tables != nullptr) check.planes(tables, 3);
    return check.that(nBitSize >= 1 && nBitSize <= int(8 * sizeof(S)), zelStatusBadBitSize);
}

inline unsigned maskOf(int nBitSize) { return (1u << nBitSize) - 1; }

// Source and destination of one type and layout (C1, C3, AC4).
template <class T, Layout L>
ZelStatus palette(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const T* const* tables,
                  int nBitSize) {
    constexpr int K = kComputed<L>;
    const void* const* three = K > 1 ? reinterpret_cast<const void* const*>(tables) : nullptr;
    if (ZelStatus st = checkPalette<T>(pSrc, pDst, K > 1 ? static_cast<const void*>(tables) : tables[0], roi, three,
                                       nBitSize))
        return st;
    const unsigned mask = maskOf(nBitSize);
    if constexpr (sizeof(T) == 1) {
        HWY_ALIGN Zel8u maps[4][256];
        for (int c = 0; c < K; ++c)
            for (int i = 0; i < 256; ++i) maps[c][i] = tables[c][i & mask];
        apply8u<L>(pSrc, srcStep, pDst, dstStep, roi, maps);
    } else {
        constexpr int C = kChannels<L>;
        const std::uint8_t* bytes[4];
        for (int c = 0; c < 4; ++c) bytes[c] = reinterpret_cast<const std::uint8_t*>(tables[c < K ? c : 0]);
        overImage(pSrc, srcStep, C * sizeof(T), pDst, dstStep, C * sizeof(T), roi.width, roi.height, kCostLookup / 2,
                  [&](const T* s, T* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                      tableRows<T, sizeof(T), C, K>(s, srcStep, reinterpret_cast<std::uint8_t*>(d), dstStep, n, rows,
                                                    bytes, 0, mask);
                  });
    }
    return zelStatusOk;
}

// One-channel sources to entries of EB bytes (8, 24 or 32 bits).
template <class S, int EB>
ZelStatus paletteTo(const S* pSrc, int srcStep, void* pDst, int dstStep, ZeliSize roi, const void* pTable,
                    int nBitSize) {
    if (ZelStatus st = checkPalette<S>(pSrc, pDst, pTable, roi, nullptr, nBitSize)) return st;
    const std::uint8_t* tables[1] = {static_cast<const std::uint8_t*>(pTable)};
    const unsigned mask = maskOf(nBitSize);
    overImage(pSrc, srcStep, sizeof(S), static_cast<std::uint8_t*>(pDst), dstStep, EB, roi.width, roi.height,
              kCostLookup / int(sizeof(S) + EB),
              [&](const S* s, std::uint8_t* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                  tableRows<S, EB, 1, 1>(s, srcStep, d, dstStep, n, rows, tables, 0, mask);
              });
    return zelStatusOk;
}

// Three channels to four with the alpha value (kSwap: channels reversed).
template <class T, bool kSwap>
ZelStatus paletteAlpha(const T* pSrc, int srcStep, int alphaValue, T* pDst, int dstStep, ZeliSize roi,
                       const T* const* tables, int nBitSize) {
    if (ZelStatus st = checkPalette<T>(pSrc, pDst, tables, roi, reinterpret_cast<const void* const*>(tables),
                                       nBitSize))
        return st;
    const unsigned mask = maskOf(nBitSize);
    const bool alpha = alphaValue >= 0 && alphaValue <= int(std::numeric_limits<T>::max());
    const T value = static_cast<T>(alpha ? alphaValue : 0);
    overImage(pSrc, srcStep, 3 * sizeof(T), pDst, dstStep, 4 * sizeof(T), roi.width, roi.height,
              kCostLookup / int(sizeof(T)), [&](const T* s, T* d, std::ptrdiff_t n, std::ptrdiff_t rows) {
                  alphaRows<T, kSwap>(s, srcStep, d, dstStep, n, rows, tables, mask, alpha, value);
              });
    return zelStatusOk;
}

}  // namespace zel::lut

// ---- Exported members --------------------------------------------------------------

#define ZEL_LUT_C1(op, kind, t, V)                                                                                 \
    ZelStatus zeli##op##_##t##_C1R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep, ZeliSize roiSize,   \
                                   const V* pValues, const V* pLevels, int nLevels) {                              \
        const V* values[1] = {pValues};                                                                            \
        const V* levels[1] = {pLevels};                                                                            \
        return ::zel::lut::curve<Zel##t, ::zel::Layout::C1, V>(::zel::lut::kind, pSrc, srcStep, pDst, dstStep,     \
                                                               roiSize, values, levels, &nLevels);                 \
    }                                                                                                              \
    ZelStatus zeli##op##_##t##_C1IR(Zel##t* pSrcDst, int srcDstStep, ZeliSize roiSize, const V* pValues,           \
                                    const V* pLevels, int nLevels) {                                               \
        return zeli##op##_##t##_C1R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, pValues, pLevels, nLevels); \
    }
#define ZEL_LUT_CN(op, kind, t, V, lay, n)                                                                         \
    ZelStatus zeli##op##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,                \
                                        ZeliSize roiSize, const V* const pValues[n], const V* const pLevels[n],    \
                                        const int nLevels[n]) {                                                    \
        return ::zel::lut::curve<Zel##t, ::zel::Layout::lay, V>(::zel::lut::kind, pSrc, srcStep, pDst, dstStep,    \
                                                                roiSize, pValues, pLevels, nLevels);               \
    }                                                                                                              \
    ZelStatus zeli##op##_##t##_##lay##IR(Zel##t* pSrcDst, int srcDstStep, ZeliSize roiSize,                        \
                                         const V* const pValues[n], const V* const pLevels[n],                     \
                                         const int nLevels[n]) {                                                   \
        return zeli##op##_##t##_##lay##R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, pValues, pLevels,      \
                                         nLevels);                                                                 \
    }
#define ZEL_LUT_TYPE(op, kind, t, V) \
    ZEL_LUT_C1(op, kind, t, V) ZEL_LUT_CN(op, kind, t, V, C3, 3) ZEL_LUT_CN(op, kind, t, V, C4, 4) ZEL_LUT_CN(op, kind, t, V, AC4, 3)
#define ZEL_LUT_OP(op, kind)                                                                              \
    ZEL_LUT_TYPE(op, kind, 8u, Zel32s) ZEL_LUT_TYPE(op, kind, 16s, Zel32s) ZEL_LUT_TYPE(op, kind, 16u, Zel32s) \
    ZEL_LUT_TYPE(op, kind, 32f, Zel32f)

ZEL_LUT_OP(LUT, kPlain)
ZEL_LUT_OP(LUT_Linear, kLinear)
ZEL_LUT_OP(LUT_Cubic, kCubic)

#define ZEL_PALETTE_C1(t)                                                                                          \
    ZelStatus zeliLUTPalette_##t##_C1R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep, ZeliSize roiSize, \
                                       const Zel##t* pTable, int nBitSize) {                                         \
        const Zel##t* tables[1] = {pTable};                                                                          \
        return ::zel::lut::palette<Zel##t, ::zel::Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, tables, nBitSize); \
    }
#define ZEL_PALETTE_3(t, lay)                                                                                        \
    ZelStatus zeliLUTPalette_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,                \
                                            ZeliSize roiSize, const Zel##t* const pTable[3], int nBitSize) {           \
        return ::zel::lut::palette<Zel##t, ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roiSize, pTable, nBitSize); \
    }
#define ZEL_PALETTE_TO(name, S, D, E, EB)                                                                          \
    ZelStatus zeliLUTPalette_##name##_C1R(const S* pSrc, int srcStep, D* pDst, int dstStep, ZeliSize roiSize,       \
                                          const E* pTable, int nBitSize) {                                          \
        return ::zel::lut::paletteTo<S, EB>(pSrc, srcStep, pDst, dstStep, roiSize, pTable, nBitSize);               \
    }
#define ZEL_PALETTE_ALPHA(name, t, swap)                                                                           \
    ZelStatus zeli##name##_##t##_C3A0C4R(const Zel##t* pSrc, int srcStep, int alphaValue, Zel##t* pDst, int dstStep, \
                                         ZeliSize roiSize, const Zel##t* const pTable[3], int nBitSize) {              \
        return ::zel::lut::paletteAlpha<Zel##t, swap>(pSrc, srcStep, alphaValue, pDst, dstStep, roiSize, pTable,     \
                                                      nBitSize);                                                     \
    }

ZEL_PALETTE_C1(8u)
ZEL_PALETTE_C1(16u)
ZEL_PALETTE_3(8u, C3)
ZEL_PALETTE_3(8u, AC4)
ZEL_PALETTE_3(16u, C3)
ZEL_PALETTE_3(16u, AC4)
ZEL_PALETTE_TO(16u8u, Zel16u, Zel8u, Zel8u, 1)
ZEL_PALETTE_TO(8u24u, Zel8u, Zel8u, Zel8u, 3)
ZEL_PALETTE_TO(16u24u, Zel16u, Zel8u, Zel8u, 3)
ZEL_PALETTE_TO(8u32u, Zel8u, Zel32u, Zel32u, 4)
ZEL_PALETTE_TO(16u32u, Zel16u, Zel32u, Zel32u, 4)
ZEL_PALETTE_ALPHA(LUTPalette, 8u, false)
ZEL_PALETTE_ALPHA(LUTPalette, 16u, false)
ZEL_PALETTE_ALPHA(LUTPaletteSwap, 8u, true)

#endif  // HWY_ONCE
