// SaturatingNarrow: lanes of a wide integer type back to a narrower
// element type, saturated to that type's range. Per-target header (include
// it after hwy/highway.h, like Highway's own -inl files).
//
// The value is clamped to the narrow type's range in the wide lanes first,
// so the demotion itself never has to saturate: not every target's
// demotion saturates correctly (the AVX-512 demotion of 32-bit lanes to
// unsigned 8-bit ones reads its input as unsigned, so negative values
// become 255), and after the clamp every target gives the same bits.
#if defined(ZEL_CORE_NARROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_CORE_NARROW_INL_H_
#undef ZEL_CORE_NARROW_INL_H_
#else
#define ZEL_CORE_NARROW_INL_H_
#endif

#include <hwy/highway.h>

#include <limits>
#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {

// v holds lanes of the type of dw; the result has the lanes of dn (the
// same lane count). Equal types pass v through.
template <class DN, class DW, class V>
HWY_INLINE auto SaturatingNarrow(DN dn, DW dw, V v) {
    namespace hn = hwy::HWY_NAMESPACE;
    using T = hn::TFromD<DN>;
    using W = hn::TFromD<DW>;
    if constexpr (std::is_same_v<T, W>) {
        return v;
    } else {
        const hn::RebindToSigned<DW> di;
        if constexpr (std::is_signed_v<W>) v = hn::Max(v, hn::Set(dw, W(std::numeric_limits<T>::min())));
        v = hn::Min(v, hn::Set(dw, W(std::numeric_limits<T>::max())));
        return hn::DemoteTo(dn, hn::BitCast(di, v));
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_CORE_NARROW_INL_H_
