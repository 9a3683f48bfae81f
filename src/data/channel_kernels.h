// Row kernels that move channels between interleaved and planar layouts,
// shared by Copy, Set, Dup and SwapChannels.
//
// Every kernel works on the bits of an element (BitsOf<T>): a copy never
// interprets a value, so 16u and 16s share one instantiation and 32s and
// 32f another. The image-level functions below take checked arguments and
// walk the rows; contiguous images are handled as one long row.
#pragma once

#include <cstdint>

#include "core/streaming.h"
#include "zeli.h"

namespace zel {

// Destination channel sources of a channel shuffle: an index 0..SC-1 takes
// that source channel, kKeep leaves the destination channel as it is and
// kFill writes the fill value.
constexpr int kKeep = -1;
constexpr int kFill = -2;

// A source map known when the library is compiled (the Copy layouts) ...
template <int... From>
struct FixedOrder {
    static constexpr int kFrom[sizeof...(From)] = {From...};
};
// ... or handed in by the caller (SwapChannels).
struct RuntimeOrder {};

struct ChannelOrder {
    int from[4] = {0, 1, 2, 3};
    std::uint32_t fill = 0;  // low bits hold the fill element
};

// dst pixel channel k = source channel order.from[k] (or kept, or filled),
// for SC-channel source pixels and DC-channel destination pixels. Kept
// channels are neither read nor written, and no source channel after the
// last one an order entry names is read in the last pixel of a row (AC4
// alpha). `partial` says the pointers address one channel inside wider
// pixels: the last pixel of a row is then not complete in memory and is
// handled alone. src may equal dst (in-place shuffles).
template <class B, int SC, int DC, class Order>
void shuffleImage(const B* src, int srcStep, B* dst, int dstStep, ZeliSize roi,
                  const ChannelOrder& order, bool partial);

// Masked copy (src) or fill (value, C elements): where the mask byte is
// non-zero the first W of the C channels take the source's values. No other
// destination byte is stored to and the destination is never read; a
// source's channels from W on are not read in the last pixel of a row.
template <class B, int C, int W>
void maskedCopyImage(const B* src, int srcStep, B* dst, int dstStep, ZeliSize roi,
                     const Zel8u* mask, int maskStep);
template <class B, int C, int W>
void maskedFillImage(const B* value, B* dst, int dstStep, ZeliSize roi, const Zel8u* mask,
                     int maskStep);

// Interleaved C channels to C planes sharing one step, and back. With
// `stream` the stores bypass the caches, as planarStreams() decides for
// images of more than kStreamStoreBytes (interleaved size).
bool planarStreams(std::int64_t interleavedBytes);
template <class B, int C>
void splitImage(const B* src, int srcStep, B* const planes[], int planeStep, ZeliSize roi, bool stream);
template <class B, int C>
void mergeImage(const B* const planes[], int planeStep, B* dst, int dstStep, ZeliSize roi, bool stream);

}  // namespace zel
