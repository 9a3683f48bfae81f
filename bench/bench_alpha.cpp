// Alpha compositing. OpenCV has no compositing operation: AlphaComp Over and
// AlphaPremul are compared with a memcpy moving the same bytes and with a
// plain scalar loop of the same formula, compiled at -O3 for the best
// instruction set of the machine and left to the compiler's vectoriser.
// CompColorKey is compared with cv::inRange and a masked copyTo.
#include <opencv2/core.hpp>

#include <cstdint>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerMemcpy;
using zel::bench::registerRun;

const std::vector<ZeliSize> kSizes = {{1920, 1080}};

inline std::uint32_t mul255(std::uint32_t x, std::uint32_t y) {
    const std::uint32_t t = x * y;
    return (t + (t >> 8) + 1) >> 8;
}

// The Over rule on straight AC4 pixels, written as a plain loop.
template <int Dummy>
inline void overLoop(const std::uint8_t* __restrict s1, const std::uint8_t* __restrict s2, std::uint8_t* __restrict d,
                     std::size_t pixels) {
    for (std::size_t i = 0; i < pixels; ++i) {
        const std::uint32_t a1 = s1[4 * i + 3], a2 = s2[4 * i + 3];
        for (int c = 0; c < 3; ++c) {
            const std::uint32_t c1 = mul255(s1[4 * i + c], a1), c2 = mul255(s2[4 * i + c], a2);
            const std::uint32_t v = c1 + mul255(c2, 255 - a1);
            d[4 * i + c] = static_cast<std::uint8_t>(v > 255 ? 255 : v);
        }
        const std::uint32_t a = a1 + mul255(a2, 255 - a1);
        d[4 * i + 3] = static_cast<std::uint8_t>(a > 255 ? 255 : a);
    }
}

template <int Dummy>
inline void premulLoop(const std::uint8_t* __restrict s, std::uint8_t* __restrict d, std::size_t pixels) {
    for (std::size_t i = 0; i < pixels; ++i) {
        const std::uint32_t a = s[4 * i + 3];
        for (int c = 0; c < 3; ++c) d[4 * i + c] = static_cast<std::uint8_t>(mul255(s[4 * i + c], a));
        d[4 * i + 3] = static_cast<std::uint8_t>(a);
    }
}

__attribute__((target("avx2"), optimize("O3"))) void overAvx2(const std::uint8_t* s1, const std::uint8_t* s2,
                                                               std::uint8_t* d, std::size_t n) {
    overLoop<1>(s1, s2, d, n);
}
__attribute__((optimize("O3"))) void overBase(const std::uint8_t* s1, const std::uint8_t* s2, std::uint8_t* d,
                                              std::size_t n) {
    overLoop<0>(s1, s2, d, n);
}
__attribute__((target("avx2"), optimize("O3"))) void premulAvx2(const std::uint8_t* s, std::uint8_t* d, std::size_t n) {
    premulLoop<1>(s, d, n);
}
__attribute__((optimize("O3"))) void premulBase(const std::uint8_t* s, std::uint8_t* d, std::size_t n) {
    premulLoop<0>(s, d, n);
}
const bool kAvx2 = __builtin_cpu_supports("avx2");

struct Images {
    cv::Mat a, b, d, mask;
    explicit Images(ZeliSize s, int cvType = CV_8UC4)
        : a(s.height, s.width, cvType), b(s.height, s.width, cvType), d(s.height, s.width, cvType) {
        cv::randu(a, 0, 256);
        cv::randu(b, 0, 256);
        // A tenth of the pixels of a carry the key colour (1, 2, 3).
        if (cvType == CV_8UC3)
            for (int y = 0; y < s.height; ++y)
                for (int x = y % 10; x < s.width; x += 10) a.at<cv::Vec3b>(y, x) = cv::Vec3b(1, 2, 3);
    }
    int step() const { return static_cast<int>(a.step); }
};

void registerAll() {
    auto make4 = [](ZeliSize s) { return Images(s); };
    auto make3 = [](ZeliSize s) { return Images(s, CV_8UC3); };
    for (int threads : {1, 2}) {
        const std::string sfx = zel::bench::threadSuffix(threads);
        registerRun("AlphaCompOver_8u_AC4" + sfx, "zeli", make4, [](Images& o, ZeliSize s) {
            zeliAlphaComp_8u_AC4R(o.a.data, o.step(), o.b.data, o.step(), o.d.data, o.step(), s, zelCompositeOver);
        }, threads, kSizes);
        registerRun("AlphaPremul_8u_AC4" + sfx, "zeli", make4, [](Images& o, ZeliSize s) {
            zeliAlphaPremul_8u_AC4R(o.a.data, o.step(), o.d.data, o.step(), s);
        }, threads, kSizes);
        zel::bench::registerPair(
            "CompColorKey_8u_C3" + sfx, make3,
            [](Images& o, ZeliSize s) {
                const Zel8u key[3] = {1, 2, 3};
                zeliCompColorKey_8u_C3R(o.a.data, o.step(), o.b.data, o.step(), o.d.data, o.step(), s, key);
            },
            [](Images& o) {
                cv::inRange(o.a, cv::Scalar(1, 2, 3), cv::Scalar(1, 2, 3), o.mask);
                o.a.copyTo(o.d);
                o.b.copyTo(o.d, o.mask);
            },
            threads, kSizes);
    }
    registerRun("AlphaCompOver_8u_AC4", "scalar_O3", make4, [](Images& o, ZeliSize s) {
        (kAvx2 ? overAvx2 : overBase)(o.a.data, o.b.data, o.d.data, std::size_t(s.width) * s.height);
    }, 1, kSizes);
    registerRun("AlphaPremul_8u_AC4", "scalar_O3", make4, [](Images& o, ZeliSize s) {
        (kAvx2 ? premulAvx2 : premulBase)(o.a.data, o.d.data, std::size_t(s.width) * s.height);
    }, 1, kSizes);
    registerMemcpy("AlphaCompOver_8u_AC4", 12, kSizes);
    registerMemcpy("AlphaPremul_8u_AC4", 8, kSizes);
    registerMemcpy("CompColorKey_8u_C3", 9, kSizes);
}

const zel::bench::Registration kRegistered(registerAll);

}  // namespace
