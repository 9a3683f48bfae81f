// And, Or, Xor and their constant forms, and Not: bitwise combinations per
// channel. The bits do not depend on the element type, so every type of one
// size shares the kernel of its unsigned bits (32s runs as 32-bit lanes).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/logic.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"

#if HWY_ONCE

#include "arith/members.h"

namespace zel::arith {

// One member of And, Or, Xor or their constant forms. p is the source (the
// in-place image), q the other image or the constant's values.
template <class Op, class T, Layout L, Form F>
ZelStatus logicImage(const T* p, int pStep, const T* q, int qStep, T* dst, int dstStep, ZeliSize roi) {
    constexpr bool isConst = kConstForm<F>;
    if (ZelStatus st = Check()
                           .ptrs(p, q, dst)
                           .steps(pStep, isConst ? 1 : qStep, dstStep)
                           .roi(roi))
        return st;
    using U = BitsOf<T>;
    passRows<U, L, isConst>(reinterpret_cast<const U*>(p), pStep, reinterpret_cast<const U*>(q), qStep,
                            reinterpret_cast<U*>(dst), dstStep, roi,
                            ZEL_DISPATCH(BinaryRows<Op, U, Band::Plain>), ScaleArgs{}, kCostMove);
    return zelStatusOk;
}

}  // namespace zel::arith

#define ZEL_LOGIC_RUN(Op, t, lay, form) \
    ::zel::arith::logicImage<::zel::arith::Op, Zel##t, ::zel::Layout::lay, ::zel::arith::Form::form>

// Two-image members; in place, the image is combined with the source.
#define ZEL_LOGIC_IMAGES(name, Op, t, lay)                                                           \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2,    \
                                          int src2Step, Zel##t* pDst, int dstStep, ZeliSize roiSize) { \
        return ZEL_LOGIC_RUN(Op, t, lay, Images)(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep,    \
                                                 roiSize);                                           \
    }                                                                                                \
    ZelStatus zeli##name##_##t##_##lay##IR(const Zel##t* pSrc, int srcStep, Zel##t* pSrcDst,         \
                                           int srcDstStep, ZeliSize roiSize) {                       \
        return ZEL_LOGIC_RUN(Op, t, lay, ImagesInPlace)(pSrcDst, srcDstStep, pSrc, srcStep, pSrcDst, \
                                                        srcDstStep, roiSize);                        \
    }

// Image-and-constant members.
#define ZEL_LOGIC_CONST(name, Op, t, lay)                                                             \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, ZEL_VALUE_PARAM_##lay(t), \
                                          Zel##t* pDst, int dstStep, ZeliSize roiSize) {              \
        return ZEL_LOGIC_RUN(Op, t, lay, Const)(pSrc, srcStep, ZEL_VALUE_ARG_##lay, 0, pDst, dstStep,  \
                                                roiSize);                                             \
    }                                                                                                 \
    ZelStatus zeli##name##_##t##_##lay##IR(ZEL_VALUE_PARAM_##lay(t), Zel##t* pSrcDst, int srcDstStep, \
                                           ZeliSize roiSize) {                                        \
        return ZEL_LOGIC_RUN(Op, t, lay, ConstInPlace)(pSrcDst, srcDstStep, ZEL_VALUE_ARG_##lay, 0,    \
                                                       pSrcDst, srcDstStep, roiSize);                 \
    }

#define ZEL_LOGIC_GRID(MEMBERS, name, Op)                                                  \
    ZEL_LOGIC_LAYOUTS(MEMBERS, name, Op, 8u)                                               \
    ZEL_LOGIC_LAYOUTS(MEMBERS, name, Op, 16u) ZEL_LOGIC_LAYOUTS(MEMBERS, name, Op, 32s)
#define ZEL_LOGIC_LAYOUTS(MEMBERS, name, Op, t) \
    MEMBERS(name, Op, t, C1) MEMBERS(name, Op, t, C3) MEMBERS(name, Op, t, C4) MEMBERS(name, Op, t, AC4)

ZEL_LOGIC_GRID(ZEL_LOGIC_IMAGES, And, AndOp)
ZEL_LOGIC_GRID(ZEL_LOGIC_IMAGES, Or, OrOp)
ZEL_LOGIC_GRID(ZEL_LOGIC_IMAGES, Xor, XorOp)
ZEL_LOGIC_GRID(ZEL_LOGIC_CONST, AndC, AndOp)
ZEL_LOGIC_GRID(ZEL_LOGIC_CONST, OrC, OrOp)
ZEL_LOGIC_GRID(ZEL_LOGIC_CONST, XorC, XorOp)

// Not is XorC with 255 in every computed channel (C1 calls XorC_8u_C1R), so
// it keeps XorC's checks.
namespace {
constexpr Zel8u kOnes[4] = {255, 255, 255, 255};
}
ZelStatus zeliNot_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize) {
    return zeliXorC_8u_C1R(pSrc, srcStep, 255, pDst, dstStep, roiSize);
}
ZelStatus zeliNot_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize) {
    return zeliXorC_8u_C1IR(255, pSrcDst, srcDstStep, roiSize);
}
#define ZEL_NOT_MEMBERS(lay)                                                                          \
    ZelStatus zeliNot_8u_##lay##R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep,           \
                                  ZeliSize roiSize) {                                                 \
        return zeliXorC_8u_##lay##R(pSrc, srcStep, kOnes, pDst, dstStep, roiSize);                    \
    }                                                                                                 \
    ZelStatus zeliNot_8u_##lay##IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize) {                \
        return zeliXorC_8u_##lay##IR(kOnes, pSrcDst, srcDstStep, roiSize);                            \
    }
ZEL_NOT_MEMBERS(C3)
ZEL_NOT_MEMBERS(C4)
ZEL_NOT_MEMBERS(AC4)

#endif  // HWY_ONCE
