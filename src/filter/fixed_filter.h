// The wrapper shared by the fixed-kernel filters: the common check order,
// the mask-code rules, scratch rows per thread and the fork over bands of
// destination rows.
//
// Include after the per-target kernels (two_pass-inl.h) inside HWY_ONCE.
// A family file names its kernels (Kernels<K3x3, K5x5>) and instantiates
// its members with the ZEL_FIXED_FILTER* macros below.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "filter/fixed_kernels.h"

namespace zel::filter {

using BlockKernel = void (*)(const void* src, std::ptrdiff_t srcStep, void* dst, std::ptrdiff_t dstStep,
                             std::ptrdiff_t rows, std::ptrdiff_t begin, std::ptrdiff_t end, std::ptrdiff_t n,
                             int channels, void* scratch);

// What a call runs: the block kernel of the best SIMD target, the kernel's
// radius, the scratch of one thread (fixedElements + elementsPerChannel *
// channels lanes of laneBytes), and whether the kernel computes in floating
// point (then it runs under the standard floating-point environment,
// whatever the caller's), and whether it always runs on the calling thread.
struct Plan {
    BlockKernel kernel;
    int radius;
    std::ptrdiff_t fixedElements, elementsPerChannel;
    int laneBytes;
    bool floatMath;
};

// 32f kernels, and the divisions of 32-bit integer sums (through a
// single-precision quotient or product) compute in floating point.
template <class K, class S>
constexpr bool kFloatMath = std::is_floating_point_v<S> ||
                            (sizeof(AccumulatorOf<K, S>) == 4 && (K::kFinish == Finish::Mean9 ||
                                                                  K::kFinish == Finish::Mean25 ||
                                                                  K::kFinish == Finish::Gauss571));

template <class K, class S, class D, bool KeepAlpha>
Plan planOf() {
    if constexpr (K::kSymmetric5)
        return Plan{ZEL_DISPATCH(Symmetric5Block<K, S, D, KeepAlpha>), 2, 15 * kRingChunk, 0,
                    static_cast<int>(sizeof(ProfileLaneOf<K, S>)), kFloatMath<K, S>};
    else
        return Plan{ZEL_DISPATCH(SeparableBlock<K, S, D, KeepAlpha>), K::kRadius, kChunk, 2 * K::kRadius,
                    static_cast<int>(sizeof(AccumulatorOf<K, S>)), kFloatMath<K, S>};
}

// A family's kernels: K3 for the 3x3 mask, K5 for the 5x5 one.
template <class K3, class K5 = K3>
struct Kernels {
    template <class S, class D, bool KeepAlpha>
    static Plan plan(int radius) {
        return radius == 1 ? planOf<K3, S, D, KeepAlpha>() : planOf<K5, S, D, KeepAlpha>();
    }
};

// How a member reads its mask code: 0 as the radius means -33.
enum class MaskRule {
    Fixed3x3,  // no mask argument: always 3x3
    Strict,    // 33: 3x3, 55: 5x5, anything else zelStatusBadMaskSize
    Lenient,   // 33: 3x3, any other value 5x5 (never an error)
};

inline int radiusOf(MaskRule rule, int mask) {
    switch (rule) {
        case MaskRule::Fixed3x3: return 1;
        case MaskRule::Strict: return mask == zelMaskCode3x3 ? 1 : mask == zelMaskCode5x5 ? 2 : 0;
        case MaskRule::Lenient: break;
    }
    return mask == zelMaskCode3x3 ? 1 : 2;
}

// Weight of a filter's work per byte for the fork rule: a 3x3 kernel costs
// about as much per byte as a division, a 5x5 one more.
inline int forkCost(int radius) { return radius == 1 ? kCostDivide : kCostComplexDivide; }

// Runs a planned filter over the ROI: the rows go to the team in bands,
// each thread with its own scratch row.
template <class S, class D, Layout L>
ZelStatus runPlan(const Plan& plan, const S* src, int srcStep, D* dst, int dstStep, ZeliSize roi) {
    constexpr int C = kChannels<L>;
    constexpr std::ptrdiff_t kGrain = 256;  // elements: whole vectors of whole AC4 pixels
    const std::ptrdiff_t n = std::ptrdiff_t{roi.width} * C;
    const std::int64_t touched = (std::int64_t{sizeof(S)} + sizeof(D)) * n * roi.height;
    const int team = teamSize(touched, forkCost(plan.radius), pieceCount(roi.height, n, kGrain));

    // Scratch for each thread, on its own cache lines.
    const std::size_t perThread =
        (static_cast<std::size_t>(plan.fixedElements + plan.elementsPerChannel * C) * plan.laneBytes + 63) / 64 * 64;
    Buffer<std::uint8_t> scratch = allocBuffer<std::uint8_t>(perThread * team);
    if (!scratch) return zelStatusNoMemory;
    std::optional<StandardFpEnvironment> environment;
    if (plan.floatMath) environment.emplace();
    forEachBlock(roi.height, n, kGrain, team, [&](const Block& b) {
        plan.kernel(rowAt(src, srcStep, b.y0), srcStep, rowAt(dst, dstStep, b.y0), dstStep, b.y1 - b.y0, b.begin,
                    b.end, n, C, scratch.get() + perThread * b.thread);
    });
    return zelStatusOk;
}

// One member: the common checks (pointers, size, steps, then the mask
// code), then the family's plan for the radius.
template <class Family, MaskRule Rule, class S, class D, Layout L>
ZelStatus fixedFilter(const S* pSrc, int srcStep, D* pDst, int dstStep, ZeliSize roi, int mask) {
    const int radius = radiusOf(Rule, mask);
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep).that(radius != 0,
                                                                                      zelStatusBadMaskSize))
        return st;
    return runPlan<S, D, L>(Family::template plan<S, D, L == Layout::AC4>(radius), pSrc, srcStep, pDst,
                            dstStep, roi);
}

}  // namespace zel::filter

// Members: zeli<name>_<types>_<layout>R, with or without a mask code. `st`
// and `dt` are the source and destination type suffixes; `types` the
// name's type part (8u, 8u16s).
#define ZEL_FIXED_FILTER(name, Family, types, st, dt, lay)                                                \
    ZelStatus zeli##name##_##types##_##lay##R(const Zel##st* pSrc, int srcStep, Zel##dt* pDst, int dstStep, \
                                              ZeliSize roi) {                                              \
        return ::zel::filter::fixedFilter<Family, ::zel::filter::MaskRule::Fixed3x3, Zel##st, Zel##dt,     \
                                          ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roi, 0);       \
    }
#define ZEL_FIXED_FILTER_MASK(name, Family, Rule, types, st, dt, lay)                                     \
    ZelStatus zeli##name##_##types##_##lay##R(const Zel##st* pSrc, int srcStep, Zel##dt* pDst, int dstStep, \
                                              ZeliSize roi, ZeliMaskCode mask) {                           \
        return ::zel::filter::fixedFilter<Family, ::zel::filter::MaskRule::Rule, Zel##st, Zel##dt,          \
                                          ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roi, mask);    \
    }

// A same-type member over layouts: C1, C3, C4 and AC4, or C1, C3 and AC4.
#define ZEL_FIXED_FILTER_4(name, Family, t)                                              \
    ZEL_FIXED_FILTER(name, Family, t, t, t, C1) ZEL_FIXED_FILTER(name, Family, t, t, t, C3) \
    ZEL_FIXED_FILTER(name, Family, t, t, t, C4) ZEL_FIXED_FILTER(name, Family, t, t, t, AC4)
#define ZEL_FIXED_FILTER_MASK_4(name, Family, t)                                  \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, C1)                      \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, C3)                      \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, C4)                      \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, AC4)
#define ZEL_FIXED_FILTER_MASK_3(name, Family, t)                                  \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, C1)                      \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, C3)                      \
    ZEL_FIXED_FILTER_MASK(name, Family, Strict, t, t, t, AC4)
