#include <gtest/gtest.h>

#include <algorithm>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "moves.h"
#include "zeli.h"

namespace {

using zel::test::Image;

// One Set member under test: its channel count, the channels it writes and
// a uniform way to call it with an array of values.
template <class T>
struct SetMember {
    const char* name;
    int channels, written;
    ZelStatus (*call)(const T* value, T* dst, int step, ZeliSize roi);
};

template <class T, ZelStatus (*F)(T, T*, int, ZeliSize)>
ZelStatus scalarSet(const T* value, T* dst, int step, ZeliSize roi) {
    return F(*value, dst, step, roi);
}

#define SET_MEMBERS(T, t)                                                  \
    std::vector<SetMember<T>> {                                            \
        {"C1", 1, 1, scalarSet<T, zeliSet_##t##_C1R>},                      \
        {"C3", 3, 3, zeliSet_##t##_C3R}, {"C4", 4, 4, zeliSet_##t##_C4R},   \
        {"AC4", 4, 3, zeliSet_##t##_AC4R},                                  \
    }

template <class T>
void checkSetMembers(const std::vector<SetMember<T>>& members) {
    const T value[4] = {T(1), T(-2), T(3), T(-4)};
    zel::test::forEachConfig([&] {
        for (const auto& m : members)
            for (ZeliSize roi : zel::test::oddSizes())
                for (int offset : {0, int(sizeof(T)), 7 * int(sizeof(T))}) {
                    SCOPED_TRACE(testing::Message() << m.name << " " << roi.width << "x" << roi.height
                                                    << " offset " << offset);
                    Image<T> dst(roi, m.channels, m.written, offset);
                    ASSERT_EQ(m.call(value, dst.roi(), dst.step(), roi), zelStatusOk);
                    for (int y = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x)
                            for (int c = 0; c < m.written; ++c) ASSERT_EQ(dst.at(x, y, c), value[c]);
                    ASSERT_TRUE(dst.outsideUnchanged());
                }
    });
}

TEST(Set, EveryMemberFillsExactlyTheRoi) {
    checkSetMembers(SET_MEMBERS(Zel8u, 8u));
    checkSetMembers(SET_MEMBERS(Zel16u, 16u));
    checkSetMembers(SET_MEMBERS(Zel16s, 16s));
    checkSetMembers(SET_MEMBERS(Zel32s, 32s));
    checkSetMembers(SET_MEMBERS(Zel32f, 32f));
}

TEST(Set, ContiguousAndStreamedFillsMatch) {
    // Large enough to stream (above 4 MiB and half the largest cache); a
    // step equal to the row length collapses the rows into one.
    int cache = 0;
    ASSERT_EQ(zelGetMaxCacheSizeB(&cache), zelStatusOk);
    const int height = std::max(600, cache / 2 / (2600 * 3) + 1);
    const Zel8u value[3] = {9, 8, 7};
    for (int pad : {0, 5}) {
        const ZeliSize roi{2600, height};
        const int step = roi.width * 3 + pad;
        std::vector<Zel8u> buffer(std::size_t(step) * roi.height + 1, 0);
        ASSERT_EQ(zeliSet_8u_C3R(value, buffer.data() + 1, step, roi), zelStatusOk);
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width * 3; ++x)
                ASSERT_EQ(buffer[1 + std::size_t(y) * step + x], value[x % 3]) << x << "," << y;
        EXPECT_EQ(buffer[0], 0);
    }
}

TEST(Set, NegativeStepWalksUpwards) {
    Image<Zel16s> dst({5, 4}, 1);
    ASSERT_EQ(zeliSet_16s_C1R(42, dst.row(3), -dst.step(), {5, 4}), zelStatusOk);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(dst.at(x, y), 42);
    EXPECT_TRUE(dst.outsideUnchanged());
}

TEST(Set, ChecksNullThenSizeButNoStep) {
    Image<Zel8u> dst({4, 4}, 4);
    const Zel8u v[4] = {1, 2, 3, 4};
    zel::test::expectRejected(
        {
            {"null dst", zelStatusNullPtr, [&] { return zeliSet_8u_C1R(1, nullptr, 4, {4, 4}); }},
            {"null value", zelStatusNullPtr, [&] { return zeliSet_8u_C4R(nullptr, dst.roi(), 16, {4, 4}); }},
            {"null before size", zelStatusNullPtr, [&] { return zeliSet_8u_AC4R(v, nullptr, 16, {0, 4}); }},
            {"zero width", zelStatusBadSize, [&] { return zeliSet_8u_C4R(v, dst.roi(), 0, {0, 4}); }},
            {"zero height", zelStatusBadSize, [&] { return zeliSet_8u_C3R(v, dst.roi(), 16, {4, 0}); }},
        },
        dst);
    EXPECT_EQ(zeliSet_8u_C4R(v, dst.roi(), dst.step(), {1, 1}), zelStatusOk);
}

}  // namespace

namespace {

template <class T>
using MaskedSetFn = ZelStatus (*)(const T*, T*, int, ZeliSize, const Zel8u*, int);

template <class T, ZelStatus (*F)(T, T*, int, ZeliSize, const Zel8u*, int)>
ZelStatus scalarMaskedSet(const T* value, T* dst, int step, ZeliSize roi, const Zel8u* mask, int maskStep) {
    return F(*value, dst, step, roi, mask, maskStep);
}

struct MaskedShape {
    int channels, written;
};

#define MASKED_SET_MEMBERS(T, t)                                                   \
    std::vector<std::pair<MaskedShape, MaskedSetFn<T>>> {                          \
        {{1, 1}, scalarMaskedSet<T, zeliSet_##t##_C1MR>}, {{3, 3}, zeliSet_##t##_C3MR}, \
            {{4, 4}, zeliSet_##t##_C4MR}, {{4, 3}, zeliSet_##t##_AC4MR},            \
    }

template <class T>
void checkMaskedSet(const std::vector<std::pair<MaskedShape, MaskedSetFn<T>>>& members) {
    const T value[4] = {T(7), T(-3), T(100), T(-1)};
    for (const auto& [shape, call] : members)
        zel::test::checkMasked<T>(
            shape.channels, shape.written,
            [&, call = call](const Image<T>&, Image<T>& dst, const Image<Zel8u>& mask) {
                return call(value, dst.roi(), dst.step(), dst.size(), mask.roi(), mask.step());
            },
            [&](const Image<T>&, int, int, int c) { return value[c]; });
}

TEST(Set, MaskedMembersFillOnlySelectedPixels) {
    checkMaskedSet(MASKED_SET_MEMBERS(Zel8u, 8u));
    checkMaskedSet(MASKED_SET_MEMBERS(Zel16u, 16u));
    checkMaskedSet(MASKED_SET_MEMBERS(Zel16s, 16s));
    checkMaskedSet(MASKED_SET_MEMBERS(Zel32s, 32s));
    checkMaskedSet(MASKED_SET_MEMBERS(Zel32f, 32f));
}

// The channel of interest is the one the pointer addresses; the last
// channel of the last pixel ends the caller's row.
template <class T>
void checkChannelSet(ZelStatus (*c3)(T, T*, int, ZeliSize), ZelStatus (*c4)(T, T*, int, ZeliSize)) {
    zel::test::forEachConfig([&] {
        for (const auto& [channels, call] : {std::make_pair(3, c3), std::make_pair(4, c4)})
            for (int channel = 0; channel < channels; ++channel)
                for (ZeliSize roi : zel::test::oddSizes()) {
                    SCOPED_TRACE(testing::Message() << "C" << channels << " channel " << channel << " "
                                                    << roi.width << "x" << roi.height);
                    Image<T> dst(roi, channels, -1, 0, 0, 3);
                    const Image<T> before = dst;
                    ASSERT_EQ(call(T(-5), dst.roi() + channel, dst.step(), roi), zelStatusOk);
                    for (int y = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x)
                            for (int c = 0; c < channels; ++c)
                                ASSERT_EQ(dst.at(x, y, c), c == channel ? T(-5) : before.at(x, y, c));
                    ASSERT_TRUE(dst.outsideUnchanged());
                }
    });
}

TEST(Set, ChannelOfInterestMembersTouchOneChannel) {
    checkChannelSet<Zel8u>(zeliSet_8u_C3CR, zeliSet_8u_C4CR);
    checkChannelSet<Zel16u>(zeliSet_16u_C3CR, zeliSet_16u_C4CR);
    checkChannelSet<Zel16s>(zeliSet_16s_C3CR, zeliSet_16s_C4CR);
    checkChannelSet<Zel32s>(zeliSet_32s_C3CR, zeliSet_32s_C4CR);
    checkChannelSet<Zel32f>(zeliSet_32f_C3CR, zeliSet_32f_C4CR);
}

TEST(Set, MaskedAndChannelMembersCheckNullThenSize) {
    Image<Zel32s> dst({4, 4}, 4);
    Image<Zel8u> mask({4, 4}, 1);
    const Zel32s v[4] = {1, 2, 3, 4};
    zel::test::expectRejected(
        {
            {"null mask", zelStatusNullPtr,
             [&] { return zeliSet_32s_C3MR(v, dst.roi(), 16, {4, 4}, nullptr, 4); }},
            {"null value", zelStatusNullPtr,
             [&] { return zeliSet_32s_AC4MR(nullptr, dst.roi(), 16, {0, 4}, mask.roi(), 4); }},
            {"masked size", zelStatusBadSize,
             [&] { return zeliSet_32s_C1MR(1, dst.roi(), 0, {4, 0}, mask.roi(), 0); }},
            {"channel null", zelStatusNullPtr, [&] { return zeliSet_32s_C4CR(1, nullptr, 16, {0, 0}); }},
            {"channel size", zelStatusBadSize, [&] { return zeliSet_32s_C3CR(1, dst.roi(), -3, {-2, 4}); }},
        },
        dst, mask);
}

}  // namespace
