// Image arithmetic against OpenCV's saturating arithmetic, and against a
// memcpy moving as many bytes as the operation reads and writes (the
// bandwidth bound of a pixelwise operation).
#include <opencv2/core.hpp>

#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerMemcpy;

// Source, second source and destination images of one benchmark.
template <class T>
struct Operands {
    cv::Mat a, b, d;
    Operands(ZeliSize s, int cvType) : a(s.height, s.width, cvType), b(s.height, s.width, cvType), d(s.height, s.width, cvType) {
        cv::randu(a, 0, 200);
        cv::randu(b, 0, 200);
    }
    const T* pa() const { return a.ptr<T>(); }
    const T* pb() const { return b.ptr<T>(); }
    T* pd() { return d.ptr<T>(); }
    int step() const { return static_cast<int>(a.step); }
};

template <class T, class Zeli, class OpenCv>
void registerPair(const std::string& group, int cvType, Zeli zeli, OpenCv opencv, int threads = 1) {
    zel::bench::registerPair(group, [cvType](ZeliSize s) { return Operands<T>(s, cvType); }, zeli, opencv, threads);
}

void registerAll() {
    using O8 = Operands<Zel8u>;
    for (int threads : {1, 2}) {
        const std::string mt = threads > 1 ? "_mt" : "";
        registerPair<Zel8u>("Add_8u_C1_s0" + mt, CV_8UC1, [](O8& o, ZeliSize s) {
            zeliAdd_8u_C1RSfs(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s, 0);
        }, [](O8& o) { cv::add(o.a, o.b, o.d); }, threads);
    }
    registerMemcpy("Add_8u_C1_s0", 3);
    // Scale 1 halves the sum; OpenCV's nearest equivalent is a weighted sum.
    registerPair<Zel8u>("Add_8u_C1_s1", CV_8UC1, [](O8& o, ZeliSize s) {
        zeliAdd_8u_C1RSfs(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s, 1);
    }, [](O8& o) { cv::addWeighted(o.a, 0.5, o.b, 0.5, 0, o.d); });
    registerPair<Zel8u>("Add_8u_C3_s0", CV_8UC3, [](O8& o, ZeliSize s) {
        zeliAdd_8u_C3RSfs(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s, 0);
    }, [](O8& o) { cv::add(o.a, o.b, o.d); });
    registerPair<Zel8u>("Add_8u_C3_s1", CV_8UC3, [](O8& o, ZeliSize s) {
        zeliAdd_8u_C3RSfs(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s, 1);
    }, [](O8& o) { cv::addWeighted(o.a, 0.5, o.b, 0.5, 0, o.d); });

    using O16 = Operands<Zel16s>;
    registerPair<Zel16s>("Sub_16s_C1_s0", CV_16SC1, [](O16& o, ZeliSize s) {
        zeliSub_16s_C1RSfs(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s, 0);
    }, [](O16& o) { cv::subtract(o.b, o.a, o.d); });
    registerMemcpy("Sub_16s_C1_s0", 6);

    // Scale 8 divides the product by 256.
    registerPair<Zel8u>("Mul_8u_C1_s8", CV_8UC1, [](O8& o, ZeliSize s) {
        zeliMul_8u_C1RSfs(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s, 8);
    }, [](O8& o) { cv::multiply(o.a, o.b, o.d, 1.0 / 256); });

    using OF = Operands<Zel32f>;
    registerPair<Zel32f>("AddC_32f_C1", CV_32FC1, [](OF& o, ZeliSize s) {
        zeliAddC_32f_C1R(o.pa(), o.step(), 1.5f, o.pd(), o.step(), s);
    }, [](OF& o) { cv::add(o.a, cv::Scalar(1.5), o.d); });
    registerMemcpy("AddC_32f_C1", 8);

    registerPair<Zel8u>("MulScale_8u_C1", CV_8UC1, [](O8& o, ZeliSize s) {
        zeliMulScale_8u_C1R(o.pa(), o.step(), o.pb(), o.step(), o.pd(), o.step(), s);
    }, [](O8& o) { cv::multiply(o.a, o.b, o.d, 1.0 / 255); });
}

const zel::bench::Registration registration(registerAll);

}  // namespace
