// The wrapper shared by the user-kernel filters: the check chain, the
// window's origin from the anchor, the division rule of integer kernels,
// kernel conversion, scratch rings per thread and the fork over bands of
// destination rows. The per-target kernels are in linear_kernels.cpp.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <type_traits>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "filter/linear_filter.h"

namespace zel::filter::linear {

// A kernel's extent and anchor (row filters: kh = 1, ay = 0; column
// filters: kw = 1, ax = 0).
struct Shape {
    int kw, kh, ax, ay;
};

// Which pixels the steps must hold: the source's whole window row (2-D and
// row filters) or only the ROI's width (column filters).
enum class StepRule { Window, Width };

// The common chain: pointers, sizes, the divisor (integer kernels), steps.
template <class S, class D, Layout L>
Check commonChecks(const S* pSrc, int srcStep, const D* pDst, int dstStep, ZeliSize roi, const void* pKernel,
                   Shape k, const int* divisor, StepRule rule) {
    constexpr std::int64_t kSrcPixel = kChannels<L> * std::int64_t{sizeof(S)};
    constexpr std::int64_t kDstPixel = kChannels<L> * std::int64_t{sizeof(D)};
    Check check;
    check.ptrs(pSrc, pDst, pKernel).roi(roi).that(k.kw >= 1, zelStatusBadSize).that(k.kh >= 1, zelStatusBadSize);
    if (divisor != nullptr) check.that(*divisor != 0, zelStatusZeroDivisor);
    if (check.failed()) return check;
    const std::int64_t srcPixels = rule == StepRule::Window ? std::int64_t{roi.width} + k.kw - 1 : roi.width;
    return check.that(srcStep >= srcPixels * kSrcPixel && dstStep >= roi.width * kDstPixel, zelStatusBadStep);
}

// How an integer sum is divided by d (Out::Divide).
struct Division {
    int mode = 0, shift = 0;
    float reciprocal = 1.0f;
};
inline Division divisionOf(int d) {
    Division div;
    if (d == 1) return div;
    if (d > 1 && (d & (d - 1)) == 0) {
        div.mode = 1;
        while ((1 << div.shift) != d) ++div.shift;
        return div;
    }
    div.mode = 2;
    const StandardFpEnvironment environment;       // whatever the caller's rounding
    div.reciprocal = static_cast<float>(1.0 / d);  // the float nearest 1/d
    return div;
}

// What a call runs beyond its operands.
struct Plan {
    const void* taps;
    std::ptrdiff_t tapStep;
    Shape k;
    int division = 0, shift = 0;
    float reciprocal = 1.0f;
    double divisor = 1.0;
    bool direct = false;

    // Integer sums divided by `divisor` (Out::Divide), the way chosen once.
    Plan& dividedBy(int divisor) {
        const Division div = divisionOf(divisor);
        division = div.mode;
        shift = div.shift;
        reciprocal = div.reciprocal;
        return *this;
    }
};

// Elements of a strip: the kh rows a strip reads (converted rows of the
// ring, or the source's own rows) stay near 24 KiB, within the first-level
// cache; at least 256 elements, at most the row.
inline std::ptrdiff_t stripChunk(std::ptrdiff_t n, std::ptrdiff_t kh, std::ptrdiff_t reach, std::size_t laneBytes) {
    std::ptrdiff_t chunk = static_cast<std::ptrdiff_t>(24576 / (laneBytes * kh)) - reach;
    chunk = std::max<std::ptrdiff_t>(256, chunk / 64 * 64);
    return std::min(chunk, (n + 63) / 64 * 64);
}

// Runs a checked call: the window origin, the team, scratch, the
// floating-point environment and the bands of rows.
template <class S, class A, class D, Out O, Layout L>
ZelStatus runPlan(const Plan& plan, const S* pSrc, int srcStep, D* pDst, int dstStep, ZeliSize roi,
                  std::ptrdiff_t srcAdvance = 0) {
    constexpr int C = kChannels<L>;
    constexpr std::ptrdiff_t kGrain = 256;  // elements: whole vectors of whole AC4 pixels
    const Shape k = plan.k;
    Params p{};
    // Top-left pixel of dst(0, 0)'s window: kw - 1 - ax pixels left, kh - 1 - ay rows up.
    p.src = byteOffset(pSrc - (std::ptrdiff_t{k.kw} - 1 - k.ax) * C,
                       -(std::ptrdiff_t{k.kh} - 1 - k.ay) * srcStep);
    p.srcStep = srcStep;
    p.srcAdvance = srcAdvance != 0 ? srcAdvance : srcStep;
    p.dst = pDst;
    p.dstStep = dstStep;
    p.taps = plan.taps;
    p.tapStep = plan.tapStep;
    p.kw = k.kw;
    p.kh = k.kh;
    p.channels = C;
    p.n = std::ptrdiff_t{roi.width} * C;
    p.division = plan.division;
    p.shift = plan.shift;
    p.reciprocal = plan.reciprocal;
    p.divisor = plan.divisor;
    p.direct = plan.direct || std::is_same_v<S, A> || p.srcAdvance != p.srcStep;

    // ROIs of at least 64 x 64 pixels fork when the work pays for the team;
    // a kernel's cost per byte grows with its taps.
    const std::int64_t taps = std::int64_t{k.kw} * k.kh;
    const int cost = static_cast<int>(std::min<std::int64_t>(std::max<std::int64_t>(taps, kCostWiden), 4096));
    const std::int64_t touched = (std::int64_t{sizeof(S)} + sizeof(D)) * p.n * roi.height;
    const int team = roi.width >= 64 && roi.height >= 64
                         ? teamSize(touched, cost, pieceCount(roi.height, p.n, kGrain))
                         : 1;

    std::size_t perThread = 0;
    const std::ptrdiff_t reach = (std::ptrdiff_t{k.kw} - 1) * C;
    p.chunk = stripChunk(p.n, k.kh, reach, p.direct ? sizeof(S) : sizeof(A));
    if (!p.direct) perThread = ((std::size_t{1} + k.kh) * (p.chunk + reach) * sizeof(A) + 63) / 64 * 64;
    Buffer<std::uint8_t> scratch;
    if (perThread != 0) {
        scratch = allocBuffer<std::uint8_t>(perThread * team);
        if (!scratch) return zelStatusNoMemory;
    }
    std::optional<StandardFpEnvironment> environment;
    if (!std::is_integral_v<A> || p.division == 2) environment.emplace();
    const Kernel kernel = kernelFor<S, A, D, O, L == Layout::AC4>();
    forEachBlock(roi.height, p.n, kGrain, team, [&](const Block& b) {
        kernel(p, b.y0, b.y1, b.begin, b.end, scratch ? scratch.get() + perThread * b.thread : nullptr);
    });
    return zelStatusOk;
}

// A kernel of K read in place as the mirrored taps of accumulator type K.
template <class K>
Plan inPlace(const K* pKernel, Shape k) {
    Plan plan;
    plan.taps = pKernel + (std::ptrdiff_t{k.kw} * k.kh - 1);
    plan.tapStep = -1;
    plan.k = k;
    return plan;
}

// An integer kernel converted to single precision (each element times the
// float nearest 1/divisor), mirrored: up to 256 elements on the stack,
// larger kernels on the heap.
class FloatKernel {
public:
    bool convert(const Zel32s* pKernel, std::int64_t count, int divisor) {
        float* out = local_;
        if (count > kLocal) {
            heap_ = allocBuffer<float>(static_cast<std::size_t>(count));
            if (!heap_) return false;
            out = heap_.get();
        }
        const StandardFpEnvironment environment;  // whatever the caller's rounding
        const float r = static_cast<float>(1.0 / divisor);
        for (std::int64_t t = 0; t < count; ++t) out[t] = static_cast<float>(pKernel[count - 1 - t]) * r;
        taps_ = out;
        return true;
    }
    const float* taps() const { return taps_; }

private:
    static constexpr std::int64_t kLocal = 256;
    float local_[kLocal];
    Buffer<float> heap_;
    const float* taps_ = nullptr;
};

// Size of a Filter_Round / Filter_64f work buffer: (8 * maxWidth + 16 *
// kernel elements + 43) bytes for each thread of the setting.
inline ZelStatus workBufferSize(ZeliSize kernelSize, int maxWidth, int* pBufferSize) {
    if (ZelStatus st = Check().ptrs(pBufferSize).that(
            kernelSize.width >= 1 && kernelSize.height >= 1 && maxWidth >= 1, zelStatusBadSize))
        return st;
    const std::int64_t part =
        8 * std::int64_t{maxWidth} + 16 * std::int64_t{kernelSize.width} * kernelSize.height + 43;
    const std::int64_t bytes = part * ownGetNumThreads();
    if (part > INT_MAX || bytes > INT_MAX) return zelStatusBadSize;
    *pBufferSize = static_cast<int>(bytes);
    return zelStatusOk;
}

}  // namespace zel::filter::linear
