// Scalar reference for the channel-moving families (Copy layouts, Dup,
// SwapChannels): each destination channel either takes one source channel
// or keeps what it held.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>
#include <vector>

#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace zel::test {

constexpr int kKept = -1;
constexpr int kFilled = -2;

// Destination channel c takes source channel from[c] (kKept: unchanged,
// kFilled: the fill value).
// The pointers handed over address channel srcOffset / dstOffset of the
// first pixel (non-zero for the channel-of-interest members).
struct ChannelMove {
    int srcChannels, dstChannels;
    int srcOffset, dstOffset;
    std::array<int, 4> from;
    int fill = 0;
};

template <class T>
::testing::AssertionResult movedAsExpected(const ChannelMove& m, const Image<T>& src,
                                           const Image<T>& before, const Image<T>& dst) {
    const ZeliSize roi = dst.size();
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.dstChannels; ++c) {
                const T want = m.from[c] == kKept     ? before.at(x, y, c)
                               : m.from[c] == kFilled ? T(m.fill)
                                                      : src.at(x, y, m.from[c]);
                if (std::memcmp(&want, &dst.row(y)[x * m.dstChannels + c], sizeof(T)) != 0)
                    return ::testing::AssertionFailure() << "pixel " << x << "," << y << " channel " << c;
            }
    return dst.outsideUnchanged();
}

// Calls `run(src, dst)` for every odd size, two ROI offsets and with and
// without row padding (no padding lets contiguous rows collapse), under
// every SIMD target, and compares with the reference.
template <class T, class Run>
void checkMove(const char* name, const ChannelMove& m, Run&& run) {
    forEachConfig([&] {
        for (ZeliSize roi : oddSizes())
            for (int offset : {0, 3 * int(sizeof(T))})
                for (int guard : {0, 9 * int(sizeof(T))}) {
                    SCOPED_TRACE(testing::Message() << name << " " << roi.width << "x" << roi.height
                                                    << " offset " << offset << " guard " << guard);
                    Image<T> src(roi, m.srcChannels, -1, offset, guard, 2);
                    Image<T> dst(roi, m.dstChannels, -1, offset + int(sizeof(T)), guard, 3);
                    const Image<T> before = dst;
                    ASSERT_EQ(run(src, dst), zelStatusOk);
                    ASSERT_TRUE(movedAsExpected(m, src, before, dst));
                }
    });
}

// A mask with about half of its bytes zero and the others random non-zero.
inline Image<Zel8u> randomMask(ZeliSize roi, std::uint32_t seed) {
    Image<Zel8u> mask(roi, 1, -1, 1, 7, seed);
    std::mt19937 rng(seed);
    mask.fill([&](int, int, int) { return rng() % 2 ? Zel8u(0) : Zel8u(1 + rng() % 255); });
    return mask;
}

// Masked members: where the mask byte is non-zero, the first `written` of
// the `channels` channels become want(src, x, y, c); everything else stays.
// run(src, dst, mask) calls the member; src is a random image of the same
// shape (a fill ignores it).
template <class T, class Run, class Want>
void checkMasked(int channels, int written, Run&& run, Want&& want) {
    forEachConfig([&] {
        for (ZeliSize roi : oddSizes()) {
            SCOPED_TRACE(testing::Message() << channels << "/" << written << " channels " << roi.width
                                            << "x" << roi.height);
            const Image<T> src(roi, channels, -1, sizeof(T), 5 * sizeof(T), 2);
            Image<T> dst(roi, channels, -1, 0, 7 * sizeof(T), 3);
            const Image<Zel8u> mask = randomMask(roi, 4);
            const Image<T> before = dst;
            ASSERT_EQ(run(src, dst, mask), zelStatusOk);
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x)
                    for (int c = 0; c < channels; ++c) {
                        const bool taken = mask.at(x, y) != 0 && c < written;
                        ASSERT_EQ(dst.at(x, y, c), taken ? want(src, x, y, c) : before.at(x, y, c))
                            << x << "," << y << "," << c;
                    }
            ASSERT_TRUE(dst.outsideUnchanged());
        }
    });
}

}  // namespace zel::test
