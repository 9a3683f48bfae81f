// Abs, Sqr, Sqrt, Ln, Exp and Complement: every member against a plain
// long-double transcription of its rule on guarded, unaligned images under
// every target and thread count; the integer rules exhaustively; the check
// orders, the row advance and the status each family gathers.
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "core/memory.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace zel::test {
namespace {

enum Op { kAbs, kSqr, kSqrt, kLn, kExp, kComplement };

template <class T>
struct Member {
    std::string name;
    Op op;
    int channels, writable;
    bool inPlace;
    std::function<int(const T*, int, T*, int, ZeliSize, int)> call;
};

#define ZT_R(op, fn, ch, wr) \
    {#fn, op, ch, wr, false, [](const T* s, int ss, T* d, int ds, ZeliSize r, int) { return int(fn(s, ss, d, ds, r)); }}
#define ZT_IR(op, fn, ch, wr) \
    {#fn, op, ch, wr, true, [](const T*, int, T* d, int ds, ZeliSize r, int) { return int(fn(d, ds, r)); }}
#define ZT_RS(op, fn, ch, wr) \
    {#fn, op, ch, wr, false, [](const T* s, int ss, T* d, int ds, ZeliSize r, int f) { return int(fn(s, ss, d, ds, r, f)); }}
#define ZT_IRS(op, fn, ch, wr) \
    {#fn, op, ch, wr, true, [](const T*, int, T* d, int ds, ZeliSize r, int f) { return int(fn(d, ds, r, f)); }}
#define ZT_PAIR(op, name, t, lay, ch, wr) ZT_R(op, zeli##name##_##t##_##lay##R, ch, wr), ZT_IR(op, zeli##name##_##t##_##lay##IR, ch, wr)
#define ZT_PAIRS(op, name, t, lay, ch, wr) \
    ZT_RS(op, zeli##name##_##t##_##lay##RSfs, ch, wr), ZT_IRS(op, zeli##name##_##t##_##lay##IRSfs, ch, wr)
#define ZT_L2(P, op, name, t) P(op, name, t, C1, 1, 1), P(op, name, t, C3, 3, 3)
#define ZT_L3(P, op, name, t) ZT_L2(P, op, name, t), P(op, name, t, AC4, 4, 3)
#define ZT_L4(P, op, name, t) ZT_L3(P, op, name, t), P(op, name, t, C4, 4, 4)

template <class T>
std::vector<Member<T>> members();
template <>
std::vector<Member<Zel8u>> members() {
    using T = Zel8u;
    return {ZT_L4(ZT_PAIRS, kSqr, Sqr, 8u), ZT_L3(ZT_PAIRS, kSqrt, Sqrt, 8u), ZT_L2(ZT_PAIRS, kLn, Ln, 8u),
            ZT_L2(ZT_PAIRS, kExp, Exp, 8u)};
}
template <>
std::vector<Member<Zel16u>> members() {
    using T = Zel16u;
    return {ZT_L4(ZT_PAIRS, kSqr, Sqr, 16u), ZT_L3(ZT_PAIRS, kSqrt, Sqrt, 16u), ZT_L2(ZT_PAIRS, kLn, Ln, 16u),
            ZT_L2(ZT_PAIRS, kExp, Exp, 16u)};
}
template <>
std::vector<Member<Zel16s>> members() {
    using T = Zel16s;
    return {ZT_L4(ZT_PAIR, kAbs, Abs, 16s), ZT_L4(ZT_PAIRS, kSqr, Sqr, 16s), ZT_L3(ZT_PAIRS, kSqrt, Sqrt, 16s),
            ZT_L2(ZT_PAIRS, kLn, Ln, 16s), ZT_L2(ZT_PAIRS, kExp, Exp, 16s)};
}
template <>
std::vector<Member<Zel32f>> members() {
    using T = Zel32f;
    return {ZT_L4(ZT_PAIR, kAbs, Abs, 32f), ZT_L4(ZT_PAIR, kSqr, Sqr, 32f), ZT_L3(ZT_PAIR, kSqrt, Sqrt, 32f),
            ZT_IR(kSqrt, zeliSqrt_32f_C4IR, 4, 4), ZT_L2(ZT_PAIR, kLn, Ln, 32f), ZT_L2(ZT_PAIR, kExp, Exp, 32f)};
}
template <>
std::vector<Member<Zel32s>> members() {
    using T = Zel32s;
    return {ZT_IR(kComplement, zeliComplement_32s_C1IR, 1, 1)};
}

// ---- the rules, written out in long double ----

template <class T>
T saturated(long double v) {
    if (!(v > std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
    if (v >= std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
    return T(v);
}
long double nearestEven(long double v) { return std::nearbyintl(v); }  // default rounding: ties to even

// Integer members: the result and the row code of one element.
template <class T>
T integerRule(Op op, T x, int s, int& code) {
    const long double scale = std::ldexp(1.0L, -std::clamp(s, -200, 200));
    switch (op) {
        case kSqr: return saturated<T>(nearestEven((long double)x * x * scale));
        case kSqrt: return x < 0 ? T(0) : saturated<T>(nearestEven(std::sqrt((long double)x) * scale));
        case kLn:
            if (x < 0) return code = 8, T(0);
            if (x == 0) return code = code ? code : 7, std::numeric_limits<T>::min();
            return saturated<T>(nearestEven(std::log((long double)x) * scale));
        case kExp:
            if (sizeof(T) == 1 && s < -7) return T(255);
            {  // e^x 2^-s = 2^(x log2(e) - s), in the exponent first: s may be far out
                const long double t = (long double)x * 1.4426950408889634073599L - (long double)s;
                return t > 100 ? std::numeric_limits<T>::max() : saturated<T>(std::floor(std::exp2(t) + 0.5L));
            }
        case kAbs: return x == -32768 ? T(32767) : T(x < 0 ? -x : x);
        case kComplement: return T(~x);
    }
    return 0;
}

// 32f members: exact for Abs, Sqr, Sqrt; Ln and Exp by the double libm.
float floatRule(Op op, float x) {
    switch (op) {
        case kAbs: return std::fabs(x);
        case kSqr: return x * x;
        case kSqrt: return std::sqrt(x);
        case kLn: return float(std::log(double(x)));
        default: return float(std::exp(double(x)));
    }
}

// Distance in units in the last place between floats of one sign.
std::int64_t ulps(float a, float b) {
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b) ? 0 : 1 << 30;
    if (a == b) return 0;
    std::int32_t ia, ib;
    std::memcpy(&ia, &a, 4);
    std::memcpy(&ib, &b, 4);
    return (ia < 0) != (ib < 0) ? 1 << 30 : std::llabs(std::int64_t(ia) - ib);
}

template <class T>
::testing::AssertionResult matchesRule(const Member<T>& m, const Image<T>& src, const Image<T>& dst, int s) {
    for (int y = 0; y < src.size().height; ++y)
        for (int x = 0; x < src.size().width; ++x)
            for (int c = 0; c < m.writable; ++c) {
                const T in = src.at(x, y, c), out = dst.at(x, y, c);
                int code = 0;
                bool ok;
                if constexpr (std::is_floating_point_v<T>)
                    ok = ulps(out, floatRule(m.op, in)) <= (m.op == kLn || m.op == kExp ? 1 : 0);
                else
                    ok = out == integerRule<T>(m.op, in, s, code);
                if (!ok)
                    return ::testing::AssertionFailure()
                           << m.name << " s=" << s << " at (" << x << "," << y << "," << c << "): " << +in
                           << " gave " << +out;
            }
    return ::testing::AssertionSuccess();
}

// Runs m on src into dst (in place: on dst holding a copy of src).
template <class T>
int run(const Member<T>& m, const Image<T>& src, Image<T>& dst, int s) {
    if (m.inPlace) {
        for (int y = 0; y < src.size().height; ++y)
            std::memcpy(dst.row(y), src.row(y), sizeof(T) * src.size().width * m.channels);
        dst.snapshot();
    }
    return m.call(src.roi(), src.step(), dst.roi(), dst.step(), src.size(), s);
}

// Values each member takes: 32f Ln and Sqrt meet zeros and negative values,
// Exp stays where results are finite.
template <class T>
void fillFor(Op op, Image<T>& img, std::uint32_t seed) {
    if constexpr (std::is_floating_point_v<T>) {
        if (op == kExp) return img.fillRandom(seed, -100.0f, 90.0f);
        return img.fillRandom(seed, op == kSqr ? -1e19f : -1000.0f, op == kSqr ? 1e19f : 1000.0f);
    } else {
        img.fillRandom(seed);
    }
}

template <class T>
void expectMembersMatchRule(const std::vector<int>& scales) {
    for (const Member<T>& m : members<T>())
        for (ZeliSize size : {ZeliSize{1, 1}, ZeliSize{9, 3}, ZeliSize{63, 5}, ZeliSize{1031, 2}, ZeliSize{4099, 2}})
            for (int s : scales) {
                SCOPED_TRACE(m.name + " " + std::to_string(size.width) + "x" + std::to_string(size.height));
                Image<T> src(size, m.channels, 0, sizeof(T) * 3);
                fillFor(m.op, src, 7 + size.width);
                std::vector<std::vector<T>> first;
                int firstStatus = 0;
                forEachConfig([&] {
                    Image<T> dst(size, m.channels, m.writable, 5 * sizeof(T));
                    const int status = run(m, src, dst, s);
                    ASSERT_GE(status, 0);
                    if (first.empty()) firstStatus = status;
                    EXPECT_EQ(status, firstStatus);
                    EXPECT_TRUE(matchesRule(m, src, dst, s));
                    EXPECT_TRUE(dst.outsideUnchanged());
                    // The same bits under every target and thread count.
                    std::vector<T> rows;
                    for (int y = 0; y < size.height; ++y)
                        rows.insert(rows.end(), dst.row(y), dst.row(y) + size.width * m.writable);
                    if (first.empty()) first.push_back(rows);
                    EXPECT_EQ(std::memcmp(rows.data(), first[0].data(), rows.size() * sizeof(T)), 0);
                });
            }
}

TEST(Unary, EveryMemberMatchesItsRuleOnGuardedImages) {
    expectMembersMatchRule<Zel8u>({0, 1, 3, -2});
    expectMembersMatchRule<Zel16u>({0, 2, -1});
    expectMembersMatchRule<Zel16s>({0, 1, -3});
    expectMembersMatchRule<Zel32f>({0});
    expectMembersMatchRule<Zel32s>({0});
}

// Every input of the 8-bit and 16-bit members at the scale factors where
// rounding, ties and saturation change, and far beyond them. Four copies of
// every value: 16-bit images this large take the table path.
template <class T>
void expectExhaustive(const std::vector<int>& scales) {
    const int count = 1 << (8 * sizeof(T));
    const ZeliSize size{256, count / 256 * 4};
    Image<T> src(size, 1);
    src.fill([&](int x, int y, int) { return T(std::numeric_limits<T>::min() + y * 256 + x); });
    for (const Member<T>& m : members<T>()) {
        if (m.channels != 1 || m.inPlace || m.op == kAbs) continue;
        for (int s : scales) {
            Image<T> dst(size, 1);
            run(m, src, dst, s);
            ASSERT_TRUE(matchesRule(m, src, dst, s));
        }
    }
}

TEST(Unary, IntegerRulesHoldForEveryInput) {
    const int extremes[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    std::vector<int> scales = {-9, -8, -7, -6, -1, 0, 1, 2, 3, 8, 9, 12, 17, 100, extremes[0], extremes[1]};
    expectExhaustive<Zel8u>(scales);
    scales = {-17, -16, -15, -1, 0, 1, 2, 5, 15, 16, 17, 31, 33, extremes[0], extremes[1]};
    expectExhaustive<Zel16u>(scales);
    expectExhaustive<Zel16s>(scales);
}

// A table that cannot be allocated: -9, nothing written.
TEST(Unary, LargeSixteenBitImagesReportAMissingTable) {
    Image<Zel16u> src({512, 512}, 1), dst({512, 512}, 1);
    failAllocationForTests(1);
    EXPECT_EQ(zeliLn_16u_C1RSfs(src.roi(), src.step(), dst.roi(), dst.step(), src.size(), 0), zelStatusNoMemory);
    failAllocationForTests(0);
    EXPECT_TRUE(dst.unchanged());
    EXPECT_GE(zeliLn_16u_C1RSfs(src.roi(), src.step(), dst.roi(), dst.step(), src.size(), 0), 0);
    EXPECT_FALSE(dst.unchanged());
}

TEST(Unary, ExponentOf8uFollowsTheStatedValues) {
    struct Case { int s; std::vector<int> want; };  // results for x = 0, 1, ...
    const Case cases[] = {{1, {1, 1, 4, 10, 27, 74, 202, 255, 255}}, {0, {1, 3, 7, 20, 55, 148, 255}},
                          {-7, {128, 255, 255}}, {-8, {255, 255, 255}}, {9, {0, 0, 0, 0, 0, 0, 1, 2}}};
    for (const Case& c : cases) {
        std::vector<Zel8u> in(c.want.size()), out(c.want.size());
        for (std::size_t i = 0; i < in.size(); ++i) in[i] = Zel8u(i);
        const ZeliSize roi{int(in.size()), 1};
        ASSERT_EQ(zeliExp_8u_C1RSfs(in.data(), 64, out.data(), 64, roi, c.s), 0);
        EXPECT_EQ(std::vector<int>(out.begin(), out.end()), c.want) << "s = " << c.s;
    }
}

// Null, then size, then step; Complement null, step, size. Nothing written.
template <class T>
void expectCheckOrder() {
    for (const Member<T>& m : members<T>()) {
        SCOPED_TRACE(m.name);
        Image<T> src({4, 3}, m.channels), dst({4, 3}, m.channels);
        auto call = [&](bool nullSrc, bool nullDst, ZeliSize r, int ss, int ds) {
            return [&m, &src, &dst, nullSrc, nullDst, r, ss, ds] {
                return m.call(nullSrc ? nullptr : src.roi(), ss, nullDst ? nullptr : dst.roi(), ds, r, 0);
            };
        };
        const int sizeOrStep = m.op == kComplement ? zelStatusBadStep : zelStatusBadSize;
        const int st = src.step(), dt = dst.step();
        std::vector<Rejection> cases = {{"null and bad size", -8, call(!m.inPlace, m.inPlace, {0, 3}, st, dt)},
                                        {"null destination", -8, call(false, true, {4, 3}, 0, 0)},
                                        {"bad size", -6, call(false, false, {4, -1}, st, dt)},
                                        {"bad size and step", sizeOrStep, call(false, false, {0, 0}, 0, 0)},
                                        {"destination step 0", -14, call(false, false, {4, 3}, st, 0)}};
        if (!m.inPlace) cases.push_back({"source step -1", -14, call(false, false, {4, 3}, -1, dt)});
        expectRejected(cases, src, dst);
    }
}

TEST(Unary, ArgumentsAreCheckedInTheFamilysOrder) {
    expectCheckOrder<Zel8u>();
    expectCheckOrder<Zel16u>();
    expectCheckOrder<Zel16s>();
    expectCheckOrder<Zel32f>();
    expectCheckOrder<Zel32s>();
}

// Rows advance by the step rounded down to the element size for 16s Abs
// and 32f Abs, Sqr and Sqrt, by the full step elsewhere.
TEST(Unary, RowsAdvanceByTheFamilysStep) {
    struct Case { const char* name; int elementBytes; bool roundsDown; std::function<int(void*, int)> call; };
    const ZeliSize roi{2, 3};
    const Case cases[] = {
        {"Abs 16s", 2, true, [&](void* p, int st) { return int(zeliAbs_16s_C1IR((Zel16s*)p, st, roi)); }},
        {"Abs 32f", 4, true, [&](void* p, int st) { return int(zeliAbs_32f_C1IR((Zel32f*)p, st, roi)); }},
        {"Sqr 32f", 4, true, [&](void* p, int st) { return int(zeliSqr_32f_C1IR((Zel32f*)p, st, roi)); }},
        {"Sqrt 32f", 4, true, [&](void* p, int st) { return int(zeliSqrt_32f_C1IR((Zel32f*)p, st, roi)); }},
        {"Sqr 8u", 1, false, [&](void* p, int st) { return int(zeliSqr_8u_C1IRSfs((Zel8u*)p, st, roi, 0)); }},
        {"Ln 8u", 1, false, [&](void* p, int st) { return int(zeliLn_8u_C1IRSfs((Zel8u*)p, st, roi, 0)); }},
        {"Exp 8u", 1, false, [&](void* p, int st) { return int(zeliExp_8u_C1IRSfs((Zel8u*)p, st, roi, -8)); }}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const int step = 3 * c.elementBytes + c.elementBytes - 1;  // a 16s step of 7 bytes, say
        const int advance = c.roundsDown ? step - (c.elementBytes - 1) : step;
        std::vector<std::uint8_t> bytes(64, 0xA5), before;
        alignas(16) std::uint8_t buffer[64];
        std::memcpy(buffer, bytes.data(), 64);
        // Tell each element written: bytes 0xA5 read as 16s, 32f or 8u give a
        // changed value under every one of these operations.
        ASSERT_GE(c.call(buffer, step), 0);
        for (int i = 0; i < 64; i += c.elementBytes) {
            const int offset = i % advance, row = i / advance;
            const bool written = row < roi.height && offset < roi.width * c.elementBytes;
            EXPECT_EQ(std::memcmp(buffer + i, bytes.data() + i, c.elementBytes) != 0, written) << "byte " << i;
        }
    }
}

// Statuses: first warning of any row (Sqrt 32f, Ln), chunked codes of the
// 32f logarithm, none from Exp, Sqr and the integer roots.
TEST(Unary, StatusIsGatheredAsTheFamilyStates) {
    const float inf = std::numeric_limits<float>::infinity();
    struct Case { const char* name; std::vector<float> image; int width; int want; std::function<int(float*, ZeliSize)> call; };
    auto ln = [](float* p, ZeliSize r) { return int(zeliLn_32f_C1IR(p, r.width * 4, r)); };
    auto sqrt = [](float* p, ZeliSize r) { return int(zeliSqrt_32f_C1IR(p, r.width * 4, r)); };
    auto exp = [](float* p, ZeliSize r) { return int(zeliExp_32f_C1IR(p, r.width * 4, r)); };
    std::vector<float> wide(600, 2.0f);
    auto with = [&](std::vector<std::pair<int, float>> at) { auto v = wide; for (auto [i, x] : at) v[i] = x; return v; };
    const Case cases[] = {
        {"Sqrt: negative in the second row", {1, 4, 9, -1, 16, 25}, 3, 3, sqrt},
        {"Sqrt: negative in the first row only", {1, -4, 9, 1, 16, 25}, 3, 3, sqrt},
        {"Ln: zero in row 1, negative in row 2", {1, 0, 2, -3}, 2, 7, ln},
        {"Ln: negative in row 1, zero in row 2", {-1, 2, 0, 2}, 2, 8, ln},
        {"Ln: -0 and -inf", {-0.0f, 1, -inf, 1}, 2, 7, ln},
        {"Ln: zero in a later chunk than a negative", with({{10, -1.0f}, {300, 0.0f}}), 600, 8, ln},
        {"Ln: zero in an earlier chunk", with({{10, 0.0f}, {300, -1.0f}}), 600, 7, ln},
        {"Ln: zero and negative in one chunk", with({{10, 0.0f}, {200, -1.0f}}), 600, 8, ln},
        {"Ln: zero ending a chunk, negative starting the next", with({{255, 0.0f}, {256, -1.0f}}), 600, 7, ln},
        {"Exp: never warns", {-inf, inf, 1e30f, -1e30f}, 2, 0, exp}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        forEachConfig([&] {
            std::vector<float> image = c.image;
            const ZeliSize roi{c.width, int(image.size()) / c.width};
            EXPECT_EQ(c.call(image.data(), roi), c.want);
            for (std::size_t i = 0; i < image.size(); ++i)  // every row computed
                EXPECT_EQ(ulps(image[i], floatRule(c.name[0] == 'S' ? kSqrt : c.name[0] == 'L' ? kLn : kExp, c.image[i])), 0);
        });
    }
    Zel16s s16[] = {0, -4, 9};
    EXPECT_EQ(zeliSqrt_16s_C1IRSfs(s16, 6, {3, 1}, 0), 0);
    EXPECT_EQ(zeliLn_16s_C1IRSfs(s16, 2, {1, 3}, 0), 7);  // zero in row 1, negative in row 2
    Zel8u u8[] = {5, 0, 7};
    EXPECT_EQ(zeliLn_8u_C1IRSfs(u8, 1, {1, 3}, 0), 7);
}

// 32f special values, and Ln and Exp within one ulp of the double-precision
// value over dense samples of the float range, in any caller environment.
TEST(Unary, FloatSpecialValuesAndAccuracy) {
    const float inf = std::numeric_limits<float>::infinity(), nan = std::nanf(""), den = 1e-41f;
    const std::vector<float> specials = {0.0f, -0.0f, den, -den, nan, inf, -inf, 88.7f, 89.0f, -87.5f, -103.9f, -104.0f, 1.0f};
    std::vector<float> samples = specials;
    for (std::uint32_t bits = 0; bits < 0x7F800000u; bits += 4093) {
        float f;
        std::memcpy(&f, &bits, 4);
        samples.push_back(f);
        if (f < 104) samples.push_back(-f);
    }
    const ZeliSize roi{int(samples.size()), 1};
    for (std::uint32_t csr : {0x1F80u, 0x1F80u | 0x2000u | 0x8040u, 0x1F80u | 0x6000u}) {
        SCOPED_TRACE("MXCSR " + std::to_string(csr));
        for (Op op : {kLn, kExp, kSqrt, kAbs, kSqr}) {
            std::vector<float> out(samples.size());
            _mm_setcsr(csr);
            const auto& m = members<Zel32f>();
            for (const auto& member : m)
                if (member.op == op && member.channels == 1 && !member.inPlace)
                    member.call(samples.data(), roi.width * 4, out.data(), roi.width * 4, roi, 0);
            _mm_setcsr(0x1F80u);
            std::int64_t worst = 0;
            for (std::size_t i = 0; i < samples.size(); ++i) worst = std::max(worst, ulps(out[i], floatRule(op, samples[i])));
            EXPECT_LE(worst, op == kLn || op == kExp ? 1 : 0) << "op " << op;
            for (std::size_t i = 0; i < specials.size(); ++i)  // the special values exactly, sign of zero too
                EXPECT_TRUE(std::isnan(out[i]) ? std::isnan(floatRule(op, samples[i])) : std::signbit(out[i]) == std::signbit(floatRule(op, samples[i])) && out[i] == floatRule(op, samples[i]))
                    << "op " << op << " x=" << samples[i] << " gave " << out[i];
        }
    }
}

}  // namespace
}  // namespace zel::test
