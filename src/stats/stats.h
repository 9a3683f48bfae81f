// Shared pieces of the statistics wrappers: the thread team of a reduction
// over rows and the total order in which 32f extrema compare.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/parallel.h"
#include "zeli.h"

namespace zel {

// Threads for a reduction that reads `rowBytes` bytes in each of `rows` rows:
// the work is cut into blocks of kRowsPerSlot rows.
inline int reductionTeam(std::ptrdiff_t rows, std::int64_t rowBytes) {
    return teamSize(rowBytes * rows, kCostMove, (rows + kRowsPerSlot - 1) / kRowsPerSlot);
}

// Extrema compare keys: the value itself for integer types; for 32f the
// float's bits as a signed integer whose order is the order of the values,
// -0 just below +0 (negative floats have their magnitude bits inverted).
template <class T>
using KeyOf = std::conditional_t<std::is_same_v<T, float>, std::int32_t, T>;

inline std::int32_t floatKey(float f) {
    std::int32_t bits;
    std::memcpy(&bits, &f, sizeof bits);
    return bits ^ ((bits >> 31) & 0x7FFFFFFF);
}
inline float keyFloat(std::int32_t key) {
    const std::int32_t bits = key ^ ((key >> 31) & 0x7FFFFFFF);
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

template <class T>
inline KeyOf<T> keyOf(T v) {
    if constexpr (std::is_same_v<T, float>) return floatKey(v);
    else return v;
}
template <class T>
inline T valueOf(KeyOf<T> k) {
    if constexpr (std::is_same_v<T, float>) return keyFloat(k);
    else return k;
}

// The key no value reaches: the start of a minimum (kNoMin) or maximum
// (kNoMax) search. For 32f they are the keys of NaNs, which the searches
// skip, so a channel that keeps them held nothing but NaN.
template <class T>
inline constexpr KeyOf<T> kNoMin = std::numeric_limits<KeyOf<T>>::max();
template <class T>
inline constexpr KeyOf<T> kNoMax = std::numeric_limits<KeyOf<T>>::lowest();

// The key of the best value there can be (the type's bound), where a
// search may stop: the infinities for 32f.
template <class T, bool kMax>
inline KeyOf<T> boundKey() {
    if constexpr (std::is_same_v<T, float>)
        return floatKey(kMax ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity());
    else return kMax ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
}

// The value a channel reports for a final key: NaN for a channel that
// held nothing but NaN.
template <class T>
inline T reported(KeyOf<T> k, bool none) {
    if constexpr (std::is_same_v<T, float>) {
        if (none) return std::numeric_limits<float>::quiet_NaN();
    }
    return valueOf<T>(k);
}

}  // namespace zel
