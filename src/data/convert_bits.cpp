// Convert between 8-bit images and 1-bit images (8 pixels a byte, the
// first pixel in the most significant bit, rows starting at a bit offset).
//
// Packing diffuses the error of each decision over the pixels still to
// come, with fixed integer weights over the current row and the two rows
// above, kept in a ring of three error rows; the order of the pixels makes
// it a serial walk over the image. Unpacking expands each nibble through
// a table of four bytes and forks over rows like the other conversions.
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/checks.h"
#include "core/image.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "zeli.h"

namespace zel {
namespace {

// Error weights: the current row one and two pixels back; the row above and
// the row two above at offsets -2..+2 (42 in all).
constexpr int kGuard = 2;

inline std::int32_t diffusedError(const std::int32_t* cur, const std::int32_t* up1, const std::int32_t* up2,
                                  std::ptrdiff_t j) {
    return 8 * cur[j - 1] + 4 * cur[j - 2] +
           2 * up1[j - 2] + 4 * up1[j - 1] + 8 * up1[j] + 4 * up1[j + 1] + 2 * up1[j + 2] +
           up2[j - 2] + 2 * up2[j - 1] + 4 * up2[j] + 2 * up2[j + 1] + up2[j + 2];
}

// Packs one row of `width` pixels into bits from bit `bit` (0..7) of
// out[0]; the bits before it and after the row's last one keep their values.
void packRow(const Zel8u* src, Zel8u* out, std::ptrdiff_t width, int bit, std::int32_t limit, std::int32_t* cur,
             const std::int32_t* up1, const std::int32_t* up2) {
    unsigned acc = bit == 0 ? 0u : (out[0] & (0xFF00u >> bit) & 0xFFu);
    for (std::ptrdiff_t i = 0; i < width; ++i) {
        const std::ptrdiff_t j = i + kGuard;
        const std::int32_t v = std::int32_t{src[i]} * 8192 + 23 * diffusedError(cur, up1, up2, j);
        const bool set = v > limit;
        cur[j] = set ? (v >> 10) - 2047 : (v >> 10);
        acc |= static_cast<unsigned>(set) << (7 - bit);
        if (++bit == 8) {
            *out++ = static_cast<Zel8u>(acc);
            acc = 0;
            bit = 0;
        }
    }
    if (bit > 0) *out = static_cast<Zel8u>(acc | (*out & (0xFFu >> bit)));
}

// Bytes of 0 or 255 for each bit of a nibble, the high bit first.
struct NibbleTable {
    std::uint32_t entries[16];
    constexpr NibbleTable() : entries() {
        for (unsigned n = 0; n < 16; ++n) {
            std::uint32_t word = 0;
            for (unsigned b = 0; b < 4; ++b)
                if (n & (8u >> b)) word |= 0xFFu << (8 * b);  // byte b in memory order (little endian)
            entries[n] = word;
        }
    }
};
constexpr NibbleTable kNibbles;

void unpackRow(const Zel8u* src, int bit, Zel8u* dst, std::ptrdiff_t width) {
    // Eight pixels from the byte that starts at bit `bit` of src[k]; the
    // next source byte is read only when the pixels reach into it.
    auto byteAt = [&](std::ptrdiff_t k, std::ptrdiff_t pixels) -> unsigned {
        unsigned b = static_cast<unsigned>(src[k]) << bit;
        if (bit > 0 && bit + pixels > 8) b |= static_cast<unsigned>(src[k + 1]) >> (8 - bit);
        return b & 0xFFu;
    };
    std::ptrdiff_t x = 0, k = 0;
    for (; width - x >= 8; x += 8, ++k) {
        const unsigned b = byteAt(k, 8);
        std::memcpy(dst + x, &kNibbles.entries[b >> 4], 4);
        std::memcpy(dst + x + 4, &kNibbles.entries[b & 15], 4);
    }
    if (x < width) {
        const unsigned b = byteAt(k, width - x);
        for (std::ptrdiff_t i = 0; x + i < width; ++i) dst[x + i] = (b & (0x80u >> i)) ? 255 : 0;
    }
}

}  // namespace
}  // namespace zel

ZelStatus zeliConvert_8u1u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, int dstBitOffset,
                               ZeliSize roi, Zel8u threshold) {
    using namespace zel;
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).that(dstBitOffset >= 0, zelStatusBadSize)) return st;
    const std::size_t stride = static_cast<std::size_t>(roi.width) + 2 * kGuard;
    Buffer<std::int32_t> errors = allocBuffer<std::int32_t>(3 * stride);
    if (!errors) return zelStatusNoMemory;
    std::memset(errors.get(), 0, 3 * stride * sizeof(std::int32_t));
    std::int32_t* ring[3] = {errors.get(), errors.get() + stride, errors.get() + 2 * stride};
    const std::int32_t limit = std::int32_t{threshold} * 8192;
    const int bit = dstBitOffset % 8;  // whole bytes of the offset are not skipped
    for (std::ptrdiff_t y = 0; y < roi.height; ++y) {
        // ring[0] the current row, ring[1] the row above, ring[2] two above.
        packRow(rowAt(pSrc, srcStep, y), rowAt(pDst, dstStep, y), roi.width, bit, limit, ring[0], ring[1], ring[2]);
        std::int32_t* oldest = ring[2];
        ring[2] = ring[1];
        ring[1] = ring[0];
        ring[0] = oldest;
    }
    return zelStatusOk;
}

ZelStatus zeliConvert_1u8u_C1R(const Zel8u* pSrc, int srcStep, int srcBitOffset, Zel8u* pDst, int dstStep,
                               ZeliSize roi) {
    using namespace zel;
    if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep).that(srcBitOffset >= 0,
                                                                                        zelStatusBadSize))
        return st;
    const Zel8u* first = pSrc + srcBitOffset / 8;
    const int bit = srcBitOffset % 8;
    const std::int64_t bytes = std::int64_t{roi.width} * roi.height * 9 / 8;
    const int team = teamSize(bytes, kCostMove, roi.height);
    forEachRow(roi.height, team, [&](std::ptrdiff_t y) {
        unpackRow(rowAt(first, srcStep, y), bit, rowAt(pDst, dstStep, y), roi.width);
    });
    return zelStatusOk;
}
