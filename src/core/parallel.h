// The threading frame: when a call forks, and how it divides its work.
//
// The fork rule. A call forks only when every thread of the team gets
// enough work to pay for waking it: the bytes the call reads and writes,
// weighted by what its kernel costs per byte (kCost*), must reach
// kForkBytesPerThread per thread. The team is never larger than the
// thread setting or than the pieces the work can be cut into; a team of
// one runs on the calling thread without entering the OpenMP runtime. The
// rule is measured, not tuned per family: a family states only its cost
// weight (docs/architecture.md).
//
// Division of work. Rows go to the threads in contiguous blocks, one per
// thread, which the kernels walk themselves; when there are fewer rows
// than threads (one long collapsed row, say), each row is cut into pieces
// whose boundaries fall on a multiple of the family's grain. Every element is computed by exactly
// one thread with the same code, so results never depend on the team size.
// Reductions keep one slot per block of a fixed number of rows and add the
// slots in order. Every thread of a team computes under the calling
// thread's floating-point control word (see fpcontrol.h).
#pragma once

#include <omp.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>

#include "core/fpcontrol.h"
#include "core/memory.h"
#include "zeli.h"

// Threads the library may use for one call (the zelSetNumThreads setting).
int ownGetNumThreads();
// True while the tests ask every call to fork as if its work were large.
bool ownForksEagerly();

namespace zel {

// The largest thread setting; larger requests are clamped to it.
constexpr int kMaxThreads = ZEL_MAX_THREADS;

// Cost weights: time per byte touched, relative to a pass that only loads,
// combines and stores (a copy, Add, Set). Measured on the kernels.
enum ForkCost : int {
    kCostMove = 1,            // copies, fills, sums, saturating arithmetic, 32f sums
    kCostWiden = 2,           // widened integer arithmetic with scaling, products, 32f division
    kCostDivide = 6,          // 8-bit and 16-bit division in floating point
    kCostComplexDivide = 24,  // 32fc division, scalar
    kCostExact = 48,          // 32sc arithmetic: scalar, in 128-bit integers
    kCostExactDivide = 160,   // 16sc and 32sc division: 128-bit integer quotients
    kCostHistogram = 32,      // histograms: one counter update per 8-bit pixel (0.35 ns, a copy 0.011)
};

// Weighted bytes each thread of a team must receive: about 85 us of a
// single thread's plain pass (10 ns per KiB in cache, more from memory).
// A region of two threads costs about 7 us with spinning workers and 40 to
// 60 us when they sleep (OMP_WAIT_POLICY=passive); at this share even a
// sleeping team costs less than the half of the work the second thread
// takes, so no call gets slower with more threads under either policy.
constexpr std::int64_t kForkBytesPerThread = std::int64_t{8} << 20;

// Makes every call fork as far as its pieces allow, whatever its size (the
// tests' way to run team paths on small images); false restores the rule.
void forkEagerlyForTests(bool eager);

// Threads worth using for `bytes` bytes touched at `cost` weight, cut into
// at most `pieces` pieces; 1 means run on the calling thread.
inline int teamSize(std::int64_t bytes, int cost, std::int64_t pieces) {
    const int allowed = ownGetNumThreads();
    if (allowed <= 1 || pieces <= 1) return 1;
    const std::int64_t perThread = kForkBytesPerThread / cost;
    const std::int64_t byWork =
        ownForksEagerly() ? pieces : bytes / std::max<std::int64_t>(perThread, 1);
    const std::int64_t team = std::min<std::int64_t>({byWork, allowed, pieces});
    return team < 2 ? 1 : static_cast<int>(team);
}

// Runs region() on every thread of a team of `team` threads (the runtime
// may give fewer, one inside a parallel region of the caller's), each
// under the calling thread's control word.
template <class Region>
void runTeam(int team, Region&& region) {
    const std::uint32_t cw = ps_get_ssx() & ~kExceptionFlags;
#pragma omp parallel num_threads(team)
    {
        ScopedControlWord environment(cw);
        region();
    }
}

// Calls body(y) for every row 0..rows-1: in order on the calling thread
// for a team of one, otherwise in contiguous blocks, one per thread.
template <class Body>
void forEachRow(std::ptrdiff_t rows, int team, Body&& body) {
    if (team <= 1) {
        for (std::ptrdiff_t y = 0; y < rows; ++y) body(y);
        return;
    }
    runTeam(team, [&] {
#pragma omp for schedule(static)
        for (std::ptrdiff_t y = 0; y < rows; ++y) body(y);
    });
}

// Pieces the work of `rows` rows of `width` elements can be cut into, for
// teamSize.
inline std::int64_t pieceCount(std::ptrdiff_t rows, std::ptrdiff_t width, std::ptrdiff_t grain) {
    const std::ptrdiff_t grains = (width + grain - 1) / grain;
    return rows > kMaxThreads ? rows : rows * std::min<std::ptrdiff_t>(grains, kMaxThreads);
}

// Pieces a row of `width` elements is cut into for a team of `team`.
inline std::ptrdiff_t piecesPerRow(std::ptrdiff_t rows, std::ptrdiff_t width, std::ptrdiff_t grain,
                                   int team) {
    if (team <= 1 || rows >= team) return 1;
    const std::ptrdiff_t grains = (width + grain - 1) / grain;
    return std::max<std::ptrdiff_t>(1, std::min<std::ptrdiff_t>(team, grains));
}

// A rectangle of the work: elements [begin, end) of rows [y0, y1), worked
// by thread `thread` of the team (0 for a team of one), which indexes the
// thread's own scratch.
struct Block {
    std::ptrdiff_t y0, y1, begin, end;
    int thread;
};

// Share i of `total` things dealt into `parts` shares as evenly as they go,
// the first shares taking one more: the start of share i.
inline std::ptrdiff_t shareStart(std::ptrdiff_t total, std::ptrdiff_t parts, std::ptrdiff_t i) {
    return i * (total / parts) + std::min(i, total % parts);
}

// Calls body(block) so that the blocks cover elements [0, width) of every
// row 0..rows-1 exactly once, handing each thread its work in as few
// blocks as possible so that kernels loop over rows themselves. A team of
// one gets the whole image as one block on the calling thread. With at
// least as many rows as threads every thread takes one block of
// contiguous whole rows; with fewer, every row is cut into pieces that
// begin on a multiple of `grain`, and each thread takes its pieces.
template <class Body>
void forEachBlock(std::ptrdiff_t rows, std::ptrdiff_t width, std::ptrdiff_t grain, int team,
                  Body&& body) {
    if (team <= 1) {
        body(Block{0, rows, 0, width, 0});
        return;
    }
    const std::ptrdiff_t pieces = piecesPerRow(rows, width, grain, team);
    const std::ptrdiff_t grains = (width + grain - 1) / grain;
    auto edge = [&](std::ptrdiff_t i) { return std::min(width, shareStart(grains, pieces, i) * grain); };
    runTeam(team, [&] {
        // The team the runtime gave, which may be smaller than asked for.
        const std::ptrdiff_t threads = omp_get_num_threads(), t = omp_get_thread_num();
        const std::ptrdiff_t units = rows * pieces;
        const std::ptrdiff_t first = shareStart(units, threads, t), last = shareStart(units, threads, t + 1);
        if (pieces == 1) {
            if (first < last) body(Block{first, last, 0, width, static_cast<int>(t)});
            return;
        }
        for (std::ptrdiff_t unit = first; unit < last; ++unit) {
            const std::ptrdiff_t y = unit / pieces, i = unit % pieces;
            body(Block{y, y + 1, edge(i), edge(i + 1), static_cast<int>(t)});
        }
    });
}

// Reduction over rows with a thread-count independent result: rows are
// grouped in blocks of kRowsPerSlot, each block accumulates into its own
// slot (accumulate(slot, y)), and the slots are combined in block order
// (combine(total, slot)). Returns false when the slots cannot be allocated.
constexpr int kRowsPerSlot = 16;

template <class Slot, class Accumulate, class Combine>
bool reduceRows(std::ptrdiff_t rows, int team, Slot& total, Accumulate&& accumulate, Combine&& combine) {
    const std::ptrdiff_t blocks = (rows + kRowsPerSlot - 1) / kRowsPerSlot;
    Buffer<Slot> slots = allocBuffer<Slot>(static_cast<std::size_t>(blocks));
    if (!slots) return false;
    for (std::ptrdiff_t b = 0; b < blocks; ++b) new (&slots[b]) Slot{};
    forEachRow(blocks, std::min<std::ptrdiff_t>(team, blocks), [&](std::ptrdiff_t b) {
        const std::ptrdiff_t end = std::min<std::ptrdiff_t>(rows, (b + 1) * kRowsPerSlot);
        for (std::ptrdiff_t y = b * kRowsPerSlot; y < end; ++y) accumulate(slots[b], y);
    });
    for (std::ptrdiff_t b = 0; b < blocks; ++b) combine(total, slots[b]);
    return true;
}

}  // namespace zel
