// The scalar rule of alpha compositing, one channel at a time.
//
// Unsigned pixels are fractions of the type's maximum M (255 or 65535).
// m(x, y) = floor(x * y / M) is formed without a divide as
// (t + (t >> n) + 1) >> n with t = x * y and n = 8 or 16: writing
// t = (M) q + r with 0 <= r < M and q <= M, floor(t / 2^n) is q when r >= q
// and q - 1 when r < q, so t + (t >> n) + 1 = 2^n q + r + 1 or 2^n q + r,
// whose quotient by 2^n is q because r + 1 <= M < 2^n. The sum stays below
// 2^16 (8u) and 2^32 (16u), so the same lanes hold it. s(x) = min(M, x).
//
// A composition type 0..5 takes straight colours, which are premultiplied
// first (c' = m(c, a)); 6..11 take premultiplied colours (c' = c). Per
// colour channel, with the results still premultiplied:
//   Over  s(c1' + m(c2', M - a1))       In  m(c1', a2)       Out m(c1', M - a2)
//   ATop  s(m(c1', a2) + m(c2', M - a1))
//   Xor   s(m(c1', M - a2) + m(c2', M - a1))                 Plus s(c1' + c2')
// The alpha channel follows the same expressions with c' = a (premultiplying
// an alpha by M leaves it as it is: m(a, M) = a), except ATop, whose alpha
// is a2.
#pragma once

#include <algorithm>
#include <cstdint>

namespace zel::alpha {

enum Op : int { kOver = 0, kIn = 1, kOut = 2, kATop = 3, kXor = 4, kPlus = 5 };

// Where the alphas of an interleaved composition come from: the pixels'
// fourth channels, two constants, or two constants of which the first is
// 0 (and the colour too) where source 1's colour equals the key.
enum class AlphaFrom { Pixels, Constants, ColorKey };

// Premultiplication: what each element is multiplied by.
enum class PremulBy {
    Constant,       // every element by `alpha`
    ConstantAlpha,  // interleaved (c0, c1, c2, a): colours by `alpha`, a set to `alpha`
    PixelAlpha,     // interleaved (c0, c1, c2, a): colours by a, a kept
    Plane           // element i by a[i]
};

constexpr int kTypes = 12;  // composition types 0..11
constexpr int opOf(int type) { return type % 6; }
constexpr bool straightOf(int type) { return type < 6; }

template <class T>
inline constexpr std::uint32_t kMax = sizeof(T) == 1 ? 255u : 65535u;
template <class T>
inline constexpr int kShift = sizeof(T) == 1 ? 8 : 16;

// floor(x * y / M) for x, y in 0..M.
template <class T>
inline std::uint32_t mulDiv(std::uint32_t x, std::uint32_t y) {
    const std::uint32_t t = x * y;
    return (t + (t >> kShift<T>) + 1) >> kShift<T>;
}

template <class T>
inline std::uint32_t saturate(std::uint32_t x) {
    return std::min(x, kMax<T>);
}

// One channel of a composition of type `Type`: c1 and c2 the channel's
// values, p1 and p2 what they are premultiplied by (the pixel's alpha for a
// colour channel, M for the alpha channel), a1 and a2 the pixels' alphas.
// `isAlpha` selects the alpha rule of ATop.
template <class T, int Type>
inline std::uint32_t composeChannel(std::uint32_t c1, std::uint32_t p1, std::uint32_t a1, std::uint32_t c2,
                                    std::uint32_t p2, std::uint32_t a2, bool isAlpha) {
    constexpr std::uint32_t M = kMax<T>;
    if constexpr (straightOf(Type)) {
        c1 = mulDiv<T>(c1, p1);
        c2 = mulDiv<T>(c2, p2);
    }
    switch (opOf(Type)) {
        case kOver: return saturate<T>(c1 + mulDiv<T>(c2, M - a1));
        case kIn: return mulDiv<T>(c1, a2);
        case kOut: return mulDiv<T>(c1, M - a2);
        case kATop: return isAlpha ? c2 : saturate<T>(mulDiv<T>(c1, a2) + mulDiv<T>(c2, M - a1));
        case kXor: return saturate<T>(mulDiv<T>(c1, M - a2) + mulDiv<T>(c2, M - a1));
        default: return saturate<T>(c1 + c2);
    }
}

// The alpha of a composition of alphas a1 and a2.
template <class T, int Type>
inline std::uint32_t composeAlpha(std::uint32_t a1, std::uint32_t a2) {
    return composeChannel<T, Type>(a1, kMax<T>, a1, a2, kMax<T>, a2, true);
}

// The alpha of a composition given its type at run time (constant alphas).
template <class T>
inline std::uint32_t composeAlphaOf(int type, std::uint32_t a1, std::uint32_t a2) {
    switch (type) {
        case 0: case 6: return composeAlpha<T, 0>(a1, a2);
        case 1: case 7: return composeAlpha<T, 1>(a1, a2);
        case 2: case 8: return composeAlpha<T, 2>(a1, a2);
        case 3: case 9: return composeAlpha<T, 3>(a1, a2);
        case 4: case 10: return composeAlpha<T, 4>(a1, a2);
        default: return composeAlpha<T, 5>(a1, a2);
    }
}

}  // namespace zel::alpha
