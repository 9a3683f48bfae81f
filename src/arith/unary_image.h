// The wrapper of the unary mathematics (Abs, Sqr, Sqrt, Ln, Exp,
// Complement): argument checks, the row advance, one kernel call per row,
// the family's way of turning the rows' codes into the call's status, and
// the two-thread split of the square roots. Also the integer rules that
// the 8-bit tables and the 16-bit rows compute.
//
// Include after the per-target kernels inside HWY_ONCE.
#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "arith/scale.h"
#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "zeli.h"

namespace zel::arith {

// How a family turns its rows' codes into the call's status.
enum class Gather {
    Ignore,        // always 0
    FirstNonZero,  // the first non-zero code in row order, after all rows
    Last,          // the last row's code
};

struct UnaryPlan {
    bool elementStep;             // rows advance by the step rounded down to the element size
    Gather gather;
    bool mergeRows;               // contiguous rows may run as one (the status cannot change)
    std::ptrdiff_t splitFrom;     // rows of at least this many elements may take two threads; 0: never
    bool floatingPoint;           // kernels compute in floating point
    bool stepBeforeSize = false;  // Complement: null, step, size
};

// ---- the integer rules ----

// v rounded to nearest, ties to even / ties up (v finite or infinite).
inline double roundHalfEven(double v) {
    const double f = std::floor(v), rest = v - f;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(f, 2.0) != 0)) return f + 1;
    return f;
}
inline double roundHalfUp(double v) {
    const double f = std::floor(v);
    return v - f >= 0.5 ? f + 1 : f;
}

template <class T>
T saturateDouble(double v) {
    if (!(v > double(std::numeric_limits<T>::min()))) return std::numeric_limits<T>::min();  // -inf too
    if (v >= double(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
    return T(v);
}

// Scale factors beyond +-64 give the results of +-64 for the roots and
// logarithms of 16-bit values: 0, or saturation of every non-zero value.
inline int clampScale(int s) { return std::clamp(s, -64, 64); }

// sqrt(x) 2^-s, ties to even, saturated; a negative x gives 0 and sets
// code 3. Exact: a root is an integer or irrational, and irrational values
// keep more than 1e-6 from a rounding boundary, far above double's error.
template <class T>
T sqrtScaled(T x, int s, int& code) {
    if (x < 0) {
        code = zelStatusWarnSqrtOfNegative;
        return 0;
    }
    return saturateDouble<T>(roundHalfEven(std::ldexp(std::sqrt(double(x)), -clampScale(s))));
}

// ln(x) 2^-s, ties to even (ln x is never a tie but at x = 1), saturated.
// Zero gives the type's lowest value (the saturated -inf) and code 7; a
// negative x gives 0 and code 8.
template <class T>
T lnScaled(T x, int s, int& code) {
    if (x < 0) {
        code = zelStatusWarnLogOfNegative;
        return 0;
    }
    if (x == 0) {
        if (code == 0) code = zelStatusWarnLogOfZero;
        return std::numeric_limits<T>::min();
    }
    return saturateDouble<T>(roundHalfEven(std::ldexp(std::log(double(x)), -clampScale(s))));
}

// e^x 2^-s rounded half up, saturated. Outside the range where e^x and the
// shift are plain doubles the exponent is summed first.
template <class T>
T expScaled(T x, int s) {
    double v;
    if (x > -700 && x < 700 && s > -1000 && s < 1000) {
        v = std::ldexp(std::exp(double(x)), -s);
    } else {
        const double t = double(x) * 1.4426950408889634 - double(s);
        v = t > 1100 ? HUGE_VAL : t < -1100 ? 0.0 : std::exp2(t);
    }
    return saturateDouble<T>(roundHalfUp(v));
}

// The 8u exponent: min(255, floor(e^x 2^-s + 0.5)). For s < -7 every
// result is 255 (e^0 2^8 saturates); s = -7 gives 128 for 0 and 255 for
// the rest, all of which the formula itself yields.
inline Zel8u expScaled8u(Zel8u x, int s) { return s < -7 ? Zel8u(255) : expScaled<Zel8u>(x, s); }

// ---- the row loop ----

// Runs row(src, dst, n, ac4) -> code over the ROI. The kernels of AC4
// rows never see the last pixel's alpha.
template <class T, Layout L, class Row>
ZelStatus unaryRows(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, const UnaryPlan& plan,
                    Row&& row) {
    constexpr int C = kChannels<L>;
    constexpr bool kAc4 = L == Layout::AC4;
    const int sStep = plan.elementStep ? srcStep & ~int(sizeof(T) - 1) : srcStep;
    const int dStep = plan.elementStep ? dstStep & ~int(sizeof(T) - 1) : dstStep;
    const std::int64_t rowBytes = std::int64_t{roi.width} * C * sizeof(T);
    const Rows rows = plan.mergeRows ? collapseRows(roi, rowBytes, {sStep, dStep}) : rowsOf(roi);
    const std::ptrdiff_t n = rows.width * C;

    // The square roots share long rows between two threads; rows that
    // overlap (a step below the row's length) run in order on one.
    constexpr std::ptrdiff_t kGrain = std::ptrdiff_t{4} * 64;
    int team = 1;
    if (plan.splitFrom > 0 && n >= plan.splitFrom && (rows.height == 1 || (sStep >= rowBytes && dStep >= rowBytes)))
        team = std::min(2, teamSize(rowBytes * roi.height * 2, kCostWiden, pieceCount(rows.height, n, kGrain)));

    if (team <= 1) {
        int status = 0;
        for (std::ptrdiff_t y = 0; y < rows.height; ++y) {
            const int code = row(rowAt(src, sStep, y), rowAt(dst, dStep, y), n - (kAc4 ? 1 : 0), kAc4);
            if (plan.gather == Gather::Last || (plan.gather == Gather::FirstNonZero && status == 0)) status = code;
        }
        return plan.gather == Gather::Ignore ? zelStatusOk : ZelStatus(status);
    }
    // Each block reports its first non-zero code with its row; the smallest
    // row wins, so the status is the one a single thread would give.
    std::atomic<std::int64_t> first{std::numeric_limits<std::int64_t>::max()};
    forEachBlock(rows.height, n, kGrain, team, [&](const Block& b) {
        const std::ptrdiff_t end = b.end == n && kAc4 ? n - 1 : b.end;
        bool reported = false;
        for (std::ptrdiff_t y = b.y0; y < b.y1; ++y) {
            const int code = row(rowAt(src, sStep, y) + b.begin, rowAt(dst, dStep, y) + b.begin, end - b.begin, kAc4);
            if (code != 0 && !reported) {
                reported = true;
                const std::int64_t key = std::int64_t{y} * 16 + code;
                std::int64_t seen = first.load();
                while (key < seen && !first.compare_exchange_weak(seen, key)) {
                }
            }
        }
    });
    const std::int64_t key = first.load();
    return plan.gather == Gather::Ignore || key == std::numeric_limits<std::int64_t>::max() ? zelStatusOk
                                                                                             : ZelStatus(key % 16);
}

// Whether a row function could get what it needs (see RuleRow).
template <class Row>
bool rowReady(const Row&) {
    return true;
}

// Checks, then the floating-point environment where the kernels need it,
// then the rows. makeRow() is called after the checks and returns the row
// function (tables are built there); a row function that could not get its
// table makes the call return zelStatusNoMemory, having written nothing.
template <class T, Layout L, class MakeRow>
ZelStatus unaryImage(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, const UnaryPlan& plan,
                     MakeRow&& makeRow) {
    Check check;
    check.ptrs(src, dst);
    if (plan.stepBeforeSize) check.steps(srcStep, dstStep);
    check.roi(roi);
    check.steps(srcStep, dstStep);
    if (ZelStatus st = check) return st;
    auto run = [&] {
        auto row = makeRow();
        if (!rowReady(row)) return zelStatusNoMemory;
        return unaryRows<T, L>(src, srcStep, dst, dstStep, roi, plan, row);
    };
    if (plan.floatingPoint) {
        StandardFpEnvironment environment;
        return run();
    }
    return run();
}

// An 8-bit row through a 256-entry table of rule(x) for every x; with
// `zeroCode` the row reports it when it meets a zero.
template <class Rule>
auto tableRow(Rule rule, int zeroCode) {
    std::array<Zel8u, 256> table;
    for (int x = 0; x < 256; ++x) table[x] = rule(Zel8u(x));
    return [table, zeroCode](const Zel8u* s, Zel8u* d, std::ptrdiff_t n, bool ac4) {
        bool zero = false;
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            if (ac4 && (i & 3) == 3) continue;
            zero |= s[i] == 0;
            d[i] = table[s[i]];
        }
        return zero ? zeroCode : 0;
    };
}

// A row of 16-bit elements through a rule f(x, code) -> result. Images of
// at least kTableFrom elements first apply the rule to every positive value
// once (a table of 32768 or 65536 results from the aligned allocator) and
// look their positive elements up; zero and negative elements, the only
// ones with a code, always take the rule. Both give the rule's values.
constexpr std::int64_t kTableFrom = std::int64_t{1} << 18;

template <class T, class F>
struct RuleRow {
    F f;
    bool wantsTable;
    Buffer<T> table;

    int operator()(const T* s, T* d, std::ptrdiff_t n, bool ac4) const {
        int code = 0;
        const T* t = table.get();
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            if (ac4 && (i & 3) == 3) continue;
            const T x = s[i];
            d[i] = t != nullptr && x > 0 ? t[x] : f(x, code);
        }
        return code;
    }
};

template <class T, class F>
bool rowReady(const RuleRow<T, F>& row) {
    return !row.wantsTable || row.table != nullptr;
}

template <class T, Layout L, class F>
RuleRow<T, F> ruleRow(ZeliSize roi, F f) {
    RuleRow<T, F> row{f, std::int64_t{roi.width} * roi.height * kChannels<L> >= kTableFrom, nullptr};
    if (row.wantsTable) {
        constexpr int kValues = int(std::numeric_limits<T>::max()) + 1;
        row.table = allocBuffer<T>(kValues);
        if (row.table != nullptr) {
            int code = 0;
            for (int x = 0; x < kValues; ++x) row.table[x] = f(T(x), code);
        }
    }
    return row;
}

}  // namespace zel::arith

// Exported members: out of place and in place, with the scale factor of
// Sfs members (members.h's parameter macros).
#define ZEL_UNARY_MEMBERS(name, run, t, lay, sfs)                                                        \
    ZelStatus zeli##name##_##t##_##lay##R##sfs(const Zel##t* pSrc, int srcStep, Zel##t* pDst, int dstStep, \
                                               ZeliSize roiSize ZEL_SF_PARAM_##sfs) {                    \
        return run<Zel##t, ::zel::Layout::lay>(pSrc, srcStep, pDst, dstStep, roiSize, ZEL_SF_ARG_##sfs);   \
    }                                                                                                    \
    ZelStatus zeli##name##_##t##_##lay##IR##sfs(Zel##t* pSrcDst, int srcDstStep,                          \
                                                ZeliSize roiSize ZEL_SF_PARAM_##sfs) {                   \
        return run<Zel##t, ::zel::Layout::lay>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,        \
                                               ZEL_SF_ARG_##sfs);                                        \
    }

// A type's members over C1, C3, C4 and AC4, over C1, C3 and AC4, or over
// C1 and C3.
#define ZEL_UNARY_4(M, t) M(t, C1) M(t, C3) M(t, C4) M(t, AC4)
#define ZEL_UNARY_3(M, t) M(t, C1) M(t, C3) M(t, AC4)
#define ZEL_UNARY_2(M, t) M(t, C1) M(t, C3)
