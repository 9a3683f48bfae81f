// 2-D user-kernel filters: integer kernels with a divisor, float kernels on
// integer data, float and double data, and the size of the 64f work buffer.
#include "filter/linear_wrapper.h"

namespace zel::filter::linear {
namespace {

// Filter_8u, Filter_16s: 32-bit integer sums divided by the divisor.
template <class T, Layout L>
ZelStatus integerKernel(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const Zel32s* pKernel,
                        ZeliSize kernelSize, ZeliPoint anchor, int divisor) {
    const Shape k{kernelSize.width, kernelSize.height, anchor.x, anchor.y};
    if (ZelStatus st = commonChecks<T, T, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, &divisor, StepRule::Window))
        return st;
    return runPlan<T, std::int32_t, T, Out::Divide, L>(inPlace(pKernel, k).dividedBy(divisor), pSrc, srcStep, pDst,
                                                       dstStep, roi);
}

// Filter32f on integer data (and Filter_16u through it), Filter_32f and
// Filter_64f: taps of K read in place, or a converted float kernel.
template <class T, class K, Layout L>
ZelStatus floatKernel(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const K* pKernel,
                      ZeliSize kernelSize, ZeliPoint anchor, std::ptrdiff_t tapStep = -1) {
    const Shape k{kernelSize.width, kernelSize.height, anchor.x, anchor.y};
    if (ZelStatus st = commonChecks<T, T, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, nullptr, StepRule::Window))
        return st;
    Plan plan = inPlace(pKernel, k);
    if (tapStep == 1) {  // already mirrored
        plan.taps = pKernel;
        plan.tapStep = 1;
    }
    constexpr Out kOut = std::is_floating_point_v<T> ? Out::Same : Out::Nearest;
    return runPlan<T, K, T, kOut, L>(plan, pSrc, srcStep, pDst, dstStep, roi);
}

// Filter_16u: the kernel checked and converted to float first.
template <Layout L>
ZelStatus integerKernel16u(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi,
                           const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor) {
    if (ZelStatus st = Check()
                           .ptrs(pKernel)
                           .that(kernelSize.width >= 1 && kernelSize.height >= 1, zelStatusBadSize)
                           .that(divisor != 0, zelStatusZeroDivisor))
        return st;
    FloatKernel converted;
    if (!converted.convert(pKernel, std::int64_t{kernelSize.width} * kernelSize.height, divisor))
        return zelStatusNoMemory;
    return floatKernel<Zel16u, float, L>(pSrc, srcStep, pDst, dstStep, roi, converted.taps(), kernelSize, anchor, 1);
}

template <Layout L>
ZelStatus filter64f(const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize roi,
                    const Zel64f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, Zel8u* pBuffer) {
    const Shape k{kernelSize.width, kernelSize.height, anchor.x, anchor.y};
    if (ZelStatus st = commonChecks<Zel64f, Zel64f, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, nullptr,
                                                       StepRule::Window)
                           .ptrs(pBuffer))
        return st;
    return runPlan<Zel64f, double, Zel64f, Out::Same, L>(inPlace(pKernel, k), pSrc, srcStep, pDst, dstStep, roi);
}

}  // namespace
}  // namespace zel::filter::linear

#define ZEL_FILTER_INT(t, lay)                                                                               \
    ZelStatus zeliFilter_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep, ZeliSize roi, \
                                        const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor,             \
                                        int divisor) {                                                            \
        return ::zel::filter::linear::integerKernel<Zel##t, ::zel::Layout::lay>(                                 \
            pSrc, srcStep, pDst, dstStep, roi, pKernel, kernelSize, anchor, divisor);                             \
    }
#define ZEL_FILTER_INT16U(lay)                                                                                \
    ZelStatus zeliFilter_16u_##lay##R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, \
                                      const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor) { \
        return ::zel::filter::linear::integerKernel16u<::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roi,   \
                                                                             pKernel, kernelSize, anchor, divisor); \
    }
#define ZEL_FILTER_FLOAT(name, t, lay)                                                                      \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,         \
                                          ZeliSize roi, const Zel32f* pKernel, ZeliSize kernelSize,           \
                                          ZeliPoint anchor) {                                                 \
        return ::zel::filter::linear::floatKernel<Zel##t, float, ::zel::Layout::lay>(                        \
            pSrc, srcStep, pDst, dstStep, roi, pKernel, kernelSize, anchor);                                  \
    }
#define ZEL_LAYOUTS(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)

ZEL_LAYOUTS(ZEL_FILTER_INT, 8u)
ZEL_LAYOUTS(ZEL_FILTER_INT, 16s)
ZEL_FILTER_INT16U(C1)
ZEL_FILTER_INT16U(C3)
ZEL_FILTER_INT16U(C4)
ZEL_FILTER_INT16U(AC4)
ZEL_LAYOUTS(ZEL_FILTER_FLOAT, Filter32f, 8u)
ZEL_LAYOUTS(ZEL_FILTER_FLOAT, Filter32f, 16s)
ZEL_LAYOUTS(ZEL_FILTER_FLOAT, Filter32f, 16u)
ZEL_LAYOUTS(ZEL_FILTER_FLOAT, Filter, 32f)

ZelStatus zeliFilter_64f_C1R(const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize roi,
                             const Zel64f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, Zel8u* pBuffer) {
    return zel::filter::linear::filter64f<zel::Layout::C1>(pSrc, srcStep, pDst, dstStep, roi, pKernel, kernelSize,
                                                           anchor, pBuffer);
}

ZelStatus zeliFilterGetBufSize_64f_C1R(ZeliSize kernelSize, int maxWidth, int* pBufferSize) {
    return zel::filter::linear::workBufferSize(kernelSize, maxWidth, pBufferSize);
}
