// The allocator against aligned_alloc, and memcpy bandwidth: the physical
// limit of every pixelwise operation.
#include <cstdlib>
#include <cstring>
#include <vector>

#include "bench_util.h"

namespace {

using zel::bench::registerSized;

void registerAll() {
    registerSized("Malloc_8u_C1", "zeli", [](benchmark::State& state, ZeliSize s) {
        for (auto _ : state) {
            int step = 0;
            Zel8u* p = zeliMalloc_8u_C1(s.width, s.height, &step);
            benchmark::DoNotOptimize(p);
            zeliFree(p);
        }
    });
    registerSized("Malloc_8u_C1", "aligned_alloc", [](benchmark::State& state, ZeliSize s) {
        const std::size_t step = (std::size_t(s.width) + 31) / 32 * 32;
        for (auto _ : state) {
            void* p = std::aligned_alloc(32, step * s.height);
            benchmark::DoNotOptimize(p);
            std::free(p);
        }
    });
    // Bytes read plus bytes written, per iteration.
    const auto copyBytes = [](ZeliSize s) { return 2.0 * s.width * s.height * 3; };
    registerSized("Memcpy_8u_C3", "memcpy", [](benchmark::State& state, ZeliSize s) {
        const std::size_t bytes = std::size_t(s.width) * s.height * 3;
        std::vector<char> src(bytes, 1), dst(bytes);
        for (auto _ : state) {
            std::memcpy(dst.data(), src.data(), bytes);
            benchmark::ClobberMemory();
        }
    }, copyBytes);
}

const zel::bench::Registration registration(registerAll);

}  // namespace
