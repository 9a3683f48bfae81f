// The members that leave bytes alone (AC4 alpha, masked-off pixels), timed
// under every SIMD target this processor has: on the targets without
// masked stores for the lane size those bytes cost scalar stores. Prints a
// Markdown table of the best of 15 calls at 1920x1080, one thread.
//
//   build/bench/zeli_untouched_targets
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "core/simd.h"
#include "zeli.h"

namespace {

double bestMicroseconds(const std::function<void()>& call) {
    double best = 1e30;
    for (int r = 0; r < 15; ++r) {
        const auto t0 = std::chrono::steady_clock::now();
        call();
        const auto t1 = std::chrono::steady_clock::now();
        best = std::min(best, std::chrono::duration<double, std::micro>(t1 - t0).count());
    }
    return best;
}

}  // namespace

int main() {
    zelSetNumThreads(1);
    const ZeliSize roi{1920, 1080};
    int s8 = 0, s32 = 0, sm = 0;
    Zel8u* a8 = zeliMalloc_8u_C4(roi.width, roi.height, &s8);
    Zel8u* b8 = zeliMalloc_8u_C4(roi.width, roi.height, &s8);
    Zel32f* a32 = zeliMalloc_32f_C4(roi.width, roi.height, &s32);
    Zel8u* mask = zeliMalloc_8u_C1(roi.width, roi.height, &sm);
    if (!a8 || !b8 || !a32 || !mask) return 1;
    for (int i = 0; i < s8 * roi.height; ++i) a8[i] = static_cast<Zel8u>(i * 7 + 1);
    for (int i = 0; i < s32 / 4 * roi.height; ++i) a32[i] = static_cast<Zel32f>(i % 1000);
    for (int i = 0; i < sm * roi.height; ++i) mask[i] = (i * 2654435761u >> 13) & 1 ? 255 : 0;
    const Zel8u v8[4] = {1, 2, 3, 4};
    const Zel32f v32[4] = {1, 2, 3, 4};
    struct Member {
        const char* name;
        std::function<void()> call;
    };
    const std::vector<Member> members = {
        {"Set_8u_AC4R", [&] { zeliSet_8u_AC4R(v8, a8, s8, roi); }},
        {"Set_32f_AC4R", [&] { zeliSet_32f_AC4R(v32, a32, s32, roi); }},
        {"Copy_8u_AC4R", [&] { zeliCopy_8u_AC4R(a8, s8, b8, s8, roi); }},
        {"Copy_8u_C4MR, random mask", [&] { zeliCopy_8u_C4MR(a8, s8, b8, s8, roi, mask, sm); }},
        {"SwapChannels_8u_AC4R", [&] {
             const int order[3] = {2, 1, 0};
             zeliSwapChannels_8u_AC4R(a8, s8, b8, s8, roi, order);
         }},
        {"Add_8u_AC4RSfs", [&] { zeliAdd_8u_AC4RSfs(a8, s8, a8, s8, b8, s8, roi, 0); }},
        {"AddC_32f_AC4R", [&] { zeliAddC_32f_AC4R(a32, s32, v32, a32, s32, roi); }},
        {"Div_8u_AC4RSfs", [&] { zeliDiv_8u_AC4RSfs(a8, s8, a8, s8, b8, s8, roi, 0); }},
    };
    // Forcing a target narrows what availableTargets() reports: ask once.
    const std::vector<std::int64_t> targets = zel::simd::availableTargets();
    std::printf("| member | target | us |\n|---|---|---|\n");
    for (const Member& m : members)
        for (std::int64_t target : targets) {
            zel::simd::forceTarget(target);
            std::printf("| %s | %s | %.0f |\n", m.name, zel::simd::targetName(target), bestMicroseconds(m.call));
        }
    zel::simd::forceTarget(0);
    for (void* p : {static_cast<void*>(a8), static_cast<void*>(b8), static_cast<void*>(a32), static_cast<void*>(mask)})
        zeliFree(p);
    return 0;
}
