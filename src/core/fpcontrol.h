// Control of the SSE unit's rounding field (MXCSR), for kernels whose
// results depend on how the vector unit rounds. Callers save the control
// word, set the rounding they need and restore the word before returning.
#pragma once

#include <cstdint>

namespace zel {

// MXCSR rounding-control values (bits 13-14).
enum SseRounding : std::uint32_t {
    kSseRoundNearest = 0,
    kSseRoundDown = 1,
    kSseRoundUp = 2,
    kSseRoundTowardZero = 3,
};

}  // namespace zel

// Sets the rounding field to `rc` (0..3) and returns the previous control word.
std::uint32_t zel_set_rc_ssx(std::uint32_t rc);
// Restores a control word returned by zel_set_rc_ssx or ps_get_ssx.
void zel_set_cw_ssx(std::uint32_t cw);
// Reads and writes the whole control and status word.
std::uint32_t ps_get_ssx();
void ps_set_ssx(std::uint32_t cw);

namespace zel {

// Sets a rounding mode for the lifetime of the scope.
class ScopedSseRounding {
public:
    explicit ScopedSseRounding(SseRounding rc) : saved_(zel_set_rc_ssx(rc)) {}
    ~ScopedSseRounding() { zel_set_cw_ssx(saved_); }
    ScopedSseRounding(const ScopedSseRounding&) = delete;
    ScopedSseRounding& operator=(const ScopedSseRounding&) = delete;

private:
    std::uint32_t saved_;
};

}  // namespace zel
