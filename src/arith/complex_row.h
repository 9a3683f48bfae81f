// Scalar row kernel of the 32-bit integer complex type, whose exact sums
// and products need more than 64 bits.
//
// Same row contract as the SIMD kernel: n base elements, q a row or a
// pattern of `period` values, `keep` marking the untouched channels. Each
// part is formed exactly in 128 bits and goes through the scale-factor rule
// on its own. The kernel is written for any part type, so it is also the
// plain statement of what the SIMD kernels compute.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "arith/scale.h"
#include "core/image.h"
#include "core/pixel.h"

namespace zel::arith {

template <class B>
using ExactOf = std::conditional_t<std::is_floating_point_v<B>, B,
                std::conditional_t<sizeof(B) == 2, std::int64_t, __int128>>;

template <class Op, class B, Band Bd>
void ComplexRow(const B* p, const B* q, bool qPattern, B* dst, std::ptrdiff_t n, int period,
                const BitsOf<B>* keep, const ScaleArgs& args) {
    using E = ExactOf<B>;
    auto finish = [&](E v) -> B {
        if constexpr (std::is_floating_point_v<B>) {
            return v;
        } else {
            if constexpr (Bd == Band::Zero) return B(0);
            return scaleSaturate<B>(v, args.scale);
        }
    };
    int c = 0;  // place within the pattern
    for (std::ptrdiff_t i = 0; i < n; i += 2, c = (c + 2 == period) ? 0 : c + 2) {
        if (keep != nullptr && keep[c] != 0) continue;
        const B* qv = qPattern ? q + c : q + i;
        const E pr = p[i], pi = p[i + 1], qr = qv[0], qi = qv[1];
        E re, im;
        if constexpr (std::is_same_v<Op, MulOp>) {
            re = pr * qr - pi * qi;
            im = pr * qi + pi * qr;
        } else if constexpr (std::is_same_v<Op, SubOp>) {
            re = pr - qr;
            im = pi - qi;
        } else {
            re = pr + qr;
            im = pi + qi;
        }
        dst[i] = finish(re);
        dst[i + 1] = finish(im);
    }
}

// The row kernel's block form (see BinaryRows).
template <class Op, class B, Band Bd>
void ComplexRows(const B* p, std::ptrdiff_t pStep, const B* q, std::ptrdiff_t qStep, bool qPattern, B* dst,
                 std::ptrdiff_t dstStep, std::ptrdiff_t n, std::ptrdiff_t rows, int period, const BitsOf<B>* keep,
                 const ScaleArgs& args) {
    for (std::ptrdiff_t y = 0; y < rows; ++y)
        ComplexRow<Op, B, Bd>(byteOffset(p, pStep * y), qPattern ? q : byteOffset(q, qStep * y), qPattern,
                              byteOffset(dst, dstStep * y), n, period, keep, args);
}

}  // namespace zel::arith
