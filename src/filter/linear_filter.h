// The engine of the user-kernel filters: one block kernel per source type,
// accumulator type, destination type and finishing rule, working on a
// window of rows and elements like the fixed filters' block kernels.
//
// The caller's kernel is applied as a true convolution. The wrapper turns
// it into a correlation over the window that starts at the top-left pixel
// of dst(0, 0)'s window: tap t = u * kw + v (row u, column v of the
// window) multiplies source pixel (x + v, y + u) of that origin, and its
// weight is taps[t * tapStep]. Passing the kernel's last element with
// tapStep -1 mirrors the caller's kernel in place; converted kernels are
// written mirrored with tapStep 1.
//
// Sums run tap by tap in that order (row by row from the top, left to
// right), each product rounded before it is added: the bits are the same
// for every vector width and every split of the rows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "zeli.h"

namespace zel::filter::linear {

// How the accumulated value becomes a destination value.
enum class Out {
    Same,     // float data: the sum itself
    Divide,   // 32-bit integer sum divided by the divisor: `division` 0 (d = 1),
              // 1 (d = 2^shift, ties to even), 2 (single-precision reciprocal)
    Nearest,  // single-precision sum rounded to nearest even, saturated
    Round,    // float or double sum (double: divided by `divisor`) rounded by
              // `division` as a rounding mode (0, 1, 2), saturated
};

struct Params {
    const void* src;           // top-left pixel of the window of dst(0, 0)
    std::ptrdiff_t srcStep;    // bytes between the window's rows
    std::ptrdiff_t srcAdvance; // bytes between the windows of successive destination rows
    void* dst;
    std::ptrdiff_t dstStep;
    const void* taps;          // weight of tap t at taps[t * tapStep], accumulator type
    std::ptrdiff_t tapStep;
    std::ptrdiff_t kw, kh;
    int channels;
    std::ptrdiff_t n;          // elements of a destination row
    int division;
    int shift;
    float reciprocal;
    double divisor;
    bool direct;               // read the source at every tap instead of a ring of converted rows
    std::ptrdiff_t chunk;      // elements per strip (columns worked down the block together)
};

// Rows [y0, y1) and elements [begin, end) of the destination; `ring` is the
// thread's scratch ((kh + 1) * (chunk + (kw - 1) * channels) accumulators) unless
// the plan is direct.
using Kernel = void (*)(const Params& p, std::ptrdiff_t y0, std::ptrdiff_t y1, std::ptrdiff_t begin,
                        std::ptrdiff_t end, void* ring);

// The kernel of the best SIMD target for this processor (linear_kernels.cpp
// instantiates the combinations the members use).
template <class S, class A, class D, Out O, bool KeepAlpha>
Kernel kernelFor();

}  // namespace zel::filter::linear
