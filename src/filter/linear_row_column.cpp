// Row and column filters: the 2-D engine with a kernel one row high or one
// column wide. Integer kernels on 8u divide their 32-bit sums; on 16s and
// 16u they become float kernels (times the reciprocal of the divisor).
#include "filter/linear_wrapper.h"

namespace zel::filter::linear {
namespace {

// kernelSize elements along the row (Row) or the column (Column).
inline Shape shapeOf(bool row, int length, int anchor) {
    return row ? Shape{length, 1, anchor, 0} : Shape{1, length, 0, anchor};
}

template <bool Row, class T, Layout L>
ZelStatus integerLine(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const Zel32s* pKernel,
                      int kernelSize, int anchor, int divisor) {
    const Shape k = shapeOf(Row, kernelSize, anchor);
    if (ZelStatus st = commonChecks<T, T, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, &divisor,
                                             Row ? StepRule::Window : StepRule::Width))
        return st;
    return runPlan<T, std::int32_t, T, Out::Divide, L>(inPlace(pKernel, k).dividedBy(divisor), pSrc, srcStep, pDst,
                                                       dstStep, roi);
}

template <bool Row, class T, Layout L>
ZelStatus floatLine(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const Zel32f* pKernel,
                    int kernelSize, int anchor, std::ptrdiff_t tapStep = -1) {
    const Shape k = shapeOf(Row, kernelSize, anchor);
    if (ZelStatus st = commonChecks<T, T, L>(pSrc, srcStep, pDst, dstStep, roi, pKernel, k, nullptr,
                                             Row ? StepRule::Window : StepRule::Width))
        return st;
    Plan plan = inPlace(pKernel, k);
    if (tapStep == 1) {
        plan.taps = pKernel;
        plan.tapStep = 1;
    }
    constexpr Out kOut = std::is_floating_point_v<T> ? Out::Same : Out::Nearest;
    return runPlan<T, float, T, kOut, L>(plan, pSrc, srcStep, pDst, dstStep, roi);
}

// 16s and 16u with an integer kernel: kernel pointer, length and divisor
// checked first, the kernel converted, then the float member's checks.
template <bool Row, class T, Layout L>
ZelStatus convertedLine(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const Zel32s* pKernel,
                        int kernelSize, int anchor, int divisor) {
    if (ZelStatus st = Check()
                           .ptrs(pKernel)
                           .that(kernelSize >= 1, zelStatusBadSize)
                           .that(divisor != 0, zelStatusZeroDivisor))
        return st;
    FloatKernel converted;
    if (!converted.convert(pKernel, kernelSize, divisor)) return zelStatusNoMemory;
    return floatLine<Row, T, L>(pSrc, srcStep, pDst, dstStep, roi, converted.taps(), kernelSize, anchor, 1);
}

}  // namespace
}  // namespace zel::filter::linear

#define ZEL_LINE_INT(name, Row, impl, t, lay)                                                                 \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,          \
                                          ZeliSize roi, const Zel32s* pKernel, int kernelSize, int anchor,     \
                                          int divisor) {                                                       \
        return ::zel::filter::linear::impl<Row, Zel##t, ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roi, \
                                                                           pKernel, kernelSize, anchor, divisor); \
    }
#define ZEL_LINE_FLOAT(name, suffix, Row, t, lay)                                                              \
    ZelStatus zeli##name##suffix##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,   \
                                                  ZeliSize roi, const Zel32f* pKernel, int kernelSize,          \
                                                  int anchor) {                                                 \
        return ::zel::filter::linear::floatLine<Row, Zel##t, ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep,  \
                                                                                roi, pKernel, kernelSize, anchor); \
    }
#define ZEL_LAYOUTS(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)

ZEL_LAYOUTS(ZEL_LINE_INT, FilterRow, true, integerLine, 8u)
ZEL_LAYOUTS(ZEL_LINE_INT, FilterRow, true, convertedLine, 16s)
ZEL_LAYOUTS(ZEL_LINE_INT, FilterRow, true, convertedLine, 16u)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterRow, 32f, true, 8u)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterRow, 32f, true, 16s)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterRow, 32f, true, 16u)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterRow, , true, 32f)

ZEL_LAYOUTS(ZEL_LINE_INT, FilterColumn, false, integerLine, 8u)
ZEL_LAYOUTS(ZEL_LINE_INT, FilterColumn, false, convertedLine, 16s)
ZEL_LAYOUTS(ZEL_LINE_INT, FilterColumn, false, convertedLine, 16u)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterColumn, 32f, false, 8u)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterColumn, 32f, false, 16s)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterColumn, 32f, false, 16u)
ZEL_LAYOUTS(ZEL_LINE_FLOAT, FilterColumn, , false, 32f)
