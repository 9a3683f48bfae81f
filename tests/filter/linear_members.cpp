// The table of user-kernel filter members (see linear_members.h).
#include "filter/linear_members.h"

namespace zel::test {
namespace {

template <class K>
std::vector<K> kernelAs(const LinearKernel& k) {
    return std::vector<K>(k.w.begin(), k.w.end());
}

// One adapter per argument pattern.
template <class T>
LinearCall plane(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const Zel32s*, ZeliSize, ZeliPoint, int)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void*) {
        const auto w = kernelAs<Zel32s>(k);
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, w.data(), {k.kw, k.kh}, {k.ax, k.ay},
                 k.divisor);
    };
}
template <class T, class K>
LinearCall plane(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const K*, ZeliSize, ZeliPoint)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void*) {
        const auto w = kernelAs<K>(k);
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, w.data(), {k.kw, k.kh}, {k.ax, k.ay});
    };
}
LinearCall plane(ZelStatus (*f)(const Zel64f*, int, Zel64f*, int, ZeliSize, const Zel64f*, ZeliSize, ZeliPoint,
                                Zel8u*)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void* buffer) {
        const auto w = kernelAs<Zel64f>(k);
        return f(static_cast<const Zel64f*>(s), ss, static_cast<Zel64f*>(d), ds, roi, w.data(), {k.kw, k.kh},
                 {k.ax, k.ay}, static_cast<Zel8u*>(buffer));
    };
}
template <class T>
LinearCall plane(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const Zel32f*, ZeliSize, ZeliPoint,
                                ZelRoundingMode, Zel8u*)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void* buffer) {
        const auto w = kernelAs<Zel32f>(k);
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, w.data(), {k.kw, k.kh}, {k.ax, k.ay},
                 static_cast<ZelRoundingMode>(k.rndMode), static_cast<Zel8u*>(buffer));
    };
}
template <class T, class K>
LinearCall plane(ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const K*, ZeliSize, ZeliPoint, int,
                                ZelRoundingMode, Zel8u*)) {
    return [f](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void* buffer) {
        const auto w = kernelAs<K>(k);
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, w.data(), {k.kw, k.kh}, {k.ax, k.ay},
                 k.divisor, static_cast<ZelRoundingMode>(k.rndMode), static_cast<Zel8u*>(buffer));
    };
}
// Row (kh = 1) and column (kw = 1) members.
template <class T>
LinearCall line(bool row, ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const Zel32s*, int, int, int)) {
    return [f, row](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void*) {
        const auto w = kernelAs<Zel32s>(k);
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, w.data(), row ? k.kw : k.kh,
                 row ? k.ax : k.ay, k.divisor);
    };
}
template <class T>
LinearCall line(bool row, ZelStatus (*f)(const T*, int, T*, int, ZeliSize, const Zel32f*, int, int)) {
    return [f, row](const void* s, int ss, void* d, int ds, ZeliSize roi, const LinearKernel& k, void*) {
        const auto w = kernelAs<Zel32f>(k);
        return f(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, roi, w.data(), row ? k.kw : k.kh,
                 row ? k.ax : k.ay);
    };
}

#define ZT_LIN(fn, t, ch, wr, shape, kind, k16, adapt) \
    LinearMember{#fn, lelemOf<Zel##t>(), ch, wr, Shape1::shape, LinearKind::kind, k16, adapt(&fn)}
#define ZT_LIN4(prefix, t, shape, kind, k16, adapt)                                    \
    ZT_LIN(prefix##_C1R, t, 1, 1, shape, kind, k16, adapt),                           \
        ZT_LIN(prefix##_C3R, t, 3, 3, shape, kind, k16, adapt),                       \
        ZT_LIN(prefix##_C4R, t, 4, 4, shape, kind, k16, adapt),                       \
        ZT_LIN(prefix##_AC4R, t, 4, 3, shape, kind, k16, adapt)
#define ZT_PLANE(f) plane(f)
#define ZT_ROW(f) line(true, f)
#define ZT_COLUMN(f) line(false, f)
#define ZT_LINES(Name, adapt, shape)                                                     \
    ZT_LIN4(zeli##Name##_8u, 8u, shape, IntDivide, false, adapt),                        \
        ZT_LIN4(zeli##Name##_16s, 16s, shape, IntViaFloat, false, adapt),                \
        ZT_LIN4(zeli##Name##_16u, 16u, shape, IntViaFloat, false, adapt),                \
        ZT_LIN4(zeli##Name##32f_8u, 8u, shape, Float, false, adapt),                     \
        ZT_LIN4(zeli##Name##32f_16s, 16s, shape, Float, false, adapt),                   \
        ZT_LIN4(zeli##Name##32f_16u, 16u, shape, Float, false, adapt),                   \
        ZT_LIN4(zeli##Name##_32f, 32f, shape, Same32f, false, adapt)

}  // namespace

std::vector<LinearMember> linearMembers() {
    return {
        ZT_LIN4(zeliFilter_8u, 8u, Plane, IntDivide, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_16s, 16s, Plane, IntDivide, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_16u, 16u, Plane, IntViaFloat, false, ZT_PLANE),
        ZT_LIN4(zeliFilter32f_8u, 8u, Plane, Float, false, ZT_PLANE),
        ZT_LIN4(zeliFilter32f_16s, 16s, Plane, Float, false, ZT_PLANE),
        ZT_LIN4(zeliFilter32f_16u, 16u, Plane, Float, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_32f, 32f, Plane, Same32f, false, ZT_PLANE),
        ZT_LIN(zeliFilter_64f_C1R, 64f, 1, 1, Plane, Same64f, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_Round16s_8u, 8u, Plane, RoundInt, true, ZT_PLANE),
        ZT_LIN4(zeliFilter_Round32f_8u, 8u, Plane, Round32f, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_Round32f_16s, 16s, Plane, Round32f, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_Round32f_16u, 16u, Plane, Round32f, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_Round32s_16s, 16s, Plane, RoundInt, false, ZT_PLANE),
        ZT_LIN4(zeliFilter_Round32s_16u, 16u, Plane, RoundInt, false, ZT_PLANE),
        ZT_LINES(FilterRow, ZT_ROW, Row),
        ZT_LINES(FilterColumn, ZT_COLUMN, Column),
    };
}

}  // namespace zel::test
