#include <gtest/gtest.h>

#include <vector>

#include "harness/checkorder.h"
#include "moves.h"

namespace {

using zel::test::ChannelMove;
using zel::test::Image;
using zel::test::kFilled;
using zel::test::kKept;

constexpr int K = kKept;

template <class T>
using SwapFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize, const int*);

// Orders with permutations, repeated channels and (for 4-channel sources)
// the fourth channel.
template <class T>
void checkSwapMembers(SwapFn<T> c3, SwapFn<T> ac4, SwapFn<T> c4c3) {
    const std::vector<std::array<int, 3>> orders3 = {{2, 1, 0}, {1, 2, 0}, {0, 0, 2}};
    const std::vector<std::array<int, 3>> orders4 = {{3, 2, 1}, {0, 3, 3}, {2, 0, 1}};
    auto run = [](SwapFn<T> f, const std::array<int, 3>& order) {
        return [f, order](Image<T>& src, Image<T>& dst) {
            return f(src.roi(), src.step(), dst.roi(), dst.step(), dst.size(), order.data());
        };
    };
    for (const auto& o : orders3) {
        zel::test::checkMove<T>("C3R", {3, 3, 0, 0, {o[0], o[1], o[2]}}, run(c3, o));
        zel::test::checkMove<T>("AC4R", {4, 4, 0, 0, {o[0], o[1], o[2], K}}, run(ac4, o));
    }
    for (const auto& o : orders4) zel::test::checkMove<T>("C4C3R", {4, 3, 0, 0, {o[0], o[1], o[2]}}, run(c4c3, o));
}

#define CHECK_SWAP(t) \
    checkSwapMembers<Zel##t>(zeliSwapChannels_##t##_C3R, zeliSwapChannels_##t##_AC4R, zeliSwapChannels_##t##_C4C3R)

TEST(SwapChannels, OutOfPlaceMembersMatchTheReference) {
    CHECK_SWAP(8u);
    CHECK_SWAP(16u);
    CHECK_SWAP(16s);
    CHECK_SWAP(32s);
    CHECK_SWAP(32f);
}

// C3C4R entries: 0..2 a source channel, 3 the fill value (8u) or kept
// (other types, which have no fill value), anything else kept.
template <class T, class Call>
void checkThreeToFour(Call call, bool hasFill) {
    const int fill = hasFill ? 255 : 0;
    const int filled = hasFill ? kFilled : K;
    struct Case {
        std::array<int, 4> order;
        std::array<int, 4> from;
    };
    const Case cases[] = {
        {{2, 1, 0, 3}, {2, 1, 0, filled}},  // reversed channels, opaque alpha
        {{0, 1, 2, 4}, {0, 1, 2, K}},       // alpha left as it was
        {{5, 3, 0, 2}, {K, filled, 0, 2}},  // large entries accepted anywhere
        {{1, 1, 1, -7}, {1, 1, 1, K}},      // the fourth entry is not checked
    };
    for (const Case& c : cases)
        zel::test::checkMove<T>("C3C4R", {3, 4, 0, 0, c.from, fill}, [&](Image<T>& src, Image<T>& dst) {
            return call(src.roi(), src.step(), dst.roi(), dst.step(), dst.size(), c.order.data());
        });
}

TEST(SwapChannels, ThreeToFourFillsOrKeeps) {
    checkThreeToFour<Zel8u>(
        [](const Zel8u* s, int ss, Zel8u* d, int ds, ZeliSize r, const int* o) {
            return zeliSwapChannels_8u_C3C4R(s, ss, d, ds, r, o, 255);
        },
        true);
    checkThreeToFour<Zel16u>(zeliSwapChannels_16u_C3C4R, false);
    checkThreeToFour<Zel16s>(zeliSwapChannels_16s_C3C4R, false);
    checkThreeToFour<Zel32s>(zeliSwapChannels_32s_C3C4R, false);
    checkThreeToFour<Zel32f>(zeliSwapChannels_32f_C3C4R, false);
}

TEST(SwapChannels, InPlaceMembersMatchTheReference) {
    const std::array<int, 4> orders[] = {{2, 1, 0, 3}, {3, 0, 0, 1}, {1, 2, 3, 0}};
    for (const auto& o : orders) {
        const int n3 = o[0] % 3, n4 = o[1] % 3, n5 = o[2] % 3;
        const std::array<int, 3> o3 = {n3, n4, n5};
        // The lambda runs in place on a copy of the source.
        zel::test::checkMove<Zel8u>("C3IR", {3, 3, 0, 0, {n3, n4, n5}}, [&](Image<Zel8u>& src, Image<Zel8u>& dst) {
            dst = src;
            return zeliSwapChannels_8u_C3IR(dst.roi(), dst.step(), dst.size(), o3.data());
        });
        zel::test::checkMove<Zel8u>("C4IR", {4, 4, 0, 0, o}, [&](Image<Zel8u>& src, Image<Zel8u>& dst) {
            dst = src;
            return zeliSwapChannels_8u_C4IR(dst.roi(), dst.step(), dst.size(), o.data());
        });
    }
}

TEST(SwapChannels, CheckOrdersOfEachMember) {
    const ZeliSize roi{4, 4};
    Image<Zel8u> src(roi, 4), dst(roi, 4);
    const int s = src.step();
    const int good[4] = {2, 1, 0, 3}, bad3[4] = {0, 3, 1, 0}, bad4[4] = {0, 1, 4, 0};
    const int negative[4] = {0, -1, 1, 0};
    Zel8u* d = dst.roi();
    const Zel8u* p = src.roi();
    zel::test::expectRejected(
        {
            // C3R, AC4R, C3IR: null, size, step, entries.
            {"C3R null order", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C3R(p, s, d, s, {0, 0}, nullptr); }},
            {"C3R size before step", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C3R(p, 0, d, 0, {0, 4}, bad3); }},
            {"C3R step before entries", zelStatusBadStep, [&] { return zeliSwapChannels_8u_C3R(p, 0, d, s, roi, bad3); }},
            {"C3R entry 3", zelStatusBadChannelOrder, [&] { return zeliSwapChannels_8u_C3R(p, s, d, s, roi, bad3); }},
            {"AC4R negative dst step", zelStatusBadStep,
             [&] { return zeliSwapChannels_16u_AC4R(reinterpret_cast<const Zel16u*>(p), s,
                                                    reinterpret_cast<Zel16u*>(d), -s, {2, 4}, good); }},
            {"AC4R entry 3", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_32f_AC4R(reinterpret_cast<const Zel32f*>(p), s,
                                                    reinterpret_cast<Zel32f*>(d), s, {1, 4}, bad3); }},
            {"C3IR null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C3IR(nullptr, 0, {0, 0}, good); }},
            {"C3IR size before step", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C3IR(d, 0, {4, 0}, good); }},
            {"C3IR step", zelStatusBadStep, [&] { return zeliSwapChannels_8u_C3IR(d, 0, roi, bad3); }},
            {"C3IR entry", zelStatusBadChannelOrder, [&] { return zeliSwapChannels_8u_C3IR(d, s, roi, negative); }},
            // C4IR: step before size.
            {"C4IR null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C4IR(d, 0, {0, 0}, nullptr); }},
            {"C4IR step before size", zelStatusBadStep, [&] { return zeliSwapChannels_8u_C4IR(d, 0, {0, 4}, bad4); }},
            {"C4IR size before entries", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C4IR(d, s, {4, 0}, bad4); }},
            {"C4IR entry 4", zelStatusBadChannelOrder, [&] { return zeliSwapChannels_8u_C4IR(d, s, roi, bad4); }},
            // C4C3R: no step check.
            {"C4C3R null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C4C3R(p, s, nullptr, s, roi, good); }},
            {"C4C3R size", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C4C3R(p, 0, d, 0, {-1, 4}, bad4); }},
            {"C4C3R entries, steps unchecked", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_8u_C4C3R(p, 0, d, 0, roi, bad4); }},
            {"C4C3R negative entry", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_8u_C4C3R(p, s, d, s, roi, negative); }},
            // C3C4R: only negative first-three entries are refused.
            {"C3C4R null", zelStatusNullPtr, [&] { return zeliSwapChannels_8u_C3C4R(nullptr, s, d, s, roi, good, 0); }},
            {"C3C4R size", zelStatusBadSize, [&] { return zeliSwapChannels_8u_C3C4R(p, s, d, s, {4, 0}, negative, 0); }},
            {"C3C4R negative entry", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_8u_C3C4R(p, 0, d, 0, roi, negative, 0); }},
            {"C3C4R 16s negative entry", zelStatusBadChannelOrder,
             [&] { return zeliSwapChannels_16s_C3C4R(reinterpret_cast<const Zel16s*>(p), s,
                                                     reinterpret_cast<Zel16s*>(d), s, {2, 4}, negative); }},
        },
        dst);
    // Steps are not checked by C4C3R and C3C4R: one row goes through.
    const int wide[4] = {0, 1, 2, -3};
    EXPECT_EQ(zeliSwapChannels_8u_C4C3R(p, 0, d, 0, {4, 1}, good), zelStatusOk);
    EXPECT_EQ(zeliSwapChannels_8u_C3C4R(p, 0, d, -1, {1, 1}, wide, 9), zelStatusOk);
    EXPECT_EQ(zeliSwapChannels_8u_C3C4R(p, s, d, s, roi, bad4, 9), zelStatusOk);
}

}  // namespace
