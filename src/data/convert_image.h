// The image loop of the type conversions (Convert and Scale): row
// collapse, the streaming decision, the fork and the floating-point
// environment, around the per-target ConvertRows kernel. Included by a
// family file in its HWY_ONCE part, after convert_row-inl.h has been
// compiled for every target in the same file.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixel.h"
#include "core/simd.h"
#include "core/streaming.h"
#include "data/convert_rules.h"
#include "data/copy_rows.h"
#include "zeli.h"

namespace zel::convert {

// Pieces of a long row start on multiples of this many pixels.
constexpr std::ptrdiff_t kGrainPixels = 256;

// Whether a result of `bytes` bytes is stored past the caches: above the
// library's threshold and not small enough to stay in the largest cache
// (at least half of it), where the next operation would find it.
inline bool streamsResult(std::int64_t bytes) {
    if (bytes <= kStreamStoreBytes) return false;
    const int cache = largestCacheBytes();
    return cache == 0 || bytes >= cache / 2;
}

// Converts the ROI by rule R; the checks have passed. Floating-point rules
// run under the standard environment, whatever the caller's control word.
template <class Src, class Dst, Rule R, Layout L>
void convertImage(const Src* pSrc, int srcStep, Dst* pDst, int dstStep, ZeliSize roi, const Params& p) {
    constexpr int C = kChannels<L>;
    constexpr bool kAlpha = L == Layout::AC4;
    const std::int64_t srcRow = std::int64_t{roi.width} * C * sizeof(Src);
    const std::int64_t dstRow = std::int64_t{roi.width} * C * sizeof(Dst);
    const Rows rows = kAlpha ? rowsOf(roi) : collapseRows(roi, {{srcStep, srcRow}, {dstStep, dstRow}});
    const std::int64_t resultBytes = dstRow * roi.height;
    const bool stream = streamsResult(resultBytes);
    // Every rule runs at about a copy's speed per byte (the narrowing is the
    // costliest part, and it is packed), so the weight is a copy's.
    const int team = teamSize(srcRow * roi.height + resultBytes, kCostMove,
                              pieceCount(rows.height, rows.width, kGrainPixels));
    const auto kernel = ZEL_DISPATCH(ConvertRows<Src, Dst, R>);
    auto run = [&] {
        forEachBlock(rows.height, rows.width, kGrainPixels, team, [&](const Block& b) {
            kernel(rowAt(pSrc, srcStep, b.y0), srcStep, rowAt(pDst, dstStep, b.y0), dstStep, b.y1 - b.y0,
                   b.begin, b.end, C, kAlpha, p, stream);
        });
    };
    if constexpr (usesFloat(R)) {
        StandardFpEnvironment environment;
        run();
    } else {
        run();
    }
}

// The rounding field of a control word, as zel_set_rc_ssx takes it.
inline std::uint32_t roundingField(std::uint32_t cw) { return (cw >> 13) & 3u; }

// The rounding-control discipline of the conversions: the field is set to
// `rc` for the lifetime of the scope, and the previous word is written
// back at the end only if its rounding field differs from `rc`.
class RoundingControl {
public:
    explicit RoundingControl(std::uint32_t rc) : rc_(rc), saved_(zel_set_rc_ssx(rc)) {}
    ~RoundingControl() {
        if (roundingField(saved_) != rc_) zel_set_cw_ssx(saved_);
    }
    RoundingControl(const RoundingControl&) = delete;
    RoundingControl& operator=(const RoundingControl&) = delete;

private:
    std::uint32_t rc_, saved_;
};

}  // namespace zel::convert
