#include "core/fpcontrol.h"

#include <limits>
#include <xmmintrin.h>

#include "zeli.h"

namespace {
constexpr std::uint32_t kRoundingShift = 13;
constexpr std::uint32_t kRoundingMask = 3u << kRoundingShift;
}  // namespace

std::uint32_t ps_get_ssx() { return _mm_getcsr(); }
void ps_set_ssx(std::uint32_t cw) { _mm_setcsr(cw); }

std::uint32_t zel_set_rc_ssx(std::uint32_t rc) {
    const std::uint32_t previous = _mm_getcsr();
    _mm_setcsr((previous & ~kRoundingMask) | ((rc & 3u) << kRoundingShift));
    return previous;
}

void zel_set_cw_ssx(std::uint32_t cw) { _mm_setcsr(cw); }

Zel32f zelConstantOfNAN_32f(void) { return std::numeric_limits<Zel32f>::quiet_NaN(); }
Zel64f zelConstantOfNAN_64f(void) { return std::numeric_limits<Zel64f>::quiet_NaN(); }
