// Where OpenCV's convention agrees with ours, the statistics agree with it:
// exact integer sums and means (cv::sum, cv::mean), extrema and the
// row-major first position of cv::minMaxLoc, inRange + countNonZero for
// inclusive bounds, and cv::min / cv::max for the element-wise extremes.
#ifdef ZELI_HAVE_OPENCV
#include <gtest/gtest.h>
#include <opencv2/core.hpp>

#include "zeli.h"

namespace {

cv::Mat randomImage(int rows, int cols, int type, int seed) {
    cv::Mat m(rows, cols, type);
    cv::theRNG().state = static_cast<std::uint64_t>(seed);
    cv::randu(m, 0, 256);
    return m;
}

TEST(OpenCvAgreement, SumsMeansExtremaCountsAndElementwiseExtremes) {
    for (const cv::Size s : {cv::Size(1, 1), cv::Size(97, 31), cv::Size(640, 7)}) {
        SCOPED_TRACE(std::to_string(s.width) + "x" + std::to_string(s.height));
        const ZeliSize roi{s.width, s.height};
        const cv::Mat gray = randomImage(s.height, s.width, CV_8UC1, 1), rgb = randomImage(s.height, s.width, CV_8UC3, 2);
        const int gs = static_cast<int>(gray.step), cs = static_cast<int>(rgb.step);
        double sum = 0, mean[3];
        ASSERT_EQ(zeliSum_8u_C1R(gray.ptr<Zel8u>(), gs, roi, &sum), zelStatusOk);
        EXPECT_EQ(sum, cv::sum(gray)[0]);
        ASSERT_EQ(zeliMean_8u_C3R(rgb.ptr<Zel8u>(), cs, roi, mean), zelStatusOk);
        const cv::Scalar cvMean = cv::mean(rgb);
        for (int c = 0; c < 3; ++c) EXPECT_NEAR(mean[c], cvMean[c], 1e-12 * cvMean[c]);

        double lo, hi;
        cv::Point loAt, hiAt;
        cv::minMaxLoc(gray, &lo, &hi, &loAt, &hiAt);
        Zel8u v;
        int x, y;
        ASSERT_EQ(zeliMinIndx_8u_C1R(gray.ptr<Zel8u>(), gs, roi, &v, &x, &y), zelStatusOk);
        EXPECT_EQ(v, lo);
        EXPECT_EQ(cv::Point(x, y), loAt);
        ASSERT_EQ(zeliMaxIndx_8u_C1R(gray.ptr<Zel8u>(), gs, roi, &v, &x, &y), zelStatusOk);
        EXPECT_EQ(v, hi);
        EXPECT_EQ(cv::Point(x, y), hiAt);

        cv::Mat inside;
        cv::inRange(gray, cv::Scalar(40), cv::Scalar(90), inside);
        int count = 0;
        ASSERT_EQ(zeliCountInRange_8u_C1R(gray.ptr<Zel8u>(), gs, roi, &count, 40, 90), zelStatusOk);
        EXPECT_EQ(count, cv::countNonZero(inside));

        cv::Mat other = randomImage(s.height, s.width, CV_8UC3, 3), mine = other.clone(), theirs;
        cv::min(rgb, other, theirs);
        ASSERT_EQ(zeliMinEvery_8u_C3IR(rgb.ptr<Zel8u>(), cs, mine.ptr<Zel8u>(), static_cast<int>(mine.step), roi), zelStatusOk);
        EXPECT_EQ(cv::norm(mine, theirs, cv::NORM_INF), 0);
        mine = other.clone();
        cv::max(rgb, other, theirs);
        ASSERT_EQ(zeliMaxEvery_8u_C3IR(rgb.ptr<Zel8u>(), cs, mine.ptr<Zel8u>(), static_cast<int>(mine.step), roi), zelStatusOk);
        EXPECT_EQ(cv::norm(mine, theirs, cv::NORM_INF), 0);
    }
}

}  // namespace
#endif  // ZELI_HAVE_OPENCV
