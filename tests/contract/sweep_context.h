// Arguments of one sweep call and the guarded buffers behind its images.
//
// The call table (written at build time by make_call_table.py) describes each
// function's image operands and calls it with arguments taken from a
// SweepContext: operand pointers and steps, the ROI, constants, the scale
// factor, the rounding mode, the channel order. A context lays out every
// image inside a buffer with at least kMargin pixels (and kMargin rows) of
// random bytes around the ROI (or, for tight rows that a call may treat as
// one long row, kMargin rows above and below only), remembers every byte, and can break one
// argument at a time (a null pointer, a step) for the rejection cases.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <climits>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "zeli.h"

namespace zel::contract {

struct OperandInfo {
    const char* param;
    int elemBytes;     // bytes of one channel element
    int channels;      // elements per pixel (1 for each plane of a planar operand)
    int writableMask;  // channels of a ROI pixel the call may write (bit k: channel k)
    int channelOffset; // the pointer addresses this channel of the first pixel
    int planes;        // 0: interleaved; 3 or 4: that many planes sharing one step
    bool dst;
    bool isFloat;
    bool transposed;   // roi.height wide and roi.width high
    const char* stepName;
    int grow = 0;      // the image is the ROI grown by this many pixels on every side (border members)
    int inset = 0;     // the pointer addresses the pixel this many pixels and rows inside the image
};

// A pointer the rejection cases set to null: operand index (or -2 for the
// constant array, -3 for the channel order) and plane (-1: the pointer or
// the plane array itself).
struct NullCase {
    const char* what;
    int operand;
    int plane;
};

class SweepContext;
struct CallEntry;
inline bool hasBorder(const CallEntry& e);

// How a member checks its mask code: not at all (no mask), 33 and 55 only,
// or 33 as 3x3 and any other value as 5x5; 31 and 51 only (horiz), 13 and 15
// only (vert); an odd rectangle and an anchor inside it (oddRect); a weight
// of at least 1 (weight).
enum class MaskCheck { none, strict, lenient, horiz, vert, oddRect, weight };

// The valid mask codes of a member that checks them: {3-long, 5-long}.
inline std::array<int, 2> validCodes(MaskCheck m) {
    if (m == MaskCheck::horiz) return {zelMaskCode3x1, zelMaskCode5x1};
    if (m == MaskCheck::vert) return {zelMaskCode1x3, zelMaskCode1x5};
    return {zelMaskCode3x3, zelMaskCode5x5};
}

// How a member checks its comparison op: not at all; 0 and 4 only, after
// the other checks (Threshold) or before all of them (Threshold_Val); or an
// op outside 0..4 succeeds and writes nothing (Compare, CompareC).
enum class OpCheck { none, thresholdLast, thresholdFirst, silent };

struct CallEntry {
    const char* name;
    const char* family;
    std::vector<OperandInfo> ops;
    std::vector<NullCase> nulls;
    std::vector<int> steps;  // the operand each step argument belongs to, in order
    bool checksSteps;
    bool hasRndMode;
    MaskCheck maskCheck;
    int orderLength;  // entries of dstOrder, 0 when there is none
    bool squareRoi;   // in-place transposition: square ROIs only
    const char* layout;
    OpCheck opCheck;
    bool hasEps;        // a tolerance; below 0 is rejected
    bool crossable;     // lower and upper thresholds that must not cross
    bool outValue;      // writes only through output pointers (Otsu, the statistics)
    int (*call)(SweepContext&);
    bool hasKernel = false;   // a user kernel: its size below 1 is rejected
    bool hasDivisor = false;  // a divisor: 0 is rejected
    bool hasFactor = false;   // a decimation factor: 0 is rejected
};

// Border members take a destination size and the source's place in it.
inline bool hasBorder(const CallEntry& e) {
    for (const OperandInfo& info : e.ops)
        if (info.grow > 0) return true;
    return false;
}

enum class FrameKind { malloc, free, setThreads, getIntOut, version, nan, dotProdCol, bufferSize };

struct FrameEntry {
    const char* name;
    FrameKind kind;
    int pixelBytes;  // zeliMalloc_*: bytes of one pixel
    void (*fn)();    // the function, cast back according to kind
};

// How the buffers of one call are laid out.
struct Geometry {
    ZeliSize roi{7, 5};
    int padElements = 3;     // extra elements at the end of every row
    int offsetElements = 1;  // extra elements before the ROI's first pixel
    bool tight = false;      // rows follow one another (no margin left and right, no padding)
    bool upward = false;     // pointers at the last ROI row and negated steps (same bytes)
    std::uint32_t seed = 1;
};

class SweepContext {
public:
    static constexpr int kMargin = 16;  // pixels left and right, rows above and below

    // Arguments the thunks read.
    ZeliSize roi{};
    // Border members: the destination size and the source's place in it.
    ZeliSize dstRoi{};
    int top = 0, left = 0;
    int scaleFactor = 1;
    int rndMode = 1;
    int mask = zelMaskCode3x3;
    int flags = 0;
    Zel8u val = 200;
    int cmpOp = 0;
    Zel32f eps = 1.f;
    bool crossThresholds = false;  // thresholdGT below thresholdLT in channel 0
    int bitSize = 7;               // palettes
    int alphaValue = 200;          // palettes from three channels to four
    // Window filters and morphology: the window or mask size, its anchor,
    // and the morphology mask's bytes (maskSize.width x maskSize.height).
    ZeliSize maskSize{3, 3};
    ZeliPoint anchor{1, 1};
    std::array<Zel8u, 25> maskBytes{};
    int weight = 1;
    int alphaType = 0;             // alpha compositing: zelCompositeOver ... PlusPremultiplied
    // User-kernel filters: kernel extent, anchor (inside or just outside),
    // divisor, decimation factor; zeroKernel breaks the kernel size.
    int kernelW = 3, kernelH = 3, anchorX = 1, anchorY = 1, divisor = 3, factor = 1;
    bool zeroKernel = false;

    void setup(const CallEntry& entry, const Geometry& g) {
        entry_ = &entry;
        roi = g.roi;
        int grow = 0;
        for (const OperandInfo& info : entry.ops) grow = std::max(grow, info.grow);
        dstRoi = {g.roi.width + 2 * grow, g.roi.height + 2 * grow};
        top = left = grow;
        scaleFactor = 1;
        rndMode = 1;
        mask = validCodes(entry.maskCheck)[0];
        maskSize = {3, 3};
        anchor = {1, 1};
        weight = 1;
        flags = 0;
        val = 200;
        cmpOp = entry.opCheck == OpCheck::thresholdLast || entry.opCheck == OpCheck::thresholdFirst ? 4 : 1;
        eps = 1.f;
        crossThresholds = false;
        bitSize = entry.ops.empty() ? 7 : 8 * entry.ops[0].elemBytes - 1;
        alphaValue = 200;
        for (int c = 0; c < 4; ++c) {
            // Five levels from below the range to above it, values across it.
            static constexpr double kLevels[8] = {-0.05, 0.2, 0.45, 0.7, 1.05, 1.1, 1.15, 1.2};
            static constexpr double kValues[8] = {0.9, 0.1, 0.6, 0.3, 0.5, 0.2, 0.4, 0.8};
            levelCounts_[c] = 5;
            for (int k = 0; k < 8; ++k) shapes_[1][c][k] = kLevels[k] + 0.01 * c, shapes_[0][c][k] = kValues[k];
        }
        alphaType = 0;
        kernelW = kernelH = 3;
        anchorX = anchorY = 1;
        divisor = 3;
        factor = 1;
        zeroKernel = false;
        for (int k = 0; k < kKernelElements; ++k) kernelValues_[k] = (k * 7) % 9 - 3;
        maskBytes.fill(0);
        for (int k : {1, 3, 4, 5, 7}) maskBytes[k] = 1;  // a cross
        outByte_ = outBefore_ = 0xa5;
        std::memset(outStore_, 0xa5, sizeof outStore_);
        nullOperand_ = nullPlane_ = -100;
        aliasSource_ = aliasTarget_ = -1;
        std::mt19937 rng(g.seed);
        ops_.assign(entry.ops.size(), {});
        for (std::size_t i = 0; i < entry.ops.size(); ++i) {
            const OperandInfo& info = entry.ops[i];
            Buffers& b = ops_[i];
            b.width = (info.transposed ? g.roi.height : g.roi.width) + 2 * info.grow;
            b.height = (info.transposed ? g.roi.width : g.roi.height) + 2 * info.grow;
            b.pixelBytes = info.elemBytes * info.channels;
            const int side = g.tight ? 0 : kMargin;
            b.step = (b.width + 2 * side) * b.pixelBytes + (g.tight ? 0 : g.padElements * info.elemBytes);
            b.offset = std::ptrdiff_t{kMargin} * b.step + side * b.pixelBytes +
                       (g.offsetElements + info.channelOffset) * info.elemBytes;
            b.stepArg = g.upward ? -b.step : b.step;
            b.pointerOffset = b.offset + std::ptrdiff_t{info.inset} * (b.step + b.pixelBytes) +
                              (g.upward ? std::ptrdiff_t{b.height - 1} * b.step : 0);
            const std::size_t bytes = std::size_t(b.step) * (b.height + 2 * kMargin) +
                                      std::size_t(g.offsetElements + 1) * info.elemBytes;
            b.planes.assign(std::max(info.planes, 1), {});
            for (auto& p : b.planes) {
                p.resize(bytes);
                fillRandom(p, rng, info, std::strcmp(info.param, "pMask") == 0);
            }
        }
        std::uniform_int_distribution<int> small(1, 100);
        for (auto& v : constants_) v = small(rng);
        if (entry.orderLength == 4) {
            // C3C4: {2, 1, 0, 3} (the fourth entry fills the channel); C4IR: {3, 2, 1, 0}
            if (std::strcmp(entry.layout, "C3C4") == 0) order_ = {2, 1, 0, 3};
            else order_ = {3, 2, 1, 0};
        } else {
            order_ = {2, 1, 0, 0};
        }
        snapshot();
    }

    // Random argument values for the seeded mode (constants never zero).
    void randomizeArguments(std::mt19937& rng) {
        // Mostly small constants and scale factors inside the band where
        // results vary; one draw in five reaches the extremes.
        const bool extreme = rng() % 5 == 0;
        std::uniform_int_distribution<int> constant(-300, 300);
        for (auto& v : constants_) {
            do v = extreme ? static_cast<int>(rng()) : constant(rng);
            while (v == 0);
        }
        static constexpr int kExtremeScales[] = {INT_MIN, INT_MIN + 1, -1000, -64, -33, -32, -31, -17,
                                                 31, 32, 33, 63, 64, 1000, INT_MAX};
        scaleFactor = extreme ? kExtremeScales[rng() % std::size(kExtremeScales)]
                              : std::uniform_int_distribution<int>(-4, 34)(rng);
        rndMode = std::uniform_int_distribution<int>(0, 2)(rng);
        mask = entry_->maskCheck == MaskCheck::lenient && extreme ? static_cast<int>(rng())
               : validCodes(entry_->maskCheck)[rng() % 2];
        // Odd sides up to 7 (every dispatch path of the rectangle median),
        // the anchor anywhere inside; weights around the rules' edges.
        maskSize = {static_cast<int>(rng() % 4) * 2 + 1, static_cast<int>(rng() % 4) * 2 + 1};
        anchor = {static_cast<int>(rng() % maskSize.width), static_cast<int>(rng() % maskSize.height)};
        weight = static_cast<int>(rng() % 12) + 1;
        flags = static_cast<int>(rng());
        val = static_cast<Zel8u>(rng());
        if (entry_->opCheck == OpCheck::thresholdLast || entry_->opCheck == OpCheck::thresholdFirst)
            cmpOp = rng() % 2 ? zelCompareLess : zelCompareGreater;
        else
            cmpOp = static_cast<int>(rng() % 5);
        kernelW = std::uniform_int_distribution<int>(1, 5)(rng);
        kernelH = std::uniform_int_distribution<int>(1, 5)(rng);
        anchorX = std::uniform_int_distribution<int>(-1, kernelW)(rng);
        anchorY = std::uniform_int_distribution<int>(-1, kernelH)(rng);
        static constexpr int kDivisors[] = {1, 2, 4, 16, 3, 7, -1, -5};
        divisor = kDivisors[rng() % std::size(kDivisors)];
        for (int& v : kernelValues_) v = std::uniform_int_distribution<int>(-3, 6)(rng);
        if (entry_->maskCheck != MaskCheck::oddRect) {  // medians keep odd windows
            maskSize = {std::uniform_int_distribution<int>(1, 5)(rng), std::uniform_int_distribution<int>(1, 5)(rng)};
            anchor = {std::uniform_int_distribution<int>(0, maskSize.width - 1)(rng),
                      std::uniform_int_distribution<int>(0, maskSize.height - 1)(rng)};
        }
        for (auto& b : maskBytes) b = rng() % 3 == 0 ? 0 : static_cast<Zel8u>(rng());
        maskBytes[rng() % (maskSize.width * maskSize.height)] = 1;  // never without a member
        static constexpr float kEps[] = {0.f, 0.125f, 1.f, 30.f, 1000.f, 1e30f};
        eps = kEps[rng() % std::size(kEps)];
        if (entry_->orderLength > 0) {
            const bool fourIn = std::strcmp(entry_->layout, "C4") == 0 || std::strcmp(entry_->layout, "C4C3") == 0;
            // C3C4 entries above 2 fill the channel (3, 8u) or keep it.
            const int range = std::strcmp(entry_->layout, "C3C4") == 0 ? 6 : fourIn ? 4 : 3;
            for (int k = 0; k < entry_->orderLength; ++k)
                order_[k] = std::uniform_int_distribution<int>(0, range - 1)(rng);
        }
        alphaType = static_cast<int>(rng() % 12);
        if (std::strncmp(entry_->family, "LUT", 3) == 0) randomizeCurves(rng);
    }

    // Look-up tables: 2 to 8 levels a channel, a third of them unsorted,
    // levels and values over the type's range and a little beyond; palettes:
    // any bit size, alpha values inside and outside the range.
    void randomizeCurves(std::mt19937& rng) {
        std::uniform_real_distribution<double> shape(-0.1, 1.1);
        for (int c = 0; c < 4; ++c) {
            levelCounts_[c] = std::uniform_int_distribution<int>(2, 8)(rng);
            for (int k = 0; k < 8; ++k) shapes_[0][c][k] = shape(rng), shapes_[1][c][k] = shape(rng);
            if (rng() % 3 != 0) std::sort(shapes_[1][c], shapes_[1][c] + levelCounts_[c]);
        }
        bitSize = std::uniform_int_distribution<int>(1, 8 * entry_->ops[0].elemBytes)(rng);
        static constexpr int kAlphas[] = {0, 200, 255, 65535, -1, 256, 65536, INT_MIN};
        alphaValue = kAlphas[rng() % std::size(kAlphas)];
    }

    // The thunks' view.
    template <class T>
    T* ptr(int i) {
        if (nullOperand_ == i) return nullptr;
        if (i == aliasSource_) i = aliasTarget_;
        return reinterpret_cast<T*>(ops_[i].planes[0].data() + ops_[i].pointerOffset);
    }
    template <class T>
    T* const* planes(int i) {
        if (nullOperand_ == i && nullPlane_ < 0) return nullptr;
        auto& arr = planePtrs_[i];
        for (std::size_t k = 0; k < ops_[i].planes.size(); ++k)
            arr[k] = nullOperand_ == i && nullPlane_ == int(k) ? nullptr : ops_[i].planes[k].data() + ops_[i].pointerOffset;
        return reinterpret_cast<T* const*>(arr.data());
    }
    int step(int i) const { return ops_[i == aliasSource_ ? aliasTarget_ : i].stepArg; }

    // Source operand `source` passed with the pointer and step of operand
    // `target` (both laid out alike); -1 ends it.
    void alias(int source, int target) {
        aliasSource_ = source;
        aliasTarget_ = target;
    }
    // The source gets the destination's bytes, as the aliased call sees them.
    void copyOperand(int from, int to) {
        ops_[to].planes = ops_[from].planes;
        ops_[to].before = ops_[from].before;
    }
    bool sameLayout(int a, int b) const {
        return ops_[a].planes.size() == ops_[b].planes.size() && ops_[a].step == ops_[b].step &&
               ops_[a].offset == ops_[b].offset && ops_[a].planes[0].size() == ops_[b].planes[0].size();
    }
    const std::vector<std::uint8_t>& operandBytes(int i) const { return ops_[i].planes[0]; }
    template <class T>
    T scalar() const {
        return element<T>(0);
    }
    template <class T>
    const T* values() {
        if (nullOperand_ == -2) return nullptr;
        T* out = reinterpret_cast<T*>(valueStore_);
        for (int k = 0; k < 4; ++k) out[k] = element<T>(k);
        return out;
    }
    // Threshold and value arrays (slot 1: lower thresholds, 2: upper ones,
    // 3 and 4: their values) and their C1 scalars. Thresholds lie around the
    // middle of the type's range so that random pixels fall on both sides;
    // the upper ones are never below the lower ones unless crossThresholds.
    template <class T>
    const T* limits(int slot) {
        if (nullOperand_ == -10 - slot) return nullptr;
        T* out = reinterpret_cast<T*>(limitStore_[slot]);
        for (int k = 0; k < 4; ++k) out[k] = limitElement<T>(slot, k);
        return out;
    }
    template <class T>
    T limit(int slot) const {
        return limitElement<T>(slot, 0);
    }
    Zel8u* outByte() { return nullOperand_ == -4 ? nullptr : &outByte_; }
    // Result arrays of the statistics (sums, extrema, indices, counts):
    // output `slot` of the call, null when the case breaks it (-30 - slot).
    template <class T>
    T* out(int slot) {
        return nullOperand_ == -30 - slot ? nullptr : reinterpret_cast<T*>(outStore_[slot]);
    }
    // Curves of the look-up tables (slot 0: values, 1: levels), scaled from
    // their shapes to [lo, hi], for channel 0 or as an array of `channels`.
    template <class V>
    const V* curve(int slot, int lo, int hi) {
        return nullOperand_ == -20 - slot ? nullptr : curveData<V>(slot, 0, lo, hi);
    }
    template <class V>
    const V* const* curves(int slot, int channels, int lo, int hi) {
        if (nullOperand_ == -20 - slot && nullPlane_ < 0) return nullptr;
        for (int k = 0; k < channels; ++k)
            curvePtrs_[slot][k] = nullOperand_ == -20 - slot && nullPlane_ == k ? nullptr : curveData<V>(slot, k, lo, hi);
        return reinterpret_cast<const V* const*>(curvePtrs_[slot]);
    }
    int levelCount() const { return levelCounts_[0]; }
    const int* levelCounts() const { return nullOperand_ == -22 ? nullptr : levelCounts_; }
    void setLevelCount(int channel, int n) { levelCounts_[channel] = n; }
    // Palette tables: 65536 random entries of up to four bytes each.
    template <class E>
    const E* table() {
        return nullOperand_ == -23 ? nullptr : reinterpret_cast<const E*>(paletteTable(0));
    }
    template <class E>
    const E* const* tables() {
        if (nullOperand_ == -23 && nullPlane_ < 0) return nullptr;
        for (int k = 0; k < 3; ++k) tablePtrs_[k] = nullOperand_ == -23 && nullPlane_ == k ? nullptr : paletteTable(k);
        return reinterpret_cast<const E* const*>(tablePtrs_);
    }
    // The kernel's elements (floats are quarters of the integers).
    template <class K>
    const K* kernel() {
        if (nullOperand_ == -5) return nullptr;
        K* out = reinterpret_cast<K*>(kernelStore_);
        for (int k = 0; k < kKernelElements; ++k)
            out[k] = std::is_floating_point_v<K> ? static_cast<K>(kernelValues_[k] * 0.25) : static_cast<K>(kernelValues_[k]);
        return out;
    }
    // Kernel widths are cut to what the source step holds, so that rows
    // laid out tight still make valid calls.
    ZeliSize kernelSize() const { return {zeroKernel ? 0 : fittingWidth(), kernelH}; }
    int rowKernelLength() const { return zeroKernel ? 0 : fittingWidth(); }
    int columnKernelLength() const { return zeroKernel ? 0 : kernelH; }
    Zel8u* workBuffer() { return nullOperand_ == -6 ? nullptr : workBuffer_.data(); }
    const Zel8u* morphMask() const { return nullOperand_ == -7 ? nullptr : maskBytes.data(); }
    const int* order() const { return nullOperand_ == -3 ? nullptr : order_.data(); }

    // Breaking one argument.
    void setNull(const NullCase& n) {
        nullOperand_ = n.operand;
        nullPlane_ = n.plane;
    }
    void setStep(int operand, int step) { ops_[operand].stepArg = step; }
    int naturalStep(int operand) const { return ops_[operand].step; }
    bool upward() const { return !ops_.empty() && ops_[0].stepArg < 0; }
    void setOrderEntry(int k, int v) { order_[k] = v; }
    std::array<int, 4> orderEntries() const { return order_; }

    // Checks against the snapshot taken by setup().
    void snapshot() {
        for (auto& b : ops_) b.before = b.planes;
    }
    bool unchanged() const {
        if (outByte_ != outBefore_) return false;
        for (const auto& slot : outStore_)
            for (std::uint8_t b : slot)
                if (b != 0xa5) return false;
        for (const auto& b : ops_)
            if (b.planes != b.before) return false;
        return true;
    }
    // Empty when only the writable channels of destination ROI pixels
    // changed; otherwise where the first stray byte lies.
    std::string strayWrite() const {
        for (std::size_t i = 0; i < ops_.size(); ++i) {
            const OperandInfo& info = entry_->ops[i];
            const Buffers& b = ops_[i];
            for (std::size_t p = 0; p < b.planes.size(); ++p) {
                std::vector<bool> mine(b.planes[p].size(), false);
                if (info.dst) {
                    const int writable = writableMask(info);
                    const std::ptrdiff_t first = b.offset - std::ptrdiff_t{info.channelOffset} * info.elemBytes;
                    for (int y = 0; y < b.height; ++y)
                        for (int x = 0; x < b.width; ++x)
                            for (int c = 0; c < info.channels && maskSelects(x, y); ++c)
                                if (writable >> c & 1) {
                                    const std::ptrdiff_t at = first + std::ptrdiff_t{y} * b.step +
                                                              std::ptrdiff_t{x} * b.pixelBytes + c * info.elemBytes;
                                    std::fill_n(mine.begin() + at, info.elemBytes, true);
                                }
                }
                for (std::size_t k = 0; k < mine.size(); ++k)
                    if (!mine[k] && b.planes[p][k] != b.before[p][k]) {
                        const std::ptrdiff_t rel = std::ptrdiff_t(k) - b.offset;
                        return std::string(info.param) + (b.planes.size() > 1 ? "[" + std::to_string(p) + "]" : "") +
                               ": byte " + std::to_string(rel) + " from the ROI start (row " +
                               std::to_string(rel >= 0 ? rel / b.step : -((-rel + b.step - 1) / b.step)) +
                               ") changed";
                    }
            }
        }
        return {};
    }
    // Every byte of every operand, for comparing runs.
    std::vector<std::uint8_t> contents() const {
        std::vector<std::uint8_t> all{outByte_};
        for (const auto& slot : outStore_) all.insert(all.end(), std::begin(slot), std::end(slot));
        for (const auto& b : ops_)
            for (const auto& p : b.planes) all.insert(all.end(), p.begin(), p.end());
        return all;
    }

    std::string describe() const {
        std::string s = std::string(entry_->name) + " roi " + std::to_string(roi.width) + "x" +
                        std::to_string(roi.height) + " steps";
        for (const auto& b : ops_) s += " " + std::to_string(b.stepArg);
        if (upward()) s += " (upward)";
        if (hasBorder(*entry_))
            s += " dstRoi " + std::to_string(dstRoi.width) + "x" + std::to_string(dstRoi.height) + " top " +
                 std::to_string(top) + " left " + std::to_string(left);
        s += " scaleFactor " + std::to_string(scaleFactor);
        s += " constants";
        for (int v : constants_) s += " " + std::to_string(v);
        if (entry_->hasRndMode) s += " rndMode " + std::to_string(rndMode);
        if (entry_->opCheck != OpCheck::none) s += " cmpOp " + std::to_string(cmpOp);
        if (entry_->hasEps) s += " eps " + std::to_string(eps);
        if (crossThresholds) s += " (crossed thresholds)";
        if (std::strncmp(entry_->family, "LUT", 3) == 0) {
            s += " nLevels";
            for (int n : levelCounts_) s += " " + std::to_string(n);
            s += " nBitSize " + std::to_string(bitSize) + " alpha " + std::to_string(alphaValue);
        }
        if (entry_->maskCheck == MaskCheck::oddRect)
            s += " mask " + std::to_string(maskSize.width) + "x" + std::to_string(maskSize.height) + " anchor " +
                 std::to_string(anchor.x) + "," + std::to_string(anchor.y);
        else if (entry_->maskCheck == MaskCheck::weight) s += " weight " + std::to_string(weight);
        else if (entry_->maskCheck != MaskCheck::none) s += " mask " + std::to_string(mask);
        if (std::strncmp(entry_->family, "AlphaComp", 9) == 0) s += " alphaType " + std::to_string(alphaType);
        if (entry_->maskCheck != MaskCheck::oddRect)
            s += " maskSize " + std::to_string(maskSize.width) + "x" + std::to_string(maskSize.height) + " anchor " +
                 std::to_string(anchor.x) + "," + std::to_string(anchor.y);
        if (entry_->orderLength > 0) {
            s += " order";
            for (int k = 0; k < entry_->orderLength; ++k) s += " " + std::to_string(order_[k]);
        }
        return s;
    }

private:
    struct Buffers {
        std::vector<std::vector<std::uint8_t>> planes, before;
        int width = 0, height = 0, pixelBytes = 0, step = 0, stepArg = 0;
        std::ptrdiff_t offset = 0;         // the first ROI pixel (top row)
        std::ptrdiff_t pointerOffset = 0;  // where the pointer argument points
    };

    // Pixels a mask excludes are not the call's to write.
    bool maskSelects(int x, int y) const {
        for (std::size_t i = 0; i < ops_.size(); ++i)
            if (std::strcmp(entry_->ops[i].param, "pMask") == 0)
                return ops_[i].before[0][ops_[i].offset + std::ptrdiff_t{y} * ops_[i].step + x] != 0;
        return true;
    }

    // SwapChannels C3C4: entries 0..2 take a source channel, 3 writes the
    // fill value (8u only), any other value keeps the destination channel.
    int writableMask(const OperandInfo& info) const {
        if (std::strcmp(entry_->layout, "C3C4") != 0 || std::strcmp(entry_->family, "SwapChannels") != 0)
            return info.writableMask;
        int mask = 0;
        for (int k = 0; k < 4; ++k)
            if ((order_[k] >= 0 && order_[k] <= 2) || (order_[k] == 3 && info.elemBytes == 1)) mask |= 1 << k;
        return mask;
    }

    static void fillRandom(std::vector<std::uint8_t>& bytes, std::mt19937& rng, const OperandInfo& info,
                           bool mask) {
        std::size_t k = 0;
        if (info.isFloat) {
            std::uniform_real_distribution<float> value(-1000.f, 1000.f);
            for (; k + 4 <= bytes.size(); k += 4) {
                const float f = value(rng);
                std::memcpy(&bytes[k], &f, 4);
            }
        }
        for (; k < bytes.size(); ++k) {
            const auto r = static_cast<std::uint32_t>(rng());
            bytes[k] = mask && (r & 0x100) ? 0 : static_cast<std::uint8_t>(r);
        }
    }

    const CallEntry* entry_ = nullptr;
    std::vector<Buffers> ops_;
    std::array<std::array<void*, 4>, 8> planePtrs_{};
    // Constants: element k of a value array is built from constants_[k]
    // (complex ones from k and k + 4); never zero.
    template <class T>
    T element(int k) const {
        if constexpr (std::is_same_v<T, Zel16sc> || std::is_same_v<T, Zel32sc> || std::is_same_v<T, Zel32fc>) {
            using Part = decltype(T{}.re);
            return T{part<Part>(constants_[k]), part<Part>(constants_[k + 4])};
        } else {
            return part<T>(constants_[k]);
        }
    }
    template <class P>
    static P part(int v) {
        if constexpr (std::is_floating_point_v<P>) return static_cast<P>(v) / 8;
        else return static_cast<P>(v) != 0 ? static_cast<P>(v) : P(1);
    }
    int constants_[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    template <class T>
    T limitElement(int slot, int k) const {
        if (slot == 3 || slot == 4) return element<T>(slot == 3 ? k : (k + 4) % 8);
        const bool upper = slot == 2;
        int offset = (constants_[upper ? k + 4 : k] % 50 + 50) % 50;
        if (crossThresholds && k == 0) offset = -60;
        const int signedOffset = upper ? offset : -offset;
        if constexpr (std::is_floating_point_v<T>) return static_cast<T>(signedOffset) / 8;
        else if constexpr (std::is_signed_v<T>) return static_cast<T>(signedOffset);
        else return static_cast<T>(std::numeric_limits<T>::max() / 2 + signedOffset);
    }
    alignas(8) std::uint8_t limitStore_[5][32] = {};
    template <class V>
    const V* curveData(int slot, int channel, int lo, int hi) {
        V* out = reinterpret_cast<V*>(curveStore_[slot][channel]);
        for (int k = 0; k < 8; ++k) {
            const double v = lo + shapes_[slot][channel][k] * (double(hi) - lo);
            out[k] = std::is_floating_point_v<V> ? static_cast<V>(v) : static_cast<V>(std::floor(v));
        }
        return out;
    }
    static const void* paletteTable(int k) {
        static const std::vector<std::uint8_t> bytes = [] {
            std::vector<std::uint8_t> b(3 * 65536 * 4);
            std::mt19937 rng(77);
            for (auto& x : b) x = static_cast<std::uint8_t>(rng());
            return b;
        }();
        return bytes.data() + std::size_t(k) * 65536 * 4;
    }
    double shapes_[2][4][8] = {};
    int levelCounts_[4] = {5, 5, 5, 5};
    alignas(8) std::uint8_t curveStore_[2][4][32] = {};
    const void* curvePtrs_[2][4] = {};
    const void* tablePtrs_[3] = {};
    Zel8u outByte_ = 0xa5, outBefore_ = 0xa5;
    alignas(8) std::uint8_t outStore_[3][32] = {};
    alignas(8) std::uint8_t valueStore_[32] = {};
    std::array<int, 4> order_{};
    int nullOperand_ = -100, nullPlane_ = -100;
    int aliasSource_ = -1, aliasTarget_ = -1;
    // The widest kernel the source operand's step holds beside the ROI.
    int fittingWidth() const {
        if (ops_.empty() || ops_[0].stepArg <= 0 || roi.width < 1) return kernelW;
        const int room = ops_[0].stepArg / ops_[0].pixelBytes - roi.width + 1;
        return std::max(1, std::min(kernelW, room));
    }
    static constexpr int kKernelElements = 25;
    int kernelValues_[kKernelElements] = {};
    alignas(8) std::uint8_t kernelStore_[kKernelElements * 8] = {};
    std::vector<std::uint8_t> workBuffer_ = std::vector<std::uint8_t>(4096);
};

}  // namespace zel::contract
