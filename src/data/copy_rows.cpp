// Row copies with ordinary or non-temporal stores.
//
// The cached path is the C library's memcpy, which already picks the best
// moves for the processor. The streaming path aligns the destination to a
// vector, writes four vectors a step with non-temporal stores and copies
// the ragged ends with memcpy; one store fence ends the whole copy so the
// bytes are visible to every later load.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/copy_rows.cpp"
#include <hwy/foreach_target.h>  // IWYU pragma: keep
#include <hwy/highway.h>

#include <hwy/cache_control.h>

#include <cstdint>
#include <cstring>

#include "data/copy_rows.h"

HWY_BEFORE_NAMESPACE();
namespace zel {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

void StreamCopyRow(const std::uint8_t* HWY_RESTRICT src, std::uint8_t* HWY_RESTRICT dst,
                   std::size_t bytes) {
    const hn::ScalableTag<std::uint8_t> d;
    const std::size_t lanes = hn::Lanes(d);
    std::size_t head = (lanes - reinterpret_cast<std::uintptr_t>(dst) % lanes) % lanes;
    if (head > bytes) head = bytes;
    std::memcpy(dst, src, head);
    std::size_t i = head;
    for (; bytes - i >= 4 * lanes; i += 4 * lanes) {
        const auto v0 = hn::LoadU(d, src + i);
        const auto v1 = hn::LoadU(d, src + i + lanes);
        const auto v2 = hn::LoadU(d, src + i + 2 * lanes);
        const auto v3 = hn::LoadU(d, src + i + 3 * lanes);
        hn::Stream(v0, d, dst + i);
        hn::Stream(v1, d, dst + i + lanes);
        hn::Stream(v2, d, dst + i + 2 * lanes);
        hn::Stream(v3, d, dst + i + 3 * lanes);
    }
    for (; bytes - i >= lanes; i += lanes) hn::Stream(hn::LoadU(d, src + i), d, dst + i);
    std::memcpy(dst + i, src + i, bytes - i);
}

}  // namespace HWY_NAMESPACE
}  // namespace zel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <climits>

#include "core/image.h"
#include "core/simd.h"
#include "core/streaming.h"

namespace zel {

CopyPlan planCopy(std::int64_t rowBytes, std::ptrdiff_t height, int srcStep, int dstStep, int maxCacheBytes) {
    const std::int64_t total = rowBytes * height;
    const bool contiguous = height > 1 && srcStep == rowBytes && dstStep == rowBytes;
    if (contiguous && total > INT_MAX) return {rowBytes, height, true};
    const bool stream = maxCacheBytes > 0 && total > kStreamStoreBytes && 2 * total >= maxCacheBytes;
    if (contiguous) return {total, 1, stream};
    return {rowBytes, height, stream};
}

int largestCacheBytes() {
    int bytes = 0;
    return zelGetMaxCacheSizeB(&bytes) == zelStatusOk ? bytes : 0;
}

void copyRows(const void* src, int srcStep, void* dst, int dstStep, const CopyPlan& plan) {
    const auto* from = static_cast<const std::uint8_t*>(src);
    auto* to = static_cast<std::uint8_t*>(dst);
    const auto bytes = static_cast<std::size_t>(plan.rowBytes);
    if (plan.stream) {
        const auto row = ZEL_DISPATCH(StreamCopyRow);
        for (std::ptrdiff_t y = 0; y < plan.height; ++y) row(rowAt(from, srcStep, y), rowAt(to, dstStep, y), bytes);
        hwy::FlushStream();
    } else {
        for (std::ptrdiff_t y = 0; y < plan.height; ++y)
            std::memcpy(rowAt(to, dstStep, y), rowAt(from, srcStep, y), bytes);
    }
}

}  // namespace zel

#endif  // HWY_ONCE
