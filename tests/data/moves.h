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
