// Every Div, Div_Round and DivC member against the reference rule on odd
// sizes, unaligned ROIs inside guarded buffers, every SIMD target and one
// or several threads; in place against not in place; long rows around the
// thresholds where a row is split between two threads.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "arith/div_reference.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using zel::test::Image;

// One R member with its IR twin. For DivC, `a` is the constant array.
template <class T>
struct Member {
    std::string name;
    int channels, computed;
    bool constant;
    std::function<int(const T* a, int as, const T* b, int bs, T* d, int ds, ZeliSize r, int m, int s)> run;
    std::function<int(const T* a, int as, T* d, int ds, ZeliSize r, int m, int s)> runInPlace;
};

constexpr int channelsOf(const char* layout) { return layout[1] == '1' ? 1 : layout[1] == '3' ? 3 : 4; }
constexpr int computedOf(const char* layout) { return layout[0] == 'A' ? 3 : channelsOf(layout); }

#define MEMBER(family, t, l, constant, callR, callIR)                                                \
    Member<Zel##t> {                                                                                 \
        family "_" #t "_" #l, channelsOf(#l), computedOf(#l), constant,                              \
            [](const Zel##t* a, [[maybe_unused]] int as, const Zel##t* b, int bs, Zel##t* d, int ds, \
               ZeliSize r, [[maybe_unused]] int m, [[maybe_unused]] int s) { return int(callR); },   \
            [](const Zel##t* a, [[maybe_unused]] int as, Zel##t* d, int ds, ZeliSize r,              \
               [[maybe_unused]] int m, [[maybe_unused]] int s) { return int(callIR); }               \
    }
#define DIV_SFS(t, l)                                                              \
    MEMBER("Div", t, l, false, zeliDiv_##t##_##l##RSfs(a, as, b, bs, d, ds, r, s), \
           zeliDiv_##t##_##l##IRSfs(a, as, d, ds, r, s))
#define DIV_F(t, l)                                                          \
    MEMBER("Div", t, l, false, zeliDiv_##t##_##l##R(a, as, b, bs, d, ds, r), \
           zeliDiv_##t##_##l##IR(a, as, d, ds, r))
#define DIV_ROUND(t, l)                                                                  \
    MEMBER("Div_Round", t, l, false,                                                     \
           zeliDiv_Round_##t##_##l##RSfs(a, as, b, bs, d, ds, r, ZelRoundingMode(m), s), \
           zeliDiv_Round_##t##_##l##IRSfs(a, as, d, ds, r, ZelRoundingMode(m), s))
#define DIVC_SFS1(t)                                                           \
    MEMBER("DivC", t, C1, true, zeliDivC_##t##_C1RSfs(b, bs, *a, d, ds, r, s), \
           zeliDivC_##t##_C1IRSfs(*a, d, ds, r, s))
#define DIVC_SFS(t, l)                                                          \
    MEMBER("DivC", t, l, true, zeliDivC_##t##_##l##RSfs(b, bs, a, d, ds, r, s), \
           zeliDivC_##t##_##l##IRSfs(a, d, ds, r, s))
#define DIVC_F1(t) \
    MEMBER("DivC", t, C1, true, zeliDivC_##t##_C1R(b, bs, *a, d, ds, r), zeliDivC_##t##_C1IR(*a, d, ds, r))
#define DIVC_F(t, l) \
    MEMBER("DivC", t, l, true, zeliDivC_##t##_##l##R(b, bs, a, d, ds, r), zeliDivC_##t##_##l##IR(a, d, ds, r))
#define ALL3(X, t) X(t, C1), X(t, C3), X(t, AC4)
#define ALL4(X, t) ALL3(X, t), X(t, C4)

#define INTEGER_MEMBERS(t)                                                                    \
    std::vector<Member<Zel##t>> {                                                             \
        ALL4(DIV_SFS, t), ALL4(DIV_ROUND, t), DIVC_SFS1(t), DIVC_SFS(t, C3), DIVC_SFS(t, C4), \
            DIVC_SFS(t, AC4)                                                                  \
    }
#define COMPLEX_MEMBERS(t) \
    std::vector<Member<Zel##t>> { ALL3(DIV_SFS, t), DIVC_SFS1(t), DIVC_SFS(t, C3), DIVC_SFS(t, AC4) }

std::vector<Member<Zel8u>> members8u() { return INTEGER_MEMBERS(8u); }
std::vector<Member<Zel16u>> members16u() { return INTEGER_MEMBERS(16u); }
std::vector<Member<Zel16s>> members16s() { return INTEGER_MEMBERS(16s); }
std::vector<Member<Zel16sc>> members16sc() { return COMPLEX_MEMBERS(16sc); }
std::vector<Member<Zel32sc>> members32sc() { return COMPLEX_MEMBERS(32sc); }
std::vector<Member<Zel32f>> members32f() {
    return {ALL4(DIV_F, 32f), DIVC_F1(32f), DIVC_F(32f, C3), DIVC_F(32f, C4), DIVC_F(32f, AC4)};
}
std::vector<Member<Zel32fc>> members32fc() {
    return {ALL3(DIV_F, 32fc), DIVC_F1(32fc), DIVC_F(32fc, C3), DIVC_F(32fc, AC4)};
}

template <class T>
T expectedElement(const Member<T>& m, T a, T b, int mode, int s) {
    if constexpr (std::is_same_v<T, Zel32f>)
        if (m.constant) return b * (1.0f / a);
    return divref::quotient(a, b, s, mode);
}

// Runs the member on one ROI and checks every element, the guards, the
// status and the in-place form.
template <class T>
void checkCall(const Member<T>& m, ZeliSize roi, int offset, int mode, int s, std::uint32_t seed,
               bool onlyLastDivisorZero = false) {
    SCOPED_TRACE(testing::Message() << m.name << " " << roi.width << "x" << roi.height << " offset " << offset
                                    << " s=" << s << " mode " << mode);
    std::mt19937 rng(seed);
    const auto sample = [&](int, int, int) { return divref::sampleElement<T>(rng); };
    Image<T> divisor(roi, m.channels, m.computed, offset),
        dividend(roi, m.channels, m.computed, 2 * sizeof(T));
    Image<T> dst(roi, m.channels, m.computed, offset + sizeof(T));
    divisor.fill(sample);
    dividend.fill(sample);
    if (onlyLastDivisorZero)
        divisor.fill([&](int x, int y, int c) {
            const bool last = x == roi.width - 1 && y == roi.height - 1 && c == 0;
            if constexpr (divref::kComplex<T>)
                return last ? T{0, 0} : T{1, 0};
            else
                return last ? T(0) : T(1);
        });
    if (m.name.rfind("Div_Round", 0) != 0) mode = 1;  // the others round to nearest even
    T constant[4];
    for (T& c : constant) do
            c = divref::sampleElement<T>(rng);
        while (divref::warns(c, c, 0));
    const T* a = m.constant ? constant : divisor.roi();
    const int status =
        m.run(a, divisor.step(), dividend.roi(), dividend.step(), dst.roi(), dst.step(), roi, mode, s);
    Image<T> inPlace = dividend;
    ASSERT_EQ(m.runInPlace(a, divisor.step(), inPlace.roi(), inPlace.step(), roi, mode, s), status);
    bool warn = false;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.computed; ++c) {
                const T divisorValue = m.constant ? constant[c] : divisor.at(x, y, c);
                const T expected = expectedElement(m, divisorValue, dividend.at(x, y, c), mode, s);
                warn |= !m.constant && divref::warns(divisorValue, dividend.at(x, y, c), s);
                ASSERT_TRUE(divref::same(dst.at(x, y, c), expected)) << "at " << x << "," << y << "," << c;
                ASSERT_TRUE(divref::same(inPlace.at(x, y, c), expected)) << "in place at " << x << "," << y;
            }
    EXPECT_EQ(status, warn ? zelStatusWarnDivByZero : zelStatusOk);
    EXPECT_TRUE(dst.outsideUnchanged());
    EXPECT_TRUE(inPlace.outsideUnchanged());
    EXPECT_TRUE(divisor.unchanged() && dividend.unchanged());
}

template <class T>
void checkMembers(const std::vector<Member<T>>& members) {
    const int scales[] = {-17, -3, 0, 1, 2, 9, 17, 33};
    zel::test::forEachConfig([&] {
        for (const Member<T>& m : members) {
            int i = 0;
            for (ZeliSize roi : zel::test::oddSizes()) {
                checkCall(m, roi, (i % 3) * sizeof(T), i % 3, scales[i % 8], 100 + i);
                ++i;
            }
        }
    });
}

TEST(DivMembers, Integer8u) { checkMembers(members8u()); }
TEST(DivMembers, Integer16u) { checkMembers(members16u()); }
TEST(DivMembers, Integer16s) { checkMembers(members16s()); }
TEST(DivMembers, Complex16sc) { checkMembers(members16sc()); }
TEST(DivMembers, Complex32sc) { checkMembers(members32sc()); }
TEST(DivMembers, Float32f) { checkMembers(members32f()); }
TEST(DivMembers, Complex32fc) { checkMembers(members32fc()); }

// Rows just below, at and above the length from which they are split
// between two threads: same results and warning for 1 and 4 threads, also
// when the only zero divisor is the last element (the second chunk's).
template <class T>
void checkSplit(const Member<T>& div, int threshold) {
    zel::test::forEachConfig([&] {
        for (int width : {threshold - 1, threshold, threshold + 1}) {
            checkCall(div, {width, 1}, 0, 1, 0, width);
            checkCall(div, {width, 1}, 0, 1, 0, width, true);
        }
    });
}

TEST(DivMembers, RowsAroundTheSplitThreshold) {
    checkSplit(members8u()[0], 1024);
    checkSplit(members16u()[0], 1024);
    checkSplit(members16s()[1], 1024);  // C3
    checkSplit(members16sc()[0], 256);
    checkSplit(members32sc()[2], 256);  // AC4
    checkSplit(members32f()[0], 4096);
    checkSplit(members32fc()[0], 1024);
}

// Results above the cache-bypass size take the streaming stores.
TEST(DivMembers, LargeFloatImages) {
    zel::test::forEachConfig([&] { checkCall(members32f()[0], {1024, 1025}, 4, 1, 0, 5); });
}

// Rows without padding are divided as one long row.
TEST(DivMembers, ContiguousRowsGiveTheSameResult) {
    const ZeliSize roi{700, 5};
    const int n = roi.width * roi.height * 3;
    std::vector<Zel8u> a(n), b(n), d(n), padded(std::size_t(roi.width * 3 + 9) * roi.height);
    std::mt19937 rng(3);
    for (int i = 0; i < n; ++i) a[i] = divref::sample<Zel8u>(rng), b[i] = divref::sample<Zel8u>(rng);
    zel::test::forEachConfig([&] {
        ASSERT_EQ(zeliDiv_8u_C3RSfs(a.data(), roi.width * 3, b.data(), roi.width * 3, d.data(), roi.width * 3,
                                    roi, -1),
                  zelStatusWarnDivByZero);
        ASSERT_EQ(zeliDiv_Round_8u_C3RSfs(a.data(), roi.width * 3, b.data(), roi.width * 3, padded.data(),
                                          roi.width * 3 + 9, roi, zelRoundNearestEven, -1),
                  zelStatusWarnDivByZero);
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(d[i], divref::real<Zel8u>(a[i], b[i], -1, 1)) << i;
            ASSERT_EQ(padded[i / (roi.width * 3) * (roi.width * 3 + 9) + i % (roi.width * 3)], d[i]) << i;
        }
    });
}

}  // namespace
