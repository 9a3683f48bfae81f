// The rules at their edges: every 8u pair against the rules as written, the
// complex and division extremes, the 16sc zero-divisor pairing, and the
// argument-check order of every family.
#include <cstring>

#include "arith/arith_test.h"
#include "harness/checkorder.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

// The scale-factor rule transcribed literally: for s > 0 add 2^(s-1) - 1
// plus the lowest bit of the quotient and shift (ties to even), for s < 0
// shift left, then saturate to 0..255.
int scaled8u(long v, int s) {
    if (s > 0) v = (v + (1L << (s - 1)) - 1 + ((v >> s) & 1)) >> s;
    if (s < 0) v *= 1L << -s;
    return v < 0 ? 0 : v > 255 ? 255 : int(v);
}

// Source 1 = x and source 2 = y for every 8u pair (x, y); the expected
// values are computed once per scale factor and mode and met under every
// target and thread count. Column 0 holds the zero divisors.
template <class Rule>
void expectEveryPair(const Member<Zel8u>& m, std::initializer_list<int> scales, std::initializer_list<int> modes,
                     Rule rule) {
    const ZeliSize roi{256, 256};
    Image<Zel8u> a(roi, 1), b(roi, 1), d(roi, 1);
    a.fill([](int x, int, int) { return Zel8u(x); });
    b.fill([](int, int y, int) { return Zel8u(y); });
    const bool division = m.op == Op::Div || m.op == Op::DivRound;
    std::vector<int> want(256 * 256);
    for (int mode : modes)
        for (int s : scales) {
            SCOPED_TRACE(testing::Message() << m.name << " scale " << s << " mode " << mode);
            for (int i = 0; i < 256 * 256; ++i) want[i] = rule(i % 256, i / 256, s, mode);
            forEachConfig([&] {
                ASSERT_EQ(m.call(a.roi(), a.step(), b.roi(), b.step(), d.roi(), d.step(), roi, mode, s, nullptr),
                          division ? zelStatusWarnDivByZero : zelStatusOk);
                for (int i = 0; i < 256 * 256; ++i)
                    ASSERT_EQ(d.at(i % 256, i / 256), want[i]) << "sources " << i % 256 << ", " << i / 256;
                ASSERT_TRUE(d.outsideUnchanged());
            });
        }
}

#define ZT_8U(fn, op) ZT_MEMBER(fn, op, 8u, C1, false, false)

TEST(Arith8u, EveryPairAgainstTheWrittenRules) {
    const auto bands = {-16, -15, -9, -8, -1, 0, 1, 2, 8, 9, 10, 16, 17};
    expectEveryPair(ZT_8U(zeliAdd_8u_C1RSfs, Add), bands, {1},
                    [](int a, int b, int s, int) { return scaled8u(b + a, s); });
    // The first source is subtracted from the second and divides it.
    expectEveryPair(ZT_8U(zeliSub_8u_C1RSfs, Sub), bands, {1},
                    [](int a, int b, int s, int) { return scaled8u(b - a, s); });
    expectEveryPair(ZT_8U(zeliMul_8u_C1RSfs, Mul), bands, {1},
                    [](int a, int b, int s, int) { return scaled8u(long(a) * b, s); });
    expectEveryPair(ZT_8U(zeliMulScale_8u_C1R, MulScale), {0}, {1},
                    [](int a, int b, int, int) { return (a * b + 1 + (a * b >> 8)) >> 8; });
    const auto divide = [](int a, int b, int s, int mode) { return int(quotient<Zel8u>(a, b, s, mode)); };
    expectEveryPair(ZT_8U(zeliDiv_8u_C1RSfs, Div), bands, {1}, divide);
    expectEveryPair(ZT_8U(zeliDiv_Round_8u_C1RSfs, DivRound), bands, {0, 1, 2}, divide);
}

// The largest complex product, (-32768 - 32768i)^2 = 0 + 2^31 i, and its
// neighbours, across the bands: the imaginary part needs 33 bits.
TEST(Arith, ComplexProductsAtTheTypeExtremes) {
    const Zel16sc lo{-32768, -32768}, mixed{-32768, 32767};
    const Zel16sc src[5] = {lo, lo, mixed, lo, mixed}, other[5] = {lo, mixed, mixed, lo, lo};
    forEachConfig([&] {
        for (int s : {-20, -1, 0, 1, 2, 15, 16, 17, 30, 31, 32}) {
            Zel16sc dst[5];
            ASSERT_EQ(zeliMul_16sc_C1RSfs(other, 20, src, 20, dst, 20, {5, 1}, s), zelStatusOk);
            for (int i = 0; i < 5; ++i)
                EXPECT_TRUE(same(dst[i], expected(Op::Mul, false, src[i], other[i], s, 1))) << s << ", " << i;
        }
    });
}

TEST(Arith, DivisionAtExtremeScaleFactorsAndQuotients) {
    Zel32sc a[2] = {{INT32_MIN, INT32_MIN}, {0, 1}}, b[2] = {{1, 0}, {INT32_MIN, INT32_MAX}}, d[2];
    const int stride = int(sizeof a);
    EXPECT_EQ(zeliDiv_32sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, -200), zelStatusOk);
    EXPECT_EQ(d[0].re, INT32_MIN);  // 1 * 2^200 / -2^31 per part, saturated
    EXPECT_EQ(d[0].im, INT32_MAX);
    EXPECT_EQ(d[1].re, INT32_MAX);  // b / i = (b.im, -b.re)
    EXPECT_EQ(zeliDiv_32sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 0), zelStatusOk);
    EXPECT_EQ(d[1].re, INT32_MAX);
    EXPECT_EQ(d[1].im, INT32_MAX);  // -INT32_MIN saturates
    Zel16s n = -7, z = 0, q = 0;
    EXPECT_EQ(zeliDiv_16s_C1RSfs(&z, 2, &n, 2, &q, 2, {1, 1}, INT32_MIN), zelStatusWarnDivByZero);
    EXPECT_EQ(q, -32768);
    EXPECT_EQ(zeliDiv_Round_16s_C1RSfs(&z, 2, &n, 2, &q, 2, {1, 1}, zelRoundHalfAway, INT32_MAX),
              zelStatusWarnDivByZero);
    EXPECT_EQ(q, -32768);
}

// Above s = 32 the 16sc warning pairs the divisor's real part with the
// dividend's imaginary part, deliberately.
TEST(Arith, ComplexTopBandPairsDivisorRealWithDividendImaginary) {
    Zel16sc a[2] = {{0, 5}, {3, 0}}, b[2] = {{7, 0}, {9, 9}}, d[2] = {{1, 1}, {1, 1}};
    const int stride = int(sizeof a);
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 33), zelStatusWarnDivByZero);
    EXPECT_EQ(d[0].re | d[0].im | d[1].re | d[1].im, 0);
    b[0].im = 1;  // no pair left: the warning goes although a[0] is still not zero
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 33), zelStatusOk);
    a[0] = {0, 0};  // nor does a zero divisor alone
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, 33), zelStatusOk);
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(a, stride, b, stride, d, stride, {2, 1}, -33), zelStatusWarnDivByZero);
    EXPECT_EQ(d[0].re | d[0].im, 0);
    EXPECT_EQ(d[1].re, 32767);  // 9 * 3 > 0
    EXPECT_EQ(d[1].im, 32767);
}

// A mode value as a caller might pass it, also outside the enumeration.
ZelRoundingMode rawMode(int value) {
    ZelRoundingMode mode;
    std::memcpy(&mode, &value, sizeof mode);
    return mode;
}

// Null pointers, then the size, then steps where the member checks them, then
// the family's own checks (DivC's zero constant in any channel, Div_Round's
// mode), then the scale-factor shortcut; nothing is written on failure. Most
// Add, Sub and Mul members do not check steps; the 16sc and 32fc ones do;
// MulScale and MulCScale check the step before the size.
TEST(Arith, CheckOrderPerFamily) {
    Image<Zel8u> a({4, 4}, 4), d({4, 4}, 4);
    Image<Zel16sc> ca({4, 4}, 1), cd({4, 4}, 1);
    Image<Zel32fc> fa({4, 4}, 3), fd({4, 4}, 3);
    const Zel8u v3[3] = {1, 2, 3}, zero3[3] = {1, 0, 1};
    const Zel16sc cv{1, 2};
    const ZeliSize roi{4, 4}, noWidth{0, 4}, noHeight{4, 0};
    const int s8 = a.step(), sc = ca.step(), sf = fa.step();
    Zel8u *src = a.roi(), *dst = d.roi();
    Zel16sc *csrc = ca.roi(), *cdst = cd.roi();
    Zel32fc *fsrc = fa.roi(), *fdst = fd.roi();
    Zel16u *a16 = reinterpret_cast<Zel16u*>(src), *d16 = reinterpret_cast<Zel16u*>(dst);
    expectRejected(
        {
            {"Add null src", zelStatusNullPtr, [&] { return zeliAdd_8u_C1RSfs(nullptr, s8, src, s8, dst, s8, roi, 0); }},
            {"Add null dst before size", zelStatusNullPtr, [&] { return zeliAdd_8u_C4RSfs(src, s8, src, s8, nullptr, s8, noWidth, 0); }},
            {"Add null before shortcut", zelStatusNullPtr, [&] { return zeliAdd_8u_C1RSfs(src, s8, nullptr, s8, dst, s8, roi, 10); }},
            {"Add size before shortcut", zelStatusBadSize, [&] { return zeliAdd_8u_C1RSfs(src, s8, src, s8, dst, s8, noHeight, 10); }},
            {"Sub in place size", zelStatusBadSize, [&] { return zeliSub_8u_AC4IRSfs(src, s8, dst, s8, noHeight, 0); }},
            {"AddC null values", zelStatusNullPtr, [&] { return zeliAddC_8u_C3RSfs(src, s8, nullptr, dst, s8, roi, 0); }},
            {"MulC in place null values", zelStatusNullPtr, [&] { return zeliMulC_8u_AC4IRSfs(nullptr, dst, s8, roi, 0); }},
            {"SubC size", zelStatusBadSize, [&] { return zeliSubC_8u_C3RSfs(src, s8, v3, dst, s8, noWidth, 0); }},
            {"16sc null before step", zelStatusNullPtr, [&] { return zeliAdd_16sc_C1RSfs(csrc, 0, nullptr, sc, cdst, sc, roi, 0); }},
            {"16sc size before step", zelStatusBadSize, [&] { return zeliMul_16sc_C1RSfs(csrc, 0, csrc, sc, cdst, sc, noWidth, 0); }},
            {"16sc source step", zelStatusBadStep, [&] { return zeliMul_16sc_C1RSfs(csrc, 0, csrc, sc, cdst, sc, roi, 0); }},
            {"16sc dst step", zelStatusBadStep, [&] { return zeliSubC_16sc_C1RSfs(csrc, sc, cv, cdst, -sc, roi, 0); }},
            {"16sc step before shortcut", zelStatusBadStep, [&] { return zeliAddC_16sc_C1IRSfs(cv, cdst, 0, roi, 40); }},
            {"32fc step", zelStatusBadStep, [&] { return zeliAdd_32fc_C3IR(fsrc, 0, fdst, sf, roi); }},
            {"32fc in-place step", zelStatusBadStep, [&] { return zeliMulC_32fc_C1IR(Zel32fc{1, 1}, fdst, -1, roi); }},
            {"MulScale null first", zelStatusNullPtr, [&] { return zeliMulScale_8u_C1R(nullptr, 0, src, s8, dst, s8, noWidth); }},
            {"MulScale step before size", zelStatusBadStep, [&] { return zeliMulScale_8u_C1R(src, 0, src, s8, dst, s8, noWidth); }},
            {"MulCScale step before size", zelStatusBadStep, [&] { return zeliMulCScale_8u_AC4IR(v3, dst, -4, noHeight); }},
            {"MulScale size", zelStatusBadSize, [&] { return zeliMulScale_16u_C3IR(a16, s8, d16, s8, noWidth); }},
            {"Div null divisor", zelStatusNullPtr, [&] { return zeliDiv_8u_C3RSfs(nullptr, s8, src, s8, dst, s8, roi, 0); }},
            {"Div null image", zelStatusNullPtr, [&] { return zeliDiv_8u_C3IRSfs(src, s8, nullptr, s8, roi, 0); }},
            {"Div null before size", zelStatusNullPtr, [&] { return zeliDiv_32f_C1R(nullptr, 4, nullptr, 4, nullptr, 4, {0, 0}); }},
            {"Div size before step", zelStatusBadSize, [&] { return zeliDiv_8u_C3RSfs(src, 0, src, s8, dst, s8, noHeight, 0); }},
            {"Div divisor step", zelStatusBadStep, [&] { return zeliDiv_8u_C3RSfs(src, 0, src, s8, dst, s8, roi, 0); }},
            {"Div image step", zelStatusBadStep, [&] { return zeliDiv_8u_C3IRSfs(src, s8, dst, -s8, roi, 0); }},
            {"Div_Round mode", zelStatusBadRoundMode, [&] { return zeliDiv_Round_8u_C3RSfs(src, s8, src, s8, dst, s8, roi, rawMode(3), 0); }},
            {"Div_Round mode -1", zelStatusBadRoundMode, [&] { return zeliDiv_Round_16u_C1IRSfs(a16, s8, d16, s8, roi, rawMode(-1), 0); }},
            {"Div_Round step before mode", zelStatusBadStep, [&] { return zeliDiv_Round_8u_C3IRSfs(src, s8, dst, 0, roi, rawMode(3), 0); }},
            {"Div_Round size before mode", zelStatusBadSize, [&] { return zeliDiv_Round_8u_C3IRSfs(src, s8, dst, s8, {-1, 4}, rawMode(3), 0); }},
            {"DivC null constant", zelStatusNullPtr, [&] { return zeliDivC_8u_C3RSfs(src, s8, nullptr, dst, s8, roi, 0); }},
            {"DivC zero constant", zelStatusDivByZero, [&] { return zeliDivC_8u_C3RSfs(src, s8, zero3, dst, s8, roi, 0); }},
            {"DivC zero constant in place", zelStatusDivByZero, [&] { return zeliDivC_8u_C3IRSfs(zero3, dst, s8, roi, 0); }},
            {"DivC step before constant", zelStatusBadStep, [&] { return zeliDivC_8u_C3IRSfs(zero3, dst, 0, roi, 0); }},
            {"DivC size before constant", zelStatusBadSize, [&] { return zeliDivC_8u_C1IRSfs(0, dst, s8, noHeight, 0); }},
            {"DivC null before constant", zelStatusNullPtr, [&] { return zeliDivC_32f_C1R(nullptr, s8, 0.0f, nullptr, s8, {0, 0}); }},
            {"DivC zero 32f constant", zelStatusDivByZero, [&] { return zeliDivC_32f_C1IR(-0.0f, reinterpret_cast<float*>(dst), s8, roi); }},
            {"DivC zero 16sc constant", zelStatusDivByZero, [&] { return zeliDivC_16sc_C1IRSfs(Zel16sc{0, 0}, cdst, sc, roi, 0); }},
        },
        a, d, ca, cd, fa, fd);
    // Members without a step check use the step as given: with 0 every row is the first one.
    const Zel16s in[3] = {1, 2, 3};
    Zel16s out[3] = {0, 0, 0};
    EXPECT_EQ(zeliAddC_16s_C1RSfs(in, 0, 10, out, 0, {3, 4}, 0), zelStatusOk);
    EXPECT_EQ(out[0], 11);
    EXPECT_EQ(out[2], 13);
    const Zel32sc source{5, 6};
    Zel32sc image{1, 1};
    EXPECT_EQ(zeliSub_32sc_C1IRSfs(&source, 0, &image, 0, {1, 1}, 0), zelStatusOk);
    EXPECT_EQ(image.re, -4);
    EXPECT_EQ(image.im, -5);
}

}  // namespace
}  // namespace zel::test
