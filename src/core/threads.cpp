// The thread setting: the library's only mutable global.
#include <omp.h>

#include <algorithm>
#include <atomic>

#include "core/parallel.h"
#include "zeli.h"

namespace {

int processors() { return std::clamp(omp_get_num_procs(), 1, zel::kMaxThreads); }

std::atomic<int>& threadSetting() {
    static std::atomic<int> setting{processors()};
    return setting;
}

}  // namespace

int ownGetNumThreads() { return threadSetting().load(std::memory_order_relaxed); }

ZelStatus zelSetNumThreads(int n) {
    if (n < 1) return zelStatusBadArgument;
    threadSetting().store(std::min(n, zel::kMaxThreads), std::memory_order_relaxed);
    return zelStatusOk;
}

ZelStatus zelGetNumThreads(int* pNumThreads) {
    if (pNumThreads == nullptr) return zelStatusNullPtr;
    *pNumThreads = ownGetNumThreads();
    return zelStatusOk;
}
