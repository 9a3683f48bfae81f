// Addressing inside caller-owned images.
#pragma once

#include <climits>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>
#include <utility>

#include "zeli.h"

namespace zel {

// Address `bytes` bytes after p, keeping its type.
template <class T>
inline T* byteOffset(T* p, std::ptrdiff_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

// Address of row `y` of an image whose first row starts at `base`; steps
// may be negative (rows walk upwards) and are counted in bytes.
template <class T>
inline T* rowAt(T* base, int step, int y) {
    return byteOffset(base, static_cast<std::ptrdiff_t>(step) * y);
}

// Rows that follow one another without padding (every step equals the
// row's byte length) are one long row: returns {width * height, 1} then,
// and the ROI unchanged otherwise or when the product would not fit.
inline ZeliSize collapseRows(ZeliSize roi, std::int64_t rowBytes, std::initializer_list<int> steps) {
    if (roi.height == 1) return roi;
    for (int step : steps)
        if (step != rowBytes) return roi;
    const std::int64_t pixels = std::int64_t{roi.width} * roi.height;
    if (pixels > INT_MAX) return roi;
    return ZeliSize{static_cast<int32_t>(pixels), 1};
}

// The same for operands whose rows differ in length (layout changes): every
// operand's step must equal its own row length in bytes.
inline ZeliSize collapseRows(ZeliSize roi,
                             std::initializer_list<std::pair<int, std::int64_t>> stepAndRowBytes) {
    for (const auto& [step, rowBytes] : stepAndRowBytes)
        if (step != rowBytes) return roi;
    const std::int64_t pixels = std::int64_t{roi.width} * roi.height;
    return pixels > INT_MAX ? roi : ZeliSize{static_cast<int32_t>(pixels), 1};
}

}  // namespace zel
