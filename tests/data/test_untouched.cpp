// What the channel-moving members leave alone they neither store to nor
// load from: AC4 alpha, the other channels of a channel-of-interest
// pointer, pixels under a zero mask byte, and anything past the last byte
// of an operand. The bytes in question lie on inaccessible pages, so a
// stray access faults; a store of an old value would also lose a
// concurrent writer's update, which the last test counts.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <atomic>
#include <optional>
#include <thread>

#include "harness/pages.h"
#include "moves.h"

namespace {

using namespace zel::test;

// Bytes from an operand's pointer (channel `first` of its first pixel) to
// channel `last` of the last pixel of the last row.
template <class T>
std::size_t ownedBytes(ZeliSize roi, int step, int channels, int first, int last) {
    return std::size_t(roi.height - 1) * step + (std::size_t(roi.width - 1) * channels + last - first + 1) * sizeof(T);
}

// Source channels no destination channel takes are not the member's: in
// particular AC4 alpha, and the channels after a channel-of-interest pointer.
int lastSourceChannel(const ChannelMove& m) {
    int last = -1;
    for (int c = 0; c < m.dstChannels; ++c) last = std::max(last, m.from[c]);
    return last;
}
int lastWrittenChannel(const ChannelMove& m) {
    int last = -1;
    for (int c = 0; c < m.dstChannels; ++c)
        if (m.from[c] != kKept) last = c;
    return last;
}

// For the report of a fault: the member, the size and the target in force.
std::string describe(const std::string& member, ZeliSize roi) {
    std::string target = "?";
    for (std::int64_t t : zel::simd::availableTargets())
        if (zel::simd::indexOf(t) == zel::simd::chosenIndex()) target = zel::simd::targetName(t);
    return member + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height) + " under " + target;
}

// Every operand (source, destination, mask) ends right before an
// inaccessible page: the last byte of the last row that the member owns is
// the last accessible one. The result must be the one on ordinary buffers.
template <class T>
void checkFences(const std::vector<Member<T>>& members) {
    std::vector<ZeliSize> sizes = oddSizes();
    sizes.insert(sizes.end(), {{2, 3}, {16, 2}, {31, 3}, {32, 2}, {33, 2}, {100, 2}});
    forEachConfig([&] {
        for (const Member<T>& member : members)
            for (ZeliSize roi : sizes) {
                const ChannelMove& m = member.move;
                SCOPED_TRACE(testing::Message() << member.name << " " << roi.width << "x" << roi.height);
                const bool inPlace = m.mode == Mode::inPlace;
                Image<T> src(roi, m.srcChannels, -1, 0, 2 * sizeof(T), 2);
                Image<T> dst(roi, m.dstChannels, -1, 0, 2 * sizeof(T), 3);
                if (inPlace) dst = src;
                Image<Zel8u> mask(roi, 1, -1, 0, 3, 4);
                std::mt19937 rng(roi.width);
                mask.fill([&](int, int, int) { return rng() % 2 ? 0 : 1 + rng() % 255; });
                const T values[4] = {T(m.fill[0]), T(m.fill[1]), T(m.fill[2]), T(m.fill[3])};

                const int srcLast = inPlace ? m.srcChannels - 1 : lastSourceChannel(m);
                const int dstLast = inPlace ? m.dstChannels - 1 : lastWrittenChannel(m);
                const std::size_t dstBytes = ownedBytes<T>(roi, dst.step(), m.dstChannels, m.dstOffset, dstLast);
                Fenced fencedDst(dstBytes), fencedMask(ownedBytes<Zel8u>(roi, mask.step(), 1, 0, 0));
                fencedDst.copyFrom(dst.row(0) + m.dstOffset);
                fencedMask.copyFrom(mask.row(0));
                std::optional<Fenced> fencedSrc;
                if (srcLast >= 0 && !inPlace) {
                    fencedSrc.emplace(ownedBytes<T>(roi, src.step(), m.srcChannels, m.srcOffset, srcLast));
                    fencedSrc->copyFrom(src.row(0) + m.srcOffset);
                }

                ASSERT_EQ(member.call({src.row(0) + m.srcOffset, src.step(), dst.row(0) + m.dstOffset, dst.step(), roi,
                                       mask.row(0), mask.step(), values, member.order.data()}),
                          zelStatusOk);
                const T* fencedSrcAt = fencedSrc ? reinterpret_cast<const T*>(fencedSrc->data()) : src.row(0);
                T* fencedDstAt = reinterpret_cast<T*>(fencedDst.data());
                const ZelStatus st = guardedCall(describe(member.name, roi), [&] {
                    return member.call({fencedSrcAt, src.step(), fencedDstAt, dst.step(), roi, fencedMask.data(),
                                        mask.step(), values, member.order.data()});
                });
                ASSERT_EQ(st, zelStatusOk);
                ASSERT_EQ(std::memcmp(fencedDst.data(), dst.row(0) + m.dstOffset, dstBytes), 0);
            }
    });
}

#define CHECK_FENCES(T, t)                 \
    checkFences<T>(COPY_MEMBERS(T, t));    \
    checkFences<T>(SET_MEMBERS(T, t));     \
    checkFences<T>(SWAP_MEMBERS(T, t));

TEST(Untouched, NothingPastTheLastOwnedByteIsAccessed) {
    FOR_EACH_TYPE(CHECK_FENCES)
    checkFences(byteOnlyMembers());
}

// Rows whose first half is selected and whose second half, masked off,
// lies on an inaccessible page: the masked members neither load nor store a
// byte of it (nor of the alpha channel of the selected pixels, which must
// keep its value).
template <class T>
void checkMaskedOff(const std::vector<Member<T>>& members) {
    const std::size_t page = pageBytes();
    forEachConfig([&] {
        for (const Member<T>& member : members) {
            const ChannelMove& m = member.move;
            if (m.mode != Mode::masked) continue;
            for (int width : {1, 2, 5, 16, 17, 33, 64, 97, 130}) {
                const ZeliSize roi{width, 3};
                SCOPED_TRACE(testing::Message() << member.name << " width " << width);
                const std::size_t pixelBytes = m.dstChannels * sizeof(T);
                const int half = width / 2;
                // Row y ends page 2y with its selected half and begins page 2y+1.
                Pages pages(2 * roi.height);
                std::mt19937 rng(width);
                for (std::uint8_t* p = pages.page(0); p < pages.page(2 * roi.height); ++p) *p = std::uint8_t(rng());
                for (int y = 0; y < roi.height; ++y) pages.protect(2 * y + 1, 1, PROT_NONE);
                auto rowOf = [&](int y) { return reinterpret_cast<T*>(pages.page(2 * y + 1) - half * pixelBytes); };
                const int step = int(2 * page);
                Image<T> src(roi, m.srcChannels, -1, 0, 0, 5);
                Image<Zel8u> mask(roi, 1, -1, 0, 0, 6);
                mask.fill([&](int x, int, int) { return x < half ? 1 + rng() % 255 : 0; });
                const T values[4] = {T(m.fill[0]), T(m.fill[1]), T(m.fill[2]), T(m.fill[3])};
                std::vector<std::vector<T>> want(roi.height);
                for (int y = 0; y < roi.height; ++y) {
                    want[y].assign(rowOf(y), rowOf(y) + half * m.dstChannels);
                    for (int x = 0; x < half; ++x)
                        for (int c = 0; c < m.dstChannels; ++c)
                            if (m.from[c] != kKept)
                                want[y][x * m.dstChannels + c] = m.from[c] == kFilled ? values[c] : src.at(x, y, m.from[c]);
                }
                std::vector<std::uint8_t> pageHeads;
                for (int y = 0; y < roi.height; ++y)
                    pageHeads.insert(pageHeads.end(), pages.page(2 * y), reinterpret_cast<std::uint8_t*>(rowOf(y)));
                const ZelStatus st = guardedCall(describe(member.name, roi), [&] {
                    return member.call({src.row(0), src.step(), rowOf(0), step, roi, mask.row(0), mask.step(), values,
                                        member.order.data()});
                });
                ASSERT_EQ(st, zelStatusOk);
                std::vector<std::uint8_t> headsAfter;
                for (int y = 0; y < roi.height; ++y) {
                    ASSERT_TRUE(half == 0 || std::memcmp(rowOf(y), want[y].data(), half * pixelBytes) == 0)
                        << "row " << y;
                    headsAfter.insert(headsAfter.end(), pages.page(2 * y), reinterpret_cast<std::uint8_t*>(rowOf(y)));
                }
                ASSERT_EQ(headsAfter, pageHeads) << "bytes before a row changed";
            }
        }
    });
}

#define CHECK_MASKED_OFF(T, t)                \
    checkMaskedOff<T>(COPY_MEMBERS(T, t));    \
    checkMaskedOff<T>(SET_MEMBERS(T, t));

TEST(Untouched, MaskedOffPixelsAreNeitherReadNorWritten) { FOR_EACH_TYPE(CHECK_MASKED_OFF) }

// One thread adds 1 to every alpha byte of an AC4 image, round after round,
// while the calling thread runs a member that leaves alpha alone on the same
// image over and over. A member that stored alpha back, even unchanged,
// would now and then overwrite an increment.
TEST(Untouched, ConcurrentAlphaUpdatesAreNeverLost) {
    const ZeliSize roi{61, 40};
    const int order[4] = {2, 0, 1, 4};
    const Zel8u value[4] = {1, 2, 3, 4};
    struct Case {
        const char* name;
        std::function<ZelStatus(const Zel8u*, int, Zel8u*, int, const Zel8u*, int)> call;
        int srcChannels;
    };
    const Case cases[] = {
        {"Set AC4R", [&](auto, int, Zel8u* d, int ds, auto, int) { return zeliSet_8u_AC4R(value, d, ds, roi); }, 4},
        {"Set AC4MR", [&](auto, int, Zel8u* d, int ds, auto m, int ms) { return zeliSet_8u_AC4MR(value, d, ds, roi, m, ms); }, 4},
        {"Set C4CR", [&](auto, int, Zel8u* d, int ds, auto, int) { return zeliSet_8u_C4CR(9, d + 1, ds, roi); }, 4},
        {"Copy AC4R", [&](auto s, int ss, Zel8u* d, int ds, auto, int) { return zeliCopy_8u_AC4R(s, ss, d, ds, roi); }, 4},
        {"Copy AC4MR",
         [&](auto s, int ss, Zel8u* d, int ds, auto m, int ms) { return zeliCopy_8u_AC4MR(s, ss, d, ds, roi, m, ms); }, 4},
        {"Copy C3AC4R", [&](auto s, int ss, Zel8u* d, int ds, auto, int) { return zeliCopy_8u_C3AC4R(s, ss, d, ds, roi); }, 3},
        {"Copy C1C4R", [&](auto s, int ss, Zel8u* d, int ds, auto, int) { return zeliCopy_8u_C1C4R(s, ss, d, ds, roi); }, 1},
        {"SwapChannels AC4R",
         [&](auto s, int ss, Zel8u* d, int ds, auto, int) { return zeliSwapChannels_8u_AC4R(s, ss, d, ds, roi, order); }, 4},
        {"SwapChannels C3C4R",
         [&](auto s, int ss, Zel8u* d, int ds, auto, int) { return zeliSwapChannels_8u_C3C4R(s, ss, d, ds, roi, order, 0); },
         3},
    };
    constexpr int kRounds = 2000;
    forEachConfig([&] {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.name);
            Image<Zel8u> src(roi, c.srcChannels, -1, 1, 8, 7), dst(roi, 4, -1, 3, 8, 8);
            Image<Zel8u> mask(roi, 1, -1, 0, 0, 9);
            mask.fill([](int x, int y, int) { return (x * 7 + y) % 3 ? 255 : 0; });
            std::vector<Zel8u> alphaBefore;
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x) alphaBefore.push_back(dst.at(x, y, 3));
            std::atomic<bool> done{false};
            std::thread writer([&] {
                for (int r = 0; r < kRounds; ++r)
                    for (int y = 0; y < roi.height; ++y)
                        for (int x = 0; x < roi.width; ++x) {
                            Zel8u* a = &dst.at(x, y, 3);
                            __atomic_store_n(a, Zel8u(__atomic_load_n(a, __ATOMIC_RELAXED) + 1), __ATOMIC_RELAXED);
                        }
                done = true;
            });
            int calls = 0;
            do {
                ASSERT_EQ(c.call(src.roi(), src.step(), dst.roi(), dst.step(), mask.roi(), mask.step()), zelStatusOk);
                ++calls;
            } while (!done);
            writer.join();
            EXPECT_GT(calls, 1);
            int lost = 0;
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x)
                    lost += dst.at(x, y, 3) != Zel8u(alphaBefore[y * roi.width + x] + kRounds);
            EXPECT_EQ(lost, 0) << "alpha bytes that lost an increment, over " << calls << " calls";
        }
    });
}

}  // namespace
