// User-kernel filters against OpenCV at 1920x1080, on one thread and on two
// ("_mt"): Filter32f on 8u and Filter_32f with 3x3, 5x5 and 11x11 kernels
// against cv::filter2D (given the mirrored kernel: OpenCV correlates), the
// 32f row and column filters against cv::sepFilter2D with a one-tap other
// direction. Sources carry a border wide enough for the kernel; OpenCV
// filters the ROI of the bordered image and so reads the same neighbours.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench_util.h"

namespace {

using zel::bench::registerSized;

const std::vector<ZeliSize> kSizes = {{1920, 1080}};
constexpr int kBorder = 5;

// The bordered frame with a random kernel (and its mirror for OpenCV).
struct Frame : zel::bench::BorderedFrame {
    cv::Mat kernel, mirrored;
    Frame(ZeliSize s, int type, int kw, int kh) : BorderedFrame(s, type, type, kBorder), kernel(kh, kw, CV_32F) {
        cv::randu(kernel, -1.0f, 1.0f);
        kernel /= static_cast<float>(kw * kh);
        cv::flip(kernel, mirrored, -1);
    }
    const float* taps() const { return kernel.ptr<float>(); }
};

template <class Zeli, class OpenCv>
void registerPair(const std::string& group, int type, int kw, int kh, Zeli zeli, OpenCv opencv) {
    for (int threads : {1, 2}) {
        const std::string name = group + zel::bench::threadSuffix(threads);
        registerSized(name, "zeli", [=](benchmark::State& state, ZeliSize s) {
            Frame f(s, type, kw, kh);
            zelSetNumThreads(threads);
            for (auto _ : state) {
                zeli(f, s);
                benchmark::ClobberMemory();
            }
            zelSetNumThreads(1);
        }, nullptr, kSizes);
        registerSized(name, "opencv", [=](benchmark::State& state, ZeliSize s) {
            Frame f(s, type, kw, kh);
            cv::setNumThreads(threads);
            for (auto _ : state) {
                opencv(f);
                benchmark::ClobberMemory();
            }
            cv::setNumThreads(1);
        }, nullptr, kSizes);
    }
}

void registerAll() {
    for (int k : {3, 5, 11}) {
        const std::string size = std::to_string(k) + "x" + std::to_string(k);
        const ZeliPoint anchor{k / 2, k / 2};
        registerPair("Filter32f_8u_C1_" + size, CV_8UC1, k, k, [=](Frame& f, ZeliSize s) {
            zeliFilter32f_8u_C1R(f.in<Zel8u>(), f.inStep(), f.out<Zel8u>(), f.outStep(), s, f.taps(), {k, k}, anchor);
        }, [](Frame& f) { cv::filter2D(f.src, f.dst, CV_8U, f.mirrored); });
        registerPair("Filter_32f_C1_" + size, CV_32FC1, k, k, [=](Frame& f, ZeliSize s) {
            zeliFilter_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s, f.taps(), {k, k}, anchor);
        }, [](Frame& f) { cv::filter2D(f.src, f.dst, CV_32F, f.mirrored); });
    }
    for (int k : {5, 11}) {
        const cv::Mat one = cv::Mat::ones(1, 1, CV_32F);
        registerPair("FilterRow_32f_C1_" + std::to_string(k), CV_32FC1, k, 1, [=](Frame& f, ZeliSize s) {
            zeliFilterRow_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s, f.taps(), k, k / 2);
        }, [one](Frame& f) { cv::sepFilter2D(f.src, f.dst, CV_32F, f.mirrored, one); });
        registerPair("FilterColumn_32f_C1_" + std::to_string(k), CV_32FC1, 1, k, [=](Frame& f, ZeliSize s) {
            zeliFilterColumn_32f_C1R(f.in<Zel32f>(), f.inStep(), f.out<Zel32f>(), f.outStep(), s, f.taps(), k,
                                     k / 2);
        }, [one](Frame& f) { cv::sepFilter2D(f.src, f.dst, CV_32F, one, f.mirrored); });
    }
}

const zel::bench::Registration kRegistration(registerAll);

}  // namespace
