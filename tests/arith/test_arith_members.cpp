// Every Add, Sub, Mul, AddC, SubC, MulC, MulScale and MulCScale member
// against the reference rule: odd sizes, unaligned ROIs inside guarded
// buffers, every SIMD target, one and four threads, in place against out of
// place, and large samples with the types' extremes at scale factors that
// reach every band.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "arith/arith_members.h"
#include "harness/image.h"
#include "harness/sweep.h"

namespace {

using zel::test::Image;
using zel::test::Member;
using zel::test::Parts;

// Random parts with the type's extremes and the values around 0 often.
template <class B>
B drawPart(std::mt19937& rng) {
    if constexpr (std::is_floating_point_v<B>) {
        return std::uniform_real_distribution<B>(-1000, 1000)(rng);
    } else {
        using L = std::numeric_limits<B>;
        const B special[] = {L::min(), B(L::min() + 1), B(-1), 0, 1, 2, B(L::max() - 1), L::max()};
        if (rng() % 4 == 0) return special[rng() % 8];
        return B(std::uniform_int_distribution<std::int64_t>(L::min(), L::max())(rng));
    }
}

template <class T>
void fillParts(Image<T>& image, std::mt19937& rng) {
    using B = typename Parts<T>::Base;
    image.fill([&](int, int, int) {
        T v;
        B* parts = reinterpret_cast<B*>(&v);
        for (int i = 0; i < Parts<T>::kCount; ++i) parts[i] = drawPart<B>(rng);
        return v;
    });
}

template <class T>
std::string show(const T& v) {
    using B = typename Parts<T>::Base;
    std::string out;
    for (int i = 0; i < Parts<T>::kCount; ++i)
        out += (i ? "," : "") + std::to_string(+reinterpret_cast<const B*>(&v)[i]);
    return out;
}

template <class T>
testing::AssertionResult samePixel(const T& actual, const T& expected) {
    if (std::memcmp(&actual, &expected, sizeof(T)) == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << show(actual) << " instead of " << show(expected);
}

// Runs one member on fresh images and checks values, guards and alpha. The
// in-place forms start from a copy of the out-of-place source, so both forms
// must produce the same ROI.
template <class T>
void checkMember(const Member<T>& m, ZeliSize roi, int offset, int scale, std::uint32_t seed,
                 bool contiguous = false) {
    SCOPED_TRACE(testing::Message() << m.name << " " << roi.width << "x" << roi.height << " offset "
                                    << offset << " scale " << scale << (contiguous ? " contiguous" : ""));
    std::mt19937 rng(seed);
    // Contiguous rows (no padding) are run as one long row.
    const int guard = contiguous ? 0 : 3 * sizeof(T);
    Image<T> a(roi, m.channels, -1, offset, guard + (contiguous ? 0 : 5), seed);
    Image<T> b(roi, m.channels, -1, offset + int(sizeof(T)), guard + (contiguous ? 0 : 7), seed + 1);
    Image<T> d(roi, m.channels, m.computed, offset, guard + (contiguous ? 0 : 9), seed + 2);
    fillParts(a, rng);
    fillParts(b, rng);
    T value[4];
    for (T& v : value) {
        using B = typename Parts<T>::Base;
        B* parts = reinterpret_cast<B*>(&v);
        for (int i = 0; i < Parts<T>::kCount; ++i) parts[i] = drawPart<B>(rng);
    }
    // p is the operand the operation starts from, q the other one.
    const Image<T>& p = m.isConst ? a : b;
    Image<T> expected = p;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.computed; ++c)
                zel::test::referenceOp(m.op, p.at(x, y, c), m.isConst ? value[c] : a.at(x, y, c), scale,
                                       expected.at(x, y, c));

    Image<T>& target = m.inPlace ? (m.isConst ? a : b) : d;
    if (m.inPlace) target.snapshot();
    ASSERT_EQ(m.call(a.roi(), a.step(), b.roi(), b.step(), target.roi(), target.step(), roi, scale, value),
              zelStatusOk);
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.computed; ++c)
                ASSERT_TRUE(samePixel(target.at(x, y, c), expected.at(x, y, c)))
                    << "at " << x << "," << y << " channel " << c << " from " << show(p.at(x, y, c))
                    << " and " << show(m.isConst ? value[c] : a.at(x, y, c));
    // Guards, padding and alpha keep their bytes; the untouched operands too.
    if (m.inPlace) {
        EXPECT_TRUE(target.outsideUnchanged());
        if (!m.isConst) {
            EXPECT_TRUE(a.unchanged());
        }
    } else {
        EXPECT_TRUE(d.outsideUnchanged());
        EXPECT_TRUE(a.unchanged());
        EXPECT_TRUE(b.unchanged());
    }
}

template <class T>
void checkAll(const std::vector<Member<T>>& members, std::initializer_list<int> scales) {
    const bool scaled = !std::is_floating_point_v<typename Parts<T>::Base>;
    const ZeliSize sizes[] = {{1, 1}, {37, 3}, {5, 9}, {13, 4}};
    zel::test::forEachConfig([&] {
        std::uint32_t seed = 1;
        for (const auto& m : members)
            // Vector-aligned and element-aligned ROIs by turns; the last one
            // with contiguous rows.
            for (int i = 0; i < 4; ++i)
                for (int scale : scales) {
                    if (!scaled && scale != 0) continue;
                    const int offset = i % 2 == 0 ? 0 : int(sizeof(typename Parts<T>::Base));
                    checkMember(m, sizes[i], offset, scale, seed++, i == 3);
                    if (testing::Test::HasFatalFailure()) return;
                }
    });
}

// Band edges of the 8-bit and 16-bit members: below and at the saturating
// left shifts, a left shift, plain, ties, a right shift, the zero fill.
TEST(ArithMembers, EveryMemberMatchesTheRule8u) { checkAll(zel::test::members8u(), {-9, -1, 0, 1, 3, 9, 17}); }
TEST(ArithMembers, EveryMemberMatchesTheRule16u) { checkAll(zel::test::members16u(), {-17, -3, 0, 1, 9, 17, 33}); }
TEST(ArithMembers, EveryMemberMatchesTheRule16s) { checkAll(zel::test::members16s(), {-16, -15, -2, 0, 1, 16, 30, 31}); }
TEST(ArithMembers, EveryMemberMatchesTheRuleComplex) {
    checkAll(zel::test::members16sc(), {-17, 0, 1, 17, 32});
    checkAll(zel::test::members32sc(), {-33, 0, 1, 33, 64});
    checkAll(zel::test::members32fc(), {0});
}
TEST(ArithMembers, EveryMemberMatchesTheRule32f) { checkAll(zel::test::members32f(), {0}); }

// Long rows (one vector loop per row and many threads' worth of rows) with
// many extremes, C1 members, every scale factor from far below to far above
// the bands.
template <class T>
void checkSamples(const std::vector<Member<T>>& members) {
    for (const auto& m : members) {
        if (m.channels != 1 || m.inPlace) continue;
        for (int scale : {-34, -18, -17, -16, -15, -9, -1, 0, 1, 2, 8, 15, 16, 17, 18, 30, 31, 32, 33, 34, 63,
                          64, 65, 66}) {
            checkMember(m, {301, 7}, 0, m.op == zel::test::Op::MulScale ? 0 : scale, 7u * scale + 1000);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(ArithMembers, LargeSamplesWithExtremes) {
    checkSamples(zel::test::members16u());
    checkSamples(zel::test::members16s());
    checkSamples(zel::test::members16sc());
    checkSamples(zel::test::members32sc());
}

}  // namespace
