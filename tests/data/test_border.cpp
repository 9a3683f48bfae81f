// Border construction: every member against the coordinate rules (constant,
// clamped, periodic) over a table of placements, in place against out of
// place, AC4 alpha next to an inaccessible page, and the check order.
// Images sit in guarded buffers at unaligned offsets; AC4 alpha must keep
// its random bytes.
#include <algorithm>
#include <string>
#include <vector>

#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/pages.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace {

using namespace zel::test;

enum class Kind { constant, replicate, wrap };

template <class T>
using OutOfPlace = ZelStatus (*)(const T*, int, ZeliSize, T*, int, ZeliSize, int, int, const T*);

// One calling shape for every out-of-place member: the value is dropped or
// passed as a scalar where the member takes it so.
template <class T, ZelStatus (*F)(const T*, int, ZeliSize, T*, int, ZeliSize, int, int)>
ZelStatus withoutValue(const T* s, int ss, ZeliSize sr, T* d, int ds, ZeliSize dr, int top, int left, const T*) {
    return F(s, ss, sr, d, ds, dr, top, left);
}
template <class T, ZelStatus (*F)(const T*, int, ZeliSize, T*, int, ZeliSize, int, int, T)>
ZelStatus scalarValue(const T* s, int ss, ZeliSize sr, T* d, int ds, ZeliSize dr, int top, int left, const T* v) {
    return F(s, ss, sr, d, ds, dr, top, left, v[0]);
}

template <class T>
struct Member {
    std::string name;
    int channels, written;
    Kind kind;
    OutOfPlace<T> out;
    ZelStatus (*inPlace)(T*, int, ZeliSize, ZeliSize, int, int);  // none for the constant fill
};

#define REPLICATE(T, t, L, C, W) \
    {"Replicate " #t " " #L, C, W, Kind::replicate, withoutValue<T, zeliCopyReplicateBorder_##t##_##L##R>, zeliCopyReplicateBorder_##t##_##L##IR}
#define CONSTANT(T, t, L, C, W) {"Const " #t " " #L, C, W, Kind::constant, zeliCopyConstBorder_##t##_##L##R, nullptr}
#define MEMBERS(T, t)                                                                                      \
    std::vector<Member<T>> {                                                                               \
        {"Const " #t " C1", 1, 1, Kind::constant, scalarValue<T, zeliCopyConstBorder_##t##_C1R>, nullptr}, \
            CONSTANT(T, t, C3, 3, 3), CONSTANT(T, t, C4, 4, 4), CONSTANT(T, t, AC4, 4, 3),                 \
            REPLICATE(T, t, C1, 1, 1), REPLICATE(T, t, C3, 3, 3), REPLICATE(T, t, C4, 4, 4),               \
            REPLICATE(T, t, AC4, 4, 3)                                                                     \
    }

// Source size, destination size, top, left.
struct Placement { ZeliSize src, dst; int top, left; };
const Placement kPlacements[] = {
    {{7, 5}, {7, 5}, 0, 0},       // a plain copy
    {{1, 1}, {6, 4}, 2, 1},       // one pixel everywhere
    {{9, 4}, {11, 4}, 0, 2},      // left border only, no right border
    {{3, 2}, {40, 11}, 4, 17},    // borders much wider and taller than the source
    {{63, 17}, {100, 21}, 1, 36}, // long vector runs on both sides
    {{5, 3}, {5, 12}, 9, 0},      // top border three times the source
};

// The source coordinate a destination coordinate shows (n source pixels,
// the source starting at `at`); -1 for the constant border.
int sourceOf(Kind kind, int x, int at, int n) {
    const int r = x - at;
    if (kind == Kind::replicate) return std::clamp(r, 0, n - 1);
    if (kind == Kind::wrap) return (r % n + n) % n;
    return r >= 0 && r < n ? r : -1;
}

template <class T>
::testing::AssertionResult matchesRule(const Member<T>& m, const Placement& p, const Image<T>& src,
                                       const Image<T>& dst, const T* value) {
    for (int y = 0; y < p.dst.height; ++y)
        for (int x = 0; x < p.dst.width; ++x) {
            const int sx = sourceOf(m.kind, x, p.left, p.src.width), sy = sourceOf(m.kind, y, p.top, p.src.height);
            for (int c = 0; c < m.written; ++c) {
                const T want = sx < 0 || sy < 0 ? value[c] : src.at(sx, sy, c);
                if (dst.at(x, y, c) != want)
                    return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") channel " << c;
            }
        }
    return dst.outsideUnchanged();
}

template <class T>
void checkMembers(const std::vector<Member<T>>& members) {
    const T value[4] = {T(101), T(17), T(60), T(33)};
    forEachConfig([&] {
        for (const Member<T>& m : members)
            for (const Placement& p : kPlacements) {
                SCOPED_TRACE(m.name + " " + std::to_string(p.src.width) + "x" + std::to_string(p.src.height) +
                             " in " + std::to_string(p.dst.width) + "x" + std::to_string(p.dst.height) + " at " +
                             std::to_string(p.left) + "," + std::to_string(p.top));
                Image<T> src(p.src, m.channels, 0, 3 * sizeof(T), 7, 3), dst(p.dst, m.channels, m.written);
                ASSERT_EQ(m.out(src.roi(), src.step(), p.src, dst.roi(), dst.step(), p.dst, p.top, p.left, value),
                          zelStatusOk);
                ASSERT_TRUE(matchesRule(m, p, src, dst, value));
                ASSERT_TRUE(src.unchanged());
                if (!m.inPlace) continue;
                // In place: the source already lies inside the destination.
                Image<T> whole(p.dst, m.channels, m.written, 2 * sizeof(T), 9, 5);
                whole.fill([&](int x, int y, int c) {
                    const bool inside = x >= p.left && x - p.left < p.src.width && y >= p.top && y - p.top < p.src.height;
                    return inside ? src.at(x - p.left, y - p.top, c) : whole.at(x, y, c);
                });
                ASSERT_EQ(m.inPlace(&whole.at(p.left, p.top), whole.step(), p.src, p.dst, p.top, p.left), zelStatusOk);
                ASSERT_TRUE(matchesRule(m, p, src, whole, value));
            }
    });
}

#define CHECK_BORDER(T, t) checkMembers<T>(MEMBERS(T, t));

TEST(Border, EveryFillFollowsItsCoordinateRuleInAndOutOfPlace) {
    CHECK_BORDER(Zel8u, 8u) CHECK_BORDER(Zel16u, 16u) CHECK_BORDER(Zel16s, 16s)
    auto members32 = MEMBERS(Zel32s, 32s);
    members32.push_back({"Wrap 32s C1", 1, 1, Kind::wrap, withoutValue<Zel32s, zeliCopyWrapBorder_32s_C1R>,
                         zeliCopyWrapBorder_32s_C1IR});
    checkMembers<Zel32s>(members32);
}

// AC4: the alpha of the last source and destination pixel lies on an
// inaccessible page, so reading or storing it faults.
template <class T>
void checkFencedAlpha(const std::vector<Member<T>>& members) {
    const T value[4] = {T(1), T(2), T(3), T(4)};
    const Placement p{{37, 3}, {45, 7}, 2, 5};
    const int ss = (p.src.width * 4 + 3) * sizeof(T), ds = (p.dst.width * 4 + 5) * sizeof(T);
    auto owned = [](ZeliSize s, int step) { return std::size_t(s.height - 1) * step + (s.width * 4 - 1) * sizeof(T); };
    forEachConfig([&] {
        for (const Member<T>& m : members) {
            if (m.written == m.channels) continue;
            SCOPED_TRACE(m.name);
            Fenced src(owned(p.src, ss)), dst(owned(p.dst, ds));
            ASSERT_TRUE(src.ok() && dst.ok());
            T* d = reinterpret_cast<T*>(dst.data());
            EXPECT_EQ(m.out(reinterpret_cast<const T*>(src.data()), ss, p.src, d, ds, p.dst, p.top, p.left, value), 0);
            if (m.inPlace) {
                EXPECT_EQ(m.inPlace(d + (p.top * ds) / sizeof(T) + p.left * 4, ds, p.src, p.dst, p.top, p.left), 0);
            }
        }
    });
}

TEST(Border, Ac4AlphaIsNeitherReadNorWritten) {
    checkFencedAlpha<Zel8u>(MEMBERS(Zel8u, 8u));
    checkFencedAlpha<Zel16s>(MEMBERS(Zel16s, 16s));
    checkFencedAlpha<Zel32s>(MEMBERS(Zel32s, 32s));
}

// Pointers, then steps, then the sizes and the placement, then the value
// array; nothing is written on any failure.
TEST(Border, ChecksComeInOrderAndWriteNothing) {
    const ZeliSize s{4, 3}, d{8, 6};
    Image<Zel16s> src(s, 4), dst(d, 4);
    const Zel16s v[4] = {1, 2, 3, 4};
    Zel16s* at = &dst.at(2, 1);
    const auto constant = zeliCopyConstBorder_16s_AC4R;
    const int ss = src.step(), ds = dst.step();
    expectRejected(
        {
            {"null source before a bad step", -8, [&] { return constant(nullptr, 0, s, dst.roi(), ds, d, 1, 2, v); }},
            {"step before size", -14, [&] { return constant(src.roi(), ss, {0, 3}, dst.roi(), 0, d, 1, 2, v); }},
            {"size before the value array", -6, [&] { return constant(src.roi(), ss, s, dst.roi(), ds, d, -1, 2, nullptr); }},
            {"left -1, sizes fitting", -6, [&] { return constant(src.roi(), ss, s, dst.roi(), ds, d, 1, -1, v); }},
            {"no room for left", -6, [&] { return constant(src.roi(), ss, s, dst.roi(), ds, d, 1, 5, v); }},
            {"no room for top", -6, [&] { return constant(src.roi(), ss, s, dst.roi(), ds, d, 4, 2, v); }},
            {"null value array", -8, [&] { return constant(src.roi(), ss, s, dst.roi(), ds, d, 1, 2, nullptr); }},
            {"in place: step before size", -14, [&] { return zeliCopyReplicateBorder_16s_AC4IR(at, 0, s, d, 9, 2); }},
            {"in place: top -1", -6, [&] { return zeliCopyReplicateBorder_16s_AC4IR(at, ds, s, d, -1, 2); }},
            {"wrap: no room for the source", -6, [&] {
                 return zeliCopyWrapBorder_32s_C1R(reinterpret_cast<const Zel32s*>(src.roi()), ss, {5, 3},
                                                   reinterpret_cast<Zel32s*>(dst.roi()), ds, {8, 6}, 0, 4);
             }},
        },
        src, dst);
    // Exactly filling the destination on the right and at the bottom is valid.
    EXPECT_EQ(constant(src.roi(), ss, s, dst.roi(), ds, d, 3, 4, v), zelStatusOk);
}

}  // namespace
