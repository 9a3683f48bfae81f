// Every user-kernel filter member behind one calling interface: a kernel
// given as doubles with its size, anchor, divisor and rounding mode, and
// the member's kind, which names the rule its reference follows.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <type_traits>

#include "zeli.h"

namespace zel::test {

enum class LElem { u8, u16, s16, f32, f64 };
template <class T>
constexpr LElem lelemOf() {
    if constexpr (std::is_same_v<T, Zel8u>) return LElem::u8;
    else if constexpr (std::is_same_v<T, Zel16u>) return LElem::u16;
    else if constexpr (std::is_same_v<T, Zel16s>) return LElem::s16;
    else if constexpr (std::is_same_v<T, Zel32f>) return LElem::f32;
    else return LElem::f64;
}

enum class Shape1 { Plane, Row, Column };

// The arithmetic a member follows.
enum class LinearKind {
    IntDivide,    // 32-bit integer sum, divided by the three ways (8u, 16s)
    IntViaFloat,  // integer kernel times the float reciprocal of the divisor, then Float
    Float,        // single-precision kernel and sum on integer data, nearest even
    Same32f,      // single-precision data
    Same64f,      // double-precision data
    Round32f,     // single-precision sum, rounding mode
    RoundInt,     // double sum of an integer kernel divided by the divisor, rounding mode
};

struct LinearKernel {
    std::vector<double> w;  // row-major, top row first
    int kw, kh, ax, ay;
    int divisor = 1;
    int rndMode = 1;
};

using LinearCall = std::function<ZelStatus(const void* src, int srcStep, void* dst, int dstStep, ZeliSize roi,
                                           const LinearKernel& k, void* buffer)>;

struct LinearMember {
    std::string name;
    LElem type;
    int channels, written;
    Shape1 shape;
    LinearKind kind;
    bool integerKernel16;  // Round16s: 16-bit kernel
    LinearCall call;
};

std::vector<LinearMember> linearMembers();

}  // namespace zel::test
