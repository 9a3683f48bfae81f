// Sum and Mean against exact references: 64-bit integer totals for the
// integer members, transcriptions of both 32f accuracy rules (lanes by
// address, even and odd column totals, blocks of 16 rows) compared bit for
// bit, on odd sizes, unaligned starts and ROIs inside guarded buffers,
// under every SIMD target and thread count; sums beyond 32 bits; the check
// orders, with nothing written on failure.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "core/fpcontrol.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

template <class T>
using SumFn = std::function<ZelStatus(const T*, int, ZeliSize, Zel64f*, ZelAccuracyHint)>;

template <class T>
struct SumMember {
    std::string name;
    int channels, computed;
    SumFn<T> sum, mean;
};

#define INT_MEMBER(t, l, ch, comp)                                                                          \
    SumMember<Zel##t> {                                                                                     \
        #t "_" #l, ch, comp,                                                                                \
            [](const Zel##t* s, int st, ZeliSize r, Zel64f* o, ZelAccuracyHint) { return zeliSum_##t##_##l##R(s, st, r, o); }, \
            [](const Zel##t* s, int st, ZeliSize r, Zel64f* o, ZelAccuracyHint) { return zeliMean_##t##_##l##R(s, st, r, o); } \
    }
#define INT_MEMBERS(t) {INT_MEMBER(t, C1, 1, 1), INT_MEMBER(t, C3, 3, 3), INT_MEMBER(t, C4, 4, 4), INT_MEMBER(t, AC4, 4, 3)}
#define F_MEMBER(l, ch, comp) \
    SumMember<Zel32f> { "32f_" #l, ch, comp, &zeliSum_32f_##l##R, &zeliMean_32f_##l##R }

template <class T>
std::vector<SumMember<T>> members();
template <> std::vector<SumMember<Zel8u>> members() { return INT_MEMBERS(8u); }
template <> std::vector<SumMember<Zel16u>> members() { return INT_MEMBERS(16u); }
template <> std::vector<SumMember<Zel16s>> members() { return INT_MEMBERS(16s); }
template <> std::vector<SumMember<Zel32f>> members() {
    return {F_MEMBER(C1, 1, 1), F_MEMBER(C3, 3, 3), F_MEMBER(C4, 4, 4), F_MEMBER(AC4, 4, 3)};
}

// ---- References -------------------------------------------------------------

template <class T>
std::vector<double> exactSum(const Image<T>& img, int computed) {
    std::vector<std::int64_t> s(computed, 0);
    for (int y = 0; y < img.size().height; ++y)
        for (int x = 0; x < img.size().width; ++x)
            for (int c = 0; c < computed; ++c) s[c] += img.at(x, y, c);
    return std::vector<double>(s.begin(), s.end());
}

// Fast rule: per row and channel four float lanes chosen by (address / 4)
// mod 4, added in lane order; row sums in double per block of 16 rows,
// blocks added in order.
std::vector<double> fastSum(const Image<float>& img, int computed) {
    const int C = img.channels();
    std::vector<double> total(computed, 0.0);
    for (int b = 0; b * 16 < img.size().height; ++b) {
        std::vector<double> block(computed, 0.0);
        for (int y = b * 16; y < std::min(img.size().height, b * 16 + 16); ++y)
            for (int c = 0; c < computed; ++c) {
                float lane[4] = {0.f, 0.f, 0.f, 0.f};
                for (int x = 0; x < img.size().width; ++x) {
                    const float* p = &img.row(y)[x * C + c];
                    lane[(reinterpret_cast<std::uintptr_t>(p) / 4) % 4] += *p;
                }
                block[c] += static_cast<double>(((lane[0] + lane[1]) + lane[2]) + lane[3]);
            }
        for (int c = 0; c < computed; ++c) total[c] += block[c];
    }
    return total;
}

// Accurate rule: running double totals of even and odd columns per block
// of 16 rows, blocks added in order, then odd + even.
std::vector<double> accurateSum(const Image<float>& img, int computed) {
    std::vector<double> even(computed, 0.0), odd(computed, 0.0);
    for (int b = 0; b * 16 < img.size().height; ++b) {
        std::vector<double> be(computed, 0.0), bo(computed, 0.0);
        for (int y = b * 16; y < std::min(img.size().height, b * 16 + 16); ++y)
            for (int x = 0; x < img.size().width; ++x)
                for (int c = 0; c < computed; ++c) (x % 2 ? bo : be)[c] += static_cast<double>(img.at(x, y, c));
        for (int c = 0; c < computed; ++c) {
            even[c] += be[c];
            odd[c] += bo[c];
        }
    }
    std::vector<double> r(computed);
    for (int c = 0; c < computed; ++c) r[c] = odd[c] + even[c];
    return r;
}

::testing::AssertionResult sameBits(const double* got, const std::vector<double>& want) {
    for (std::size_t c = 0; c < want.size(); ++c)
        if (std::memcmp(&got[c], &want[c], sizeof(double)) != 0)
            return ::testing::AssertionFailure() << "channel " << c << ": " << got[c] << ", expected " << want[c];
    return ::testing::AssertionSuccess();
}

std::vector<double> meansOf(const std::vector<double>& sums, ZeliSize roi) {
    std::vector<double> m;
    for (double s : sums) m.push_back(s / (double(roi.width) * roi.height));
    return m;
}

// ---- Random images under every configuration --------------------------------

template <class T>
class SumTest : public ::testing::Test {};
using SumTypes = ::testing::Types<Zel8u, Zel16u, Zel16s, Zel32f>;
TYPED_TEST_SUITE(SumTest, SumTypes);

TYPED_TEST(SumTest, MatchesReferenceOnOddSizesAndOffsets) {
    using T = TypeParam;
    std::vector<ZeliSize> sizes = oddSizes();
    sizes.push_back({37, 70});  // several blocks of rows
    for (const auto& m : members<T>())
        for (ZeliSize roi : sizes)
            for (int offset : {0, 1, 2, 3}) {
                Image<T> img(roi, m.channels, -1, offset * int(sizeof(T)), 3 * sizeof(T) + 5, roi.width + offset);
                if constexpr (std::is_same_v<T, float>) img.fillRandom(7 + offset, -100.f, 100.f);
                SCOPED_TRACE(m.name + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height) + " offset " +
                             std::to_string(offset));
                const ZelAccuracyHint hints[] = {zelAccuracyDefault, zelAccuracyHigh, ZelAccuracyHint(3)};
                forEachConfig([&] {
                    for (ZelAccuracyHint hint : hints) {
                        std::vector<double> want;
                        if constexpr (std::is_same_v<T, float>)
                            want = hint == zelAccuracyHigh ? accurateSum(img, m.computed) : fastSum(img, m.computed);
                        else
                            want = exactSum(img, m.computed);
                        double got[4] = {-1, -1, -1, -1}, mean[4] = {-1, -1, -1, -1};
                        ASSERT_EQ(m.sum(img.roi(), img.step(), roi, got, hint), zelStatusOk);
                        EXPECT_TRUE(sameBits(got, want));
                        if (m.computed < 4) {
                            EXPECT_EQ(got[m.computed], -1.0) << "wrote past its channels";
                        }
                        ASSERT_EQ(m.mean(img.roi(), img.step(), roi, mean, hint), zelStatusOk);
                        EXPECT_TRUE(sameBits(mean, meansOf(want, roi)));
                        EXPECT_TRUE(img.unchanged());
                    }
                });
            }
}

// Pointers before the size, nothing written on failure, and no step check:
// a zero step reads the first row for every row.
TYPED_TEST(SumTest, ChecksPointersThenSizeAndNeverTheStep) {
    using T = TypeParam;
    for (const auto& m : members<T>())
        for (const auto& fn : {m.sum, m.mean}) {
            SCOPED_TRACE(m.name);
            Image<T> img({5, 4}, m.channels);
            double out[4] = {7, 7, 7, 7}, once[4], zero[4];
            EXPECT_EQ(fn(nullptr, img.step(), {0, 0}, out, zelAccuracyHigh), zelStatusNullPtr);
            EXPECT_EQ(fn(img.roi(), img.step(), {5, 4}, nullptr, zelAccuracyHigh), zelStatusNullPtr);
            EXPECT_EQ(fn(img.roi(), img.step(), {0, 4}, out, zelAccuracyHigh), zelStatusBadSize);
            EXPECT_EQ(fn(img.roi(), img.step(), {5, -1}, out, zelAccuracyHigh), zelStatusBadSize);
            for (double v : out) EXPECT_EQ(v, 7.0) << "written on failure";
            ASSERT_EQ(fn(img.roi(), img.step(), {5, 1}, once, zelAccuracyHigh), zelStatusOk);
            ASSERT_EQ(fn(img.roi(), 0, {5, 4}, zero, zelAccuracyHigh), zelStatusOk);
            for (int c = 0; c < m.computed; ++c) EXPECT_TRUE(zero[c] == 4 * once[c] || zero[c] == once[c]);
        }
}

// ---- Particular rules ---------------------------------------------------------

TEST(Sum, HintsAgreeOnSmallIntegerValuedImages) {
    Image<Zel32f> img({31, 19}, 1);
    img.fill([](int x, int y, int) { return float((x * 7 + y * 3) % 41 - 20); });
    double fast, high, other;
    ASSERT_EQ(zeliSum_32f_C1R(img.roi(), img.step(), img.size(), &fast, zelAccuracyDefault), zelStatusOk);
    ASSERT_EQ(zeliSum_32f_C1R(img.roi(), img.step(), img.size(), &high, zelAccuracyHigh), zelStatusOk);
    ASSERT_EQ(zeliSum_32f_C1R(img.roi(), img.step(), img.size(), &other, ZelAccuracyHint(3)), zelStatusOk);
    EXPECT_EQ(fast, high);
    EXPECT_EQ(fast, other);
    EXPECT_EQ(fast, exactSum(Image<Zel32f>(img), 1)[0]);
}

TEST(Sum, FastHintRoundsInSinglePrecisionPerRow) {
    // 2^24 + 1 + 1 ... : a single-precision lane drops the ones, the
    // accurate path keeps them.
    Image<Zel32f> img({8, 1}, 1, -1, 0);
    img.fill([](int x, int, int) { return x < 4 ? 16777216.f : 1.f; });
    double fast, high;
    ASSERT_EQ(zeliSum_32f_C1R(img.roi(), img.step(), img.size(), &fast, zelAccuracyDefault), zelStatusOk);
    ASSERT_EQ(zeliSum_32f_C1R(img.roi(), img.step(), img.size(), &high, zelAccuracyHigh), zelStatusOk);
    EXPECT_EQ(high, 4 * 16777216.0 + 4);
    EXPECT_EQ(fast, fastSum(img, 1)[0]);
    EXPECT_NE(fast, high);
}

TEST(Sum, IntegerSumsBeyondThirtyTwoBits) {
    // 4096 x 4096 of the largest value: 2^24 values, sums above 2^32.
    const ZeliSize roi{4096, 4096};
    std::vector<Zel8u> b8(std::size_t(roi.width) * roi.height, 255);
    std::vector<Zel16u> b16(b8.size(), 65535);
    std::vector<Zel16s> s16(b8.size(), -32768);
    ConfigGuard restore;
    for (int threads : {1, 2}) {
        zelSetNumThreads(threads);
        double s = 0, mean = 0;
        ASSERT_EQ(zeliSum_8u_C1R(b8.data(), roi.width, roi, &s), zelStatusOk);
        EXPECT_EQ(s, 255.0 * 16777216.0);
        ASSERT_EQ(zeliMean_8u_C1R(b8.data(), roi.width, roi, &mean), zelStatusOk);
        EXPECT_EQ(mean, 255.0);
        ASSERT_EQ(zeliSum_16u_C1R(b16.data(), roi.width * 2, roi, &s), zelStatusOk);
        EXPECT_EQ(s, 65535.0 * 16777216.0);
        ASSERT_EQ(zeliSum_16s_C1R(s16.data(), roi.width * 2, roi, &s), zelStatusOk);
        EXPECT_EQ(s, -32768.0 * 16777216.0);
        double c4[4];
        ASSERT_EQ(zeliSum_16u_C4R(b16.data(), roi.width * 2, {1024, 4096}, c4), zelStatusOk);
        for (double v : c4) EXPECT_EQ(v, 65535.0 * 1024 * 4096);
    }
}

TEST(Sum, Mean32fChecksItsOutputThenReturnsTheSumsStatus) {
    Image<Zel32f> img({3, 3}, 1);
    EXPECT_EQ(zeliMean_32f_C1R(img.roi(), img.step(), {0, 0}, nullptr, zelAccuracyDefault), zelStatusNullPtr);
    double m = 5;
    EXPECT_EQ(zeliMean_32f_C1R(img.roi(), img.step(), {0, 3}, &m, zelAccuracyDefault), zelStatusBadSize);
    EXPECT_EQ(zeliMean_32f_C1R(nullptr, img.step(), {3, 3}, &m, zelAccuracyDefault), zelStatusNullPtr);
    EXPECT_EQ(m, 5);
}

TEST(Sum, FloatResultsIgnoreTheCallersRoundingMode) {
    Image<Zel32f> img({33, 21}, 3);
    double want[3], got[3];
    ASSERT_EQ(zeliMean_32f_C3R(img.roi(), img.step(), img.size(), want, zelAccuracyDefault), zelStatusOk);
    const std::uint32_t saved = ps_get_ssx();
    ps_set_ssx((saved & ~0x6000u) | 0x6000u | 0x8040u);  // toward zero, FTZ, DAZ
    const ZelStatus st = zeliMean_32f_C3R(img.roi(), img.step(), img.size(), got, zelAccuracyDefault);
    ps_set_ssx(saved);
    ASSERT_EQ(st, zelStatusOk);
    for (int c = 0; c < 3; ++c) EXPECT_EQ(want[c], got[c]);
}

// Mean divides by width x height formed in 32 bits: a ROI of 2^31 pixels
// (one row read again and again through a zero step) has a count of -2^31.
TEST(LargeImage, MeanCountWrapsInThirtyTwoBits) {
    std::vector<Zel8u> row(65536, 2);
    double sum = 0, mean = 0;
    ASSERT_EQ(zeliSum_8u_C1R(row.data(), 0, {65536, 32768}, &sum), zelStatusOk);
    EXPECT_EQ(sum, 2.0 * 2147483648.0);
    ASSERT_EQ(zeliMean_8u_C1R(row.data(), 0, {65536, 32768}, &mean), zelStatusOk);
    EXPECT_EQ(mean, -2.0);
}

}  // namespace
