// Unary mathematics against OpenCV's element-wise functions (cv::abs,
// cv::multiply(a, a), cv::sqrt, cv::log, cv::exp) at 1920x1080, one thread
// and two, and against the memcpy bound for Abs and Sqr.
#include <opencv2/core.hpp>

#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::threadSuffix;

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

// Source and destination of one benchmark; values in [lo, hi].
struct Images {
    cv::Mat a, d;
    Images(ZeliSize s, int cvType, double lo, double hi) : a(s.height, s.width, cvType), d(s.height, s.width, cvType) {
        cv::randu(a, lo, hi);
    }
    template <class T>
    const T* src() const { return a.ptr<T>(); }
    template <class T>
    T* dst() { return d.ptr<T>(); }
    int step() const { return static_cast<int>(a.step); }
};

template <class Zeli, class OpenCv>
void registerPair(const std::string& group, int cvType, double lo, double hi, Zeli zeli, OpenCv opencv) {
    const auto make = [=](ZeliSize s) { return Images(s, cvType, lo, hi); };
    for (int threads : {1, 2})
        zel::bench::registerPair(group + threadSuffix(threads), make, zeli, opencv, threads, kSizes);
}

// memcpy of as many bytes as the operation reads (and writes).
void registerMemcpy(const std::string& group, int bytesPerPixel) {
    zel::bench::registerMemcpy(group, 2.0 * bytesPerPixel, kSizes);
}

void registerAll() {
    registerPair("Abs_16s_C1", CV_16SC1, -30000, 30000, [](Images& o, ZeliSize s) {
        zeliAbs_16s_C1R(o.src<Zel16s>(), o.step(), o.dst<Zel16s>(), o.step(), s);
    }, [](Images& o) { o.d = cv::abs(o.a); });
    registerMemcpy("Abs_16s_C1", 2);
    registerPair("Abs_32f_C1", CV_32FC1, -1000, 1000, [](Images& o, ZeliSize s) {
        zeliAbs_32f_C1R(o.src<Zel32f>(), o.step(), o.dst<Zel32f>(), o.step(), s);
    }, [](Images& o) { o.d = cv::abs(o.a); });
    registerMemcpy("Abs_32f_C1", 4);
    registerPair("Sqr_32f_C1", CV_32FC1, -1000, 1000, [](Images& o, ZeliSize s) {
        zeliSqr_32f_C1R(o.src<Zel32f>(), o.step(), o.dst<Zel32f>(), o.step(), s);
    }, [](Images& o) { cv::multiply(o.a, o.a, o.d); });
    registerMemcpy("Sqr_32f_C1", 4);
    registerPair("Sqrt_32f_C1", CV_32FC1, 0, 1000, [](Images& o, ZeliSize s) {
        zeliSqrt_32f_C1R(o.src<Zel32f>(), o.step(), o.dst<Zel32f>(), o.step(), s);
    }, [](Images& o) { cv::sqrt(o.a, o.d); });
    registerPair("Ln_32f_C1", CV_32FC1, 0.001, 1000, [](Images& o, ZeliSize s) {
        zeliLn_32f_C1R(o.src<Zel32f>(), o.step(), o.dst<Zel32f>(), o.step(), s);
    }, [](Images& o) { cv::log(o.a, o.d); });
    registerPair("Exp_32f_C1", CV_32FC1, -80, 80, [](Images& o, ZeliSize s) {
        zeliExp_32f_C1R(o.src<Zel32f>(), o.step(), o.dst<Zel32f>(), o.step(), s);
    }, [](Images& o) { cv::exp(o.a, o.d); });
}

const zel::bench::Registration registration(registerAll);

}  // namespace
