// Exported-member macros of the arithmetic families: one line in a family
// file declares a type's members over its layouts and both forms.
//
// Argument order: two images pass (source 1, source 2, destination) and
// compute source 2 <op> source 1, so Sub subtracts the first source from the
// second; in place, (source, image) computes image <op> source. Constant
// forms pass (source, value, destination), in place (value, image).
#pragma once

#include "arith/arith_image.h"

#define ZEL_SF_PARAM_Sfs , int scaleFactor
#define ZEL_SF_PARAM_
#define ZEL_SF_ARG_Sfs scaleFactor
#define ZEL_SF_ARG_ 0

#define ZEL_VALUE_PARAM_C1(t) Zel##t value
#define ZEL_VALUE_PARAM_C3(t) const Zel##t value[3]
#define ZEL_VALUE_PARAM_C4(t) const Zel##t value[4]
#define ZEL_VALUE_PARAM_AC4(t) const Zel##t value[3]
#define ZEL_VALUE_ARG_C1 &value
#define ZEL_VALUE_ARG_C3 value
#define ZEL_VALUE_ARG_C4 value
#define ZEL_VALUE_ARG_AC4 value

#define ZEL_ARITH_RUN(Op, t, lay, form) \
    ::zel::arith::arithImage<::zel::arith::Op, Zel##t, ::zel::Layout::lay, ::zel::arith::Form::form>

// Two-image members, out of place and in place.
#define ZEL_IMAGES_MEMBERS(name, Op, t, lay, sfs)                                              \
    ZelStatus zeli##name##_##t##_##lay##R##sfs(const Zel##t* pSrc1, int src1Step,              \
                                               const Zel##t* pSrc2, int src2Step, Zel##t* pDst, \
                                               int dstStep, ZeliSize roiSize ZEL_SF_PARAM_##sfs) { \
        return ZEL_ARITH_RUN(Op, t, lay, Images)(pSrc2, src2Step, pSrc1, src1Step, pDst, dstStep, \
                                                 roiSize, ZEL_SF_ARG_##sfs);                   \
    }                                                                                          \
    ZelStatus zeli##name##_##t##_##lay##IR##sfs(const Zel##t* pSrc, int srcStep, Zel##t* pSrcDst, \
                                                int srcDstStep, ZeliSize roiSize ZEL_SF_PARAM_##sfs) { \
        return ZEL_ARITH_RUN(Op, t, lay, ImagesInPlace)(pSrcDst, srcDstStep, pSrc, srcStep,     \
                                                        pSrcDst, srcDstStep, roiSize,          \
                                                        ZEL_SF_ARG_##sfs);                     \
    }

// Image-and-constant members, out of place and in place.
#define ZEL_CONST_MEMBERS(name, Op, t, lay, sfs)                                               \
    ZelStatus zeli##name##_##t##_##lay##R##sfs(const Zel##t* pSrc, int srcStep,                \
                                               ZEL_VALUE_PARAM_##lay(t), Zel##t* pDst,         \
                                               int dstStep, ZeliSize roiSize ZEL_SF_PARAM_##sfs) { \
        return ZEL_ARITH_RUN(Op, t, lay, Const)(pSrc, srcStep, ZEL_VALUE_ARG_##lay, 0, pDst,    \
                                                dstStep, roiSize, ZEL_SF_ARG_##sfs);           \
    }                                                                                          \
    ZelStatus zeli##name##_##t##_##lay##IR##sfs(ZEL_VALUE_PARAM_##lay(t), Zel##t* pSrcDst,     \
                                                int srcDstStep, ZeliSize roiSize ZEL_SF_PARAM_##sfs) { \
        return ZEL_ARITH_RUN(Op, t, lay, ConstInPlace)(pSrcDst, srcDstStep, ZEL_VALUE_ARG_##lay, \
                                                       0, pSrcDst, srcDstStep, roiSize,        \
                                                       ZEL_SF_ARG_##sfs);                      \
    }

// A type's members over C1, C3, C4 and AC4, or over C1, C3 and AC4 (the
// complex types).
#define ZEL_ARITH_4(MEMBERS, name, Op, t, sfs)                                 \
    MEMBERS(name, Op, t, C1, sfs) MEMBERS(name, Op, t, C3, sfs) MEMBERS(name, Op, t, C4, sfs) \
    MEMBERS(name, Op, t, AC4, sfs)
#define ZEL_ARITH_3(MEMBERS, name, Op, t, sfs) \
    MEMBERS(name, Op, t, C1, sfs) MEMBERS(name, Op, t, C3, sfs) MEMBERS(name, Op, t, AC4, sfs)

// The full grid of Add, Sub, Mul and their constant forms.
#define ZEL_ARITH_GRID(MEMBERS, name, Op)        \
    ZEL_ARITH_4(MEMBERS, name, Op, 8u, Sfs)      \
    ZEL_ARITH_4(MEMBERS, name, Op, 16u, Sfs)     \
    ZEL_ARITH_4(MEMBERS, name, Op, 16s, Sfs)     \
    ZEL_ARITH_3(MEMBERS, name, Op, 16sc, Sfs)    \
    ZEL_ARITH_3(MEMBERS, name, Op, 32sc, Sfs)    \
    ZEL_ARITH_4(MEMBERS, name, Op, 32f, )        \
    ZEL_ARITH_3(MEMBERS, name, Op, 32fc, )
