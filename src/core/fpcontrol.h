// Control of the SSE unit's control and status word (MXCSR).
//
// Results never depend on the caller's floating-point environment: a
// family whose kernels compute in floating point (or round through the
// vector unit) runs its call under StandardFpEnvironment, which sets
// round-to-nearest, no flush-to-zero, no denormals-are-zero and every
// exception masked, and gives the caller's word back at the end (with the
// exception flags the call raised added to it). The threading frame hands
// the calling thread's word to every thread of a team, so the workers
// compute under the same environment.
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

// The power-on word: round to nearest, all exceptions masked, no FTZ/DAZ.
constexpr std::uint32_t kStandardControlWord = 0x1F80;
// The sticky exception flags (bits 0-5).
constexpr std::uint32_t kExceptionFlags = 0x3F;

}  // namespace zel

// Sets the rounding field to `rc` (0..3) and returns the previous control word.
std::uint32_t zel_set_rc_ssx(std::uint32_t rc);
// Restores a control word returned by zel_set_rc_ssx or ps_get_ssx.
void zel_set_cw_ssx(std::uint32_t cw);
// Reads and writes the whole control and status word.
std::uint32_t ps_get_ssx();
void ps_set_ssx(std::uint32_t cw);

namespace zel {

// Sets a whole control word for the lifetime of the scope; on exit the
// previous word comes back, keeping the exception flags raised meanwhile.
// When the control bits already match (the common case: the caller runs
// in the standard environment) the word is neither written nor restored.
class ScopedControlWord {
public:
    explicit ScopedControlWord(std::uint32_t cw) : saved_(ps_get_ssx()) {
        changed_ = (saved_ & ~kExceptionFlags) != (cw & ~kExceptionFlags);
        if (changed_) ps_set_ssx(cw);
    }
    ~ScopedControlWord() {
        if (changed_) ps_set_ssx(saved_ | (ps_get_ssx() & kExceptionFlags));
    }
    ScopedControlWord(const ScopedControlWord&) = delete;
    ScopedControlWord& operator=(const ScopedControlWord&) = delete;

private:
    std::uint32_t saved_;
    bool changed_;
};

// The environment every floating-point kernel computes under.
class StandardFpEnvironment : public ScopedControlWord {
public:
    StandardFpEnvironment() : ScopedControlWord(kStandardControlWord) {}
};

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
