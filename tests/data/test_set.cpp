#include <gtest/gtest.h>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
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
    // 2600 x 600 x 3 bytes is above the streaming threshold; a step equal to
    // the row length collapses the rows into one.
    const Zel8u value[3] = {9, 8, 7};
    for (int pad : {0, 5}) {
        const ZeliSize roi{2600, 600};
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
