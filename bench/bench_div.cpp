// Division: Div 8u (scale factor 0) and Div 32f against cv::divide. Both
// sides divide the same dividend image by the same divisor image, with a
// few zero divisors among the values.
#include <opencv2/core.hpp>

#include <random>

#include "bench_util.h"

namespace {

using zel::bench::registerSized;

template <class T>
cv::Mat randomImage(ZeliSize s, int type, unsigned seed) {
    cv::Mat m(s.height, s.width, type);
    std::mt19937 rng(seed);
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) m.at<T>(y, x) = static_cast<T>(rng() % 256);
    return m;
}

template <class T>
void registerPair(const char* group, int type,
                  ZelStatus (*div)(const T*, int, const T*, int, T*, int, ZeliSize, int)) {
    const auto bytes = [](ZeliSize s) { return 3.0 * s.width * s.height * sizeof(T); };
    registerSized(
        group, "zeli",
        [=](benchmark::State& state, ZeliSize s) {
            const cv::Mat divisor = randomImage<T>(s, type, 1), dividend = randomImage<T>(s, type, 2);
            cv::Mat dst(s.height, s.width, type);
            for (auto _ : state) {
                div(divisor.ptr<T>(), int(divisor.step), dividend.ptr<T>(), int(dividend.step), dst.ptr<T>(),
                    int(dst.step), s, 0);
                benchmark::ClobberMemory();
            }
        },
        bytes);
    registerSized(
        group, "opencv",
        [=](benchmark::State& state, ZeliSize s) {
            const cv::Mat divisor = randomImage<T>(s, type, 1), dividend = randomImage<T>(s, type, 2);
            cv::Mat dst(s.height, s.width, type);
            for (auto _ : state) {
                cv::divide(dividend, divisor, dst);
                benchmark::ClobberMemory();
            }
        },
        bytes);
}

ZelStatus div32f(const Zel32f* a, int as, const Zel32f* b, int bs, Zel32f* d, int ds, ZeliSize s, int) {
    return zeliDiv_32f_C1R(a, as, b, bs, d, ds, s);
}

void registerAll() {
    registerPair<Zel8u>("Div_8u_C1", CV_8UC1, zeliDiv_8u_C1RSfs);
    registerPair<Zel32f>("Div_32f_C1", CV_32FC1, div32f);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
