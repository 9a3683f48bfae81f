// Scale: map the whole range of the source type (or, from and to 32f, a
// caller-given range) linearly onto the whole range of the destination
// type. The integer members have fast formulas (shifts, products that
// repeat the byte) and, for the narrowing ones, accurate floating-point
// formulas chosen by the hint; both are kept where they differ. Kernels
// are the conversion kernels (convert_row-inl.h), one per formula.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/scale.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "data/convert_row-inl.h"

#if HWY_ONCE

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "core/checks.h"
#include "data/convert_image.h"

namespace zel {
namespace {

using convert::Params;
using convert::Rule;

// The single-precision value nearest to 255 / 65535.
float nearest255Over65535() {
    const std::uint32_t bits = 0x3B7F00FFu;
    float k;
    std::memcpy(&k, &bits, sizeof k);
    return k;
}

// 8-bit sources to wider integers: the byte repeated.
template <class Dst, Layout L>
ZelStatus scaleUp(const Zel8u* pSrc, int srcStep, Dst* pDst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep)) return st;
    Params p;
    if constexpr (std::is_same_v<Dst, Zel16u>) {
        p.multiplier = 257;
    } else if constexpr (std::is_same_v<Dst, Zel16s>) {
        p.multiplier = 257;
        p.addend = -32768;
    } else {
        p.multiplier = 16843009;  // 0x01010101
        p.addend = std::numeric_limits<std::int32_t>::min();
    }
    convert::convertImage<Zel8u, Dst, Rule::Repeat, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    return zelStatusOk;
}

// 16-bit and 32-bit integers to 8u: fast shifts, or with hint 2 the
// accurate formula under the rounding control set to nearest (after the
// checks; the caller's word comes back only if its rounding field differs).
template <class Src, Layout L>
ZelStatus scaleDown(const Src* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, ZelAccuracyHint hint) {
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep)) return st;
    Params p;
    if (static_cast<int>(hint) != zelAccuracyHigh) {
        if constexpr (std::is_same_v<Src, Zel32s>) {
            convert::convertImage<Src, Zel8u, Rule::ShiftScale32, L>(pSrc, srcStep, pDst, dstStep, roi, p);
        } else {
            convert::convertImage<Src, Zel8u, Rule::ShiftScale16, L>(pSrc, srcStep, pDst, dstStep, roi, p);
        }
        return zelStatusOk;
    }
    convert::RoundingControl control(kSseRoundNearest);
    if constexpr (std::is_same_v<Src, Zel32s>) {
        p.dk = 255.0 / 4294967295.0;
        p.db = 2147483648.0 * p.dk;  // 127.5000000296859...
        convert::convertImage<Src, Zel8u, Rule::DoubleScale32, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    } else {
        p.k = nearest255Over65535();
        p.offset = std::is_same_v<Src, Zel16s> ? 32768 : 0;
        convert::convertImage<Src, Zel8u, Rule::FloatScale16, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    }
    return zelStatusOk;
}

// 8u to the range [vMin, vMax]. The empty range is the first check.
template <Layout L>
ZelStatus scaleToRange(const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, Zel32f vMin,
                       Zel32f vMax) {
    Params p;
    bool empty;
    {
        StandardFpEnvironment environment;
        empty = !(vMax - vMin > 0.0f);
        p.k = (vMax - vMin) / 255.0f;
        p.b = vMin;
    }
    if (ZelStatus st = Check().that(!empty, zelStatusEmptyRange).ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep))
        return st;
    convert::convertImage<Zel8u, Zel32f, Rule::ToFloatRange, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    return zelStatusOk;
}

// [vMin, vMax] to 8u. The rounding control is set to nearest before
// anything else and stays so when a check fails; after a call that ran,
// the caller's word comes back only if its rounding field was another.
template <Layout L>
ZelStatus scaleFromRange(const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, Zel32f vMin,
                         Zel32f vMax) {
    const std::uint32_t saved = zel_set_rc_ssx(kSseRoundNearest);
    Params p;
    bool empty;
    {
        StandardFpEnvironment environment;
        const float range = vMax - vMin;
        empty = !(range > 0.0f);
        p.k = 255.0f / range;
        p.b = -p.k * vMin;
        p.lo = vMin;
        p.hi = vMax;
    }
    if (ZelStatus st = Check().that(!empty, zelStatusEmptyRange).ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep))
        return st;
    if (std::isfinite(p.lo) && std::isfinite(p.hi) && std::isfinite(p.k) && std::isfinite(p.b))
        convert::convertImage<Zel32f, Zel8u, Rule::FromFiniteRange, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    else
        convert::convertImage<Zel32f, Zel8u, Rule::FromFloatRange, L>(pSrc, srcStep, pDst, dstStep, roi, p);
    if (convert::roundingField(saved) != kSseRoundNearest) zel_set_cw_ssx(saved);
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_SCALE_ARGS(s, d) const Zel##s *pSrc, int srcStep, Zel##d *pDst, int dstStep, ZeliSize roi
#define ZELI_SCALE_UP(d, layout)                                                                     \
    ZelStatus zeliScale_8u##d##_##layout##R(ZELI_SCALE_ARGS(8u, d)) {                                 \
        return zel::scaleUp<Zel##d, zel::Layout::layout>(pSrc, srcStep, pDst, dstStep, roi);          \
    }
#define ZELI_SCALE_DOWN(s, layout)                                                                   \
    ZelStatus zeliScale_##s##8u_##layout##R(ZELI_SCALE_ARGS(s, 8u), ZelAccuracyHint hint) {           \
        return zel::scaleDown<Zel##s, zel::Layout::layout>(pSrc, srcStep, pDst, dstStep, roi, hint);  \
    }
#define ZELI_SCALE_TO_RANGE(layout)                                                                  \
    ZelStatus zeliScale_8u32f_##layout##R(ZELI_SCALE_ARGS(8u, 32f), Zel32f vMin, Zel32f vMax) {       \
        return zel::scaleToRange<zel::Layout::layout>(pSrc, srcStep, pDst, dstStep, roi, vMin, vMax); \
    }
#define ZELI_SCALE_FROM_RANGE(layout)                                                                  \
    ZelStatus zeliScale_32f8u_##layout##R(ZELI_SCALE_ARGS(32f, 8u), Zel32f vMin, Zel32f vMax) {         \
        return zel::scaleFromRange<zel::Layout::layout>(pSrc, srcStep, pDst, dstStep, roi, vMin, vMax); \
    }
#define ZELI_SCALE_LAYOUTS(member, ...) \
    member(__VA_ARGS__ C1)              \
    member(__VA_ARGS__ C3)              \
    member(__VA_ARGS__ C4)              \
    member(__VA_ARGS__ AC4)

ZELI_SCALE_LAYOUTS(ZELI_SCALE_UP, 16u,)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_UP, 16s,)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_UP, 32s,)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_DOWN, 16s,)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_DOWN, 16u,)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_DOWN, 32s,)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_TO_RANGE)
ZELI_SCALE_LAYOUTS(ZELI_SCALE_FROM_RANGE)

#endif  // HWY_ONCE
