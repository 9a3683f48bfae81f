// DivC: destination = source / constant, one constant per computed channel.
//
// A zero constant (any channel's; 0 + 0i for complex members) returns
// zelStatusDivByZero after the pointer, size and step checks, with nothing
// written. The integer and complex members give exactly the values Div
// gives with a divisor image holding the constant, and never warn: the
// constant is not zero, and the 16sc top-band pairing of divisor real part
// and dividend imaginary part does not raise a warning here either. The
// 32f members are MulC with the single-precision reciprocal 1 / c: the
// results are x * (1 / c), which may differ from x / c in the last bit.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "arith/div_engine.h"
#include "core/fpcontrol.h"
#include "core/image.h"

namespace zel::div {
namespace {

// Zero by its bits: a subnormal constant is not zero, even when the
// caller's environment treats denormals as zero in comparisons.
template <class P>
bool isZeroPart(P v) {
    if constexpr (std::is_floating_point_v<P>) {
        std::uint32_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        return (bits & 0x7FFFFFFFu) == 0;
    } else {
        return v == 0;
    }
}

template <class T>
bool isZero(const T& v) {
    if constexpr (std::is_arithmetic_v<T>)
        return isZeroPart(v);
    else
        return isZeroPart(v.re) && isZeroPart(v.im);
}

// x * (1 / c) per channel, through the MulC member of the same layout.
template <Layout L, bool InPlace>
ZelStatus multiplyByReciprocal(const Zel32f* src, int srcStep, const Zel32f* value, Zel32f* dst,
                               int dstStep, ZeliSize roi) {
    Zel32f r[kChannels<L>] = {};
    for (int c = 0; c < kComputed<L>; ++c) r[c] = 1.0f / value[c];
    if constexpr (L == Layout::C1)
        return InPlace ? zeliMulC_32f_C1IR(r[0], dst, dstStep, roi)
                       : zeliMulC_32f_C1R(src, srcStep, r[0], dst, dstStep, roi);
    else if constexpr (L == Layout::C3)
        return InPlace ? zeliMulC_32f_C3IR(r, dst, dstStep, roi)
                       : zeliMulC_32f_C3R(src, srcStep, r, dst, dstStep, roi);
    else if constexpr (L == Layout::C4)
        return InPlace ? zeliMulC_32f_C4IR(r, dst, dstStep, roi)
                       : zeliMulC_32f_C4R(src, srcStep, r, dst, dstStep, roi);
    else
        return InPlace ? zeliMulC_32f_AC4IR(r, dst, dstStep, roi)
                       : zeliMulC_32f_AC4R(src, srcStep, r, dst, dstStep, roi);
}

template <class T, Layout L, bool InPlace>
ZelStatus divideByConstant(const T* src, int srcStep, const T* value, T* dst, int dstStep, ZeliSize roi,
                           int scale) {
    constexpr int C = kChannels<L>;
    bool zeroConstant = false;
    for (int c = 0; value != nullptr && c < kComputed<L>; ++c) zeroConstant |= isZero(value[c]);
    if (ZelStatus st = Check()
                           .ptrs(src, value, dst)
                           .roi(roi)
                           .steps(srcStep, dstStep)
                           .that(!zeroConstant, zelStatusDivByZero))
        return st;
    if constexpr (std::is_same_v<T, Zel32f>) {
        // The reciprocal too is rounded to nearest, whatever the caller's mode.
        StandardFpEnvironment environment;
        return multiplyByReciprocal<L, InPlace>(src, srcStep, value, dst, dstStep, roi);
    } else {
        // The constant per channel, repeated as far as a row needs it (the
        // alpha of AC4 gets the first channel's, never used).
        T pattern[kDivisorPattern];
        const std::ptrdiff_t used = std::min<std::ptrdiff_t>(kDivisorPattern, std::ptrdiff_t{roi.width} * roi.height * C);
        for (int c = 0; c < C; ++c) pattern[c] = value[c < kComputed<L> ? c : 0];
        for (std::ptrdiff_t have = C; have < used; have *= 2)
            std::memcpy(pattern + have, pattern, std::min(have, used - have) * sizeof(T));
        const auto divide = [&] {
            divideImage<T, L>(Divisor<T>{pattern, 0, true}, src, srcStep, dst, dstStep, roi, kNearestEven, scale);
        };
        if constexpr (kDividesInFloat<T>) {
            StandardFpEnvironment environment;
            divide();
        } else {
            divide();
        }
    }
    return zelStatusOk;
}

}  // namespace
}  // namespace zel::div

// C1 members take the constant itself, the others an array (3 values for
// C3 and AC4, 4 for C4). In-place members take the constant first.
#define ZELI_DIVC_FORMS(t, layout, valueParam, valuePtr, sfsName, sfsParam, sfsArg)                          \
    ZelStatus zeliDivC_##t##_##layout##R##sfsName(const Zel##t* pSrc, int srcStep, valueParam, Zel##t* pDst, \
                                                  int dstStep, ZeliSize roi sfsParam) {                      \
        return zel::div::divideByConstant<Zel##t, zel::Layout::layout, false>(pSrc, srcStep, valuePtr, pDst, \
                                                                              dstStep, roi, sfsArg);         \
    }                                                                                                        \
    ZelStatus zeliDivC_##t##_##layout##IR##sfsName(valueParam, Zel##t* pSrcDst, int srcDstStep,              \
                                                   ZeliSize roi sfsParam) {                                  \
        return zel::div::divideByConstant<Zel##t, zel::Layout::layout, true>(pSrcDst, srcDstStep, valuePtr,  \
                                                                             pSrcDst, srcDstStep, roi, sfsArg); \
    }
#define ZELI_COMMA ,
#define ZELI_DIVC_SFS_C1(t) \
    ZELI_DIVC_FORMS(t, C1, Zel##t value, &value, Sfs, ZELI_COMMA int scaleFactor, scaleFactor)
#define ZELI_DIVC_SFS(t, layout) \
    ZELI_DIVC_FORMS(t, layout, const Zel##t value[], value, Sfs, ZELI_COMMA int scaleFactor, scaleFactor)
#define ZELI_DIVC_FLOAT_C1(t) ZELI_DIVC_FORMS(t, C1, Zel##t value, &value, , , 0)
#define ZELI_DIVC_FLOAT(t, layout) ZELI_DIVC_FORMS(t, layout, const Zel##t value[], value, , , 0)

#define ZELI_DIVC_SFS_3(t) ZELI_DIVC_SFS_C1(t) ZELI_DIVC_SFS(t, C3) ZELI_DIVC_SFS(t, AC4)
#define ZELI_DIVC_SFS_4(t) ZELI_DIVC_SFS_3(t) ZELI_DIVC_SFS(t, C4)

ZELI_DIVC_SFS_4(8u)
ZELI_DIVC_SFS_4(16u)
ZELI_DIVC_SFS_4(16s)
ZELI_DIVC_SFS_3(16sc)
ZELI_DIVC_SFS_3(32sc)
ZELI_DIVC_FLOAT_C1(32f)
ZELI_DIVC_FLOAT(32f, C3)
ZELI_DIVC_FLOAT(32f, C4)
ZELI_DIVC_FLOAT(32f, AC4)
ZELI_DIVC_FLOAT_C1(32fc)
ZELI_DIVC_FLOAT(32fc, C3)
ZELI_DIVC_FLOAT(32fc, AC4)

