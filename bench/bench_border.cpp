// Border construction against cv::copyMakeBorder with the same border, and
// against a memcpy of the destination's bytes (the bound of an
// out-of-place border: every destination byte is written once). The size
// is the source's; the destination adds the border on every side.
#include <opencv2/core.hpp>

#include <cstring>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerSized;

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

struct Frame {
    cv::Mat src, dst;
    int border;
    Frame(ZeliSize s, int cvType, int b) : src(s.height, s.width, cvType), dst(s.height + 2 * b, s.width + 2 * b, cvType), border(b) {
        cv::randu(src, 0, 255);
    }
    ZeliSize dstSize() const { return {dst.cols, dst.rows}; }
};

template <class Zeli>
void registerBorder(const std::string& group, int cvType, int border, int cvBorder, Zeli zeli) {
    registerSized(group, "zeli", [=](benchmark::State& state, ZeliSize s) {
        Frame f(s, cvType, border);
        zelSetNumThreads(1);
        for (auto _ : state) {
            zeli(f, s);
            benchmark::ClobberMemory();
        }
    }, nullptr, kSizes);
    registerSized(group, "opencv", [=](benchmark::State& state, ZeliSize s) {
        Frame f(s, cvType, border);
        cv::setNumThreads(1);
        for (auto _ : state) {
            cv::copyMakeBorder(f.src, f.dst, border, border, border, border, cvBorder, cv::Scalar(7, 8, 9));
            benchmark::ClobberMemory();
        }
    }, nullptr, kSizes);
    registerSized(group, "memcpy", [=](benchmark::State& state, ZeliSize s) {
        Frame f(s, cvType, border);
        const std::size_t bytes = f.dst.total() * f.dst.elemSize();
        std::vector<char> from(bytes, 1), to(bytes);
        for (auto _ : state) {
            std::memcpy(to.data(), from.data(), bytes);
            benchmark::ClobberMemory();
        }
    }, nullptr, kSizes);
}

void registerAll() {
    for (int b : {1, 2, 16}) {
        const std::string suffix = "_b" + std::to_string(b);
        registerBorder("ReplicateBorder_8u_C1" + suffix, CV_8UC1, b, cv::BORDER_REPLICATE, [b](Frame& f, ZeliSize s) {
            zeliCopyReplicateBorder_8u_C1R(f.src.ptr<Zel8u>(), int(f.src.step), s, f.dst.ptr<Zel8u>(), int(f.dst.step),
                                           f.dstSize(), b, b);
        });
        registerBorder("ReplicateBorder_8u_C3" + suffix, CV_8UC3, b, cv::BORDER_REPLICATE, [b](Frame& f, ZeliSize s) {
            zeliCopyReplicateBorder_8u_C3R(f.src.ptr<Zel8u>(), int(f.src.step), s, f.dst.ptr<Zel8u>(), int(f.dst.step),
                                           f.dstSize(), b, b);
        });
        registerBorder("ConstBorder_8u_C1" + suffix, CV_8UC1, b, cv::BORDER_CONSTANT, [b](Frame& f, ZeliSize s) {
            zeliCopyConstBorder_8u_C1R(f.src.ptr<Zel8u>(), int(f.src.step), s, f.dst.ptr<Zel8u>(), int(f.dst.step),
                                       f.dstSize(), b, b, 7);
        });
        registerBorder("ConstBorder_8u_C3" + suffix, CV_8UC3, b, cv::BORDER_CONSTANT, [b](Frame& f, ZeliSize s) {
            const Zel8u value[3] = {7, 8, 9};
            zeliCopyConstBorder_8u_C3R(f.src.ptr<Zel8u>(), int(f.src.step), s, f.dst.ptr<Zel8u>(), int(f.dst.step),
                                       f.dstSize(), b, b, value);
        });
        // The one wrapping member is 32s (OpenCV: BORDER_WRAP on CV_32S).
        registerBorder("WrapBorder_32s_C1" + suffix, CV_32SC1, b, cv::BORDER_WRAP, [b](Frame& f, ZeliSize s) {
            zeliCopyWrapBorder_32s_C1R(f.src.ptr<Zel32s>(), int(f.src.step), s, f.dst.ptr<Zel32s>(), int(f.dst.step),
                                       f.dstSize(), b, b);
        });
    }
}

const zel::bench::Registration registration(registerAll);

}  // namespace
