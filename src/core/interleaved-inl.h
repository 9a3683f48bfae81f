// Per-target loads and stores of whole interleaved pixels, split into one
// vector per channel (v[c] holds channel c of Lanes(d) pixels, in pixel
// order). Per-target header: include it after hwy/highway.h, like
// Highway's own -inl files.
#if defined(ZEL_CORE_INTERLEAVED_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_CORE_INTERLEAVED_INL_H_
#undef ZEL_CORE_INTERLEAVED_INL_H_
#else
#define ZEL_CORE_INTERLEAVED_INL_H_
#endif

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <int C, class D, class V>
HWY_INLINE void LoadPixels(D d, const hn::TFromD<D>* HWY_RESTRICT p, V* v) {
    if constexpr (C == 1) {
        v[0] = hn::LoadU(d, p);
    } else if constexpr (C == 3) {
        hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
    } else {
        hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
    }
}

template <int C, class D, class V>
HWY_INLINE void StorePixels(D d, const V* v, hn::TFromD<D>* HWY_RESTRICT p) {
    if constexpr (C == 1) {
        hn::StoreU(v[0], d, p);
    } else if constexpr (C == 3) {
        hn::StoreInterleaved3(v[0], v[1], v[2], d, p);
    } else {
        hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, p);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_CORE_INTERLEAVED_INL_H_
