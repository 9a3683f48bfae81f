// Rows of more than 2^31 elements: one ROI row that long, and contiguous
// rows run as one. Every element is computed (not skipped, not wrapped to
// an earlier one), on every SIMD target, with one thread (one kernel call
// over the whole row) and several (pieces of it). Sources are periodic and
// cost little memory: one short file mapped again and again; each test
// keeps below 3 GiB of memory.
#include <sys/resource.h>

#include <fstream>
#include <functional>
#include <string>

#include "arith/arith_test.h"
#include "harness/pages.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

Zel8u contentA(std::size_t i) { return Zel8u((i * 7) % 127 + 1); }  // 1..127, period 251
Zel8u contentB(std::size_t i) { return Zel8u((i * 5) % 128); }      // 0..127, period 241

// One row of 2^29 + 1 four-channel pixels: 2^31 + 4 elements.
TEST(LargeImage, AddOfOneRowOfMoreThan2To31Elements) {
    const ZeliSize roi{(1 << 29) + 1, 1};
    const std::size_t n = std::size_t(roi.width) * 4;
    Periodic a(n, contentA, 251), b(n, contentB, 241);
    ZeroBytes d(n);
    ASSERT_TRUE(a.ok() && b.ok() && d.ok());
    std::vector<Zel8u> block(251 * 241);
    for (std::size_t i = 0; i < block.size(); ++i) block[i] = Zel8u(contentA(i % 251) + contentB(i % 241));
    forEachConfig([&] {
        ASSERT_TRUE(d.clear());
        ASSERT_EQ(zeliAdd_8u_C4RSfs(a.data(), 0, b.data(), 0, d.data(), 0, roi, 0), zelStatusOk);
        ASSERT_TRUE(repeats(d.data(), n, block));
    });
}

// Contiguous rows whose elements add up to 2^31 + 2^16 run as one row; the
// only zero divisor is the very last element, whose warning must come back.
TEST(LargeImage, DivisionOfContiguousRowsOfMoreThan2To31Elements) {
    const ZeliSize roi{1 << 16, (1 << 15) + 1};
    const std::size_t n = std::size_t(roi.width) * roi.height;
    Periodic divisor(n, contentA, 251, Periodic::LastCopy::privateWritable), dividend(n, contentB, 241);
    ZeroBytes d(n);
    ASSERT_TRUE(divisor.ok() && dividend.ok() && d.ok());
    Zel8u* lastDivisor = divisor.writableAt(n - 1);
    ASSERT_NE(lastDivisor, nullptr);
    *lastDivisor = 0;
    std::vector<Zel8u> block(251 * 241);
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = quotient<Zel8u>(contentA(i % 251), contentB(i % 241), -2, 1);
    const Zel8u last = quotient<Zel8u>(0, contentB((n - 1) % 241), -2, 1);
    forEachConfig([&] {
        ASSERT_TRUE(d.clear());
        ASSERT_EQ(zeliDiv_8u_C1RSfs(divisor.data(), roi.width, dividend.data(), roi.width, d.data(), roi.width, roi,
                                    -2),
                  zelStatusWarnDivByZero);
        ASSERT_TRUE(repeats(d.data(), n - 1, block));
        ASSERT_EQ(d.data()[n - 1], last);
    });
}

// Bytes of address space the process has mapped.
std::size_t mappedBytes() {
    std::ifstream status("/proc/self/status");
    std::string key;
    std::size_t kib = 0;
    while (status >> key)
        if (key == "VmSize:" && status >> kib) break;
    return kib * 1024;
}

// Caps the address space for the lifetime of the scope.
class AddressSpaceCap {
public:
    explicit AddressSpaceCap(std::size_t bytes) {
        getrlimit(RLIMIT_AS, &saved_);
        rlimit cap = saved_;
        cap.rlim_cur = bytes;
        ok_ = setrlimit(RLIMIT_AS, &cap) == 0;
    }
    ~AddressSpaceCap() { setrlimit(RLIMIT_AS, &saved_); }
    bool ok() const { return ok_; }

private:
    rlimit saved_{};
    bool ok_ = false;
};

// DivC on one AC4 row of 2^31 + 4 elements, with no more than 512 MiB of
// address space left: a divisor row as long as the ROI could not be
// allocated. Alpha keeps its bytes.
TEST(LargeImage, ConstantDivisionOfALongRowNeedsNoMemoryOfItsLength) {
    const ZeliSize roi{(1 << 29) + 1, 1};
    const std::size_t n = std::size_t(roi.width) * 4;
    Periodic src(n, contentB, 251);
    ZeroBytes d(n);
    ASSERT_TRUE(src.ok() && d.ok());
    const Zel8u value[3] = {3, 7, 1};
    std::vector<Zel8u> block(251 * 4);
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = i % 4 == 3 ? 0 : quotient<Zel8u>(value[i % 4], contentB(i % 251), 1, 1);
    forEachConfig([&] {
        ASSERT_TRUE(d.clear());
        {
            AddressSpaceCap cap(mappedBytes() + (std::size_t{512} << 20));
            ASSERT_TRUE(cap.ok());
            // One row uses no step; DivC only wants it positive.
            ASSERT_EQ(zeliDivC_8u_AC4RSfs(src.data(), 1, value, d.data(), 1, roi, 1), zelStatusOk);
        }
        ASSERT_TRUE(repeats(d.data(), n, block));
    });
}

}  // namespace
}  // namespace zel::test
