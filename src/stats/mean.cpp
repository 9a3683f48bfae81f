// Mean: the channel sums of Sum divided by the pixel count. The count is
// width x height formed in signed 32-bit arithmetic (wrapping for ROIs of
// 2^31 pixels or more) and converted to double, and the 32f members are a
// call of Sum with the same hint after their own output check.
#include <cstdint>

#include "core/fpcontrol.h"
#include "zeli.h"

namespace zel {
namespace {

ZelStatus divide(ZelStatus st, Zel64f* pMean, ZeliSize roi, int channels) {
    if (st != zelStatusOk) return st;
    StandardFpEnvironment environment;  // the quotient rounds to nearest
    const auto count = static_cast<std::int32_t>(static_cast<std::uint32_t>(roi.width) *
                                                 static_cast<std::uint32_t>(roi.height));
    for (int c = 0; c < channels; ++c) pMean[c] /= static_cast<double>(count);
    return st;
}

constexpr int channelsOf(const char* layout) { return layout[0] == 'C' && layout[1] == '1' ? 1 : layout[0] == 'C' && layout[1] == '4' ? 4 : 3; }

}  // namespace
}  // namespace zel

#define ZELI_MEAN_INT(type, layout)                                                                     \
    ZelStatus zeliMean_##type##_##layout##R(const Zel##type* pSrc, int srcStep, ZeliSize roiSize,        \
                                            Zel64f* pMean) {                                             \
        return zel::divide(zeliSum_##type##_##layout##R(pSrc, srcStep, roiSize, pMean), pMean, roiSize, \
                           zel::channelsOf(#layout));                                                   \
    }
#define ZELI_MEAN_32F(layout)                                                                           \
    ZelStatus zeliMean_32f_##layout##R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean,  \
                                       ZelAccuracyHint hint) {                                           \
        if (pMean == nullptr) return zelStatusNullPtr;                                                   \
        return zel::divide(zeliSum_32f_##layout##R(pSrc, srcStep, roiSize, pMean, hint), pMean, roiSize, \
                           zel::channelsOf(#layout));                                                   \
    }
#define ZELI_MEAN_LAYOUTS(type) \
    ZELI_MEAN_INT(type, C1) ZELI_MEAN_INT(type, C3) ZELI_MEAN_INT(type, C4) ZELI_MEAN_INT(type, AC4)

ZELI_MEAN_LAYOUTS(8u)
ZELI_MEAN_LAYOUTS(16u)
ZELI_MEAN_LAYOUTS(16s)
ZELI_MEAN_32F(C1)
ZELI_MEAN_32F(C3)
ZELI_MEAN_32F(C4)
ZELI_MEAN_32F(AC4)
