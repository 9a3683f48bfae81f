// When threads pay: Add and Div on 8-bit images from 8x8 to 3840x2160, with
// padded rows (views into larger buffers, the common case) and contiguous
// ones, on one thread ("zeli") and with two allowed ("zeli2"), beside
// OpenCV on one thread. The ratio report then reads "zeli2 0.95" as "two
// threads take 95% of the one-thread time".
//
// Run it under both OpenMP wait policies (see docs/performance.md):
//   build/bench/zeli_bench --benchmark_filter=Fork
//   OMP_WAIT_POLICY=passive build/bench/zeli_bench --benchmark_filter=Fork
#include <opencv2/core.hpp>

#include <random>
#include <string>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerSized;

const std::vector<ZeliSize>& forkSizes() {
    static const std::vector<ZeliSize> sizes = {{8, 8}, {64, 64}, {256, 256}, {1920, 1080}, {3840, 2160}};
    return sizes;
}

// Three images of the ROI size; padded ones are views 32 pixels narrower
// than the buffer they live in.
struct Operands {
    cv::Mat bufA, bufB, bufD;
    cv::Mat a, b, d;
    Operands(ZeliSize s, bool padded) {
        const int pad = padded ? 32 : 0;
        std::mt19937 rng(7);
        for (cv::Mat* m : {&bufA, &bufB, &bufD}) {
            *m = cv::Mat(s.height, s.width + pad, CV_8UC1);
            for (int y = 0; y < m->rows; ++y)
                for (int x = 0; x < m->cols; ++x) m->at<Zel8u>(y, x) = static_cast<Zel8u>(rng() % 256);
        }
        a = bufA(cv::Rect(0, 0, s.width, s.height));
        b = bufB(cv::Rect(0, 0, s.width, s.height));
        d = bufD(cv::Rect(0, 0, s.width, s.height));
    }
    int step() const { return static_cast<int>(a.step); }
};

template <class Zeli, class OpenCv>
void registerGroup(const std::string& group, bool padded, Zeli zeli, OpenCv opencv) {
    for (int threads : {1, 2}) {
        registerSized(
            group, threads == 1 ? "zeli" : "zeli2",
            [=](benchmark::State& state, ZeliSize s) {
                Operands o(s, padded);
                zelSetNumThreads(threads);
                for (auto _ : state) {
                    zeli(o, s);
                    benchmark::ClobberMemory();
                }
                zelSetNumThreads(1);
            },
            nullptr, forkSizes());
    }
    registerSized(
        group, "opencv",
        [=](benchmark::State& state, ZeliSize s) {
            Operands o(s, padded);
            for (auto _ : state) {
                opencv(o);
                benchmark::ClobberMemory();
            }
        },
        nullptr, forkSizes());
}

void registerAll() {
    for (bool padded : {true, false}) {
        const std::string rows = padded ? "_padded" : "_contiguous";
        registerGroup("Fork_Add_8u_C1" + rows, padded, [](Operands& o, ZeliSize s) {
            zeliAdd_8u_C1RSfs(o.a.ptr<Zel8u>(), o.step(), o.b.ptr<Zel8u>(), o.step(), o.d.ptr<Zel8u>(), o.step(), s, 0);
        }, [](Operands& o) { cv::add(o.a, o.b, o.d); });
        registerGroup("Fork_Div_8u_C1" + rows, padded, [](Operands& o, ZeliSize s) {
            zeliDiv_8u_C1RSfs(o.a.ptr<Zel8u>(), o.step(), o.b.ptr<Zel8u>(), o.step(), o.d.ptr<Zel8u>(), o.step(), s, 0);
        }, [](Operands& o) { cv::divide(o.b, o.a, o.d); });
    }
}

const zel::bench::Registration registration(registerAll);

}  // namespace
