// Argument-check tests: each call breaks one or more arguments and must come
// back with the expected status, having written nothing.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "zeli.h"

namespace zel::test {

struct Rejection {
    std::string what;
    int expected;
    std::function<int()> call;
};

// `watched` are the images the calls could write (their snapshot() taken).
template <class... Watched>
void expectRejected(const std::vector<Rejection>& cases, Watched&... watched) {
    for (const Rejection& r : cases) {
        SCOPED_TRACE(r.what);
        EXPECT_EQ(r.call(), r.expected);
        const bool untouched[] = {watched.unchanged()...};
        for (bool u : untouched) EXPECT_TRUE(u) << "a watched image was written";
    }
}

}  // namespace zel::test
