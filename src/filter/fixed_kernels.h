// The fixed kernels, written as the two passes that evaluate them.
//
// Every kernel of the fixed-kernel filters is one of two shapes:
//
// - Separable<Column, Row, Centre, F>: a column pass combines the rows
//   y-r..y+r of every column with the Column taps; a row pass combines the
//   neighbouring column values x-r..x+r with the Row taps and adds Centre
//   times the source pixel itself; F scales, rounds and saturates.
// - Symmetric5<Outer, Inner, Middle, F>: a 5x5 kernel symmetric in both
//   directions that is not a product of two taps: Outer is its row for
//   dy = -2 and +2, Inner for dy = -1 and +1, Middle for dy = 0. Every
//   source row is combined horizontally with its row's taps, and the five
//   row values are added from top to bottom.
//
// Taps run from offset -r to +r (rows downward, columns rightward). For
// integer sources the passes are exact, so the result is the kernel's own
// 2-D value; 32f computes in single precision in this order (SumTaps in
// two_pass-inl.h fixes the order of the terms within a pass).
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace zel::filter {

template <int... W>
struct Taps {
    static constexpr int kCount = sizeof...(W);
    static constexpr int kRadius = kCount / 2;
    static constexpr int kWeights[kCount] = {W...};
    static constexpr std::size_t firstNonZero() {
        for (std::size_t k = 0; k < kCount; ++k)
            if (kWeights[k] != 0) return k;
        return kCount;
    }
    static constexpr bool symmetric() {
        for (int k = 0; k < kCount; ++k)
            if (kWeights[k] != kWeights[kCount - 1 - k]) return false;
        return true;
    }
};

// How the kernel value becomes a destination value. The integer rules:
//   Exact      the value itself (8u16s, 8s16s: every value fits)
//   Clamp      saturated to the destination's range (negatives give 0 on 8u)
//   Gauss16    divided by 16 rounding to nearest, ties to even, saturated
//   Sharpen8   divided by 8 the same way; an unsigned destination first
//              raises a negative value to 0
//   Mean9      divided by 9 rounding to nearest (no ties: 9 is odd)
//   Mean25     divided by 25 rounding to nearest
//   Gauss571   8u and 16s: single-precision product with the float nearest
//              1/571, rounded to nearest even; 16u: divided by 571 rounding
//              to nearest, exactly
// 32f multiplies by the single-precision reciprocal of the divisor and
// does not clamp.
enum class Finish { Exact, Clamp, Gauss16, Sharpen8, Mean9, Mean25, Gauss571 };

template <class Column, class Row, int Centre, Finish F>
struct Separable {
    using ColumnTaps = Column;
    using RowTaps = Row;
    static constexpr int kCentre = Centre;
    static constexpr Finish kFinish = F;
    static constexpr int kRadius = Column::kRadius;
    static constexpr bool kSymmetric5 = false;
    static_assert(Column::kRadius == Row::kRadius, "square kernels only");
};

template <class Outer, class Inner, class Middle, Finish F>
struct Symmetric5 {
    using OuterTaps = Outer;
    using InnerTaps = Inner;
    using MiddleTaps = Middle;
    static constexpr Finish kFinish = F;
    static constexpr int kRadius = 2;
    static constexpr bool kSymmetric5 = true;
};

// Derivatives: horizontal operators give the lower rows minus the upper
// ones, vertical operators the left columns minus the right ones.
using Smooth3 = Taps<1, 2, 1>;
using Smooth5 = Taps<1, 4, 6, 4, 1>;
using Sum3 = Taps<1, 1, 1>;
using Sum5 = Taps<1, 1, 1, 1, 1>;
using MinusSum3 = Taps<-1, -1, -1>;
using MinusSum5 = Taps<-1, -1, -1, -1, -1>;
using Down3 = Taps<-1, 0, 1>;             // below minus above
using Left3 = Taps<1, 0, -1>;             // left minus right
using Down5 = Taps<-1, -2, 0, 2, 1>;
using Left5 = Taps<1, 2, 0, -2, -1>;
using Second3 = Taps<1, -2, 1>;
using Second5 = Taps<1, 0, -2, 0, 1>;
using Scharr3 = Taps<3, 10, 3>;

template <Finish F> using SobelHoriz3 = Separable<Down3, Smooth3, 0, F>;
template <Finish F> using SobelVert3 = Separable<Smooth3, Left3, 0, F>;
template <Finish F> using SobelHoriz5 = Separable<Down5, Smooth5, 0, F>;
template <Finish F> using SobelVert5 = Separable<Smooth5, Left5, 0, F>;
template <Finish F> using SobelHorizSecond3 = Separable<Second3, Smooth3, 0, F>;
template <Finish F> using SobelVertSecond3 = Separable<Smooth3, Second3, 0, F>;
template <Finish F> using SobelHorizSecond5 = Separable<Second5, Smooth5, 0, F>;
template <Finish F> using SobelVertSecond5 = Separable<Smooth5, Second5, 0, F>;
// Corners only: top-left -1, top-right +1, bottom-left +1, bottom-right -1.
template <Finish F> using SobelCross3 = Separable<Down3, Left3, 0, F>;
template <Finish F> using SobelCross5 = Separable<Down5, Left5, 0, F>;
template <Finish F> using PrewittHoriz3 = Separable<Down3, Sum3, 0, F>;
template <Finish F> using PrewittVert3 = Separable<Sum3, Left3, 0, F>;
template <Finish F> using ScharrHoriz3 = Separable<Down3, Scharr3, 0, F>;
template <Finish F> using ScharrVert3 = Separable<Scharr3, Left3, 0, F>;

// Centre-weighted: the box sum is subtracted from a multiple of the pixel.
// Laplace 3x3 and Hipass 3x3 are one kernel: 9 p - S9.
template <Finish F> using Laplace3 = Separable<Sum3, MinusSum3, 9, F>;
template <Finish F> using Hipass5 = Separable<Sum5, MinusSum5, 25, F>;
using Sharpen3 = Separable<Sum3, MinusSum3, 17, Finish::Sharpen8>;  // (17 p - S9) / 8

template <Finish F>
using Laplace5 = Symmetric5<Taps<-1, -3, -4, -3, -1>, Taps<-3, 0, 6, 0, -3>, Taps<-4, 6, 20, 6, -4>, F>;
// Weights sum to 571.
using Gauss5 = Symmetric5<Taps<2, 7, 12, 7, 2>, Taps<7, 31, 52, 31, 7>, Taps<12, 52, 127, 52, 12>,
                          Finish::Gauss571>;
using Gauss3 = Separable<Smooth3, Smooth3, 0, Finish::Gauss16>;
using Lowpass3 = Separable<Sum3, Sum3, 0, Finish::Mean9>;
using Lowpass5 = Separable<Sum5, Sum5, 0, Finish::Mean25>;

// Lanes in which kernel K computes on source elements S: every column
// value and kernel value fits them exactly. 8-bit sources need 16 bits
// (the widest, Laplace 5x5, reaches 44 * 255), except the Gauss 5x5 sums
// (up to 571 * 255); 16-bit sources need 32 bits; 32f computes in 32f.
template <class K, class S>
using AccumulatorOf =
    std::conditional_t<std::is_floating_point_v<S>, float,
                       std::conditional_t<sizeof(S) == 1 && K::kFinish != Finish::Gauss571, std::int16_t,
                                          std::int32_t>>;

// Lanes of the Symmetric5 row profiles: the 8-bit Gauss profiles are
// non-negative and at most 255 * 255, so they fit unsigned 16-bit lanes, and
// so do the sums of two mirrored rows' profiles (at most 2 * 128 * 255); the
// five-row sum takes the 32-bit lanes above. The others as above.
template <class K, class S>
using ProfileLaneOf = std::conditional_t<sizeof(S) == 1 && K::kFinish == Finish::Gauss571, std::uint16_t,
                                         AccumulatorOf<K, S>>;

// Elements of a row the Symmetric5 kernels keep per ring row: fifteen ring
// rows of them stay in the first-level cache.
constexpr std::ptrdiff_t kRingChunk = 512;

// Elements of a row the separable kernels compute per pass: the column
// values of a chunk stay in the first-level cache until the row pass reads
// them. A multiple of every vector length and of four-channel pixels.
constexpr std::ptrdiff_t kChunk = 2048;

}  // namespace zel::filter
