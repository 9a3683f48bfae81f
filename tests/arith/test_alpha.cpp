// Alpha compositing, premultiplication and colour keys: every member against
// a scalar transcription of the rules (true divisions, no shortcuts) on
// guarded, unaligned images under every target and thread count; every
// 8-bit (colour, alpha) pair for each composition type; the 16-bit floor
// division over a dense set of products; straight against premultiplied
// types; planar against interleaved; colour keys per pixel; the check orders.
#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "arith/alpha_rule.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

using u32 = std::uint32_t;

// ---- The rules, written out plainly ----------------------------------------

template <class T>
constexpr u32 kM = sizeof(T) == 1 ? 255u : 65535u;
template <class T>
u32 m(u32 x, u32 y) {
    return static_cast<u32>(std::uint64_t{x} * y / kM<T>);
}
template <class T>
u32 s(u32 x) {
    return std::min(x, kM<T>);
}

// The colour column for one channel; c1 and c2 straight for types 0..5.
template <class T>
u32 colourOf(int type, u32 c1, u32 a1, u32 c2, u32 a2) {
    const u32 M = kM<T>;
    if (type < 6) {
        c1 = m<T>(c1, a1);
        c2 = m<T>(c2, a2);
    }
    switch (type % 6) {
        case 0: return s<T>(c1 + m<T>(c2, M - a1));
        case 1: return m<T>(c1, a2);
        case 2: return m<T>(c1, M - a2);
        case 3: return s<T>(m<T>(c1, a2) + m<T>(c2, M - a1));
        case 4: return s<T>(m<T>(c1, M - a2) + m<T>(c2, M - a1));
        default: return s<T>(c1 + c2);
    }
}
template <class T>
u32 alphaOf(int type, u32 a1, u32 a2) {
    const u32 M = kM<T>;
    switch (type % 6) {
        case 0: return s<T>(a1 + m<T>(a2, M - a1));
        case 1: return m<T>(a1, a2);
        case 2: return m<T>(a1, M - a2);
        case 3: return a2;
        case 4: return s<T>(m<T>(a1, M - a2) + m<T>(a2, M - a1));
        default: return s<T>(a1 + a2);
    }
}

// ---- Every member behind one interface -----------------------------------

enum class Fam { Comp, CompC, Premul, PremulC, ColorKey, AlphaColorKey };
enum class Lay { C1, C3, C4, AC4, AC1, AP4 };

int channelsOf(Lay l) {
    return l == Lay::C3 ? 3 : (l == Lay::C4 || l == Lay::AC4) ? 4 : 1;
}
bool typed(Fam f) { return f == Fam::Comp || f == Fam::CompC || f == Fam::AlphaColorKey; }

// Interleaved operands use entry 0; planar ones all four. In place, d is
// source and destination.
struct Args {
    const void* s1[4];
    int s1Step;
    const void* s2[4];
    int s2Step;
    void* d[4];
    int dStep;
    ZeliSize roi;
    int type;
    u32 alpha1, alpha2;
    const void* key;
};

struct Member {
    std::string name;
    Fam fam;
    Lay lay;
    int bytes;
    bool inPlace;
    std::function<ZelStatus(const Args&)> call;
};

template <class T>
const T* in(const void* p) {
    return static_cast<const T*>(p);
}
template <class T>
const T* const* inPlanes(const void* const* p) {
    return reinterpret_cast<const T* const*>(p);
}
template <class T>
T* const* outPlanes(void* const* p) {
    return reinterpret_cast<T* const*>(p);
}

#define ZA_COMP(t, lay)                                                                                          \
    Member{"zeliAlphaComp_" #t "_" #lay "R", Fam::Comp, Lay::lay, sizeof(Zel##t), false, [](const Args& a) {     \
               return zeliAlphaComp_##t##_##lay##R(in<Zel##t>(a.s1[0]), a.s1Step, in<Zel##t>(a.s2[0]), a.s2Step, \
                                                   static_cast<Zel##t*>(a.d[0]), a.dStep, a.roi, a.type);        \
           }}
#define ZA_COMP_AP4(t)                                                                                           \
    Member{"zeliAlphaComp_" #t "_AP4R", Fam::Comp, Lay::AP4, sizeof(Zel##t), false, [](const Args& a) {          \
               return zeliAlphaComp_##t##_AP4R(inPlanes<Zel##t>(a.s1), a.s1Step, inPlanes<Zel##t>(a.s2), a.s2Step, \
                                               outPlanes<Zel##t>(a.d), a.dStep, a.roi, a.type);                  \
           }}
#define ZA_COMPC(t, lay)                                                                                          \
    Member{"zeliAlphaCompC_" #t "_" #lay "R", Fam::CompC, Lay::lay, sizeof(Zel##t), false, [](const Args& a) {    \
               return zeliAlphaCompC_##t##_##lay##R(in<Zel##t>(a.s1[0]), a.s1Step, Zel##t(a.alpha1),              \
                                                    in<Zel##t>(a.s2[0]), a.s2Step, Zel##t(a.alpha2),              \
                                                    static_cast<Zel##t*>(a.d[0]), a.dStep, a.roi, a.type);        \
           }}
#define ZA_COMPC_AP4(t)                                                                                           \
    Member{"zeliAlphaCompC_" #t "_AP4R", Fam::CompC, Lay::AP4, sizeof(Zel##t), false, [](const Args& a) {         \
               return zeliAlphaCompC_##t##_AP4R(inPlanes<Zel##t>(a.s1), a.s1Step, Zel##t(a.alpha1),               \
                                                inPlanes<Zel##t>(a.s2), a.s2Step, Zel##t(a.alpha2),               \
                                                outPlanes<Zel##t>(a.d), a.dStep, a.roi, a.type);                  \
           }}
#define ZA_PREMUL(t)                                                                                              \
    Member{"zeliAlphaPremul_" #t "_AC4R", Fam::Premul, Lay::AC4, sizeof(Zel##t), false,                           \
           [](const Args& a) {                                                                                    \
               return zeliAlphaPremul_##t##_AC4R(in<Zel##t>(a.s1[0]), a.s1Step, static_cast<Zel##t*>(a.d[0]),     \
                                                 a.dStep, a.roi);                                                 \
           }},                                                                                                    \
        Member{"zeliAlphaPremul_" #t "_AC4IR", Fam::Premul, Lay::AC4, sizeof(Zel##t), true,                       \
               [](const Args& a) {                                                                                \
                   return zeliAlphaPremul_##t##_AC4IR(static_cast<Zel##t*>(a.d[0]), a.dStep, a.roi);              \
               }},                                                                                                \
        Member{"zeliAlphaPremul_" #t "_AP4R", Fam::Premul, Lay::AP4, sizeof(Zel##t), false,                       \
               [](const Args& a) {                                                                                \
                   return zeliAlphaPremul_##t##_AP4R(inPlanes<Zel##t>(a.s1), a.s1Step, outPlanes<Zel##t>(a.d),    \
                                                     a.dStep, a.roi);                                             \
               }},                                                                                                \
        Member{"zeliAlphaPremul_" #t "_AP4IR", Fam::Premul, Lay::AP4, sizeof(Zel##t), true, [](const Args& a) {   \
                   return zeliAlphaPremul_##t##_AP4IR(outPlanes<Zel##t>(a.d), a.dStep, a.roi);                    \
               }}
#define ZA_PREMULC(t, lay)                                                                                        \
    Member{"zeliAlphaPremulC_" #t "_" #lay "R", Fam::PremulC, Lay::lay, sizeof(Zel##t), false,                    \
           [](const Args& a) {                                                                                    \
               return zeliAlphaPremulC_##t##_##lay##R(in<Zel##t>(a.s1[0]), a.s1Step, Zel##t(a.alpha1),            \
                                                      static_cast<Zel##t*>(a.d[0]), a.dStep, a.roi);              \
           }},                                                                                                    \
        Member{"zeliAlphaPremulC_" #t "_" #lay "IR", Fam::PremulC, Lay::lay, sizeof(Zel##t), true,                \
               [](const Args& a) {                                                                                \
                   return zeliAlphaPremulC_##t##_##lay##IR(Zel##t(a.alpha1), static_cast<Zel##t*>(a.d[0]),        \
                                                           a.dStep, a.roi);                                       \
               }}
#define ZA_PREMULC_AP4(t)                                                                                         \
    Member{"zeliAlphaPremulC_" #t "_AP4R", Fam::PremulC, Lay::AP4, sizeof(Zel##t), false,                         \
           [](const Args& a) {                                                                                    \
               return zeliAlphaPremulC_##t##_AP4R(inPlanes<Zel##t>(a.s1), a.s1Step, Zel##t(a.alpha1),             \
                                                  outPlanes<Zel##t>(a.d), a.dStep, a.roi);                        \
           }},                                                                                                    \
        Member{"zeliAlphaPremulC_" #t "_AP4IR", Fam::PremulC, Lay::AP4, sizeof(Zel##t), true,                     \
               [](const Args& a) {                                                                                \
                   return zeliAlphaPremulC_##t##_AP4IR(Zel##t(a.alpha1), outPlanes<Zel##t>(a.d), a.dStep, a.roi); \
               }}
#define ZA_KEY_C1(t)                                                                                              \
    Member{"zeliCompColorKey_" #t "_C1R", Fam::ColorKey, Lay::C1, sizeof(Zel##t), false, [](const Args& a) {      \
               return zeliCompColorKey_##t##_C1R(in<Zel##t>(a.s1[0]), a.s1Step, in<Zel##t>(a.s2[0]), a.s2Step,    \
                                                 static_cast<Zel##t*>(a.d[0]), a.dStep, a.roi,                    \
                                                 *in<Zel##t>(a.key));                                             \
           }}
#define ZA_KEY(t, n)                                                                                              \
    Member{"zeliCompColorKey_" #t "_C" #n "R", Fam::ColorKey, Lay::C##n, sizeof(Zel##t), false,                   \
           [](const Args& a) {                                                                                    \
               return zeliCompColorKey_##t##_C##n##R(in<Zel##t>(a.s1[0]), a.s1Step, in<Zel##t>(a.s2[0]),          \
                                                     a.s2Step, static_cast<Zel##t*>(a.d[0]), a.dStep, a.roi,      \
                                                     in<Zel##t>(a.key));                                          \
           }}
#define ZA_TYPE(t)                                                                                                \
    ZA_COMP(t, AC4), ZA_COMP(t, AC1), ZA_COMP_AP4(t), ZA_COMPC(t, C1), ZA_COMPC(t, C3), ZA_COMPC(t, C4),          \
        ZA_COMPC(t, AC4), ZA_COMPC_AP4(t), ZA_PREMUL(t), ZA_PREMULC(t, C1), ZA_PREMULC(t, C3), ZA_PREMULC(t, C4), \
        ZA_PREMULC(t, AC4), ZA_PREMULC_AP4(t)

const std::vector<Member>& members() {
    static const std::vector<Member> all = {
        ZA_TYPE(8u), ZA_TYPE(16u),
        ZA_KEY_C1(8u), ZA_KEY(8u, 3), ZA_KEY(8u, 4), ZA_KEY_C1(16u), ZA_KEY(16u, 3), ZA_KEY(16u, 4),
        ZA_KEY_C1(16s), ZA_KEY(16s, 3), ZA_KEY(16s, 4),
        Member{"zeliAlphaCompColorKey_8u_AC4R", Fam::AlphaColorKey, Lay::AC4, 1, false, [](const Args& a) {
                   return zeliAlphaCompColorKey_8u_AC4R(in<Zel8u>(a.s1[0]), a.s1Step, Zel8u(a.alpha1),
                                                        in<Zel8u>(a.s2[0]), a.s2Step, Zel8u(a.alpha2),
                                                        static_cast<Zel8u*>(a.d[0]), a.dStep, a.roi,
                                                        in<Zel8u>(a.key), a.type);
               }}};
    return all;
}

// ---- Operands -------------------------------------------------------------

// One operand: an interleaved image, or four planes sharing one step.
template <class T>
struct Operand {
    std::vector<Image<T>> planes;
    Operand(ZeliSize roi, Lay lay, int offsetBytes, int guard, std::uint32_t seed) {
        const int n = lay == Lay::AP4 ? 4 : 1;
        for (int k = 0; k < n; ++k)
            planes.emplace_back(roi, channelsOf(lay), channelsOf(lay), offsetBytes, guard, seed + 7 * k);
    }
    bool planar() const { return planes.size() == 4; }
    int step() const { return planes[0].step(); }
    // Channel c of pixel (x, y), c = 3 the alpha plane of a planar operand.
    T& at(int x, int y, int c) { return planar() ? planes[c].at(x, y) : planes[0].at(x, y, c); }
    void pointers(const void* out[4]) {
        for (std::size_t k = 0; k < 4; ++k) out[k] = planes[std::min(k, planes.size() - 1)].roi();
    }
    void pointers(void* out[4]) {
        for (std::size_t k = 0; k < 4; ++k) out[k] = planes[std::min(k, planes.size() - 1)].roi();
    }
    void snapshot() {
        for (auto& p : planes) p.snapshot();
    }
    bool unchanged() const {
        return std::all_of(planes.begin(), planes.end(), [](const Image<T>& p) { return p.unchanged(); });
    }
};

// The arguments of a call on operands s1, s2 and d.
template <class T>
Args argsOf(Operand<T>& s1, Operand<T>& s2, Operand<T>& d, ZeliSize roi, int type, u32 alpha1, u32 alpha2) {
    Args a{};
    s1.pointers(a.s1);
    s2.pointers(a.s2);
    d.pointers(a.d);
    a.s1Step = s1.step();
    a.s2Step = s2.step();
    a.dStep = d.step();
    a.roi = roi;
    a.type = type;
    a.alpha1 = alpha1;
    a.alpha2 = alpha2;
    return a;
}

int pixelChannels(Lay l) { return l == Lay::AP4 ? 4 : channelsOf(l); }

// The expected destination pixel for member mb from source pixels p (source
// 1 or the in-place image) and q (source 2).
template <class T>
std::array<u32, 4> expected(const Member& mb, const Args& a, const std::array<u32, 4>& p,
                            const std::array<u32, 4>& q, const std::array<u32, 4>& key) {
    const int C = pixelChannels(mb.lay);
    const bool withAlpha = mb.lay == Lay::AC4 || mb.lay == Lay::AP4;
    std::array<u32, 4> r{};
    switch (mb.fam) {
        case Fam::Comp:
            if (mb.lay == Lay::AC1) {
                r[0] = alphaOf<T>(a.type, p[0], q[0]);
            } else {
                for (int c = 0; c < 3; ++c) r[c] = colourOf<T>(a.type, p[c], p[3], q[c], q[3]);
                r[3] = alphaOf<T>(a.type, p[3], q[3]);
            }
            break;
        case Fam::CompC:
            for (int c = 0; c < C; ++c) r[c] = colourOf<T>(a.type, p[c], a.alpha1, q[c], a.alpha2);
            if (withAlpha) r[3] = alphaOf<T>(a.type, a.alpha1, a.alpha2);
            break;
        case Fam::Premul:
            for (int c = 0; c < 3; ++c) r[c] = m<T>(p[c], p[3]);
            r[3] = p[3];
            break;
        case Fam::PremulC:
            for (int c = 0; c < C; ++c) r[c] = m<T>(p[c], a.alpha1);
            if (withAlpha) r[3] = a.alpha1;
            break;
        case Fam::ColorKey: {
            bool match = true;
            for (int c = 0; c < C; ++c) match = match && p[c] == key[c];
            r = match ? q : p;
            break;
        }
        case Fam::AlphaColorKey: {
            const bool keyed = p[0] == key[0] && p[1] == key[1] && p[2] == key[2];
            const u32 a1 = keyed ? 0 : a.alpha1;
            for (int c = 0; c < 3; ++c) r[c] = colourOf<T>(a.type, keyed ? 0 : p[c], a1, q[c], a.alpha2);
            r[3] = alphaOf<T>(a.type, a1, a.alpha2);
            break;
        }
    }
    return r;
}

template <class T>
std::array<u32, 4> pixel(Operand<T>& o, int x, int y, int channels) {
    std::array<u32, 4> v{};
    for (int c = 0; c < channels; ++c) v[c] = static_cast<std::make_unsigned_t<T>>(o.at(x, y, c));
    return v;
}

// Runs mb once on fresh operands and checks every destination pixel, the
// guards and the sources.
template <class T>
void checkRun(const Member& mb, ZeliSize roi, int type, bool contiguous, std::uint32_t seed) {
    const int e = sizeof(T), guard = contiguous ? 0 : 5, C = pixelChannels(mb.lay);
    Operand<T> s1(roi, mb.lay, (1 + seed % 3) * e, guard, seed), s2(roi, mb.lay, (2 + seed % 5) * e, guard, seed + 1),
        d(roi, mb.lay, (seed % 2) * e, guard, seed + 2);
    std::mt19937 rng(seed);
    Operand<T>& src = mb.inPlace ? d : s1;
    // Keys: half the pixels of source 1 take the key colour, a quarter of
    // the rest match it in all channels but one.
    std::array<u32, 4> key{};
    const int keyed = mb.fam == Fam::AlphaColorKey ? 3 : C;
    for (int c = 0; c < keyed; ++c) key[c] = static_cast<std::make_unsigned_t<T>>(T(rng()));
    if (mb.fam == Fam::ColorKey || mb.fam == Fam::AlphaColorKey)
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const u32 r = rng() % 8;
                if (r >= 4) continue;
                for (int c = 0; c < keyed; ++c)
                    if (r < 3 || c != int(rng() % keyed)) src.at(x, y, c) = T(key[c]);
            }
    // Some extreme alphas.
    if (mb.lay == Lay::AC4 || mb.lay == Lay::AP4)
        for (Operand<T>* o : {&s1, &s2, &d})
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x)
                    if (rng() % 4 == 0) o->at(x, y, 3) = rng() % 2 ? T(0) : T(kM<T>);
    for (Operand<T>* o : {&s1, &s2, &d}) o->snapshot();
    T keyValues[4];
    for (int c = 0; c < 4; ++c) keyValues[c] = T(key[c]);
    const u32 alphas[] = {0, 1, kM<T> / 2, kM<T> - 1, kM<T>};
    const u32 alpha1 = rng() % 2 ? alphas[rng() % 5] : u32(rng()) % (kM<T> + 1);
    const u32 alpha2 = rng() % 2 ? alphas[rng() % 5] : u32(rng()) % (kM<T> + 1);
    Args a = argsOf(s1, s2, d, roi, type, alpha1, alpha2);
    a.key = keyValues;
    std::vector<std::array<u32, 4>> want;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            want.push_back(expected<T>(mb, a, pixel(src, x, y, C), pixel(s2, x, y, C), key));
    // AP4 in place leaves the alpha plane alone.
    ASSERT_EQ(mb.call(a), zelStatusOk);
    std::size_t i = 0;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x, ++i) {
            const auto got = pixel(d, x, y, C);
            for (int c = 0; c < C; ++c)
                ASSERT_EQ(got[c], want[i][c]) << "pixel " << x << "," << y << " channel " << c << " type " << type
                                              << " alphas " << a.alpha1 << "," << a.alpha2;
        }
    for (auto& p : d.planes) EXPECT_TRUE(p.outsideUnchanged());
    EXPECT_TRUE(mb.inPlace || s1.unchanged());
    EXPECT_TRUE(s2.unchanged());
}

template <class F>
void byType(const Member& mb, F&& f) {
    if (mb.bytes == 1) f(Zel8u{});
    else if (mb.name.find("_16s_") != std::string::npos) f(Zel16s{});
    else f(Zel16u{});
}

TEST(Alpha, EveryMemberMatchesTheRulesOnOddSizesUnderEveryTarget) {
    ASSERT_EQ(members().size(), 54u);
    for (const Member& mb : members()) {
        SCOPED_TRACE(mb.name);
        forEachConfig([&] {
            // Each shape under a third of the types, every type under some.
            std::uint32_t seed = 1;
            int shape = 0;
            for (ZeliSize roi : oddSizes())
                for (bool contiguous : {false, true}) {
                    ++shape;
                    for (int type = 0; type < (typed(mb.fam) ? alpha::kTypes : 1); ++type)
                        if (!typed(mb.fam) || (type + shape) % 3 == 0)
                            byType(mb, [&](auto t) { checkRun<decltype(t)>(mb, roi, type, contiguous, ++seed); });
                }
        });
    }
}

// ---- Exhaustive and dense value checks -------------------------------------

TEST(Alpha, EightBitProductIsTheExactFloorForEveryPair) {
    for (u32 x = 0; x < 256; ++x)
        for (u32 y = 0; y < 256; ++y) ASSERT_EQ(alpha::mulDiv<Zel8u>(x, y), x * y / 255) << x << " " << y;
    EXPECT_EQ(alpha::mulDiv<Zel8u>(255, 255), 255u);
    EXPECT_EQ(alpha::mulDiv<Zel8u>(254, 255), 254u);
}

// The 16-bit quotient is exact by the argument in alpha_rule.h (t = 65535 q
// + r gives t + (t >> 16) + 1 = 65536 q + r + 1 - [r < q]); checked here for
// every x against a dense set of y: every 61st value, the first and last 512
// values and the powers of two and their neighbours.
TEST(Alpha, SixteenBitProductIsTheExactFloorOverADenseSetOfPairs) {
    std::vector<u32> ys;
    for (u32 y = 0; y < 65536; y += 61) ys.push_back(y);
    for (u32 y = 0; y < 512; ++y) ys.insert(ys.end(), {y, 65535 - y});
    for (int b = 1; b < 16; ++b) ys.insert(ys.end(), {(1u << b) - 1, 1u << b, (1u << b) + 1});
    long bad = 0;
    for (u32 x = 0; x < 65536; ++x)
        for (u32 y : ys) bad += alpha::mulDiv<Zel16u>(x, y) != static_cast<u32>(std::uint64_t{x} * y / 65535);
    EXPECT_EQ(bad, 0);
    // Every quotient at its two ends: 65535 q (x = 65535) and just below it.
    for (u32 q = 1; q < 65536; ++q) {
        ASSERT_EQ(alpha::mulDiv<Zel16u>(65535, q), q);
        ASSERT_EQ(alpha::mulDiv<Zel16u>(65534, q), q - 1);
    }
}

// Every value of a 16-bit row times the alphas of a dense set, through the
// vector kernels of every target.
TEST(Alpha, SixteenBitPremultiplicationOfEveryValueUnderEveryTarget) {
    const ZeliSize roi{65536, 1};
    Image<Zel16u> src(roi, 1), dst(roi, 1);
    src.fill([](int x, int, int) { return Zel16u(x); });
    forEachConfig([&] {
        for (u32 alpha : {0u, 1u, 2u, 255u, 256u, 257u, 32767u, 32768u, 40000u, 65280u, 65534u, 65535u}) {
            ASSERT_EQ(zeliAlphaPremulC_16u_C1R(src.roi(), src.step(), Zel16u(alpha), dst.roi(), dst.step(), roi), 0);
            for (u32 x = 0; x < 65536; ++x) ASSERT_EQ(dst.at(int(x), 0), m<Zel16u>(x, alpha)) << x << " " << alpha;
        }
    });
}

// Every (colour, alpha) pair of source 1 against varied source 2 pixels, and
// every pair of source 2 against varied source 1 pixels, for each type.
TEST(Alpha, EveryEightBitColourAlphaPairForEachCompositionType) {
    const ZeliSize roi{256, 256};
    Image<Zel8u> all(roi, 4, 4), other(roi, 4, 4), dst(roi, 4, 4);
    all.fill([](int x, int y, int c) { return Zel8u(c == 3 ? y : c == 0 ? x : c == 1 ? 255 - x : (x * 7) & 255); });
    std::mt19937 rng(5);
    other.fill([&](int, int, int) { return Zel8u(rng()); });
    forEachConfig([&] {
        for (int type = 0; type < alpha::kTypes; ++type)
            for (bool first : {true, false}) {
                const Image<Zel8u>& p = first ? all : other;
                const Image<Zel8u>& q = first ? other : all;
                ASSERT_EQ(zeliAlphaComp_8u_AC4R(p.roi(), p.step(), q.roi(), q.step(), dst.roi(), dst.step(), roi, type),
                          0);
                for (int y = 0; y < 256; ++y)
                    for (int x = 0; x < 256; ++x) {
                        for (int c = 0; c < 3; ++c)
                            ASSERT_EQ(dst.at(x, y, c),
                                      colourOf<Zel8u>(type, p.at(x, y, c), p.at(x, y, 3), q.at(x, y, c), q.at(x, y, 3)))
                                << "type " << type << " pixel " << x << "," << y << " channel " << c;
                        ASSERT_EQ(dst.at(x, y, 3), alphaOf<Zel8u>(type, p.at(x, y, 3), q.at(x, y, 3)));
                    }
            }
    });
}

// ---- Relations between members ---------------------------------------------

// A straight type equals its premultiplied twin on premultiplied inputs.
template <class T>
void straightAgainstPremultiplied(ZeliSize roi) {
    Image<T> a(roi, 4, 4, sizeof(T), 5, 11), b(roi, 4, 4, 3 * sizeof(T), 5, 12), pa(roi, 4, 4), pb(roi, 4, 4),
        straight(roi, 4, 4), premultiplied(roi, 4, 4);
    auto premul = [&](const Image<T>& s, Image<T>& d) {
        if constexpr (sizeof(T) == 1) return zeliAlphaPremul_8u_AC4R(s.roi(), s.step(), d.roi(), d.step(), roi);
        else return zeliAlphaPremul_16u_AC4R(s.roi(), s.step(), d.roi(), d.step(), roi);
    };
    auto comp = [&](const Image<T>& p, const Image<T>& q, Image<T>& d, int type) {
        if constexpr (sizeof(T) == 1)
            return zeliAlphaComp_8u_AC4R(p.roi(), p.step(), q.roi(), q.step(), d.roi(), d.step(), roi, type);
        else return zeliAlphaComp_16u_AC4R(p.roi(), p.step(), q.roi(), q.step(), d.roi(), d.step(), roi, type);
    };
    ASSERT_EQ(premul(a, pa), 0);
    ASSERT_EQ(premul(b, pb), 0);
    for (int type = 0; type < 6; ++type) {
        ASSERT_EQ(comp(a, b, straight, type), 0);
        ASSERT_EQ(comp(pa, pb, premultiplied, type + 6), 0);
        EXPECT_TRUE(sameRoi(straight, premultiplied, 4)) << "type " << type;
    }
}

TEST(Alpha, StraightTypesEqualPremultipliedTypesOnPremultipliedInputs) {
    forEachConfig([&] {
        straightAgainstPremultiplied<Zel8u>({67, 13});
        straightAgainstPremultiplied<Zel16u>({33, 9});
    });
}

// Planar members give the values of their interleaved twins.
TEST(Alpha, PlanarMembersEqualInterleavedOnes) {
    const ZeliSize roi{45, 7};
    forEachConfig([&] {
        for (const Member& planar : members()) {
            if (planar.lay != Lay::AP4 || planar.bytes != 1) continue;
            const Member* twin = nullptr;
            for (const Member& mb : members())
                if (mb.fam == planar.fam && mb.lay == Lay::AC4 && mb.inPlace == planar.inPlace && mb.bytes == 1)
                    twin = &mb;
            ASSERT_NE(twin, nullptr) << planar.name;
            SCOPED_TRACE(planar.name);
            for (int type = 0; type < (typed(planar.fam) ? alpha::kTypes : 1); type += 1) {
                Operand<Zel8u> p1(roi, Lay::AP4, 1, 3, 21), p2(roi, Lay::AP4, 2, 3, 22), pd(roi, Lay::AP4, 1, 3, 23);
                Operand<Zel8u> i1(roi, Lay::AC4, 3, 3, 24), i2(roi, Lay::AC4, 1, 3, 25), id(roi, Lay::AC4, 2, 3, 26);
                // The same pixels in both layouts (in place: the destinations).
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        for (int c = 0; c < 4; ++c) {
                            i1.at(x, y, c) = p1.at(x, y, c);
                            i2.at(x, y, c) = p2.at(x, y, c);
                            id.at(x, y, c) = pd.at(x, y, c);
                        }
                const Args ap = argsOf(p1, p2, pd, roi, type, 77, 200), ai = argsOf(i1, i2, id, roi, type, 77, 200);
                ASSERT_EQ(planar.call(ap), 0);
                ASSERT_EQ(twin->call(ai), 0);
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        for (int c = 0; c < 4; ++c) ASSERT_EQ(pd.at(x, y, c), id.at(x, y, c)) << x << "," << y << " " << c;
            }
        }
    });
}

// ---- The cases the rules single out ----------------------------------------

TEST(Alpha, OverWithOpaqueOrTransparentSourceOne) {
    const Zel8u c1[4] = {10, 200, 255, 255}, c2[4] = {90, 120, 250, 100};
    Zel8u d[4] = {};
    ASSERT_EQ(zeliAlphaComp_8u_AC4R(c1, 4, c2, 4, d, 4, {1, 1}, zelCompositeOver), 0);
    EXPECT_EQ(std::vector<int>(d, d + 4), (std::vector<int>{10, 200, 255, 255}));
    const Zel8u t1[4] = {10, 200, 255, 0};
    ASSERT_EQ(zeliAlphaComp_8u_AC4R(t1, 4, c2, 4, d, 4, {1, 1}, zelCompositeOver), 0);
    EXPECT_EQ(std::vector<int>(d, d + 4), (std::vector<int>{90 * 100 / 255, 120 * 100 / 255, 250 * 100 / 255, 100}));
}

TEST(Alpha, PlusSaturates) {
    const Zel8u p[4] = {200, 0, 255, 200}, q[4] = {100, 0, 1, 100};
    Zel8u d[4] = {};
    ASSERT_EQ(zeliAlphaComp_8u_AC4R(p, 4, q, 4, d, 4, {1, 1}, zelCompositePlusPremultiplied), 0);
    EXPECT_EQ(std::vector<int>(d, d + 4), (std::vector<int>{255, 0, 255, 255}));
    const Zel16u p16[1] = {50000}, q16[1] = {20000};
    Zel16u d16[1] = {};
    ASSERT_EQ(zeliAlphaComp_16u_AC1R(p16, 2, q16, 2, d16, 2, {1, 1}, zelCompositePlus), 0);
    EXPECT_EQ(d16[0], 65535);
}

// m(m(c2, a2), M - a1), not m(c2, m(a2, M - a1)): the two differ here.
TEST(Alpha, SecondTermMultipliesInTheStatedOrder) {
    const Zel8u p[4] = {0, 0, 0, 128}, q[4] = {255, 3, 200, 254};
    Zel8u d[4] = {};
    ASSERT_EQ(zeliAlphaComp_8u_AC4R(p, 4, q, 4, d, 4, {1, 1}, zelCompositeOver), 0);
    bool differs = false;
    for (int c = 0; c < 3; ++c) {
        EXPECT_EQ(d[c], m<Zel8u>(m<Zel8u>(q[c], 254), 127));
        differs = differs || m<Zel8u>(m<Zel8u>(q[c], 254), 127) != m<Zel8u>(q[c], m<Zel8u>(254, 127));
    }
    EXPECT_TRUE(differs);
}

// A key matching two channels of three does not match; 16s keys compare
// negative values as they are.
TEST(ColorKey, WholePixelsAreCompared) {
    const Zel8u s1[9] = {1, 2, 3, 1, 2, 4, 9, 2, 3}, s2[9] = {50, 51, 52, 60, 61, 62, 70, 71, 72};
    const Zel8u key[3] = {1, 2, 3};
    Zel8u d[9] = {};
    ASSERT_EQ(zeliCompColorKey_8u_C3R(s1, 9, s2, 9, d, 9, {3, 1}, key), 0);
    EXPECT_EQ(std::vector<int>(d, d + 9), (std::vector<int>{50, 51, 52, 1, 2, 4, 9, 2, 3}));
    const Zel16s n1[4] = {-1, -2, -3, -4}, n2[4] = {5, 6, 7, 8}, nkey[4] = {-1, -2, -3, -4};
    Zel16s nd[4] = {};
    ASSERT_EQ(zeliCompColorKey_16s_C4R(n1, 8, n2, 8, nd, 8, {1, 1}, nkey), 0);
    EXPECT_EQ(std::vector<int>(nd, nd + 4), (std::vector<int>{5, 6, 7, 8}));
}

// Keyed source 1 pixels are transparent: Over shows source 2 under alpha2.
TEST(ColorKey, AlphaCompositionTreatsKeyedPixelsAsTransparent) {
    const Zel8u s1[8] = {1, 2, 3, 99, 1, 2, 4, 99}, s2[8] = {200, 100, 50, 7, 200, 100, 50, 7};
    const Zel8u key[3] = {1, 2, 3};
    Zel8u d[8] = {};
    ASSERT_EQ(zeliAlphaCompColorKey_8u_AC4R(s1, 8, 255, s2, 8, 128, d, 8, {2, 1}, key, zelCompositeOver), 0);
    EXPECT_EQ(std::vector<int>(d, d + 4), (std::vector<int>{200 * 128 / 255, 100 * 128 / 255, 50 * 128 / 255, 128}));
    EXPECT_EQ(std::vector<int>(d + 4, d + 8), (std::vector<int>{1, 2, 4, 255}));
}

// Rows are split among threads only from 192 x 192; the result is the same.
TEST(ColorKey, ThreadedRowSplitGivesTheSameResult) {
    ConfigGuard restore;
    for (ZeliSize roi : {ZeliSize{192, 192}, ZeliSize{203, 197}, ZeliSize{191, 300}, ZeliSize{300, 191}}) {
        Image<Zel16u> s1(roi, 3, 3, 2, 6, 1), s2(roi, 3, 3, 4, 6, 2), one(roi, 3, 3, 2, 6, 3),
            many(roi, 3, 3, 2, 6, 3);
        const Zel16u key[3] = {s1.at(0, 0, 0), s1.at(0, 0, 1), s1.at(0, 0, 2)};
        for (int y = 0; y < roi.height; y += 2)
            for (int x = y % 5; x < roi.width; x += 3)
                for (int c = 0; c < 3; ++c) s1.at(x, y, c) = key[c];
        zelSetNumThreads(1);
        ASSERT_EQ(zeliCompColorKey_16u_C3R(s1.roi(), s1.step(), s2.roi(), s2.step(), one.roi(), one.step(), roi, key), 0);
        for (int threads : {2, 3, 4}) {
            zelSetNumThreads(threads);
            ASSERT_EQ(zeliCompColorKey_16u_C3R(s1.roi(), s1.step(), s2.roi(), s2.step(), many.roi(), many.step(), roi,
                                               key),
                      0);
            EXPECT_TRUE(sameRoi(one, many, 3)) << roi.width << "x" << roi.height << ", " << threads << " threads";
            EXPECT_TRUE(many.outsideUnchanged());
        }
    }
}

// ---- Check orders -----------------------------------------------------------

TEST(Alpha, ChecksComeInTheStatedOrder) {
    const ZeliSize roi{5, 3};
    Image<Zel8u> a(roi, 4, 4), b(roi, 4, 4), d(roi, 4, 4);
    const Zel8u key[3] = {1, 2, 3};
    const Zel8u* pa = a.roi();
    const Zel8u* pb = b.roi();
    Zel8u* pd = d.roi();
    const int sa = a.step(), sb = b.step(), sd = d.step();
    const Zel8u* planesA[4] = {pa, pa, pa, pa};
    const Zel8u* planesNull[4] = {pa, pa, nullptr, pa};
    Zel8u* planesD[4] = {pd, pd + 1, pd + 2, pd + 3};
    const ZeliSize empty{0, 3}, flat{5, -1};
    expectRejected(
        {
            {"null source 1 and empty roi", -8, [&] { return zeliAlphaComp_8u_AC4R(nullptr, sa, pb, sb, pd, sd, empty, 0); }},
            {"null destination and type 12", -8, [&] { return zeliAlphaComp_8u_AC1R(pa, sa, pb, sb, nullptr, sd, roi, 12); }},
            {"empty roi and type 12", -6, [&] { return zeliAlphaComp_8u_AC4R(pa, sa, pb, sb, pd, sd, empty, 12); }},
            {"negative height", -6, [&] { return zeliAlphaCompC_8u_C3R(pa, sa, 1, pb, sb, 2, pd, sd, flat, 0); }},
            {"type 12", -50, [&] { return zeliAlphaComp_8u_AC4R(pa, sa, pb, sb, pd, sd, roi, 12); }},
            {"type -1", -50, [&] { return zeliAlphaComp_8u_AC4R(pa, sa, pb, sb, pd, sd, roi, -1); }},
            {"type INT_MIN", -50, [&] { return zeliAlphaCompC_8u_AC4R(pa, sa, 1, pb, sb, 2, pd, sd, roi, INT_MIN); }},
            {"null plane", -8, [&] { return zeliAlphaComp_8u_AP4R(planesNull, sa, planesA, sb, planesD, sd, roi, 0); }},
            {"null plane array", -8, [&] { return zeliAlphaCompC_8u_AP4R(planesA, sa, 1, nullptr, sb, 2, planesD, sd, roi, 0); }},
            {"planar type 13", -50, [&] { return zeliAlphaComp_8u_AP4R(planesA, sa, planesA, sb, planesD, sd, roi, 13); }},
            {"premul null", -8, [&] { return zeliAlphaPremul_8u_AC4R(nullptr, sa, pd, sd, empty); }},
            {"premul size", -6, [&] { return zeliAlphaPremulC_8u_C4R(pa, sa, 9, pd, sd, empty); }},
            {"premul planar null", -8, [&] { return zeliAlphaPremul_8u_AP4R(planesNull, sa, planesD, sd, roi); }},
            {"key null key", -8, [&] { return zeliCompColorKey_8u_C3R(pa, sa, pb, sb, pd, sd, empty, nullptr); }},
            {"key size before step", -6, [&] { return zeliCompColorKey_8u_C4R(pa, 0, pb, sb, pd, sd, empty, key); }},
            {"key step 0", -14, [&] { return zeliCompColorKey_8u_C1R(pa, sa, pb, 0, pd, sd, roi, 1); }},
            {"key step negative", -14, [&] { return zeliCompColorKey_8u_C1R(pa, sa, pb, sb, pd, -sd, roi, 1); }},
            {"alpha key null key", -8, [&] { return zeliAlphaCompColorKey_8u_AC4R(pa, sa, 1, pb, sb, 2, pd, sd, empty, nullptr, 99); }},
            {"alpha key size", -6, [&] { return zeliAlphaCompColorKey_8u_AC4R(pa, 0, 1, pb, sb, 2, pd, sd, empty, key, 99); }},
            {"alpha key step before type", -14, [&] { return zeliAlphaCompColorKey_8u_AC4R(pa, 0, 1, pb, sb, 2, pd, sd, roi, key, 99); }},
            {"alpha key type", -50, [&] { return zeliAlphaCompColorKey_8u_AC4R(pa, sa, 1, pb, sb, 2, pd, sd, roi, key, 12); }},
        },
        a, b, d);
}

// Compositing and premultiplication do not check steps: a one-row call with
// zero or negative steps works.
TEST(Alpha, StepsAreNotChecked) {
    const Zel8u p[8] = {10, 20, 30, 255, 40, 50, 60, 0}, q[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Zel8u d[8] = {};
    EXPECT_EQ(zeliAlphaComp_8u_AC4R(p, 0, q, -4, d, 0, {2, 1}, zelCompositeOver), 0);
    EXPECT_EQ(d[0], 10);
    EXPECT_EQ(zeliAlphaPremul_8u_AC4R(p, -8, d, 0, {2, 1}), 0);
    EXPECT_EQ(d[4], 0);
    EXPECT_EQ(zeliAlphaCompC_8u_C1R(p, 0, 255, q, 0, 0, d, 0, {8, 1}, zelCompositeOver), 0);
    EXPECT_EQ(d[7], 0);
}

}  // namespace
}  // namespace zel::test
