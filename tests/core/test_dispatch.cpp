#include <gtest/gtest.h>

#include "core/simd.h"
#include "harness/sweep.h"

namespace {

TEST(Dispatch, ForcingATargetSwitchesTheChoice) {
    zel::test::ConfigGuard restore;
    const auto targets = zel::simd::availableTargets();
    ASSERT_FALSE(targets.empty());
    EXPECT_EQ(targets.back(), HWY_SSSE3);
    for (std::int64_t t : targets) {
        zel::simd::forceTarget(t);
        EXPECT_EQ(zel::simd::chosenIndex(), zel::simd::indexOf(t)) << zel::simd::targetName(t);
    }
}

}  // namespace
