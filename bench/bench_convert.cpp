// Type conversion and scaling against cv::Mat::convertTo (with alpha and
// beta for the scaling members), one thread and two, beside a memcpy of the
// bytes each conversion moves.
#include <opencv2/core.hpp>

#include <string>

#include "bench_util.h"

namespace {

using zel::bench::registerMemcpy;
using zel::bench::registerRun;
using zel::bench::threadSuffix;

struct Frame {
    cv::Mat src, dst;
    Frame(ZeliSize s, int srcType, int dstType) : src(s.height, s.width, srcType), dst(s.height, s.width, dstType) {
        cv::randu(src, cv::Scalar::all(-20), cv::Scalar::all(280));
    }
};

// One comparison: zeli(frame, size) against convertTo(dstDepth, alpha, beta).
template <class Zeli>
void registerPair(const std::string& group, int srcType, int dstType, double alpha, double beta, Zeli zeli) {
    const double bytesPerPixel = double(CV_ELEM_SIZE(srcType) + CV_ELEM_SIZE(dstType));
    auto make = [=](ZeliSize s) { return Frame(s, srcType, dstType); };
    for (int threads : {1, 2}) {
        const std::string name = group + threadSuffix(threads);
        registerRun(name, "zeli", make, [zeli](Frame& f, ZeliSize s) { zeli(f, s); }, threads);
        registerRun(name, "opencv", make, [=](Frame& f, ZeliSize) {
            f.src.convertTo(f.dst, CV_MAT_DEPTH(dstType), alpha, beta);
        }, threads);
    }
    registerMemcpy(group, bytesPerPixel);
}

template <class S, class D>
auto plain(ZelStatus (*fn)(const S*, int, D*, int, ZeliSize)) {
    return [fn](Frame& f, ZeliSize s) { fn(f.src.ptr<S>(), int(f.src.step), f.dst.ptr<D>(), int(f.dst.step), s); };
}

void registerAll() {
    registerPair("Convert_8u32f_C1", CV_8UC1, CV_32FC1, 1, 0, plain(zeliConvert_8u32f_C1R));
    registerPair("Convert_8u32f_C3", CV_8UC3, CV_32FC3, 1, 0, plain(zeliConvert_8u32f_C3R));
    registerPair("Convert_16s8u_C1", CV_16SC1, CV_8UC1, 1, 0, plain(zeliConvert_16s8u_C1R));
    registerPair("Convert_8u16u_C1", CV_8UC1, CV_16UC1, 1, 0, plain(zeliConvert_8u16u_C1R));
    const std::pair<const char*, ZelRoundingMode> modes[] = {
        {"zero", zelRoundTowardZero}, {"even", zelRoundNearestEven}, {"away", zelRoundHalfAway}};
    for (auto [suffix, mode] : modes)
        registerPair(std::string("Convert_32f8u_C1_") + suffix, CV_32FC1, CV_8UC1, 1, 0, [mode = mode](Frame& f, ZeliSize s) {
            zeliConvert_32f8u_C1R(f.src.ptr<Zel32f>(), int(f.src.step), f.dst.ptr<Zel8u>(), int(f.dst.step), s, mode);
        });
    // [-20, 280] onto 0..255.
    const float vMin = -20, vMax = 280;
    const double alpha = 255.0 / (vMax - vMin);
    registerPair("Scale_32f8u_C1", CV_32FC1, CV_8UC1, alpha, -alpha * vMin, [=](Frame& f, ZeliSize s) {
        zeliScale_32f8u_C1R(f.src.ptr<Zel32f>(), int(f.src.step), f.dst.ptr<Zel8u>(), int(f.dst.step), s, vMin, vMax);
    });
    registerPair("Scale_16u8u_C1", CV_16UC1, CV_8UC1, 1.0 / 257, 0, [](Frame& f, ZeliSize s) {
        zeliScale_16u8u_C1R(f.src.ptr<Zel16u>(), int(f.src.step), f.dst.ptr<Zel8u>(), int(f.dst.step), s,
                            zelAccuracyDefault);
    });
}

const zel::bench::Registration registration(registerAll);

}  // namespace
