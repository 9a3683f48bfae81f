// Plain byte copies of image rows: the one path behind Copy C1/C3/C4 of
// every type and CopyManaged.
//
// planCopy() makes the two speed decisions (collapse contiguous rows into
// one, bypass the caches with non-temporal stores) and copyRows() carries
// out a plan; the result is the same bytes whichever plan runs.
#pragma once

#include <cstddef>
#include <cstdint>

#include "zeli.h"

namespace zel {

struct CopyPlan {
    std::int64_t rowBytes;  // bytes per row after collapsing
    std::ptrdiff_t height;  // rows after collapsing
    bool stream;            // non-temporal stores
};

// Copies of more than kStreamStoreBytes (core/streaming.h) that are at
// least half the largest cache use non-temporal stores. maxCacheBytes is
// the largest cache's size, 0 when unknown (never stream).
// Contiguous rows whose total byte count does not fit an int are not
// collapsed and always stream.
CopyPlan planCopy(std::int64_t rowBytes, std::ptrdiff_t height, int srcStep, int dstStep, int maxCacheBytes);

// zelGetMaxCacheSizeB's answer, 0 when it has none.
int largestCacheBytes();

// Copies plan.height rows of plan.rowBytes bytes.
void copyRows(const void* src, int srcStep, void* dst, int dstStep, const CopyPlan& plan);

}  // namespace zel
