// The thread setting: the library's only mutable global. It holds the
// thread count and one flag for the tests, which makes every call fork as
// if its work were large, so that small test images run the team paths.
#include <omp.h>

#include <algorithm>
#include <atomic>

#include "core/parallel.h"
#include "zeli.h"

namespace {

constexpr int kEagerFlag = 1 << 30;  // above any thread count

int processors() { return std::clamp(omp_get_num_procs(), 1, zel::kMaxThreads); }

std::atomic<int>& threadSetting() {
    static std::atomic<int> setting{processors()};
    return setting;
}

int flags() { return threadSetting().load(std::memory_order_relaxed) & kEagerFlag; }

}  // namespace

int ownGetNumThreads() { return threadSetting().load(std::memory_order_relaxed) & ~kEagerFlag; }

bool ownForksEagerly() { return flags() != 0; }

void zel::forkEagerlyForTests(bool eager) {
    threadSetting().store(ownGetNumThreads() | (eager ? kEagerFlag : 0), std::memory_order_relaxed);
}

ZelStatus zelSetNumThreads(int n) {
    if (n < 1) return zelStatusBadArgument;
    threadSetting().store(std::min(n, zel::kMaxThreads) | flags(), std::memory_order_relaxed);
    return zelStatusOk;
}

ZelStatus zelGetNumThreads(int* pNumThreads) {
    if (pNumThreads == nullptr) return zelStatusNullPtr;
    *pNumThreads = ownGetNumThreads();
    return zelStatusOk;
}
