// Every fixed-kernel filter member behind one calling interface, with its
// kernel written out as the 2-D table of weights and the rule that turns
// the kernel value into a destination value.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "zeli.h"

namespace zel::test {

// Weights for rows dy = -r..r (top to bottom), columns dx = -r..r.
using Kernel2D = std::vector<std::vector<int>>;

inline Kernel2D outer(const std::vector<int>& down, const std::vector<int>& across) {
    Kernel2D k(down.size(), std::vector<int>(across.size()));
    for (std::size_t i = 0; i < down.size(); ++i)
        for (std::size_t j = 0; j < across.size(); ++j) k[i][j] = down[i] * across[j];
    return k;
}
// centre * p - (sum of the (2r+1)^2 pixels).
inline Kernel2D centreMinusBox(int r, int centre) {
    Kernel2D k(2 * r + 1, std::vector<int>(2 * r + 1, -1));
    k[r][r] += centre;
    return k;
}

namespace kernels {
inline const Kernel2D sobelHoriz3 = {{-1, -2, -1}, {0, 0, 0}, {1, 2, 1}};
inline const Kernel2D sobelVert3 = {{1, 0, -1}, {2, 0, -2}, {1, 0, -1}};
inline const Kernel2D sobelHoriz5 = outer({-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1});
inline const Kernel2D sobelVert5 = outer({1, 4, 6, 4, 1}, {1, 2, 0, -2, -1});
inline const Kernel2D horizSecond3 = outer({1, -2, 1}, {1, 2, 1});
inline const Kernel2D vertSecond3 = outer({1, 2, 1}, {1, -2, 1});
inline const Kernel2D horizSecond5 = outer({1, 0, -2, 0, 1}, {1, 4, 6, 4, 1});
inline const Kernel2D vertSecond5 = outer({1, 4, 6, 4, 1}, {1, 0, -2, 0, 1});
inline const Kernel2D cross3 = {{-1, 0, 1}, {0, 0, 0}, {1, 0, -1}};
inline const Kernel2D cross5 = outer({-1, -2, 0, 2, 1}, {1, 2, 0, -2, -1});
inline const Kernel2D prewittHoriz = {{-1, -1, -1}, {0, 0, 0}, {1, 1, 1}};
inline const Kernel2D prewittVert = {{1, 0, -1}, {1, 0, -1}, {1, 0, -1}};
inline const Kernel2D scharrHoriz = {{-3, -10, -3}, {0, 0, 0}, {3, 10, 3}};
inline const Kernel2D scharrVert = {{3, 0, -3}, {10, 0, -10}, {3, 0, -3}};
inline const Kernel2D laplace3 = centreMinusBox(1, 9);
inline const Kernel2D laplace5 = {{-1, -3, -4, -3, -1}, {-3, 0, 6, 0, -3}, {-4, 6, 20, 6, -4},
                                  {-3, 0, 6, 0, -3}, {-1, -3, -4, -3, -1}};
inline const Kernel2D hipass5 = centreMinusBox(2, 25);
inline const Kernel2D gauss3 = outer({1, 2, 1}, {1, 2, 1});
inline const Kernel2D gauss5 = {{2, 7, 12, 7, 2}, {7, 31, 52, 31, 7}, {12, 52, 127, 52, 12},
                                {7, 31, 52, 31, 7}, {2, 7, 12, 7, 2}};
inline const Kernel2D box3 = outer({1, 1, 1}, {1, 1, 1});
inline const Kernel2D box5 = outer({1, 1, 1, 1, 1}, {1, 1, 1, 1, 1});
inline const Kernel2D sharpen = centreMinusBox(1, 17);
}  // namespace kernels

// What becomes of the kernel value v.
enum class Rule { Saturate, Exact, Gauss16, Gauss571, Mean9, Mean25, Sharpen8 };

inline float floatOfBits(std::uint32_t bits) {
    float f;
    std::memcpy(&f, &bits, 4);
    return f;
}

// floor(a / b) for b > 0.
inline std::int64_t floorDiv(std::int64_t a, std::int64_t b) {
    return a / b - (a % b != 0 && a < 0 ? 1 : 0);
}
// a / 2^k rounded to nearest, ties to even.
inline std::int64_t halfEven(std::int64_t a, int k) {
    const std::int64_t q = floorDiv(a, std::int64_t{1} << k), r = a - q * (std::int64_t{1} << k);
    const std::int64_t half = std::int64_t{1} << (k - 1);
    return r > half || (r == half && (q & 1)) ? q + 1 : q;
}

template <class D>
D saturate(std::int64_t v) {
    return static_cast<D>(std::min<std::int64_t>(std::max<std::int64_t>(v, std::numeric_limits<D>::lowest()),
                                                 std::numeric_limits<D>::max()));
}

// The integer destination value of kernel value v.
template <class D>
D integerResult(Rule rule, std::int64_t v) {
    switch (rule) {
        case Rule::Saturate: case Rule::Exact: return saturate<D>(v);
        case Rule::Gauss16: return saturate<D>(halfEven(v, 4));
        case Rule::Sharpen8: return saturate<D>(halfEven(std::is_signed_v<D> ? v : std::max<std::int64_t>(v, 0), 3));
        case Rule::Mean9: return saturate<D>(floorDiv(2 * v + 9, 18));
        case Rule::Mean25: return saturate<D>(floorDiv(2 * v + 25, 50));
        case Rule::Gauss571:
            if (std::is_same_v<D, Zel16u>) return saturate<D>(floorDiv(2 * v + 571, 1142));
            return saturate<D>(std::lrint(static_cast<float>(v) * floatOfBits(0x3AE58C54)));
    }
    return 0;
}

// The factor a 32f member applies to its kernel value.
inline double floatScale(Rule rule) {
    switch (rule) {
        case Rule::Gauss16: return 0.0625;
        case Rule::Sharpen8: return 0.125;
        case Rule::Mean9: return floatOfBits(0x3DE38E39);
        case Rule::Mean25: return floatOfBits(0x3D23D70A);
        case Rule::Gauss571: return floatOfBits(0x3AE58C54);
        default: return 1;
    }
}

enum class Elem { u8, s8, u16, s16, f32 };
template <class T>
constexpr Elem elemOf() {
    if constexpr (std::is_same_v<T, Zel8u>) return Elem::u8;
    else if constexpr (std::is_same_v<T, Zel8s>) return Elem::s8;
    else if constexpr (std::is_same_v<T, Zel16u>) return Elem::u16;
    else if constexpr (std::is_same_v<T, Zel16s>) return Elem::s16;
    else return Elem::f32;
}

// How a member reads its mask code.
enum class Masks { none, strict, lenient };

using FilterCall = std::function<ZelStatus(const void* src, int srcStep, void* dst, int dstStep, ZeliSize roi,
                                           int mask)>;

struct FilterMember {
    std::string name;
    Elem src, dst;
    int channels, written;  // AC4: 4 and 3
    Masks masks;
    Kernel2D k3, k5;  // k5 empty: 3x3 only. Roberts: both empty
    Rule rule;
    FilterCall call;
    int roberts = 0;  // -1 Down, +1 Up
};

template <class S, class D>
ZelStatus invoke(ZelStatus (*f)(const S*, int, D*, int, ZeliSize), const void* s, int ss, void* d, int ds,
                 ZeliSize roi, int) {
    return f(static_cast<const S*>(s), ss, static_cast<D*>(d), ds, roi);
}
template <class S, class D>
ZelStatus invoke(ZelStatus (*f)(const S*, int, D*, int, ZeliSize, ZeliMaskCode), const void* s, int ss, void* d,
                 int ds, ZeliSize roi, int mask) {
    return f(static_cast<const S*>(s), ss, static_cast<D*>(d), ds, roi, static_cast<ZeliMaskCode>(mask));
}
template <class F>
FilterCall callOf(F* f) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, int mask) {
        return invoke(f, s, ss, d, ds, roi, mask);
    };
}

std::vector<FilterMember> fixedFilterMembers();

}  // namespace zel::test
