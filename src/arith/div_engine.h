// The division engine behind Div, Div_Round and DivC: element-wise
// dividend / divisor over a ROI, with the argument checks the division
// families share.
#pragma once

#include <cstdint>

#include "arith/div_rounding.h"
#include "core/checks.h"
#include "core/pixel.h"
#include "zeli.h"

namespace zel::div {

// Divides every computed channel of the ROI (AC4 leaves alpha alone) and
// returns how many elements raised the zero-divisor warning. Integer types
// scale by 2^-scale and round by `mode`; 32f and 32fc ignore both. `dst`
// may be the dividend (in place); a divisor step of 0 reuses one row for
// every row of the ROI. Each row's elements are split between at most two
// threads once the row is long enough (see kSplitThreshold).
template <class T, Layout L>
std::int64_t divideImage(const T* divisor, int divisorStep, const T* dividend, int dividendStep, T* dst,
                         int dstStep, ZeliSize roi, int mode, int scale);

// Div and Div_Round: null pointers, ROI size, steps, then (Div_Round only)
// the rounding mode; a zero divisor anywhere gives the warning.
template <class T, Layout L>
ZelStatus divideChecked(const T* divisor, int divisorStep, const T* dividend, int dividendStep, T* dst,
                        int dstStep, ZeliSize roi, int mode, bool checkMode, int scale) {
    if (ZelStatus st = Check()
                           .ptrs(divisor, dividend, dst)
                           .roi(roi)
                           .steps(divisorStep, dividendStep, dstStep)
                           .that(!checkMode || validRounding(mode), zelStatusBadRoundMode))
        return st;
    const std::int64_t warnings =
        divideImage<T, L>(divisor, divisorStep, dividend, dividendStep, dst, dstStep, roi, mode, scale);
    return warnings != 0 ? zelStatusWarnDivByZero : zelStatusOk;
}

}  // namespace zel::div
