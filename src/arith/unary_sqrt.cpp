// Sqrt: square roots of 32f (IEEE, with the warning for negative
// elements) and of 8u, 16u and 16s with a scale factor. Long rows of 32f
// and 8u are shared between two threads.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/unary_sqrt.cpp"
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

// 32f rows advance by the step rounded down to a multiple of 4 and report
// the first warning of any row; integer rows advance by the full step and
// return 0 whatever they met.
template <class T, Layout L>
ZelStatus sqrtImage(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int scale) {
    if constexpr (std::is_floating_point_v<T>) {
        static constexpr UnaryPlan kPlan{true, Gather::FirstNonZero, true, 4096, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [] {
            const auto kernel = ZEL_DISPATCH(MapRow<SqrtMap, float>);
            return [kernel](const float* s, float* d, std::ptrdiff_t n, bool ac4) {
                return kernel(s, d, n, ac4) != 0 ? int(zelStatusWarnSqrtOfNegative) : 0;
            };
        });
    } else if constexpr (std::is_same_v<T, Zel8u>) {
        static constexpr UnaryPlan kPlan{false, Gather::Ignore, true, 2048, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale] {
            return tableRow([scale](Zel8u x) { int code = 0; return sqrtScaled<Zel8u>(x, scale, code); }, 0);
        });
    } else {
        static constexpr UnaryPlan kPlan{false, Gather::Ignore, true, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale, roi] {
            return ruleRow<T, L>(roi, [scale](T x, int& code) { return sqrtScaled<T>(x, scale, code); });
        });
    }
}

}  // namespace
}  // namespace zel::arith

#define ZEL_SQRT_SFS(t, lay) ZEL_UNARY_MEMBERS(Sqrt, ::zel::arith::sqrtImage, t, lay, Sfs)
#define ZEL_SQRT(t, lay) ZEL_UNARY_MEMBERS(Sqrt, ::zel::arith::sqrtImage, t, lay, )

ZEL_UNARY_3(ZEL_SQRT_SFS, 8u)
ZEL_UNARY_3(ZEL_SQRT_SFS, 16u)
ZEL_UNARY_3(ZEL_SQRT_SFS, 16s)
ZEL_UNARY_3(ZEL_SQRT, 32f)

// The one four-channel member: in place.
ZelStatus zeliSqrt_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize) {
    return ::zel::arith::sqrtImage<Zel32f, ::zel::Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, 0);
}

#endif  // HWY_ONCE
