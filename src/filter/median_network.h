// Selection networks of the fixed-window medians, built at compile time.
//
// A network is a list of compare-exchanges on numbered wires: after
// exchange (a, b) wire a holds the smaller, wire b the larger of the two
// values. Sorting is Batcher's merge exchange (valid for any count). A
// median needs only one output wire, so every network is pruned backwards
// from it: an exchange whose outputs nobody reads is dropped, and one whose
// minimum (or maximum) alone is read computes only that.
//
// Windows come in two shapes:
// - `Taps`: a list of (dx, dy) offsets around the pixel (repeated offsets
//   count more than once); the network sorts all wires.
// - `Square<R>`: the (2R+1)^2 square, fed with columns that are already
//   sorted (the column pass computes them once per source column). Its
//   network sorts every row of the matrix of sorted columns; afterwards
//   rows and columns are both ordered, an element with at least m elements
//   at or after it (m the median's rank) lies below the median, and the
//   median is the median of the elements that are neither certainly below
//   nor certainly above (3x3: three of them, 5x5: thirteen, 7x7:
//   twenty-nine).
#pragma once

#include <cstddef>
#include <cstdint>

namespace zel::filter {

struct Exchange {
    std::int8_t a = 0, b = 0;
    std::uint8_t keep = 3;  // bit 0: the minimum is read later, bit 1: the maximum
};

constexpr int kMaxWires = 64;
constexpr int kMaxExchanges = 512;

struct Network {
    Exchange at[kMaxExchanges] = {};
    int count = 0;
    int wires = 0;
    int out = 0;

    constexpr void add(int a, int b) {
        at[count].a = static_cast<std::int8_t>(a);
        at[count].b = static_cast<std::int8_t>(b);
        at[count].keep = 3;
        ++count;
    }
    // Sorts the values of wires list[0..n) so that list[i] holds the i-th
    // smallest (Knuth, Algorithm 5.2.2M).
    constexpr void sort(const int* list, int n) {
        if (n < 2) return;
        int t = 0;
        while ((1 << t) < n) ++t;
        for (int p = 1 << (t - 1); p > 0; p >>= 1) {
            int q = 1 << (t - 1), r = 0, d = p;
            for (;;) {
                for (int i = 0; i < n - d; ++i)
                    if ((i & p) == r) add(list[i], list[i + d]);
                if (q == p) break;
                d = q - p;
                q >>= 1;
                r = p;
            }
        }
    }
    // Keeps only what wire `out` depends on.
    constexpr void pruneTo(int wire) {
        out = wire;
        bool needed[kMaxWires] = {};
        needed[wire] = true;
        for (int i = count - 1; i >= 0; --i) {
            Exchange& e = at[i];
            const int keep = (needed[e.a] ? 1 : 0) | (needed[e.b] ? 2 : 0);
            e.keep = static_cast<std::uint8_t>(keep);
            if (keep) needed[e.a] = needed[e.b] = true;
        }
        int n = 0;
        for (int i = 0; i < count; ++i)
            if (at[i].keep) at[n++] = at[i];
        count = n;
    }
    // Whether the network reads wire w at all.
    constexpr bool reads(int w) const {
        if (w == out) return true;
        for (int i = 0; i < count; ++i)
            if (at[i].a == w || at[i].b == w) return true;
        return false;
    }
};

// The sorting network of n wires (no pruning): the column pass.
constexpr Network sortingNetwork(int n) {
    Network net;
    net.wires = n;
    int list[kMaxWires] = {};
    for (int i = 0; i < n; ++i) list[i] = i;
    net.sort(list, n);
    net.out = -1;
    return net;
}

// The median of n wires.
constexpr Network medianNetwork(int n) {
    Network net = sortingNetwork(n);
    net.pruneTo(n / 2);
    return net;
}

// The median of a k x k matrix given as k sorted columns: wire k * c + r is
// row r (ascending) of column c.
constexpr Network squareMedianNetwork(int k) {
    Network net;
    net.wires = k * k;
    int list[kMaxWires] = {};
    for (int r = 0; r < k; ++r) {
        for (int c = 0; c < k; ++c) list[c] = k * c + r;
        net.sort(list, k);
    }
    const int m = (k * k + 1) / 2;  // the median's rank, from 1
    int n = 0;
    for (int c = 0; c < k; ++c)
        for (int r = 0; r < k; ++r)
            if ((c + 1) * (r + 1) <= m && (k - c) * (k - r) <= m) list[n++] = k * c + r;
    net.sort(list, n);
    net.pruneTo(list[n / 2]);
    return net;
}

struct Tap {
    int dx, dy;
};

// Window shapes of the tap kernels: Count taps, reaching Radius pixels.
struct Horiz3 {
    static constexpr int kCount = 3, kRadius = 1;
    static constexpr Tap kTaps[kCount] = {{-1, 0}, {0, 0}, {1, 0}};
};
struct Horiz5 {
    static constexpr int kCount = 5, kRadius = 2;
    static constexpr Tap kTaps[kCount] = {{-2, 0}, {-1, 0}, {0, 0}, {1, 0}, {2, 0}};
};
struct Vert3 {
    static constexpr int kCount = 3, kRadius = 1;
    static constexpr Tap kTaps[kCount] = {{0, -1}, {0, 0}, {0, 1}};
};
struct Vert5 {
    static constexpr int kCount = 5, kRadius = 2;
    static constexpr Tap kTaps[kCount] = {{0, -2}, {0, -1}, {0, 0}, {0, 1}, {0, 2}};
};
// The centre row and the centre column of the square.
struct Cross3 {
    static constexpr int kCount = 5, kRadius = 1;
    static constexpr Tap kTaps[kCount] = {{0, -1}, {-1, 0}, {0, 0}, {1, 0}, {0, 1}};
};
struct Cross5 {
    static constexpr int kCount = 9, kRadius = 2;
    static constexpr Tap kTaps[kCount] = {{0, -2}, {0, -1}, {-2, 0}, {-1, 0}, {0, 0},
                                          {1, 0},  {2, 0},  {0, 1},  {0, 2}};
};
// The 3x3 square with the centre counted Weight times.
template <int Weight>
struct WeightedCentre {
    static constexpr int kCount = 8 + Weight, kRadius = 1;
    static constexpr auto taps() {
        struct List {
            Tap at[kCount];
        } list{};
        int n = 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                for (int k = 0; k < (dx == 0 && dy == 0 ? Weight : 1); ++k) list.at[n++] = Tap{dx, dy};
        return list;
    }
    static constexpr auto kList = taps();
    static constexpr const Tap* kTaps = kList.at;
};

template <class Shape>
struct TapNetwork {
    static constexpr Network kNet = medianNetwork(Shape::kCount);
};
template <int R>
struct SquareNetworks {
    static constexpr Network kColumn = sortingNetwork(2 * R + 1);
    static constexpr Network kNet = squareMedianNetwork(2 * R + 1);
};

// Elements of a row the square kernels sort by columns per pass: the
// sorted columns of a chunk stay in the first-level cache until the row
// pass reads them. A multiple of every vector length and of four-channel
// pixels.
constexpr std::ptrdiff_t kMedianChunk = 1024;

}  // namespace zel::filter
