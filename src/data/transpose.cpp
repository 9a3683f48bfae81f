// Transpose: destination pixel (x, y) is source pixel (y, x).
//
// A transposition moves whole pixels, so the kernels are typed by the
// pixel's byte size alone. Pixels of 1, 2 or 4 bytes are transposed in
// registers, a square block of 16 / size pixels at a time (a butterfly of
// lane interleaves); out of place the image is walked in 64 x 64 tiles so
// that source and destination rows both stay in the cache, and in place
// (square ROIs only) in diagonal tiles of 32 rows (1-byte pixels) or 16
// rows, each tile above the diagonal exchanged with its mirror. Wider
// pixels, and the ragged edges, move pixel by pixel, four destination rows
// at a time, which keeps the stores in order without tiles.
// Indices and counts are 64-bit, so the loops end cleanly at rows or
// columns of INT_MAX pixels.
// Checks: null pointers, then the ROI size (in place: also a square ROI);
// steps are not checked. An out-of-place call whose source and destination
// are the same pixels runs in place when that is a transposition of a
// square with one step, and is refused otherwise.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/transpose.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/image.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <std::size_t N>
HWY_INLINE std::uint8_t* pixelAt(std::uint8_t* base, int step, std::ptrdiff_t y, std::ptrdiff_t x) {
    return rowAt(base, step, y) + x * std::ptrdiff_t{N};
}
template <std::size_t N>
HWY_INLINE const std::uint8_t* pixelAt(const std::uint8_t* base, int step, std::ptrdiff_t y, std::ptrdiff_t x) {
    return rowAt(base, step, y) + x * std::ptrdiff_t{N};
}

// Register blocks exist for pixels of one vector lane.
template <std::size_t N>
constexpr bool kInRegisters = N == 1 || N == 2 || N == 4;

template <std::size_t N>
using Lane = std::conditional_t<N == 1, std::uint8_t, std::conditional_t<N == 2, std::uint16_t, std::uint32_t>>;

// Targets with 256-bit vectors take 4-byte pixels in 8 x 8 blocks; every
// other block is one 128-bit vector per row (16 x 16 bytes, 8 x 8 2-byte
// or 4 x 4 4-byte pixels).
#if HWY_TARGET == HWY_AVX2 || HWY_TARGET == HWY_AVX3
template <std::size_t N>
using BlockTag = std::conditional_t<N == 4, hn::Full256<std::uint32_t>, hn::Full128<Lane<N>>>;
#else
template <std::size_t N>
using BlockTag = hn::Full128<Lane<N>>;
#endif

// Pixels per side of a register block.
template <std::size_t N>
constexpr int kBlock = kInRegisters<N> ? static_cast<int>(hn::MaxLanes(BlockTag<N>())) : 1;

// rows[i] holds row i of a K x K block; afterwards rows[i] holds column i.
// Within 128 bits each round interleaves row i with row i + K/2 and
// log2(K) rounds transpose. 256-bit rows of 8 lanes interleave within
// their two halves (lanes then pairs), which leaves 4 x 4 quarters in
// place; the halves are then exchanged across rows i and i + 4.
template <class D, class V>
HWY_INLINE void TransposeRegisters(D d, V* rows) {
    constexpr int K = static_cast<int>(hn::MaxLanes(D()));
    if constexpr (K * sizeof(hn::TFromD<D>) == 16) {
        for (int round = 1; round < K; round *= 2) {
            V next[K];
            for (int i = 0; i < K / 2; ++i) {
                next[2 * i] = hn::InterleaveLower(d, rows[i], rows[i + K / 2]);
                next[2 * i + 1] = hn::InterleaveUpper(d, rows[i], rows[i + K / 2]);
            }
            for (int i = 0; i < K; ++i) rows[i] = next[i];
        }
    } else {
        static_assert(K == 8, "8 x 8 blocks of 32-bit lanes");
        const hn::Repartition<std::uint64_t, D> d64;
        V pairs[8], quads[8];
        for (int i = 0; i < 4; ++i) {  // rows 2i, 2i+1: lanes 0,1 | 4,5 and 2,3 | 6,7
            pairs[2 * i] = hn::InterleaveLower(d, rows[2 * i], rows[2 * i + 1]);
            pairs[2 * i + 1] = hn::InterleaveUpper(d, rows[2 * i], rows[2 * i + 1]);
        }
        for (int h = 0; h < 2; ++h)  // rows 0-3, then rows 4-7
            for (int j = 0; j < 2; ++j) {
                const auto a = hn::BitCast(d64, pairs[4 * h + j]);
                const auto b = hn::BitCast(d64, pairs[4 * h + j + 2]);
                quads[4 * h + 2 * j] = hn::BitCast(d, hn::InterleaveLower(d64, a, b));
                quads[4 * h + 2 * j + 1] = hn::BitCast(d, hn::InterleaveUpper(d64, a, b));
            }
        // quads[c] (c < 4) holds column c of rows 0-3 | column c + 4 of
        // rows 0-3; quads[c + 4] the same for rows 4-7.
        for (int c = 0; c < 4; ++c) {
            rows[c] = hn::ConcatLowerLower(d, quads[c + 4], quads[c]);
            rows[c + 4] = hn::ConcatUpperUpper(d, quads[c + 4], quads[c]);
        }
    }
}

// dst block at (dy, dx) = transposed src block at (sy, sx); both full.
template <std::size_t N, class Src, class Dst>
HWY_INLINE void TransposeRegisterBlock(Src* src, int srcStep, std::ptrdiff_t sy, std::ptrdiff_t sx, Dst* dst,
                                       int dstStep, std::ptrdiff_t dy, std::ptrdiff_t dx) {
    using U = Lane<N>;
    const BlockTag<N> d;
    constexpr int K = kBlock<N>;
    hn::Vec<decltype(d)> rows[K];
    for (int i = 0; i < K; ++i)
        rows[i] = hn::LoadU(d, reinterpret_cast<const U*>(pixelAt<N>(src, srcStep, sy + i, sx)));
    TransposeRegisters(d, rows);
    for (int i = 0; i < K; ++i)
        hn::StoreU(rows[i], d, reinterpret_cast<U*>(pixelAt<N>(dst, dstStep, dy + i, dx)));
}

// Pixel by pixel, four destination rows at a time: each source row gives
// four adjacent pixels and the destination rows fill in order.
template <std::size_t N>
void TransposeByPixels(const std::uint8_t* src, int srcStep, std::uint8_t* dst, int dstStep, std::ptrdiff_t rows,
                       std::ptrdiff_t cols) {
    constexpr std::ptrdiff_t n = N;
    std::ptrdiff_t c = 0;
    for (; cols - c >= 4; c += 4) {
        std::uint8_t* d0 = rowAt(dst, dstStep, c);
        std::uint8_t* d1 = rowAt(dst, dstStep, c + 1);
        std::uint8_t* d2 = rowAt(dst, dstStep, c + 2);
        std::uint8_t* d3 = rowAt(dst, dstStep, c + 3);
        const std::uint8_t* s = src + c * n;
        for (std::ptrdiff_t r = 0; r < rows; ++r, s += srcStep) {
            std::memcpy(d0 + r * n, s, N);
            std::memcpy(d1 + r * n, s + n, N);
            std::memcpy(d2 + r * n, s + 2 * n, N);
            std::memcpy(d3 + r * n, s + 3 * n, N);
        }
    }
    for (; c < cols; ++c) {
        std::uint8_t* d = rowAt(dst, dstStep, c);
        const std::uint8_t* s = src + c * n;
        for (std::ptrdiff_t r = 0; r < rows; ++r, s += srcStep) std::memcpy(d + r * n, s, N);
    }
}

// Transposes the rows x cols pixels at src into dst (cols x rows).
template <std::size_t N>
void TransposeTile(const std::uint8_t* src, int srcStep, std::uint8_t* dst, int dstStep, std::ptrdiff_t rows,
                   std::ptrdiff_t cols) {
    if constexpr (kInRegisters<N>) {
        constexpr std::ptrdiff_t K = kBlock<N>;
        const std::ptrdiff_t fullRows = rows / K * K;
        const std::ptrdiff_t fullCols = cols / K * K;
        for (std::ptrdiff_t r = 0; r < fullRows; r += K)
            for (std::ptrdiff_t c = 0; c < fullCols; c += K)
                TransposeRegisterBlock<N>(src, srcStep, r, c, dst, dstStep, c, r);
        // The ragged right columns, then the ragged bottom rows.
        TransposeByPixels<N>(pixelAt<N>(src, srcStep, 0, fullCols), srcStep, pixelAt<N>(dst, dstStep, fullCols, 0),
                             dstStep, fullRows, cols - fullCols);
        TransposeByPixels<N>(pixelAt<N>(src, srcStep, fullRows, 0), srcStep, pixelAt<N>(dst, dstStep, 0, fullRows),
                             dstStep, rows - fullRows, cols);
    } else {
        TransposeByPixels<N>(src, srcStep, dst, dstStep, rows, cols);
    }
}

template <std::size_t N>
void TransposeImage(const std::uint8_t* src, int srcStep, std::uint8_t* dst, int dstStep, std::ptrdiff_t width,
                    std::ptrdiff_t height) {
    if constexpr (!kInRegisters<N>) {
        TransposeByPixels<N>(src, srcStep, dst, dstStep, height, width);
        return;
    }
    constexpr std::ptrdiff_t kTile = 64;
    for (std::ptrdiff_t ty = 0; ty < height; ty += kTile)
        for (std::ptrdiff_t tx = 0; tx < width; tx += kTile)
            TransposeTile<N>(pixelAt<N>(src, srcStep, ty, tx), srcStep, pixelAt<N>(dst, dstStep, tx, ty),
                             dstStep, std::min(kTile, height - ty), std::min(kTile, width - tx));
}

template <std::size_t N>
HWY_INLINE void swapPixels(std::uint8_t* a, std::uint8_t* b) {
    std::uint8_t t[N];
    std::memcpy(t, a, N);
    std::memcpy(a, b, N);
    std::memcpy(b, t, N);
}

// Exchanges pixel (r, c) with (c, r) for every r < c inside the register
// block pair at rows bi.. and columns bj.. (bi <= bj, multiples of K).
template <std::size_t N>
void TransposeBlockPair(std::uint8_t* p, int step, std::ptrdiff_t n, std::ptrdiff_t bi, std::ptrdiff_t bj) {
    constexpr std::ptrdiff_t K = kBlock<N>;
    if constexpr (kInRegisters<N>) {
        if (bi + K <= n && bj + K <= n) {
            if (bi == bj) {
                TransposeRegisterBlock<N>(p, step, bi, bi, p, step, bi, bi);
                return;
            }
            using U = Lane<N>;
            const BlockTag<N> d;
            hn::Vec<decltype(d)> upper[K], lower[K];
            for (std::ptrdiff_t i = 0; i < K; ++i) {
                upper[i] = hn::LoadU(d, reinterpret_cast<const U*>(pixelAt<N>(p, step, bi + i, bj)));
                lower[i] = hn::LoadU(d, reinterpret_cast<const U*>(pixelAt<N>(p, step, bj + i, bi)));
            }
            TransposeRegisters(d, upper);
            TransposeRegisters(d, lower);
            for (std::ptrdiff_t i = 0; i < K; ++i) {
                hn::StoreU(upper[i], d, reinterpret_cast<U*>(pixelAt<N>(p, step, bj + i, bi)));
                hn::StoreU(lower[i], d, reinterpret_cast<U*>(pixelAt<N>(p, step, bi + i, bj)));
            }
            return;
        }
    }
    for (std::ptrdiff_t r = bi; r < std::min(bi + K, n); ++r)
        for (std::ptrdiff_t c = std::max(bj, r + 1); c < std::min(bj + K, n); ++c)
            swapPixels<N>(pixelAt<N>(p, step, r, c), pixelAt<N>(p, step, c, r));
}

template <std::size_t N>
void TransposeSquareInPlace(std::uint8_t* p, int step, std::ptrdiff_t n) {
    if constexpr (!kInRegisters<N>) {
        // Row r right of the diagonal against column r below it.
        for (std::ptrdiff_t r = 0; r + 1 < n; ++r) {
            std::uint8_t* right = pixelAt<N>(p, step, r, r + 1);
            std::uint8_t* below = pixelAt<N>(p, step, r + 1, r);
            for (std::ptrdiff_t c = r + 1; c < n; ++c, right += N, below += step) swapPixels<N>(right, below);
        }
        return;
    }
    constexpr std::ptrdiff_t K = kBlock<N>;
    constexpr std::ptrdiff_t kTile = N == 1 ? 32 : 16;  // a multiple of K
    for (std::ptrdiff_t ti = 0; ti < n; ti += kTile)
        for (std::ptrdiff_t tj = ti; tj < n; tj += kTile)
            for (std::ptrdiff_t bi = ti; bi < std::min(ti + kTile, n); bi += K)
                for (std::ptrdiff_t bj = std::max(tj, bi); bj < std::min(tj + kTile, n); bj += K)
                    TransposeBlockPair<N>(p, step, n, bi, bj);
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include "core/checks.h"
#include "core/simd.h"

namespace zel {
namespace {

template <class T, int C>
void transposeSquare(T* pSrcDst, int srcDstStep, ZeliSize roi) {
    constexpr std::size_t N = C * sizeof(T);
    ZEL_DISPATCH(TransposeSquareInPlace<N>)(reinterpret_cast<std::uint8_t*>(pSrcDst), srcDstStep,
                                            roi.width);
}

// The tiles read source pixels after writing destination pixels, so one
// buffer as both is a transposition in place or nothing: a square with one
// step, or zelStatusBadArgument.
template <class T, int C>
ZelStatus transpose(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi) {
    const bool same = pSrc == pDst;
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).that(
            !same || (roi.width == roi.height && srcStep == dstStep), zelStatusBadArgument))
        return st;
    if (same) {
        transposeSquare<T, C>(pDst, dstStep, roi);
        return zelStatusOk;
    }
    constexpr std::size_t N = C * sizeof(T);
    ZEL_DISPATCH(TransposeImage<N>)(reinterpret_cast<const std::uint8_t*>(pSrc), srcStep,
                                    reinterpret_cast<std::uint8_t*>(pDst), dstStep, roi.width, roi.height);
    return zelStatusOk;
}

template <class T, int C>
ZelStatus transposeInPlace(T* pSrcDst, int srcDstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrcDst).roi(roi).that(roi.width == roi.height, zelStatusBadSize))
        return st;
    transposeSquare<T, C>(pSrcDst, srcDstStep, roi);
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_TRANSPOSE(type, C)                                                                  \
    ZelStatus zeliTranspose_##type##_C##C##R(const Zel##type* pSrc, int srcStep, Zel##type* pDst, \
                                            int dstStep, ZeliSize roi) {                          \
        return zel::transpose<Zel##type, C>(pSrc, srcStep, pDst, dstStep, roi);                   \
    }                                                                                             \
    ZelStatus zeliTranspose_##type##_C##C##IR(Zel##type* pSrcDst, int srcDstStep, ZeliSize roi) {   \
        return zel::transposeInPlace<Zel##type, C>(pSrcDst, srcDstStep, roi);                      \
    }
#define ZELI_TRANSPOSE_ALL_LAYOUTS(type) \
    ZELI_TRANSPOSE(type, 1) ZELI_TRANSPOSE(type, 3) ZELI_TRANSPOSE(type, 4)

ZELI_TRANSPOSE_ALL_LAYOUTS(8u)
ZELI_TRANSPOSE_ALL_LAYOUTS(16u)
ZELI_TRANSPOSE_ALL_LAYOUTS(16s)
ZELI_TRANSPOSE_ALL_LAYOUTS(32s)

#endif  // HWY_ONCE
