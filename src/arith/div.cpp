// Div: destination = source 2 / source 1 (the first source is the divisor);
// in place, image = image / source. Integer members round the scaled
// quotient to nearest even and saturate; a zero divisor gives the saturated
// sign of the dividend and the call returns the warning
// zelStatusWarnDivByZero after computing the whole ROI. 32f and 32fc divide
// in IEEE single precision and warn the same way.
#include "arith/div_engine.h"

#define ZELI_DIV_SFS(t, layout)                                                                    \
    ZelStatus zeliDiv_##t##_##layout##RSfs(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2,  \
                                           int src2Step, Zel##t* pDst, int dstStep, ZeliSize roi,   \
                                           int scaleFactor) {                                       \
        return zel::div::divideChecked<Zel##t, zel::Layout::layout>(                                \
            pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, zel::div::kNearestEven, false,    \
            scaleFactor);                                                                           \
    }                                                                                               \
    ZelStatus zeliDiv_##t##_##layout##IRSfs(const Zel##t* pSrc, int srcStep, Zel##t* pSrcDst,       \
                                            int srcDstStep, ZeliSize roi, int scaleFactor) {        \
        return zel::div::divideChecked<Zel##t, zel::Layout::layout>(                                \
            pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, zel::div::kNearestEven,   \
            false, scaleFactor);                                                                    \
    }

#define ZELI_DIV_FLOAT(t, layout)                                                                  \
    ZelStatus zeliDiv_##t##_##layout##R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2,     \
                                        int src2Step, Zel##t* pDst, int dstStep, ZeliSize roi) {    \
        return zel::div::divideChecked<Zel##t, zel::Layout::layout>(                                \
            pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, zel::div::kNearestEven, false, 0); \
    }                                                                                               \
    ZelStatus zeliDiv_##t##_##layout##IR(const Zel##t* pSrc, int srcStep, Zel##t* pSrcDst,          \
                                         int srcDstStep, ZeliSize roi) {                            \
        return zel::div::divideChecked<Zel##t, zel::Layout::layout>(                                \
            pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, zel::div::kNearestEven,   \
            false, 0);                                                                              \
    }

#define ZELI_DIV_SFS_3(t) ZELI_DIV_SFS(t, C1) ZELI_DIV_SFS(t, C3) ZELI_DIV_SFS(t, AC4)
#define ZELI_DIV_SFS_4(t) ZELI_DIV_SFS_3(t) ZELI_DIV_SFS(t, C4)

ZELI_DIV_SFS_4(8u)
ZELI_DIV_SFS_4(16u)
ZELI_DIV_SFS_4(16s)
ZELI_DIV_SFS_3(16sc)
ZELI_DIV_SFS_3(32sc)
ZELI_DIV_FLOAT(32f, C1)
ZELI_DIV_FLOAT(32f, C3)
ZELI_DIV_FLOAT(32f, C4)
ZELI_DIV_FLOAT(32f, AC4)
ZELI_DIV_FLOAT(32fc, C1)
ZELI_DIV_FLOAT(32fc, C3)
ZELI_DIV_FLOAT(32fc, AC4)
