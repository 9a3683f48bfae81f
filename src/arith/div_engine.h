// The division engine behind Div, Div_Round and DivC: element-wise
// dividend / divisor over a ROI, with the argument checks the division
// families share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "arith/div_rounding.h"
#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/pixel.h"
#include "zeli.h"

namespace zel::div {

// Length in elements of a constant divisor (DivC): the constant of every
// channel repeated, a multiple of the channel counts (1, 3, 4) and of every
// target's vector length. Long rows are divided in runs of at most this
// many elements, so the pattern's size does not grow with the ROI.
constexpr std::ptrdiff_t kDivisorPattern = 768;

// The divisor operand: an image, or a pattern of kDivisorPattern elements
// whose element i divides element x of every row when x mod kDivisorPattern
// is i.
template <class T>
struct Divisor {
    const T* base;
    int step;
    bool pattern;
};

// Members whose kernels compute in floating point (the integer quotients
// too are found through a floating-point division); they run under the
// standard environment. 16sc and 32sc divide in integers only.
template <class T>
inline constexpr bool kDividesInFloat = !std::is_same_v<T, Zel16sc> && !std::is_same_v<T, Zel32sc>;

// Divides every computed channel of the ROI (AC4 leaves alpha alone) and
// returns how many elements raised the zero-divisor warning. Integer types
// scale by 2^-scale and round by `mode`; 32f and 32fc ignore both. `dst`
// may be the dividend (in place). One pass over the rows under the fork
// rule; the warnings of every thread are added up.
template <class T, Layout L>
std::int64_t divideImage(Divisor<T> divisor, const T* dividend, int dividendStep, T* dst, int dstStep,
                         ZeliSize roi, int mode, int scale);

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
    const auto divide = [&] {
        return divideImage<T, L>(Divisor<T>{divisor, divisorStep, false}, dividend, dividendStep, dst, dstStep,
                                 roi, mode, scale);
    };
    std::int64_t warnings;
    if constexpr (kDividesInFloat<T>) {
        StandardFpEnvironment environment;
        warnings = divide();
    } else {
        warnings = divide();
    }
    return warnings != 0 ? zelStatusWarnDivByZero : zelStatusOk;
}

}  // namespace zel::div
