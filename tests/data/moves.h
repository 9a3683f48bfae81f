// Scalar reference for the channel-moving families (Copy, Dup, Set,
// SwapChannels): each destination channel takes one source channel, a fill
// value or keeps what it held; masked members move only where the mask is set.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

// Runs CHECK(type, suffix) for every element type of the data families.
#define FOR_EACH_TYPE(CHECK) \
    CHECK(Zel8u, 8u) CHECK(Zel16u, 16u) CHECK(Zel16s, 16s) CHECK(Zel32s, 32s) CHECK(Zel32f, 32f)

namespace zel::test {

constexpr int kKept = -1;
constexpr int kFilled = -2;

// Plain call, call under a mask, or call in place on a copy of the source.
enum class Mode { plain, masked, inPlace };

// Short names for the member tables.
constexpr int K = kKept, F = kFilled;
constexpr Mode M = Mode::masked;

// Destination channel c takes source channel from[c] (kKept: unchanged,
// kFilled: fill[c]). The pointers handed over address channel srcOffset /
// dstOffset of the first pixel (non-zero for the channel-of-interest members).
struct ChannelMove {
    int srcChannels, dstChannels, srcOffset, dstOffset;
    std::array<int, 4> from;
    std::array<int, 4> fill{};
    Mode mode = Mode::plain;
};

// What a member is called with: `values` is the fill as T (Set's value),
// `order` SwapChannels' order.
template <class T>
struct Args {
    const T* src; int srcStep;
    T* dst; int dstStep;
    ZeliSize roi;
    const Zel8u* mask; int maskStep;
    const T* values; const int* order;
};

// `stepsChecked`: the member refuses negative steps, so it is not run upwards.
template <class T>
struct Member {
    std::string name;
    ChannelMove move;
    std::function<ZelStatus(const Args<T>&)> call;
    std::array<int, 4> order{};
    bool stepsChecked = false;
};

template <class Fn, class... A>
constexpr bool takes = std::is_invocable_v<Fn, A...>;

// Calls an exported member of Copy, Dup, Set or SwapChannels with Args.
template <class T, class Fn>
std::function<ZelStatus(const Args<T>&)> run(Fn f) {
    using P = const T*;
    using Mp = const Zel8u*;
    using O = const int*;
    return [f](const Args<T>& a) {
        if constexpr (takes<Fn, P, int, T*, int, ZeliSize>) return f(a.src, a.srcStep, a.dst, a.dstStep, a.roi);
        else if constexpr (takes<Fn, P, int, T*, int, ZeliSize, Mp, int>)
            return f(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.mask, a.maskStep);
        else if constexpr (takes<Fn, P, int, T*, int, ZeliSize, O>)
            return f(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.order);
        else if constexpr (takes<Fn, P, int, T*, int, ZeliSize, O, T>)  // C3C4R with a fill value
            return f(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.order, a.values[0]);
        else if constexpr (takes<Fn, T*, int, ZeliSize, O>) return f(a.dst, a.dstStep, a.roi, a.order);  // in place
        else if constexpr (takes<Fn, P, T*, int, ZeliSize>) return f(a.values, a.dst, a.dstStep, a.roi);
        else if constexpr (takes<Fn, P, T*, int, ZeliSize, Mp, int>)
            return f(a.values, a.dst, a.dstStep, a.roi, a.mask, a.maskStep);
        else if constexpr (takes<Fn, T, T*, int, ZeliSize>) return f(a.values[0], a.dst, a.dstStep, a.roi);
        else return f(a.values[0], a.dst, a.dstStep, a.roi, a.mask, a.maskStep);
    };
}

// The member tables of the channel-moving families, shared by every test
// that walks them. The channel-of-interest members address a middle or
// last channel so that both the channels before and after the pointer
// are someone else's.
#define COPY_MEMBERS(T, t)                                                          \
    std::vector<Member<T>> {                                                        \
        {"C1R", {1, 1, 0, 0, {0}}, run<T>(zeliCopy_##t##_C1R)},                     \
        {"C3R", {3, 3, 0, 0, {0, 1, 2}}, run<T>(zeliCopy_##t##_C3R)},               \
        {"C4R", {4, 4, 0, 0, {0, 1, 2, 3}}, run<T>(zeliCopy_##t##_C4R)},            \
        {"AC4R", {4, 4, 0, 0, {0, 1, 2, K}}, run<T>(zeliCopy_##t##_AC4R)},          \
        {"C1C3R", {1, 3, 0, 2, {K, K, 0}}, run<T>(zeliCopy_##t##_C1C3R)},           \
        {"C1C4R", {1, 4, 0, 1, {K, 0, K, K}}, run<T>(zeliCopy_##t##_C1C4R)},        \
        {"C3C1R", {3, 1, 2, 0, {2}}, run<T>(zeliCopy_##t##_C3C1R)},                 \
        {"C4C1R", {4, 1, 3, 0, {3}}, run<T>(zeliCopy_##t##_C4C1R)},                 \
        {"C3C1R first", {3, 1, 0, 0, {0}}, run<T>(zeliCopy_##t##_C3C1R)},           \
        {"C4C1R second", {4, 1, 1, 0, {1}}, run<T>(zeliCopy_##t##_C4C1R)},          \
        {"C3CR", {3, 3, 1, 1, {K, 1, K}}, run<T>(zeliCopy_##t##_C3CR)},             \
        {"C4CR", {4, 4, 3, 3, {K, K, K, 3}}, run<T>(zeliCopy_##t##_C4CR)},          \
        {"C4CR first", {4, 4, 0, 0, {0, K, K, K}}, run<T>(zeliCopy_##t##_C4CR)},    \
        {"C3AC4R", {3, 4, 0, 0, {0, 1, 2, K}}, run<T>(zeliCopy_##t##_C3AC4R)},      \
        {"AC4C3R", {4, 3, 0, 0, {0, 1, 2}}, run<T>(zeliCopy_##t##_AC4C3R)},         \
        {"C1MR", {1, 1, 0, 0, {0}, {}, M}, run<T>(zeliCopy_##t##_C1MR)},            \
        {"C3MR", {3, 3, 0, 0, {0, 1, 2}, {}, M}, run<T>(zeliCopy_##t##_C3MR)},      \
        {"C4MR", {4, 4, 0, 0, {0, 1, 2, 3}, {}, M}, run<T>(zeliCopy_##t##_C4MR)},   \
        {"AC4MR", {4, 4, 0, 0, {0, 1, 2, K}, {}, M}, run<T>(zeliCopy_##t##_AC4MR)}, \
    }

constexpr std::array<int, 4> kSetValues = {7, -3, 100, -1};
// The channel-of-interest members (one value, so all four alike) write the
// channel the pointer addresses.
constexpr std::array<int, 4> kSetSame = {-5, -5, -5, -5};

#define SET_MEMBERS(T, t)                                                                  \
    std::vector<Member<T>> {                                                               \
        {"C1R", {1, 1, 0, 0, {F}, kSetValues}, run<T>(zeliSet_##t##_C1R)},                 \
        {"C3R", {1, 3, 0, 0, {F, F, F}, kSetValues}, run<T>(zeliSet_##t##_C3R)},           \
        {"C4R", {1, 4, 0, 0, {F, F, F, F}, kSetValues}, run<T>(zeliSet_##t##_C4R)},        \
        {"AC4R", {1, 4, 0, 0, {F, F, F, K}, kSetValues}, run<T>(zeliSet_##t##_AC4R)},      \
        {"C1MR", {1, 1, 0, 0, {F}, kSetValues, M}, run<T>(zeliSet_##t##_C1MR)},            \
        {"C3MR", {1, 3, 0, 0, {F, F, F}, kSetValues, M}, run<T>(zeliSet_##t##_C3MR)},      \
        {"C4MR", {1, 4, 0, 0, {F, F, F, F}, kSetValues, M}, run<T>(zeliSet_##t##_C4MR)},   \
        {"AC4MR", {1, 4, 0, 0, {F, F, F, K}, kSetValues, M}, run<T>(zeliSet_##t##_AC4MR)}, \
        {"C3CR 0", {1, 3, 0, 0, {F, K, K}, kSetSame}, run<T>(zeliSet_##t##_C3CR)},         \
        {"C3CR 1", {1, 3, 0, 1, {K, F, K}, kSetSame}, run<T>(zeliSet_##t##_C3CR)},         \
        {"C3CR 2", {1, 3, 0, 2, {K, K, F}, kSetSame}, run<T>(zeliSet_##t##_C3CR)},         \
        {"C4CR 0", {1, 4, 0, 0, {F, K, K, K}, kSetSame}, run<T>(zeliSet_##t##_C4CR)},      \
        {"C4CR 1", {1, 4, 0, 1, {K, F, K, K}, kSetSame}, run<T>(zeliSet_##t##_C4CR)},      \
        {"C4CR 2", {1, 4, 0, 2, {K, K, F, K}, kSetSame}, run<T>(zeliSet_##t##_C4CR)},      \
        {"C4CR 3", {1, 4, 0, 3, {K, K, K, F}, kSetSame}, run<T>(zeliSet_##t##_C4CR)},      \
    }

// SwapChannels orders with permutations, repeated channels and (for
// 4-channel sources) the fourth channel. C3C4R entries: 0..2 a source
// channel, 3 the fill value (8u, which gets 255) or kept (other types, which
// have no fill value), anything else kept.
template <class T, class Fn, class ThreeToFour>
std::vector<Member<T>> swapMembers(Fn c3, Fn ac4, Fn c4c3, ThreeToFour c3c4) {
    using Order = std::array<int, 4>;
    std::vector<Member<T>> members;
    for (Order o : {Order{2, 1, 0}, Order{1, 2, 0}, Order{0, 0, 2}}) {
        members.push_back({"C3R", {3, 3, 0, 0, o}, run<T>(c3), o, true});
        members.push_back({"AC4R", {4, 4, 0, 0, {o[0], o[1], o[2], K}}, run<T>(ac4), o, true});
    }
    for (Order o : {Order{3, 2, 1}, Order{0, 3, 3}, Order{2, 0, 1}})
        members.push_back({"C4C3R", {4, 3, 0, 0, o}, run<T>(c4c3), o});
    const int opaque = std::is_same_v<T, Zel8u> ? F : K;
    const Order fill = {255, 255, 255, 255};
    members.push_back({"C3C4R reversed, opaque", {3, 4, 0, 0, {2, 1, 0, opaque}, fill}, run<T>(c3c4), {2, 1, 0, 3}});
    members.push_back({"C3C4R alpha kept", {3, 4, 0, 0, {0, 1, 2, K}, fill}, run<T>(c3c4), {0, 1, 2, 4}});
    members.push_back({"C3C4R large entries", {3, 4, 0, 0, {K, opaque, 0, 2}, fill}, run<T>(c3c4), {5, 3, 0, 2}});
    members.push_back({"C3C4R fourth unchecked", {3, 4, 0, 0, {1, 1, 1, K}, fill}, run<T>(c3c4), {1, 1, 1, -7}});
    members.push_back({"C3C4R gaps", {3, 4, 0, 0, {0, K, 2, K}, fill}, run<T>(c3c4), {0, 9, 2, 8}});
    return members;
}

#define SWAP_MEMBERS(T, t)                                                                       \
    swapMembers<T>(zeliSwapChannels_##t##_C3R, zeliSwapChannels_##t##_AC4R,                      \
                   zeliSwapChannels_##t##_C4C3R, zeliSwapChannels_##t##_C3C4R)

// The 8u-only members: in-place swaps, Dup, and CopyManaged whatever the
// flags ask for.
inline std::vector<Member<Zel8u>> byteOnlyMembers() {
    using Order = std::array<int, 4>;
    std::vector<Member<Zel8u>> members;
    for (Order o : {Order{2, 1, 0, 3}, Order{3, 0, 0, 1}, Order{1, 2, 3, 0}}) {
        const Order o3 = {o[0] % 3, o[1] % 3, o[2] % 3};
        members.push_back({"C3IR", {3, 3, 0, 0, o3, {}, Mode::inPlace}, run<Zel8u>(zeliSwapChannels_8u_C3IR), o3, true});
        members.push_back({"C4IR", {4, 4, 0, 0, o, {}, Mode::inPlace}, run<Zel8u>(zeliSwapChannels_8u_C4IR), o, true});
    }
    members.push_back({"Dup", {1, 3, 0, 0, {0, 0, 0}}, run<Zel8u>(zeliDup_8u_C1C3R)});
    for (int flags : {0, 1, 2, 3, -1})
        members.push_back({"Managed " + std::to_string(flags), {1, 1, 0, 0, {0}}, [flags](const Args<Zel8u>& a) {
                               return zeliCopyManaged_8u_C1R(a.src, a.srcStep, a.dst, a.dstStep, a.roi, flags);
                           }});
    return members;
}

// Every member on every odd size, two ROI offsets, with and without row
// padding (no padding lets contiguous rows collapse), under every SIMD
// target and thread count. The last layout walks upwards with negative steps.
// Masks are random (about half zero) on the first offset, all zero on the second.
template <class T>
void checkMembers(const std::vector<Member<T>>& members) {
    forEachConfig([&] {
        for (const Member<T>& member : members)
            for (ZeliSize roi : oddSizes())
                for (int offset : {0, 3 * int(sizeof(T))})
                    for (int guard : {0, 9 * int(sizeof(T))}) {
                        const bool upward = offset && guard && !member.stepsChecked;
                        SCOPED_TRACE(testing::Message() << member.name << " " << roi.width << "x" << roi.height
                                                        << " offset " << offset << " guard " << guard);
                        const ChannelMove& m = member.move;
                        Image<T> src(roi, m.srcChannels, -1, offset, guard, 2);
                        Image<T> dst(roi, m.dstChannels, -1, offset + int(sizeof(T)), guard, 3);
                        if (m.mode == Mode::inPlace) dst = src;
                        const Image<T> before = dst;
                        Image<Zel8u> mask(roi, 1, -1, 1, 7, 4);
                        std::mt19937 rng(offset);
                        mask.fill([&](int, int, int) { return offset || rng() % 2 ? 0 : 1 + rng() % 255; });
                        const int top = upward ? roi.height - 1 : 0, sign = upward ? -1 : 1;
                        const T values[4] = {T(m.fill[0]), T(m.fill[1]), T(m.fill[2]), T(m.fill[3])};
                        ASSERT_EQ(member.call({src.row(top) + m.srcOffset, sign * src.step(), dst.row(top) + m.dstOffset,
                                               sign * dst.step(), roi, mask.row(top), sign * mask.step(), values,
                                               member.order.data()}),
                                  zelStatusOk);
                        for (int y = 0; y < roi.height; ++y)
                            for (int x = 0; x < roi.width; ++x)
                                for (int c = 0; c < m.dstChannels; ++c) {
                                    const int from = m.mode == Mode::masked && mask.at(x, y) == 0 ? kKept : m.from[c];
                                    const T want = from == kKept     ? before.at(x, y, c)
                                                   : from == kFilled ? values[c]
                                                                     : src.at(x, y, from);
                                    ASSERT_EQ(std::memcmp(&want, &dst.row(y)[x * m.dstChannels + c], sizeof(T)), 0)
                                        << "pixel " << x << "," << y << " channel " << c;
                                }
                        ASSERT_TRUE(dst.outsideUnchanged());
                    }
    });
}

}  // namespace zel::test
