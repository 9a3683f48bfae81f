#include "core/memory.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace zel {
namespace {

// The address before the payload is rounded down to the boundary, so the
// header word always fits: the payload starts 8 to 39 bytes after the raw
// address, and the request carries that much slack.
constexpr std::size_t kSlack = sizeof(void*) + kAlignment - 1;

// Test-only bookkeeping (see memory.h): two relaxed counters per block.
std::atomic<long> callsSoFar{0};
std::atomic<long> failingCall{0};  // the value of callsSoFar that fails; 0: none
std::atomic<long> liveBlocks{0};

}  // namespace

void failAllocationForTests(long n) {
    failingCall.store(n > 0 ? callsSoFar.load() + n : 0);
}
long allocationCallsForTests() { return callsSoFar.load(); }
long liveBlocksForTests() { return liveBlocks.load(); }

void* mallocAligned(std::size_t bytes) {
    const long call = callsSoFar.fetch_add(1, std::memory_order_relaxed) + 1;
    if (call == failingCall.load(std::memory_order_relaxed)) return nullptr;
    if (bytes == 0 || bytes > std::numeric_limits<std::size_t>::max() / 2) return nullptr;
    void* raw = std::malloc(bytes + kSlack);
    if (raw == nullptr) return nullptr;
    liveBlocks.fetch_add(1, std::memory_order_relaxed);
    const auto address = reinterpret_cast<std::uintptr_t>(raw);
    const auto aligned = (address + kSlack) & ~static_cast<std::uintptr_t>(kAlignment - 1);
    reinterpret_cast<void**>(aligned)[-1] = raw;
    return reinterpret_cast<void*>(aligned);
}

namespace {

template <class T>
T* mallocElements(int len) {
    if (len < 1) return nullptr;
    return static_cast<T*>(mallocAligned(static_cast<std::size_t>(len) * sizeof(T)));
}

}  // namespace
}  // namespace zel

Zel8u* zelsMalloc_8u(int len) { return zel::mallocElements<Zel8u>(len); }
Zel8s* zelsMalloc_8s(int len) { return zel::mallocElements<Zel8s>(len); }
Zel16u* zelsMalloc_16u(int len) { return zel::mallocElements<Zel16u>(len); }
Zel16s* zelsMalloc_16s(int len) { return zel::mallocElements<Zel16s>(len); }
Zel16sc* zelsMalloc_16sc(int len) { return zel::mallocElements<Zel16sc>(len); }
Zel32u* zelsMalloc_32u(int len) { return zel::mallocElements<Zel32u>(len); }
Zel32s* zelsMalloc_32s(int len) { return zel::mallocElements<Zel32s>(len); }
Zel32f* zelsMalloc_32f(int len) { return zel::mallocElements<Zel32f>(len); }
Zel32sc* zelsMalloc_32sc(int len) { return zel::mallocElements<Zel32sc>(len); }
Zel32fc* zelsMalloc_32fc(int len) { return zel::mallocElements<Zel32fc>(len); }
Zel64s* zelsMalloc_64s(int len) { return zel::mallocElements<Zel64s>(len); }

void zelsFree(void* ptr) {
    if (ptr == nullptr) return;
    zel::liveBlocks.fetch_sub(1, std::memory_order_relaxed);
    std::free(static_cast<void**>(ptr)[-1]);
}
