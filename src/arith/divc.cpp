// DivC: destination = source / constant, one constant per computed channel.
//
// A zero constant (any channel's; 0 + 0i for complex members) returns
// zelStatusDivByZero after the pointer, size and step checks, with nothing
// written. The integer and complex members give exactly the values Div
// gives with a divisor image holding the constant, and never warn: the
// constant is not zero, and the 16sc top-band pairing of divisor real part
// and dividend imaginary part does not raise a warning here either. The
// 32f members multiply by the single-precision reciprocal 1 / c instead of
// dividing, as a MulC with that reciprocal would: x * (1 / c), which may
// differ from x / c in the last bit.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/divc.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// pixels x C floats times factor[c] per channel; the first `Written`
// channels are stored, the others keep their contents. C vectors hold
// `lanes` whole pixels, so every vector sees the same channel pattern.
template <int C, int Written>
void MulConstRow(const float* src, float* dst, int pixels, const float* factor) {
    const hn::ScalableTag<float> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    HWY_ALIGN float pattern[C * hn::MaxLanes(d)];
    HWY_ALIGN float written[C * hn::MaxLanes(d)];
    for (int i = 0; i < C * lanes; ++i) {
        pattern[i] = factor[i % C];
        written[i] = i % C < Written ? 1.0f : 0.0f;
    }
    int x = 0;
    for (; x + lanes <= pixels; x += lanes) {
        for (int v = 0; v < C; ++v) {
            const int at = x * C + v * lanes;
            const auto product = hn::Mul(hn::LoadU(d, src + at), hn::Load(d, pattern + v * lanes));
            if constexpr (Written < C) {
                const auto keep = hn::Ne(hn::Load(d, written + v * lanes), hn::Zero(d));
                hn::BlendedStore(product, keep, d, dst + at);
            } else {
                hn::StoreU(product, d, dst + at);
            }
        }
    }
    for (; x < pixels; ++x)
        for (int c = 0; c < Written; ++c) dst[x * C + c] = src[x * C + c] * factor[c];
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <type_traits>

#include "arith/div_engine.h"
#include "core/image.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/simd.h"

namespace zel::div {
namespace {

template <class T>
bool isZero(const T& v) {
    if constexpr (std::is_arithmetic_v<T>)
        return v == T(0);
    else
        return v.re == 0 && v.im == 0;
}

// x * (1 / c) per channel. Like the 32f constant multiplications, the
// C1, C3 and in-place AC4 members divide the rows among threads once
// width + height reaches 256.
template <Layout L>
void multiplyByReciprocal(const float* src, int srcStep, const float* value, float* dst, int dstStep,
                          ZeliSize roi) {
    constexpr int C = kChannels<L>;
    float reciprocal[C] = {};
    for (int c = 0; c < kComputed<L>; ++c) reciprocal[c] = 1.0f / value[c];
    const bool rowSplit = L == Layout::C1 || L == Layout::C3 || (L == Layout::AC4 && src == dst);
    const bool fork = rowSplit && roi.width + roi.height >= 256;
    const ZeliSize rows = collapseRows(roi, std::int64_t{roi.width} * C * sizeof(float), {srcStep, dstStep});
    const auto row = ZEL_DISPATCH(MulConstRow<C, kComputed<L>>);
    forEachRow(rows.height, fork,
               [&](int y) { row(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), rows.width, reciprocal); });
}

template <class T, Layout L>
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
        multiplyByReciprocal<L>(src, srcStep, value, dst, dstStep, roi);
    } else {
        // One divisor row holding the constant serves every row (step 0).
        const std::size_t length = std::size_t(roi.width) * C;
        Buffer<T> divisor = allocBuffer<T>(length);
        if (!divisor) return zelStatusNoMemory;
        for (std::size_t i = 0; i < length; ++i) divisor[i] = value[i % C < kComputed<L> ? i % C : 0];
        divideImage<T, L>(divisor.get(), 0, src, srcStep, dst, dstStep, roi, kNearestEven, scale);
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
        return zel::div::divideByConstant<Zel##t, zel::Layout::layout>(pSrc, srcStep, valuePtr, pDst,        \
                                                                       dstStep, roi, sfsArg);                \
    }                                                                                                        \
    ZelStatus zeliDivC_##t##_##layout##IR##sfsName(valueParam, Zel##t* pSrcDst, int srcDstStep,              \
                                                   ZeliSize roi sfsParam) {                                  \
        return zel::div::divideByConstant<Zel##t, zel::Layout::layout>(pSrcDst, srcDstStep, valuePtr,        \
                                                                       pSrcDst, srcDstStep, roi, sfsArg);    \
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

#endif  // HWY_ONCE
