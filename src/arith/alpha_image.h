// Wrapper side of alpha compositing and premultiplication: the run-time
// composition type turned into a kernel, and the walk over rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "arith/alpha_rule.h"
#include "core/checks.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/simd.h"
#include "zeli.h"

namespace zel::alpha {

// A composition type above 11, tested as unsigned (negative types too).
inline bool badType(int type) { return static_cast<unsigned>(type) >= static_cast<unsigned>(kTypes); }

// The compositions' checks: null images (every plane of a planar operand
// and the plane array), then the ROI size, then the type.
template <class T>
ZelStatus checkImages(const T* pSrc1, const T* pSrc2, const T* pDst, ZeliSize roi, int type) {
    return Check().ptrs(pSrc1, pSrc2, pDst).roi(roi).that(!badType(type), zelStatusBadAlphaType);
}
template <class T>
ZelStatus checkPlanes(const T* const* pSrc1, const T* const* pSrc2, T* const* pDst, ZeliSize roi, int type) {
    return Check().planes(pSrc1, 4).planes(pSrc2, 4).planes(pDst, 4).roi(roi).that(!badType(type),
                                                                                     zelStatusBadAlphaType);
}

// pick(std::integral_constant<int, Type>) for the run-time `type` 0..11:
// each type is a kernel instantiation of its own.
template <class Pick, int... I>
auto forType(int type, Pick&& pick, std::integer_sequence<int, I...>) {
    decltype(pick(std::integral_constant<int, 0>{})) chosen{};
    (void)((type == I ? (chosen = pick(std::integral_constant<int, I>{}), true) : false) || ...);
    return chosen;
}
template <class Pick>
auto forType(int type, Pick&& pick) {
    return forType(type, pick, std::make_integer_sequence<int, kTypes>{});
}

// Calls body(y, x, count) so that the calls cover pixels [0, rows.width)
// of every row once, on a team as large as the fork rule allows for
// `bytes` bytes read and written; a long collapsed row is cut into pieces.
template <class Body>
void forEachRowPiece(Rows rows, std::int64_t bytes, Body&& body) {
    constexpr std::ptrdiff_t kGrain = 256;  // pixels
    const int team = teamSize(bytes, kCostWiden, pieceCount(rows.height, rows.width, kGrain));
    forEachBlock(rows.height, rows.width, kGrain, team, [&](const Block& b) {
        for (std::ptrdiff_t y = b.y0; y < b.y1; ++y) body(y, b.begin, b.end - b.begin);
    });
}

// Pixel x of row y of an image or a plane.
template <class T>
inline T* pixelAt(T* base, int step, std::ptrdiff_t y, std::ptrdiff_t x, int channels) {
    return rowAt(base, step, y) + x * channels;
}

}  // namespace zel::alpha
