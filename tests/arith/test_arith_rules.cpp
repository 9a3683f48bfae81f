// The 8-bit rules over every pair of inputs, the argument-check order of each
// family, and the documented cases at the band edges.
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "arith/arith_members.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using zel::test::Image;

// The scale-factor rule transcribed literally: for s > 0 add 2^(s-1) - 1
// plus the lowest bit of the quotient and shift (ties to even), for s < 0
// shift left, then saturate to 0..255.
int scaled8u(long v, int s) {
    if (s > 0) v = (v + (1L << (s - 1)) - 1 + ((v >> s) & 1)) >> s;
    if (s < 0) v *= 1L << -s;
    return v < 0 ? 0 : v > 255 ? 255 : int(v);
}

// A 256 x 256 image pair holding every (a, b): a = column, b = row.
struct AllPairs {
    Image<Zel8u> a{{256, 256}, 1}, b{{256, 256}, 1}, d{{256, 256}, 1};
    AllPairs() {
        a.fill([](int x, int, int) { return Zel8u(x); });
        b.fill([](int, int y, int) { return Zel8u(y); });
    }
    template <class Expect>
    void check(ZelStatus status, Expect&& expect) {
        ASSERT_EQ(status, zelStatusOk);
        for (int y = 0; y < 256; ++y)
            for (int x = 0; x < 256; ++x)
                ASSERT_EQ(d.at(x, y), expect(x, y)) << "a = " << x << ", b = " << y;
        ASSERT_TRUE(d.outsideUnchanged());
    }
};

TEST(Arith8u, EveryPairAtEveryBand) {
    AllPairs t;
    const ZeliSize roi{256, 256};
    zel::test::forEachConfig([&] {
        for (int s : {-9, -8, -1, 0, 1, 2, 8, 9, 10, 16, 17}) {
            SCOPED_TRACE(testing::Message() << "scale " << s);
            t.check(zeliAdd_8u_C1RSfs(t.a.roi(), t.a.step(), t.b.roi(), t.b.step(), t.d.roi(), t.d.step(), roi, s),
                    [&](int a, int b) { return scaled8u(a + b, s); });
            // The first source is subtracted from the second.
            t.check(zeliSub_8u_C1RSfs(t.a.roi(), t.a.step(), t.b.roi(), t.b.step(), t.d.roi(), t.d.step(), roi, s),
                    [&](int a, int b) { return scaled8u(b - a, s); });
            t.check(zeliMul_8u_C1RSfs(t.a.roi(), t.a.step(), t.b.roi(), t.b.step(), t.d.roi(), t.d.step(), roi, s),
                    [&](int a, int b) { return scaled8u(long(a) * b, s); });
        }
        t.check(zeliMulScale_8u_C1R(t.a.roi(), t.a.step(), t.b.roi(), t.b.step(), t.d.roi(), t.d.step(), roi),
                [](int a, int b) { const int p = a * b; return (p + 1 + (p >> 8)) >> 8; });
    });
}

// One call with chosen operands and the value it must write.
struct Case {
    const char* what;
    std::function<ZelStatus(const Zel8u* a, const Zel8u* b, Zel8u* d)> call;
    Zel8u a, b, expected;
};

TEST(Arith8u, DocumentedBandEdges) {
    const ZeliSize one{1, 1};
    const std::vector<Case> cases = {
        {"401 / 2 ties to even", [&](auto a, auto b, auto d) { return zeliAdd_8u_C1RSfs(a, 1, b, 1, d, 1, one, 1); }, 200, 201, 200},
        {"403 / 2 ties to even", [&](auto a, auto b, auto d) { return zeliAdd_8u_C1RSfs(a, 1, b, 1, d, 1, one, 1); }, 200, 203, 202},
        {"510 / 512 rounds to 1", [&](auto a, auto b, auto d) { return zeliAdd_8u_C1RSfs(a, 1, b, 1, d, 1, one, 9); }, 255, 255, 1},
        {"510 / 1024 is 0", [&](auto a, auto b, auto d) { return zeliAdd_8u_C1RSfs(a, 1, b, 1, d, 1, one, 10); }, 255, 255, 0},
        {"3 - 10 saturates", [&](auto a, auto b, auto d) { return zeliSub_8u_C1RSfs(a, 1, b, 1, d, 1, one, 0); }, 10, 3, 0},
        {"10 - 3", [&](auto a, auto b, auto d) { return zeliSub_8u_C1RSfs(a, 1, b, 1, d, 1, one, 0); }, 3, 10, 7},
        {"0 + 0 at -8", [&](auto a, auto b, auto d) { return zeliAdd_8u_C1RSfs(a, 1, b, 1, d, 1, one, -8); }, 0, 0, 0},
        {"0 + 1 at -8", [&](auto a, auto b, auto d) { return zeliAdd_8u_C1RSfs(a, 1, b, 1, d, 1, one, -8); }, 0, 1, 255},
        {"255 x 255 scaled", [&](auto a, auto b, auto d) { return zeliMulScale_8u_C1R(a, 1, b, 1, d, 1, one); }, 255, 255, 255},
        {"128 x 255 scaled", [&](auto a, auto b, auto d) { return zeliMulScale_8u_C1R(a, 1, b, 1, d, 1, one); }, 128, 255, 128},
        {"1 x 1 scaled", [&](auto a, auto b, auto d) { return zeliMulScale_8u_C1R(a, 1, b, 1, d, 1, one); }, 1, 1, 0},
    };
    for (const Case& c : cases) {
        Zel8u d = 99;
        EXPECT_EQ(c.call(&c.a, &c.b, &d), zelStatusOk) << c.what;
        EXPECT_EQ(d, c.expected) << c.what;
    }
}

// The largest complex product, (-32768 - 32768i)^2 = 0 + 2^31 i, and its
// neighbours, across the bands: the imaginary part needs 33 bits.
TEST(Arith, ComplexProductsAtTheTypeExtremes) {
    const Zel16sc lo{-32768, -32768}, mixed{-32768, 32767};
    zel::test::forEachConfig([&] {
        for (int s : {-20, -1, 0, 1, 2, 15, 16, 17, 30, 31, 32}) {
            Zel16sc src[5] = {lo, lo, mixed, lo, mixed}, dst[5];
            const Zel16sc other[5] = {lo, mixed, mixed, lo, lo};
            ASSERT_EQ(zeliMul_16sc_C1RSfs(other, 20, src, 20, dst, 20, {5, 1}, s), zelStatusOk);
            for (int i = 0; i < 5; ++i) {
                Zel16sc expected;
                zel::test::referenceOp(zel::test::Op::Mul, src[i], other[i], s, expected);
                EXPECT_EQ(dst[i].re, expected.re) << "scale " << s << " element " << i;
                EXPECT_EQ(dst[i].im, expected.im) << "scale " << s << " element " << i;
            }
        }
    });
}

// Check order. Most members check null pointers and the size only and use
// any step as given; the 16sc and 32fc members also check steps; MulScale
// and MulCScale check the step before the size. The zero-fill shortcut
// comes after all checks.
TEST(Arith, CheckOrderPerFamily) {
    Image<Zel8u> a({4, 4}, 4), d({4, 4}, 4);
    Image<Zel16sc> ca({4, 4}, 1), cd({4, 4}, 1);
    Image<Zel32fc> fa({4, 4}, 3), fd({4, 4}, 3);
    const Zel8u v3[3] = {1, 2, 3};
    const Zel16sc cv{1, 2};
    const ZeliSize roi{4, 4}, noWidth{0, 4}, noHeight{4, 0};
    const int s8 = a.step(), sc = ca.step(), sf = fa.step();
    zel::test::expectRejected(
        {
            {"Add null src", zelStatusNullPtr, [&] { return zeliAdd_8u_C1RSfs(nullptr, s8, a.roi(), s8, d.roi(), s8, roi, 0); }},
            {"Add null dst before size", zelStatusNullPtr, [&] { return zeliAdd_8u_C4RSfs(a.roi(), s8, a.roi(), s8, nullptr, s8, noWidth, 0); }},
            {"Add null before shortcut", zelStatusNullPtr, [&] { return zeliAdd_8u_C1RSfs(a.roi(), s8, nullptr, s8, d.roi(), s8, roi, 10); }},
            {"Add size", zelStatusBadSize, [&] { return zeliAdd_8u_C1RSfs(a.roi(), s8, a.roi(), s8, d.roi(), s8, noWidth, 0); }},
            {"Add size before shortcut", zelStatusBadSize, [&] { return zeliAdd_8u_C1RSfs(a.roi(), s8, a.roi(), s8, d.roi(), s8, noHeight, 10); }},
            {"Sub in place size", zelStatusBadSize, [&] { return zeliSub_8u_AC4IRSfs(a.roi(), s8, d.roi(), s8, noHeight, 0); }},
            {"AddC null values", zelStatusNullPtr, [&] { return zeliAddC_8u_C3RSfs(a.roi(), s8, nullptr, d.roi(), s8, roi, 0); }},
            {"MulC in place null values", zelStatusNullPtr, [&] { return zeliMulC_8u_AC4IRSfs(nullptr, d.roi(), s8, roi, 0); }},
            {"SubC size", zelStatusBadSize, [&] { return zeliSubC_8u_C3RSfs(a.roi(), s8, v3, d.roi(), s8, noWidth, 0); }},
            {"16sc null before step", zelStatusNullPtr, [&] { return zeliAdd_16sc_C1RSfs(ca.roi(), 0, nullptr, sc, cd.roi(), sc, roi, 0); }},
            {"16sc size before step", zelStatusBadSize, [&] { return zeliMul_16sc_C1RSfs(ca.roi(), 0, ca.roi(), sc, cd.roi(), sc, noWidth, 0); }},
            {"16sc source step", zelStatusBadStep, [&] { return zeliMul_16sc_C1RSfs(ca.roi(), 0, ca.roi(), sc, cd.roi(), sc, roi, 0); }},
            {"16sc dst step", zelStatusBadStep, [&] { return zeliSubC_16sc_C1RSfs(ca.roi(), sc, cv, cd.roi(), -sc, roi, 0); }},
            {"16sc step before shortcut", zelStatusBadStep, [&] { return zeliAddC_16sc_C1IRSfs(cv, cd.roi(), 0, roi, 40); }},
            {"32fc step", zelStatusBadStep, [&] { return zeliAdd_32fc_C3IR(fa.roi(), 0, fd.roi(), sf, roi); }},
            {"32fc in-place step", zelStatusBadStep, [&] { return zeliMulC_32fc_C1IR(Zel32fc{1, 1}, fd.roi(), -1, roi); }},
            {"MulScale null first", zelStatusNullPtr, [&] { return zeliMulScale_8u_C1R(nullptr, 0, a.roi(), s8, d.roi(), s8, noWidth); }},
            {"MulScale step before size", zelStatusBadStep, [&] { return zeliMulScale_8u_C1R(a.roi(), 0, a.roi(), s8, d.roi(), s8, noWidth); }},
            {"MulCScale step before size", zelStatusBadStep, [&] { return zeliMulCScale_8u_AC4IR(v3, d.roi(), -4, noHeight); }},
            {"MulScale size", zelStatusBadSize, [&] { return zeliMulScale_16u_C3IR(reinterpret_cast<Zel16u*>(a.roi()), s8, reinterpret_cast<Zel16u*>(d.roi()), s8, noWidth); }},
        },
        a, d, ca, cd, fa, fd);
}

// Members without a step check use the step as given: a zero step makes
// every row the first one.
TEST(Arith, UncheckedStepIsUsedAsGiven) {
    const Zel16s src[3] = {1, 2, 3};
    Zel16s dst[3] = {0, 0, 0};
    EXPECT_EQ(zeliAddC_16s_C1RSfs(src, 0, 10, dst, 0, {3, 4}, 0), zelStatusOk);
    EXPECT_EQ(dst[0], 11);
    EXPECT_EQ(dst[2], 13);
    const Zel32sc a{5, 6};
    Zel32sc b{1, 1};
    EXPECT_EQ(zeliSub_32sc_C1IRSfs(&a, 0, &b, 0, {1, 1}, 0), zelStatusOk);
    EXPECT_EQ(b.re, -4);
    EXPECT_EQ(b.im, -5);
}

}  // namespace
