// Dilation and erosion: the maximum or minimum of every channel over a
// structuring element, the fixed 3x3 square or the non-zero bytes of a mask
// (not mirrored). Out of place the rows go to the threads in bands; in
// place, result rows are held back until no window reads the rows they
// replace.
#include <cstdint>

#include "core/checks.h"
#include "core/memory.h"
#include "core/pixel.h"
#include "filter/extremum.h"
#include "zeli.h"

namespace zel::filter {
namespace {

// The source step must hold the ROI row and the element's reach, the
// destination step the ROI row.
template <class T, Layout L>
bool stepsHold(int srcStep, int dstStep, ZeliSize roi, int maskWidth) {
    const std::int64_t pixel = std::int64_t{kChannels<L>} * sizeof(T);
    return srcStep >= (std::int64_t{roi.width} + maskWidth - 1) * pixel && dstStep >= std::int64_t{roi.width} * pixel;
}

template <class T, Layout L, bool IsMax>
WindowPlan plan3x3() {
    return planRect(rectKernel<T, IsMax, L == Layout::AC4>(), 3, 3, kChannels<L>, sizeof(T));
}

template <class T, Layout L, bool IsMax>
ZelStatus morph3x3(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst)
                           .steps(srcStep, dstStep)
                           .roi(roi)
                           .that(stepsHold<T, L>(srcStep, dstStep, roi, 3), zelStatusStepTooSmall))
        return st;
    const T* origin = rowAt(pSrc, srcStep, -1) - kChannels<L>;
    return runWindow<T, L>(plan3x3<T, L, IsMax>(), origin, srcStep, pDst, dstStep, roi);
}

template <class T, Layout L, bool IsMax>
ZelStatus morph3x3InPlace(T* pSrcDst, int srcDstStep, ZeliSize roi) {
    if (ZelStatus st = Check()
                           .ptrs(pSrcDst)
                           .steps(srcDstStep)
                           .roi(roi)
                           .that(stepsHold<T, L>(srcDstStep, srcDstStep, roi, 3), zelStatusStepTooSmall))
        return st;
    return runWindowInPlace<T, L>(plan3x3<T, L, IsMax>(), pSrcDst, srcDstStep, roi, 1, 1);
}

// A mask's element: the members' bounding rectangle (rows top..bottom,
// columns left..right of the mask) and, unless every pixel of it is a
// member, its runs of members relative to it.
struct Element {
    int top = 0, left = 0, width = 0, height = 0, runCount = 0;
    bool rectangle = true;
    Buffer<Run> runs;
};

// -9 when the runs cannot be stored.
ZelStatus elementOf(const Zel8u* mask, ZeliSize size, Element& e) {
    int top = size.height, bottom = -1, left = size.width, right = -1;
    std::int64_t members = 0;
    for (int i = 0; i < size.height; ++i)
        for (int j = 0; j < size.width; ++j)
            if (mask[std::ptrdiff_t{i} * size.width + j] != 0) {
                top = std::min(top, i), bottom = std::max(bottom, i);
                left = std::min(left, j), right = std::max(right, j);
                ++members;
            }
    e.top = top, e.left = left, e.width = right - left + 1, e.height = bottom - top + 1;
    e.rectangle = members == std::int64_t{e.width} * e.height;
    if (e.rectangle) return zelStatusOk;
    auto member = [&](int i, int j) { return mask[std::ptrdiff_t{top + i} * size.width + left + j] != 0; };
    int count = 0;
    for (int i = 0; i < e.height; ++i)
        for (int j = 0; j < e.width; ++j) count += member(i, j) && (j == 0 || !member(i, j - 1));
    e.runs = allocBuffer<Run>(static_cast<std::size_t>(count));
    if (!e.runs) return zelStatusNoMemory;
    for (int i = 0; i < e.height; ++i)
        for (int j = 0; j < e.width; ++j)
            if (member(i, j) && (j == 0 || !member(i, j - 1))) {
                int length = 1;
                while (j + length < e.width && member(i, j + length)) ++length;
                e.runs[e.runCount++] = Run{i, j, length};
            }
    return zelStatusOk;
}

template <class T, Layout L, bool IsMax>
WindowPlan planOf(const Element& e) {
    if (e.rectangle) return planRect(rectKernel<T, IsMax, L == Layout::AC4>(), e.width, e.height, kChannels<L>, sizeof(T));
    // Scratch: the address of every member.
    std::ptrdiff_t members = 0;
    for (int r = 0; r < e.runCount; ++r) members += e.runs[r].length;
    return WindowPlan{runsKernel<T, IsMax, L == Layout::AC4>(), Window{e.width, e.height, 0, e.runs.get(), e.runCount},
                      (members * std::ptrdiff_t(sizeof(void*)) + std::ptrdiff_t(sizeof(T)) - 1) / std::ptrdiff_t(sizeof(T))};
}

// The checks after the pointers (steps, size, the mask's size, members and
// anchor, the steps against the rows), then the element of the mask.
template <class T, Layout L>
ZelStatus prepare(Check check, int srcStep, int dstStep, ZeliSize roi, const Zel8u* pMask, ZeliSize maskSize,
                  ZeliPoint anchor, Element& e) {
    check.steps(srcStep, dstStep).roi(roi).that(maskSize.width >= 1 && maskSize.height >= 1, zelStatusBadMaskSize);
    if (check.failed()) return check;
    check.that(maskMaximum(pMask, std::ptrdiff_t{maskSize.width} * maskSize.height) != 0, zelStatusZeroMask)
        .that(anchor.x >= 0 && anchor.x < maskSize.width && anchor.y >= 0 && anchor.y < maskSize.height,
              zelStatusBadAnchor)
        .that(stepsHold<T, L>(srcStep, dstStep, roi, maskSize.width), zelStatusStepTooSmall);
    if (check.failed()) return check;
    return elementOf(pMask, maskSize, e);
}

template <class T, Layout L, bool IsMax>
ZelStatus morph(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask,
                ZeliSize maskSize, ZeliPoint anchor) {
    Element e;
    if (ZelStatus st = prepare<T, L>(Check().ptrs(pSrc, pDst, pMask), srcStep, dstStep, roi, pMask, maskSize, anchor, e))
        return st;
    const T* origin = rowAt(pSrc, srcStep, std::ptrdiff_t{e.top} - anchor.y) +
                      (std::ptrdiff_t{e.left} - anchor.x) * kChannels<L>;
    return runWindow<T, L>(planOf<T, L, IsMax>(e), origin, srcStep, pDst, dstStep, roi);
}

template <class T, Layout L, bool IsMax>
ZelStatus morphInPlace(T* pSrcDst, int srcDstStep, ZeliSize roi, const Zel8u* pMask, ZeliSize maskSize,
                       ZeliPoint anchor) {
    Element e;
    if (ZelStatus st = prepare<T, L>(Check().ptrs(pSrcDst, pMask), srcDstStep, srcDstStep, roi, pMask, maskSize,
                                     anchor, e))
        return st;
    return runWindowInPlace<T, L>(planOf<T, L, IsMax>(e), pSrcDst, srcDstStep, roi, anchor.y - e.top,
                                  anchor.x - e.left);
}

}  // namespace
}  // namespace zel::filter

#define ZEL_MORPH_3X3(name, IsMax, t, lay)                                                                     \
    ZelStatus zeli##name##3x3_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,        \
                                             ZeliSize roi) {                                                   \
        return ::zel::filter::morph3x3<Zel##t, ::zel::Layout::lay, IsMax>(pSrc, srcStep, pDst, dstStep, roi);  \
    }                                                                                                          \
    ZelStatus zeli##name##3x3_##t##_##lay##IR(Zel##t* pSrcDst, int srcDstStep, ZeliSize roi) {                 \
        return ::zel::filter::morph3x3InPlace<Zel##t, ::zel::Layout::lay, IsMax>(pSrcDst, srcDstStep, roi);    \
    }
#define ZEL_MORPH(name, IsMax, t, lay)                                                                         \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,           \
                                          ZeliSize roi, const Zel8u* pMask, ZeliSize maskSize,                 \
                                          ZeliPoint anchor) {                                                  \
        return ::zel::filter::morph<Zel##t, ::zel::Layout::lay, IsMax>(pSrc, srcStep, pDst, dstStep, roi, pMask, \
                                                                       maskSize, anchor);                      \
    }
#define ZEL_MORPH_IN_PLACE(name, IsMax, t, lay)                                                                \
    ZelStatus zeli##name##_##t##_##lay##IR(Zel##t* pSrcDst, int srcDstStep, ZeliSize roi, const Zel8u* pMask,   \
                                           ZeliSize maskSize, ZeliPoint anchor) {                              \
        return ::zel::filter::morphInPlace<Zel##t, ::zel::Layout::lay, IsMax>(pSrcDst, srcDstStep, roi, pMask,  \
                                                                              maskSize, anchor);               \
    }
// Every layout of a type: 3x3 with C4 in place, the mask forms without.
#define ZEL_MORPH_ALL(name, IsMax, t)                                                                    \
    ZEL_MORPH_3X3(name, IsMax, t, C1) ZEL_MORPH_3X3(name, IsMax, t, C3) ZEL_MORPH_3X3(name, IsMax, t, C4)  \
    ZEL_MORPH_3X3(name, IsMax, t, AC4)                                                                     \
    ZEL_MORPH(name, IsMax, t, C1) ZEL_MORPH(name, IsMax, t, C3) ZEL_MORPH(name, IsMax, t, C4)              \
    ZEL_MORPH(name, IsMax, t, AC4) ZEL_MORPH_IN_PLACE(name, IsMax, t, C1)                                  \
    ZEL_MORPH_IN_PLACE(name, IsMax, t, C3) ZEL_MORPH_IN_PLACE(name, IsMax, t, AC4)

ZEL_MORPH_ALL(Dilate, true, 8u)
ZEL_MORPH_ALL(Dilate, true, 16u)
ZEL_MORPH_ALL(Dilate, true, 32f)
ZEL_MORPH_ALL(Erode, false, 8u)
ZEL_MORPH_ALL(Erode, false, 16u)
ZEL_MORPH_ALL(Erode, false, 32f)
