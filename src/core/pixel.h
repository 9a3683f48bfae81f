// Channel layouts and the element types behind them.
#pragma once

#include <cstdint>
#include <type_traits>

#include "zeli.h"

namespace zel {

// Interleaved layouts. AC4 pixels have four channels of which the image
// operations read and write the first three.
enum class Layout { C1, C3, C4, AC4 };

template <Layout L>
inline constexpr int kChannels = L == Layout::C1 ? 1 : L == Layout::C3 ? 3 : 4;

// Channels an operation computes: AC4 leaves its alpha channel alone.
template <Layout L>
inline constexpr int kComputed = L == Layout::AC4 ? 3 : kChannels<L>;

// Unsigned integer of a given size: the type of bit-exact moves.
template <std::size_t Bytes>
using Bits = std::conditional_t<Bytes == 1, std::uint8_t,
             std::conditional_t<Bytes == 2, std::uint16_t,
             std::conditional_t<Bytes == 4, std::uint32_t, std::uint64_t>>>;

template <class T>
using BitsOf = Bits<sizeof(T)>;

}  // namespace zel
