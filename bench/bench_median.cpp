// Median filters against cv::medianBlur at 1920x1080, on one thread and on
// two ("_mt"). Sources carry a 3-pixel border, which the 7x7 window reaches;
// OpenCV filters the ROI of the bordered image.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench_util.h"

namespace {

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

struct Frame {
    cv::Mat bordered, src, dst;
    Frame(ZeliSize s, int type) : bordered(s.height + 6, s.width + 6, type), dst(s.height, s.width, type) {
        cv::randu(bordered, 0, 255);
        src = bordered(cv::Rect(3, 3, s.width, s.height));
    }
};

template <class Median>
void registerMedian(const std::string& group, int type, int side, Median median) {
    auto make = [type](ZeliSize s) { return Frame(s, type); };
    for (int threads : {1, 2}) {
        const std::string name = group + zel::bench::threadSuffix(threads);
        zel::bench::registerRun(name, "zeli", make, [median, side](Frame& f, ZeliSize s) {
            median(f.src.ptr<Zel8u>(), static_cast<int>(f.src.step), f.dst.ptr<Zel8u>(),
                   static_cast<int>(f.dst.step), s, ZeliSize{side, side}, ZeliPoint{side / 2, side / 2});
        }, threads, kSizes);
        zel::bench::registerRun(name, "opencv", make, [side](Frame& f, ZeliSize) {
            cv::medianBlur(f.src, f.dst, side);
        }, threads, kSizes);
    }
}

void registerAll() {
    registerMedian("Median_8u_C1_3x3", CV_8UC1, 3, zeliFilterMedian_8u_C1R);
    registerMedian("Median_8u_C1_5x5", CV_8UC1, 5, zeliFilterMedian_8u_C1R);
    registerMedian("Median_8u_C1_7x7", CV_8UC1, 7, zeliFilterMedian_8u_C1R);
    registerMedian("Median_8u_C3_3x3", CV_8UC3, 3, zeliFilterMedian_8u_C3R);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
