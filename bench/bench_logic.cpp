// Logic and shifts against OpenCV's bitwise operations, and against a memcpy
// moving as many bytes as the operation reads and writes. OpenCV has no
// shift of a whole image by a constant (cv::Mat has no << or >>), so the
// shifts are compared with the memcpy bound only.
#include <opencv2/core.hpp>

#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerMemcpy;

struct Images : zel::bench::TwoOperands {
    Images(ZeliSize s, int cvType) : TwoOperands(s, cvType, 60000) {}
};

template <class F>
void registerOne(const std::string& group, const std::string& impl, int cvType, F f) {
    zel::bench::registerRun(group, impl, [cvType](ZeliSize s) { return Images(s, cvType); }, f);
}

void registerAll() {
    registerOne("And_8u_C1", "zeli", CV_8UC1, [](Images& o, ZeliSize s) {
        zeliAnd_8u_C1R(o.pa<Zel8u>(), o.step(), o.pb<Zel8u>(), o.step(), o.pd<Zel8u>(), o.step(), s);
    });
    registerOne("And_8u_C1", "opencv", CV_8UC1, [](Images& o, ZeliSize) { cv::bitwise_and(o.a, o.b, o.d); });
    registerMemcpy("And_8u_C1", 3);
    registerOne("And_8u_C3", "zeli", CV_8UC3, [](Images& o, ZeliSize s) {
        zeliAnd_8u_C3R(o.pa<Zel8u>(), o.step(), o.pb<Zel8u>(), o.step(), o.pd<Zel8u>(), o.step(), s);
    });
    registerOne("And_8u_C3", "opencv", CV_8UC3, [](Images& o, ZeliSize) { cv::bitwise_and(o.a, o.b, o.d); });
    registerMemcpy("And_8u_C3", 9);
    registerOne("AndC_8u_C3", "zeli", CV_8UC3, [](Images& o, ZeliSize s) {
        const Zel8u value[3] = {0x3c, 0xf0, 0x0f};
        zeliAndC_8u_C3R(o.pa<Zel8u>(), o.step(), value, o.pd<Zel8u>(), o.step(), s);
    });
    registerOne("AndC_8u_C3", "opencv", CV_8UC3,
                [](Images& o, ZeliSize) { cv::bitwise_and(o.a, cv::Scalar(0x3c, 0xf0, 0x0f), o.d); });
    registerMemcpy("AndC_8u_C3", 6);
    registerOne("XorC_8u_C1", "zeli", CV_8UC1, [](Images& o, ZeliSize s) {
        zeliXorC_8u_C1R(o.pa<Zel8u>(), o.step(), 0x5a, o.pd<Zel8u>(), o.step(), s);
    });
    registerOne("XorC_8u_C1", "opencv", CV_8UC1, [](Images& o, ZeliSize) { cv::bitwise_xor(o.a, cv::Scalar(0x5a), o.d); });
    registerMemcpy("XorC_8u_C1", 2);
    registerOne("Not_8u_C1", "zeli", CV_8UC1, [](Images& o, ZeliSize s) {
        zeliNot_8u_C1R(o.pa<Zel8u>(), o.step(), o.pd<Zel8u>(), o.step(), s);
    });
    registerOne("Not_8u_C1", "opencv", CV_8UC1, [](Images& o, ZeliSize) { cv::bitwise_not(o.a, o.d); });
    registerMemcpy("Not_8u_C1", 2);

    registerOne("LShiftC_8u_C1", "zeli", CV_8UC1, [](Images& o, ZeliSize s) {
        zeliLShiftC_8u_C1R(o.pa<Zel8u>(), o.step(), 3, o.pd<Zel8u>(), o.step(), s);
    });
    registerMemcpy("LShiftC_8u_C1", 2);
    registerOne("LShiftC_16u_C1", "zeli", CV_16UC1, [](Images& o, ZeliSize s) {
        zeliLShiftC_16u_C1R(o.pa<Zel16u>(), o.step(), 3, o.pd<Zel16u>(), o.step(), s);
    });
    registerMemcpy("LShiftC_16u_C1", 4);
    registerOne("RShiftC_16u_C1", "zeli", CV_16UC1, [](Images& o, ZeliSize s) {
        zeliRShiftC_16u_C1R(o.pa<Zel16u>(), o.step(), 5, o.pd<Zel16u>(), o.step(), s);
    });
    registerMemcpy("RShiftC_16u_C1", 4);
    // Channels shifted by different counts take the per-lane kernel.
    registerOne("RShiftC_16u_C3_mixed", "zeli", CV_16UC3, [](Images& o, ZeliSize s) {
        const Zel32u counts[3] = {1, 5, 9};
        zeliRShiftC_16u_C3R(o.pa<Zel16u>(), o.step(), counts, o.pd<Zel16u>(), o.step(), s);
    });
    registerMemcpy("RShiftC_16u_C3_mixed", 12);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
