// Bytes a member must not touch: the alpha channel of AC4 images, which
// another thread may be updating while the call runs, and the memory past
// a row, which may be a page the caller cannot read. Every member, every
// SIMD target, one and several threads.
#include <atomic>
#include <string>
#include <thread>

#include "arith/arith_test.h"
#include "core/image.h"
#include "harness/pages.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

// An alpha byte incremented by another thread while AC4 members run on the
// same image keeps every increment: the members neither store to the alpha
// channel nor write back bytes they read before. Rows end in a partial
// vector on every target, where a kernel is tempted to write a whole vector.
TEST(ArithUntouched, AlphaUpdatedByAnotherThreadKeepsEveryIncrement) {
    const ZeliSize roi{67, 5};
    const int step = roi.width * 4 + 12, rounds = 4000;
    forEachConfig([&] {
        Image<Zel8u> divisor(roi, 4), dividend(roi, 4);
        std::vector<Zel8u> image(std::size_t(step) * roi.height);
        for (std::size_t i = 0; i < image.size(); ++i) image[i] = Zel8u(i * 37);
        const std::vector<Zel8u> before = image;
        const Zel8u value[3] = {3, 1, 2};
        std::atomic<bool> started{false}, done{false};
        std::thread writer([&] {
            while (!started.load()) std::this_thread::yield();
            for (int r = 0; r < rounds; ++r)
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        __atomic_fetch_add(&image[std::size_t(y) * step + 4 * x + 3], Zel8u(1), __ATOMIC_RELAXED);
            done.store(true);
        });
        started.store(true);
        int calls = 0;
        while (!done.load()) {
            zeliDiv_8u_AC4RSfs(divisor.roi(), divisor.step(), dividend.roi(), dividend.step(), image.data(), step,
                               roi, 0);
            zeliAddC_8u_AC4IRSfs(value, image.data(), step, roi, 1);
            ++calls;
        }
        writer.join();
        EXPECT_GT(calls, 0);
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const std::size_t at = std::size_t(y) * step + 4 * x + 3;
                ASSERT_EQ(image[at], Zel8u(before[at] + rounds)) << "alpha of pixel " << x << "," << y;
            }
    });
}

// A copy of an image's ROI placed so that its last row ends right before
// the inaccessible page after `pages`: AC4 rows end at their last colour
// element, so the last pixel's alpha lies on that page; other rows end at
// their last byte.
template <class T>
struct GuardedCopy {
    T* roi;
    int step;
    GuardedCopy(Fenced& pages, const Image<T>& from, int channels, int computed) {
        const ZeliSize s = from.size();
        const std::size_t rowBytes = std::size_t(s.width) * channels * sizeof(T);
        const std::size_t lastRow = rowBytes - (channels - computed) * sizeof(T);
        step = int(rowBytes + 8);
        std::uint8_t* start = pages.data() + pages.size() - (std::size_t(step) * (s.height - 1) + lastRow);
        roi = reinterpret_cast<T*>(start);
        for (int y = 0; y < s.height; ++y)
            std::memcpy(start + std::size_t(step) * y, from.row(y), y == s.height - 1 ? lastRow : rowBytes);
    }
};

// Every member of T with all its operands, the destination too, ending
// right before an inaccessible page, against the same call in ordinary
// memory.
template <class T>
void expectNothingPastTheRow() {
    Fenced pa(1 << 16), pb(1 << 16), pd(1 << 16);
    ASSERT_TRUE(pa.ok() && pb.ok() && pd.ok());
    forEachConfig([&] {
        std::uint32_t seed = 3;
        for (const Member<T>& m : members<T>())
            for (ZeliSize roi : {ZeliSize{1, 1}, ZeliSize{5, 1}, ZeliSize{37, 3}, ZeliSize{67, 2}}) {
                const Run run{roi, 0, 1, int(seed % 3), seed};
                ++seed;
                SCOPED_TRACE(testing::Message() << m.name << " " << roi.width << "x" << roi.height);
                Operands<T> reference(m, run);
                const Operands<T> start = reference;
                const ZelStatus want = reference.run(m, run);
                GuardedCopy<T> a(pa, start.a, m.channels, m.computed), b(pb, start.b, m.channels, m.computed),
                    d(pd, start.d, m.channels, m.computed);
                GuardedCopy<T>& target = m.inPlace ? (m.isConst ? a : b) : d;
                const int mode = m.op == Op::DivRound ? run.mode : 1;
                const std::string what = m.name + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height);
                ASSERT_EQ(guardedCall(what, [&] {
                              return m.call(a.roi, a.step, b.roi, b.step, target.roi, target.step, roi, mode,
                                            run.scale, start.value);
                          }),
                          want);
                const Image<T>& expected = reference.target();
                for (int y = 0; y < roi.height; ++y)
                    for (int x = 0; x < roi.width; ++x)
                        for (int c = 0; c < m.computed; ++c)
                            ASSERT_TRUE(same(byteOffset(target.roi, std::ptrdiff_t{target.step} * y)[x * m.channels + c],
                                             expected.at(x, y, c)))
                                << "at " << x << "," << y << " channel " << c;
            }
    });
}

TEST(ArithUntouched, NothingReadOrWrittenPastTheRow8u) { expectNothingPastTheRow<Zel8u>(); }
TEST(ArithUntouched, NothingReadOrWrittenPastTheRow16u) { expectNothingPastTheRow<Zel16u>(); }
TEST(ArithUntouched, NothingReadOrWrittenPastTheRow16s) { expectNothingPastTheRow<Zel16s>(); }
TEST(ArithUntouched, NothingReadOrWrittenPastTheRowComplex) {
    expectNothingPastTheRow<Zel16sc>();
    expectNothingPastTheRow<Zel32sc>();
    expectNothingPastTheRow<Zel32fc>();
}
TEST(ArithUntouched, NothingReadOrWrittenPastTheRow32f) { expectNothingPastTheRow<Zel32f>(); }

}  // namespace
}  // namespace zel::test
