// ComputeThreshold_Otsu_8u_C1R: the grey level that maximises the
// between-class variance of the histogram.
//
// The histogram is an exact count, gathered by reduceRows (one slot per
// block of rows, added in order) so that threads never share a counter; the
// search over the bins is serial, in double precision, in the order written
// below. The running lower-class mean is rescaled by the class weight of
// the previous bin also across bins the search passes over; after such a
// bin with pixels in it the mean is no longer a clean sum, and that is the
// rule callers get.
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "core/checks.h"
#include "core/fpcontrol.h"
#include "core/image.h"
#include "core/parallel.h"
#include "zeli.h"

namespace zel {
namespace {

struct Histogram {
    std::uint64_t count[256];
};

// Counts one row into h; two counter sets keep runs of one grey level from
// waiting on the same counter.
void countRow(const Zel8u* row, std::ptrdiff_t width, Histogram& h) {
    std::ptrdiff_t x = 0;
    if (width < 1024) {
        // Short rows: clearing the counter sets would cost more than they save.
        for (; x < width; ++x) ++h.count[row[x]];
        return;
    }
    std::uint32_t pair[2][256] = {};
    // A row holds fewer than 2^31 pixels, so 32-bit counters suffice.
    for (; width - x >= 2; x += 2) {
        ++pair[0][row[x]];
        ++pair[1][row[x + 1]];
    }
    if (x < width) ++pair[0][row[x]];
    for (int i = 0; i < 256; ++i) h.count[i] += std::uint64_t{pair[0][i]} + pair[1][i];
}

// The threshold from the histogram.
Zel8u otsuFromHistogram(const Histogram& hist) {
    constexpr double kEps = 1.1920928955078125e-07;  // 2^-23
    double n = 0, m = 0;
    for (int i = 0; i < 256; ++i) {
        const double h = static_cast<double>(hist.count[i]);
        n += h;
        m += (i + 0.5) * h;
    }
    const double inv = static_cast<float>(std::fabs(std::trunc(n))) > kEps ? 1.0 / n : 0.0;
    const double muT = m * inv;
    double s = 0, w = 0, best = 0, t = 0;
    for (int i = 0; i < 256; ++i) {
        s = s * w;
        const double p = inv * static_cast<double>(hist.count[i]);
        w = w + p;
        const double w2 = 1 - w;
        if (std::fmin(w, w2) < kEps || std::fmax(w, w2) > 1 - kEps) continue;
        const double c = i + 0.5;
        s = (s + p * c) / w;
        const double mu2 = (muT - w * s) / w2;
        const double sigma = w2 * w * (s - mu2) * (s - mu2);
        if (sigma > best) t = c;
        best = std::fmax(best, sigma);
    }
    return static_cast<Zel8u>(std::trunc(t));
}

}  // namespace
}  // namespace zel

ZelStatus zeliComputeThreshold_Otsu_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pThreshold) {
    using namespace zel;
    if (ZelStatus st = Check().ptrs(pSrc, pThreshold).roi(roiSize).that(srcStep >= roiSize.width, zelStatusBadStep))
        return st;
    const std::int64_t bytes = std::int64_t{roiSize.width} * roiSize.height;
    const std::ptrdiff_t blocks = (roiSize.height + kRowsPerSlot - 1) / kRowsPerSlot;
    const int team = teamSize(bytes, kCostHistogram, blocks);
    Histogram total{};
    const bool ok = reduceRows(
        roiSize.height, team, total,
        [&](Histogram& slot, std::ptrdiff_t y) { countRow(rowAt(pSrc, srcStep, y), roiSize.width, slot); },
        [](Histogram& sum, const Histogram& slot) {
            for (int i = 0; i < 256; ++i) sum.count[i] += slot.count[i];
        });
    if (!ok) return zelStatusNoMemory;
    // The search divides: under the caller's rounding mode it could pick
    // another bin.
    StandardFpEnvironment environment;
    *pThreshold = otsuFromHistogram(total);
    return zelStatusOk;
}
