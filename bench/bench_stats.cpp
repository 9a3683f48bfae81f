// Sums, means and extrema against OpenCV: Sum 8u C1 and 32f C1 against
// cv::sum, Mean 8u C3 against cv::mean, MinMax 8u C1 against cv::minMaxLoc
// without locations, MaxIndx 32f C1 against cv::minMaxLoc with them,
// CountInRange 8u C1 against cv::inRange + cv::countNonZero, MinEvery 8u C1
// against cv::min into the same image. "_mt" runs both with two threads.
// "read" is a pass that only reads the same bytes (the bandwidth bound of a
// reduction).
#include <opencv2/core.hpp>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerRun;
using zel::bench::registerSized;
using zel::bench::threadSuffix;

struct Image {
    cv::Mat a, b, scratch;
    explicit Image(ZeliSize s, int type) : a(s.height, s.width, type), b(s.height, s.width, type) {
        cv::randu(a, 0, 256);
        cv::randu(b, 0, 256);
    }
    template <class T>
    const T* p() const { return a.ptr<T>(); }
    int step() const { return static_cast<int>(a.step); }
};

auto maker(int type) {
    return [type](ZeliSize s) { return std::make_shared<Image>(s, type); };
}

// Reads every 64-bit word of the image once (the bytes a reduction reads).
void registerRead(const std::string& group, int bytesPerPixel) {
    registerSized(group, "read", [bytesPerPixel](benchmark::State& state, ZeliSize s) {
        std::vector<std::uint64_t> words(std::size_t(s.width) * s.height * bytesPerPixel / 8, 1);
        for (auto _ : state) {
            std::uint64_t acc = 0;
            for (std::uint64_t w : words) acc ^= w;
            benchmark::DoNotOptimize(acc);
        }
    });
}

void registerAll() {
    for (int threads : {1, 2}) {
        const std::string mt = threadSuffix(threads);
        registerRun("Sum_8u_C1" + mt, "zeli", maker(CV_8UC1), [](auto& o, ZeliSize s) {
            double v;
            zeliSum_8u_C1R(o->template p<Zel8u>(), o->step(), s, &v);
            benchmark::DoNotOptimize(v);
        }, threads);
        registerRun("Sum_8u_C1" + mt, "opencv", maker(CV_8UC1), [](auto& o, ZeliSize) {
            benchmark::DoNotOptimize(cv::sum(o->a));
        }, threads);
        registerRun("Sum_32f_C1" + mt, "zeli", maker(CV_32FC1), [](auto& o, ZeliSize s) {
            double v;
            zeliSum_32f_C1R(o->template p<Zel32f>(), o->step(), s, &v, zelAccuracyDefault);
            benchmark::DoNotOptimize(v);
        }, threads);
        registerRun("Sum_32f_C1" + mt, "opencv", maker(CV_32FC1), [](auto& o, ZeliSize) {
            benchmark::DoNotOptimize(cv::sum(o->a));
        }, threads);
        registerRun("Sum_32f_C1_high" + mt, "zeli", maker(CV_32FC1), [](auto& o, ZeliSize s) {
            double v;
            zeliSum_32f_C1R(o->template p<Zel32f>(), o->step(), s, &v, zelAccuracyHigh);
            benchmark::DoNotOptimize(v);
        }, threads);
        registerRun("Sum_32f_C1_high" + mt, "opencv", maker(CV_32FC1), [](auto& o, ZeliSize) {
            benchmark::DoNotOptimize(cv::sum(o->a));
        }, threads);
        registerRun("Mean_8u_C3" + mt, "zeli", maker(CV_8UC3), [](auto& o, ZeliSize s) {
            double v[3];
            zeliMean_8u_C3R(o->template p<Zel8u>(), o->step(), s, v);
            benchmark::DoNotOptimize(v);
        }, threads);
        registerRun("Mean_8u_C3" + mt, "opencv", maker(CV_8UC3), [](auto& o, ZeliSize) {
            benchmark::DoNotOptimize(cv::mean(o->a));
        }, threads);
        registerRun("MinMax_8u_C1" + mt, "zeli", maker(CV_8UC1), [](auto& o, ZeliSize s) {
            Zel8u lo, hi;
            zeliMinMax_8u_C1R(o->template p<Zel8u>(), o->step(), s, &lo, &hi);
            benchmark::DoNotOptimize(lo + hi);
        }, threads);
        registerRun("MinMax_8u_C1" + mt, "opencv", maker(CV_8UC1), [](auto& o, ZeliSize) {
            double lo, hi;
            cv::minMaxLoc(o->a, &lo, &hi);
            benchmark::DoNotOptimize(lo + hi);
        }, threads);
        registerRun("MaxIndx_32f_C1" + mt, "zeli", maker(CV_32FC1), [](auto& o, ZeliSize s) {
            Zel32f v;
            int x, y;
            zeliMaxIndx_32f_C1R(o->template p<Zel32f>(), o->step(), s, &v, &x, &y);
            benchmark::DoNotOptimize(x + y);
        }, threads);
        registerRun("MaxIndx_32f_C1" + mt, "opencv", maker(CV_32FC1), [](auto& o, ZeliSize) {
            double hi;
            cv::Point at;
            cv::minMaxLoc(o->a, nullptr, &hi, nullptr, &at);
            benchmark::DoNotOptimize(at.x + at.y);
        }, threads);
        registerRun("CountInRange_8u_C1" + mt, "zeli", maker(CV_8UC1), [](auto& o, ZeliSize s) {
            int n;
            zeliCountInRange_8u_C1R(o->template p<Zel8u>(), o->step(), s, &n, 50, 200);
            benchmark::DoNotOptimize(n);
        }, threads);
        registerRun("CountInRange_8u_C1" + mt, "opencv", maker(CV_8UC1), [](auto& o, ZeliSize) {
            cv::inRange(o->a, cv::Scalar(50), cv::Scalar(200), o->scratch);
            benchmark::DoNotOptimize(cv::countNonZero(o->scratch));
        }, threads);
        registerRun("MinEvery_8u_C1" + mt, "zeli", maker(CV_8UC1), [](auto& o, ZeliSize s) {
            zeliMinEvery_8u_C1IR(o->b.template ptr<Zel8u>(), o->step(), o->a.template ptr<Zel8u>(), o->step(), s);
        }, threads);
        registerRun("MinEvery_8u_C1" + mt, "opencv", maker(CV_8UC1), [](auto& o, ZeliSize) {
            cv::min(o->b, o->a, o->a);
        }, threads);
    }
    registerRead("Sum_8u_C1", 1);
    registerRead("Sum_32f_C1", 4);
    registerRead("Mean_8u_C3", 3);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
