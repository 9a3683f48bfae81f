// Type conversion and scaling against cv::Mat::convertTo (with alpha and
// beta for the scaling members), one thread and two, beside a memcpy of the
// bytes each conversion moves.
#include <opencv2/core.hpp>

#include <string>

#include "bench_util.h"

namespace {

using zel::bench::registerMemcpy;
using zel::bench::threadSuffix;

struct Frame {
    cv::Mat src, dst;
    Frame(ZeliSize s, int srcType, int dstType) : src(s.height, s.width, srcType), dst(s.height, s.width, dstType) {
        cv::randu(src, cv::Scalar::all(-20), cv::Scalar::all(280));
    }
};

// One comparison: zeli(frame, size) against convertTo(dstDepth, alpha, beta),
// with one thread and with two, and the memcpy bound of the bytes moved.
template <class Zeli>
void registerConversion(const std::string& group, int srcType, int dstType, double alpha, double beta, Zeli zeli) {
    auto make = [=](ZeliSize s) { return Frame(s, srcType, dstType); };
    auto opencv = [=](Frame& f) { f.src.convertTo(f.dst, CV_MAT_DEPTH(dstType), alpha, beta); };
    for (int threads : {1, 2})
        zel::bench::registerPair(group + threadSuffix(threads), make, zeli, opencv, threads);
    registerMemcpy(group, double(CV_ELEM_SIZE(srcType) + CV_ELEM_SIZE(dstType)));
}

template <class S, class D>
auto plain(ZelStatus (*fn)(const S*, int, D*, int, ZeliSize)) {
    return [fn](Frame& f, ZeliSize s) { fn(f.src.ptr<S>(), int(f.src.step), f.dst.ptr<D>(), int(f.dst.step), s); };
}

void registerAll() {
    registerConversion("Convert_8u32f_C1", CV_8UC1, CV_32FC1, 1, 0, plain(zeliConvert_8u32f_C1R));
    registerConversion("Convert_8u32f_C3", CV_8UC3, CV_32FC3, 1, 0, plain(zeliConvert_8u32f_C3R));
    registerConversion("Convert_16s8u_C1", CV_16SC1, CV_8UC1, 1, 0, plain(zeliConvert_16s8u_C1R));
    registerConversion("Convert_8u16u_C1", CV_8UC1, CV_16UC1, 1, 0, plain(zeliConvert_8u16u_C1R));
    const std::pair<const char*, ZelRoundingMode> modes[] = {
        {"zero", zelRoundTowardZero}, {"even", zelRoundNearestEven}, {"away", zelRoundHalfAway}};
    for (auto [suffix, mode] : modes)
        registerConversion(std::string("Convert_32f8u_C1_") + suffix, CV_32FC1, CV_8UC1, 1, 0, [mode = mode](Frame& f, ZeliSize s) {
            zeliConvert_32f8u_C1R(f.src.ptr<Zel32f>(), int(f.src.step), f.dst.ptr<Zel8u>(), int(f.dst.step), s, mode);
        });
    // [-20, 280] onto 0..255.
    const float vMin = -20, vMax = 280;
    const double alpha = 255.0 / (vMax - vMin);
    registerConversion("Scale_32f8u_C1", CV_32FC1, CV_8UC1, alpha, -alpha * vMin, [=](Frame& f, ZeliSize s) {
        zeliScale_32f8u_C1R(f.src.ptr<Zel32f>(), int(f.src.step), f.dst.ptr<Zel8u>(), int(f.dst.step), s, vMin, vMax);
    });
    registerConversion("Scale_16u8u_C1", CV_16UC1, CV_8UC1, 1.0 / 257, 0, [](Frame& f, ZeliSize s) {
        zeliScale_16u8u_C1R(f.src.ptr<Zel16u>(), int(f.src.step), f.dst.ptr<Zel8u>(), int(f.dst.step), s,
                            zelAccuracyDefault);
    });
}

const zel::bench::Registration registration(registerAll);

}  // namespace
