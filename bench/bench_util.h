// Shared pieces of the benchmarks: the standard sizes, aligned buffers and
// the naming convention "<Group>/<impl>/<WxH>" that the ratio report reads
// (impl "zeli" is ours; every other impl of the same group and size is
// reported as its time divided by ours).
#pragma once

#include <benchmark/benchmark.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <opencv2/core.hpp>

#include "zeli.h"

namespace zel::bench {

inline const std::vector<ZeliSize>& standardSizes() {
    static const std::vector<ZeliSize> sizes = {{1920, 1080}, {3840, 2160}};
    return sizes;
}

inline std::string sizeName(ZeliSize s) { return std::to_string(s.width) + "x" + std::to_string(s.height); }

// Registers body once per size (the standard sizes by default) as
// "<group>/<impl>/<WxH>"; `bytes` (per iteration, for the given size) turns
// into a bandwidth counter.
inline void registerSized(const std::string& group, const std::string& impl,
                          std::function<void(benchmark::State&, ZeliSize)> body,
                          std::function<double(ZeliSize)> bytes = nullptr,
                          const std::vector<ZeliSize>& sizes = standardSizes()) {
    for (ZeliSize size : sizes) {
        benchmark::RegisterBenchmark((group + "/" + impl + "/" + sizeName(size)).c_str(),
                                     [body, bytes, size](benchmark::State& state) {
                                         body(state, size);
                                         if (bytes)
                                             state.SetBytesProcessed(
                                                 static_cast<int64_t>(state.iterations() * bytes(size)));
                                     })
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime();
    }
}

// "_mt" for benchmarks run with more than one thread: the report pairs
// "<group>" and "<group>_mt" as the single- and multi-threaded figures.
inline std::string threadSuffix(int threads) { return threads > 1 ? "_mt" : ""; }

// Registers `run(fixture, size)` in the timed loop, the fixture made once per
// size by `make(size)` outside the timing, with both zeli and OpenCV set to
// `threads` threads while it runs.
template <class Make, class Run>
void registerRun(const std::string& group, const std::string& impl, Make make, Run run, int threads = 1,
                 const std::vector<ZeliSize>& sizes = standardSizes()) {
    registerSized(group, impl, [=](benchmark::State& state, ZeliSize size) {
        auto fixture = make(size);
        zelSetNumThreads(threads);
        cv::setNumThreads(threads);
        for (auto _ : state) {
            run(fixture, size);
            benchmark::ClobberMemory();
        }
        zelSetNumThreads(1);
        cv::setNumThreads(1);
    }, nullptr, sizes);
}

// Our function and OpenCV's equivalent on the same fixture, both with
// `threads` threads: `zeli(fixture, size)` against `opencv(fixture)`.
template <class Make, class Zeli, class OpenCv>
void registerPair(const std::string& group, Make make, Zeli zeli, OpenCv opencv, int threads = 1,
                  const std::vector<ZeliSize>& sizes = standardSizes()) {
    registerRun(group, "zeli", make, zeli, threads, sizes);
    registerRun(group, "opencv", make, [opencv](auto& fixture, ZeliSize) { opencv(fixture); }, threads, sizes);
}

// A random source with `border` pixels on every side, its ROI and a
// destination of the ROI's size: the neighbourhood filters read real
// neighbours around our ROI, and OpenCV, working on the ROI of the bordered
// image, reads the same ones.
struct BorderedFrame {
    cv::Mat bordered, src, dst;
    BorderedFrame(ZeliSize s, int srcType, int dstType, int border)
        : bordered(s.height + 2 * border, s.width + 2 * border, srcType), dst(s.height, s.width, dstType) {
        cv::randu(bordered, 0, 255);
        src = bordered(cv::Rect(border, border, s.width, s.height));
    }
    template <class T>
    const T* in() const { return src.ptr<T>(); }
    template <class T>
    T* out() { return dst.ptr<T>(); }
    int inStep() const { return static_cast<int>(src.step); }
    int outStep() const { return static_cast<int>(dst.step); }
};

// A memcpy moving as many bytes as an operation that reads and writes
// `bytesPerPixel` bytes per pixel in all (half of them copied, half written):
// the bandwidth bound of a pixelwise operation, reported beside it.
inline void registerMemcpy(const std::string& group, double bytesPerPixel,
                           const std::vector<ZeliSize>& sizes = standardSizes()) {
    registerSized(group, "memcpy", [bytesPerPixel](benchmark::State& state, ZeliSize s) {
        const std::size_t bytes = std::size_t(bytesPerPixel / 2 * s.width * s.height);
        std::vector<char> src(bytes, 1), dst(bytes);
        for (auto _ : state) {
            std::memcpy(dst.data(), src.data(), bytes);
            benchmark::ClobberMemory();
        }
    }, nullptr, sizes);
}

// Two random sources a and b with values in [0, maxValue) and a
// destination d, all of one type and size.
struct TwoOperands {
    cv::Mat a, b, d;
    TwoOperands(ZeliSize s, int cvType, double maxValue)
        : a(s.height, s.width, cvType), b(s.height, s.width, cvType), d(s.height, s.width, cvType) {
        cv::randu(a, 0, maxValue);
        cv::randu(b, 0, maxValue);
    }
    template <class T>
    const T* pa() const { return a.ptr<T>(); }
    template <class T>
    const T* pb() const { return b.ptr<T>(); }
    template <class T>
    T* pd() { return d.ptr<T>(); }
    int step() const { return static_cast<int>(a.step); }
};

// Registers the benchmarks of one source file at start-up.
struct Registration {
    explicit Registration(void (*registerAll)()) { registerAll(); }
};

}  // namespace zel::bench
