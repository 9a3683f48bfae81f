// CompColorKey: source 2 shows through wherever source 1 has the key
// colour. A pixel matches only when every channel equals the key's; the
// whole source 2 pixel is then taken, else the whole source 1 pixel.
//
// Channels are compared as bits, so one kernel serves 16u and 16s. C4
// pixels are compared as one 32- or 64-bit lane, C3 pixels after splitting
// into channel vectors, C1 element by element.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/comp_color_key.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <class B, int C>
void ColorKeyRow(const B* HWY_RESTRICT s1, const B* HWY_RESTRICT s2, B* HWY_RESTRICT dst, std::ptrdiff_t pixels,
                 const B* key) {
    std::ptrdiff_t x = 0;
    if constexpr (C == 1) {
        const hn::ScalableTag<B> d;
        const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
        const auto k = hn::Set(d, key[0]);
        for (; pixels - x >= lanes; x += lanes) {
            const auto v1 = hn::LoadU(d, s1 + x);
            hn::StoreU(hn::IfThenElse(hn::Eq(v1, k), hn::LoadU(d, s2 + x), v1), d, dst + x);
        }
    } else if constexpr (C == 4) {
        // One lane per pixel.
        using P = hwy::UnsignedFromSize<4 * sizeof(B)>;
        const hn::ScalableTag<P> d;
        const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
        P packed;
        std::memcpy(&packed, key, sizeof(P));
        const auto k = hn::Set(d, packed);
        const P* p1 = reinterpret_cast<const P*>(s1);
        const P* p2 = reinterpret_cast<const P*>(s2);
        P* pd = reinterpret_cast<P*>(dst);
        for (; pixels - x >= lanes; x += lanes) {
            const auto v1 = hn::LoadU(d, p1 + x);
            hn::StoreU(hn::IfThenElse(hn::Eq(v1, k), hn::LoadU(d, p2 + x), v1), d, pd + x);
        }
    } else {
        const hn::ScalableTag<B> d;
        const std::ptrdiff_t lanes = static_cast<std::ptrdiff_t>(hn::Lanes(d));
        const auto k0 = hn::Set(d, key[0]), k1 = hn::Set(d, key[1]), k2 = hn::Set(d, key[2]);
        for (; pixels - x >= lanes; x += lanes) {
            hn::VFromD<decltype(d)> a0, a1, a2, b0, b1, b2;
            hn::LoadInterleaved3(d, s1 + 3 * x, a0, a1, a2);
            hn::LoadInterleaved3(d, s2 + 3 * x, b0, b1, b2);
            const auto match = hn::And(hn::And(hn::Eq(a0, k0), hn::Eq(a1, k1)), hn::Eq(a2, k2));
            hn::StoreInterleaved3(hn::IfThenElse(match, b0, a0), hn::IfThenElse(match, b1, a1),
                                  hn::IfThenElse(match, b2, a2), d, dst + 3 * x);
        }
    }
    for (; x < pixels; ++x) {
        const B* p1 = s1 + x * C;
        const bool match = std::memcmp(p1, key, C * sizeof(B)) == 0;
        std::memcpy(dst + x * C, match ? s2 + x * C : p1, C * sizeof(B));
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <omp.h>

#include "core/checks.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"

namespace zel {
namespace {

// Both sides at least this long, and two threads available: the rows are
// split among the threads.
constexpr int kColorKeySplit = 192;

template <class T, int C>
ZelStatus compColorKey(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                       ZeliSize roi, const T* key) {
    if (ZelStatus st = Check().ptrs(pSrc1, pSrc2, pDst, key).roi(roi).steps(src1Step, src2Step, dstStep)) return st;
    using B = BitsOf<T>;
    B k[C];
    std::memcpy(k, key, sizeof(k));
    const auto row = ZEL_DISPATCH(ColorKeyRow<B, C>);
    auto rows = [&](std::ptrdiff_t y0, std::ptrdiff_t y1) {
        for (std::ptrdiff_t y = y0; y < y1; ++y)
            row(reinterpret_cast<const B*>(rowAt(pSrc1, src1Step, y)), reinterpret_cast<const B*>(rowAt(pSrc2, src2Step, y)),
                reinterpret_cast<B*>(rowAt(pDst, dstStep, y)), roi.width, k);
    };
    const int threads = ownGetNumThreads();
    if (threads < 2 || roi.width < kColorKeySplit || roi.height < kColorKeySplit) {
        rows(0, roi.height);
        return zelStatusOk;
    }
    // Each thread of the team takes height / team rows; the last one also
    // the remainder.
    runTeam(threads, [&] {
        const std::ptrdiff_t team = omp_get_num_threads(), t = omp_get_thread_num();
        const std::ptrdiff_t share = roi.height / team;
        rows(t * share, t == team - 1 ? roi.height : (t + 1) * share);
    });
    return zelStatusOk;
}

}  // namespace
}  // namespace zel

#define ZELI_COMP_COLOR_KEY_C1(t)                                                                            \
    ZelStatus zeliCompColorKey_##t##_C1R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2, int src2Step, \
                                         Zel##t* pDst, int dstStep, ZeliSize roiSize, Zel##t colorKey) {      \
        return zel::compColorKey<Zel##t, 1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, &colorKey); \
    }
#define ZELI_COMP_COLOR_KEY(t, C)                                                                              \
    ZelStatus zeliCompColorKey_##t##_C##C##R(const Zel##t* pSrc1, int src1Step, const Zel##t* pSrc2,            \
                                             int src2Step, Zel##t* pDst, int dstStep, ZeliSize roiSize,        \
                                             const Zel##t colorKey[C]) {                                       \
        return zel::compColorKey<Zel##t, C>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, colorKey); \
    }
#define ZELI_COMP_COLOR_KEY_ALL(t) ZELI_COMP_COLOR_KEY_C1(t) ZELI_COMP_COLOR_KEY(t, 3) ZELI_COMP_COLOR_KEY(t, 4)

ZELI_COMP_COLOR_KEY_ALL(8u)
ZELI_COMP_COLOR_KEY_ALL(16u)
ZELI_COMP_COLOR_KEY_ALL(16s)

#endif  // HWY_ONCE
