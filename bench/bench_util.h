// Shared pieces of the benchmarks: the standard sizes, aligned buffers and
// the naming convention "<Group>/<impl>/<WxH>" that the ratio report reads
// (impl "zeli" is ours; every other impl of the same group and size is
// reported as its time divided by ours).
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

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

// Registers the benchmarks of one source file at start-up.
struct Registration {
    explicit Registration(void (*registerAll)()) { registerAll(); }
};

}  // namespace zel::bench
