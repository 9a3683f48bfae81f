// StoreUnderMask: writes the lanes of v selected by m to p and nothing
// else; LoadFirst: reads the first elements at p and nothing after them.
// Per-target header (include it after hwy/highway.h inside
// HWY_BEFORE_NAMESPACE, like Highway's own -inl files).
//
// The bytes of unselected lanes are neither read nor written: they may
// belong to another thread (an alpha channel updated concurrently) or lie
// on a page the caller has made read-only. AVX-512 stores under a mask for
// every lane size; elsewhere the selected lanes are stored one by one.
#if defined(ZEL_CORE_STORE_UNDER_MASK_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_CORE_STORE_UNDER_MASK_INL_H_
#undef ZEL_CORE_STORE_UNDER_MASK_INL_H_
#else
#define ZEL_CORE_STORE_UNDER_MASK_INL_H_
#endif

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {

// Whether this target has masked loads and stores for lanes of T that
// neither touch nor fault on the unselected lanes and cost no more than a
// plain store. AVX2's vpmaskmov has them for 32- and 64-bit lanes, but its
// stores are microcoded on AMD processors (Set_32f_AC4R took four times as
// long as with scalar stores), so only AVX-512 counts.
template <class T>
inline constexpr bool kNativeMaskedAccess = HWY_TARGET == HWY_AVX3;

template <class D, class V, class M>
HWY_INLINE void StoreUnderMask(V v, M m, D d, hwy::HWY_NAMESPACE::TFromD<D>* p) {
    namespace hn = hwy::HWY_NAMESPACE;
    using T = hn::TFromD<D>;
    if constexpr (kNativeMaskedAccess<T>) {
        hn::BlendedStore(v, m, d, p);
    } else {
        // The selected lanes, found from the mask bits, are stored one at a
        // time.
        HWY_ALIGN T lanes[hn::MaxLanes(d)];
        hn::Store(v, d, lanes);
        std::uint64_t bits = 0;
        hn::StoreMaskBits(d, m, reinterpret_cast<std::uint8_t*>(&bits));
        while (bits != 0) {
            const int i = __builtin_ctzll(bits);
            std::memcpy(p + i, lanes + i, sizeof(T));
            bits &= bits - 1;
        }
    }
}

// Writes the first `run` bytes of every `stride`-byte pixel of the vector v
// to p, and nothing else: the colour channels of whole pixels, with one or
// two moves each where StoreUnderMask would store lane by lane. The vector
// must hold whole pixels (its byte length a multiple of `stride`).
template <class D, class V>
HWY_INLINE void StorePixelRuns(V v, D d, hwy::HWY_NAMESPACE::TFromD<D>* p, std::size_t stride, std::size_t run) {
    namespace hn = hwy::HWY_NAMESPACE;
    using T = hn::TFromD<D>;
    HWY_ALIGN T lanes[hn::MaxLanes(d)];
    hn::Store(v, d, lanes);
    const auto* from = reinterpret_cast<const std::uint8_t*>(lanes);
    auto* to = reinterpret_cast<std::uint8_t*>(p);
    const std::size_t bytes = hn::Lanes(d) * sizeof(T);
    // A constant length per case, so every move is a plain load and store.
    auto each = [&](auto length) {
        for (std::size_t at = 0; at < bytes; at += stride) std::memcpy(to + at, from + at, decltype(length)::value);
    };
    switch (run) {
        case 3: each(std::integral_constant<std::size_t, 3>()); break;
        case 6: each(std::integral_constant<std::size_t, 6>()); break;
        case 12: each(std::integral_constant<std::size_t, 12>()); break;
        case 24: each(std::integral_constant<std::size_t, 24>()); break;
        default:
            for (std::size_t at = 0; at < bytes; at += stride) std::memcpy(to + at, from + at, run);
    }
}

// The first `count` elements at p (fewer than the lanes of d), the other
// lanes zero; no byte after them is read, so the elements may end right
// before a page the caller cannot read. Without native masked loads the
// elements are copied into a vector-sized buffer.
template <class D>
HWY_INLINE hwy::HWY_NAMESPACE::VFromD<D> LoadFirst(D d, const hwy::HWY_NAMESPACE::TFromD<D>* p,
                                                   std::size_t count) {
    namespace hn = hwy::HWY_NAMESPACE;
    using T = hn::TFromD<D>;
    if constexpr (kNativeMaskedAccess<T>) {
        return hn::MaskedLoad(hn::FirstN(d, count), d, p);
    } else {
        HWY_ALIGN T lanes[hn::MaxLanes(d)] = {};
        std::memcpy(lanes, p, count * sizeof(T));
        return hn::Load(d, lanes);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_CORE_STORE_UNDER_MASK_INL_H_
