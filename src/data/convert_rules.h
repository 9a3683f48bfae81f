// The rules of the type conversions (Convert and Scale), shared by the
// per-target row kernel (convert_row-inl.h) and the wrapper
// (convert_image.h).
#pragma once

#include <cstdint>

namespace zel::convert {

// One rule per formula; a kernel is instantiated per rule and element pair.
enum class Rule {
    Widen,          // exact: integer to a wider integer or to 32f
    Saturate,       // integer to a narrower integer, saturated
    Truncate,       // 32f to integer: clamp, round toward zero
    NearestEven,    // 32f to integer: clamp, round to nearest even
    HalfAway,       // 32f to integer: min with the top, add 1/2 with the sign, truncate, saturate
    ShiftScale16,   // ((y - (y >> 8)) >> 8) + 128 with y = x (16s) or x - 32768 (16u)
    ShiftScale32,   // ((x - (x >> 8)) >> 24) + 128
    FloatScale16,   // round((x + offset) * k) in single precision
    DoubleScale32,  // round(x * dk + db) in double precision
    Repeat,         // x * multiplier + addend, wrapping in 32 bits
    ToFloatRange,   // x * k + b in single precision
    FromFloatRange, // round(max(min(x, hi), lo) * k + b) in single precision, NaN as 0
    FromFiniteRange, // the same with finite limits, factor and offset (no NaN can arise)
};

// Whether a rule computes in floating point (and so runs under the
// standard floating-point environment).
constexpr bool usesFloat(Rule r) {
    return r != Rule::Saturate && r != Rule::ShiftScale16 && r != Rule::ShiftScale32 && r != Rule::Repeat;
}

// The constants of a call.
struct Params {
    float lo = 0, hi = 0;       // clamp limits
    float k = 0, b = 0;         // single-precision factor and offset
    double dk = 0, db = 0;      // double-precision factor and offset
    std::int32_t offset = 0;    // added before the integer formulas
    std::int32_t multiplier = 1, addend = 0;
};

}  // namespace zel::convert
