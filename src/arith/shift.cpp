// LShiftC and RShiftC: every channel shifted by its own unsigned count.
//
// A call first sorts its counts. All zero: the result is the source, a Copy
// (nothing at all in place). Left and logical right shifts with every count
// at W or more (W the element's width): a Set of 0. One count for every
// channel: the shift-by-one-count kernel, signed right shifts clamping the
// count to W - 1, which gives the same sign fill as any larger count.
// Different counts: the per-lane kernel over a pattern of the channels'
// counts, each capped at W (a lane count of W clears the element) or, for
// signed right shifts, at W - 1.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/shift.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "arith/binary_row-inl.h"

#if HWY_ONCE

#include <algorithm>

#include "arith/members.h"

namespace zel::arith {

namespace {

// The exported Copy and Set of each element size (the bits are the same for
// every type of one size).
template <class T>
using CopyFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize);

template <Layout L>
ZelStatus copyImage(const Zel8u* src, int srcStep, Zel8u* dst, int dstStep, ZeliSize roi) {
    constexpr CopyFn<Zel8u> kCopy[] = {zeliCopy_8u_C1R, zeliCopy_8u_C3R, zeliCopy_8u_C4R, zeliCopy_8u_AC4R};
    return kCopy[int(L)](src, srcStep, dst, dstStep, roi);
}
template <Layout L>
ZelStatus copyImage(const Zel16u* src, int srcStep, Zel16u* dst, int dstStep, ZeliSize roi) {
    constexpr CopyFn<Zel16u> kCopy[] = {zeliCopy_16u_C1R, zeliCopy_16u_C3R, zeliCopy_16u_C4R,
                                        zeliCopy_16u_AC4R};
    return kCopy[int(L)](src, srcStep, dst, dstStep, roi);
}
template <Layout L>
ZelStatus copyImage(const Zel32u* src, int srcStep, Zel32u* dst, int dstStep, ZeliSize roi) {
    constexpr CopyFn<Zel32s> kCopy[] = {zeliCopy_32s_C1R, zeliCopy_32s_C3R, zeliCopy_32s_C4R,
                                        zeliCopy_32s_AC4R};
    return kCopy[int(L)](reinterpret_cast<const Zel32s*>(src), srcStep, reinterpret_cast<Zel32s*>(dst), dstStep,
                         roi);
}

template <Layout L>
ZelStatus zeroImage(Zel8u* dst, int step, ZeliSize roi) {
    const Zel8u zeros[4] = {};
    if constexpr (L == Layout::C1) return zeliSet_8u_C1R(0, dst, step, roi);
    if constexpr (L == Layout::C3) return zeliSet_8u_C3R(zeros, dst, step, roi);
    if constexpr (L == Layout::C4) return zeliSet_8u_C4R(zeros, dst, step, roi);
    if constexpr (L == Layout::AC4) return zeliSet_8u_AC4R(zeros, dst, step, roi);
}
template <Layout L>
ZelStatus zeroImage(Zel16u* dst, int step, ZeliSize roi) {
    const Zel16u zeros[4] = {};
    if constexpr (L == Layout::C1) return zeliSet_16u_C1R(0, dst, step, roi);
    if constexpr (L == Layout::C3) return zeliSet_16u_C3R(zeros, dst, step, roi);
    if constexpr (L == Layout::C4) return zeliSet_16u_C4R(zeros, dst, step, roi);
    if constexpr (L == Layout::AC4) return zeliSet_16u_AC4R(zeros, dst, step, roi);
}
template <Layout L>
ZelStatus zeroImage(Zel32u* dst, int step, ZeliSize roi) {
    const Zel32s zeros[4] = {};
    Zel32s* d = reinterpret_cast<Zel32s*>(dst);
    if constexpr (L == Layout::C1) return zeliSet_32s_C1R(0, d, step, roi);
    if constexpr (L == Layout::C3) return zeliSet_32s_C3R(zeros, d, step, roi);
    if constexpr (L == Layout::C4) return zeliSet_32s_C4R(zeros, d, step, roi);
    if constexpr (L == Layout::AC4) return zeliSet_32s_AC4R(zeros, d, step, roi);
}

}  // namespace

// One shift member. Left shifts and unsigned right shifts run on the
// element's unsigned bits; signed right shifts on the signed type.
template <bool Left, class T, Layout L, bool InPlace>
ZelStatus shiftImage(const T* src, int srcStep, const Zel32u* counts, T* dst, int dstStep, ZeliSize roi) {
    if (ZelStatus st = Check().ptrs(src, counts, dst).steps(srcStep, dstStep).roi(roi)) return st;
    constexpr bool kSignFill = !Left && std::is_signed_v<T>;
    using E = std::conditional_t<kSignFill, T, BitsOf<T>>;
    using U = BitsOf<T>;
    constexpr Zel32u kWidth = sizeof(T) * 8;
    constexpr int kC = kComputed<L>;

    bool allZero = true, allClear = true, same = true;
    for (int c = 0; c < kC; ++c) {
        allZero = allZero && counts[c] == 0;
        allClear = allClear && counts[c] >= kWidth;
        same = same && counts[c] == counts[0];
    }
    const U* s = reinterpret_cast<const U*>(src);
    U* d = reinterpret_cast<U*>(dst);
    if (allZero) return InPlace ? zelStatusOk : copyImage<L>(s, srcStep, d, dstStep, roi);
    if (allClear && !kSignFill) return zeroImage<L>(d, dstStep, roi);

    const E* p = reinterpret_cast<const E*>(src);
    E* out = reinterpret_cast<E*>(dst);
    const Zel32u cap = kSignFill ? kWidth - 1 : kWidth;
    E lanes[4] = {};
    if (same) {
        ScaleArgs args;
        args.shift = int(std::min(counts[0], cap));
        using Op = std::conditional_t<Left, ShiftLeftOp, ShiftRightOp>;
        passRows<E, L, true>(p, srcStep, lanes, 0, out, dstStep, roi, ZEL_DISPATCH(BinaryRows<Op, E, Band::Plain>),
                             args, kCostMove);
    } else {
        for (int c = 0; c < kC; ++c) lanes[c] = E(std::min(counts[c], cap));
        using Op = std::conditional_t<Left, ShiftLeftEachOp, ShiftRightEachOp>;
        passRows<E, L, true>(p, srcStep, lanes, 0, out, dstStep, roi, ZEL_DISPATCH(BinaryRows<Op, E, Band::Plain>),
                             ScaleArgs{}, kCostMove);
    }
    return zelStatusOk;
}

}  // namespace zel::arith

#define ZEL_COUNT_PARAM_C1 Zel32u value
#define ZEL_COUNT_PARAM_C3 const Zel32u value[3]
#define ZEL_COUNT_PARAM_C4 const Zel32u value[4]
#define ZEL_COUNT_PARAM_AC4 const Zel32u value[3]

#define ZEL_SHIFT_MEMBERS(name, left, t, lay)                                                          \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, ZEL_COUNT_PARAM_##lay,     \
                                          Zel##t* pDst, int dstStep, ZeliSize roiSize) {               \
        return ::zel::arith::shiftImage<left, Zel##t, ::zel::Layout::lay, false>(                     \
            pSrc, srcStep, ZEL_VALUE_ARG_##lay, pDst, dstStep, roiSize);                               \
    }                                                                                                  \
    ZelStatus zeli##name##_##t##_##lay##IR(ZEL_COUNT_PARAM_##lay, Zel##t* pSrcDst, int srcDstStep,     \
                                           ZeliSize roiSize) {                                         \
        return ::zel::arith::shiftImage<left, Zel##t, ::zel::Layout::lay, true>(                      \
            pSrcDst, srcDstStep, ZEL_VALUE_ARG_##lay, pSrcDst, srcDstStep, roiSize);                   \
    }
#define ZEL_SHIFT_LAYOUTS(name, left, t)                                                            \
    ZEL_SHIFT_MEMBERS(name, left, t, C1) ZEL_SHIFT_MEMBERS(name, left, t, C3)                        \
    ZEL_SHIFT_MEMBERS(name, left, t, C4) ZEL_SHIFT_MEMBERS(name, left, t, AC4)

ZEL_SHIFT_LAYOUTS(LShiftC, true, 8u)
ZEL_SHIFT_LAYOUTS(LShiftC, true, 16u)
ZEL_SHIFT_LAYOUTS(LShiftC, true, 32s)
ZEL_SHIFT_LAYOUTS(RShiftC, false, 8u)
ZEL_SHIFT_LAYOUTS(RShiftC, false, 8s)
ZEL_SHIFT_LAYOUTS(RShiftC, false, 16u)
ZEL_SHIFT_LAYOUTS(RShiftC, false, 16s)
ZEL_SHIFT_LAYOUTS(RShiftC, false, 32s)

#endif  // HWY_ONCE
