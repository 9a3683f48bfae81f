// The threading frame: how a call divides its work among threads.
//
// Row split: the ROI's rows are handed out in contiguous blocks under the
// static schedule; each row is computed by exactly one thread, so results
// never depend on the team size. Vector split: a long one-dimensional kernel
// is cut into at most two chunks. Reductions keep one slot per block of
// rows of a fixed size and add the slots in order, so a floating-point sum
// is the same whatever the thread count.
#pragma once

#include <omp.h>

#include <algorithm>
#include <atomic>
#include <cstdint>

#include "core/memory.h"

// Threads the library may use for one call (the zelSetNumThreads setting).
int ownGetNumThreads();

namespace zel {

// Calls body(y) for every row 0..height-1. With `fork` set and more than one
// thread allowed, the rows are divided among a team by the static schedule;
// otherwise they run in order on the calling thread.
template <class Body>
void forEachRow(int height, bool fork, Body&& body) {
    const int threads = fork ? ownGetNumThreads() : 1;
    if (threads > 1 && height > 1) {
#pragma omp parallel for num_threads(threads) schedule(static)
        for (int y = 0; y < height; ++y) body(y);
    } else {
        for (int y = 0; y < height; ++y) body(y);
    }
}

// Vector split. kernel(begin, count) processes elements [begin, begin+count)
// and returns how many special cases it met (zero divisors, say); the total
// over all chunks is returned. Below `threshold` elements, with one thread
// allowed, or with fewer elements than threads, the kernel runs once on the
// calling thread. Otherwise a team of at most two threads is requested and
// thread i takes chunk i; the last thread also takes the remainder.
template <class Kernel>
std::int64_t splitVector(int length, int threshold, Kernel&& kernel) {
    const int threads = ownGetNumThreads();
    if (length < threshold || threads <= 1 || length < threads) return kernel(0, length);
    std::atomic<std::int64_t> specialCases{0};
    int chunk = 0;
    int remainder = 0;
#pragma omp parallel num_threads(std::min(threads, 2))
    {
#pragma omp master
        {
            const int team = omp_get_num_threads();
            chunk = length / team;
            remainder = length % team;
        }
#pragma omp barrier
        const int i = omp_get_thread_num();
        const bool last = i == omp_get_num_threads() - 1;
        const std::int64_t met = kernel(i * chunk, chunk + (last ? remainder : 0));
        if (met != 0) specialCases += met;
    }
    return specialCases.load();
}

// Reduction over rows with a thread-count independent result: rows are
// grouped in blocks of kRowsPerSlot, each block accumulates into its own
// slot (accumulate(slot, y)), and the slots are combined in block order
// (combine(total, slot)). Returns false when the slots cannot be allocated.
constexpr int kRowsPerSlot = 16;

template <class Slot, class Accumulate, class Combine>
bool reduceRows(int height, bool fork, Slot& total, Accumulate&& accumulate, Combine&& combine) {
    const int blocks = (height + kRowsPerSlot - 1) / kRowsPerSlot;
    Buffer<Slot> slots = allocBuffer<Slot>(static_cast<std::size_t>(blocks));
    if (!slots) return false;
    for (int b = 0; b < blocks; ++b) new (&slots[b]) Slot{};
    const int threads = fork ? ownGetNumThreads() : 1;
#pragma omp parallel for num_threads(threads) schedule(static) if (threads > 1 && blocks > 1)
    for (int b = 0; b < blocks; ++b) {
        const int end = std::min(height, (b + 1) * kRowsPerSlot);
        for (int y = b * kRowsPerSlot; y < end; ++y) accumulate(slots[b], y);
    }
    for (int b = 0; b < blocks; ++b) combine(total, slots[b]);
    return true;
}

}  // namespace zel
