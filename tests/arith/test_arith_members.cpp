// Every arithmetic member against the rules: odd sizes, unaligned ROIs inside
// guarded buffers, every SIMD target, one and four threads, in place and out
// of place; long rows with the types' extremes at scale factors that reach
// every band; long rows cut into pieces among threads.
#include <climits>

#include "arith/arith_test.h"
#include "core/parallel.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

// A single pixel, rows longer than a vector, more rows than columns and
// contiguous rows, vector-aligned and unaligned by turns; every scale factor
// of the list and the rounding modes by turns.
template <class T>
void checkEveryMember(std::initializer_list<int> scales) {
    const ZeliSize sizes[] = {{1, 1}, {67, 3}, {5, 9}, {13, 4}};
    forEachConfig([&] {
        std::uint32_t seed = 1;
        for (const Member<T>& m : members<T>())
            for (int i = 0; i < 4; ++i)
                for (int s : scales) {
                    checkMember(m, {sizes[i], i % 2 * int(sizeof(Part<T>)), s, int(seed % 3), seed++, i == 3});
                    if (testing::Test::HasFatalFailure()) return;
                }
    });
}

// Scale factors at and beyond the band edges of every family of the type.
TEST(ArithMembers, EveryMember8u) { checkEveryMember<Zel8u>({-17, -9, -1, 0, 1, 3, 9, 17}); }
TEST(ArithMembers, EveryMember16u) { checkEveryMember<Zel16u>({-33, -17, -3, 0, 1, 9, 17, 33}); }
TEST(ArithMembers, EveryMember16s) { checkEveryMember<Zel16s>({-31, -16, -15, -2, 0, 1, 16, 30, 31}); }
TEST(ArithMembers, EveryMemberComplex) {
    checkEveryMember<Zel16sc>({-33, -17, 0, 1, 17, 32, 33});
    checkEveryMember<Zel32sc>({-33, 0, 1, 33, 64});
}
// Scale factors at the ends of the int range: every non-zero result
// saturates (INT_MIN has no negation in an int) or rounds to 0.
TEST(ArithMembers, ScaleFactorsAtTheEndsOfTheIntRange) {
    const auto extremes = {INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX};
    checkEveryMember<Zel8u>(extremes);
    checkEveryMember<Zel16u>(extremes);
    checkEveryMember<Zel16s>(extremes);
    checkEveryMember<Zel16sc>(extremes);
    checkEveryMember<Zel32sc>(extremes);
}
TEST(ArithMembers, EveryMemberFloat) {
    checkEveryMember<Zel32f>({0});
    checkEveryMember<Zel32fc>({0});
}

TEST(ArithMembers, TablesHoldAllMembers) {
    EXPECT_EQ(members<Zel8u>().size() + members<Zel16u>().size() + members<Zel16s>().size() +
                  members<Zel16sc>().size() + members<Zel32sc>().size() + members<Zel32f>().size() +
                  members<Zel32fc>().size(),
              456u);
}

// Long rows with many extremes for the C1 members, every scale factor from
// far below to far above the bands, every rounding mode.
template <class T>
void checkSamples() {
    for (const Member<T>& m : members<T>()) {
        if (m.channels != 1 || m.inPlace) continue;
        for (int s : {-100, -60, -34, -33, -32, -31, -30, -18, -17, -16, -15, -9, -1, 0, 1, 2, 8, 14, 15, 16, 17,
                      18, 30, 31, 32, 33, 34, 63, 64, 65, 66, 100})
            for (int mode = 0; mode < (m.op == Op::DivRound ? 3 : 1); ++mode) {
                if (m.op == Op::MulScale && s != 0) continue;
                checkMember(m, {{257, 8}, 0, s, mode, std::uint32_t(7 * s + mode + 1000)});
                if (testing::Test::HasFatalFailure()) return;
            }
    }
}

TEST(ArithMembers, LargeSamplesWithExtremes) {
    checkSamples<Zel16u>();
    checkSamples<Zel16s>();
    checkSamples<Zel16sc>();
    checkSamples<Zel32sc>();
}

// Rows cut among threads: one long row cut into pieces (contiguous rows run
// as one), and padded rows dealt out whole; the sweep's several-thread runs
// fork whatever the size. The same results and warning under 1 and 4
// threads, also when the only zero divisor is the last pixel's, in the last
// piece; constant patterns and AC4 alpha stay in phase in every piece.
template <class T>
void checkPieces(const Member<T>& m) {
    const int width = 4099;  // several pieces of 64 pixels per thread
    const bool divisorImage = (m.op == Op::Div || m.op == Op::DivRound) && !m.isConst;
    forEachConfig([&] {
        for (bool lastOnly : {false, true}) {
            if (lastOnly && !divisorImage) break;
            checkMember(m, {{width, 1}, 0, 1, 1, std::uint32_t(width), false, lastOnly});
            checkMember(m, {{width / 3 + 1, 3}, 0, 1, 1, 9, true, lastOnly});
            checkMember(m, {{width / 8 + 1, 8}, int(sizeof(Part<T>)), 1, 1, 8, false, lastOnly});
            if (testing::Test::HasFatalFailure()) return;
        }
    });
}

TEST(ArithMembers, LongRowsInPiecesAmongThreads) {
    checkPieces(ZT_MEMBER(zeliDiv_8u_C1RSfs, Div, 8u, C1, false, false));
    checkPieces(ZT_MEMBER(zeliDiv_Round_16u_AC4IRSfs, DivRound, 16u, AC4, false, true));
    checkPieces(ZT_MEMBER(zeliDivC_16s_C3RSfs, Div, 16s, C3, true, false));
    checkPieces(ZT_MEMBER(zeliDivC_8u_AC4IRSfs, Div, 8u, AC4, true, true));
    checkPieces(ZT_MEMBER(zeliDiv_16sc_C1RSfs, Div, 16sc, C1, false, false));
    checkPieces(ZT_MEMBER(zeliDiv_32sc_AC4RSfs, Div, 32sc, AC4, false, false));
    checkPieces(ZT_MEMBER(zeliDiv_32f_C4R, Div, 32f, C4, false, false));
    checkPieces(ZT_MEMBER(zeliDiv_32fc_AC4R, Div, 32fc, AC4, false, false));
    checkPieces(ZT_MEMBER(zeliMulC_32fc_AC4IR, Mul, 32fc, AC4, true, true));
    checkPieces(ZT_MEMBER(zeliSub_8u_AC4RSfs, Sub, 8u, AC4, false, false));
    checkPieces(ZT_MEMBER(zeliAddC_16u_C3RSfs, Add, 16u, C3, true, false));
    checkPieces(ZT_MEMBER(zeliMulC_32sc_C3IRSfs, Mul, 32sc, C3, true, true));
}

// Results above the cache-bypass size take the streaming stores.
TEST(ArithMembers, LargeFloatDivision) {
    forEachConfig([] { checkMember(ZT_MEMBER(zeliDiv_32f_C1IR, Div, 32f, C1, false, true), {{1024, 1025}, 4}); });
}

}  // namespace
}  // namespace zel::test
