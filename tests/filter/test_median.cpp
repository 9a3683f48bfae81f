// Median filters: every member against a brute-force order statistic (and
// the colour members against a brute-force vector median) over a table of
// masks and anchors, on ROIs inside larger guarded buffers, under every
// SIMD target and with one and several threads; the check orders, the
// weighted-centre rules and the dispatch of the rectangular median.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "core/memory.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace zel::test {
namespace {

enum class Kind { rect, horiz, vert, cross, colour, weighted };

// The mask arguments of one call; each kind reads its own.
struct MaskArgs {
    ZeliSize size{3, 3};
    ZeliPoint anchor{1, 1};
    int code = zelMaskCode3x3;
    int weight = 1;
};

using Call = std::function<int(const void*, int, void*, int, ZeliSize, const MaskArgs&)>;

struct Member {
    std::string name;
    Kind kind;
    char type;  // 'b' 8u, 'u' 16u, 's' 16s, 'f' 32f
    int channels, written;
    Call call;
};

template <class T>
Call callOf(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, ZeliSize, ZeliPoint)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const MaskArgs& a) {
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, a.size, a.anchor);
    };
}
template <class T>
Call callOf(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, ZeliMaskCode)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const MaskArgs& a) {
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, static_cast<ZeliMaskCode>(a.code));
    };
}
Call callOf(ZelStatus (*f)(const Zel8u*, int, Zel8u*, int, ZeliSize, int)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const MaskArgs& a) {
        return f(static_cast<const Zel8u*>(s), ss, static_cast<Zel8u*>(d), ds, roi, a.weight);
    };
}

#define ZM(fn, kind, type, ch, wr) Member{#fn, Kind::kind, type, ch, wr, callOf(&fn)}
#define ZM3(op, kind, t, type)                                                                                \
    ZM(op##_##t##_C1R, kind, type, 1, 1), ZM(op##_##t##_C3R, kind, type, 3, 3), ZM(op##_##t##_AC4R, kind, type, 4, 3)
#define ZM4(op, kind, t, type) ZM3(op, kind, t, type), ZM(op##_##t##_C4R, kind, type, 4, 4)
#define ZM_TYPES(op, kind, Z) Z(op, kind, 8u, 'b'), Z(op, kind, 16u, 'u'), Z(op, kind, 16s, 's')

const std::vector<Member>& members() {
    static const std::vector<Member> all = {
        ZM_TYPES(zeliFilterMedian, rect, ZM4),
        ZM_TYPES(zeliFilterMedianHoriz, horiz, ZM4),
        ZM_TYPES(zeliFilterMedianVert, vert, ZM4),
        ZM_TYPES(zeliFilterMedianCross, cross, ZM3),
        ZM(zeliFilterMedianColor_8u_C3R, colour, 'b', 3, 3),
        ZM(zeliFilterMedianColor_8u_AC4R, colour, 'b', 4, 3),
        ZM(zeliFilterMedianColor_16s_C3R, colour, 's', 3, 3),
        ZM(zeliFilterMedianColor_16s_AC4R, colour, 's', 4, 3),
        ZM(zeliFilterMedianColor_32f_C3R, colour, 'f', 3, 3),
        ZM(zeliFilterMedianColor_32f_AC4R, colour, 'f', 4, 3),
        ZM(zeliFilterMedianWeightedCenter3x3_8u_C1R, weighted, 'b', 1, 1),
    };
    return all;
}

// A window as (dx, dy) offsets from the pixel, repeated ones counting more.
struct Offset {
    int dx, dy;
};
std::vector<Offset> windowOf(Kind kind, const MaskArgs& a) {
    std::vector<Offset> w;
    auto rect = [&](int x0, int y0, int width, int height) {
        for (int dy = 0; dy < height; ++dy)
            for (int dx = 0; dx < width; ++dx) w.push_back({x0 + dx, y0 + dy});
    };
    const int r = a.code == zelMaskCode3x3 || a.code == zelMaskCode3x1 || a.code == zelMaskCode1x3 ? 1 : 2;
    switch (kind) {
        case Kind::rect: rect(-a.anchor.x, -a.anchor.y, a.size.width, a.size.height); break;
        case Kind::horiz: rect(-r, 0, 2 * r + 1, 1); break;
        case Kind::vert: rect(0, -r, 1, 2 * r + 1); break;
        case Kind::cross:
            rect(-r, 0, 2 * r + 1, 1);
            for (int dy = -r; dy <= r; ++dy)
                if (dy != 0) w.push_back({0, dy});
            break;
        case Kind::colour: rect(-r, -r, 2 * r + 1, 2 * r + 1); break;
        case Kind::weighted:
            rect(-1, -1, 3, 3);
            for (int k = 1; k < (a.weight % 2 ? a.weight : a.weight - 1); ++k) w.push_back({0, 0});
            break;
    }
    return w;
}

// The brute-force results over the ROI, written channels only, row-major.
template <class T>
std::vector<T> reference(const Member& m, const Image<T>& src, int border, ZeliSize roi, const MaskArgs& a) {
    const std::vector<Offset> window = windowOf(m.kind, a);
    std::vector<T> want;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            if (m.kind == Kind::colour) {
                // The pixel of least L1 distance sum, first in scan order.
                int best = -1;
                double bestSum = 0;
                for (const Offset& i : window) {
                    double sum = 0;
                    for (const Offset& j : window)
                        for (int c = 0; c < 3; ++c) {
                            const double p = src.at(x + border + i.dx, y + border + i.dy, c);
                            const double q = src.at(x + border + j.dx, y + border + j.dy, c);
                            sum += p == q ? 0 : std::fabs(p - q);
                        }
                    if (best < 0 || sum < bestSum) best = static_cast<int>(&i - window.data()), bestSum = sum;
                }
                for (int c = 0; c < 3; ++c)
                    want.push_back(src.at(x + border + window[best].dx, y + border + window[best].dy, c));
                continue;
            }
            for (int c = 0; c < m.written; ++c) {
                std::vector<T> v;
                for (const Offset& o : window) v.push_back(src.at(x + border + o.dx, y + border + o.dy, c));
                std::sort(v.begin(), v.end());
                want.push_back(v[v.size() / 2]);
            }
        }
    return want;
}

// Runs member m on random sources (values in [lo, hi]) under every
// configuration and compares with the reference; the guards around the
// destination stay as they were.
template <class T>
void checkMember(const Member& m, const MaskArgs& a, ZeliSize roi, std::uint32_t seed, double lo, double hi) {
    constexpr int kBorder = 11;
    Image<T> src({roi.width + 2 * kBorder, roi.height + 2 * kBorder}, m.channels, -1, sizeof(T), 5, seed);
    src.fillRandom(seed, static_cast<T>(lo), static_cast<T>(hi));
    Image<T> dst(roi, m.channels, m.written, 3 * sizeof(T), 7, seed + 1);
    const std::vector<T> want = reference(m, src, kBorder, roi, a);
    const ZelStatus expected = m.kind == Kind::weighted && a.weight % 2 == 0 ? zelStatusWarnEvenWeight : zelStatusOk;
    forEachConfig([&] {
        ASSERT_EQ(m.call(&src.at(kBorder, kBorder), src.step(), dst.roi(), dst.step(), roi, a), expected);
        ASSERT_TRUE(dst.outsideUnchanged());
        std::size_t i = 0;
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < m.written; ++c, ++i)
                    ASSERT_EQ(dst.at(x, y, c), want[i]) << "pixel " << x << "," << y << " channel " << c;
        ASSERT_TRUE(src.unchanged());
        dst.snapshot();
    });
}

template <class F>
void withType(const Member& m, F&& f) {
    switch (m.type) {
        case 'b': f(Zel8u{}); break;
        case 'u': f(Zel16u{}); break;
        case 's': f(Zel16s{}); break;
        default: f(Zel32f{}); break;
    }
}

// Mask arguments each kind is run with.
std::vector<MaskArgs> masksOf(Kind kind) {
    auto code = [](int c) { MaskArgs a; a.code = c; return a; };
    switch (kind) {
        case Kind::rect: {
            // Centred, corner and off-centre anchors, every dispatch path.
            const std::pair<ZeliSize, ZeliPoint> table[] = {
                {{3, 3}, {1, 1}}, {{3, 3}, {0, 0}}, {{3, 3}, {2, 1}}, {{5, 5}, {2, 2}}, {{5, 5}, {0, 4}},
                {{1, 1}, {0, 0}}, {{3, 1}, {0, 0}}, {{5, 1}, {4, 0}}, {{1, 3}, {0, 2}}, {{1, 5}, {0, 1}},
                {{7, 7}, {3, 3}}, {{7, 7}, {0, 6}}, {{7, 3}, {6, 0}}, {{3, 9}, {1, 8}}, {{11, 5}, {2, 3}}, {{1, 7}, {0, 3}},
                {{9, 1}, {8, 0}}, {{15, 9}, {7, 4}}, {{11, 11}, {0, 10}}};
            std::vector<MaskArgs> all;
            for (auto [size, anchor] : table) {
                MaskArgs a;
                a.size = size;
                a.anchor = anchor;
                all.push_back(a);
            }
            return all;
        }
        case Kind::horiz: return {code(zelMaskCode3x1), code(zelMaskCode5x1)};
        case Kind::vert: return {code(zelMaskCode1x3), code(zelMaskCode1x5)};
        case Kind::cross:
        case Kind::colour: return {code(zelMaskCode3x3), code(zelMaskCode5x5)};
        case Kind::weighted: {
            std::vector<MaskArgs> all;
            for (int w : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 1000}) {
                MaskArgs a;
                a.weight = w;
                all.push_back(a);
            }
            return all;
        }
    }
    return {};
}

std::string describe(const Member& m, const MaskArgs& a, ZeliSize roi) {
    std::string s = m.name + " roi " + std::to_string(roi.width) + "x" + std::to_string(roi.height);
    if (m.kind == Kind::rect)
        s += " mask " + std::to_string(a.size.width) + "x" + std::to_string(a.size.height) + " anchor " +
             std::to_string(a.anchor.x) + "," + std::to_string(a.anchor.y);
    else if (m.kind == Kind::weighted) s += " weight " + std::to_string(a.weight);
    else s += " code " + std::to_string(a.code);
    return s;
}

TEST(Median, EveryMemberEqualsTheOrderStatistic) {
    ASSERT_EQ(members().size(), 52u);
    // 37 x 3: vector bodies and tails; 1100 x 2: more than one chunk of a
    // row and pieces of rows for the threads; 5 x 41: bands of rows.
    const ZeliSize sizes[] = {{1, 1}, {37, 3}, {1100, 2}, {5, 41}};
    std::uint32_t seed = 1;
    for (const Member& m : members())
        for (const MaskArgs& a : masksOf(m.kind))
            for (ZeliSize roi : sizes) {
                // The big ROI only with the masks of the square kernels.
                if (roi.width > 1000 && m.kind == Kind::rect && a.size.width * a.size.height > 49) continue;
                if (roi.width > 1000 && m.kind == Kind::colour && a.code == zelMaskCode5x5) continue;
                SCOPED_TRACE(describe(m, a, roi));
                withType(m, [&](auto t) {
                    using T = decltype(t);
                    // Full range, then few distinct values (many ties).
                    const double lo = std::is_floating_point_v<T> ? -1000 : std::numeric_limits<T>::lowest();
                    const double hi = std::is_floating_point_v<T> ? 1000 : std::numeric_limits<T>::max();
                    checkMember<T>(m, a, roi, ++seed, lo, hi);
                    checkMember<T>(m, a, roi, ++seed, lo, lo + 3);
                });
            }
}

// The order statistic at the ends of each type's range, where a signed or
// unsigned comparison made in the wrong lanes would fail.
TEST(Median, RangeEnds) {
    for (const Member& m : members()) {
        if (m.kind == Kind::colour) continue;
        for (const MaskArgs& a : masksOf(m.kind)) {
            SCOPED_TRACE(describe(m, a, {67, 5}));
            withType(m, [&](auto t) {
                using T = decltype(t);
                const double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
                checkMember<T>(m, a, {67, 5}, 77, hi - 2, hi);
                checkMember<T>(m, a, {67, 5}, 78, lo, lo + 2);
            });
        }
    }
}

const Member& member(const std::string& name) {
    for (const Member& m : members())
        if (m.name == name) return m;
    ADD_FAILURE() << name << " missing";
    return members().front();
}

// Pointers, size, steps, then the mask (the anchor after it, the weight);
// nothing written.
TEST(Median, CheckOrder) {
    for (const Member& m : members()) {
        SCOPED_TRACE(m.name);
        std::vector<std::uint8_t> in(8192, 1);
        Image<Zel8u> out({64, 4}, 1);
        const void* s = in.data() + 4096;
        void* d = out.roi();
        MaskArgs good;
        if (m.kind == Kind::horiz) good.code = zelMaskCode3x1;
        if (m.kind == Kind::vert) good.code = zelMaskCode1x3;
        MaskArgs bad = good;
        bad.size = {4, 3};
        bad.anchor = {5, 5};
        bad.code = m.kind == Kind::horiz ? zelMaskCode1x3 : m.kind == Kind::vert ? zelMaskCode3x1 : 35;
        bad.weight = 0;
        const int badCode = m.kind == Kind::weighted ? zelStatusBadWeight : zelStatusBadMaskSize;
        std::vector<Rejection> cases = {
            {"null source", zelStatusNullPtr, [&] { return m.call(nullptr, 0, d, 0, {0, 3}, bad); }},
            {"null destination", zelStatusNullPtr, [&] { return m.call(s, 0, nullptr, 0, {3, 0}, bad); }},
            {"zero width", zelStatusBadSize, [&] { return m.call(s, 0, d, 0, {0, 3}, bad); }},
            {"negative height", zelStatusBadSize, [&] { return m.call(s, -64, d, 64, {3, -1}, bad); }},
            {"zero source step", zelStatusBadStep, [&] { return m.call(s, 0, d, 64, {3, 3}, bad); }},
            {"negative destination step", zelStatusBadStep, [&] { return m.call(s, 256, d, -64, {3, 3}, bad); }},
            {"bad mask", badCode, [&] { return m.call(s, 256, d, 64, {3, 3}, bad); }},
        };
        if (m.kind == Kind::rect) {
            MaskArgs a = good;
            a.anchor = {3, 1};
            cases.push_back({"anchor (3, 1) of 3x3", zelStatusBadAnchor, [&, a] { return m.call(s, 256, d, 64, {3, 3}, a); }});
            const std::pair<ZeliSize, ZeliPoint> masks[] = {
                {{0, 3}, {0, 0}}, {{3, -1}, {0, 0}}, {{2, 3}, {0, 0}}, {{3, 4}, {0, 0}}, {{2, 2}, {9, 9}}};
            for (auto [size, anchor] : masks) {
                MaskArgs b = good;
                b.size = size;
                b.anchor = anchor;
                cases.push_back({"mask " + std::to_string(size.width) + "x" + std::to_string(size.height),
                                 zelStatusBadMaskSize, [&, b] { return m.call(s, 256, d, 64, {3, 3}, b); }});
            }
            for (ZeliPoint anchor : {ZeliPoint{-1, 0}, ZeliPoint{0, -1}, ZeliPoint{0, 3}, ZeliPoint{3, 0}}) {
                MaskArgs b = good;
                b.anchor = anchor;
                cases.push_back({"anchor", zelStatusBadAnchor, [&, b] { return m.call(s, 256, d, 64, {3, 3}, b); }});
            }
        } else if (m.kind == Kind::weighted) {
            for (int w : {-1, INT32_MIN}) {
                MaskArgs b = good;
                b.weight = w;
                cases.push_back({"weight", zelStatusBadWeight, [&, b] { return m.call(s, 256, d, 64, {3, 3}, b); }});
            }
        } else {
            for (int code : {0, -1, 11, 35, 53, 31, 13, 15, 51, 33, 55}) {
                const bool valid = code == good.code || (m.kind == Kind::horiz && code == zelMaskCode5x1) ||
                                   (m.kind == Kind::vert && code == zelMaskCode1x5) ||
                                   ((m.kind == Kind::cross || m.kind == Kind::colour) && code == zelMaskCode5x5);
                if (valid) continue;
                MaskArgs b = good;
                b.code = code;
                cases.push_back({"code " + std::to_string(code), zelStatusBadMaskSize,
                                 [&, b] { return m.call(s, 256, d, 64, {3, 3}, b); }});
            }
        }
        expectRejected(cases, out);
    }
}

// Runs a C1 8u member on a 5x5 source given row by row; the result for its
// centre pixel.
Zel8u centreOf(const std::string& name, const std::vector<Zel8u>& pixels, const MaskArgs& a,
               ZelStatus expected = zelStatusOk) {
    Zel8u out = 0xA5;
    EXPECT_EQ(member(name).call(pixels.data() + 12, 5, &out, 1, {1, 1}, a), expected);
    return out;
}

TEST(Median, WindowsOfTheExamples) {
    MaskArgs a;
    a.size = {5, 1};
    a.anchor = {2, 0};
    std::vector<Zel8u> img(25, 0);
    for (int k = 0; k < 5; ++k) img[10 + k] = std::vector<Zel8u>{1, 1, 1, 200, 200}[k];
    EXPECT_EQ(centreOf("zeliFilterMedian_8u_C1R", img, a), 1);
    for (int k = 0; k < 5; ++k) img[10 + k] = std::vector<Zel8u>{1, 200, 200, 200, 1}[k];
    EXPECT_EQ(centreOf("zeliFilterMedian_8u_C1R", img, a), 200);
    // The cross is the centre row and column only: the corners do not count.
    std::vector<Zel8u> cross(25, 0);
    for (int k : {6, 8, 16, 18, 7, 11}) cross[k] = 9;
    a.code = zelMaskCode3x3;
    EXPECT_EQ(centreOf("zeliFilterMedianCross_8u_C1R", cross, a), 0);
    cross[13] = 9;
    EXPECT_EQ(centreOf("zeliFilterMedianCross_8u_C1R", cross, a), 9);
}

// Even weights act as the next lower odd weight and warn; from 9 on the
// source is copied; the centre decides when its weight outnumbers the rest.
TEST(Median, WeightedCentreRules) {
    // Eight neighbours of 10, the centre 0: weight 7 gives 10 (15 values,
    // eight of them 10), weight 9 gives the centre.
    std::vector<Zel8u> img(25, 10);
    img[12] = 0;
    auto w = [](int weight) { MaskArgs a; a.weight = weight; return a; };
    const std::string name = "zeliFilterMedianWeightedCenter3x3_8u_C1R";
    EXPECT_EQ(centreOf(name, img, w(7)), 10);
    EXPECT_EQ(centreOf(name, img, w(8), zelStatusWarnEvenWeight), 10);
    EXPECT_EQ(centreOf(name, img, w(9)), 0);
    EXPECT_EQ(centreOf(name, img, w(10), zelStatusWarnEvenWeight), 0);
    // Four neighbours of 0 and four of 10: weight 1 gives 0 (five zeros),
    // weight 3 with a centre of 10 gives 10.
    for (int k : {6, 7, 8, 11}) img[k] = 0;
    img[12] = 10;
    EXPECT_EQ(centreOf(name, img, w(1)), 10);
    img[13] = 0;
    EXPECT_EQ(centreOf(name, img, w(1)), 0);
    EXPECT_EQ(centreOf(name, img, w(3)), 10);
    EXPECT_EQ(centreOf(name, img, w(4), zelStatusWarnEvenWeight), 10);
    // Weight 9 and above copy whole ROIs, untouched bytes around them.
    Image<Zel8u> src({40, 7}, 1, -1, 1, 5, 3), dst({40, 7}, 1, -1, 2, 7, 4);
    EXPECT_EQ(zeliFilterMedianWeightedCenter3x3_8u_C1R(src.roi(), src.step(), dst.roi(), dst.step(), {38, 5}, 12),
              zelStatusWarnEvenWeight);
    for (int y = 0; y < 5; ++y) EXPECT_EQ(std::memcmp(src.row(y), dst.row(y), 38), 0);
    EXPECT_TRUE(dst.outsideUnchanged());
}

// The 1x1 mask copies; a mask's anchor moves the window without mirroring.
TEST(Median, RectangleDispatch) {
    Image<Zel16s> src({30, 9}, 1, -1, 2, 5, 8), dst({20, 3}, 1, -1, 2, 5, 9);
    MaskArgs a;
    a.size = {1, 1};
    a.anchor = {0, 0};
    const Member& m = member("zeliFilterMedian_16s_C1R");
    ASSERT_EQ(m.call(&src.at(4, 2), src.step(), dst.roi(), dst.step(), {20, 3}, a), zelStatusOk);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(dst.at(x, y), src.at(x + 4, y + 2));
    // A 3x3 window anchored at (0, 0) covers columns x .. x+2, rows y .. y+2.
    a.size = {3, 3};
    ASSERT_EQ(m.call(&src.at(4, 2), src.step(), dst.roi(), dst.step(), {20, 3}, a), zelStatusOk);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 20; ++x) {
            std::vector<Zel16s> v;
            for (int dy = 0; dy < 3; ++dy)
                for (int dx = 0; dx < 3; ++dx) v.push_back(src.at(x + 4 + dx, y + 2 + dy));
            std::nth_element(v.begin(), v.begin() + 4, v.end());
            ASSERT_EQ(dst.at(x, y), v[4]);
        }
}

// The 16-bit general kernels take their windows or histograms from the
// allocator: a failed allocation returns -9 with nothing written.
TEST(Median, WorkBufferFailure) {
    Image<Zel16u> src({60, 40}, 1), dst({20, 6}, 1);
    for (ZeliSize size : {ZeliSize{7, 5}, ZeliSize{15, 15}}) {
        MaskArgs a;
        a.size = size;
        a.anchor = {size.width / 2, size.height / 2};
        failAllocationForTests(1);
        EXPECT_EQ(member("zeliFilterMedian_16u_C1R").call(&src.at(10, 10), src.step(), dst.roi(), dst.step(), {20, 6}, a),
                  zelStatusNoMemory);
        failAllocationForTests(0);
        EXPECT_TRUE(dst.unchanged());
    }
}

// The colour median picks a whole window pixel: in a window of one colour
// and one outlier the colour wins; among equal sums the first in scan
// order.
TEST(Median, ColourRule) {
    std::vector<Zel8u> img(25 * 3, 50);
    img[12 * 3 + 0] = 255;  // the centre pixel differs in red
    Zel8u out[3] = {};
    const Member& m = member("zeliFilterMedianColor_8u_C3R");
    MaskArgs a;
    ASSERT_EQ(m.call(img.data() + 12 * 3, 15, out, 9, {1, 1}, a), zelStatusOk);
    EXPECT_EQ(out[0], 50);
    // Two colours, four pixels of one and five of the other: the five win.
    std::vector<float> f(25 * 3, 0.f);
    for (int k : {6, 7, 8, 11}) f[k * 3 + 1] = 4.f;
    float fo[3] = {};
    const Member& mf = member("zeliFilterMedianColor_32f_C3R");
    ASSERT_EQ(mf.call(f.data() + 12 * 3, 60, fo, 12, {1, 1}, a), zelStatusOk);
    EXPECT_EQ(fo[1], 0.f);
    // A NaN anywhere makes every sum NaN: the centre pixel comes back.
    f[6 * 3 + 2] = std::numeric_limits<float>::quiet_NaN();
    f[12 * 3 + 1] = 7.f;
    ASSERT_EQ(mf.call(f.data() + 12 * 3, 60, fo, 12, {1, 1}, a), zelStatusOk);
    EXPECT_EQ(fo[1], 7.f);
}

// The 32f colour sums are formed under round-to-nearest whatever the
// caller's mode, which is in place again afterwards. In this window (red
// only) the sums of the first pixel (3) and the centre (5) tie when rounded
// to nearest, so the first wins; rounded upwards the centre's would be the
// smaller.
TEST(Median, ColourIgnoresTheCallersRoundingMode) {
    const float big2 = std::ldexp(2.f, 60), big3 = std::ldexp(3.f, 60);
    const float red[9] = {3, big3, 1, big2, 5, 3, 5, 5, big2};
    std::vector<float> window(27, 0.f);
    for (int i = 0; i < 9; ++i) window[i * 3] = red[i];
    const Member& m = member("zeliFilterMedianColor_32f_C3R");
    MaskArgs a;
    for (int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
        float out[3] = {-1, -1, -1};
        std::fesetround(mode);
        const int st = m.call(window.data() + 4 * 3, 9 * sizeof(float), out, sizeof out, {1, 1}, a);
        const int after = std::fegetround();
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(st, zelStatusOk);
        EXPECT_EQ(after, mode);
        EXPECT_EQ(out[0], 3.f) << "mode " << mode;
    }
}

}  // namespace
}  // namespace zel::test
