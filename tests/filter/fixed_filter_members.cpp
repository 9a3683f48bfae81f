// The table of fixed-kernel filter members (see fixed_filter_members.h).
#include "filter/fixed_filter_members.h"

namespace zel::test {
namespace {

using namespace kernels;
const Kernel2D kNone;

#define ZT_MEMBER(fn, S, D, ch, wr, masks, k3, k5, rule) \
    FilterMember{#fn, elemOf<Zel##S>(), elemOf<Zel##D>(), ch, wr, Masks::masks, k3, k5, Rule::rule, callOf(&fn)}
#define ZT_LAYOUT3(op, t, masks, k3, k5, rule)                             \
    ZT_MEMBER(op##_##t##_C1R, t, t, 1, 1, masks, k3, k5, rule),            \
        ZT_MEMBER(op##_##t##_C3R, t, t, 3, 3, masks, k3, k5, rule),        \
        ZT_MEMBER(op##_##t##_AC4R, t, t, 4, 3, masks, k3, k5, rule)
#define ZT_LAYOUT4(op, t, masks, k3, k5, rule) \
    ZT_LAYOUT3(op, t, masks, k3, k5, rule), ZT_MEMBER(op##_##t##_C4R, t, t, 4, 4, masks, k3, k5, rule)
#define ZT_TYPES3(op, masks, k3, k5, rule) \
    ZT_LAYOUT4(op, 8u, masks, k3, k5, rule), ZT_LAYOUT4(op, 16s, masks, k3, k5, rule), ZT_LAYOUT4(op, 32f, masks, k3, k5, rule)
#define ZT_WIDENING(op, masks, k3, k5)                                      \
    ZT_MEMBER(op##_8u16s_C1R, 8u, 16s, 1, 1, masks, k3, k5, Exact),         \
        ZT_MEMBER(op##_8s16s_C1R, 8s, 16s, 1, 1, masks, k3, k5, Exact)
#define ZT_ROBERTS(op, t, side)                                                           \
    [] {                                                                                  \
        std::vector<FilterMember> m = {ZT_LAYOUT3(op, t, none, kNone, kNone, Saturate)};   \
        for (auto& x : m) x.roberts = side;                                               \
        return m;                                                                         \
    }()

}  // namespace

std::vector<FilterMember> fixedFilterMembers() {
    std::vector<std::vector<FilterMember>> groups = {
        {ZT_TYPES3(zeliFilterSobelHoriz, none, sobelHoriz3, kNone, Saturate)},
        {ZT_TYPES3(zeliFilterSobelVert, none, sobelVert3, kNone, Saturate)},
        {ZT_WIDENING(zeliFilterSobelHoriz, strict, sobelHoriz3, sobelHoriz5)},
        {ZT_WIDENING(zeliFilterSobelVert, strict, sobelVert3, sobelVert5)},
        {ZT_WIDENING(zeliFilterSobelHorizSecond, strict, horizSecond3, horizSecond5)},
        {ZT_WIDENING(zeliFilterSobelVertSecond, strict, vertSecond3, vertSecond5)},
        {ZT_WIDENING(zeliFilterSobelCross, strict, cross3, cross5)},
        {ZT_MEMBER(zeliFilterSobelHorizMask_32f_C1R, 32f, 32f, 1, 1, lenient, sobelHoriz3, sobelHoriz5, Exact),
         ZT_MEMBER(zeliFilterSobelVertMask_32f_C1R, 32f, 32f, 1, 1, lenient, sobelVert3, sobelVert5, Exact),
         ZT_MEMBER(zeliFilterSobelHorizSecond_32f_C1R, 32f, 32f, 1, 1, lenient, horizSecond3, horizSecond5, Exact),
         ZT_MEMBER(zeliFilterSobelVertSecond_32f_C1R, 32f, 32f, 1, 1, lenient, vertSecond3, vertSecond5, Exact),
         ZT_MEMBER(zeliFilterSobelCross_32f_C1R, 32f, 32f, 1, 1, lenient, cross3, cross5, Exact)},
        {ZT_TYPES3(zeliFilterPrewittHoriz, none, prewittHoriz, kNone, Saturate)},
        {ZT_TYPES3(zeliFilterPrewittVert, none, prewittVert, kNone, Saturate)},
        {ZT_WIDENING(zeliFilterScharrHoriz, none, scharrHoriz, kNone),
         ZT_MEMBER(zeliFilterScharrHoriz_32f_C1R, 32f, 32f, 1, 1, none, scharrHoriz, kNone, Exact)},
        {ZT_WIDENING(zeliFilterScharrVert, none, scharrVert, kNone),
         ZT_MEMBER(zeliFilterScharrVert_32f_C1R, 32f, 32f, 1, 1, none, scharrVert, kNone, Exact)},
        ZT_ROBERTS(zeliFilterRobertsDown, 8u, -1), ZT_ROBERTS(zeliFilterRobertsDown, 16s, -1),
        ZT_ROBERTS(zeliFilterRobertsDown, 32f, -1), ZT_ROBERTS(zeliFilterRobertsUp, 8u, 1),
        ZT_ROBERTS(zeliFilterRobertsUp, 16s, 1), ZT_ROBERTS(zeliFilterRobertsUp, 32f, 1),
        {ZT_TYPES3(zeliFilterLaplace, strict, laplace3, laplace5, Saturate),
         ZT_WIDENING(zeliFilterLaplace, strict, laplace3, laplace5)},
        {ZT_TYPES3(zeliFilterHipass, strict, laplace3, hipass5, Saturate)},
        {ZT_TYPES3(zeliFilterGauss, strict, gauss3, gauss5, Gauss16), ZT_LAYOUT4(zeliFilterGauss, 16u, strict, gauss3, gauss5, Gauss16)},
        {ZT_LAYOUT3(zeliFilterLowpass, 8u, strict, box3, box5, Mean9), ZT_LAYOUT3(zeliFilterLowpass, 16u, strict, box3, box5, Mean9),
         ZT_LAYOUT3(zeliFilterLowpass, 16s, strict, box3, box5, Mean9), ZT_LAYOUT3(zeliFilterLowpass, 32f, strict, box3, box5, Mean9)},
        {ZT_TYPES3(zeliFilterSharpen, none, sharpen, kNone, Sharpen8)},
    };
    std::vector<FilterMember> all;
    for (auto& g : groups) all.insert(all.end(), g.begin(), g.end());
    return all;
}

}  // namespace zel::test
