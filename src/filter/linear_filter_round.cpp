// 2-D user-kernel filters with a rounding mode and the caller's work
// buffer, and the sizes of those buffers.
#include "filter/linear_wrapper.h"

namespace zel::filter::linear {
namespace {

// Round32f: single-precision kernel and sums, read in place; the buffer is
// checked but not needed.
template <class T, Layout L>
ZelStatus roundFloat(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const Zel32f* pKernel,
                     ZeliSize kernelSize, ZeliPoint anchor, int rndMode, Zel8u* pBuffer) {
    const Shape k{kernelSize.width, kernelSize.height, anchor.x, anchor.y};
    if (ZelStatus st = commonChecks<T, T, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, nullptr, StepRule::Window)
                           .that(rndMode >= 0 && rndMode <= 2, zelStatusBadRoundMode)
                           .ptrs(pBuffer))
        return st;
    Plan plan = inPlace(pKernel, k);
    plan.division = rndMode;
    plan.direct = true;
    return runPlan<T, float, T, Out::Round, L>(plan, pSrc, srcStep, pDst, dstStep, roi);
}

// Round16s, Round32s: an integer kernel converted to double precision,
// mirrored, at the start of the caller's buffer (aligned to 8 bytes within
// it); exact double sums divided by the divisor.
template <class T, class K, Layout L>
ZelStatus roundInteger(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const K* pKernel,
                       ZeliSize kernelSize, ZeliPoint anchor, int divisor, int rndMode, Zel8u* pBuffer) {
    const Shape k{kernelSize.width, kernelSize.height, anchor.x, anchor.y};
    if (ZelStatus st = commonChecks<T, T, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, &divisor, StepRule::Window)
                           .that(rndMode >= 0 && rndMode <= 2, zelStatusBadRoundMode)
                           .ptrs(pBuffer))
        return st;
    const std::uintptr_t at = (reinterpret_cast<std::uintptr_t>(pBuffer) + 7) & ~std::uintptr_t{7};
    double* taps = reinterpret_cast<double*>(at);
    const std::int64_t count = std::int64_t{k.kw} * k.kh;
    for (std::int64_t t = 0; t < count; ++t) taps[t] = static_cast<double>(pKernel[count - 1 - t]);
    Plan plan;
    plan.taps = taps;
    plan.tapStep = 1;
    plan.k = k;
    plan.division = rndMode;
    plan.divisor = divisor;
    plan.direct = true;
    return runPlan<T, double, T, Out::Round, L>(plan, pSrc, srcStep, pDst, dstStep, roi);
}

}  // namespace
}  // namespace zel::filter::linear

#define ZEL_FILTER_ROUND32F(t, lay)                                                                          \
    ZelStatus zeliFilter_Round32f_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,  \
                                                 ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize,    \
                                                 ZeliPoint anchor, ZelRoundingMode rndMode, Zel8u* pBuffer) { \
        return ::zel::filter::linear::roundFloat<Zel##t, ::zel::Layout::lay>(                                \
            pSrc, srcStep, pDst, dstStep, roi, pKernel, kernelSize, anchor, rndMode, pBuffer);                \
    }
#define ZEL_FILTER_ROUNDINT(k, t, lay)                                                                        \
    ZelStatus zeliFilter_Round##k##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep, \
                                                   ZeliSize roi, const Zel##k* pKernel, ZeliSize kernelSize,   \
                                                   ZeliPoint anchor, int divisor, ZelRoundingMode rndMode,     \
                                                   Zel8u* pBuffer) {                                           \
        return ::zel::filter::linear::roundInteger<Zel##t, Zel##k, ::zel::Layout::lay>(                       \
            pSrc, srcStep, pDst, dstStep, roi, pKernel, kernelSize, anchor, divisor, rndMode, pBuffer);        \
    }
#define ZEL_ROUND_BUFSIZE(k, t, lay)                                                                     \
    ZelStatus zeliFilterRoundGetBufSize##k##_##t##_##lay##R(ZeliSize kernelSize, int maxWidth,           \
                                                            int* pBufferSize) {                          \
        return ::zel::filter::linear::workBufferSize(kernelSize, maxWidth, pBufferSize);                 \
    }
#define ZEL_LAYOUTS(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)

ZEL_LAYOUTS(ZEL_FILTER_ROUNDINT, 16s, 8u)
ZEL_LAYOUTS(ZEL_FILTER_ROUND32F, 8u)
ZEL_LAYOUTS(ZEL_FILTER_ROUND32F, 16s)
ZEL_LAYOUTS(ZEL_FILTER_ROUND32F, 16u)
ZEL_LAYOUTS(ZEL_FILTER_ROUNDINT, 32s, 16s)
ZEL_LAYOUTS(ZEL_FILTER_ROUNDINT, 32s, 16u)

ZEL_LAYOUTS(ZEL_ROUND_BUFSIZE, 16s, 8u)
ZEL_LAYOUTS(ZEL_ROUND_BUFSIZE, 32f, 8u)
ZEL_LAYOUTS(ZEL_ROUND_BUFSIZE, 32f, 16s)
ZEL_LAYOUTS(ZEL_ROUND_BUFSIZE, 32f, 16u)
ZEL_LAYOUTS(ZEL_ROUND_BUFSIZE, 32s, 16s)
ZEL_LAYOUTS(ZEL_ROUND_BUFSIZE, 32s, 16u)
