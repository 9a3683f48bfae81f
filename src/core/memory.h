// The aligned allocator behind every buffer of the library.
//
// A block starts on a 32-byte boundary; the pointer-sized word just before
// it holds the address malloc returned, nothing else. Byte counts are formed
// in 64-bit arithmetic and refused (null) rather than wrapped.
#pragma once

#include <cstddef>
#include <memory>

#include "zeli.h"

// Element allocator: len elements of the named type, or null for len < 1
// or when the system has no memory.
Zel8u* zelsMalloc_8u(int len);
Zel8s* zelsMalloc_8s(int len);
Zel16u* zelsMalloc_16u(int len);
Zel16s* zelsMalloc_16s(int len);
Zel16sc* zelsMalloc_16sc(int len);
Zel32u* zelsMalloc_32u(int len);
Zel32s* zelsMalloc_32s(int len);
Zel32f* zelsMalloc_32f(int len);
Zel32sc* zelsMalloc_32sc(int len);
Zel32fc* zelsMalloc_32fc(int len);
Zel64s* zelsMalloc_64s(int len);
// Releases a block of any zelsMalloc_*; null is ignored.
void zelsFree(void* ptr);

namespace zel {

constexpr std::size_t kAlignment = 32;

// The one place that talks to malloc: `bytes` bytes, 32-byte aligned.
void* mallocAligned(std::size_t bytes);

// Test-only hooks, not part of the library's behaviour in production.
// failAllocationForTests(n): the n-th call of mallocAligned from now on
// (counting from 1) returns null as if the system had no memory, and every
// later call succeeds again; 0 disables the injection.
void failAllocationForTests(long n);
// Calls of mallocAligned so far (failed ones included), and blocks from it
// not yet released by zelsFree: a sweep counts what a call allocates and
// checks that a failing call gives everything back.
long allocationCallsForTests();
long liveBlocksForTests();

// Scratch buffer released on every path.
struct FreeDeleter {
    void operator()(void* p) const { zelsFree(p); }
};
template <class T>
using Buffer = std::unique_ptr<T[], FreeDeleter>;

template <class T>
Buffer<T> allocBuffer(std::size_t count) {
    return Buffer<T>(static_cast<T*>(mallocAligned(count * sizeof(T))));
}

}  // namespace zel
