// Per-target row kernel of the two-operand arithmetic (included by each
// family file inside its Highway target loop).
//
// A row is a run of n elements. The second operand q is either another row
// or, for the constant forms, a pattern of `period` channel values repeated
// across the row; `keep` marks (with all bits set) the channels whose
// destination element must stay as it is, the alpha of AC4 layouts. Both
// patterns are laid out for `period` consecutive vectors, so every vector
// starts at a known place in the pixel.
//
// Integer elements are widened to lanes that hold the exact result (16-bit
// for 8-bit elements, 32-bit for 16-bit ones), combined, scaled by the
// band's rule and narrowed back with saturation; saturating sums and
// differences stay in the element's lanes, and 32f and 32fc are computed in
// their own. The last partial vector runs the very same code as the rest of
// the row: its loads and stores cover only the elements of the row.
#if defined(ZEL_ARITH_BINARY_ROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEL_ARITH_BINARY_ROW_INL_H_
#undef ZEL_ARITH_BINARY_ROW_INL_H_
#else
#define ZEL_ARITH_BINARY_ROW_INL_H_
#endif

#include <hwy/highway.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "arith/scale.h"
#include "core/image.h"
#include "core/narrow-inl.h"
#include "core/pixel.h"
#include "core/store_under_mask-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Lane type in which an operation on T is carried out exactly. Sums and
// differences of 8-bit values fit 16-bit signed lanes and their products
// 16-bit unsigned lanes; the 16-bit types need 32-bit lanes, unsigned for
// the unsigned products. The operations of arith::kNativeLanes stay in the
// element's own lanes.
using arith::kNativeLanes;

template <class Op>
inline constexpr bool kIsProduct = std::is_same_v<Op, arith::MulOp> || std::is_same_v<Op, arith::MulScaleOp>;

template <class Op, class T, arith::Band B>
using WideLane = std::conditional_t<
    std::is_floating_point_v<T> || kNativeLanes<Op, T, B>, T,
    std::conditional_t<sizeof(T) == 1, std::conditional_t<kIsProduct<Op>, std::uint16_t, std::int16_t>,
                       std::conditional_t<std::is_same_v<T, std::uint16_t> && kIsProduct<Op>,
                                          std::uint32_t, std::int32_t>>>;

// Each lane of v shifted by its own count, taken from the same lane of
// `counts`: a binary shifter, one conditional shift by 1, 2, 4, ... per bit
// of the count below the width W. Counts are at most W; the bit W, set only
// by a count of exactly W, clears the lane (left and logical right shifts
// past W - 1 give 0). Signed right shifts pass counts of at most W - 1,
// which give the sign fill.
template <int K, bool Left, class D, class V>
HWY_INLINE V ShiftBit(D d, V v, V counts) {
    using T = hn::TFromD<D>;
    if constexpr (K < int(sizeof(T) * 8)) {
        const auto m = hn::TestBit(counts, hn::Set(d, T(K)));
        if constexpr (Left) {
            v = hn::IfThenElse(m, hn::ShiftLeft<K>(v), v);
        } else {
            v = hn::IfThenElse(m, hn::ShiftRight<K>(v), v);
        }
        return ShiftBit<K * 2, Left>(d, v, counts);
    } else {
        return hn::IfThenZeroElse(hn::TestBit(counts, hn::Set(d, T(K))), v);
    }
}

// Saturating sum or difference, or the sum halved with ties to even, in the
// element's own lanes; or a bitwise operation or shift.
template <class Op, arith::Band B, class D, class V>
HWY_INLINE V NativeStep(D d, V p, V q, const arith::ScaleArgs& a) {
    (void)a;
    if constexpr (std::is_same_v<Op, arith::AndOp>) {
        return hn::And(p, q);
    } else if constexpr (std::is_same_v<Op, arith::OrOp>) {
        return hn::Or(p, q);
    } else if constexpr (std::is_same_v<Op, arith::XorOp>) {
        return hn::Xor(p, q);
    } else if constexpr (std::is_same_v<Op, arith::ShiftLeftOp>) {
        return hn::ShiftLeftSame(p, a.shift);
    } else if constexpr (std::is_same_v<Op, arith::ShiftRightOp>) {
        return hn::ShiftRightSame(p, a.shift);
    } else if constexpr (std::is_same_v<Op, arith::ShiftLeftEachOp>) {
        return ShiftBit<1, true>(d, p, q);
    } else if constexpr (std::is_same_v<Op, arith::ShiftRightEachOp>) {
        return ShiftBit<1, false>(d, p, q);
    } else if constexpr (B == arith::Band::One) {
        // The rounded-up average is one too high exactly when the sum is
        // odd and that average is odd.
        const V up = hn::AverageRound(p, q);
        return hn::Sub(up, hn::And(hn::And(hn::Xor(p, q), up), hn::Set(d, 1)));
    } else if constexpr (std::is_same_v<Op, arith::AddOp>) {
        return hn::SaturatedAdd(p, q);
    } else {
        return hn::SaturatedSub(p, q);
    }
}

template <class DW, class V>
HWY_INLINE auto Widen(DW dw, V v) {
    if constexpr (std::is_same_v<hn::TFromD<DW>, hn::TFromV<V>>) {
        return v;
    } else {
        return hn::PromoteTo(dw, v);
    }
}

// The exact combination of two widened operands.
template <class Op, class T, class DW, class V>
HWY_INLINE V Combine(DW dw, V p, V q) {
    if constexpr (std::is_same_v<Op, arith::AddOp>) {
        return hn::Add(p, q);
    } else if constexpr (std::is_same_v<Op, arith::SubOp>) {
        return hn::Sub(p, q);
    } else if constexpr (std::is_same_v<Op, arith::MulOp>) {
        return hn::Mul(p, q);
    } else if constexpr (std::is_same_v<Op, arith::ComplexMulOp>) {
        // Lanes hold (re, im) pairs. With q's real part in both lanes of a
        // pair and then its imaginary part, and p's parts swapped:
        // even lanes re = p.re q.re - p.im q.im, odd lanes im = p.im q.re + p.re q.im,
        // each product rounded on its own as in the scalar formula.
        const V byReal = hn::Mul(p, hn::DupEven(q));
        const V byImag = hn::Mul(hn::Shuffle2301(p), hn::DupOdd(q));
        // For 16sc the imaginary sum wraps only at 2^31, to the lowest 32-bit
        // value, which no true product reaches; the kernel replaces it.
        (void)dw;
        return hn::OddEven(hn::Add(byReal, byImag), hn::Sub(byReal, byImag));
    } else {
        constexpr int kBits = int(sizeof(T) * 8);
        const V product = hn::Mul(p, q);
        const V rounded = hn::Add(hn::Add(product, hn::Set(dw, 1)), hn::ShiftRight<kBits>(product));
        return hn::ShiftRight<kBits>(rounded);
    }
}

// v * 2^-s in the band's form; saturation happens when narrowing.
template <arith::Band B, class DW, class V>
HWY_INLINE V ScaleStep(DW dw, V v, const arith::ScaleArgs& a) {
    using W = hn::TFromD<DW>;
    using arith::Band;
    const V one = hn::Set(dw, W(1));
    if constexpr (B == Band::One) {
        // (v + ((v >> 1) & 1)) >> 1
        return hn::ShiftRight<1>(hn::Add(v, hn::And(hn::ShiftRight<1>(v), one)));
    } else if constexpr (B == Band::Pos) {
        // Round half to even without an overflowing addition: h keeps the
        // half bit as its lowest bit, `sticky` says whether anything below
        // it is set; round up when above one half, or at one half with an
        // odd quotient.
        const V h = hn::ShiftRightSame(v, a.shift - 1);
        const V quotient = hn::ShiftRight<1>(h);
        const V below = hn::And(v, hn::Set(dw, W((W(1) << (a.shift - 1)) - 1)));
        const V sticky = hn::IfThenElseZero(hn::Ne(below, hn::Zero(dw)), one);
        const V up = hn::And(hn::And(h, one), hn::Or(sticky, hn::And(quotient, one)));
        return hn::Add(quotient, up);
    } else if constexpr (B == Band::Neg || B == Band::Bound) {
        // Values outside [lo >> n, hi >> n] saturate; clamping them one step
        // further out keeps the shift from wrapping and still saturates.
        if constexpr (std::is_signed_v<W>) v = hn::Max(v, hn::Set(dw, W(a.keepLo - 1)));
        v = hn::Min(v, hn::Set(dw, W(a.keepHi + 1)));
        return hn::ShiftLeftSame(v, a.shift);
    } else {
        (void)dw;
        (void)a;
        (void)one;
        return v;
    }
}

// A row of n elements (n may exceed 2^31). `keep`, when set, is laid out
// like the constant pattern and marks the elements to leave alone; they
// are neither stored nor part of the tail's loads beyond the row.
template <class Op, class T, arith::Band B>
HWY_INLINE void BinaryRow(const T* p, const T* q, bool qPattern, T* dst, std::ptrdiff_t n, int period,
                          const BitsOf<T>* keep, const arith::ScaleArgs& args) {
    using W = WideLane<Op, T, B>;
    // Rows that only load, add and store run at the memory's pace, which
    // 256-bit vectors reach with less cost than 512-bit ones; the widened
    // integer work gains from the widest vectors.
    constexpr bool kMemoryBound = kNativeLanes<Op, T, B> || std::is_floating_point_v<T>;
    using DW = std::conditional_t<kMemoryBound, hn::CappedTag<W, 32 / sizeof(W)>, hn::ScalableTag<W>>;
    const DW dw;
    const hn::Rebind<T, decltype(dw)> dn;
    const hn::RebindToUnsigned<decltype(dn)> du;
    using U = BitsOf<T>;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(dw));

    // One vector of results from the operand vectors vp and vq.
    auto compute = [&](hn::VFromD<decltype(dn)> vp, hn::VFromD<decltype(dn)> vq) HWY_ATTR {
        if constexpr (kNativeLanes<Op, T, B>) {
            return NativeStep<Op, B>(dn, vp, vq, args);
        } else if constexpr (B == arith::Band::Zero) {
            (void)vp;
            (void)vq;
            return hn::Zero(dn);
        } else {
            const auto v = Combine<Op, T>(dw, Widen(dw, vp), Widen(dw, vq));
            auto scaled = ScaleStep<B>(dw, v, args);
            if constexpr (std::is_same_v<Op, arith::ComplexMulOp> && std::is_integral_v<T>) {
                const auto wrapped = hn::Eq(v, hn::Set(dw, std::numeric_limits<W>::min()));
                scaled = hn::IfThenElse(wrapped, hn::Set(dw, W(args.imagTop)), scaled);
            }
            return SaturatingNarrow(dn, dw, scaled);
        }
    };
    // The lanes of vector j of the pattern that belong to the result.
    auto written = [&](std::ptrdiff_t j) HWY_ATTR {
        return hn::Not(hn::MaskFromVec(hn::LoadU(du, keep + j * lanes)));
    };

    // Without masked stores for the lane size, vectors that hold whole
    // pixels write each pixel's leading (colour) elements with one move.
    std::ptrdiff_t colours = 0;
    if (keep != nullptr)
        while (colours < period && keep[colours] == 0) ++colours;
    const bool byPixel = !kNativeMaskedAccess<U> && keep != nullptr && lanes % period == 0;

    std::ptrdiff_t x = 0;
    std::ptrdiff_t j = 0;  // vector index within the patterns
    if (!qPattern && keep == nullptr) {
        for (; n - x >= 2 * lanes; x += 2 * lanes) {
            const auto r0 = compute(hn::LoadU(dn, p + x), hn::LoadU(dn, q + x));
            const auto r1 = compute(hn::LoadU(dn, p + x + lanes), hn::LoadU(dn, q + x + lanes));
            hn::StoreU(r0, dn, dst + x);
            hn::StoreU(r1, dn, dst + x + lanes);
        }
    } else if (keep == nullptr && lanes % period == 0) {
        // Every vector starts on a pixel: one pattern vector serves them all.
        const auto vq = hn::LoadU(dn, q);
        for (; n - x >= 2 * lanes; x += 2 * lanes) {
            const auto r0 = compute(hn::LoadU(dn, p + x), vq);
            const auto r1 = compute(hn::LoadU(dn, p + x + lanes), vq);
            hn::StoreU(r0, dn, dst + x);
            hn::StoreU(r1, dn, dst + x + lanes);
        }
    } else if (keep == nullptr && period == 3) {
        // Three vectors hold whole pixels; the loop below starts again at
        // the pattern's first vector.
        const auto q0 = hn::LoadU(dn, q), q1 = hn::LoadU(dn, q + lanes), q2 = hn::LoadU(dn, q + 2 * lanes);
        for (; n - x >= 3 * lanes; x += 3 * lanes) {
            const auto r0 = compute(hn::LoadU(dn, p + x), q0);
            const auto r1 = compute(hn::LoadU(dn, p + x + lanes), q1);
            const auto r2 = compute(hn::LoadU(dn, p + x + 2 * lanes), q2);
            hn::StoreU(r0, dn, dst + x);
            hn::StoreU(r1, dn, dst + x + lanes);
            hn::StoreU(r2, dn, dst + x + 2 * lanes);
        }
    }
    for (; n - x >= lanes; x += lanes) {
        const auto r = compute(hn::LoadU(dn, p + x), hn::LoadU(dn, qPattern ? q + j * lanes : q + x));
        if (byPixel)
            StorePixelRuns(r, dn, dst + x, period * sizeof(T), colours * sizeof(T));
        else if (keep != nullptr)
            StoreUnderMask(hn::BitCast(du, r), written(j), du, reinterpret_cast<U*>(dst + x));
        else
            hn::StoreU(r, dn, dst + x);
        if (++j == period) j = 0;
    }
    if (x < n) {
        const std::size_t rest = static_cast<std::size_t>(n - x);
        const auto vq = qPattern ? hn::LoadU(dn, q + j * lanes) : LoadFirst(dn, q + x, rest);
        const auto r = compute(LoadFirst(dn, p + x, rest), vq);
        auto selected = hn::FirstN(du, rest);
        if (keep != nullptr) selected = hn::And(selected, written(j));
        StoreUnderMask(hn::BitCast(du, r), selected, du, reinterpret_cast<U*>(dst + x));
    }
}

// `rows` rows of n elements: the arguments of BinaryRow for the first row,
// and the steps in bytes to the next ones (a constant pattern q is the same
// for every row). One call per block of rows keeps the set-up of the
// vectors out of the row loop.
template <class Op, class T, arith::Band B>
void BinaryRows(const T* p, std::ptrdiff_t pStep, const T* q, std::ptrdiff_t qStep, bool qPattern, T* dst,
                std::ptrdiff_t dstStep, std::ptrdiff_t n, std::ptrdiff_t rows, int period, const BitsOf<T>* keep,
                const arith::ScaleArgs& args) {
    for (std::ptrdiff_t y = 0; y < rows; ++y)
        BinaryRow<Op, T, B>(byteOffset(p, pStep * y), qPattern ? q : byteOffset(q, qStep * y), qPattern,
                            byteOffset(dst, dstStep * y), n, period, keep, args);
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#endif  // ZEL_ARITH_BINARY_ROW_INL_H_
