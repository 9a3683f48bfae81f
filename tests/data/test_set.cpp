#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "moves.h"

namespace {

using namespace zel::test;

constexpr std::array<int, 4> kValues = {7, -3, 100, -1};

// The channel-of-interest members (one value, so all four alike) write the
// channel the pointer addresses.
constexpr std::array<int, 4> kSame = {-5, -5, -5, -5};

#define CHECK_SET(T, t)                                                                 \
    checkMembers<T>({                                                                   \
        {"C1R", {1, 1, 0, 0, {F}, kValues}, run<T>(zeliSet_##t##_C1R)},                 \
        {"C3R", {1, 3, 0, 0, {F, F, F}, kValues}, run<T>(zeliSet_##t##_C3R)},           \
        {"C4R", {1, 4, 0, 0, {F, F, F, F}, kValues}, run<T>(zeliSet_##t##_C4R)},        \
        {"AC4R", {1, 4, 0, 0, {F, F, F, K}, kValues}, run<T>(zeliSet_##t##_AC4R)},      \
        {"C1MR", {1, 1, 0, 0, {F}, kValues, M}, run<T>(zeliSet_##t##_C1MR)},            \
        {"C3MR", {1, 3, 0, 0, {F, F, F}, kValues, M}, run<T>(zeliSet_##t##_C3MR)},      \
        {"C4MR", {1, 4, 0, 0, {F, F, F, F}, kValues, M}, run<T>(zeliSet_##t##_C4MR)},   \
        {"AC4MR", {1, 4, 0, 0, {F, F, F, K}, kValues, M}, run<T>(zeliSet_##t##_AC4MR)}, \
        {"C3CR 0", {1, 3, 0, 0, {F, K, K}, kSame}, run<T>(zeliSet_##t##_C3CR)},         \
        {"C3CR 1", {1, 3, 0, 1, {K, F, K}, kSame}, run<T>(zeliSet_##t##_C3CR)},         \
        {"C3CR 2", {1, 3, 0, 2, {K, K, F}, kSame}, run<T>(zeliSet_##t##_C3CR)},         \
        {"C4CR 0", {1, 4, 0, 0, {F, K, K, K}, kSame}, run<T>(zeliSet_##t##_C4CR)},      \
        {"C4CR 1", {1, 4, 0, 1, {K, F, K, K}, kSame}, run<T>(zeliSet_##t##_C4CR)},      \
        {"C4CR 2", {1, 4, 0, 2, {K, K, F, K}, kSame}, run<T>(zeliSet_##t##_C4CR)},      \
        {"C4CR 3", {1, 4, 0, 3, {K, K, K, F}, kSame}, run<T>(zeliSet_##t##_C4CR)},      \
    });

TEST(Set, EveryMemberMatchesTheReference) { FOR_EACH_TYPE(CHECK_SET) }

// Large enough to stream (above 4 MiB and half the largest cache), with
// contiguous rows (collapsed into one) and padded rows.
TEST(Set, StreamedFillsMatch) {
    int cache = 0;
    ASSERT_EQ(zelGetMaxCacheSizeB(&cache), zelStatusOk);
    const ZeliSize roi{2600, std::max(600, cache / 2 / (2600 * 3) + 1)};
    const Zel8u value[3] = {9, 8, 7};
    for (int pad : {0, 5}) {
        const int step = roi.width * 3 + pad;
        std::vector<Zel8u> buffer(std::size_t(step) * roi.height + 1, 0);
        ASSERT_EQ(zeliSet_8u_C3R(value, buffer.data() + 1, step, roi), zelStatusOk);
        EXPECT_EQ(buffer[0], 0);
        for (std::size_t i = 1; i < buffer.size(); ++i) {  // the padding stays zero
            const int x = int((i - 1) % step);
            ASSERT_EQ(buffer[i], x < roi.width * 3 ? value[x % 3] : 0) << i;
        }
    }
}

}  // namespace
