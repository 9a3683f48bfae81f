// Memory laid out page by page, for tests of what a kernel may touch.
//
// Pages: a private mapping whose pages the test can make read-only or
// inaccessible, so a kernel that stores to (or loads from) a byte it does
// not own faults at once instead of leaving a value that happens to match.
// Fenced: bytes that end right where an inaccessible page begins.
// Periodic: a read-only virtual range of many GiB whose content repeats
// every period() bytes: one small memory file mapped again and again, so an
// image of more than 2^31 elements costs one file of memory as a source.
// Its last copy may be a private writable one, to change the final bytes.
// ZeroBytes: a large zero-filled destination that clear() zeroes again.
//
// A fault inside guardedCall() names the case before the process dies.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace zel::test {

inline std::size_t pageBytes() {
    static const std::size_t bytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return bytes;
}

inline std::size_t roundUpToPages(std::size_t bytes) {
    return (bytes + pageBytes() - 1) / pageBytes() * pageBytes();
}

class Pages {
public:
    explicit Pages(std::size_t count) : bytes_(count * pageBytes()) {
        void* p = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        base_ = p == MAP_FAILED ? nullptr : static_cast<std::uint8_t*>(p);
    }
    ~Pages() {
        if (base_ != nullptr) munmap(base_, bytes_);
    }
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;

    bool ok() const { return base_ != nullptr; }
    std::uint8_t* page(std::size_t i) { return base_ + i * pageBytes(); }
    void protect(std::size_t first, std::size_t count, int prot) {
        ASSERT_EQ(mprotect(page(first), count * pageBytes(), prot), 0);
    }

private:
    std::size_t bytes_;
    std::uint8_t* base_;
};

class Fenced {
public:
    // `bytes` bytes (random from `seed`), then a page with protection `fence`.
    explicit Fenced(std::size_t bytes, int fence = PROT_NONE, std::uint32_t seed = 7)
        : pages_(roundUpToPages(bytes) / pageBytes() + 1), bytes_(bytes) {
        if (!pages_.ok()) return;
        const std::size_t dataPages = roundUpToPages(bytes) / pageBytes();
        data_ = pages_.page(dataPages) - bytes;
        std::mt19937 rng(seed);
        for (std::uint8_t* p = pages_.page(0); p < pages_.page(dataPages); ++p) *p = static_cast<std::uint8_t>(rng());
        pages_.protect(dataPages, 1, fence);
    }
    bool ok() const { return data_ != nullptr; }
    std::uint8_t* data() { return data_; }
    std::size_t size() const { return bytes_; }
    // The same bytes as `from` (at least size() of them).
    void copyFrom(const void* from) { std::memcpy(data_, from, bytes_); }

private:
    Pages pages_;
    std::size_t bytes_;
    std::uint8_t* data_ = nullptr;
};

class Periodic {
public:
    // The default period: a whole number of pages that is not a power of
    // two and is divisible by 3 and 4, so whole pixels of 1, 3 and 4
    // elements repeat with it and an offset that wrapped at 2^32 reads a
    // different byte.
    static constexpr std::size_t kPeriodBytes = 4096 * 1023;

    enum class LastCopy { shared, privateWritable };

    // At least `bytes` bytes; byte i is valueAt(i % period) (valueAt is
    // asked for i < period only). `period` counts bytes, the elements of
    // an 8-bit image; any period works, as the memory file holds a whole
    // number of periods and of pages. With LastCopy::privateWritable the
    // copy of the file that holds the final bytes is a private writable
    // mapping: writableAt() changes its bytes and no others. Inaccessible
    // pages lie before and after.
    Periodic(std::size_t bytes, const std::function<std::uint8_t(std::size_t)>& valueAt,
             std::size_t period = kPeriodBytes, LastCopy last = LastCopy::shared)
        : period_(period), file_(fileBytes(period)), copies_((bytes + file_ - 1) / file_), last_(last) {
        const int fd = memfd_create("zeli-periodic", 0);
        if (fd < 0) return;
        if (ftruncate(fd, static_cast<off_t>(file_)) == 0) map(fd, valueAt);
        close(fd);
    }
    ~Periodic() {
        if (range_ != nullptr) munmap(range_, reserved_);
    }
    Periodic(const Periodic&) = delete;
    Periodic& operator=(const Periodic&) = delete;

    bool ok() const { return data_ != nullptr; }
    const std::uint8_t* data() const { return data_; }
    std::size_t period() const { return period_; }
    // Byte `at` for writing, where it lies in a private writable last copy;
    // null elsewhere.
    std::uint8_t* writableAt(std::size_t at) {
        const bool inLast = copies_ > 0 && at >= (copies_ - 1) * file_ && at < copies_ * file_;
        return data_ != nullptr && last_ == LastCopy::privateWritable && inLast ? data_ + at : nullptr;
    }

private:
    // Whole periods and whole pages, and at least 1 MiB: the system limits
    // how many mappings a process has, and a short file needs more of them.
    static std::size_t fileBytes(std::size_t period) {
        const std::size_t unit = std::lcm(pageBytes(), period), least = std::size_t{1} << 20;
        return (least + unit - 1) / unit * unit;
    }

    void map(int fd, const std::function<std::uint8_t(std::size_t)>& valueAt) {
        void* one = mmap(nullptr, file_, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
        if (one == MAP_FAILED) return;
        auto* p = static_cast<std::uint8_t*>(one);
        for (std::size_t i = 0; i < file_; ++i) p[i] = valueAt(i % period_);
        munmap(one, file_);
        reserved_ = copies_ * file_ + 2 * pageBytes();
        void* range = mmap(nullptr, reserved_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (range == MAP_FAILED) return;
        range_ = static_cast<std::uint8_t*>(range);
        std::uint8_t* data = range_ + pageBytes();
        for (std::size_t k = 0; k < copies_; ++k) {
            const bool writable = k + 1 == copies_ && last_ == LastCopy::privateWritable;
            const int prot = writable ? PROT_READ | PROT_WRITE : PROT_READ;
            const int flags = (writable ? MAP_PRIVATE : MAP_SHARED) | MAP_FIXED;
            if (mmap(data + k * file_, file_, prot, flags, fd, 0) == MAP_FAILED) return;
        }
        data_ = data;
    }

    std::size_t period_, file_, copies_, reserved_ = 0;
    LastCopy last_;
    std::uint8_t* range_ = nullptr;
    std::uint8_t* data_ = nullptr;
};

// A fresh zero-filled writable range (huge pages where the system allows),
// released when it goes.
class ZeroBytes {
public:
    explicit ZeroBytes(std::size_t bytes) : bytes_(roundUpToPages(bytes)) {
        void* p = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        data_ = p == MAP_FAILED ? nullptr : static_cast<std::uint8_t*>(p);
        if (data_ != nullptr) madvise(data_, bytes_, MADV_HUGEPAGE);
    }
    ~ZeroBytes() {
        if (data_ != nullptr) munmap(data_, bytes_);
    }
    ZeroBytes(const ZeroBytes&) = delete;
    ZeroBytes& operator=(const ZeroBytes&) = delete;
    bool ok() const { return data_ != nullptr; }
    std::uint8_t* data() const { return data_; }
    // Every byte reads as zero again, and the memory goes back to the
    // system until it is written; false where that failed.
    [[nodiscard]] bool clear() { return data_ != nullptr && madvise(data_, bytes_, MADV_DONTNEED) == 0; }

private:
    std::size_t bytes_;
    std::uint8_t* data_;
};

namespace detail {
inline char faultCase[256];
inline void reportFault(int sig) {
    const char head[] = "\n*** memory fault during: ";
    [[maybe_unused]] ssize_t n = write(2, head, sizeof(head) - 1);
    n = write(2, faultCase, strnlen(faultCase, sizeof(faultCase)));
    n = write(2, "\n", 1);
    std::signal(sig, SIG_DFL);  // the faulting access runs again and ends the process
}
}  // namespace detail

// Runs call(); a fault in it prints `what` before the process dies (the
// sanitizers' own report is kept where they are built in).
template <class F>
auto guardedCall(const std::string& what, F&& call) {
    std::snprintf(detail::faultCase, sizeof(detail::faultCase), "%s", what.c_str());
#if defined(__SANITIZE_ADDRESS__)
    return call();
#else
    struct sigaction handler = {}, oldSegv = {}, oldBus = {};
    handler.sa_handler = detail::reportFault;
    sigaction(SIGSEGV, &handler, &oldSegv);
    sigaction(SIGBUS, &handler, &oldBus);
    struct Restore {
        struct sigaction segv, bus;
        ~Restore() {
            sigaction(SIGSEGV, &segv, nullptr);
            sigaction(SIGBUS, &bus, nullptr);
        }
    } restore{oldSegv, oldBus};
    return call();
#endif
}

// Compares `bytes` bytes at `data` with `block` repeated from offset 0.
inline ::testing::AssertionResult repeats(const std::uint8_t* data, std::size_t bytes,
                                          const std::vector<std::uint8_t>& block) {
    for (std::size_t at = 0; at < bytes; at += block.size()) {
        const std::size_t n = std::min(block.size(), bytes - at);
        if (std::memcmp(data + at, block.data(), n) != 0) {
            std::size_t i = 0;
            while (data[at + i] == block[i]) ++i;
            return ::testing::AssertionFailure() << "byte " << at + i << " of " << bytes << " is "
                                                 << int(data[at + i]) << ", expected " << int(block[i]);
        }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace zel::test
