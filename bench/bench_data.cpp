// Copy, set, channel exchange and transposition against memcpy/memset and
// their OpenCV counterparts, on the same cv::Mat buffers.
#include <opencv2/core.hpp>

#include <cstring>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerSized;

cv::Mat randomMat(ZeliSize s, int type) {
    cv::Mat m(s.height, s.width, type);
    cv::randu(m, cv::Scalar::all(0), cv::Scalar::all(255));
    return m;
}

// Bytes read plus bytes written per iteration.
auto copyBytes(int pixelBytes) {
    return [pixelBytes](ZeliSize s) { return 2.0 * s.width * s.height * pixelBytes; };
}

void registerCopies() {
    for (int channels : {1, 3}) {
        const std::string group = channels == 1 ? "Copy_8u_C1" : "Copy_8u_C3";
        const int type = CV_8UC(channels);
        auto copy = channels == 1 ? zeliCopy_8u_C1R : zeliCopy_8u_C3R;
        registerSized(group, "zeli", [=](benchmark::State& state, ZeliSize s) {
            cv::Mat src = randomMat(s, type), dst(src.size(), type);
            for (auto _ : state) {
                copy(src.data, int(src.step), dst.data, int(dst.step), s);
                benchmark::ClobberMemory();
            }
        }, copyBytes(channels));
        registerSized(group, "memcpy", [=](benchmark::State& state, ZeliSize s) {
            cv::Mat src = randomMat(s, type), dst(src.size(), type);
            for (auto _ : state) {
                std::memcpy(dst.data, src.data, src.total() * src.elemSize());
                benchmark::ClobberMemory();
            }
        }, copyBytes(channels));
        registerSized(group, "opencv", [=](benchmark::State& state, ZeliSize s) {
            cv::Mat src = randomMat(s, type), dst(src.size(), type);
            for (auto _ : state) {
                src.copyTo(dst);
                benchmark::ClobberMemory();
            }
        }, copyBytes(channels));
    }
    for (int channels : {1, 3}) {
        const std::string group = channels == 1 ? "CopyMasked_8u_C1" : "CopyMasked_8u_C3";
        const int type = CV_8UC(channels);
        auto copy = channels == 1 ? zeliCopy_8u_C1MR : zeliCopy_8u_C3MR;
        registerSized(group, "zeli", [=](benchmark::State& state, ZeliSize s) {
            cv::Mat src = randomMat(s, type), dst(src.size(), type), mask = randomMat(s, CV_8UC1) > 128;
            for (auto _ : state) {
                copy(src.data, int(src.step), dst.data, int(dst.step), s, mask.data, int(mask.step));
                benchmark::ClobberMemory();
            }
        });
        registerSized(group, "opencv", [=](benchmark::State& state, ZeliSize s) {
            cv::Mat src = randomMat(s, type), dst(src.size(), type), mask = randomMat(s, CV_8UC1) > 128;
            for (auto _ : state) {
                src.copyTo(dst, mask);
                benchmark::ClobberMemory();
            }
        });
    }
}

void registerSets() {
    registerSized("Set_8u_C1", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat dst(s.height, s.width, CV_8UC1);
        for (auto _ : state) {
            zeliSet_8u_C1R(7, dst.data, int(dst.step), s);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Set_8u_C1", "memset", [](benchmark::State& state, ZeliSize s) {
        cv::Mat dst(s.height, s.width, CV_8UC1);
        for (auto _ : state) {
            std::memset(dst.data, 7, dst.total());
            benchmark::ClobberMemory();
        }
    });
    registerSized("Set_8u_C1", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat dst(s.height, s.width, CV_8UC1);
        for (auto _ : state) {
            dst.setTo(cv::Scalar(7));
            benchmark::ClobberMemory();
        }
    });
    registerSized("Set_8u_C3", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat dst(s.height, s.width, CV_8UC3);
        const Zel8u value[3] = {1, 2, 3};
        for (auto _ : state) {
            zeliSet_8u_C3R(value, dst.data, int(dst.step), s);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Set_8u_C3", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat dst(s.height, s.width, CV_8UC3);
        for (auto _ : state) {
            dst.setTo(cv::Scalar(1, 2, 3));
            benchmark::ClobberMemory();
        }
    });
}

void registerPlanes() {
    registerSized("Split_8u_C3P3", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC3);
        std::vector<cv::Mat> planes(3);
        for (auto& p : planes) p = cv::Mat(s.height, s.width, CV_8UC1);
        Zel8u* dst[3] = {planes[0].data, planes[1].data, planes[2].data};
        for (auto _ : state) {
            zeliCopy_8u_C3P3R(src.data, int(src.step), dst, int(planes[0].step), s);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Split_8u_C3P3", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC3);
        std::vector<cv::Mat> planes(3);
        for (auto& p : planes) p = cv::Mat(s.height, s.width, CV_8UC1);
        for (auto _ : state) {
            cv::split(src, planes);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Merge_8u_P3C3", "zeli", [](benchmark::State& state, ZeliSize s) {
        std::vector<cv::Mat> planes = {randomMat(s, CV_8UC1), randomMat(s, CV_8UC1), randomMat(s, CV_8UC1)};
        cv::Mat dst(s.height, s.width, CV_8UC3);
        const Zel8u* src[3] = {planes[0].data, planes[1].data, planes[2].data};
        for (auto _ : state) {
            zeliCopy_8u_P3C3R(src, int(planes[0].step), dst.data, int(dst.step), s);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Merge_8u_P3C3", "opencv", [](benchmark::State& state, ZeliSize s) {
        std::vector<cv::Mat> planes = {randomMat(s, CV_8UC1), randomMat(s, CV_8UC1), randomMat(s, CV_8UC1)};
        cv::Mat dst(s.height, s.width, CV_8UC3);
        for (auto _ : state) {
            cv::merge(planes, dst);
            benchmark::ClobberMemory();
        }
    });
}

// Reverse the colour order (RGB to BGR), as order array and as
// (source, destination) channel pairs.
const int kReversed[3] = {2, 1, 0};
const int kReversedPairs[6] = {0, 2, 1, 1, 2, 0};

void registerSwaps() {
    registerSized("SwapChannels_8u_C3", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC3), dst(src.size(), CV_8UC3);
        for (auto _ : state) {
            zeliSwapChannels_8u_C3R(src.data, int(src.step), dst.data, int(dst.step), s, kReversed);
            benchmark::ClobberMemory();
        }
    });
    registerSized("SwapChannels_8u_C3", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC3), dst(src.size(), CV_8UC3);
        for (auto _ : state) {
            cv::mixChannels(&src, 1, &dst, 1, kReversedPairs, 3);
            benchmark::ClobberMemory();
        }
    });
    registerSized("SwapChannels_8u_C4C3", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC4), dst(src.size(), CV_8UC3);
        for (auto _ : state) {
            zeliSwapChannels_8u_C4C3R(src.data, int(src.step), dst.data, int(dst.step), s, kReversed);
            benchmark::ClobberMemory();
        }
    });
    registerSized("SwapChannels_8u_C4C3", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC4), dst(src.size(), CV_8UC3);
        for (auto _ : state) {
            cv::mixChannels(&src, 1, &dst, 1, kReversedPairs, 3);
            benchmark::ClobberMemory();
        }
    });
}

void registerTransposes() {
    registerSized("Transpose_8u_C1", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC1), dst(s.width, s.height, CV_8UC1);
        for (auto _ : state) {
            zeliTranspose_8u_C1R(src.data, int(src.step), dst.data, int(dst.step), s);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Transpose_8u_C1", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_8UC1), dst(s.width, s.height, CV_8UC1);
        for (auto _ : state) {
            cv::transpose(src, dst);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Transpose_32s_C1", "zeli", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_32SC1), dst(s.width, s.height, CV_32SC1);
        for (auto _ : state) {
            zeliTranspose_32s_C1R(reinterpret_cast<const Zel32s*>(src.data), int(src.step),
                                  reinterpret_cast<Zel32s*>(dst.data), int(dst.step), s);
            benchmark::ClobberMemory();
        }
    });
    registerSized("Transpose_32s_C1", "opencv", [](benchmark::State& state, ZeliSize s) {
        cv::Mat src = randomMat(s, CV_32SC1), dst(s.width, s.height, CV_32SC1);
        for (auto _ : state) {
            cv::transpose(src, dst);
            benchmark::ClobberMemory();
        }
    });
}

void registerAll() {
    registerCopies();
    registerSets();
    registerPlanes();
    registerSwaps();
    registerTransposes();
}

const zel::bench::Registration registration(registerAll);

}  // namespace
