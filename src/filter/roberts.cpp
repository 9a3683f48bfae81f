// Roberts filters: the pixel minus its upper-left neighbour (Down) or its
// upper-right neighbour (Up), as the saturating subtraction of two views of
// the source: the pixels themselves and the same image one row up and one
// pixel to the side. Integer differences saturate (negative ones give 0 on
// 8u): a plain difference, never an absolute value.
//
// Moving one row up subtracts the source step rounded down to a multiple of
// the element size on 16s and 32f; 8u uses the step as it is. The views
// then walk their rows by the full step.
#include "core/checks.h"
#include "core/image.h"
#include "core/pixel.h"
#include "zeli.h"

namespace zel {
namespace {

// zeliSub subtracts its first source from its second; the integer members
// with scale factor 0.
template <class T>
using SubtractScaled = ZelStatus (*)(const T*, int, const T*, int, T*, int, ZeliSize, int);
template <class T>
using SubtractPlain = ZelStatus (*)(const T*, int, const T*, int, T*, int, ZeliSize);

template <class T>
ZelStatus subtract(SubtractScaled<T> sub, const T* minus, const T* from, int srcStep, T* dst, int dstStep,
                   ZeliSize roi) {
    return sub(minus, srcStep, from, srcStep, dst, dstStep, roi, 0);
}
template <class T>
ZelStatus subtract(SubtractPlain<T> sub, const T* minus, const T* from, int srcStep, T* dst, int dstStep,
                   ZeliSize roi) {
    return sub(minus, srcStep, from, srcStep, dst, dstStep, roi);
}

template <class T, Layout L, int Side, class Sub>
ZelStatus roberts(Sub sub, const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep)) return st;
    const std::ptrdiff_t up = srcStep / static_cast<int>(sizeof(T)) * static_cast<int>(sizeof(T));
    const T* neighbour = byteOffset(pSrc, -up) + Side * kChannels<L>;
    return subtract<T>(sub, neighbour, pSrc, srcStep, pDst, dstStep, roi);
}

}  // namespace
}  // namespace zel

#define ZEL_ROBERTS(dir, Side, t, lay, sfs)                                                          \
    ZelStatus zeliFilterRoberts##dir##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, \
                                                      int dstStep, ZeliSize roi) {                   \
        return zel::roberts<Zel##t, zel::Layout::lay, Side>(&zeliSub_##t##_##lay##R##sfs, pSrc, srcStep, \
                                                            pDst, dstStep, roi);                     \
    }
#define ZEL_ROBERTS_LAYOUTS(dir, Side, t, sfs) \
    ZEL_ROBERTS(dir, Side, t, C1, sfs) ZEL_ROBERTS(dir, Side, t, C3, sfs) ZEL_ROBERTS(dir, Side, t, AC4, sfs)

ZEL_ROBERTS_LAYOUTS(Down, -1, 8u, Sfs)
ZEL_ROBERTS_LAYOUTS(Down, -1, 16s, Sfs)
ZEL_ROBERTS_LAYOUTS(Down, -1, 32f, )
ZEL_ROBERTS_LAYOUTS(Up, 1, 8u, Sfs)
ZEL_ROBERTS_LAYOUTS(Up, 1, 16s, Sfs)
ZEL_ROBERTS_LAYOUTS(Up, 1, 32f, )
