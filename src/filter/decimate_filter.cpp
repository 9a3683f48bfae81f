// Decimating filters: a triangle low-pass of 2 * factor - 1 taps (weights
// factor - |k|, sum factor^2) along the row or the column, kept at every
// factor-th source pixel, divided by factor^2 as the integer filters divide.
#include "filter/linear_wrapper.h"

namespace zel::filter::linear {
namespace {

constexpr int kMaxFactor = 256;

// The triangle's weights, 2 * factor - 1 of them.
struct Triangle {
    explicit Triangle(int factor) : taps(allocBuffer<Zel32s>(2 * static_cast<std::size_t>(factor) - 1)) {
        if (taps)
            for (int k = 0; k < 2 * factor - 1; ++k) taps[k] = factor - std::abs(k - (factor - 1));
    }
    Buffer<Zel32s> taps;
};

// The integer filters' division of a 32-bit sum, one value at a time.
inline Zel8u divide(std::int32_t s, const Division& div) {
    std::int64_t q = s;
    if (div.mode == 1) {
        const std::int32_t n = div.shift;
        const std::int32_t odd = (s >> n) & 1;
        q = (s >> n) + (((s & ((1 << n) - 1)) + (1 << (n - 1)) - 1 + odd) >> n);
    } else if (div.mode == 2) {
        q = std::lrint(std::min(std::max(static_cast<float>(s) * div.reciprocal, -1.0f), 256.0f));
    }
    return static_cast<Zel8u>(std::min<std::int64_t>(std::max<std::int64_t>(q, 0), 255));
}

ZelStatus decimateChecks(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, int factor,
                         bool row) {
    Check check;
    check.ptrs(pSrc, pDst).roi(roi).that(factor >= 1 && factor <= kMaxFactor, zelStatusBadUpDownFactor);
    if (check.failed()) return check;
    const std::int64_t srcPixels = row ? (std::int64_t{roi.width} + 1) * factor - 1 : roi.width;
    return check.that(srcStep >= srcPixels && dstStep >= roi.width, zelStatusBadStep);
}

}  // namespace
}  // namespace zel::filter::linear

ZelStatus zeliDecimateFilterRow_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
                                       int factor) {
    using namespace zel::filter::linear;
    if (ZelStatus st = decimateChecks(pSrc, srcStep, pDst, dstStep, roi, factor, true)) return st;
    const Triangle triangle(factor);
    if (!triangle.taps) return zelStatusNoMemory;
    const Division div = divisionOf(factor * factor);
    std::optional<zel::StandardFpEnvironment> environment;
    if (div.mode == 2) environment.emplace();
    const std::ptrdiff_t taps = 2 * std::ptrdiff_t{factor} - 1;
    const std::int64_t work = std::int64_t{roi.width} * roi.height * taps;
    const int team = roi.width >= 64 && roi.height >= 64
                         ? zel::teamSize(work, zel::kCostMove, zel::pieceCount(roi.height, roi.width, 256))
                         : 1;
    zel::forEachBlock(roi.height, roi.width, 256, team, [&](const zel::Block& b) {
        for (std::ptrdiff_t y = b.y0; y < b.y1; ++y) {
            const Zel8u* in = zel::rowAt(pSrc, srcStep, y) - (factor - 1);
            Zel8u* out = zel::rowAt(pDst, dstStep, y);
            for (std::ptrdiff_t x = b.begin; x < b.end; ++x) {
                const Zel8u* w = in + x * factor;
                std::int32_t s = 0;
                for (std::ptrdiff_t k = 0; k < taps; ++k) s += triangle.taps[k] * w[k];
                out[x] = divide(s, div);
            }
        }
    });
    return zelStatusOk;
}

ZelStatus zeliDecimateFilterColumn_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi,
                                          int factor) {
    using namespace zel::filter::linear;
    if (ZelStatus st = decimateChecks(pSrc, srcStep, pDst, dstStep, roi, factor, false)) return st;
    const Triangle triangle(factor);
    if (!triangle.taps) return zelStatusNoMemory;
    // A column filter whose successive windows start `factor` rows apart.
    Plan plan;
    plan.taps = triangle.taps.get();
    plan.tapStep = 1;
    plan.k = Shape{1, 2 * factor - 1, 0, factor - 1};
    plan.dividedBy(factor * factor);
    plan.direct = true;
    return runPlan<Zel8u, std::int32_t, Zel8u, Out::Divide, zel::Layout::C1>(
        plan, pSrc, srcStep, pDst, dstStep, roi, static_cast<std::ptrdiff_t>(srcStep) * factor);
}
