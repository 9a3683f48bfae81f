// Abs, Sqr and Complement: absolute values of 16s and 32f, squares with
// the scale-factor rule of the integer arithmetic, and the bitwise
// complement of 32s in place.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/unary_abs_sqr.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"
#include "arith/unary_row-inl.h"

#if HWY_ONCE

#include <type_traits>

#include "arith/members.h"
#include "arith/unary_image.h"

namespace zel::arith {
namespace {

// Abs: 16s rows advance by the step rounded down to an even count of
// bytes, 32f rows by the step rounded down to a multiple of 4.
template <class T, Layout L>
ZelStatus absImage(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int) {
    static constexpr UnaryPlan kPlan{true, Gather::Ignore, true, 0, false};
    return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [] { return ZEL_DISPATCH(MapRow<AbsMap, T>); });
}

// Sqr is the product of the image with itself: the row kernel of Mul with
// one operand twice, so the scale factor, the zero band and the
// saturation are Mul's. 32f rows advance by the step rounded down to a
// multiple of 4, integer rows by the full step.
template <class T, Layout L>
ZelStatus sqrImage(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int scale) {
    constexpr bool kFloat = std::is_floating_point_v<T>;
    static constexpr UnaryPlan kPlan{kFloat, Gather::Ignore, true, 0, kFloat};
    return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale] {
        const RowKernel<T> kernel = rowKernel<MulOp, T>(chooseBand<MulOp, T>(scale));
        const ScaleArgs args = scaleArgs<MulOp, T>(scale);
        const BitsOf<T>* keep = nullptr;
        if constexpr (L == Layout::AC4) keep = AlphaPattern<BitsOf<T>, 4, 1>::kKeep.data();
        return [kernel, args, keep](const T* s, T* d, std::ptrdiff_t n, bool) {
            kernel(s, 0, s, 0, false, d, 0, n, 1, kChannels<L>, keep, args);
            return 0;
        };
    });
}

// Complement checks the step before the size.
ZelStatus complementImage(Zel32s* image, int step, ZeliSize roi) {
    static constexpr UnaryPlan kPlan{false, Gather::Ignore, true, 0, false, true};
    return unaryImage<Zel32s, Layout::C1>(image, step, image, step, roi, kPlan,
                                          [] { return ZEL_DISPATCH(MapRow<ComplementMap, Zel32s>); });
}

}  // namespace
}  // namespace zel::arith

#define ZEL_ABS(t, lay) ZEL_UNARY_MEMBERS(Abs, ::zel::arith::absImage, t, lay, )
#define ZEL_SQR_SFS(t, lay) ZEL_UNARY_MEMBERS(Sqr, ::zel::arith::sqrImage, t, lay, Sfs)
#define ZEL_SQR(t, lay) ZEL_UNARY_MEMBERS(Sqr, ::zel::arith::sqrImage, t, lay, )

ZEL_UNARY_4(ZEL_ABS, 16s)
ZEL_UNARY_4(ZEL_ABS, 32f)
ZEL_UNARY_4(ZEL_SQR_SFS, 8u)
ZEL_UNARY_4(ZEL_SQR_SFS, 16u)
ZEL_UNARY_4(ZEL_SQR_SFS, 16s)
ZEL_UNARY_4(ZEL_SQR, 32f)

ZelStatus zeliComplement_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize) {
    return ::zel::arith::complementImage(pSrcDst, srcDstStep, roiSize);
}

#endif  // HWY_ONCE
