// Fixed-kernel filters: every member against a direct 2-D evaluation of its
// kernel on sources inside larger guarded buffers, under every SIMD target
// and with one and several threads; the check order and mask codes; the
// rounding edges, the sign conventions and the caller's rounding mode; no
// read beyond the border the kernel reaches.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cfenv>
#include <cmath>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "core/fpcontrol.h"
#include "filter/fixed_filter_members.h"
#include "harness/checkorder.h"
#include "harness/image.h"
#include "harness/pages.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

const std::vector<FilterMember>& members() {
    static const std::vector<FilterMember> all = fixedFilterMembers();
    return all;
}

// Radii a member computes with, and the mask code that selects each.
std::vector<std::pair<int, int>> radiiOf(const FilterMember& m) {
    if (m.masks == Masks::none) return {{m.roberts ? 1 : 1, 0}};
    return {{1, zelMaskCode3x3}, {2, zelMaskCode5x5}};
}
const Kernel2D& kernelOf(const FilterMember& m, int radius) { return radius == 1 ? m.k3 : m.k5; }
Rule ruleOf(const FilterMember& m, int radius) {
    if (radius == 2 && m.rule == Rule::Gauss16) return Rule::Gauss571;
    if (radius == 2 && m.rule == Rule::Mean9) return Rule::Mean25;
    return m.rule;
}

// The kernel value at (x, y, c) of a source addressed at its ROI: the 2-D
// sum over rows dy = -r..r, columns dx = -r..r (Roberts: p - neighbour);
// with Magnitude the sum of the terms' absolute values.
template <class V, bool Magnitude = false, class S>
V kernelValue(const FilterMember& m, const Kernel2D& k, const Image<S>& src, int border, int x, int y, int c) {
    auto p = [&](int dx, int dy) {
        const V v = V(src.at(x + border + dx, y + border + dy, c));
        return Magnitude && v < 0 ? -v : v;
    };
    if (m.roberts) return Magnitude ? p(0, 0) + p(m.roberts, -1) : p(0, 0) - p(m.roberts, -1);
    const int r = static_cast<int>(k.size()) / 2;
    V sum = 0;
    for (int dy = -r; dy <= r; ++dy)
        for (int dx = -r; dx <= r; ++dx) sum += V(Magnitude ? std::abs(k[dy + r][dx + r]) : k[dy + r][dx + r]) * p(dx, dy);
    return sum;
}

// Runs member m with radius `radius` on a random source under every
// configuration and compares each result with the reference; 32f results
// must also carry the same bits in every configuration.
template <class S, class D>
void checkMember(const FilterMember& m, int radius, int mask, ZeliSize roi, std::uint32_t seed) {
    constexpr int kBorder = 2;
    Image<S> src({roi.width + 2 * kBorder, roi.height + 2 * kBorder}, m.channels, -1, sizeof(S), 5, seed);
    if constexpr (std::is_floating_point_v<S>) src.fillRandom(seed, S(-100), S(100));
    Image<D> dst(roi, m.channels, m.written, 3 * sizeof(D), 7, seed + 1);
    const S* at = &src.at(kBorder, kBorder);
    const Kernel2D& k = kernelOf(m, radius);
    const Rule rule = ruleOf(m, radius);
    std::vector<D> want;
    std::vector<double> tolerance;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < m.written; ++c) {
                if constexpr (std::is_floating_point_v<D>) {
                    const double scale = floatScale(rule);
                    want.push_back(static_cast<D>(kernelValue<double>(m, k, src, kBorder, x, y, c) * scale));
                    tolerance.push_back(1e-6 * (1 + kernelValue<double, true>(m, k, src, kBorder, x, y, c) * scale));
                } else {
                    want.push_back(integerResult<D>(rule, kernelValue<std::int64_t>(m, k, src, kBorder, x, y, c)));
                }
            }
    std::optional<std::vector<D>> firstRun;
    forEachConfig([&] {
        ASSERT_EQ(m.call(at, src.step(), dst.roi(), dst.step(), roi, mask), zelStatusOk);
        EXPECT_TRUE(dst.outsideUnchanged());
        std::vector<D> got;
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < m.written; ++c) got.push_back(dst.at(x, y, c));
        for (std::size_t i = 0; i < got.size(); ++i) {
            if constexpr (std::is_floating_point_v<D>) ASSERT_NEAR(got[i], want[i], tolerance[i]) << "element " << i;
            else ASSERT_EQ(got[i], want[i]) << "element " << i;
        }
        if (!firstRun) firstRun = got;
        else ASSERT_TRUE(std::memcmp(firstRun->data(), got.data(), got.size() * sizeof(D)) == 0)
            << "bits differ from the first configuration";
    });
}

template <class F>
void withTypes(const FilterMember& m, F&& f) {
    if (m.src == Elem::u8 && m.dst == Elem::u8) f(Zel8u{}, Zel8u{});
    else if (m.src == Elem::u8) f(Zel8u{}, Zel16s{});
    else if (m.src == Elem::s8) f(Zel8s{}, Zel16s{});
    else if (m.src == Elem::u16) f(Zel16u{}, Zel16u{});
    else if (m.src == Elem::s16) f(Zel16s{}, Zel16s{});
    else f(Zel32f{}, Zel32f{});
}

TEST(FixedFilters, EveryMemberEqualsItsKernel) {
    ASSERT_EQ(members().size(), 153u);
    // 2100 pixels: more than one chunk of a row, and pieces of rows for the
    // threads; 41 rows: bands of rows.
    const ZeliSize sizes[] = {{1, 1}, {37, 3}, {2100, 2}, {5, 41}};
    std::uint32_t seed = 1;
    for (const FilterMember& m : members())
        for (auto [radius, mask] : radiiOf(m))
            for (ZeliSize roi : sizes) {
                SCOPED_TRACE(m.name + " radius " + std::to_string(radius) + " roi " + std::to_string(roi.width) +
                             "x" + std::to_string(roi.height));
                withTypes(m, [&](auto s, auto d) { checkMember<decltype(s), decltype(d)>(m, radius, mask, roi, ++seed); });
            }
}

// The lenient float Sobel members take every code but 33 as 5x5.
TEST(FixedFilters, MaskCodes) {
    for (const FilterMember& m : members()) {
        if (m.masks == Masks::none) continue;
        SCOPED_TRACE(m.name);
        std::vector<std::uint8_t> in(16 * 256);  // 9 rows of 9 pixels of up to 16 bytes
        std::mt19937 rng(3);
        for (auto& b : in) b = static_cast<std::uint8_t>(rng() % 32);
        std::vector<std::uint8_t> out5(5 * 128, 0xAB), out(5 * 128);
        const void* at = in.data() + 2 * 256 + 64;
        ASSERT_EQ(m.call(at, 256, out5.data(), 128, {5, 5}, zelMaskCode5x5), zelStatusOk);
        for (int code : {35, 0, -1, 13, 15, 31, 51, 53}) {
            std::fill(out.begin(), out.end(), 0xAB);
            const int st = m.call(at, 256, out.data(), 128, {5, 5}, code);
            if (m.masks == Masks::strict) {
                EXPECT_EQ(st, zelStatusBadMaskSize) << code;
                EXPECT_TRUE(std::all_of(out.begin(), out.end(), [](std::uint8_t v) { return v == 0xAB; }));
            } else {
                EXPECT_EQ(st, zelStatusOk) << code;
                EXPECT_EQ(out, out5) << code;
            }
        }
    }
}

// Pointers, then size, then steps, then the mask code; nothing written.
TEST(FixedFilters, CheckOrder) {
    for (const FilterMember& m : members()) {
        SCOPED_TRACE(m.name);
        std::vector<std::uint8_t> in(4096, 1);
        Image<Zel8u> out({64, 4}, 1);
        const void* s = in.data() + 1024;
        void* d = out.roi();
        const int bad = m.masks == Masks::strict ? 35 : zelMaskCode3x3;
        const int badMask = m.masks == Masks::strict ? zelStatusBadMaskSize : zelStatusOk;
        std::vector<Rejection> cases = {
            {"null source", zelStatusNullPtr, [&] { return m.call(nullptr, 64, d, 64, {0, 3}, bad); }},
            {"null destination", zelStatusNullPtr, [&] { return m.call(s, 0, nullptr, 64, {3, 3}, bad); }},
            {"zero width", zelStatusBadSize, [&] { return m.call(s, 0, d, 64, {0, 3}, bad); }},
            {"negative height", zelStatusBadSize, [&] { return m.call(s, -64, d, 64, {3, -1}, bad); }},
            {"zero source step", zelStatusBadStep, [&] { return m.call(s, 0, d, 64, {3, 3}, bad); }},
            {"negative destination step", zelStatusBadStep, [&] { return m.call(s, 64, d, -64, {3, 3}, bad); }},
        };
        if (badMask != zelStatusOk)
            cases.push_back({"mask 35", badMask, [&] { return m.call(s, 64, d, 64, {3, 3}, bad); }});
        expectRejected(cases, out);
    }
}

const FilterMember& member(const std::string& name) {
    for (const FilterMember& m : members())
        if (m.name == name) return m;
    ADD_FAILURE() << name << " missing";
    return members().front();
}

// Runs an 8u or 16s member on a 3x3 (or 5x5) source given row by row and
// returns the single result.
template <class S, class D>
D single(const std::string& name, const std::vector<S>& pixels, int mask = zelMaskCode3x3) {
    const int side = pixels.size() == 9 ? 3 : 5;
    D out{};
    EXPECT_EQ(member(name).call(pixels.data() + (side / 2) * side + side / 2, side * sizeof(S), &out, sizeof(D),
                                {1, 1}, mask),
              zelStatusOk);
    return out;
}

TEST(FixedFilters, RoundingEdges) {
    // Gauss 3x3: weighted sums 24 (1.5) and 40 (2.5) both give 2.
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterGauss_8u_C1R", {0, 4, 0, 0, 4, 0, 0, 0, 0})), 2);
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterGauss_8u_C1R", {0, 0, 0, 0, 10, 0, 0, 0, 0})), 2);
    // Sharpen: T = 17 p - S9 = 20 (2.5) gives 2, T = 28 (3.5) gives 4; 16s
    // rounds negative ties the same way; 8u clamps a negative T to 0.
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterSharpen_8u_C1R", {3, 3, 3, 3, 2, 0, 0, 0, 0})), 2);
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterSharpen_8u_C1R", {1, 1, 1, 1, 2, 0, 0, 0, 0})), 4);
    EXPECT_EQ((single<Zel16s, Zel16s>("zeliFilterSharpen_16s_C1R", {-3, -3, -3, -3, -2, 0, 0, 0, 0})), -2);
    EXPECT_EQ((single<Zel16s, Zel16s>("zeliFilterSharpen_16s_C1R", {-1, -1, -1, -1, -2, 0, 0, 0, 0})), -4);
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterSharpen_8u_C1R", {9, 9, 9, 9, 0, 9, 9, 9, 9})), 0);
    // Lowpass: 13 / 9 = 1.44 gives 1, 14 / 9 = 1.56 gives 2.
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterLowpass_8u_C1R", {13, 0, 0, 0, 0, 0, 0, 0, 0})), 1);
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterLowpass_8u_C1R", {14, 0, 0, 0, 0, 0, 0, 0, 0})), 2);
    EXPECT_EQ((single<Zel16s, Zel16s>("zeliFilterLowpass_16s_C1R", {-14, 0, 0, 0, 0, 0, 0, 0, 0})), -2);
}

// Pixels of at most `most` each (at least `-most` for a negative sum) that
// add up to `sum`.
template <class T>
std::vector<T> pixelsSumming(long sum, int count, int most) {
    std::vector<T> px(count, 0);
    const int sign = sum < 0 ? -1 : 1;
    long left = sum * sign;
    for (int i = 0; i < count && left > 0; ++i, left -= most) px[i] = static_cast<T>(sign * std::min<long>(left, most));
    return px;
}

// The integer dividers over every sum they meet (8u Lowpass), and in steps
// over the 16s range of Lowpass and the top of the 16u range of Gauss 5x5.
TEST(FixedFilters, DividersAreExactOverTheirRange) {
    for (long s = 0; s <= 9 * 255; ++s)
        ASSERT_EQ((single<Zel8u, Zel8u>("zeliFilterLowpass_8u_C1R", pixelsSumming<Zel8u>(s, 9, 255))),
                  integerResult<Zel8u>(Rule::Mean9, s)) << s;
    for (long s = 0; s <= 25 * 255; ++s)
        ASSERT_EQ((single<Zel8u, Zel8u>("zeliFilterLowpass_8u_C1R", pixelsSumming<Zel8u>(s, 25, 255), zelMaskCode5x5)),
                  integerResult<Zel8u>(Rule::Mean25, s)) << s;
    for (long s = -9 * 32767; s <= 9 * 32767; s += 5)
        ASSERT_EQ((single<Zel16s, Zel16s>("zeliFilterLowpass_16s_C1R", pixelsSumming<Zel16s>(s, 9, 32767))),
                  integerResult<Zel16s>(Rule::Mean9, s)) << s;
    std::vector<Zel16u> image(25, 65535);
    for (long v = 0; v <= 65535; v += 3) {  // sums (571 - 127) * 65535 + 127 v
        image[12] = static_cast<Zel16u>(v);
        ASSERT_EQ((single<Zel16u, Zel16u>("zeliFilterGauss_16u_C1R", image, zelMaskCode5x5)),
                  integerResult<Zel16u>(Rule::Gauss571, 444L * 65535 + 127 * v)) << v;
    }
}

// A caller's rounding mode changes no result and is in place afterwards.
TEST(FixedFilters, CallersRoundingModeNeitherChangesResultsNorIsLost) {
    const char* names[] = {"zeliFilterGauss_8u_C1R", "zeliFilterGauss_16s_C3R", "zeliFilterGauss_16u_C1R",
                           "zeliFilterLowpass_16u_C1R", "zeliFilterGauss_32f_C1R"};
    for (const char* name : names) {
        const FilterMember& m = member(name);
        std::vector<std::uint8_t> in(64 * 40 * 4);
        std::mt19937 rng(5);
        for (auto& b : in) b = static_cast<std::uint8_t>(rng() % 64);
        if (m.src == Elem::f32)
            for (std::size_t i = 0; i < in.size() / 4; ++i) reinterpret_cast<float*>(in.data())[i] = rng() % 1000 / 7.0f;
        auto run = [&] {
            std::vector<std::uint8_t> out(32 * 32 * 4 * 4);
            EXPECT_EQ(m.call(in.data() + 2 * 256 + 32, 256, out.data(), 512, {30, 30}, zelMaskCode5x5), zelStatusOk);
            return out;
        };
        const auto nearest = run();
        for (int mode : {FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
            std::fesetround(mode);
            EXPECT_EQ(run(), nearest) << name << " under mode " << mode;
            EXPECT_EQ(std::fegetround(), mode) << name;
            std::fesetround(FE_TONEAREST);
        }
    }
}

// Horizontal operators: lower rows minus upper ones; vertical: left minus
// right. Negative 8u responses give 0; Roberts is never an absolute value.
TEST(FixedFilters, SignConventions) {
    // A vertical edge, 0 on the left, 255 on the right of the centre.
    const std::vector<Zel8u> rising = {0, 0, 255, 0, 0, 255, 0, 0, 255};
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterSobelVert_8u_C1R", rising)), 0);
    EXPECT_EQ((single<Zel8u, Zel16s>("zeliFilterSobelVert_8u16s_C1R", rising)), -1020);
    const std::vector<Zel8u> falling = {255, 0, 0, 255, 0, 0, 255, 0, 0};
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterSobelVert_8u_C1R", falling)), 255);
    // Dark above, bright below: a positive horizontal response.
    const std::vector<Zel8u> down = {0, 0, 0, 0, 0, 0, 10, 10, 10};
    EXPECT_EQ((single<Zel8u, Zel16s>("zeliFilterSobelHoriz_8u16s_C1R", down)), 40);
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterPrewittHoriz_8u_C1R", down)), 30);
    // Brighter to the upper left: Down gives 0, not the absolute difference.
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterRobertsDown_8u_C1R", {90, 0, 0, 0, 10, 0, 0, 0, 0})), 0);
    EXPECT_EQ((single<Zel8u, Zel8u>("zeliFilterRobertsUp_8u_C1R", {0, 0, 3, 0, 10, 0, 0, 0, 0})), 7);
}

// Roberts on 16s and 32f moves one row up by the step rounded down to the
// element size; the rows themselves advance by the full step.
TEST(FixedFilters, RobertsRoundsTheStepUpwardsOnly) {
    const ZeliSize roi{13, 4};
    const int step = 13 * 2 + 2 * 2 + 3;  // odd: rows start on odd addresses
    std::vector<std::uint8_t> bytes(step * 6 + 64);
    std::mt19937 rng(9);
    for (auto& b : bytes) b = static_cast<std::uint8_t>(rng());
    const std::uint8_t* first = bytes.data() + step + 2;  // pixel (0, 0)
    auto at = [&](const std::uint8_t* p) {
        Zel16s v;
        std::memcpy(&v, p, 2);
        return v;
    };
    std::vector<Zel16s> out(roi.width * roi.height);
    ASSERT_EQ(zeliFilterRobertsDown_16s_C1R(reinterpret_cast<const Zel16s*>(first), step, out.data(),
                                            roi.width * 2, roi),
              zelStatusOk);
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            const std::uint8_t* pixel = first + std::ptrdiff_t{y} * step + 2 * x;
            const int want = at(pixel) - at(pixel - (step - 1) - 2);
            ASSERT_EQ(out[y * roi.width + x], saturate<Zel16s>(want)) << x << "," << y;
        }
}

// The source may end at the last byte the kernel reaches (the last border
// pixel's colour channels for AC4) and be followed by an inaccessible page,
// or begin at the first byte it reaches right after one.
TEST(FixedFilters, ReadNothingBeyondTheBorder) {
    const int sizeOf[] = {1, 1, 2, 2, 4};  // by Elem
    for (const FilterMember& m : members())
        for (auto [radius, mask] : radiiOf(m)) {
            SCOPED_TRACE(m.name + " radius " + std::to_string(radius));
            const int elem = sizeOf[static_cast<int>(m.src)];
            const ZeliSize roi{19, 3};
            const int right = m.roberts ? 0 : radius;  // Roberts reads nothing below or right of the ROI
            const int below = m.roberts ? 0 : radius;
            const int step = (roi.width + 2 * radius) * m.channels * elem;
            const int rows = roi.height + radius + below;
            const std::size_t bytes = std::size_t(step) * rows - std::size_t(radius - right) * m.channels * elem -
                                      (m.channels - m.written) * elem;
            Fenced src(bytes);
            ASSERT_TRUE(src.ok());
            std::vector<std::uint8_t> out(std::size_t(roi.width) * roi.height * 4 * 4);
            const void* at = src.data() + std::size_t(step) * radius + std::size_t(radius) * m.channels * elem;
            const int st = guardedCall(m.name, [&] {
                return m.call(at, step, out.data(), roi.width * m.channels * 4, roi, mask);
            });
            EXPECT_EQ(st, zelStatusOk);

            // Roberts Up reads nothing left of the ROI, Down one pixel.
            const int left = m.roberts == 1 ? 0 : radius;
            Pages pages(2 + roundUpToPages(bytes) / pageBytes());
            ASSERT_TRUE(pages.ok());
            pages.protect(0, 1, PROT_NONE);
            const std::uint8_t* first = pages.page(1);
            const void* after = first + std::size_t(step) * radius + std::size_t(left) * m.channels * elem;
            const int st2 = guardedCall(m.name + " after a fence", [&] {
                return m.call(after, step, out.data(), roi.width * m.channels * 4, roi, mask);
            });
            EXPECT_EQ(st2, zelStatusOk);
        }
}

}  // namespace
}  // namespace zel::test
