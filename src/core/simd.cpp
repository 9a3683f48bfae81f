#include "core/simd.h"

namespace zel::simd {

std::vector<std::int64_t> availableTargets() {
    std::vector<std::int64_t> targets;
    const std::int64_t supported = hwy::SupportedTargets() & HWY_TARGETS;
    for (std::int64_t t : {HWY_AVX3, HWY_AVX2, HWY_SSSE3})
        if (supported & t) targets.push_back(t);
    return targets;
}

void forceTarget(std::int64_t target) { hwy::SetSupportedTargetsForTest(target); }

const char* targetName(std::int64_t target) { return hwy::TargetName(target); }

}  // namespace zel::simd
