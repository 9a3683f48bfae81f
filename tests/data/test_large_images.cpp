// Images of more than 2^31 elements: contiguous rows collapse into one row
// of more than 2^31 elements (or pixels), and single rows reach INT_MAX
// pixels, where an index or a loop bound kept in 32 bits wraps. Sources are
// periodic read-only mappings of one small memory file; every destination
// byte is compared with the expected value (a wrapped offset would leave
// bytes unwritten or write the wrong ones).
//
// The build runs these tests one at a time (they need up to 6 GiB) and not
// under the sanitizers.
#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>
#include <vector>

#include "harness/pages.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

// Byte i of every periodic source (i below the period).
std::uint8_t sourceByte(std::size_t i) { return std::uint8_t((std::uint32_t(i) * 2654435761u) >> 24); }

// `bytes` destination bytes from `offset` on repeat `block` bytes, byte k
// of which is at(k).
struct Expect {
    std::size_t offset, bytes, block;
    std::function<std::uint8_t(std::size_t k)> at;
};

struct LargeCase {
    std::string name;
    std::size_t srcBytes;  // periodic source, from its first byte
    std::size_t dstBytes;  // zero-filled destination
    std::function<ZelStatus(const std::uint8_t* src, std::uint8_t* dst)> call;
    std::vector<Expect> expects;
};

// Runs every case under every SIMD target (the data families never fork, so
// one thread setting is enough); the destination is zeroed between targets.
void runLarge(const std::vector<LargeCase>& cases) {
    ConfigGuard restore;
    for (const LargeCase& c : cases) {
        SCOPED_TRACE(c.name);
        Periodic src(c.srcBytes, sourceByte);
        ZeroBytes dst(c.dstBytes);
        ASSERT_TRUE(src.ok() && dst.ok());
        std::vector<std::vector<std::uint8_t>> blocks;
        for (const Expect& e : c.expects) {
            blocks.emplace_back(e.block);
            for (std::size_t k = 0; k < e.block; ++k) blocks.back()[k] = e.at(k);
        }
        for (std::int64_t target : zel::simd::availableTargets()) {
            SCOPED_TRACE(zel::simd::targetName(target));
            zel::simd::forceTarget(target);
            ASSERT_TRUE(dst.clear());
            const ZelStatus st = guardedCall(c.name + " under " + zel::simd::targetName(target),
                                             [&] { return c.call(src.data(), dst.data()); });
            ASSERT_EQ(st, zelStatusOk);
            for (std::size_t i = 0; i < c.expects.size(); ++i)
                ASSERT_TRUE(repeats(dst.data() + c.expects[i].offset, c.expects[i].bytes, blocks[i])) << "part " << i;
        }
    }
}

// The source period: a multiple of 3 and of 4, so every interleaved
// destination of an interleaved source repeats with it.
constexpr std::size_t kPeriod = Periodic::kPeriodBytes;
std::uint8_t periodicByte(std::size_t i) { return sourceByte(i % kPeriod); }

// The whole destination repeats `block` bytes given by at().
std::vector<Expect> whole(std::size_t bytes, std::size_t block, std::function<std::uint8_t(std::size_t)> at) {
    return {{0, bytes, block, std::move(at)}};
}
// Plane c of `planes` planes of n bytes holds source byte planes * j + c.
std::vector<Expect> planesOf(int planes, std::size_t n) {
    std::vector<Expect> expects;
    for (int c = 0; c < planes; ++c)
        expects.push_back({c * n, n, kPeriod, [=](std::size_t j) { return periodicByte(planes * j + c); }});
    return expects;
}

constexpr int kWidth = 32768;
// Rows of kWidth pixels: kPixelsOver2To31 pixels are more than 2^31;
// kGigapixel pixels hold more than 2^31 elements at 3 or 4 channels.
constexpr int kRowsOver2To31 = 65537, kGigapixelRows = 32769;
constexpr std::size_t kPixelsOver2To31 = std::size_t{kWidth} * kRowsOver2To31;
constexpr std::size_t kGigapixel = std::size_t{kWidth} * kGigapixelRows;

TEST(LargeImage, SetFillsA4GiBImageFromMalloc) {
    int step = 0;
    Zel8u* image = zeliMalloc_8u_C4(32768, 32768, &step);
    ASSERT_NE(image, nullptr);
    ASSERT_EQ(step, 32768 * 4);  // contiguous rows: one fill of 2^32 bytes
    const Zel8u value[4] = {11, 22, 33, 44};
    const std::vector<std::uint8_t> block = {11, 22, 33, 44};
    ConfigGuard restore;
    Zel8u fill = 0;
    for (std::int64_t target : zel::simd::availableTargets()) {
        SCOPED_TRACE(zel::simd::targetName(target));
        zel::simd::forceTarget(target);
        // Each target starts from a different image, so a fill that stops
        // early leaves the previous pass behind.
        const Zel8u previous[4] = {fill, fill, fill, fill};
        ASSERT_EQ(zeliSet_8u_C4R(previous, image, step, {32768, 32768}), zelStatusOk);
        fill = Zel8u(fill + 1);
        const ZelStatus st = guardedCall(std::string("Set C4R under ") + zel::simd::targetName(target),
                                         [&] { return zeliSet_8u_C4R(value, image, step, {32768, 32768}); });
        ASSERT_EQ(st, zelStatusOk);
        ASSERT_TRUE(repeats(image, std::size_t{32768} * step, block));
    }
    zeliFree(image);
}

// Contiguous rows, collapsed into one row of more than 2^31 elements.
TEST(LargeImage, CollapsedRowsOfMoreThan2To31Elements) {
    const std::size_t n = kGigapixel, over = kPixelsOver2To31;
    const ZeliSize gigapixel{kWidth, kGigapixelRows};
    static const int swap3[3] = {2, 0, 1};
    const std::vector<LargeCase> cases = {
        {"Copy C3C1R", 3 * over + 3, over,
         [](const std::uint8_t* s, std::uint8_t* d) {
             return zeliCopy_8u_C3C1R(s + 1, 3 * kWidth, d, kWidth, {kWidth, kRowsOver2To31});
         },
         whole(over, kPeriod, [](std::size_t k) { return periodicByte(3 * k + 1); })},
        {"Copy C3CR", 3 * n, 3 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) { return zeliCopy_8u_C3CR(s + 2, 3 * kWidth, d + 2, 3 * kWidth, gigapixel); },
         whole(3 * n, kPeriod, [](std::size_t k) { return k % 3 == 2 ? periodicByte(k) : 0; })},
        {"Copy C3P3R", 3 * n, 3 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) {
             Zel8u* planes[3] = {d, d + n, d + 2 * n};
             return zeliCopy_8u_C3P3R(s, 3 * kWidth, planes, kWidth, gigapixel);
         },
         planesOf(3, n)},
        {"Copy P3C3R", 3 * n, 3 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) {
             const Zel8u* planes[3] = {s, s + n, s + 2 * n};
             return zeliCopy_8u_P3C3R(planes, kWidth, d, 3 * kWidth, gigapixel);
         },
         whole(3 * n, 3 * kPeriod, [=](std::size_t k) { return periodicByte(k % 3 * n + k / 3); })},
        {"Copy C4P4R", 4 * n, 4 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) {
             Zel8u* planes[4] = {d, d + n, d + 2 * n, d + 3 * n};
             return zeliCopy_8u_C4P4R(s, 4 * kWidth, planes, kWidth, gigapixel);
         },
         planesOf(4, n)},
        {"Copy P4C4R", 4 * n, 4 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) {
             const Zel8u* planes[4] = {s, s + n, s + 2 * n, s + 3 * n};
             return zeliCopy_8u_P4C4R(planes, kWidth, d, 4 * kWidth, gigapixel);
         },
         whole(4 * n, 4 * kPeriod, [=](std::size_t k) { return periodicByte(k % 4 * n + k / 4); })},
        {"SwapChannels C3R", 3 * n, 3 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) {
             return zeliSwapChannels_8u_C3R(s, 3 * kWidth, d, 3 * kWidth, gigapixel, swap3);
         },
         whole(3 * n, kPeriod, [](std::size_t k) { return periodicByte(k - k % 3 + swap3[k % 3]); })},
        {"SwapChannels AC4R", 4 * n, 4 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) {
             return zeliSwapChannels_8u_AC4R(s, 4 * kWidth, d, 4 * kWidth, gigapixel, swap3);
         },
         whole(4 * n, kPeriod, [](std::size_t k) { return k % 4 == 3 ? 0 : periodicByte(k - k % 4 + swap3[k % 4]); })},
        {"Dup", n, 3 * n,
         [=](const std::uint8_t* s, std::uint8_t* d) { return zeliDup_8u_C1C3R(s, kWidth, d, 3 * kWidth, gigapixel); },
         whole(3 * n, 3 * kPeriod, [](std::size_t k) { return periodicByte(k / 3); })},
    };
    runLarge(cases);
}

// One row of nearly INT_MAX pixels: a bound written as x + lanes <= width
// overflows at the end of it; the row is not collapsed, so the row kernels
// see the caller's own width.
TEST(LargeImage, RowsOfNearlyIntMaxPixels) {
    constexpr int kLong = INT_MAX - 2;
    const std::size_t n = kLong;
    const std::vector<LargeCase> cases = {
        {"Set C1R", 0, n, [](const std::uint8_t*, std::uint8_t* d) { return zeliSet_8u_C1R(77, d, kLong, {kLong, 1}); },
         whole(n, 1, [](std::size_t) { return std::uint8_t(77); })},
        {"Copy C3C1R", 3 * n, n,
         [](const std::uint8_t* s, std::uint8_t* d) { return zeliCopy_8u_C3C1R(s, 1, d, 1, {kLong, 1}); },
         whole(n, kPeriod, [](std::size_t k) { return periodicByte(3 * k); })},
        // The mask is the source one byte further on: a pixel is copied
        // where the next source byte is non-zero.
        {"Copy C1MR", n + 1, n,
         [](const std::uint8_t* s, std::uint8_t* d) { return zeliCopy_8u_C1MR(s, 1, d, 1, {kLong, 1}, s + 1, 1); },
         whole(n, kPeriod, [](std::size_t k) { return periodicByte(k + 1) != 0 ? periodicByte(k) : 0; })},
        {"Transpose of a row", n, n,
         [](const std::uint8_t* s, std::uint8_t* d) { return zeliTranspose_8u_C1R(s, kLong, d, 1, {kLong, 1}); },
         whole(n, kPeriod, periodicByte)},
        {"Transpose of a column", n, n,
         [](const std::uint8_t* s, std::uint8_t* d) { return zeliTranspose_8u_C1R(s, 1, d, kLong, {1, kLong}); },
         whole(n, kPeriod, periodicByte)},
    };
    runLarge(cases);
}

}  // namespace
