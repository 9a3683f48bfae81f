// Windows of the minimum and maximum filters and of morphology: what a
// window kernel is told besides the frame's block arguments.
//
// A window kernel computes a block of destination rows like the block
// kernels of the fixed filters (two_pass-inl.h), but its source pointer is
// the top-left pixel of the window of the block's first destination pixel,
// and the window's shape comes with the call:
// - a rectangle of `width` x `height` pixels, every pixel a member (the
//   minimum and maximum filters, 3x3 morphology, and arbitrary masks whose
//   members fill their bounding rectangle);
// - or `runCount` runs of member pixels within mask rows (any other mask).
#pragma once

#include <cstddef>

namespace zel::filter {

// `length` member pixels of mask row `row` starting at column `col`.
struct Run {
    int row, col, length;
};

struct Window {
    int width, height;
    // Elements of a destination row worked at a time (rectangles), so that
    // the scratch rows of a thread stay small.
    std::ptrdiff_t chunk;
    const Run* runs;  // null for a rectangle
    int runCount;
};

// `firstRow` is the block's first destination row counted from the ROI's
// first row: the rectangle kernel aligns its column segments on whole
// multiples of the window height from there, so every destination value is
// combined in the same order whichever band of rows computes it.
using WindowKernel = void (*)(const void* src, std::ptrdiff_t srcStep, void* dst, std::ptrdiff_t dstStep,
                              std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n,
                              int channels, void* scratch, const Window& window, std::ptrdiff_t firstRow);

// Window heights up to this are combined row by row; higher ones by
// segments (van Herk / Gil-Werman).
constexpr int kDirectRows = 6;
// Window widths up to this are combined pixel by pixel; wider ones by
// doubling spans.
constexpr int kDirectColumns = 8;

}  // namespace zel::filter
