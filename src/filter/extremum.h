// The frame of the minimum and maximum filters and of morphology: window
// kernels chosen for the best SIMD target, their scratch, the fork over
// bands of destination rows, and the in-place form with held-back rows.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/image.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "filter/window.h"
#include "zeli.h"

namespace zel::filter {

// Kernels of the best target (extremum.cpp instantiates them for Zel8u,
// Zel16u, Zel16s and Zel32f).
template <class T, bool IsMax, bool KeepAlpha>
WindowKernel rectKernel();
template <class T, bool IsMax, bool KeepAlpha>
WindowKernel runsKernel();
template <class T>
void copyColour(const T* from, T* to, std::ptrdiff_t pixels);

// The largest byte of a mask (0: no member at all).
Zel8u maskMaximum(const Zel8u* mask, std::ptrdiff_t count);

// What a call runs: the kernel, the window and one thread's scratch.
struct WindowPlan {
    WindowKernel kernel;
    Window window;
    std::ptrdiff_t scratchElements;
};

// A rectangle of width x height pixels of `channels` elements of `elementBytes`.
WindowPlan planRect(WindowKernel kernel, int width, int height, int channels, int elementBytes);

// Runs a plan over the ROI. `origin` is the top-left pixel of the first
// destination pixel's window. Rows go to a team in bands under the fork
// rule of the library.
template <class T, Layout L>
ZelStatus runWindow(const WindowPlan& plan, const T* origin, int srcStep, T* dst, int dstStep, ZeliSize roi) {
    constexpr int C = kChannels<L>;
    constexpr std::ptrdiff_t kGrain = 256;  // elements: whole vectors of whole AC4 pixels
    const std::ptrdiff_t n = std::ptrdiff_t{roi.width} * C;
    const std::int64_t touched = std::int64_t{2} * sizeof(T) * n * roi.height;
    const int cost = plan.window.runs != nullptr && plan.window.runCount > 3 ? kCostComplexDivide : kCostDivide;
    const int team = teamSize(touched, cost, pieceCount(roi.height, n, kGrain));
    const std::size_t perThread = (static_cast<std::size_t>(plan.scratchElements) * sizeof(T) + 64) / 64 * 64;
    Buffer<std::uint8_t> scratch = allocBuffer<std::uint8_t>(perThread * team);
    if (!scratch) return zelStatusNoMemory;
    forEachBlock(roi.height, n, kGrain, team, [&](const Block& b) {
        plan.kernel(rowAt(origin, srcStep, b.y0), srcStep, rowAt(dst, dstStep, b.y0), dstStep, b.y1 - b.y0, b.begin,
                    b.end, n, C, scratch.get() + perThread * b.thread, plan.window, b.y0);
    });
    return zelStatusOk;
}

// In place: the result of the image as it was. The window reaches `above`
// rows above its destination row; the rows are computed in groups of
// K >= above rows into two alternating buffers, and a group is written back
// once the next one has been computed (no later window reads it then). The
// pixels around the ROI are read, never written. On the calling thread.
template <class T, Layout L>
ZelStatus runWindowInPlace(const WindowPlan& plan, T* image, int step, ZeliSize roi, int above, int left) {
    constexpr int C = kChannels<L>;
    const std::ptrdiff_t n = std::ptrdiff_t{roi.width} * C;
    const std::ptrdiff_t K = std::min<std::ptrdiff_t>(roi.height, std::max(above, 8));
    const std::ptrdiff_t rowElements = (n + 63) / 64 * 64;
    const std::size_t held = static_cast<std::size_t>(2 * K * rowElements);
    Buffer<T> buffer = allocBuffer<T>(held + static_cast<std::size_t>(plan.scratchElements) + 64);
    if (!buffer) return zelStatusNoMemory;
    T* groups[2] = {buffer.get(), buffer.get() + K * rowElements};
    void* scratch = buffer.get() + held;
    const T* origin = byteOffset(rowAt(image, step, -above), -std::ptrdiff_t{left} * C * std::ptrdiff_t(sizeof(T)));
    const std::ptrdiff_t bufferStep = rowElements * static_cast<std::ptrdiff_t>(sizeof(T));
    auto writeBack = [&](std::ptrdiff_t group) {
        const std::ptrdiff_t y0 = group * K, rows = std::min(K, roi.height - y0);
        for (std::ptrdiff_t y = 0; y < rows; ++y) {
            const T* from = groups[group & 1] + y * rowElements;
            T* to = rowAt(image, step, y0 + y);
            if constexpr (L == Layout::AC4) copyColour(from, to, roi.width);
            else std::memcpy(to, from, sizeof(T) * n);
        }
    };
    const std::ptrdiff_t count = (roi.height + K - 1) / K;
    for (std::ptrdiff_t g = 0; g < count; ++g) {
        const std::ptrdiff_t y0 = g * K, rows = std::min(K, roi.height - y0);
        plan.kernel(rowAt(origin, step, y0), step, groups[g & 1], bufferStep, rows, 0, n, n, C, scratch, plan.window,
                    y0);
        if (g > 0) writeBack(g - 1);
    }
    writeBack(count - 1);
    return zelStatusOk;
}

}  // namespace zel::filter
