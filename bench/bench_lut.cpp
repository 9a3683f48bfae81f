// Look-up tables and palettes: LUT 8u C1 and C3 and LUTPalette 8u C1 against
// cv::LUT with the same 256-entry tables; LUT_Linear 16u C1 and LUT 32f C1,
// which OpenCV has no call for, against a plain scalar loop of the same
// rule (the interval search and the formula for every pixel). Nine levels
// (eight intervals) throughout. One thread unless the name ends in _mt (two).
#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerRun;
using zel::bench::threadSuffix;

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

// Nine levels over [0, top) and values that scramble them.
std::vector<int> levelsOver(int top) {
    std::vector<int> l;
    for (int k = 0; k < 9; ++k) l.push_back(k * top / 8);
    return l;
}
std::vector<int> valuesOver(int top, int channel) {
    std::vector<int> v;
    for (int k = 0; k < 9; ++k) v.push_back(((k * 5 + channel * 3) % 9) * (top - 1) / 8);
    return v;
}

struct Bytes {
    cv::Mat src, dst, lut;
    std::vector<int> lev[3], val[3];
    Bytes(ZeliSize s, int channels) : src(s.height, s.width, CV_8UC(channels)), dst(s.height, s.width, CV_8UC(channels)) {
        cv::randu(src, 0, 256);
        lut = cv::Mat(1, 256, CV_8UC(channels));
        for (int c = 0; c < channels; ++c) {
            lev[c] = levelsOver(256);
            val[c] = valuesOver(256, c);
            // The same step function as the zeli call.
            for (int i = 0; i < 256; ++i) lut.ptr<Zel8u>()[i * channels + c] = Zel8u(val[c][i * 8 / 256]);
        }
    }
    int step() const { return int(src.step); }
};

struct Words {
    cv::Mat src, dst;
    std::vector<int> lev, val;
    std::vector<float> flev, fval;
    Words(ZeliSize s, int type) : src(s.height, s.width, type), dst(s.height, s.width, type) {
        const bool isFloat = type == CV_32FC1;
        cv::randu(src, 0, isFloat ? 1000 : 65536);
        lev = levelsOver(65536);
        val = valuesOver(65536, 1);
        for (int k = 0; k < 9; ++k) flev.push_back(float(k) * 125.f), fval.push_back(float(val[k]) / 64.f);
    }
    int step() const { return int(src.step); }
};

// The rule of LUT_Linear 16u, one pixel at a time.
void scalarLinear16u(Words& w, ZeliSize s) {
    const int n = int(w.lev.size());
    for (int y = 0; y < s.height; ++y) {
        const Zel16u* in = w.src.ptr<Zel16u>(y);
        Zel16u* out = w.dst.ptr<Zel16u>(y);
        for (int x = 0; x < s.width; ++x) {
            const int v = in[x];
            Zel16u r = Zel16u(v);
            for (int k = 0; k + 1 < n; ++k)
                if (w.lev[k] <= v && v < w.lev[k + 1]) {
                    const double slope = double(w.val[k + 1] - w.val[k]) / (w.lev[k + 1] - w.lev[k]);
                    const double value = std::trunc(v * slope + w.val[k] + 0.5 - w.lev[k] * slope);
                    r = Zel16u(std::clamp(value, 0.0, 65535.0));
                    break;
                }
            out[x] = r;
        }
    }
}

// The rule of LUT 32f, one pixel at a time.
void scalarStep32f(Words& w, ZeliSize s) {
    const int n = int(w.flev.size());
    for (int y = 0; y < s.height; ++y) {
        const float* in = w.src.ptr<float>(y);
        float* out = w.dst.ptr<float>(y);
        for (int x = 0; x < s.width; ++x) {
            const float v = in[x];
            float r = v;
            for (int k = 0; k + 1 < n; ++k)
                if (w.flev[k] <= v && v < w.flev[k + 1]) {
                    r = w.fval[k];
                    break;
                }
            out[x] = r;
        }
    }
}

void registerAll() {
    for (int threads : {1, 2}) {
        const std::string mt = threadSuffix(threads);
        auto c1 = [](ZeliSize s) { return Bytes(s, 1); };
        auto c3 = [](ZeliSize s) { return Bytes(s, 3); };
        registerRun("LUT_8u_C1" + mt, "zeli", c1, [](Bytes& b, ZeliSize s) {
            zeliLUT_8u_C1R(b.src.ptr<Zel8u>(), b.step(), b.dst.ptr<Zel8u>(), b.step(), s, b.val[0].data(),
                           b.lev[0].data(), 9);
        }, threads, kSizes);
        registerRun("LUT_8u_C1" + mt, "opencv", c1, [](Bytes& b, ZeliSize) { cv::LUT(b.src, b.lut, b.dst); }, threads,
                    kSizes);
        registerRun("LUT_8u_C3" + mt, "zeli", c3, [](Bytes& b, ZeliSize s) {
            const Zel32s* v[3] = {b.val[0].data(), b.val[1].data(), b.val[2].data()};
            const Zel32s* l[3] = {b.lev[0].data(), b.lev[1].data(), b.lev[2].data()};
            const int n[3] = {9, 9, 9};
            zeliLUT_8u_C3R(b.src.ptr<Zel8u>(), b.step(), b.dst.ptr<Zel8u>(), b.step(), s, v, l, n);
        }, threads, kSizes);
        registerRun("LUT_8u_C3" + mt, "opencv", c3, [](Bytes& b, ZeliSize) { cv::LUT(b.src, b.lut, b.dst); }, threads,
                    kSizes);
        registerRun("LUTPalette_8u_C1" + mt, "zeli", c1, [](Bytes& b, ZeliSize s) {
            zeliLUTPalette_8u_C1R(b.src.ptr<Zel8u>(), b.step(), b.dst.ptr<Zel8u>(), b.step(), s, b.lut.ptr<Zel8u>(), 8);
        }, threads, kSizes);
        registerRun("LUTPalette_8u_C1" + mt, "opencv", c1, [](Bytes& b, ZeliSize) { cv::LUT(b.src, b.lut, b.dst); },
                    threads, kSizes);
        auto w16 = [](ZeliSize s) { return Words(s, CV_16UC1); };
        auto w32 = [](ZeliSize s) { return Words(s, CV_32FC1); };
        registerRun("LUT_Linear_16u_C1" + mt, "zeli", w16, [](Words& w, ZeliSize s) {
            zeliLUT_Linear_16u_C1R(w.src.ptr<Zel16u>(), w.step(), w.dst.ptr<Zel16u>(), w.step(), s, w.val.data(),
                                   w.lev.data(), 9);
        }, threads, kSizes);
        registerRun("LUT_32f_C1" + mt, "zeli", w32, [](Words& w, ZeliSize s) {
            zeliLUT_32f_C1R(w.src.ptr<Zel32f>(), w.step(), w.dst.ptr<Zel32f>(), w.step(), s, w.fval.data(),
                            w.flev.data(), 9);
        }, threads, kSizes);
    }
    registerRun("LUT_Linear_16u_C1", "scalar", [](ZeliSize s) { return Words(s, CV_16UC1); }, scalarLinear16u, 1,
                kSizes);
    registerRun("LUT_32f_C1", "scalar", [](ZeliSize s) { return Words(s, CV_32FC1); }, scalarStep32f, 1, kSizes);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
