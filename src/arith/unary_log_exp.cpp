// Ln and Exp: natural logarithm and exponent of 32f, and of 8u, 16u and
// 16s with a scale factor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/unary_log_exp.cpp"
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

// Every row advances by the full step; the status is the first warning of
// any row. Rows are never merged where a merged row could report another
// code: the 32f kernel's code depends on its 256-element chunks, and a 16s
// row reports 8 for any negative value over 7 for a zero.
template <class T, Layout L>
ZelStatus lnImage(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int scale) {
    if constexpr (std::is_floating_point_v<T>) {
        static constexpr UnaryPlan kPlan{false, Gather::FirstNonZero, false, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [] {
            const auto kernel = ZEL_DISPATCH(LnRow32f);
            return [kernel](const float* s, float* d, std::ptrdiff_t n, bool) { return kernel(s, d, n); };
        });
    } else if constexpr (std::is_same_v<T, Zel8u>) {
        static constexpr UnaryPlan kPlan{false, Gather::FirstNonZero, true, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale] {
            return tableRow([scale](Zel8u x) { int code = 0; return lnScaled<Zel8u>(x, scale, code); },
                            zelStatusWarnLogOfZero);
        });
    } else {
        static constexpr UnaryPlan kPlan{false, Gather::FirstNonZero, std::is_unsigned_v<T>, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale, roi] {
            return ruleRow<T, L>(roi, [scale](T x, int& code) { return lnScaled<T>(x, scale, code); });
        });
    }
}

// Every row advances by the full step. 32f, 16u and 16s return the last
// row's status and 8u returns 0; no exponent row warns.
template <class T, Layout L>
ZelStatus expImage(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int scale) {
    if constexpr (std::is_floating_point_v<T>) {
        static constexpr UnaryPlan kPlan{false, Gather::Last, true, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [] {
            const auto kernel = ZEL_DISPATCH(ExpRow32f);
            return [kernel](const float* s, float* d, std::ptrdiff_t n, bool) { return kernel(s, d, n); };
        });
    } else if constexpr (std::is_same_v<T, Zel8u>) {
        static constexpr UnaryPlan kPlan{false, Gather::Ignore, true, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale] {
            return tableRow([scale](Zel8u x) { return expScaled8u(x, scale); }, 0);
        });
    } else {
        static constexpr UnaryPlan kPlan{false, Gather::Last, true, 0, true};
        return unaryImage<T, L>(src, srcStep, dst, dstStep, roi, kPlan, [scale, roi] {
            return ruleRow<T, L>(roi, [scale](T x, int&) { return expScaled<T>(x, scale); });
        });
    }
}

}  // namespace
}  // namespace zel::arith

#define ZEL_LN_SFS(t, lay) ZEL_UNARY_MEMBERS(Ln, ::zel::arith::lnImage, t, lay, Sfs)
#define ZEL_LN(t, lay) ZEL_UNARY_MEMBERS(Ln, ::zel::arith::lnImage, t, lay, )
#define ZEL_EXP_SFS(t, lay) ZEL_UNARY_MEMBERS(Exp, ::zel::arith::expImage, t, lay, Sfs)
#define ZEL_EXP(t, lay) ZEL_UNARY_MEMBERS(Exp, ::zel::arith::expImage, t, lay, )

ZEL_UNARY_2(ZEL_LN_SFS, 8u)
ZEL_UNARY_2(ZEL_LN_SFS, 16u)
ZEL_UNARY_2(ZEL_LN_SFS, 16s)
ZEL_UNARY_2(ZEL_LN, 32f)
ZEL_UNARY_2(ZEL_EXP_SFS, 8u)
ZEL_UNARY_2(ZEL_EXP_SFS, 16u)
ZEL_UNARY_2(ZEL_EXP_SFS, 16s)
ZEL_UNARY_2(ZEL_EXP, 32f)

#endif  // HWY_ONCE
