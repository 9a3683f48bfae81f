// Runs a check under every SIMD target this CPU has and with one thread
// and with several, so vector and threaded paths meet the scalar reference.
// With several threads every call forks as far as its work can be cut,
// however small the test image (the fork rule would keep it on one thread).
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/parallel.h"
#include "core/simd.h"
#include "zeli.h"

namespace zel::test {

// Restores the thread setting, the fork rule and the dispatch choice when
// it goes.
class ConfigGuard {
public:
    ConfigGuard() { zelGetNumThreads(&threads_); }
    ~ConfigGuard() {
        zelSetNumThreads(threads_);
        forkEagerlyForTests(false);
        simd::forceTarget(0);
    }

private:
    int threads_ = 1;
};

template <class F>
void forEachConfig(F&& check) {
    ConfigGuard restore;
    for (std::int64_t target : simd::availableTargets()) {
        simd::forceTarget(target);
        for (int threads : {1, 4}) {
            zelSetNumThreads(threads);
            forkEagerlyForTests(threads > 1);
            SCOPED_TRACE(std::string(simd::targetName(target)) + ", " + std::to_string(threads) +
                         " thread(s)");
            check();
        }
    }
}

}  // namespace zel::test
