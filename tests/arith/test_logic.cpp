// Logic and shifts: every member against a scalar rule on guarded, unaligned
// images under every target and thread count, every 8-bit operand pair,
// every shift count from 0 to 40, operands that end at an inaccessible page,
// and the check order of each member.
#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "harness/image.h"
#include "harness/pages.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

enum class Kind { And, Or, Xor, Not, Left, Right };

// The rule per element: q is the other image's element or the constant.
template <class T>
T rule(Kind k, T p, T q, Zel32u n) {
    using U = std::make_unsigned_t<T>;
    constexpr Zel32u kW = sizeof(T) * 8;
    switch (k) {
        case Kind::And: return T(p & q);
        case Kind::Or: return T(p | q);
        case Kind::Xor: return T(p ^ q);
        case Kind::Not: return T(~p);
        case Kind::Left: return n >= kW ? T(0) : T(U(U(p) << n));
        case Kind::Right:
            if (std::is_signed_v<T>) return n >= kW ? T(p < 0 ? -1 : 0) : T(p >> n);
            return n >= kW ? T(0) : T(U(p) >> n);
    }
    return p;
}

// One member behind one call: a and b the sources, d the destination (or
// the in-place image), v the constants or counts per channel.
using Call = ZelStatus (*)(const void* a, int as, const void* b, int bs, void* d, int ds, ZeliSize roi,
                           const void* v);
struct Member {
    std::string name;
    Kind kind;
    int bytes;
    bool isSigned, two, isConst, inPlace;
    int channels, computed;
    Call call;
    bool usesA() const { return !inPlace || two; }
    bool usesB() const { return two && !inPlace; }
    bool valueArray() const { return isConst && channels > 1; }
};

template <auto F, class T, class V, bool Two, bool Const, bool InPlace, bool Scalar>
ZelStatus thunk(const void* a, int as, const void* b, int bs, void* d, int ds, ZeliSize roi, const void* v) {
    const T* pa = static_cast<const T*>(a);
    T* pd = static_cast<T*>(d);
    const V* pv = static_cast<const V*>(v);
    if constexpr (Two && InPlace) return F(pa, as, pd, ds, roi);
    else if constexpr (Two) return F(pa, as, static_cast<const T*>(b), bs, pd, ds, roi);
    else if constexpr (!Const && InPlace) return F(pd, ds, roi);
    else if constexpr (!Const) return F(pa, as, pd, ds, roi);
    else if constexpr (Scalar && InPlace) return F(*pv, pd, ds, roi);
    else if constexpr (Scalar) return F(pa, as, *pv, pd, ds, roi);
    else if constexpr (InPlace) return F(pv, pd, ds, roi);
    else return F(pa, as, pv, pd, ds, roi);
}

constexpr int chans(const char* lay) { return lay[1] == '1' ? 1 : lay[1] == '3' ? 3 : 4; }
#define ZT_ONE(fn, kind, t, V, two, cst, ip, lay)                                                   \
    Member{#fn, Kind::kind, sizeof(Zel##t), std::is_signed_v<Zel##t>, two, cst, ip, chans(#lay),    \
           #lay[0] == 'A' ? 3 : chans(#lay), &thunk<fn, Zel##t, V, two, cst, ip, chans(#lay) == 1>}
#define ZT_RIR(name, kind, t, V, two, cst, lay) \
    ZT_ONE(zeli##name##_##t##_##lay##R, kind, t, V, two, cst, false, lay), \
        ZT_ONE(zeli##name##_##t##_##lay##IR, kind, t, V, two, cst, true, lay)
#define ZT_LAYS(name, kind, t, V, two, cst)                                                         \
    ZT_RIR(name, kind, t, V, two, cst, C1), ZT_RIR(name, kind, t, V, two, cst, C3),                 \
        ZT_RIR(name, kind, t, V, two, cst, C4), ZT_RIR(name, kind, t, V, two, cst, AC4)
#define ZT_LOGIC(t)                                                                                  \
    ZT_LAYS(And, And, t, Zel##t, true, false), ZT_LAYS(Or, Or, t, Zel##t, true, false),              \
        ZT_LAYS(Xor, Xor, t, Zel##t, true, false), ZT_LAYS(AndC, And, t, Zel##t, false, true),       \
        ZT_LAYS(OrC, Or, t, Zel##t, false, true), ZT_LAYS(XorC, Xor, t, Zel##t, false, true)

// All 216 members.
const std::vector<Member>& members() {
    static const std::vector<Member> all = {
        ZT_LOGIC(8u), ZT_LOGIC(16u), ZT_LOGIC(32s), ZT_LAYS(Not, Not, 8u, Zel8u, false, false),
        ZT_LAYS(LShiftC, Left, 8u, Zel32u, false, true), ZT_LAYS(LShiftC, Left, 16u, Zel32u, false, true),
        ZT_LAYS(LShiftC, Left, 32s, Zel32u, false, true), ZT_LAYS(RShiftC, Right, 8u, Zel32u, false, true),
        ZT_LAYS(RShiftC, Right, 8s, Zel32u, false, true), ZT_LAYS(RShiftC, Right, 16u, Zel32u, false, true),
        ZT_LAYS(RShiftC, Right, 16s, Zel32u, false, true), ZT_LAYS(RShiftC, Right, 32s, Zel32u, false, true)};
    return all;
}

bool isShift(Kind k) { return k == Kind::Left || k == Kind::Right; }

// Runs m once on fresh images and checks every computed element, the
// guards, the alpha channel and the operands it must not write.
template <class T>
void checkRun(const Member& m, ZeliSize roi, int offset, bool contiguous, const Zel32u counts[4], std::uint32_t seed) {
    const int guard = contiguous ? 0 : 7, ch = m.channels, w = m.computed;
    const int e = sizeof(T);  // elements stay aligned, vectors do not
    Image<T> a(roi, ch, w, offset * e, guard, seed), b(roi, ch, w, (offset + 1) * e, guard, seed + 1),
        d(roi, ch, w, (offset + 2) * e, guard, seed + 2);
    std::mt19937 rng(seed);
    T values[4];
    for (T& v : values) v = T(rng());
    Image<T>& out = !m.inPlace ? d : m.two ? b : a;
    const Image<T> start = m.two ? b : a;
    const void* v = isShift(m.kind) ? static_cast<const void*>(counts) : values;
    ASSERT_EQ(m.call(a.roi(), a.step(), b.roi(), b.step(), out.roi(), out.step(), roi, v), zelStatusOk);
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.computed; ++c) {
                const T q = m.two ? a.at(x, y, c) : values[c];
                ASSERT_EQ(out.at(x, y, c), rule(m.kind, start.at(x, y, c), q, counts[c]))
                    << "at " << x << "," << y << " channel " << c << " count " << counts[c];
            }
    for (const Image<T>* image : {&a, &b, &d})
        EXPECT_TRUE(image == &out ? image->outsideUnchanged() : testing::AssertionResult(image->unchanged()));
}

template <class F>
void byType(const Member& m, F&& f) {
    if (m.bytes == 1) m.isSigned ? f(Zel8s{}) : f(Zel8u{});
    else if (m.bytes == 2) m.isSigned ? f(Zel16s{}) : f(Zel16u{});
    else f(Zel32s{});
}

// Count sets per channel: all zero (Copy), one count for all, every count
// past the width (Set, or the sign fill of signed right shifts), mixed
// counts on either side of the width.
std::vector<std::array<Zel32u, 4>> countSets(Zel32u w) {
    return {{0, 0, 0, 0}, {w / 2 + 1, w / 2 + 1, w / 2 + 1, w / 2 + 1}, {w, 32, 1000, 40},
            {w - 1, w, 0, w + 1}, {1, 33, w - 1, 0}};
}

TEST(Logic, EveryMemberMatchesTheRuleOnOddSizesUnderEveryTarget) {
    ASSERT_EQ(members().size(), 216u);
    for (const Member& m : members()) {
        SCOPED_TRACE(m.name);
        const auto sets = isShift(m.kind) ? countSets(Zel32u(m.bytes * 8)) : countSets(8);
        const std::size_t used = isShift(m.kind) ? sets.size() : 1;
        forEachConfig([&] {
            std::uint32_t seed = 1;
            for (ZeliSize roi : oddSizes())
                for (std::size_t s = 0; s < used; ++s)
                    for (bool contiguous : {false, true})
                        byType(m, [&](auto t) {
                            ++seed;
                            checkRun<decltype(t)>(m, roi, 1 + int(seed % 3), contiguous, sets[s].data(), seed);
                        });
        });
    }
}

// Signed three-channel right shifts with all counts at 32 or more give the
// sign fill, as one-channel calls do, not 0.
TEST(Logic, SignedThreeChannelShiftsPast31GiveTheSignFill) {
    const Zel32s src[3] = {-5, 7, INT32_MIN};
    Zel32s dst[3] = {9, 9, 9};
    const Zel32u counts[3] = {32, 40, 1u << 31};
    ASSERT_EQ(zeliRShiftC_32s_C3R(src, 12, counts, dst, 12, {1, 1}), zelStatusOk);
    EXPECT_EQ(dst[0], -1);
    EXPECT_EQ(dst[1], 0);
    EXPECT_EQ(dst[2], -1);
}

// Every 8-bit pair for the two-image forms, every constant for the constant
// forms and Not.
TEST(Logic, EveryEightBitOperandPair) {
    const ZeliSize roi{256, 256};
    Image<Zel8u> a(roi, 1), b(roi, 1), d(roi, 1);
    a.fill([](int x, int, int) { return Zel8u(x); });
    b.fill([](int, int y, int) { return Zel8u(y); });
    forEachConfig([&] {
        for (const Member& m : members()) {
            if (m.bytes != 1 || isShift(m.kind) || m.inPlace || m.channels != 1) continue;
            SCOPED_TRACE(m.name);
            const ZeliSize size = m.isConst ? ZeliSize{256, 1} : roi;  // one row per constant
            for (int k = 0; k < (m.isConst ? 256 : 1); ++k) {
                const Zel8u value = Zel8u(k);
                ASSERT_EQ(m.call(a.roi(), a.step(), b.roi(), b.step(), d.roi(), d.step(), size, &value), 0);
                for (int i = 0; i < size.width * size.height; ++i) {
                    const Zel8u x = Zel8u(i % 256), y = Zel8u(i / 256);
                    ASSERT_EQ(d.at(x, y), rule<Zel8u>(m.kind, x, m.isConst ? value : y, 0)) << +x << ", " << +y;
                }
            }
        }
    });
}

// Every count from 0 to 40 on random one-channel images of each type.
TEST(Logic, EveryShiftCountFrom0To40) {
    for (const Member& m : members()) {
        if (!isShift(m.kind) || m.channels != 1) continue;
        SCOPED_TRACE(m.name);
        forEachConfig([&] {
            for (Zel32u n = 0; n <= 40; ++n) {
                const Zel32u counts[4] = {n, n, n, n};
                byType(m, [&](auto t) { checkRun<decltype(t)>(m, {67, 3}, 1, n % 2 == 0, counts, n + 1); });
            }
        });
    }
}

// Every operand's last row ends right before an inaccessible page (an AC4
// row at its last colour element, so the last alpha lies on that page):
// nothing past the row is read or written.
TEST(Logic, NothingReadOrWrittenPastTheRow) {
    Fenced fa(1 << 14), fb(1 << 14), fd(1 << 14);
    ASSERT_TRUE(fa.ok() && fb.ok() && fd.ok());
    const Zel32u counts[4] = {1, 9, 0, 40};
    forEachConfig([&] {
        for (const Member& m : members())
            for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{37, 3}})
                byType(m, [&](auto t) {
                    using T = decltype(t);
                    const std::size_t row = std::size_t(roi.width) * m.channels * sizeof(T);
                    const int step = int(row + 8);
                    const std::size_t span = std::size_t(step) * (roi.height - 1) + row -
                                             (m.channels - m.computed) * sizeof(T);
                    const auto place = [&](Fenced& f) { return reinterpret_cast<T*>(f.data() + f.size() - span); };
                    T *a = place(fa), *b = place(fb), *d = place(fd), *out = !m.inPlace ? d : m.two ? b : a;
                    const T values[4] = {T(0x5a), T(0x3c), T(0x7f), T(0x11)};
                    const T* start = m.two ? b : a;
                    const std::vector<T> p(start, start + span / sizeof(T)), q(a, a + span / sizeof(T));
                    const void* v = isShift(m.kind) ? static_cast<const void*>(counts) : values;
                    ASSERT_EQ(guardedCall(m.name, [&] { return m.call(a, step, b, step, out, step, roi, v); }), 0);
                    for (int y = 0; y < roi.height; ++y)
                        for (int i = 0; i < roi.width * m.channels; ++i) {
                            const std::size_t at = std::size_t(y) * step / sizeof(T) + i;
                            const int c = i % m.channels;
                            if (c >= m.computed) continue;
                            ASSERT_EQ(out[at], rule(m.kind, p[at], m.two ? q[at] : values[c], counts[c]));
                        }
                });
    });
}

// Null pointers (the value array too), then steps, then the size: each
// failure with all the later ones present, nothing written.
TEST(Logic, ChecksNullsThenStepsThenSize) {
    alignas(16) std::uint8_t a[64] = {1}, b[64] = {2}, d[64] = {3}, v[16] = {4};
    const std::vector<std::uint8_t> before(d, d + 64);
    struct Case {
        const char* what;
        int code;
        const void *pa, *pb;
        void* pd;
        int as, bs, ds;
        ZeliSize roi;
        const void* pv;
        bool (Member::*applies)() const;
    };
    const ZeliSize bad{0, 1};
    const Case cases[] = {
        {"null destination", zelStatusNullPtr, a, b, nullptr, 0, 0, 0, bad, v, nullptr},
        {"null source", zelStatusNullPtr, nullptr, b, d, 0, 0, 0, bad, v, &Member::usesA},
        {"null source 2", zelStatusNullPtr, a, nullptr, d, 0, 0, 0, bad, v, &Member::usesB},
        {"null values", zelStatusNullPtr, a, b, d, 0, 0, 0, bad, nullptr, &Member::valueArray},
        {"destination step", zelStatusBadStep, a, b, d, 16, 16, 0, bad, v, nullptr},
        {"source step", zelStatusBadStep, a, b, d, -16, 16, 16, bad, v, &Member::usesA},
        {"source 2 step", zelStatusBadStep, a, b, d, 16, 0, 16, bad, v, &Member::usesB},
        {"width", zelStatusBadSize, a, b, d, 16, 16, 16, {0, 2}, v, nullptr},
        {"height", zelStatusBadSize, a, b, d, 16, 16, 16, {2, -1}, v, nullptr}};
    for (const Member& m : members())
        for (const Case& k : cases) {
            if (k.applies && !(m.*k.applies)()) continue;
            SCOPED_TRACE(m.name + ", " + k.what);
            EXPECT_EQ(m.call(k.pa, k.as, k.pb, k.bs, k.pd, k.ds, k.roi, k.pv), k.code);
            EXPECT_TRUE(std::equal(before.begin(), before.end(), d) && a[0] == 1 && b[0] == 2);
        }
}

}  // namespace
}  // namespace zel::test
