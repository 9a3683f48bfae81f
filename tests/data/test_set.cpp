#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "moves.h"

namespace {

using namespace zel::test;

#define CHECK_SET(T, t) checkMembers<T>(SET_MEMBERS(T, t));

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
