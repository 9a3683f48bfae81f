// The wrapper shared by Add, Sub, Mul, their constant forms and MulScale:
// argument checks in the member's order, the scale-factor band, the zero
// fill shortcut, and the row loop (forked for the members that fork).
//
// Include after the per-target kernels (binary_row-inl.h) inside HWY_ONCE.
#pragma once

#include <climits>
#include <cstdint>
#include <type_traits>

#include "arith/complex_row.h"
#include "arith/scale.h"
#include "core/checks.h"
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

// Members that split their rows among threads, and when.
template <class Op, class T, Layout L, Form F>
bool forksRows(ZeliSize roi) {
    if constexpr (std::is_same_v<Op, MulScaleOp>) {
        return false;
    } else if constexpr (!kConstForm<F>) {
        return kOneOf<T, Zel8u, Zel16s, Zel32f> && L == Layout::C1;
    } else if constexpr (kOneOf<T, Zel8u, Zel16s>) {
        return L == Layout::C1 || L == Layout::C3;
    } else if constexpr (std::is_same_v<T, Zel32f>) {
        const bool member = L == Layout::C1 || L == Layout::C3 ||
                            (L == Layout::AC4 && F == Form::ConstInPlace);
        return member && std::int64_t{roi.width} + roi.height >= 256;
    } else {
        return false;
    }
}

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

template <class B>
using RowKernel = void (*)(const B* p, const B* q, bool qPattern, B* dst, int n, int period,
                           const BitsOf<B>* keep, const ScaleArgs& args);

// Patterns long enough for `period` vectors of the widest target.
constexpr int kPatternLength = 8 * 64;

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
        if (band == Band::Zero) return &ComplexRow<Op, B, Band::Zero>;
        return &ComplexRow<Op, B, Band::Plain>;  // applies the full rule per part
    } else if constexpr (std::is_floating_point_v<B> || std::is_same_v<Op, MulScaleOp>) {
        (void)band;
        return ZEL_DISPATCH(BinaryRow<KernelOp<Op, T>, B, Band::Plain>);
    } else {
        using K = KernelOp<Op, T>;
        switch (band) {
            case Band::Plain: return ZEL_DISPATCH(BinaryRow<K, B, Band::Plain>);
            case Band::One: return ZEL_DISPATCH(BinaryRow<K, B, Band::One>);
            case Band::Pos: return ZEL_DISPATCH(BinaryRow<K, B, Band::Pos>);
            case Band::Neg: return ZEL_DISPATCH(BinaryRow<K, B, Band::Neg>);
            case Band::Bound: return ZEL_DISPATCH(BinaryRow<K, B, Band::Bound>);
            case Band::Zero: break;
        }
        return ZEL_DISPATCH(BinaryRow<K, B, Band::Zero>);
    }
}

}  // namespace

// Runs one member. p is the image the operation starts from (the minuend of
// Sub, the source of the constant forms, the in-place image); q is the
// other image or the constant's values.
template <class Op, class T, Layout L, Form F>
ZelStatus arithImage(const T* p, int pStep, const T* q, int qStep, T* dst, int dstStep, ZeliSize roi,
                     int scale) {
    using B = BaseOf<T>;
    constexpr bool isConst = kConstForm<F>;
    Check check;
    check.ptrs(p, q, dst);
    const bool stepsOk = pStep >= 1 && (isConst || qStep >= 1) && dstStep >= 1;
    if constexpr (kStepBeforeSize<Op>) check.that(stepsOk, zelStatusBadStep);
    check.roi(roi);
    if constexpr (kChecksSteps<Op, T> && !kStepBeforeSize<Op>) check.that(stepsOk, zelStatusBadStep);
    if (ZelStatus st = check) return st;

    const Band band = chooseBand<Op, T>(scale);
    if constexpr (takesZeroShortcut<Op, T, L, F>())
        if (band == Band::Zero && std::int64_t{roi.width} * kChannels<L> * 2 <= INT_MAX)
            return zeroFill<T, L>(dst, dstStep, roi);

    constexpr int kSub = kIsComplex<T> ? 2 : 1;  // base elements per channel
    constexpr int kPeriod = kChannels<L> * kSub;
    BitsOf<B> keepPattern[kPatternLength];
    const BitsOf<B>* keep = nullptr;
    if constexpr (L == Layout::AC4) {
        for (int i = 0; i < kPatternLength; ++i)
            keepPattern[i] = i % kPeriod >= 3 * kSub ? BitsOf<B>(~BitsOf<B>(0)) : BitsOf<B>(0);
        keep = keepPattern;
    }
    B valuePattern[kPatternLength];
    const B* qBase = reinterpret_cast<const B*>(q);
    if constexpr (isConst) {
        for (int i = 0; i < kPatternLength; ++i) {
            const int c = i % kPeriod;
            valuePattern[i] = c < kComputed<L> * kSub ? qBase[c] : B(0);
        }
        qBase = valuePattern;
    }

    const RowKernel<B> row = rowKernel<Op, T>(band);
    const ScaleArgs args = scaleArgs<Op, T>(scale);
    const std::int64_t rowBytes = std::int64_t{roi.width} * kChannels<L> * sizeof(T);
    const Rows rows = isConst ? collapseRows(roi, rowBytes, {pStep, dstStep})
                              : collapseRows(roi, rowBytes, {pStep, qStep, dstStep});
    const std::ptrdiff_t n = rows.width * kPeriod;
    const int team = forksRows<Op, T, L, F>(roi)
                         ? teamSize(rowBytes * roi.height * (isConst ? 2 : 3), kCostMove, rows.height)
                         : 1;
    const B* pBase = reinterpret_cast<const B*>(p);
    B* dBase = reinterpret_cast<B*>(dst);
    forEachRow(rows.height, team, [&](std::ptrdiff_t y) {
        row(rowAt(pBase, pStep, y), isConst ? qBase : rowAt(qBase, qStep, y), isConst,
            rowAt(dBase, dstStep, y), n, kPeriod, keep, args);
    });
    return zelStatusOk;
}

}  // namespace zel::arith
