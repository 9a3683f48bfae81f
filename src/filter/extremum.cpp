// Window kernels of the minimum and maximum filters and of morphology,
// compiled once per SIMD target; the plan of a rectangle and the mask test.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/extremum.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "filter/extremum-inl.h"

#if HWY_ONCE

#include "core/simd.h"
#include "filter/extremum.h"

namespace zel::filter {

template <class T, bool IsMax, bool KeepAlpha>
WindowKernel rectKernel() {
    return ZEL_DISPATCH(RectBlock<T, IsMax, KeepAlpha>);
}
template <class T, bool IsMax, bool KeepAlpha>
WindowKernel runsKernel() {
    return ZEL_DISPATCH(RunsBlock<T, IsMax, KeepAlpha>);
}
template <class T>
void copyColour(const T* from, T* to, std::ptrdiff_t pixels) {
    ZEL_DISPATCH(CopyColour<T>)(from, to, pixels);
}

#define ZEL_EXTREMUM_KERNELS(T)                                                                  \
    template WindowKernel rectKernel<T, true, false>();                                          \
    template WindowKernel rectKernel<T, true, true>();                                           \
    template WindowKernel rectKernel<T, false, false>();                                         \
    template WindowKernel rectKernel<T, false, true>();                                          \
    template void copyColour<T>(const T*, T*, std::ptrdiff_t);
ZEL_EXTREMUM_KERNELS(Zel8u)
ZEL_EXTREMUM_KERNELS(Zel16u)
ZEL_EXTREMUM_KERNELS(Zel16s)
ZEL_EXTREMUM_KERNELS(Zel32f)
#define ZEL_RUNS_KERNELS(T)                                 \
    template WindowKernel runsKernel<T, true, false>();     \
    template WindowKernel runsKernel<T, true, true>();      \
    template WindowKernel runsKernel<T, false, false>();    \
    template WindowKernel runsKernel<T, false, true>();
ZEL_RUNS_KERNELS(Zel8u)
ZEL_RUNS_KERNELS(Zel16u)
ZEL_RUNS_KERNELS(Zel32f)

Zel8u maskMaximum(const Zel8u* mask, std::ptrdiff_t count) {
    Zel8u most = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) most = std::max(most, mask[i]);
    return most;
}

WindowPlan planRect(WindowKernel kernel, int width, int height, int channels, int elementBytes) {
    const std::ptrdiff_t reach = std::ptrdiff_t{width - 1} * channels;
    // Scratch rows: two of column values for low windows, and for high
    // ones a row of column values, a prefix row and two segments of
    // suffixes; about 96 KiB of them.
    const std::ptrdiff_t rows = height <= kDirectRows ? 2 : 2 * std::ptrdiff_t{height} + 2;
    const std::ptrdiff_t budget = (std::ptrdiff_t{96} << 10) / elementBytes / rows;
    const std::ptrdiff_t chunk = std::max<std::ptrdiff_t>(256, (budget - reach) / 64 * 64);
    return WindowPlan{kernel, Window{width, height, chunk, nullptr, 0}, rows * (chunk + reach)};
}

}  // namespace zel::filter

#endif  // HWY_ONCE
