#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

#include "moves.h"

namespace {

using namespace zel::test;
using Order = std::array<int, 4>;
constexpr Mode kInPlace = Mode::inPlace;

// Orders with permutations, repeated channels and (for 4-channel sources)
// the fourth channel. C3C4R entries: 0..2 a source channel, 3 the fill value
// (8u, which gets 255) or kept (other types, which have no fill value),
// anything else kept.
template <class T, class Fn, class ThreeToFour>
void checkSwap(Fn c3, Fn ac4, Fn c4c3, ThreeToFour c3c4) {
    std::vector<Member<T>> members;
    for (Order o : {Order{2, 1, 0}, Order{1, 2, 0}, Order{0, 0, 2}}) {
        members.push_back({"C3R", {3, 3, 0, 0, o}, run<T>(c3), o, true});
        members.push_back({"AC4R", {4, 4, 0, 0, {o[0], o[1], o[2], K}}, run<T>(ac4), o, true});
    }
    for (Order o : {Order{3, 2, 1}, Order{0, 3, 3}, Order{2, 0, 1}})
        members.push_back({"C4C3R", {4, 3, 0, 0, o}, run<T>(c4c3), o});
    const int opaque = std::is_same_v<T, Zel8u> ? F : K;
    const Order fill = {255, 255, 255, 255};
    members.push_back({"C3C4R reversed, opaque", {3, 4, 0, 0, {2, 1, 0, opaque}, fill}, run<T>(c3c4), {2, 1, 0, 3}});
    members.push_back({"C3C4R alpha kept", {3, 4, 0, 0, {0, 1, 2, K}, fill}, run<T>(c3c4), {0, 1, 2, 4}});
    members.push_back({"C3C4R large entries", {3, 4, 0, 0, {K, opaque, 0, 2}, fill}, run<T>(c3c4), {5, 3, 0, 2}});
    members.push_back({"C3C4R fourth unchecked", {3, 4, 0, 0, {1, 1, 1, K}, fill}, run<T>(c3c4), {1, 1, 1, -7}});
    checkMembers(members);
}

#define CHECK_SWAP(T, t)                                                                                \
    checkSwap<T>(zeliSwapChannels_##t##_C3R, zeliSwapChannels_##t##_AC4R, zeliSwapChannels_##t##_C4C3R, \
                 zeliSwapChannels_##t##_C3C4R);

TEST(SwapChannels, EveryMemberMatchesTheReference) {
    FOR_EACH_TYPE(CHECK_SWAP)
    std::vector<Member<Zel8u>> inPlace;
    for (Order o : {Order{2, 1, 0, 3}, Order{3, 0, 0, 1}, Order{1, 2, 3, 0}}) {
        const Order o3 = {o[0] % 3, o[1] % 3, o[2] % 3};
        inPlace.push_back({"C3IR", {3, 3, 0, 0, o3, {}, kInPlace}, run<Zel8u>(zeliSwapChannels_8u_C3IR), o3, true});
        inPlace.push_back({"C4IR", {4, 4, 0, 0, o, {}, kInPlace}, run<Zel8u>(zeliSwapChannels_8u_C4IR), o, true});
    }
    checkMembers(inPlace);
}

}  // namespace
