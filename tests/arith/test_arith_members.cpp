// Every arithmetic member against the rules: odd sizes, unaligned ROIs inside
// guarded buffers, every SIMD target, one and four threads, in place and out
// of place; long rows with the types' extremes at scale factors that reach
// every band; division rows around the length where they are split.
#include "arith/arith_test.h"
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

// Rows just below, at and above the length from which a division row is
// split between two threads, and contiguous rows collapsed past it: the same
// results and warning under 1 and 4 threads, also when the only zero divisor
// is the last pixel's (in the second thread's part).
template <class T>
void checkSplit(const Member<T>& m, int threshold) {
    const int w = threshold / m.channels;
    forEachConfig([&] {
        for (bool lastOnly : {false, true}) {
            for (int width : {w - 1, w, w + 1})
                checkMember(m, {{width, 1}, 0, 0, 1, std::uint32_t(width), false, lastOnly});
            checkMember(m, {{w / 2 + 1, 3}, 0, 0, 1, 9, true, lastOnly});
        }
    });
}

TEST(ArithMembers, DivisionRowsAroundTheSplitThreshold) {
    checkSplit(ZT_MEMBER(zeliDiv_8u_C1RSfs, Div, 8u, C1, false, false), 1024);
    checkSplit(ZT_MEMBER(zeliDiv_16u_C1RSfs, Div, 16u, C1, false, false), 1024);
    checkSplit(ZT_MEMBER(zeliDiv_16s_C3RSfs, Div, 16s, C3, false, false), 1024);
    checkSplit(ZT_MEMBER(zeliDiv_16sc_C1RSfs, Div, 16sc, C1, false, false), 256);
    checkSplit(ZT_MEMBER(zeliDiv_32sc_AC4RSfs, Div, 32sc, AC4, false, false), 256);
    checkSplit(ZT_MEMBER(zeliDiv_32f_C1R, Div, 32f, C1, false, false), 4096);
    checkSplit(ZT_MEMBER(zeliDiv_32fc_C1R, Div, 32fc, C1, false, false), 1024);
}

// Results above the cache-bypass size take the streaming stores.
TEST(ArithMembers, LargeFloatDivision) {
    forEachConfig([] { checkMember(ZT_MEMBER(zeliDiv_32f_C1IR, Div, 32f, C1, false, true), {{1024, 1025}, 4}); });
}

}  // namespace
}  // namespace zel::test
