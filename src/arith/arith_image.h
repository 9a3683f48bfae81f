// The wrapper shared by Add, Sub, Mul, their constant forms and MulScale:
// argument checks in the member's order, the scale-factor band, the zero
// fill shortcut, and one pass over the rows under the library's fork rule.
//
// Include after the per-target kernels (binary_row-inl.h) inside HWY_ONCE.
#pragma once

#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "arith/complex_row.h"
#include "arith/scale.h"
#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"

namespace zel::arith {

// Two images, or an image and a constant; out of place or in place.
enum class Form { Images, ImagesInPlace, Const, ConstInPlace };

template <Form F>
inline constexpr bool kConstForm = F == Form::Const || F == Form::ConstInPlace;

template <class T, class... U>
inline constexpr bool kOneOf = (std::is_same_v<T, U> || ...);

// Members that replace a call whose every result is 0 by a zero Set.
template <class Op, class T, Layout L, Form F>
constexpr bool takesZeroShortcut() {
    constexpr bool isConst = kConstForm<F>;
    if constexpr (std::is_same_v<Op, MulScaleOp>) return false;
    if constexpr (kOneOf<T, Zel8u, Zel16s>) return L == Layout::C1;
    if constexpr (std::is_same_v<T, Zel16u>)
        return L == Layout::C1 && (!std::is_same_v<Op, MulOp> || isConst);
    // 16sc AC4 computes its zeros: no Set leaves every fourth complex
    // element alone.
    if constexpr (std::is_same_v<T, Zel16sc>) return isConst && (L == Layout::C1 || L == Layout::C3);
    return false;
}

// Members that check their steps; MulScale checks them even before the size.
template <class Op, class T>
inline constexpr bool kChecksSteps = kOneOf<T, Zel16sc, Zel32fc> || std::is_same_v<Op, MulScaleOp>;
template <class Op>
inline constexpr bool kStepBeforeSize = std::is_same_v<Op, MulScaleOp>;

// Zero fill through the exported Set of the element's base type (16u has
// none of its own; 16s writes the same bits). A complex row is filled as a
// row of its parts, which need not be aligned for the wider type.
template <class T, Layout L>
ZelStatus zeroFill(T* dst, int step, ZeliSize roi) {
    using B = BaseOf<T>;
    static_assert(sizeof(B) == 1 || sizeof(B) == 2);
    if constexpr (kIsComplex<T>) {
        static_assert(L != Layout::AC4, "no Set skips every fourth complex element");
        const ZeliSize parts{roi.width * kChannels<L> * 2, roi.height};
        return zeliSet_16s_C1R(0, reinterpret_cast<Zel16s*>(dst), step, parts);
    } else if constexpr (sizeof(B) == 1) {
        const Zel8u zeros[4] = {};
        if constexpr (L == Layout::C1) return zeliSet_8u_C1R(0, dst, step, roi);
        if constexpr (L == Layout::C3) return zeliSet_8u_C3R(zeros, dst, step, roi);
        if constexpr (L == Layout::C4) return zeliSet_8u_C4R(zeros, dst, step, roi);
        if constexpr (L == Layout::AC4) return zeliSet_8u_AC4R(zeros, dst, step, roi);
    } else {
        const Zel16s zeros[4] = {};
        Zel16s* d = reinterpret_cast<Zel16s*>(dst);
        if constexpr (L == Layout::C1) return zeliSet_16s_C1R(0, d, step, roi);
        if constexpr (L == Layout::C3) return zeliSet_16s_C3R(zeros, d, step, roi);
        if constexpr (L == Layout::C4) return zeliSet_16s_C4R(zeros, d, step, roi);
        if constexpr (L == Layout::AC4) return zeliSet_16s_AC4R(zeros, d, step, roi);
    }
}

// A block kernel: `rows` rows of n elements of p and of q (or of the
// constant pattern at q), results to dst, the steps in bytes; see
// BinaryRows.
template <class B>
using RowKernel = void (*)(const B* p, std::ptrdiff_t pStep, const B* q, std::ptrdiff_t qStep, bool qPattern,
                           B* dst, std::ptrdiff_t dstStep, std::ptrdiff_t n, std::ptrdiff_t rows, int period,
                           const BitsOf<B>* keep, const ScaleArgs& args);

// Patterns are laid out for `period` vectors of up to this many lanes, so
// every vector of a row starts at a known place in the pixel: element x of
// a row sits at x mod (period * lanes) in the pattern.
constexpr int kMaxLanes = 64;

// The elements of AC4 rows to leave alone, as the kernels read them: all
// bits set on the alpha channel's `Sub` elements of every `Period`. A
// constant of the build.
template <class U, int Period, int Sub>
struct AlphaPattern {
    static constexpr std::array<U, Period * kMaxLanes> make() {
        std::array<U, Period * kMaxLanes> keep{};
        for (int i = 0; i < Period * kMaxLanes; ++i) keep[i] = i % Period >= Period - Sub ? U(~U(0)) : U(0);
        return keep;
    }
    static constexpr std::array<U, Period * kMaxLanes> kKeep = make();
};

// The row kernel of an operation on T for a band: the SIMD kernel of the
// best target, or the scalar one for 32sc, whose exact values do not fit
// 32-bit lanes.
template <class Op, class T>
inline constexpr bool kScalarRow = std::is_same_v<T, Zel32sc>;
// Complex products pair the parts of each element.
template <class Op, class T>
using KernelOp = std::conditional_t<kIsComplex<T> && std::is_same_v<Op, MulOp>, ComplexMulOp, Op>;

namespace {

template <class Op, class T>
RowKernel<BaseOf<T>> rowKernel(Band band) {
    using B = BaseOf<T>;
    if constexpr (kScalarRow<Op, T>) {
        if (band == Band::Zero) return &ComplexRows<Op, B, Band::Zero>;
        return &ComplexRows<Op, B, Band::Plain>;  // applies the full rule per part
    } else if constexpr (std::is_floating_point_v<B> || std::is_same_v<Op, MulScaleOp>) {
        (void)band;
        return ZEL_DISPATCH(BinaryRows<KernelOp<Op, T>, B, Band::Plain>);
    } else {
        using K = KernelOp<Op, T>;
        switch (band) {
            case Band::Plain: return ZEL_DISPATCH(BinaryRows<K, B, Band::Plain>);
            case Band::One: return ZEL_DISPATCH(BinaryRows<K, B, Band::One>);
            case Band::Pos: return ZEL_DISPATCH(BinaryRows<K, B, Band::Pos>);
            case Band::Neg: return ZEL_DISPATCH(BinaryRows<K, B, Band::Neg>);
            case Band::Bound: return ZEL_DISPATCH(BinaryRows<K, B, Band::Bound>);
            case Band::Zero: break;
        }
        return ZEL_DISPATCH(BinaryRows<K, B, Band::Zero>);
    }
}

}  // namespace

// Weight of a member's work per byte for the fork rule (parallel.h):
// saturating sums and differences, zeros and 32f sums move memory; scaled
// and widened integer work and products cost about twice that; 32sc is
// scalar 128-bit arithmetic.
template <class Op, class T>
int forkCost(Band band) {
    using B = BaseOf<T>;
    if constexpr (kScalarRow<Op, T>) {
        (void)band;
        return kCostExact;
    } else if constexpr (kIsFloat<T>) {
        (void)band;
        return kIsComplex<T> && std::is_same_v<Op, MulOp> ? kCostWiden : kCostMove;
    } else {
        const bool moves = band == Band::Zero || (band == Band::Plain && kNativeLanes<Op, B, Band::Plain>) ||
                           (band == Band::One && kNativeLanes<Op, B, Band::One>);
        return moves ? kCostMove : kCostWiden;
    }
}

// The pass over the rows, after the checks and shortcuts, for any row
// kernel on base elements B (Sub of them per channel). Contiguous rows run
// as one long row; rows (or pieces of the long row, cut on multiples of the
// patterns' length) go to the team that the fork rule picks for `cost`.
// For the constant forms q holds one value per computed channel, repeated
// here into the kernels' pattern. The kernels never see an AC4 row's last
// alpha element: a page the caller may not read can follow it.
template <class B, Layout L, bool IsConst, int Sub = 1>
void passRows(const B* p, int pStep, const B* q, int qStep, B* dst, int dstStep, ZeliSize roi,
              RowKernel<B> row, const ScaleArgs& args, int cost) {
    constexpr int kPeriod = kChannels<L> * Sub;
    constexpr std::ptrdiff_t kGrain = std::ptrdiff_t{kPeriod} * kMaxLanes;
    constexpr std::ptrdiff_t kAlphaTail = L == Layout::AC4 ? Sub : 0;

    const BitsOf<B>* keep = nullptr;
    if constexpr (L == Layout::AC4) keep = AlphaPattern<BitsOf<B>, kPeriod, Sub>::kKeep.data();
    // The constant's values per channel (0 under alpha), repeated.
    B values[IsConst ? kGrain : 1];
    const B* qBase = q;
    if constexpr (IsConst) {
        for (int c = 0; c < kPeriod; ++c) values[c] = c < kComputed<L> * Sub ? qBase[c] : B(0);
        // kGrain is kPeriod times a power of two: six doublings of
        // constant sizes, which the compiler turns into plain moves.
#pragma GCC unroll 8
        for (std::ptrdiff_t have = kPeriod; have < kGrain; have *= 2)
            std::memcpy(values + have, values, have * sizeof(B));
        qBase = values;
    }

    const std::int64_t rowBytes = std::int64_t{roi.width} * kPeriod * sizeof(B);
    const Rows rows = IsConst ? collapseRows(roi, rowBytes, {pStep, dstStep})
                              : collapseRows(roi, rowBytes, {pStep, qStep, dstStep});
    const std::ptrdiff_t n = rows.width * kPeriod;
    const std::int64_t touched = rowBytes * roi.height * (IsConst ? 2 : 3);
    const int team = teamSize(touched, cost, pieceCount(rows.height, n, kGrain));
    forEachBlock(rows.height, n, kGrain, team, [&](const Block& b) {
        const std::ptrdiff_t end = b.end == n ? n - kAlphaTail : b.end;
        row(rowAt(p, pStep, b.y0) + b.begin, pStep, IsConst ? qBase : rowAt(qBase, qStep, b.y0) + b.begin,
            qStep, IsConst, rowAt(dst, dstStep, b.y0) + b.begin, dstStep, end - b.begin, b.y1 - b.y0, kPeriod,
            keep, args);
    });
}

// The arithmetic families' pass: their kernel, scale arguments and cost.
template <class Op, class T, Layout L, Form F>
void computeRows(const T* p, int pStep, const T* q, int qStep, T* dst, int dstStep, ZeliSize roi, Band band,
                 int scale) {
    using B = BaseOf<T>;
    passRows<B, L, kConstForm<F>, kIsComplex<T> ? 2 : 1>(
        reinterpret_cast<const B*>(p), pStep, reinterpret_cast<const B*>(q), qStep, reinterpret_cast<B*>(dst),
        dstStep, roi, rowKernel<Op, T>(band), scaleArgs<Op, T>(scale), forkCost<Op, T>(band));
}

// Runs one member. p is the image the operation starts from (the minuend of
// Sub, the source of the constant forms, the in-place image); q is the
// other image or the constant's values. Floating-point members compute
// under the standard environment, whatever the caller's.
template <class Op, class T, Layout L, Form F>
ZelStatus arithImage(const T* p, int pStep, const T* q, int qStep, T* dst, int dstStep, ZeliSize roi,
                     int scale) {
    constexpr bool isConst = kConstForm<F>;
    Check check;
    check.ptrs(p, q, dst);
    const bool stepsOk = pStep >= 1 && (isConst || qStep >= 1) && dstStep >= 1;
    if constexpr (kStepBeforeSize<Op>) check.that(stepsOk, zelStatusBadStep);
    check.roi(roi);
    if constexpr (kChecksSteps<Op, T> && !kStepBeforeSize<Op>) check.that(stepsOk, zelStatusBadStep);
    if (ZelStatus st = check) return st;

    const Band band = chooseBand<Op, T>(scale);
    // A complex row is filled as a row of parts, whose count must fit a
    // ZeliSize width; wider rows compute their zeros.
    constexpr int kFillParts = kIsComplex<T> ? kChannels<L> * 2 : 1;
    if constexpr (takesZeroShortcut<Op, T, L, F>())
        if (band == Band::Zero && std::int64_t{roi.width} * kFillParts <= INT_MAX)
            return zeroFill<T, L>(dst, dstStep, roi);

    if constexpr (kIsFloat<T>) {
        StandardFpEnvironment environment;
        computeRows<Op, T, L, F>(p, pStep, q, qStep, dst, dstStep, roi, band, scale);
    } else {
        computeRows<Op, T, L, F>(p, pStep, q, qStep, dst, dstStep, roi, band, scale);
    }
    return zelStatusOk;
}

}  // namespace zel::arith
