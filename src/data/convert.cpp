// Convert: change the element type keeping the value. Integer sources widen
// exactly or saturate to a narrower destination; 32f sources are clamped
// and rounded by the caller's rounding mode. One kernel per rule
// (convert_row-inl.h) serves every layout: C1, C3 and C4 rows are runs of
// elements, AC4 rows leave every fourth destination element alone. The
// 1-bit members live in convert_bits.cpp.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/convert.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "data/convert_row-inl.h"

#if HWY_ONCE

#include <limits>

#include "core/checks.h"
#include "data/convert_image.h"

namespace zel {
namespace {

using convert::Rule;

template <class Src, class Dst, Rule R, Layout L>
ZelStatus convertExact(const Src* pSrc, int srcStep, Dst* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep)) return st;
    convert::convertImage<Src, Dst, R, L>(pSrc, srcStep, pDst, dstStep, roi, convert::Params{});
    return zelStatusOk;
}

// 32f to an integer type: modes 0 and 1 set the rounding control (toward
// zero, nearest) after the checks and give the caller's word back only if
// its rounding field was another; every other mode is half-away rounding
// and leaves the control alone.
template <class Dst, Layout L>
ZelStatus convertRounded(const Zel32f* pSrc, int srcStep, Dst* pDst, int dstStep, ZeliSize roi,
                         ZelRoundingMode roundMode) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep)) return st;
    convert::Params p;
    p.lo = static_cast<float>(std::numeric_limits<Dst>::min());
    p.hi = static_cast<float>(std::numeric_limits<Dst>::max());
    const int mode = static_cast<int>(roundMode);
    if (mode == zelRoundTowardZero) {
        convert::RoundingControl control(kSseRoundTowardZero);
        convert::convertImage<Zel32f, Dst, Rule::Truncate, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    } else if (mode == zelRoundNearestEven) {
        convert::RoundingControl control(kSseRoundNearest);
        convert::convertImage<Zel32f, Dst, Rule::NearestEven, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    } else {
        convert::convertImage<Zel32f, Dst, Rule::HalfAway, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    }
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_CONVERT(s, d, layout, rule)                                                                  \
    ZelStatus zeliConvert_##s##d##_##layout##R(const Zel##s* pSrc, int srcStep, Zel##d* pDst, int dstStep, \
                                               ZeliSize roi) {                                            \
        return zel::convertExact<Zel##s, Zel##d, zel::convert::Rule::rule, zel::Layout::layout>(           \
            pSrc, srcStep, pDst, dstStep, roi);                                                           \
    }
#define ZELI_CONVERT_ROUNDED(d, layout)                                                                 \
    ZelStatus zeliConvert_32f##d##_##layout##R(const Zel32f* pSrc, int srcStep, Zel##d* pDst, int dstStep, \
                                               ZeliSize roi, ZelRoundingMode roundMode) {                 \
        return zel::convertRounded<Zel##d, zel::Layout::layout>(pSrc, srcStep, pDst, dstStep, roi,        \
                                                                roundMode);                               \
    }
#define ZELI_CONVERT_LAYOUTS(s, d, rule) \
    ZELI_CONVERT(s, d, C1, rule)         \
    ZELI_CONVERT(s, d, C3, rule)         \
    ZELI_CONVERT(s, d, C4, rule)         \
    ZELI_CONVERT(s, d, AC4, rule)
#define ZELI_CONVERT_ROUNDED_LAYOUTS(d) \
    ZELI_CONVERT_ROUNDED(d, C1)         \
    ZELI_CONVERT_ROUNDED(d, C3)         \
    ZELI_CONVERT_ROUNDED(d, C4)         \
    ZELI_CONVERT_ROUNDED(d, AC4)

ZELI_CONVERT_LAYOUTS(8u, 16u, Widen)
ZELI_CONVERT_LAYOUTS(8u, 16s, Widen)
ZELI_CONVERT_LAYOUTS(8u, 32s, Widen)
ZELI_CONVERT_LAYOUTS(8s, 32s, Widen)
ZELI_CONVERT_LAYOUTS(16s, 32s, Widen)
ZELI_CONVERT_LAYOUTS(16u, 32s, Widen)
ZELI_CONVERT_LAYOUTS(8u, 32f, Widen)
ZELI_CONVERT_LAYOUTS(8s, 32f, Widen)
ZELI_CONVERT_LAYOUTS(16s, 32f, Widen)
ZELI_CONVERT_LAYOUTS(16u, 32f, Widen)
ZELI_CONVERT_LAYOUTS(16u, 8u, Saturate)
ZELI_CONVERT_LAYOUTS(16s, 8u, Saturate)
ZELI_CONVERT_LAYOUTS(32s, 8u, Saturate)
ZELI_CONVERT_LAYOUTS(32s, 8s, Saturate)
ZELI_CONVERT_ROUNDED_LAYOUTS(8u)
ZELI_CONVERT_ROUNDED_LAYOUTS(8s)
ZELI_CONVERT_ROUNDED_LAYOUTS(16s)
ZELI_CONVERT_ROUNDED_LAYOUTS(16u)

#endif  // HWY_ONCE
