// Div_Round: Div for 8u, 16u and 16s with the rounding of the scaled
// quotient chosen by the caller (ZelRoundingMode: toward zero, nearest
// even, half away from zero). A mode outside 0..2 returns
// zelStatusBadRoundMode once the pointers, size and steps have passed. The
// bands where the scale factor makes the result constant are those of Div.
#include <cstring>

#include "arith/div_engine.h"

namespace {

// The raw value the caller passed, which may lie outside the enumeration.
int modeValue(ZelRoundingMode mode) {
    int value;
    std::memcpy(&value, &mode, sizeof value);
    return value;
}

}  // namespace

#define ZELI_DIV_ROUND(t, layout)                                                                   \
    ZelStatus zeliDiv_Round_##t##_##layout##RSfs(const Zel##t* pSrc1, int src1Step,                  \
                                                 const Zel##t* pSrc2, int src2Step, Zel##t* pDst,    \
                                                 int dstStep, ZeliSize roi, ZelRoundingMode rndMode, \
                                                 int scaleFactor) {                                  \
        return zel::div::divideChecked<Zel##t, zel::Layout::layout>(                                 \
            pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, modeValue(rndMode), true,          \
            scaleFactor);                                                                            \
    }                                                                                                \
    ZelStatus zeliDiv_Round_##t##_##layout##IRSfs(const Zel##t* pSrc, int srcStep, Zel##t* pSrcDst,  \
                                                  int srcDstStep, ZeliSize roi,                      \
                                                  ZelRoundingMode rndMode, int scaleFactor) {        \
        return zel::div::divideChecked<Zel##t, zel::Layout::layout>(                                 \
            pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, modeValue(rndMode), true,  \
            scaleFactor);                                                                            \
    }
#define ZELI_DIV_ROUND_4(t) \
    ZELI_DIV_ROUND(t, C1) ZELI_DIV_ROUND(t, C3) ZELI_DIV_ROUND(t, C4) ZELI_DIV_ROUND(t, AC4)

ZELI_DIV_ROUND_4(8u)
ZELI_DIV_ROUND_4(16u)
ZELI_DIV_ROUND_4(16s)
