// The threshold families: every channel value is tested against a lower
// limit (x < tLo gives vLo) and an upper one (x > tHi gives vHi), strictly,
// and kept otherwise. Each family is one of three rules: the lower test
// alone (LT, LTVal, op 0), the upper one alone (GT, GTVal, op 4), or both
// (LTValGTVal). A family whose limit equals the replacement (LT, GT) passes
// the threshold as its value. NaN compares false and is kept.
//
// The limits are laid out per channel as patterns of whole pixels, like the
// constants of the arithmetic (vector j of a row starts at a known place in
// the pixel); AC4 rows leave the alpha lanes out of every store, and the
// last alpha of a row is never loaded.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/threshold.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include "core/image.h"
#include "core/pixel.h"
#include "core/store_under_mask-inl.h"

#include <cstddef>
#include <cstdint>

#ifndef ZEL_DATA_THRESHOLD_SHARED_
#define ZEL_DATA_THRESHOLD_SHARED_
namespace zel::threshold {
// Lanes the patterns are laid out for: the widest vector of 8-bit lanes.
constexpr int kMaxLanes = 64;
// Elements of one pattern: four channels of kMaxLanes pixels.
constexpr int kPattern = 4 * kMaxLanes;
// Which tests a kernel makes.
enum Rule : int { kLower = 1, kUpper = 2, kBoth = 3 };
}  // namespace zel::threshold
#endif  // ZEL_DATA_THRESHOLD_SHARED_

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// `rows` rows of n elements from src to dst (which may be src itself).
// `limits` holds four patterns of kPattern elements (tLo, vLo, tHi, vHi),
// `keep` (AC4 only, else null) marks the alpha elements with all bits set.
template <class T, int R>
void ThresholdRows(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep, std::ptrdiff_t n,
                   std::ptrdiff_t rows, int period, const T* limits, const BitsOf<T>* keep) {
    using threshold::kPattern;
    const hn::CappedTag<T, 32 / sizeof(T)> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    using U = BitsOf<T>;
    using V = hn::VFromD<decltype(d)>;
    const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));

    auto apply = [&](V x, V tLo, V vLo, V tHi, V vHi) HWY_ATTR {
        V r = x;
        if constexpr ((R & threshold::kLower) != 0) r = hn::IfThenElse(hn::Lt(x, tLo), vLo, r);
        if constexpr ((R & threshold::kUpper) != 0) r = hn::IfThenElse(hn::Gt(x, tHi), vHi, r);
        return r;
    };
    auto limit = [&](int which, std::ptrdiff_t j) HWY_ATTR { return hn::LoadU(d, limits + which * kPattern + j * lanes); };
    auto written = [&](std::ptrdiff_t j) HWY_ATTR { return hn::Not(hn::MaskFromVec(hn::LoadU(du, keep + j * lanes))); };
    std::ptrdiff_t colours = 0;
    if (keep != nullptr)
        while (colours < period && keep[colours] == 0) ++colours;
    const bool byPixel = !kNativeMaskedAccess<U> && keep != nullptr && lanes % period == 0;
    auto store = [&](V r, std::ptrdiff_t j, T* out) HWY_ATTR {
        if (keep == nullptr)
            hn::StoreU(r, d, out);
        else if (byPixel)
            StorePixelRuns(r, d, out, period * sizeof(T), colours * sizeof(T));
        else
            StoreUnderMask(hn::BitCast(du, r), written(j), du, reinterpret_cast<U*>(out));
    };

    for (std::ptrdiff_t y = 0; y < rows; ++y) {
        const T* s = byteOffset(src, srcStep * y);
        T* o = byteOffset(dst, dstStep * y);
        std::ptrdiff_t x = 0, j = 0;
        if (lanes % period == 0) {
            // Every vector starts on a pixel: one vector of each limit.
            const V tLo = limit(0, 0), vLo = limit(1, 0), tHi = limit(2, 0), vHi = limit(3, 0);
            if (keep == nullptr) {
                for (; n - x >= 2 * lanes; x += 2 * lanes) {
                    const V r0 = apply(hn::LoadU(d, s + x), tLo, vLo, tHi, vHi);
                    const V r1 = apply(hn::LoadU(d, s + x + lanes), tLo, vLo, tHi, vHi);
                    hn::StoreU(r0, d, o + x);
                    hn::StoreU(r1, d, o + x + lanes);
                }
            }
            for (; n - x >= lanes; x += lanes) store(apply(hn::LoadU(d, s + x), tLo, vLo, tHi, vHi), 0, o + x);
        } else {
            for (; n - x >= lanes; x += lanes) {
                store(apply(hn::LoadU(d, s + x), limit(0, j), limit(1, j), limit(2, j), limit(3, j)), j, o + x);
                if (++j == period) j = 0;
            }
        }
        if (x < n) {
            // The row's last elements: nothing after them is read or written.
            const std::size_t rest = static_cast<std::size_t>(n - x);
            const V r = apply(LoadFirst(d, s + x, rest), limit(0, j), limit(1, j), limit(2, j), limit(3, j));
            auto selected = hn::FirstN(du, rest);
            if (keep != nullptr) selected = hn::And(selected, written(j));
            StoreUnderMask(hn::BitCast(du, r), selected, du, reinterpret_cast<U*>(o + x));
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <array>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/parallel.h"
#include "core/simd.h"

namespace zel::threshold {

template <class T>
using RowsKernel = void (*)(const T*, std::ptrdiff_t, T*, std::ptrdiff_t, std::ptrdiff_t, std::ptrdiff_t, int,
                            const T*, const BitsOf<T>*);

template <class T>
RowsKernel<T> kernelFor(int rule) {
    if (rule == kLower) return ZEL_DISPATCH(ThresholdRows<T, kLower>);
    if (rule == kUpper) return ZEL_DISPATCH(ThresholdRows<T, kUpper>);
    return ZEL_DISPATCH(ThresholdRows<T, kBoth>);
}

// Alpha elements of AC4 rows, all bits set: a constant of the build.
template <class U>
struct AlphaKeep {
    static constexpr std::array<U, kPattern> make() {
        std::array<U, kPattern> keep{};
        for (int i = 0; i < kPattern; ++i) keep[i] = i % 4 == 3 ? U(~U(0)) : U(0);
        return keep;
    }
    static constexpr std::array<U, kPattern> kKeep = make();
};

// The limits of one call, per computed channel: a test that the rule does
// not make gets a bound no value passes (the value keeps its own bits).
template <class T>
struct Limits {
    T tLo[4], vLo[4], tHi[4], vHi[4];
};

template <class T>
constexpr T lowest() {
    if constexpr (std::is_floating_point_v<T>) return -std::numeric_limits<T>::infinity();
    return std::numeric_limits<T>::lowest();
}
template <class T>
constexpr T highest() {
    if constexpr (std::is_floating_point_v<T>) return std::numeric_limits<T>::infinity();
    return std::numeric_limits<T>::max();
}

// The pass over the image once the checks have passed: patterns, row
// collapse, the fork rule.
template <class T, Layout L>
void thresholdPass(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, int rule,
                   const Limits<T>& lim) {
    constexpr int C = kChannels<L>;
    constexpr std::ptrdiff_t kGrain = std::ptrdiff_t{C} * kMaxLanes;
    HWY_ALIGN T patterns[4 * kPattern];
    const T* from[4] = {lim.tLo, lim.vLo, lim.tHi, lim.vHi};
    for (int k = 0; k < 4; ++k)
        for (int i = 0; i < kPattern; ++i) {
            const int c = i % C;
            // Alpha lanes are never stored; any bound serves them.
            patterns[k * kPattern + i] = c < kComputed<L> ? from[k][c] : from[k][0];
        }
    const BitsOf<T>* keep = L == Layout::AC4 ? AlphaKeep<BitsOf<T>>::kKeep.data() : nullptr;
    constexpr std::ptrdiff_t kAlphaTail = L == Layout::AC4 ? 1 : 0;

    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    const Rows rows = collapseRows(roi, rowBytes, {srcStep, dstStep});
    const std::ptrdiff_t n = rows.width * C;
    const int team = teamSize(rowBytes * roi.height * 2, kCostMove, pieceCount(rows.height, n, kGrain));
    const RowsKernel<T> kernel = kernelFor<T>(rule);
    forEachBlock(rows.height, n, kGrain, team, [&](const Block& b) {
        const std::ptrdiff_t end = b.end == n ? n - kAlphaTail : b.end;
        kernel(rowAt(pSrc, srcStep, b.y0) + b.begin, srcStep, rowAt(pDst, dstStep, b.y0) + b.begin, dstStep,
               end - b.begin, b.y1 - b.y0, C, patterns, keep);
    });
}

template <class T, Layout L>
void run(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, int rule, const Limits<T>& lim) {
    if constexpr (std::is_floating_point_v<T>) {
        // Denormals must compare as themselves, whatever the caller's DAZ.
        StandardFpEnvironment environment;
        thresholdPass<T, L>(pSrc, srcStep, pDst, dstStep, roi, rule, lim);
    } else {
        thresholdPass<T, L>(pSrc, srcStep, pDst, dstStep, roi, rule, lim);
    }
}

// Builds the limits of a one-sided rule from threshold and value arrays.
template <class T, Layout L>
Limits<T> oneSided(int rule, const T* threshold, const T* value) {
    Limits<T> lim;
    for (int c = 0; c < 4; ++c) {
        const int k = c < kComputed<L> ? c : 0;
        lim.tLo[c] = rule == kLower ? threshold[k] : lowest<T>();
        lim.vLo[c] = rule == kLower ? value[k] : T(0);
        lim.tHi[c] = rule == kUpper ? threshold[k] : highest<T>();
        lim.vHi[c] = rule == kUpper ? value[k] : T(0);
    }
    return lim;
}

inline int ruleOfOp(ZelCompareOp op) { return op == zelCompareLess ? kLower : kUpper; }
inline bool thresholdOp(ZelCompareOp op) { return op == zelCompareLess || op == zelCompareGreater; }

// Threshold (op), LT and GT: the threshold is also the replacement.
// `op` < 0 stands for LT and GT's fixed rule.
template <class T, Layout L>
ZelStatus clip(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const T* threshold,
               ZelCompareOp op, int fixedRule) {
    if (ZelStatus st = Check()
                           .ptrs(pSrc, pDst)
                           .roi(roi)
                           .steps(srcStep, dstStep)
                           .ptrs(threshold)
                           .that(fixedRule != 0 || thresholdOp(op), zelStatusUnsupportedMode))
        return st;
    const int rule = fixedRule != 0 ? fixedRule : ruleOfOp(op);
    run<T, L>(pSrc, srcStep, pDst, dstStep, roi, rule, oneSided<T, L>(rule, threshold, threshold));
    return zelStatusOk;
}

// Val (op), LTVal and GTVal. Val tests its op before anything else.
template <class T, Layout L>
ZelStatus replace(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const T* threshold,
                  const T* value, ZelCompareOp op, int fixedRule) {
    if (ZelStatus st = Check()
                           .that(fixedRule != 0 || thresholdOp(op), zelStatusUnsupportedMode)
                           .ptrs(pSrc, pDst)
                           .roi(roi)
                           .steps(srcStep, dstStep)
                           .ptrs(threshold, value))
        return st;
    const int rule = fixedRule != 0 ? fixedRule : ruleOfOp(op);
    run<T, L>(pSrc, srcStep, pDst, dstStep, roi, rule, oneSided<T, L>(rule, threshold, value));
    return zelStatusOk;
}

// LTValGTVal: all pointers, size, steps, then crossed thresholds (equal
// ones pass; a NaN threshold is not crossed).
template <class T, Layout L>
ZelStatus both(const T* pSrc, int srcStep, T* pDst, int dstStep, ZeliSize roi, const T* tLT, const T* vLT,
               const T* tGT, const T* vGT) {
    Check check;
    check.ptrs(pSrc, pDst, tLT, vLT, tGT, vGT).roi(roi).steps(srcStep, dstStep);
    if (ZelStatus st = check) return st;
    for (int c = 0; c < kComputed<L>; ++c) check.that(!(tGT[c] < tLT[c]), zelStatusThresholdsCrossed);
    if (ZelStatus st = check) return st;
    Limits<T> lim;
    for (int c = 0; c < 4; ++c) {
        const int k = c < kComputed<L> ? c : 0;
        lim.tLo[c] = tLT[k];
        lim.vLo[c] = vLT[k];
        lim.tHi[c] = tGT[k];
        lim.vHi[c] = vGT[k];
    }
    run<T, L>(pSrc, srcStep, pDst, dstStep, roi, kBoth, lim);
    return zelStatusOk;
}

}  // namespace zel::threshold

// Scalars of C1 members are passed on by address; arrays as they are.
#define ZEL_THR_PARAM_C1(t, name) Zel##t name
#define ZEL_THR_PARAM_C3(t, name) const Zel##t name[3]
#define ZEL_THR_PARAM_AC4(t, name) const Zel##t name[3]
#define ZEL_THR_PARAM_C4(t, name) const Zel##t name[4]
#define ZEL_THR_ARG_C1(name) &name
#define ZEL_THR_ARG_C3(name) name
#define ZEL_THR_ARG_AC4(name) name
#define ZEL_THR_ARG_C4(name) name
#define ZEL_THR_FN(fn, t, lay) ::zel::threshold::fn<Zel##t, ::zel::Layout::lay>

// One R member and its IR member, which calls it with the image as both
// source and destination. PARAMS and ARGS are the arguments after the ROI.
#define ZEL_THR_PAIR(name, t, lay, PARAMS, BODY, ARGS)                                                     \
    ZelStatus zeli##name##_##t##_##lay##R(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep,       \
                                          ZeliSize roiSize, PARAMS) {                                      \
        BODY                                                                                               \
    }                                                                                                      \
    ZelStatus zeli##name##_##t##_##lay##IR(Zel##t* pSrcDst, int srcDstStep, ZeliSize roiSize, PARAMS) {    \
        return zeli##name##_##t##_##lay##R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, ARGS);       \
    }
#define ZEL_COMMA ,

#define ZEL_THRESHOLD(t, lay)                                                                             \
    ZEL_THR_PAIR(Threshold, t, lay, ZEL_THR_PARAM_##lay(t, threshold) ZEL_COMMA ZelCompareOp cmpOp,         \
                 return ZEL_THR_FN(clip, t, lay)(pSrc, srcStep, pDst, dstStep, roiSize,                    \
                                                 ZEL_THR_ARG_##lay(threshold), cmpOp, 0);,                 \
                 threshold ZEL_COMMA cmpOp)
#define ZEL_THRESHOLD_FIXED(name, rule, t, lay)                                                           \
    ZEL_THR_PAIR(name, t, lay, ZEL_THR_PARAM_##lay(t, threshold),                                          \
                 return ZEL_THR_FN(clip, t, lay)(pSrc, srcStep, pDst, dstStep, roiSize,                    \
                                                 ZEL_THR_ARG_##lay(threshold), zelCompareLess,             \
                                                 ::zel::threshold::rule);,                                 \
                 threshold)
#define ZEL_THRESHOLD_VAL(t, lay)                                                                         \
    ZEL_THR_PAIR(Threshold_Val, t, lay,                                                                    \
                 ZEL_THR_PARAM_##lay(t, threshold) ZEL_COMMA ZEL_THR_PARAM_##lay(t, value)                 \
                     ZEL_COMMA ZelCompareOp cmpOp,                                                         \
                 return ZEL_THR_FN(replace, t, lay)(pSrc, srcStep, pDst, dstStep, roiSize,                 \
                                                    ZEL_THR_ARG_##lay(threshold), ZEL_THR_ARG_##lay(value), \
                                                    cmpOp, 0);,                                            \
                 threshold ZEL_COMMA value ZEL_COMMA cmpOp)
#define ZEL_THRESHOLD_VAL_FIXED(name, rule, t, lay)                                                       \
    ZEL_THR_PAIR(name, t, lay, ZEL_THR_PARAM_##lay(t, threshold) ZEL_COMMA ZEL_THR_PARAM_##lay(t, value),  \
                 return ZEL_THR_FN(replace, t, lay)(pSrc, srcStep, pDst, dstStep, roiSize,                 \
                                                    ZEL_THR_ARG_##lay(threshold), ZEL_THR_ARG_##lay(value), \
                                                    zelCompareLess, ::zel::threshold::rule);,              \
                 threshold ZEL_COMMA value)
#define ZEL_THRESHOLD_BOTH(t, lay)                                                                        \
    ZEL_THR_PAIR(Threshold_LTValGTVal, t, lay,                                                             \
                 ZEL_THR_PARAM_##lay(t, thresholdLT) ZEL_COMMA ZEL_THR_PARAM_##lay(t, valueLT) ZEL_COMMA   \
                     ZEL_THR_PARAM_##lay(t, thresholdGT) ZEL_COMMA ZEL_THR_PARAM_##lay(t, valueGT),        \
                 return ZEL_THR_FN(both, t, lay)(pSrc, srcStep, pDst, dstStep, roiSize,                    \
                                                 ZEL_THR_ARG_##lay(thresholdLT), ZEL_THR_ARG_##lay(valueLT), \
                                                 ZEL_THR_ARG_##lay(thresholdGT), ZEL_THR_ARG_##lay(valueGT));, \
                 thresholdLT ZEL_COMMA valueLT ZEL_COMMA thresholdGT ZEL_COMMA valueGT)

#define ZEL_THRESHOLD_TYPE(t)                                                                             \
    ZEL_THRESHOLD(t, C1) ZEL_THRESHOLD(t, C3) ZEL_THRESHOLD(t, AC4)                                        \
    ZEL_THRESHOLD_FIXED(Threshold_LT, kLower, t, C1) ZEL_THRESHOLD_FIXED(Threshold_LT, kLower, t, C3)      \
    ZEL_THRESHOLD_FIXED(Threshold_LT, kLower, t, AC4)                                                      \
    ZEL_THRESHOLD_FIXED(Threshold_GT, kUpper, t, C1) ZEL_THRESHOLD_FIXED(Threshold_GT, kUpper, t, C3)      \
    ZEL_THRESHOLD_FIXED(Threshold_GT, kUpper, t, AC4)                                                      \
    ZEL_THRESHOLD_VAL(t, C1) ZEL_THRESHOLD_VAL(t, C3) ZEL_THRESHOLD_VAL(t, AC4)                            \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_LTVal, kLower, t, C1)                                                \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_LTVal, kLower, t, C3)                                                \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_LTVal, kLower, t, C4)                                                \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_LTVal, kLower, t, AC4)                                               \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_GTVal, kUpper, t, C1)                                                \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_GTVal, kUpper, t, C3)                                                \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_GTVal, kUpper, t, C4)                                                \
    ZEL_THRESHOLD_VAL_FIXED(Threshold_GTVal, kUpper, t, AC4)                                               \
    ZEL_THRESHOLD_BOTH(t, C1) ZEL_THRESHOLD_BOTH(t, C3) ZEL_THRESHOLD_BOTH(t, AC4)

ZEL_THRESHOLD_TYPE(8u)
ZEL_THRESHOLD_TYPE(16s)
ZEL_THRESHOLD_TYPE(16u)
ZEL_THRESHOLD_TYPE(32f)

#endif  // HWY_ONCE
