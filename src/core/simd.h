// Run-time choice among the SIMD targets the library is compiled for
// (SSSE3, AVX2, AVX-512). Kernels are templates inside Highway's per-target
// namespaces; a wrapper picks an instantiation for the best target this CPU
// supports with
//
//   auto row = ZEL_DISPATCH(AddRow<Zel8u, SaturateAdd>);
//
// which accepts template arguments (Highway's own HWY_EXPORT does not).
#pragma once

#include <hwy/highway.h>

#include <cstdint>
#include <vector>

#if HWY_STATIC_TARGET != HWY_SSSE3
#error "zeli is built with SSSE3 as its baseline target"
#endif

namespace zel::simd {

// Index of the target chosen for this process (or forced by a test) in
// Highway's dispatch-table order.
inline std::size_t chosenIndex() {
    hwy::ChosenTarget& chosen = hwy::GetChosenTarget();
    if (HWY_UNLIKELY(!chosen.IsInitialized())) chosen.Update(hwy::SupportedTargets());
    return chosen.GetIndex();
}

inline std::size_t indexOf(std::int64_t target) {
    hwy::ChosenTarget probe;
    probe.Update(target);
    return probe.GetIndex();
}

// The dispatch-table indices of the wider targets, worked out once.
inline std::size_t avx3Index() {
    static const std::size_t index = indexOf(HWY_AVX3);
    return index;
}
inline std::size_t avx2Index() {
    static const std::size_t index = indexOf(HWY_AVX2);
    return index;
}

template <class Fn>
Fn choose(Fn avx3, Fn avx2, Fn ssse3) {
    const std::size_t chosen = chosenIndex();
    if (avx3 != nullptr && chosen == avx3Index()) return avx3;
    if (avx2 != nullptr && chosen == avx2Index()) return avx2;
    return ssse3;
}

// The targets compiled in and supported by this CPU, best first.
std::vector<std::int64_t> availableTargets();
// Restricts dispatch to one target (0 restores the normal choice); for tests.
void forceTarget(std::int64_t target);
const char* targetName(std::int64_t target);

}  // namespace zel::simd

#if HWY_TARGETS & HWY_AVX3
#define ZEL_CHOOSE_AVX3(...) &N_AVX3::__VA_ARGS__
#else
#define ZEL_CHOOSE_AVX3(...) nullptr
#endif
#if HWY_TARGETS & HWY_AVX2
#define ZEL_CHOOSE_AVX2(...) &N_AVX2::__VA_ARGS__
#else
#define ZEL_CHOOSE_AVX2(...) nullptr
#endif
#define ZEL_DISPATCH(...)                                                   \
    ::zel::simd::choose<decltype(&N_SSSE3::__VA_ARGS__)>(ZEL_CHOOSE_AVX3(__VA_ARGS__), \
                                                         ZEL_CHOOSE_AVX2(__VA_ARGS__), \
                                                         &N_SSSE3::__VA_ARGS__)
