// Fixed-kernel filters against OpenCV's filters with the same kernel (or the
// nearest one OpenCV has), at 1920x1080, on one thread and on two ("_mt").
// Sources carry a 2-pixel border; OpenCV filters the ROI of the bordered
// image and so reads the same real neighbours instead of building a border.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <functional>

#include "bench_util.h"

namespace {

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

// A source with a 2-pixel border, its ROI and a destination.
struct Frame : zel::bench::BorderedFrame {
    Frame(ZeliSize s, int srcType, int dstType) : BorderedFrame(s, srcType, dstType, 2) {}
};

// `sameKernel`, when given, is OpenCV's evaluation of exactly our kernel
// where its own filter of the kind uses another one.
template <class Zeli, class OpenCv>
void registerPair(const std::string& group, int srcType, int dstType, Zeli zeli, OpenCv opencv,
                  std::function<void(Frame&)> sameKernel = nullptr) {
    const auto make = [=](ZeliSize s) { return Frame(s, srcType, dstType); };
    for (int threads : {1, 2}) {
        const std::string name = group + zel::bench::threadSuffix(threads);
        zel::bench::registerPair(name, make, zeli, opencv, threads, kSizes);
        if (sameKernel)
            zel::bench::registerRun(name, "opencv_filter2D", make,
                                    [sameKernel](Frame& f, ZeliSize) { sameKernel(f); }, threads, kSizes);
    }
}

// The 5x5 Gauss kernel of weight 571, for cv::filter2D.
cv::Mat gauss571() {
    const float rows[5][5] = {{2, 7, 12, 7, 2}, {7, 31, 52, 31, 7}, {12, 52, 127, 52, 12},
                              {7, 31, 52, 31, 7}, {2, 7, 12, 7, 2}};
    return cv::Mat(5, 5, CV_32F, const_cast<float*>(&rows[0][0])).clone() / 571.0f;
}

void registerAll() {
    registerPair("SobelHoriz_8u16s_3x3", CV_8UC1, CV_16SC1, [](Frame& f, ZeliSize s) {
        zeliFilterSobelHoriz_8u16s_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel16s>(), f.outStep(), s, zelMaskCode3x3);
    }, [](Frame& f) { cv::Sobel(f.src, f.dst, CV_16S, 0, 1, 3); });
    registerPair("SobelVert_8u16s_3x3", CV_8UC1, CV_16SC1, [](Frame& f, ZeliSize s) {
        zeliFilterSobelVert_8u16s_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel16s>(), f.outStep(), s, zelMaskCode3x3);
    }, [](Frame& f) { cv::Sobel(f.src, f.dst, CV_16S, 1, 0, 3); });
    registerPair("Gauss_8u_C1_3x3", CV_8UC1, CV_8UC1, [](Frame& f, ZeliSize s) {
        zeliFilterGauss_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, zelMaskCode3x3);
    }, [](Frame& f) { cv::GaussianBlur(f.src, f.dst, cv::Size(3, 3), 0); });
    // OpenCV's 5x5 Gaussian is separable (1 4 6 4 1); ours is the 571
    // kernel, which is not: filter2D evaluates that one.
    static const cv::Mat k571 = gauss571();
    registerPair("Gauss_8u_C1_5x5", CV_8UC1, CV_8UC1, [](Frame& f, ZeliSize s) {
        zeliFilterGauss_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, zelMaskCode5x5);
    }, [](Frame& f) { cv::GaussianBlur(f.src, f.dst, cv::Size(5, 5), 0); },
                 [](Frame& f) { cv::filter2D(f.src, f.dst, -1, k571); });
    registerPair("Gauss_32f_C1_3x3", CV_32FC1, CV_32FC1, [](Frame& f, ZeliSize s) {
        zeliFilterGauss_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s, zelMaskCode3x3);
    }, [](Frame& f) { cv::GaussianBlur(f.src, f.dst, cv::Size(3, 3), 0); });
    registerPair("Gauss_32f_C1_5x5", CV_32FC1, CV_32FC1, [](Frame& f, ZeliSize s) {
        zeliFilterGauss_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s, zelMaskCode5x5);
    }, [](Frame& f) { cv::GaussianBlur(f.src, f.dst, cv::Size(5, 5), 0); },
                 [](Frame& f) { cv::filter2D(f.src, f.dst, -1, k571); });
    registerPair("Lowpass_8u_C1_3x3", CV_8UC1, CV_8UC1, [](Frame& f, ZeliSize s) {
        zeliFilterLowpass_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, zelMaskCode3x3);
    }, [](Frame& f) { cv::blur(f.src, f.dst, cv::Size(3, 3)); });
    registerPair("Lowpass_8u_C1_5x5", CV_8UC1, CV_8UC1, [](Frame& f, ZeliSize s) {
        zeliFilterLowpass_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, zelMaskCode5x5);
    }, [](Frame& f) { cv::blur(f.src, f.dst, cv::Size(5, 5)); });
    // OpenCV's 3x3 Laplacian (ksize 3) weights the corners 2 and the centre
    // -8; ours weights the eight neighbours -1 and the centre 8.
    registerPair("Laplace_8u16s_3x3", CV_8UC1, CV_16SC1, [](Frame& f, ZeliSize s) {
        zeliFilterLaplace_8u16s_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel16s>(), f.outStep(), s, zelMaskCode3x3);
    }, [](Frame& f) { cv::Laplacian(f.src, f.dst, CV_16S, 3); });
}

const zel::bench::Registration registration(registerAll);

}  // namespace
