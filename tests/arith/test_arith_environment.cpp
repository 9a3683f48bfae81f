// Results do not depend on the caller's floating-point environment: every
// member gives the bits it gives under the default control word when the
// caller has set another rounding mode, flush-to-zero or
// denormals-are-zero, under every SIMD target and thread count, and the
// caller's control word is as it was after the call.
#include <xmmintrin.h>

#include "arith/arith_test.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

constexpr std::uint32_t kDefaultWord = 0x1F80;  // round to nearest, exceptions masked
constexpr std::uint32_t kFlushToZero = 1u << 15, kDenormalsAreZero = 1u << 6;
constexpr std::uint32_t kFlags = 0x3F;  // sticky exception flags, which a call may add to

struct Environment {
    const char* name;
    std::uint32_t word;
};

// The four rounding modes, each with and without FTZ and DAZ, except the
// default itself.
std::vector<Environment> callerEnvironments() {
    const char* modes[] = {"nearest", "down", "up", "toward zero"};
    std::vector<Environment> out;
    for (std::uint32_t rc = 0; rc < 4; ++rc)
        for (bool flush : {false, true})
            if (rc != 0 || flush)
                out.push_back({modes[rc], kDefaultWord | rc << 13 | (flush ? kFlushToZero | kDenormalsAreZero : 0)});
    return out;
}

// Runs the member on a copy of the operands under `word`; returns the
// status, leaves the result in `o` and the word seen after the call in `after`.
template <class T>
ZelStatus runUnder(std::uint32_t word, const Member<T>& m, const Run& r, Operands<T>& o, std::uint32_t& after) {
    _mm_setcsr(word);
    const ZelStatus status = o.run(m, r);
    after = _mm_getcsr();
    _mm_setcsr(kDefaultWord);
    return status;
}

// Every member of T on `run` under every caller environment against the
// same call under the default one.
template <class T>
void expectSameUnderEveryEnvironment(const std::vector<Member<T>>& list, const Run& run) {
    const auto environments = callerEnvironments();
    for (const Member<T>& m : list) {
        SCOPED_TRACE(m.name);
        const Operands<T> fresh(m, run);
        Operands<T> reference = fresh;
        std::uint32_t after = 0;
        const ZelStatus want = runUnder(kDefaultWord, m, run, reference, after);
        for (const Environment& e : environments) {
            SCOPED_TRACE(testing::Message() << e.name << (e.word & kFlushToZero ? " with FTZ and DAZ" : ""));
            Operands<T> o = fresh;
            ASSERT_EQ(runUnder(e.word, m, run, o, after), want);
            ASSERT_TRUE(sameRoi(o.target(), reference.target(), m.channels));
            ASSERT_EQ(after & ~kFlags, e.word) << "the caller's control word was not restored";
        }
    }
}

// Every member of the type on a small image with subnormal, tiny and
// extreme values, at a scale factor that rounds (or at 0 for the types
// without one); Div_Round in its three modes by turns.
template <class T>
void everyMember(int scale) {
    forEachConfig([&] {
        std::uint32_t seed = 11;
        for (const Member<T>& m : members<T>()) {
            expectSameUnderEveryEnvironment<T>({m}, {{37, 3}, 0, scale, int(seed % 3), seed});
            ++seed;
            if (testing::Test::HasFatalFailure()) return;
        }
    });
}

TEST(ArithEnvironment, EveryMember8u) { everyMember<Zel8u>(1); }
TEST(ArithEnvironment, EveryMember16u) { everyMember<Zel16u>(3); }
TEST(ArithEnvironment, EveryMember16s) { everyMember<Zel16s>(2); }
TEST(ArithEnvironment, EveryMemberComplexInteger) {
    everyMember<Zel16sc>(1);
    everyMember<Zel32sc>(1);
}
TEST(ArithEnvironment, EveryMemberFloat) {
    everyMember<Zel32f>(0);
    everyMember<Zel32fc>(0);
}

// Images large enough for the fork rule to give every member here a team
// of several threads: the workers compute under the same environment.
TEST(ArithEnvironment, WorkersOfATeam) {
    const zel::test::Run big{{1024, 768}, 0, 1, 0, 5};
    forEachConfig([&] {
        expectSameUnderEveryEnvironment<Zel8u>({ZT_MEMBER(zeliDiv_8u_C1RSfs, Div, 8u, C1, false, false),
                                                ZT_MEMBER(zeliDivC_8u_C3IRSfs, Div, 8u, C3, true, true)},
                                               big);
        expectSameUnderEveryEnvironment<Zel16s>(
            {ZT_MEMBER(zeliDiv_Round_16s_AC4RSfs, DivRound, 16s, AC4, false, false)}, big);
        expectSameUnderEveryEnvironment<Zel32f>({ZT_MEMBER(zeliAdd_32f_C1R, Add, 32f, C1, false, false),
                                                 ZT_MEMBER(zeliDivC_32f_C3IR, Div, 32f, C3, true, true)},
                                                {{512, 768}, 0, 0, 1, 6});
    });
}

}  // namespace
}  // namespace zel::test
