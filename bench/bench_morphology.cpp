// Minimum and maximum filters and morphology against cv::erode and
// cv::dilate with the same structuring element, at 1920x1080, on one thread
// and on two ("_mt"). Sources carry a border of the element's reach; OpenCV
// works on the ROI of the bordered image and so reads the same neighbours.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::threadSuffix;

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

struct Frame : zel::bench::BorderedFrame {
    Frame(ZeliSize s, int type, int border) : BorderedFrame(s, type, type, border) {}
};

// Our call and OpenCV's on the same frame, for one and two threads.
template <class Zeli, class OpenCv>
void registerBoth(const std::string& group, int type, int border, Zeli zeli, OpenCv opencv) {
    for (int threads : {1, 2})
        zel::bench::registerPair(group + threadSuffix(threads),
                                 [type, border](ZeliSize s) { return Frame(s, type, border); }, zeli, opencv,
                                 threads, kSizes);
}

// A square element of side k, every byte a member.
std::vector<Zel8u> square(int k) { return std::vector<Zel8u>(std::size_t(k) * k, 1); }
// A cross of side k: the centre row and column.
std::vector<Zel8u> cross(int k) {
    std::vector<Zel8u> m(std::size_t(k) * k, 0);
    for (int i = 0; i < k; ++i) m[std::size_t(k / 2) * k + i] = m[std::size_t(i) * k + k / 2] = 1;
    return m;
}

void registerAll() {
    for (int k : {3, 15}) {
        const std::string side = std::to_string(k) + "x" + std::to_string(k);
        const cv::Mat rect = cv::getStructuringElement(cv::MORPH_RECT, cv::Size(k, k));
        registerBoth("FilterMin_8u_C1_" + side, CV_8UC1, k / 2, [k](Frame& f, ZeliSize s) {
            zeliFilterMin_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, {k, k}, {k / 2, k / 2});
        }, [rect](Frame& f) { cv::erode(f.src, f.dst, rect); });
        registerBoth("FilterMax_8u_C1_" + side, CV_8UC1, k / 2, [k](Frame& f, ZeliSize s) {
            zeliFilterMax_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, {k, k}, {k / 2, k / 2});
        }, [rect](Frame& f) { cv::dilate(f.src, f.dst, rect); });
    }
    const cv::Mat rect3 = cv::getStructuringElement(cv::MORPH_RECT, cv::Size(3, 3));
    registerBoth("Dilate3x3_8u_C1", CV_8UC1, 1, [](Frame& f, ZeliSize s) {
        zeliDilate3x3_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s);
    }, [rect3](Frame& f) { cv::dilate(f.src, f.dst, rect3); });
    registerBoth("Erode3x3_8u_C1", CV_8UC1, 1, [](Frame& f, ZeliSize s) {
        zeliErode3x3_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s);
    }, [rect3](Frame& f) { cv::erode(f.src, f.dst, rect3); });
    registerBoth("Dilate3x3_8u_C3", CV_8UC3, 1, [](Frame& f, ZeliSize s) {
        zeliDilate3x3_8u_C3R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s);
    }, [rect3](Frame& f) { cv::dilate(f.src, f.dst, rect3); });
    registerBoth("Erode3x3_8u_C3", CV_8UC3, 1, [](Frame& f, ZeliSize s) {
        zeliErode3x3_8u_C3R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s);
    }, [rect3](Frame& f) { cv::erode(f.src, f.dst, rect3); });
    registerBoth("Dilate3x3_32f_C1", CV_32FC1, 1, [](Frame& f, ZeliSize s) {
        zeliDilate3x3_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s);
    }, [rect3](Frame& f) { cv::dilate(f.src, f.dst, rect3); });
    registerBoth("Erode3x3_32f_C1", CV_32FC1, 1, [](Frame& f, ZeliSize s) {
        zeliErode3x3_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s);
    }, [rect3](Frame& f) { cv::erode(f.src, f.dst, rect3); });

    static const std::vector<Zel8u> square15 = square(15), cross7 = cross(7);
    const cv::Mat rect15 = cv::getStructuringElement(cv::MORPH_RECT, cv::Size(15, 15));
    const cv::Mat cvCross7 = cv::getStructuringElement(cv::MORPH_CROSS, cv::Size(7, 7));
    registerBoth("Dilate_8u_C1_15x15", CV_8UC1, 7, [](Frame& f, ZeliSize s) {
        zeliDilate_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, square15.data(), {15, 15},
                          {7, 7});
    }, [rect15](Frame& f) { cv::dilate(f.src, f.dst, rect15); });
    registerBoth("Dilate_8u_C1_cross7x7", CV_8UC1, 3, [](Frame& f, ZeliSize s) {
        zeliDilate_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, cross7.data(), {7, 7}, {3, 3});
    }, [cvCross7](Frame& f) { cv::dilate(f.src, f.dst, cvCross7); });
}

const zel::bench::Registration registration(registerAll);

}  // namespace
