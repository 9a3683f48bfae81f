#include <gtest/gtest.h>

#include "moves.h"

namespace {

using namespace zel::test;

#define CHECK_SWAP(T, t) checkMembers<T>(SWAP_MEMBERS(T, t));

// In-place members, Dup and CopyManaged run in the Copy test.
TEST(SwapChannels, EveryMemberMatchesTheReference) { FOR_EACH_TYPE(CHECK_SWAP) }

}  // namespace
