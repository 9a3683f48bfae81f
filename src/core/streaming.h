// When results are stored past the caches.
//
// A call whose result is larger than kStreamStoreBytes writes it with
// non-temporal stores where its kernel can: a result that large would
// only evict the operands (and the caller's other data) from the caches on
// its way to memory. One threshold for the whole library; each family
// states only which bytes it measures (the result, or for copies the bytes
// moved). Streaming changes no result.
#pragma once

#include <cstdint>

namespace zel {

constexpr std::int64_t kStreamStoreBytes = 4194304;

}  // namespace zel
