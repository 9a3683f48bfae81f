// Rows of more than 2^31 elements: one ROI row that long, and contiguous
// rows run as one. Every element is computed (not skipped, not wrapped to
// an earlier one), on every SIMD target, with one thread (one kernel call
// over the whole row) and several (pieces of it). Sources are periodic and
// cost little memory: one short file mapped again and again; each test
// keeps below 3 GiB of memory.
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <functional>
#include <string>

#include "arith/arith_test.h"
#include "harness/sweep.h"

namespace zel::test {
namespace {

constexpr std::size_t kPage = 4096;

// A long read-only run of memory whose bytes repeat `period` values
// (content(i) for i < period): a memfd holding `kPage` periods is mapped at
// consecutive addresses of one reserved range. The last copy is a private
// writable mapping, so a test can change the run's final bytes alone.
class RepeatedBytes {
public:
    RepeatedBytes(std::size_t bytes, std::size_t period, const std::function<Zel8u(std::size_t)>& content)
        : file_(kPage * period), mapped_((bytes + file_ - 1) / file_ * file_) {
        fd_ = memfd_create("zeli-large", 0);
        if (fd_ < 0 || ftruncate(fd_, off_t(file_)) != 0) return;
        void* w = mmap(nullptr, file_, PROT_READ | PROT_WRITE, MAP_SHARED, fd_, 0);
        if (w == MAP_FAILED) return;
        for (std::size_t i = 0; i < file_; ++i) static_cast<Zel8u*>(w)[i] = content(i % period);
        munmap(w, file_);
        void* range = mmap(nullptr, mapped_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (range == MAP_FAILED) return;
        base_ = static_cast<Zel8u*>(range);
        for (std::size_t at = 0; at < mapped_; at += file_) {
            const bool last = at + file_ == mapped_;
            const int prot = last ? PROT_READ | PROT_WRITE : PROT_READ;
            const int flags = (last ? MAP_PRIVATE : MAP_SHARED) | MAP_FIXED | MAP_POPULATE;
            if (mmap(base_ + at, file_, prot, flags, fd_, 0) == MAP_FAILED) {
                munmap(base_, mapped_);
                base_ = nullptr;
                return;
            }
        }
    }
    ~RepeatedBytes() {
        if (base_ != nullptr) munmap(base_, mapped_);
        if (fd_ >= 0) close(fd_);
    }
    RepeatedBytes(const RepeatedBytes&) = delete;
    RepeatedBytes& operator=(const RepeatedBytes&) = delete;
    bool ok() const { return base_ != nullptr; }
    Zel8u* data() const { return base_; }

private:
    std::size_t file_, mapped_;
    int fd_ = -1;
    Zel8u* base_ = nullptr;
};

// Zero-filled memory for a result, given back between runs.
class Zeroed {
public:
    explicit Zeroed(std::size_t bytes) : bytes_(bytes) {
        void* p = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        base_ = p == MAP_FAILED ? nullptr : static_cast<Zel8u*>(p);
        if (base_ != nullptr) madvise(base_, bytes_, MADV_HUGEPAGE);  // fewer faults, where the system allows
    }
    ~Zeroed() {
        if (base_ != nullptr) munmap(base_, bytes_);
    }
    Zeroed(const Zeroed&) = delete;
    Zeroed& operator=(const Zeroed&) = delete;
    bool ok() const { return base_ != nullptr; }
    Zel8u* data() const { return base_; }
    void clear() { madvise(base_, bytes_, MADV_DONTNEED); }  // reads as zeros again

private:
    std::size_t bytes_;
    Zel8u* base_;
};

// The first `count` bytes of `actual` against `block` repeated (count need
// not be a multiple of its length); reports the first difference.
testing::AssertionResult repeats(const Zel8u* actual, std::size_t count, const std::vector<Zel8u>& block) {
    for (std::size_t at = 0; at < count; at += block.size()) {
        const std::size_t n = std::min(block.size(), count - at);
        if (std::memcmp(actual + at, block.data(), n) != 0)
            for (std::size_t i = 0; i < n; ++i)
                if (actual[at + i] != block[i])
                    return testing::AssertionFailure() << "element " << at + i << " is " << int(actual[at + i])
                                                       << " instead of " << int(block[i]);
    }
    return testing::AssertionSuccess();
}

Zel8u contentA(std::size_t i) { return Zel8u((i * 7) % 127 + 1); }  // 1..127, period 251
Zel8u contentB(std::size_t i) { return Zel8u((i * 5) % 128); }      // 0..127, period 241

// One row of 2^29 + 1 four-channel pixels: 2^31 + 4 elements.
TEST(LargeImage, AddOfOneRowOfMoreThan2To31Elements) {
    const ZeliSize roi{(1 << 29) + 1, 1};
    const std::size_t n = std::size_t(roi.width) * 4;
    RepeatedBytes a(n, 251, contentA), b(n, 241, contentB);
    Zeroed d(n);
    ASSERT_TRUE(a.ok() && b.ok() && d.ok());
    std::vector<Zel8u> block(251 * 241);
    for (std::size_t i = 0; i < block.size(); ++i) block[i] = Zel8u(contentA(i % 251) + contentB(i % 241));
    forEachConfig([&] {
        d.clear();
        ASSERT_EQ(zeliAdd_8u_C4RSfs(a.data(), 0, b.data(), 0, d.data(), 0, roi, 0), zelStatusOk);
        ASSERT_TRUE(repeats(d.data(), n, block));
    });
}

// Contiguous rows whose elements add up to 2^31 + 2^16 run as one row; the
// only zero divisor is the very last element, whose warning must come back.
TEST(LargeImage, DivisionOfContiguousRowsOfMoreThan2To31Elements) {
    const ZeliSize roi{1 << 16, (1 << 15) + 1};
    const std::size_t n = std::size_t(roi.width) * roi.height;
    RepeatedBytes divisor(n, 251, contentA), dividend(n, 241, contentB);
    Zeroed d(n);
    ASSERT_TRUE(divisor.ok() && dividend.ok() && d.ok());
    divisor.data()[n - 1] = 0;
    std::vector<Zel8u> block(251 * 241);
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = quotient<Zel8u>(contentA(i % 251), contentB(i % 241), -2, 1);
    const Zel8u last = quotient<Zel8u>(0, contentB((n - 1) % 241), -2, 1);
    forEachConfig([&] {
        d.clear();
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
    RepeatedBytes src(n, 251, contentB);
    Zeroed d(n);
    ASSERT_TRUE(src.ok() && d.ok());
    const Zel8u value[3] = {3, 7, 1};
    std::vector<Zel8u> block(251 * 4);
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = i % 4 == 3 ? 0 : quotient<Zel8u>(value[i % 4], contentB(i % 251), 1, 1);
    forEachConfig([&] {
        d.clear();
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
