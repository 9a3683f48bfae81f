// Thresholds, comparisons and Otsu against their nearest OpenCV calls:
// Threshold_LT is THRESH_TOZERO's neighbour (values below the threshold
// change), Threshold_GT is THRESH_TRUNC; LTValGTVal has no single OpenCV
// call and is set beside THRESH_TRUNC and a memcpy of the bytes it moves;
// Compare and CompareC against cv::compare; Otsu against THRESH_OTSU
// (timing only: the two pick thresholds by different rules). One thread
// unless the name ends in _mt (two).
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <string>
#include <vector>

#include "bench_util.h"

namespace {

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

// The two operands and a one-byte-per-pixel mask for the comparisons.
struct Operands : zel::bench::TwoOperands {
    cv::Mat mask;
    Operands(ZeliSize s, int cvType) : TwoOperands(s, cvType, 256), mask(s.height, s.width, CV_8UC1) {}
    Zel8u* pm() { return mask.ptr<Zel8u>(); }
    int mstep() const { return static_cast<int>(mask.step); }
};

template <class Zeli, class OpenCv>
void registerPair(const std::string& group, int cvType, Zeli zeli, OpenCv opencv, int threads = 1) {
    zel::bench::registerPair(group, [cvType](ZeliSize s) { return Operands(s, cvType); }, zeli, opencv, threads,
                             kSizes);
}

void registerMemcpy(const std::string& group, double bytesPerPixel) {
    zel::bench::registerMemcpy(group, bytesPerPixel, kSizes);
}

void registerAll() {
    for (int threads : {1, 2}) {
        const std::string mt = threads > 1 ? "_mt" : "";
        registerPair("Threshold_LT_8u_C1" + mt, CV_8UC1, [](Operands& o, ZeliSize s) {
            zeliThreshold_LT_8u_C1R(o.pa<Zel8u>(), o.step(), o.pd<Zel8u>(), o.step(), s, 100);
        }, [](Operands& o) { cv::threshold(o.a, o.d, 100, 0, cv::THRESH_TOZERO); }, threads);
        registerPair("Threshold_GT_8u_C1" + mt, CV_8UC1, [](Operands& o, ZeliSize s) {
            zeliThreshold_GT_8u_C1R(o.pa<Zel8u>(), o.step(), o.pd<Zel8u>(), o.step(), s, 100);
        }, [](Operands& o) { cv::threshold(o.a, o.d, 100, 0, cv::THRESH_TRUNC); }, threads);
        registerPair("Threshold_GT_32f_C1" + mt, CV_32FC1, [](Operands& o, ZeliSize s) {
            zeliThreshold_GT_32f_C1R(o.pa<Zel32f>(), o.step(), o.pd<Zel32f>(), o.step(), s, 100.f);
        }, [](Operands& o) { cv::threshold(o.a, o.d, 100, 0, cv::THRESH_TRUNC); }, threads);
        registerPair("Threshold_LTValGTVal_8u_C1" + mt, CV_8UC1, [](Operands& o, ZeliSize s) {
            zeliThreshold_LTValGTVal_8u_C1R(o.pa<Zel8u>(), o.step(), o.pd<Zel8u>(), o.step(), s, 50, 0, 200, 255);
        }, [](Operands& o) { cv::threshold(o.a, o.d, 200, 0, cv::THRESH_TRUNC); }, threads);
        registerPair("Compare_8u_C1" + mt, CV_8UC1, [](Operands& o, ZeliSize s) {
            zeliCompare_8u_C1R(o.pa<Zel8u>(), o.step(), o.pb<Zel8u>(), o.step(), o.pm(), o.mstep(), s, zelCompareLess);
        }, [](Operands& o) { cv::compare(o.a, o.b, o.mask, cv::CMP_LT); }, threads);
        registerPair("CompareC_32f_C1" + mt, CV_32FC1, [](Operands& o, ZeliSize s) {
            zeliCompareC_32f_C1R(o.pa<Zel32f>(), o.step(), 100.f, o.pm(), o.mstep(), s, zelCompareGreater);
        }, [](Operands& o) { cv::compare(o.a, 100.0, o.mask, cv::CMP_GT); }, threads);
        registerPair("Otsu_8u_C1" + mt, CV_8UC1, [](Operands& o, ZeliSize s) {
            Zel8u t = 0;
            zeliComputeThreshold_Otsu_8u_C1R(o.pa<Zel8u>(), o.step(), s, &t);
            benchmark::DoNotOptimize(t);
        }, [](Operands& o) {
            // OpenCV also writes the thresholded image; only the threshold
            // is asked of zeli.
            benchmark::DoNotOptimize(cv::threshold(o.a, o.d, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU));
        }, threads);
    }
    registerPair("Threshold_LT_32f_C1", CV_32FC1, [](Operands& o, ZeliSize s) {
        zeliThreshold_LT_32f_C1R(o.pa<Zel32f>(), o.step(), o.pd<Zel32f>(), o.step(), s, 100.f);
    }, [](Operands& o) { cv::threshold(o.a, o.d, 100, 0, cv::THRESH_TOZERO); });
    // cv::compare of multi-channel images compares channel by channel
    // (a 3-channel mask); zeli writes one byte per pixel.
    registerPair("Compare_8u_C3", CV_8UC3, [](Operands& o, ZeliSize s) {
        zeliCompare_8u_C3R(o.pa<Zel8u>(), o.step(), o.pb<Zel8u>(), o.step(), o.pm(), o.mstep(), s, zelCompareLess);
    }, [](Operands& o) { cv::compare(o.a, o.b, o.d, cv::CMP_LT); });
    for (const char* group : {"Threshold_LT_8u_C1", "Threshold_GT_8u_C1", "Threshold_LTValGTVal_8u_C1"})
        registerMemcpy(group, 2);
    registerMemcpy("Compare_8u_C1", 3);
    registerMemcpy("CompareC_32f_C1", 5);
    registerMemcpy("Threshold_GT_32f_C1", 8);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
