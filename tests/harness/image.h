// Test images that live inside larger buffers.
//
// The ROI starts at an unaligned offset, every row is followed by guard
// bytes and guard rows surround the ROI; the whole buffer is filled with
// random bytes from a fixed seed, so a kernel that writes outside the ROI
// (or into an AC4 alpha channel) is caught by expectOutsideUnchanged().
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "zeli.h"

namespace zel::test {

// A few ROI shapes that reach the scalar heads and tails of vector loops.
inline std::vector<ZeliSize> oddSizes() {
    return {{1, 1}, {1, 9}, {9, 1}, {63, 17}, {17, 63}, {129, 3}, {1031, 2}, {5, 33}};
}

template <class T>
class Image {
public:
    // `channels` per pixel; `writable` channels of each pixel belong to the
    // result (AC4 images pass 4 and 3). `offsetBytes` misaligns the ROI.
    Image(ZeliSize roi, int channels, int writable = -1, int offsetBytes = sizeof(T),
          int guardBytes = 3 * sizeof(T) + 5, std::uint32_t seed = 1)
        : roi_(roi), channels_(channels), writable_(writable < 0 ? channels : writable) {
        const int rowBytes = roi.width * channels * static_cast<int>(sizeof(T));
        step_ = rowBytes + guardBytes;
        step_ += (sizeof(T) - step_ % sizeof(T)) % sizeof(T);  // keep elements aligned
        offset_ = step_ + offsetBytes;                           // one guard row above
        bytes_.resize(static_cast<std::size_t>(offset_ + step_ * (roi.height + 1) + 64));
        std::mt19937 rng(seed);
        for (auto& b : bytes_) b = static_cast<std::uint8_t>(rng());
        if constexpr (std::is_floating_point_v<T>) fillRandom(seed, T(-1000), T(1000));
        snapshot();
    }

    T* roi() { return reinterpret_cast<T*>(bytes_.data() + offset_); }
    const T* roi() const { return reinterpret_cast<const T*>(bytes_.data() + offset_); }
    int step() const { return step_; }
    ZeliSize size() const { return roi_; }
    int channels() const { return channels_; }

    T& at(int x, int y, int c = 0) { return row(y)[x * channels_ + c]; }
    T at(int x, int y, int c = 0) const { return row(y)[x * channels_ + c]; }
    T* row(int y) { return reinterpret_cast<T*>(bytes_.data() + offset_ + std::ptrdiff_t{step_} * y); }
    const T* row(int y) const {
        return reinterpret_cast<const T*>(bytes_.data() + offset_ + std::ptrdiff_t{step_} * y);
    }

    // Random values in [lo, hi] for every channel of the ROI (guards keep
    // their random bytes).
    void fillRandom(std::uint32_t seed, T lo = std::numeric_limits<T>::lowest(),
                    T hi = std::numeric_limits<T>::max()) {
        std::mt19937 rng(seed);
        for (int y = 0; y < roi_.height; ++y)
            for (int i = 0; i < roi_.width * channels_; ++i) row(y)[i] = draw(rng, lo, hi);
        snapshot();
    }
    template <class F>
    void fill(F&& valueAt) {  // valueAt(x, y, c)
        for (int y = 0; y < roi_.height; ++y)
            for (int x = 0; x < roi_.width; ++x)
                for (int c = 0; c < channels_; ++c) at(x, y, c) = valueAt(x, y, c);
        snapshot();
    }

    // Remember the current bytes as the reference for the checks below.
    void snapshot() { before_ = bytes_; }
    bool unchanged() const { return bytes_ == before_; }

    // Every byte that is not a writable channel of a ROI pixel is as it was.
    ::testing::AssertionResult outsideUnchanged() const {
        std::vector<bool> inside(bytes_.size(), false);
        for (int y = 0; y < roi_.height; ++y)
            for (int x = 0; x < roi_.width; ++x)
                for (int c = 0; c < writable_; ++c) {
                    const std::size_t at = offset_ + std::size_t(step_) * y +
                                           (std::size_t(x) * channels_ + c) * sizeof(T);
                    for (std::size_t b = 0; b < sizeof(T); ++b) inside[at + b] = true;
                }
        for (std::size_t i = 0; i < bytes_.size(); ++i)
            if (!inside[i] && bytes_[i] != before_[i])
                return ::testing::AssertionFailure() << "byte " << i << " outside the ROI changed";
        return ::testing::AssertionSuccess();
    }

private:
    template <class R>
    static T draw(R& rng, T lo, T hi) {
        if constexpr (std::is_floating_point_v<T>) {
            return std::uniform_real_distribution<T>(lo, hi)(rng);
        } else {
            using W = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
            return static_cast<T>(std::uniform_int_distribution<W>(lo, hi)(rng));
        }
    }

    ZeliSize roi_;
    int channels_, writable_, step_, offset_;
    std::vector<std::uint8_t> bytes_, before_;
};

// Same ROI values in two images (for in-place against out-of-place runs).
template <class T>
::testing::AssertionResult sameRoi(const Image<T>& a, const Image<T>& b, int channels) {
    for (int y = 0; y < a.size().height; ++y)
        if (std::memcmp(a.row(y), b.row(y), sizeof(T) * a.size().width * channels) != 0)
            return ::testing::AssertionFailure() << "rows " << y << " differ";
    return ::testing::AssertionSuccess();
}

}  // namespace zel::test
