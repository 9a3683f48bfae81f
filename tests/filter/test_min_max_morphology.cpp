// Minimum and maximum filters and morphology: every member against a
// brute-force extremum over a table of windows and masks (full, sparse,
// single members, non-centred anchors, windows high and wide enough for the
// segment and doubling paths), on sources inside guarded buffers, under
// every SIMD target and with one and several threads; in place against out
// of place; 32f zeros and infinities; the check orders; failed allocations;
// no read beyond the element's reach.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "core/memory.h"
#include "filter/extremum.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/pages.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

enum class Kind { window, square, squareInPlace, mask, maskInPlace };
enum class Elem { u8, u16, s16, f32 };

// One calling interface for every member; in-place members work on dst.
using ExtremumCall = std::function<ZelStatus(const void* src, int srcStep, void* dst, int dstStep, ZeliSize roi,
                                             const Zel8u* mask, ZeliSize maskSize, ZeliPoint anchor)>;

struct Member {
    std::string name;
    Kind kind;
    Elem elem;
    int channels, written;
    bool isMax;
    ExtremumCall call;
};

template <class T>
ExtremumCall callOf(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, ZeliSize, ZeliPoint)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const Zel8u*, ZeliSize m, ZeliPoint a) {
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, m, a);
    };
}
template <class T>
ExtremumCall callOf(ZelStatus (*f)(const T*, int, T*, int, ZeliSize)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const Zel8u*, ZeliSize, ZeliPoint) {
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi);
    };
}
template <class T>
ExtremumCall callOf(ZelStatus (*f)(T*, int, ZeliSize)) {
    return [f](const void*, int, void* d, int ds, ZeliSize roi, const Zel8u*, ZeliSize, ZeliPoint) {
        return f(static_cast<T*>(d), ds, roi);
    };
}
template <class T>
ExtremumCall callOf(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const Zel8u*, ZeliSize, ZeliPoint)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const Zel8u* k, ZeliSize m, ZeliPoint a) {
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, k, m, a);
    };
}
template <class T>
ExtremumCall callOf(ZelStatus (*f)(T*, int, ZeliSize, const Zel8u*, ZeliSize, ZeliPoint)) {
    return [f](const void*, int, void* d, int ds, ZeliSize roi, const Zel8u* k, ZeliSize m, ZeliPoint a) {
        return f(static_cast<T*>(d), ds, roi, k, m, a);
    };
}

#define MEMBER(fn, kind, elem, ch, wr, isMax) Member{#fn, Kind::kind, Elem::elem, ch, wr, isMax, callOf(&fn)}
#define LAYOUTS(prefix, t, suffix, kind, elem, isMax)                                                     \
    MEMBER(prefix##_##t##_C1##suffix, kind, elem, 1, 1, isMax),                                           \
        MEMBER(prefix##_##t##_C3##suffix, kind, elem, 3, 3, isMax),                                       \
        MEMBER(prefix##_##t##_AC4##suffix, kind, elem, 4, 3, isMax)
#define LAYOUTS4(prefix, t, suffix, kind, elem, isMax) \
    LAYOUTS(prefix, t, suffix, kind, elem, isMax), MEMBER(prefix##_##t##_C4##suffix, kind, elem, 4, 4, isMax)
#define WINDOW_TYPE(t, elem) \
    LAYOUTS4(zeliFilterMin, t, R, window, elem, false), LAYOUTS4(zeliFilterMax, t, R, window, elem, true)
#define MORPH_TYPE(t, elem)                                                                                   \
    LAYOUTS4(zeliDilate3x3, t, R, square, elem, true), LAYOUTS4(zeliErode3x3, t, R, square, elem, false),     \
        LAYOUTS4(zeliDilate3x3, t, IR, squareInPlace, elem, true),                                           \
        LAYOUTS4(zeliErode3x3, t, IR, squareInPlace, elem, false), LAYOUTS4(zeliDilate, t, R, mask, elem, true), \
        LAYOUTS4(zeliErode, t, R, mask, elem, false), LAYOUTS(zeliDilate, t, IR, maskInPlace, elem, true),   \
        LAYOUTS(zeliErode, t, IR, maskInPlace, elem, false)

const std::vector<Member>& members() {
    static const std::vector<Member> all = {WINDOW_TYPE(8u, u8),  WINDOW_TYPE(16u, u16), WINDOW_TYPE(16s, s16),
                                            WINDOW_TYPE(32f, f32), MORPH_TYPE(8u, u8),    MORPH_TYPE(16u, u16),
                                            MORPH_TYPE(32f, f32)};
    return all;
}

bool inPlace(const Member& m) { return m.kind == Kind::squareInPlace || m.kind == Kind::maskInPlace; }
bool takesMask(const Member& m) { return m.kind == Kind::mask || m.kind == Kind::maskInPlace; }

// A structuring element: rows of '#' (member) and '.' (not), and the anchor.
struct Shape {
    std::vector<std::string> rows;
    ZeliPoint anchor;
    int width() const { return static_cast<int>(rows[0].size()); }
    int height() const { return static_cast<int>(rows.size()); }
    std::vector<Zel8u> bytes() const {  // members as assorted non-zero bytes
        std::vector<Zel8u> b;
        for (const auto& r : rows)
            for (char c : r) b.push_back(c == '#' ? static_cast<Zel8u>(1 + b.size() * 37 % 255) : 0);
        return b;
    }
};
Shape rect(int w, int h, ZeliPoint a) { return Shape{std::vector<std::string>(h, std::string(w, '#')), a}; }

// Windows for every member kind: rectangles (Min/Max, and masks that fill
// their bounding box) and, for masks, sparse elements.
std::vector<Shape> shapesOf(const Member& m) {
    if (m.kind == Kind::square || m.kind == Kind::squareInPlace) return {rect(3, 3, {1, 1})};
    std::vector<Shape> shapes = {rect(3, 3, {1, 1}), rect(2, 2, {1, 1}), rect(3, 3, {0, 0}), rect(5, 1, {4, 0}),
                                 rect(1, 7, {0, 3}), rect(4, 9, {2, 8}), rect(13, 3, {12, 1}),
                                 rect(11, 15, {0, 0}), rect(1, 1, {0, 0})};
    if (!takesMask(m)) return shapes;
    const std::vector<Shape> sparse = {
        {{"..#..", "..#..", "#####", "..#..", "..#.."}, {2, 2}},      // cross
        {{"...", ".#.", "..."}, {0, 2}},                              // one member, off the anchor
        {{"#..", ".#.", "..#", "#.#"}, {1, 1}},                       // diagonal and gaps
        {{"....", ".##.", ".##.", "...."}, {3, 3}},                   // rectangle inside zeros
        {{"##.##", "#...#", "#...#", "##.##", ".....", "..#.."}, {2, 5}},  // ring, reaching 5 rows up
        {{"#", ".", ".", ".", ".", ".", ".", ".", ".", ".", ".", "#"}, {0, 11}},  // 11 rows up: long hold
        {{"#.#", "...", "###"}, {1, 0}},                               // reaching down only
    };
    shapes.insert(shapes.end(), sparse.begin(), sparse.end());
    return shapes;
}

template <class F>
void withType(const Member& m, F&& f) {
    switch (m.elem) {
        case Elem::u8: return f(Zel8u{});
        case Elem::u16: return f(Zel16u{});
        case Elem::s16: return f(Zel16s{});
        case Elem::f32: return f(Zel32f{});
    }
}

// The brute-force extremum over the members of `shape` at destination
// (x, y), channel c, of a source addressed at its ROI pixel (border, border).
template <class T>
T reference(const Member& m, const Shape& s, const Image<T>& src, int border, int x, int y, int c) {
    std::optional<T> best;
    for (int i = 0; i < s.height(); ++i)
        for (int j = 0; j < s.width(); ++j) {
            if (s.rows[i][j] != '#') continue;
            const T v = src.at(border + x - s.anchor.x + j, border + y - s.anchor.y + i, c);
            if (!best || (m.isMax ? v > *best : v < *best)) best = v;
        }
    return *best;
}

template <class T>
bool sameValue(T a, T b) {
    return a == b;  // -0 == +0
}

// Runs m with `shape` on a source of random values (or of `values` only)
// under every configuration; each result must equal the reference, in-place
// members must leave everything but the ROI's written channels as it was,
// and 32f bits must agree across configurations.
template <class T>
void checkShape(const Member& m, const Shape& shape, ZeliSize roi, std::uint32_t seed,
                const std::vector<T>& values = {}) {
    // Border pixels on every side, as many as the element reaches.
    const int kBorder = std::max(shape.width(), shape.height());
    const ZeliSize outer{roi.width + 2 * kBorder, roi.height + 2 * kBorder};
    Image<T> src(outer, m.channels, -1, 3 * sizeof(T), 5, seed);
    if (!values.empty()) {
        std::mt19937 rng(seed);
        src.fill([&](int, int, int) { return values[rng() % values.size()]; });
    }
    const std::vector<Zel8u> mask = shape.bytes();
    std::vector<T> want;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.written; ++c) want.push_back(reference(m, shape, src, kBorder, x, y, c));
    const ZeliSize maskSize{shape.width(), shape.height()};
    std::optional<std::vector<T>> firstRun;
    forEachConfig([&] {
        std::vector<T> got;
        if (inPlace(m)) {
            Image<T> image = src;
            T* at = &image.at(kBorder, kBorder);
            ASSERT_EQ(m.call(nullptr, 0, at, image.step(), roi, mask.data(), maskSize, shape.anchor), zelStatusOk);
            EXPECT_TRUE(image.outsideUnchanged());  // nothing beyond the whole bordered image
            for (int y = 0; y < outer.height; ++y)
                for (int x = 0; x < outer.width; ++x)
                    for (int c = 0; c < m.channels; ++c) {
                        const bool mine = x >= kBorder && x < kBorder + roi.width && y >= kBorder &&
                                          y < kBorder + roi.height && c < m.written;
                        if (mine) got.push_back(image.at(x, y, c));
                        else ASSERT_EQ(std::memcmp(&image.at(x, y, c), &src.at(x, y, c), sizeof(T)), 0)
                            << "pixel " << x << "," << y << " channel " << c << " outside the ROI changed";
                    }
        } else {
            Image<T> dst(roi, m.channels, m.written, 3 * sizeof(T), 7, seed + 1);
            ASSERT_EQ(m.call(&src.at(kBorder, kBorder), src.step(), dst.roi(), dst.step(), roi, mask.data(), maskSize,
                             shape.anchor),
                      zelStatusOk);
            EXPECT_TRUE(dst.outsideUnchanged());
            for (int y = 0; y < roi.height; ++y)
                for (int x = 0; x < roi.width; ++x)
                    for (int c = 0; c < m.written; ++c) got.push_back(dst.at(x, y, c));
        }
        EXPECT_TRUE(src.unchanged()) << "the source was written";
        for (std::size_t i = 0; i < got.size(); ++i) ASSERT_TRUE(sameValue(got[i], want[i])) << "element " << i;
        if (!firstRun) firstRun = got;
        else ASSERT_EQ(std::memcmp(firstRun->data(), got.data(), got.size() * sizeof(T)), 0)
            << "bits differ from the first configuration";
    });
}

TEST(MinMaxMorphology, EveryMemberEqualsTheBruteForceExtremum) {
    ASSERT_EQ(members().size(), 32u + 90u);
    // 300 elements and more: whole vectors and tails; 2 rows and four
    // threads: rows cut into pieces; 41 rows: bands that cut segments.
    const ZeliSize sizes[] = {{1, 1}, {37, 3}, {301, 2}, {5, 41}};
    std::uint32_t seed = 1;
    for (const Member& m : members())
        for (const Shape& shape : shapesOf(m))
            for (ZeliSize roi : sizes) {
                SCOPED_TRACE(m.name + " mask " + std::to_string(shape.width()) + "x" + std::to_string(shape.height()) +
                             " anchor " + std::to_string(shape.anchor.x) + "," + std::to_string(shape.anchor.y) +
                             " roi " + std::to_string(roi.width) + "x" + std::to_string(roi.height));
                withType(m, [&](auto t) { checkShape<decltype(t)>(m, shape, roi, ++seed); });
            }
}

// Long rows: several chunks of column values per row, also for wide and
// high windows whose scratch rows are short.
TEST(MinMaxMorphology, LongRowsCrossChunks) {
    for (const char* name : {"zeliFilterMax_8u_C1R", "zeliFilterMin_32f_AC4R", "zeliDilate_16u_C3R",
                             "zeliErode3x3_8u_C4IR"})
        for (const Member& m : members())
            if (m.name == name)
                for (const Shape& shape : {rect(3, 3, {1, 1}), rect(9, 31, {4, 30}), rect(15, 15, {7, 7})}) {
                    if (m.kind == Kind::squareInPlace && shape.width() != 3) continue;
                    SCOPED_TRACE(m.name + " mask " + std::to_string(shape.width()) + "x" +
                                 std::to_string(shape.height()));
                    withType(m, [&](auto t) { checkShape<decltype(t)>(m, shape, {4103, 3}, 77); });
                }
}

// 32f: infinities and both zeros compare as floats do, -0 and +0 alike, and
// every configuration gives the same bits.
TEST(MinMaxMorphology, FloatZerosAndInfinities) {
    const float inf = std::numeric_limits<float>::infinity();
    // Mostly zeros of both signs, so that many windows hold both.
    const std::vector<Zel32f> values = {-inf, -0.0f, 0.0f, inf, -1.0f, 1.0f, -0.0f, 0.0f, -0.0f, 0.0f, -0.0f, 0.0f};
    std::uint32_t seed = 5;
    for (const Member& m : members()) {
        if (m.elem != Elem::f32) continue;
        SCOPED_TRACE(m.name);
        for (const Shape& shape : {rect(3, 3, {1, 1}), rect(2, 9, {0, 4}), rect(10, 2, {3, 1})}) {
            if ((m.kind == Kind::square || m.kind == Kind::squareInPlace) && shape.width() != 3) continue;
            checkShape<Zel32f>(m, shape, {33, 21}, ++seed, values);
        }
    }
}

// Unsigned order at the ends of the range: 8u and 16u compare as unsigned.
TEST(MinMaxMorphology, IntegerRangeEnds) {
    std::uint32_t seed = 9;
    for (const Member& m : members()) {
        if (m.kind != Kind::window && m.kind != Kind::square) continue;
        SCOPED_TRACE(m.name);
        const Shape s = rect(3, 3, {1, 1});
        switch (m.elem) {
            case Elem::u8: checkShape<Zel8u>(m, s, {19, 7}, ++seed, {0, 1, 127, 128, 254, 255}); break;
            case Elem::u16: checkShape<Zel16u>(m, s, {19, 7}, ++seed, {0, 1, 32767, 32768, 65535}); break;
            case Elem::s16: checkShape<Zel16s>(m, s, {19, 7}, ++seed, {-32768, -1, 0, 1, 32767}); break;
            case Elem::f32: break;
        }
    }
}

// The rules callers see at a glance.
TEST(MinMaxMorphology, Examples) {
    // In-place 3x3 dilation of one bright pixel gives a 3x3 square, as out
    // of place does.
    std::vector<Zel8u> image(9 * 9, 0), out(7 * 7, 9);
    image[4 * 9 + 4] = 200;
    ASSERT_EQ(zeliDilate3x3_8u_C1R(image.data() + 9 + 1, 9, out.data(), 7, {7, 7}), zelStatusOk);
    ASSERT_EQ(zeliDilate3x3_8u_C1IR(image.data() + 9 + 1, 9, {7, 7}), zelStatusOk);
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 7; ++x) {
            const Zel8u want = std::abs(x - 3) <= 1 && std::abs(y - 3) <= 1 ? 200 : 0;
            EXPECT_EQ(out[y * 7 + x], want) << x << "," << y;
            EXPECT_EQ(image[(y + 1) * 9 + x + 1], want) << x << "," << y;
        }
    // A 1x1 mask holding 7 copies the source; so does a single member at
    // the anchor of a larger mask.
    std::vector<Zel16u> src(12 * 6);
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Zel16u>(i * 1009);
    const Zel8u seven = 7;
    const Zel8u single[9] = {0, 0, 0, 0, 0, 0, 0, 0, 1};
    std::vector<Zel16u> a(10 * 4), b(10 * 4);
    ASSERT_EQ(zeliErode_16u_C1R(src.data() + 12 + 1, 24, a.data(), 20, {10, 4}, &seven, {1, 1}, {0, 0}), zelStatusOk);
    ASSERT_EQ(zeliErode_16u_C1R(src.data() + 12 + 1, 24, b.data(), 20, {10, 4}, single, {3, 3}, {2, 2}), zelStatusOk);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 10; ++x) {
            EXPECT_EQ(a[y * 10 + x], src[(y + 1) * 12 + x + 1]);
            EXPECT_EQ(b[y * 10 + x], src[(y + 1) * 12 + x + 1]);
        }
    // Max with a 2x2 mask and anchor (1, 1): pixels x-1..x, y-1..y.
    const Zel8u grid[9] = {1, 9, 2, 3, 4, 5, 6, 7, 8};
    Zel8u one = 0;
    ASSERT_EQ(zeliFilterMax_8u_C1R(grid + 4, 3, &one, 1, {1, 1}, {2, 2}, {1, 1}), zelStatusOk);
    EXPECT_EQ(one, 9);
    ASSERT_EQ(zeliFilterMin_8u_C1R(grid + 4, 3, &one, 1, {1, 1}, {2, 2}, {0, 0}), zelStatusOk);
    EXPECT_EQ(one, 4);
}

// The mask test: the largest byte of the mask, any length and position.
TEST(MinMaxMorphology, MaskMaximum) {
    for (int n = 1; n <= 70; ++n)
        for (int at = -1; at < n; ++at) {
            std::vector<Zel8u> mask(n, 0);
            if (at >= 0) mask[at] = static_cast<Zel8u>(1 + at % 255);
            ASSERT_EQ(filter::maskMaximum(mask.data(), n), at < 0 ? 0 : 1 + at % 255) << n << " " << at;
        }
}

// Check orders with nothing written: Min/Max pointers, size, steps, mask,
// anchor; morphology pointers, steps, size, mask size, zero mask, anchor,
// step against the row.
TEST(MinMaxMorphology, CheckOrder) {
    for (const Member& m : members()) {
        SCOPED_TRACE(m.name);
        const int px = m.channels * (m.elem == Elem::u8 ? 1 : m.elem == Elem::f32 ? 4 : 2);
        std::vector<std::uint8_t> in(64 * 64 * 16, 1);
        Image<Zel8u> out({16 * 16, 8}, 1);
        const std::uint8_t* s = in.data() + 16 * 1024 + 64;
        void* d = inPlace(m) ? static_cast<void*>(out.roi() + out.step() * 2 + 64) : out.roi();
        const int ds = out.step();
        const int ss = inPlace(m) ? ds : 1024;
        const Zel8u full[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1}, zero[9] = {};
        auto call = [&](const void* src, int srcStep, void* dst, int dstStep, ZeliSize roi, const Zel8u* mask,
                        ZeliSize size, ZeliPoint anchor) {
            return [=, &m] { return m.call(src, srcStep, dst, dstStep, roi, mask, size, anchor); };
        };
        // The step argument of in-place members is dstStep.
        auto step = [&](int v) { return std::make_pair(inPlace(m) ? ss : v, v); };
        std::vector<Rejection> cases = {
            {"null image", zelStatusNullPtr, call(inPlace(m) ? s : nullptr, 0, inPlace(m) ? nullptr : d, 0, {0, 0},
                                                  full, {0, 0}, {5, 5})},
        };
        if (!inPlace(m))
            cases.push_back({"null destination", zelStatusNullPtr, call(s, ss, nullptr, ds, {4, 4}, full, {3, 3}, {1, 1})});
        const ZeliSize ok{4, 4};
        if (m.kind == Kind::window) {
            cases.push_back({"size before step", zelStatusBadSize, call(s, 0, d, 0, {0, 4}, full, {3, 3}, {1, 1})});
            cases.push_back({"zero step", zelStatusBadStep, call(s, 0, d, ds, ok, full, {0, 3}, {1, 1})});
            cases.push_back({"negative dst step", zelStatusBadStep, call(s, ss, d, -ds, ok, full, {0, 3}, {1, 1})});
            cases.push_back({"mask before anchor", zelStatusBadMaskSize, call(s, ss, d, ds, ok, full, {3, 0}, {7, 7})});
            cases.push_back({"anchor x", zelStatusBadAnchor, call(s, ss, d, ds, ok, full, {2, 2}, {2, 0})});
            cases.push_back({"anchor y", zelStatusBadAnchor, call(s, ss, d, ds, ok, full, {2, 2}, {0, -1})});
        } else {
            auto [s0, d0] = step(0);
            cases.push_back({"step before size", zelStatusBadStep, call(s, s0, d, d0, {0, 0}, full, {0, 0}, {5, 5})});
            cases.push_back({"size", zelStatusBadSize, call(s, ss, d, ds, {4, -1}, full, {0, 0}, {5, 5})});
            const int width = takesMask(m) ? 3 : 3;
            // One byte short of (roi.width + mask width - 1) pixels.
            const int shortSrc = (ok.width + width - 1) * px - 1;
            if (!inPlace(m)) {
                cases.push_back({"source step short", zelStatusStepTooSmall, call(s, shortSrc, d, ds, ok, full, {3, 3}, {1, 1})});
                cases.push_back({"destination step short", zelStatusStepTooSmall,
                                 call(s, ss, d, ok.width * px - 1, ok, full, {3, 3}, {1, 1})});
            } else {
                cases.push_back({"step short", zelStatusStepTooSmall, call(s, shortSrc, d, shortSrc, ok, full, {3, 3}, {1, 1})});
            }
            if (takesMask(m)) {
                cases.push_back({"null mask", zelStatusNullPtr, call(s, ss, d, ds, ok, nullptr, {3, 3}, {1, 1})});
                cases.push_back({"mask size before zero mask", zelStatusBadMaskSize,
                                 call(s, ss, d, ds, ok, zero, {3, -3}, {9, 9})});
                cases.push_back({"zero mask before anchor", zelStatusZeroMask, call(s, ss, d, ds, ok, zero, {3, 3}, {9, 9})});
                cases.push_back({"anchor at mask width", zelStatusBadAnchor, call(s, ss, d, ds, ok, full, {3, 3}, {3, 0})});
                cases.push_back({"anchor before step", zelStatusBadAnchor,
                                 call(s, shortSrc, d, inPlace(m) ? shortSrc : ds, ok, full, {3, 3}, {0, 3})});
                cases.push_back({"wide mask needs a longer step", zelStatusStepTooSmall,
                                 call(s, (ok.width + 4) * px - 1, d, inPlace(m) ? (ok.width + 4) * px - 1 : ds, ok,
                                      full, {5, 1}, {0, 0})});
            }
        }
        expectRejected(cases, out);
    }
}

// A failed work-buffer allocation returns zelStatusNoMemory, writes nothing
// and keeps nothing.
TEST(MinMaxMorphology, FailedAllocations) {
    const Zel8u cross[9] = {0, 1, 0, 1, 1, 1, 0, 1, 0};
    for (const Member& m : members()) {
        SCOPED_TRACE(m.name);
        std::vector<std::uint8_t> in(64 * 1024, 3);
        Image<Zel8u> out({512, 12}, 1, -1, 8, 8);  // rows aligned for every element type
        void* d = inPlace(m) ? static_cast<void*>(out.roi() + out.step() * 2 + 64) : out.roi();
        const int ss = inPlace(m) ? out.step() : 2048;
        const long live = liveBlocksForTests();
        for (long n = 1;; ++n) {
            failAllocationForTests(n);
            const long before = allocationCallsForTests();
            const ZelStatus st = m.call(in.data() + 4 * 2048 + 64, ss, d, out.step(), {20, 6}, cross, {3, 3}, {1, 1});
            const bool reached = allocationCallsForTests() - before >= n;
            failAllocationForTests(0);
            if (!reached) {
                EXPECT_EQ(st, zelStatusOk);
                break;
            }
            EXPECT_EQ(st, zelStatusNoMemory) << "allocation " << n;
            EXPECT_TRUE(out.unchanged()) << "written after allocation " << n << " failed";
            EXPECT_EQ(liveBlocksForTests(), live);
        }
    }
}

// The source may end at the last element the element reaches (AC4: the
// last window pixel's colour channels) with an inaccessible page after it.
TEST(MinMaxMorphology, ReadNothingBeyondTheReach) {
    for (const Member& m : members()) {
        if (inPlace(m)) continue;
        const int elem = m.elem == Elem::u8 ? 1 : m.elem == Elem::f32 ? 4 : 2;
        for (const Shape& shape : {rect(3, 3, {1, 1}), rect(12, 9, {5, 2}), Shape{{"#..", ".##"}, {0, 0}}}) {
            if (m.kind == Kind::square && shape.width() != 3) continue;
            if (m.kind == Kind::window && shape.rows[0] == "#..") continue;
            SCOPED_TRACE(m.name + " mask " + std::to_string(shape.width()) + "x" + std::to_string(shape.height()));
            const ZeliSize roi{37, 4};
            const int step = (roi.width + shape.width() - 1) * m.channels * elem;
            const std::size_t bytes = std::size_t(step) * (roi.height + shape.height() - 1) -
                                      std::size_t(m.channels - m.written) * elem;
            Fenced src(bytes);
            ASSERT_TRUE(src.ok());
            std::vector<std::uint8_t> out(std::size_t(roi.width) * roi.height * 16);
            const void* at = src.data() + std::size_t(step) * shape.anchor.y + std::size_t(shape.anchor.x) * m.channels * elem;
            const std::vector<Zel8u> mask = shape.bytes();
            const int st = guardedCall(m.name, [&] {
                return m.call(at, step, out.data(), roi.width * m.channels * elem, roi, mask.data(),
                              {shape.width(), shape.height()}, shape.anchor);
            });
            EXPECT_EQ(st, zelStatusOk);
        }
    }
}

}  // namespace
}  // namespace zel::test
