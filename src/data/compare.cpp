// Compare, CompareC, CompareEqualEps and CompareEqualEpsC: one 8u result per
// pixel, 255 when the predicate holds in every compared channel and 0
// otherwise.
//
// Vectors load whole pixels and split them into one vector per channel, so
// the channel conjunction is an And of per-channel masks, which is then
// narrowed to bytes. Unsigned 8-bit comparisons are Highway's, which on
// targets without unsigned compares flip the top bit of both operands and
// compare signed: the same answers. Floating-point predicates are ordered
// (false with a NaN on either side). The last pixel of an AC4 row takes the
// scalar rule so that its alpha is never read.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/compare.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/image.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#ifndef ZEL_DATA_COMPARE_SHARED_
#define ZEL_DATA_COMPARE_SHARED_
namespace zel::compare {
// The predicates: the five ZelCompareOp codes and equality within eps.
constexpr int kEqualEps = 5;

// The scalar rule of one channel.
template <int Op, class T>
inline bool holds(T a, T b, float eps) {
    (void)eps;
    if constexpr (Op == 0) {
        return a < b;
    } else if constexpr (Op == 1) {
        return a <= b;
    } else if constexpr (Op == 2) {
        return a == b;
    } else if constexpr (Op == 3) {
        return b <= a;
    } else if constexpr (Op == 4) {
        return b < a;
    } else {
        static_assert(Op == kEqualEps);
        const float diff = a - b;
        return std::fabs(diff) <= eps;
    }
}
}  // namespace zel::compare
#endif  // ZEL_DATA_COMPARE_SHARED_

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// a <= b. Integer lanes have no such compare on every target; for them it
// is "not b < a", which NaN would break, so floats keep the ordered form.
template <class D, class V>
HWY_INLINE hn::Mask<D> LessEq(D d, V a, V b) {
    (void)d;
    if constexpr (hwy::IsFloat<hn::TFromD<D>>()) {
        return hn::Le(a, b);
    } else {
        return hn::Not(hn::Lt(b, a));
    }
}

template <int Op, class D, class V>
HWY_INLINE hn::Mask<D> Predicate(D d, V a, V b, float eps) {
    (void)d;
    (void)eps;
    if constexpr (Op == 0) {
        return hn::Lt(a, b);
    } else if constexpr (Op == 1) {
        return LessEq(d, a, b);
    } else if constexpr (Op == 2) {
        return hn::Eq(a, b);
    } else if constexpr (Op == 3) {
        return LessEq(d, b, a);
    } else if constexpr (Op == 4) {
        return hn::Lt(b, a);
    } else {
        static_assert(Op == compare::kEqualEps);
        return hn::Le(hn::Abs(hn::Sub(a, b)), hn::Set(d, static_cast<hn::TFromD<D>>(eps)));
    }
}

// Pixels of C interleaved channels, the first `compared` of them tested
// (3 or C). The second operand b is an image, or with `bConst` the C
// channel values of a constant. `rows` rows of `width` pixels.
template <class T, int C, int Op>
void CompareRows(const T* a, std::ptrdiff_t aStep, const T* b, std::ptrdiff_t bStep, bool bConst, std::uint8_t* dst,
                 std::ptrdiff_t dstStep, std::ptrdiff_t width, std::ptrdiff_t rows, int compared, float eps) {
    const hn::ScalableTag<T> d;
    using V = hn::VFromD<decltype(d)>;
    const hn::RebindToSigned<decltype(d)> di;
    const hn::Rebind<std::int8_t, decltype(d)> d8;
    const hn::Rebind<std::uint8_t, decltype(d)> du8;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    const bool alpha = compared < C;
    // An AC4 row's last pixel is left to the scalar rule.
    const std::ptrdiff_t vectorPixels = alpha ? width - 1 : width;

    auto load = [&](const T* p, V& v0, V& v1, V& v2, V& v3) HWY_ATTR {
        if constexpr (C == 1) {
            v0 = hn::LoadU(d, p);
        } else if constexpr (C == 3) {
            hn::LoadInterleaved3(d, p, v0, v1, v2);
        } else {
            hn::LoadInterleaved4(d, p, v0, v1, v2, v3);
        }
    };
    V k0 = hn::Zero(d), k1 = k0, k2 = k0, k3 = k0;
    if (bConst) {
        k0 = hn::Set(d, b[0]);
        if constexpr (C > 1) {
            k1 = hn::Set(d, b[1]);
            k2 = hn::Set(d, b[2]);
        }
        if constexpr (C > 3) k3 = hn::Set(d, b[C - 1]);
    }
    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* pa = byteOffset(a, aStep * y);
        const T* pb = bConst ? b : byteOffset(b, bStep * y);
        std::uint8_t* out = byteOffset(dst, dstStep * y);
        std::ptrdiff_t x = 0;
        for (; vectorPixels - x >= lanes; x += lanes) {
            V a0 = hn::Zero(d), a1 = a0, a2 = a0, a3 = a0;
            V b0 = k0, b1 = k1, b2 = k2, b3 = k3;
            load(pa + x * C, a0, a1, a2, a3);
            if (!bConst) load(pb + x * C, b0, b1, b2, b3);
            auto m = Predicate<Op>(d, a0, b0, eps);
            if constexpr (C > 1) m = hn::And(m, hn::And(Predicate<Op>(d, a1, b1, eps), Predicate<Op>(d, a2, b2, eps)));
            if constexpr (C > 3)
                if (!alpha) m = hn::And(m, Predicate<Op>(d, a3, b3, eps));
            const auto ones = hn::BitCast(di, hn::VecFromMask(d, m));
            if constexpr (sizeof(T) == 1) {
                hn::StoreU(hn::BitCast(du8, ones), du8, out + x);
            } else {
                hn::StoreU(hn::BitCast(du8, hn::DemoteTo(d8, ones)), du8, out + x);
            }
        }
        for (; x < width; ++x) {
            const T* pixelA = pa + x * C;
            const T* pixelB = bConst ? b : pb + x * C;
            bool all = true;
            for (int c = 0; c < compared; ++c) all = all && compare::holds<Op>(pixelA[c], pixelB[c], eps);
            out[x] = all ? 255 : 0;
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <type_traits>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"

namespace zel::compare {

template <class T>
using RowsKernel = void (*)(const T*, std::ptrdiff_t, const T*, std::ptrdiff_t, bool, std::uint8_t*, std::ptrdiff_t,
                            std::ptrdiff_t, std::ptrdiff_t, int, float);

template <class T, int C>
RowsKernel<T> kernelFor(int op) {
    switch (op) {
        case 0: return ZEL_DISPATCH(CompareRows<T, C, 0>);
        case 1: return ZEL_DISPATCH(CompareRows<T, C, 1>);
        case 2: return ZEL_DISPATCH(CompareRows<T, C, 2>);
        case 3: return ZEL_DISPATCH(CompareRows<T, C, 3>);
        case 4: return ZEL_DISPATCH(CompareRows<T, C, 4>);
        default: break;
    }
    if constexpr (std::is_same_v<T, float>) return ZEL_DISPATCH(CompareRows<T, C, kEqualEps>);
    return nullptr;
}

// Pixels per piece boundary when a long row is shared among threads.
constexpr std::ptrdiff_t kGrain = 64;

template <class T, Layout L>
void comparePass(const T* a, int aStep, const T* b, int bStep, bool bConst, Zel8u* dst, int dstStep, ZeliSize roi,
                 int op, float eps) {
    constexpr int C = kChannels<L>;
    T constant[4] = {};
    if (bConst) {
        for (int c = 0; c < kComputed<L>; ++c) constant[c] = b[c];
        b = constant;
    }
    const std::int64_t srcRow = std::int64_t{roi.width} * C * sizeof(T);
    const Rows rows = bConst ? collapseRows(roi, {{aStep, srcRow}, {dstStep, roi.width}})
                             : collapseRows(roi, {{aStep, srcRow}, {bStep, srcRow}, {dstStep, roi.width}});
    const std::int64_t touched = (srcRow * (bConst ? 1 : 2) + roi.width) * std::int64_t{roi.height};
    const int team = teamSize(touched, kCostMove, pieceCount(rows.height, rows.width, kGrain));
    const RowsKernel<T> kernel = kernelFor<T, C>(op);
    forEachBlock(rows.height, rows.width, kGrain, team, [&](const Block& blk) {
        kernel(rowAt(a, aStep, blk.y0) + blk.begin * C, aStep,
               bConst ? b : rowAt(b, bStep, blk.y0) + blk.begin * C, bStep, bConst,
               rowAt(dst, dstStep, blk.y0) + blk.begin, dstStep, blk.end - blk.begin, blk.y1 - blk.y0,
               kComputed<L>, eps);
    });
}

template <class T, Layout L>
void run(const T* a, int aStep, const T* b, int bStep, bool bConst, Zel8u* dst, int dstStep, ZeliSize roi, int op,
         float eps) {
    if constexpr (std::is_floating_point_v<T>) {
        // Denormals compare as themselves and differences round to nearest.
        StandardFpEnvironment environment;
        comparePass<T, L>(a, aStep, b, bStep, bConst, dst, dstStep, roi, op, eps);
    } else {
        comparePass<T, L>(a, aStep, b, bStep, bConst, dst, dstStep, roi, op, eps);
    }
}

// An op outside 0..4, read as unsigned, is a call that succeeds and does
// nothing.
inline bool knownOp(ZelCompareOp op) { return static_cast<unsigned>(op) <= 4u; }

template <class T, Layout L>
ZelStatus images(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi,
                 ZelCompareOp op) {
    if (ZelStatus st = Check().ptrs(pSrc1, pSrc2, pDst).steps(src1Step, src2Step, dstStep).roi(roi)) return st;
    if (!knownOp(op)) return zelStatusOk;
    run<T, L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep, roi, op, 0.f);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus constant(const T* pSrc, int srcStep, const T* value, Zel8u* pDst, int dstStep, ZeliSize roi,
                   ZelCompareOp op) {
    if (ZelStatus st = Check().ptrs(value).ptrs(pSrc, pDst).steps(srcStep, dstStep).roi(roi)) return st;
    if (!knownOp(op)) return zelStatusOk;
    run<T, L>(pSrc, srcStep, value, 0, true, pDst, dstStep, roi, op, 0.f);
    return zelStatusOk;
}

template <Layout L>
ZelStatus imagesEps(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
                    ZeliSize roi, Zel32f eps) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc1, pSrc2, pDst)
                           .steps(src1Step, src2Step, dstStep)
                           .roi(roi)
                           .that(!(eps < 0), zelStatusNegativeEpsilon))
        return st;
    run<Zel32f, L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep, roi, kEqualEps, eps);
    return zelStatusOk;
}

template <Layout L>
ZelStatus constantEps(const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep, ZeliSize roi,
                      Zel32f eps) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, value, pDst)
                           .steps(srcStep, dstStep)
                           .roi(roi)
                           .that(!(eps < 0), zelStatusNegativeEpsilon))
        return st;
    run<Zel32f, L>(pSrc, srcStep, value, 0, true, pDst, dstStep, roi, kEqualEps, eps);
    return zelStatusOk;
}

}  // namespace zel::compare

#define ZEL_CMP_PARAM_C1(t) Zel##t value
#define ZEL_CMP_PARAM_C3(t) const Zel##t value[3]
#define ZEL_CMP_PARAM_AC4(t) const Zel##t value[3]
#define ZEL_CMP_PARAM_C4(t) const Zel##t value[4]
#define ZEL_CMP_ARG_C1 &value
#define ZEL_CMP_ARG_C3 value
#define ZEL_CMP_ARG_AC4 value
#define ZEL_CMP_ARG_C4 value

#define ZEL_COMPARE(t, lay)                                                                                \
    ZelStatus zeliCompare_##t##_##lay##R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2, int src2Step, \
                                         Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp) { \
        return ::zel::compare::images<Zel##t, ::zel::Layout::lay>(pSrc1, src1Step, pSrc2, src2Step, pDst,  \
                                                                   dstStep, roiSize, cmpOp);               \
    }                                                                                                      \
    ZelStatus zeliCompareC_##t##_##lay##R(const Zel##t* pSrc, int srcStep, ZEL_CMP_PARAM_##lay(t),          \
                                          Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCompareOp cmpOp) { \
        return ::zel::compare::constant<Zel##t, ::zel::Layout::lay>(pSrc, srcStep, ZEL_CMP_ARG_##lay, pDst, \
                                                                    dstStep, roiSize, cmpOp);              \
    }
#define ZEL_COMPARE_EPS(lay)                                                                                 \
    ZelStatus zeliCompareEqualEps_32f_##lay##R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,       \
                                               int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize,     \
                                               Zel32f eps) {                                                 \
        return ::zel::compare::imagesEps<::zel::Layout::lay>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, \
                                                             roiSize, eps);                                  \
    }                                                                                                        \
    ZelStatus zeliCompareEqualEpsC_32f_##lay##R(const Zel32f* pSrc, int srcStep, ZEL_CMP_PARAM_##lay(32f),   \
                                                Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps) {    \
        return ::zel::compare::constantEps<::zel::Layout::lay>(pSrc, srcStep, ZEL_CMP_ARG_##lay, pDst,       \
                                                               dstStep, roiSize, eps);                       \
    }

#define ZEL_COMPARE_TYPE(t) ZEL_COMPARE(t, C1) ZEL_COMPARE(t, C3) ZEL_COMPARE(t, C4) ZEL_COMPARE(t, AC4)
ZEL_COMPARE_TYPE(8u)
ZEL_COMPARE_TYPE(16s)
ZEL_COMPARE_TYPE(16u)
ZEL_COMPARE_TYPE(32f)
ZEL_COMPARE_EPS(C1)
ZEL_COMPARE_EPS(C3)
ZEL_COMPARE_EPS(C4)
ZEL_COMPARE_EPS(AC4)

#endif  // HWY_ONCE
