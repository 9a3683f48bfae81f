// StoreUnderMask: writes the lanes of v selected by m to p, leaving the
// other lanes' memory as it was. Per-target header (include it after
// hwy/highway.h inside HWY_BEFORE_NAMESPACE, like Highway's own -inl files).
//
// AVX-512 has masked stores for every lane size and AVX2 for 32- and 64-bit
// lanes; there the unselected bytes are not even read. Elsewhere Highway
// falls back to a lane-by-lane loop, so the store becomes a blend with the
// current contents instead: callers must own the whole vector's span (the
// unselected lanes are written back unchanged).
#if defined(ZEL_CORE_STORE_UNDER_MASK_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_CORE_STORE_UNDER_MASK_INL_H_
#undef ZEL_CORE_STORE_UNDER_MASK_INL_H_
#else
#define ZEL_CORE_STORE_UNDER_MASK_INL_H_
#endif

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {

template <class D, class V, class M>
HWY_INLINE void StoreUnderMask(V v, M m, D d, hwy::HWY_NAMESPACE::TFromD<D>* p) {
    namespace hn = hwy::HWY_NAMESPACE;
#if HWY_TARGET == HWY_AVX3
    constexpr bool kNative = true;
#elif HWY_TARGET == HWY_AVX2
    constexpr bool kNative = sizeof(hn::TFromD<D>) >= 4;
#else
    constexpr bool kNative = false;
#endif
    if constexpr (kNative) {
        hn::BlendedStore(v, m, d, p);
    } else {
        hn::StoreU(hn::IfThenElse(m, v, hn::LoadU(d, p)), d, p);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_CORE_STORE_UNDER_MASK_INL_H_
