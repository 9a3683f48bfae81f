// Addressing inside caller-owned images.
//
// Every count, offset and loop bound below is 64-bit: an image that
// zeliMalloc can return (up to 2^31 - 1 bytes per row, 2^31 - 1 rows) has
// far more than 2^31 elements, and the library processes it whole.
#pragma once

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
inline T* rowAt(T* base, int step, std::ptrdiff_t y) {
    return byteOffset(base, static_cast<std::ptrdiff_t>(step) * y);
}

// The rows a call walks: `width` pixels in each of `height` rows. After
// collapsing, one row may hold more than 2^31 pixels.
struct Rows {
    std::ptrdiff_t width;
    std::ptrdiff_t height;
};

inline Rows rowsOf(ZeliSize roi) { return Rows{roi.width, roi.height}; }

// Rows that follow one another without padding (every step equals the
// row's byte length) are one long row: {width * height, 1}; otherwise the
// ROI's own rows.
inline Rows collapseRows(ZeliSize roi, std::int64_t rowBytes, std::initializer_list<int> steps) {
    for (int step : steps)
        if (step != rowBytes) return rowsOf(roi);
    return Rows{std::ptrdiff_t{roi.width} * roi.height, 1};
}

// The same for operands whose rows differ in length (layout changes): every
// operand's step must equal its own row length in bytes.
inline Rows collapseRows(ZeliSize roi,
                         std::initializer_list<std::pair<int, std::int64_t>> stepAndRowBytes) {
    for (const auto& [step, rowBytes] : stepAndRowBytes)
        if (step != rowBytes) return rowsOf(roi);
    return Rows{std::ptrdiff_t{roi.width} * roi.height, 1};
}

}  // namespace zel
