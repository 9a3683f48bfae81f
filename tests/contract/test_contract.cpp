// The contract sweep: every function the public header declares, called
// through a table written from the header at build time, with valid
// arguments and with each argument broken in turn.
//
// Invariants checked for every image function:
// - a valid call returns 0 or a warning and writes nothing but the writable
//   channels of its destination's ROI pixels (the margins of random bytes
//   around every image are compared with a snapshot);
// - a null pointer, an empty or negative ROI, a non-positive step (where the
//   family checks steps), a rounding mode or channel order out of range give
//   the error status the header promises, and no byte of any operand changes;
// - results are the same under every SIMD target and thread count;
// - a function that allocates returns zelStatusNoMemory, with nothing
//   written and every block released, when any of its allocations fails.
// With ZELI_SWEEP_SECONDS set, random argument sets are drawn for that long
// (ZELI_SWEEP_SEED replays a run); without it a short seeded run is made.
#include <gtest/gtest.h>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

#include <chrono>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "contract/sweep_context.h"
#include "core/memory.h"
#include "core/parallel.h"
#include "core/simd.h"
#include "harness/declared.h"
#include "harness/pages.h"
#include "harness/sweep.h"
#include "zeli.h"

namespace zel::contract {
namespace {

#include "contract_calls.inc"

long gCalls = 0;  // calls made by this program, reported at the end

int run(SweepContext& c, const CallEntry& e) {
    ++gCalls;
    return e.call(c);
}

Geometry geometryFor(const CallEntry& e) {
    Geometry g;
    if (e.squareRoi) g.roi = {5, 5};
    return g;
}

// Families with a window or mask size and an anchor, and the morphology
// families, whose source step must hold the ROI row and the element's reach.
bool takesWindow(const CallEntry& e) {
    static const std::set<std::string> families = {"FilterMin", "FilterMax", "Dilate", "Erode"};
    return families.count(e.family) > 0;
}
bool isMorphology(const CallEntry& e) {
    static const std::set<std::string> families = {"Dilate", "Erode", "Dilate3x3", "Erode3x3"};
    return families.count(e.family) > 0;
}

// One broken argument and the status the header promises for it.
struct Breakage {
    std::string what;
    int expected;
    std::function<void(SweepContext&)> apply;
};

std::vector<Breakage> breakagesOf(const CallEntry& e, const Geometry& g) {
    std::vector<Breakage> list;
    for (const NullCase& n : e.nulls)
        list.push_back({std::string("null ") + n.what, zelStatusNullPtr, [n](SweepContext& c) { c.setNull(n); }});
    const ZeliSize sizes[] = {{0, g.roi.height}, {-1, g.roi.height}, {g.roi.width, 0}, {g.roi.width, -3},
                              {0, 0}, {-7, -5}};
    for (ZeliSize s : sizes)
        list.push_back({"roi " + std::to_string(s.width) + "x" + std::to_string(s.height), zelStatusBadSize,
                        [s](SweepContext& c) { c.roi = s; }});
    if (hasBorder(e)) {
        // The destination size and the placement are size conditions too.
        const std::pair<const char*, std::function<void(SweepContext&)>> placements[] = {
            {"dstRoi width 0", [](SweepContext& c) { c.dstRoi.width = 0; }},
            {"dstRoi height -1", [](SweepContext& c) { c.dstRoi.height = -1; }},
            {"dstRoi one column short", [](SweepContext& c) { c.dstRoi.width = c.roi.width + c.left - 1; }},
            {"dstRoi one row short", [](SweepContext& c) { c.dstRoi.height = c.roi.height + c.top - 1; }},
            {"top -1", [](SweepContext& c) { c.top = -1; }},
            {"left -1", [](SweepContext& c) { c.left = -1; }},
        };
        for (const auto& [what, apply] : placements) list.push_back({what, zelStatusBadSize, apply});
    }
    if (e.squareRoi)
        list.push_back({"non-square roi", zelStatusBadSize, [](SweepContext& c) { c.roi = {c.roi.width, c.roi.height - 1}; }});
    // Transpose out of place with pSrc == pDst: only a square ROI with equal
    // steps is defined (in place); anything else is refused.
    if (std::string(e.family) == "Transpose" && !e.squareRoi && g.roi.width != g.roi.height)
        list.push_back({"pSrc == pDst, roi not square", zelStatusBadArgument,
                        [](SweepContext& c) { c.alias(0, 1); }});
    if (e.checksSteps) {
        for (std::size_t k = 0; k < e.steps.size(); ++k) {
            const int op = e.steps[k];
            const std::string name = e.ops[op].stepName;
            list.push_back({name + " 0", zelStatusBadStep, [op](SweepContext& c) { c.setStep(op, 0); }});
            list.push_back({name + " negative", zelStatusBadStep,
                            [op](SweepContext& c) { c.setStep(op, -c.naturalStep(op)); }});
        }
    }
    if (takesWindow(e)) {
        list.push_back({"maskSize 0x3", zelStatusBadMaskSize, [](SweepContext& c) { c.maskSize = {0, 3}; }});
        list.push_back({"maskSize 3x-1", zelStatusBadMaskSize, [](SweepContext& c) { c.maskSize = {3, -1}; }});
        list.push_back({"anchor at the mask width", zelStatusBadAnchor,
                        [](SweepContext& c) { c.anchor = {c.maskSize.width, 0}; }});
        list.push_back({"anchor y -1", zelStatusBadAnchor, [](SweepContext& c) { c.anchor = {0, -1}; }});
    }
    if (isMorphology(e)) {
        if (std::string(e.family).find("3x3") == std::string::npos)
            list.push_back({"mask without a member", zelStatusZeroMask, [](SweepContext& c) { c.maskBytes.fill(0); }});
        // One byte short of the ROI row and the element's reach.
        const int op = e.steps[0];
        const int pixel = e.ops[op].elemBytes * e.ops[op].channels;
        const bool square = !takesWindow(e);
        list.push_back({"step one byte short", zelStatusStepTooSmall, [op, pixel, square](SweepContext& c) {
                            const int width = square ? 3 : c.maskSize.width;
                            c.setStep(op, (c.roi.width + width - 1) * pixel - 1);
                        }});
    }
    if (e.hasRndMode)
        for (int mode : {3, -1, 1000})
            list.push_back({"rndMode " + std::to_string(mode), zelStatusBadRoundMode,
                            [mode](SweepContext& c) { c.rndMode = mode; }});
    if (e.hasKernel)
        list.push_back({"kernel size 0", zelStatusBadSize, [](SweepContext& c) { c.zeroKernel = true; }});
    if (e.hasDivisor)
        list.push_back({"divisor 0", zelStatusZeroDivisor, [](SweepContext& c) { c.divisor = 0; }});
    if (e.hasFactor)
        list.push_back({"factor 0", zelStatusBadUpDownFactor, [](SweepContext& c) { c.factor = 0; }});
    if (e.maskCheck == MaskCheck::strict)
        for (int mask : {35, 53, 13, 0, -1})
            list.push_back({"mask " + std::to_string(mask), zelStatusBadMaskSize,
                            [mask](SweepContext& c) { c.mask = mask; }});
    if (e.maskCheck == MaskCheck::horiz || e.maskCheck == MaskCheck::vert)
        for (int mask : {35, 33, e.maskCheck == MaskCheck::horiz ? 13 : 31, 0, -1})
            list.push_back({"mask " + std::to_string(mask), zelStatusBadMaskSize,
                            [mask](SweepContext& c) { c.mask = mask; }});
    if (e.maskCheck == MaskCheck::oddRect) {
        for (ZeliSize m : {ZeliSize{4, 3}, ZeliSize{3, 2}, ZeliSize{0, 3}, ZeliSize{3, -1}})
            list.push_back({"maskSize " + std::to_string(m.width) + "x" + std::to_string(m.height),
                            zelStatusBadMaskSize, [m](SweepContext& c) { c.maskSize = m; c.anchor = {0, 0}; }});
        for (ZeliPoint a : {ZeliPoint{3, 1}, ZeliPoint{1, 3}, ZeliPoint{-1, 0}, ZeliPoint{0, -1}})
            list.push_back({"anchor " + std::to_string(a.x) + "," + std::to_string(a.y), zelStatusBadAnchor,
                            [a](SweepContext& c) { c.maskSize = {3, 3}; c.anchor = a; }});
    }
    if (e.maskCheck == MaskCheck::weight)
        for (int w : {0, -1, INT_MIN})
            list.push_back({"weight " + std::to_string(w), zelStatusBadWeight, [w](SweepContext& c) { c.weight = w; }});
    // Threshold ops other than 0 and 4: rejected after the other checks, or
    // before them (Threshold_Val: even with a null image).
    if (e.opCheck == OpCheck::thresholdLast || e.opCheck == OpCheck::thresholdFirst) {
        for (int op : {1, 2, 3, -1, 5})
            list.push_back({"cmpOp " + std::to_string(op), zelStatusUnsupportedMode,
                            [op](SweepContext& c) { c.cmpOp = op; }});
        const bool first = e.opCheck == OpCheck::thresholdFirst;
        list.push_back({"cmpOp 2 and roi 0x0", first ? zelStatusUnsupportedMode : zelStatusBadSize,
                        [](SweepContext& c) { c.cmpOp = 2; c.roi = {0, 0}; }});
        const NullCase image = e.nulls.front();
        list.push_back({"cmpOp 1 and null " + std::string(image.what), first ? zelStatusUnsupportedMode : zelStatusNullPtr,
                        [image](SweepContext& c) { c.cmpOp = 1; c.setNull(image); }});
    }
    // Compare ops outside 0..4 (as unsigned): success with nothing written.
    if (e.opCheck == OpCheck::silent)
        for (int op : {5, 7, -1, INT_MIN})
            list.push_back({"cmpOp " + std::to_string(op), zelStatusOk, [op](SweepContext& c) { c.cmpOp = op; }});
    if (e.hasEps)
        for (float eps : {-1.f, -1e-30f, -INFINITY})
            list.push_back({"eps " + std::to_string(eps), zelStatusNegativeEpsilon,
                            [eps](SweepContext& c) { c.eps = eps; }});
    // Composition types outside 0..11, negative ones included.
    if (std::string(e.family).rfind("AlphaComp", 0) == 0)
        for (int type : {12, -1, INT_MIN})
            list.push_back({"alphaType " + std::to_string(type), zelStatusBadAlphaType,
                            [type](SweepContext& c) { c.alphaType = type; }});
    if (e.crossable && std::string(e.family) == "CountInRange")
        list.push_back({"upperBound below lowerBound", zelStatusBadRange,
                        [](SweepContext& c) { c.crossThresholds = true; }});
    else if (e.crossable)
        list.push_back({"thresholdGT below thresholdLT", zelStatusThresholdsCrossed,
                        [](SweepContext& c) { c.crossThresholds = true; }});
    // Look-up tables: fewer than two levels in any channel; palettes: a bit
    // size outside 1..8 (8u sources) or 1..16 (16u sources).
    const std::string family = e.family;
    if (family == "LUT" || family == "LUT_Linear" || family == "LUT_Cubic") {
        const int channels = std::string(e.layout) == "AC4" ? 3 : e.ops[0].channels;
        for (int k = 0; k < channels; ++k)
            for (int n : {1, 0, -3})
                list.push_back({"nLevels[" + std::to_string(k) + "] = " + std::to_string(n), zelStatusBadLUTLevels,
                                [k, n](SweepContext& c) { c.setLevelCount(k, n); }});
    }
    if (family == "LUTPalette" || family == "LUTPaletteSwap") {
        for (int bits : {0, -1, 8 * e.ops[0].elemBytes + 1, 1 << 20})
            list.push_back({"nBitSize " + std::to_string(bits), zelStatusBadBitSize,
                            [bits](SweepContext& c) { c.bitSize = bits; }});
    }
    if (e.orderLength > 0) {
        const std::string lay = e.layout;
        // C3C4 checks only its first three entries, only for being negative.
        const bool negativeOnly = lay == "C3C4";
        const int checked = negativeOnly ? 3 : e.orderLength;
        const int tooLarge = lay == "C4" || lay == "C4C3" ? 4 : 3;
        for (int k = 0; k < checked; ++k) {
            std::vector<int> bad = {-1, -1000};
            if (!negativeOnly) bad.insert(bad.end(), {tooLarge, 1 << 30});
            for (int v : bad)
                list.push_back({"dstOrder[" + std::to_string(k) + "] = " + std::to_string(v),
                                zelStatusBadChannelOrder, [k, v](SweepContext& c) { c.setOrderEntry(k, v); }});
        }
    }
    return list;
}

TEST(ContractSweep, TableHoldsEveryDeclaredFunction) {
    const auto declared = zel::test::declaredFunctions(ZELI_HEADER);
    std::set<std::string> table;
    for (const auto& e : kCalls) EXPECT_TRUE(table.insert(e.name).second) << e.name << " twice";
    for (const auto& f : kFrame) EXPECT_TRUE(table.insert(f.name).second) << f.name << " twice";
    ASSERT_GT(declared.size(), 600u);
    for (const auto& name : declared) EXPECT_TRUE(table.count(name)) << name << " has no entry in the sweep";
    for (const auto& name : table) EXPECT_TRUE(declared.count(name)) << name << " is not declared";
    std::printf("contract sweep reaches %zu functions (%zu image functions, %zu frame functions)\n",
                table.size(), kCalls.size(), kFrame.size());
}

TEST(ContractSweep, ValidCallsWriteOnlyTheirRoi) {
    SweepContext c;
    for (const auto& e : kCalls) {
        c.setup(e, geometryFor(e));
        const int status = run(c, e);
        EXPECT_GE(status, 0) << c.describe();
        const std::string stray = c.strayWrite();
        EXPECT_TRUE(stray.empty()) << c.describe() << ": " << stray;
        // Otsu writes only its output byte, which may equal the one before.
        if (!e.outValue) EXPECT_FALSE(c.unchanged() && status == 0) << c.describe() << ": wrote nothing";
    }
}

TEST(ContractSweep, BrokenArgumentsAreRejectedWithNothingWritten) {
    SweepContext c;
    long cases = 0;
    for (const auto& e : kCalls) {
        const Geometry g = geometryFor(e);
        for (const Breakage& b : breakagesOf(e, g)) {
            c.setup(e, g);
            b.apply(c);
            const int status = run(c, e);
            ++cases;
            EXPECT_EQ(status, b.expected) << c.describe() << " with " << b.what;
            EXPECT_TRUE(c.unchanged()) << c.describe() << " with " << b.what << ": an operand was written";
        }
    }
    std::printf("%ld broken-argument calls\n", cases);
}

TEST(ContractSweep, ResultsDoNotDependOnTargetOrThreads) {
    SweepContext c;
    test::ConfigGuard restore;
    for (const auto& e : kCalls) {
        const Geometry g = geometryFor(e);
        simd::forceTarget(0);
        zelSetNumThreads(1);
        forkEagerlyForTests(false);
        c.setup(e, g);
        const int expectedStatus = run(c, e);
        const auto expected = c.contents();
        for (std::int64_t target : simd::availableTargets()) {
            simd::forceTarget(target);
            for (int threads : {1, 3}) {
                zelSetNumThreads(threads);
                forkEagerlyForTests(threads > 1);
                c.setup(e, g);
                EXPECT_EQ(run(c, e), expectedStatus) << c.describe() << " " << simd::targetName(target);
                EXPECT_TRUE(c.contents() == expected)
                    << c.describe() << ": other result under " << simd::targetName(target) << " with " << threads
                    << " threads";
            }
        }
    }
}

TEST(ContractSweep, FailedAllocationsReturnNoMemoryAndLeakNothing) {
    SweepContext c;
    test::ConfigGuard restore;
    int allocating = 0;
    for (const auto& e : kCalls) {
        for (int threads : {1, 3}) {
            zelSetNumThreads(threads);
            forkEagerlyForTests(threads > 1);
            const Geometry g = geometryFor(e);
            c.setup(e, g);
            const long before = allocationCallsForTests(), live = liveBlocksForTests();
            run(c, e);
            const long made = allocationCallsForTests() - before;
            EXPECT_EQ(liveBlocksForTests(), live) << e.name << " kept a block after a valid call";
            if (made > 0 && threads == 1) ++allocating;
            for (long n = 1; n <= made; ++n) {
                c.setup(e, g);
                failAllocationForTests(n);
                const int status = run(c, e);
                failAllocationForTests(0);
                EXPECT_EQ(status, zelStatusNoMemory) << c.describe() << " with allocation " << n << " failing";
                EXPECT_TRUE(c.unchanged()) << c.describe() << " wrote after a failed allocation";
                EXPECT_EQ(liveBlocksForTests(), live) << c.describe() << " leaked after allocation " << n;
            }
        }
    }
    std::printf("%d image functions allocate internally\n", allocating);
}

// Pixelwise members whose source and destination share type and layout
// accept the destination's own pointer and step as a source: the call then
// equals one whose source is a separate copy of the destination.
bool acceptsSourceOnDestination(const CallEntry& e) {
    static const std::set<std::string> pixelwise = {"Add", "AddC", "Sub", "SubC", "Mul", "MulC", "MulScale",
                                                     "MulCScale", "Div", "Div_Round", "DivC", "Copy",
                                                     "CopyManaged", "SwapChannels", "Threshold", "Threshold_LT",
                                                     "Threshold_GT", "Threshold_Val", "Threshold_LTVal",
                                                     "Threshold_GTVal", "Threshold_LTValGTVal", "LUT",
                                                     "LUT_Linear", "LUT_Cubic"};
    return pixelwise.count(e.family) > 0;
}

std::vector<std::pair<int, int>> sourceDestinationPairs(const CallEntry& e) {
    std::vector<std::pair<int, int>> pairs;
    if (!acceptsSourceOnDestination(e)) return pairs;
    for (std::size_t d = 0; d < e.ops.size(); ++d) {
        if (!e.ops[d].dst) continue;
        for (std::size_t s = 0; s < e.ops.size(); ++s) {
            const OperandInfo &a = e.ops[s], &b = e.ops[d];
            if (a.dst || std::string(a.param) == "pMask") continue;
            if (a.elemBytes == b.elemBytes && a.channels == b.channels && a.planes == b.planes &&
                a.channelOffset == b.channelOffset && !b.transposed)
                pairs.push_back({int(s), int(d)});
        }
    }
    return pairs;
}

void checkSourceOnDestination(SweepContext& c, const CallEntry& e, const Geometry& g,
                              const std::function<void(SweepContext&)>& arguments, std::string* fault) {
    for (auto [src, dst] : sourceDestinationPairs(e)) {
        c.setup(e, g);
        arguments(c);
        if (!c.sameLayout(src, dst)) continue;
        c.copyOperand(dst, src);
        const int expectedStatus = run(c, e);
        const auto expected = c.operandBytes(dst);
        c.setup(e, g);
        arguments(c);
        c.alias(src, dst);
        const int status = run(c, e);
        if (status != expectedStatus || c.operandBytes(dst) != expected) {
            *fault = c.describe() + " with " + e.ops[src].param + " on " + e.ops[dst].param +
                     ": differs from a separate source with the same bytes (status " + std::to_string(status) +
                     ", expected " + std::to_string(expectedStatus) + ")";
            return;
        }
    }
}

TEST(ContractSweep, SourceOnTheDestinationEqualsASeparateCopy) {
    SweepContext c;
    int members = 0;
    for (const auto& e : kCalls) {
        if (sourceDestinationPairs(e).empty()) continue;
        ++members;
        std::string fault;
        checkSourceOnDestination(c, e, geometryFor(e), [](SweepContext&) {}, &fault);
        EXPECT_TRUE(fault.empty()) << fault;
    }
    std::printf("%d members take a source on their destination\n", members);
}

// ---- The library frame ----------------------------------------------------

template <class F>
F as(const FrameEntry& f) {
    return reinterpret_cast<F>(f.fn);
}

TEST(ContractSweep, FrameFunctionsKeepTheirContracts) {
    test::ConfigGuard restore;
    for (const auto& f : kFrame) {
        SCOPED_TRACE(f.name);
        ++gCalls;
        switch (f.kind) {
            case FrameKind::malloc: {
                auto alloc = as<void* (*)(int, int, int*)>(f);
                const long live = liveBlocksForTests();
                int step = -1;
                const long calls = allocationCallsForTests();
                void* p = alloc(7, 5, &step);
                ASSERT_NE(p, nullptr);
                EXPECT_EQ(allocationCallsForTests() - calls, 1) << "allocation not counted";
                EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 32, 0u);
                EXPECT_GE(step, 7 * f.pixelBytes);
                EXPECT_EQ(step % 32, 0);
                std::memset(p, 0xa5, std::size_t(step) * 5);  // every byte belongs to the caller
                zeliFree(p);
                EXPECT_EQ(alloc(7, 5, nullptr), nullptr);
                for (ZeliSize s : {ZeliSize{0, 5}, ZeliSize{7, 0}, ZeliSize{-1, 5}, ZeliSize{7, -1}}) {
                    step = -1;
                    EXPECT_EQ(alloc(s.width, s.height, &step), nullptr);
                    EXPECT_EQ(step, 0);
                }
                failAllocationForTests(1);
                step = -1;
                void* q = alloc(7, 5, &step);
                failAllocationForTests(0);
                EXPECT_EQ(q, nullptr) << "allocation failure not passed on";
                zeliFree(q);
                EXPECT_EQ(liveBlocksForTests(), live);
                gCalls += 8;
                break;
            }
            case FrameKind::free: {
                auto release = as<void (*)(void*)>(f);
                const long live = liveBlocksForTests();
                release(nullptr);
                int step = 0;
                release(zeliMalloc_8u_C1(3, 3, &step));
                EXPECT_EQ(liveBlocksForTests(), live);
                gCalls += 2;
                break;
            }
            case FrameKind::setThreads: {
                auto set = as<ZelStatus (*)(int)>(f);
                EXPECT_EQ(set(0), zelStatusBadArgument);
                EXPECT_EQ(set(-1), zelStatusBadArgument);
                EXPECT_EQ(set(3), zelStatusOk);
                int n = 0;
                zelGetNumThreads(&n);
                EXPECT_EQ(n, 3);
                EXPECT_EQ(set(ZEL_MAX_THREADS + 5), zelStatusOk);
                zelGetNumThreads(&n);
                EXPECT_EQ(n, ZEL_MAX_THREADS);
                gCalls += 3;
                break;
            }
            case FrameKind::getIntOut: {
                auto get = as<ZelStatus (*)(int*)>(f);
                EXPECT_EQ(get(nullptr), zelStatusNullPtr);
                int v = -1;
                EXPECT_EQ(get(&v), zelStatusOk);
                EXPECT_GE(v, 0);
                ++gCalls;
                break;
            }
            case FrameKind::version: {
                auto version = as<const ZelLibraryVersion* (*)()>(f);
                const ZelLibraryVersion* v = version();
                ASSERT_NE(v, nullptr);
                EXPECT_EQ(version(), v);
                ++gCalls;
                break;
            }
            case FrameKind::nan:
                EXPECT_TRUE(as<bool (*)()>(f)());
                break;
            case FrameKind::dotProdCol: {
                // Row pointers, coefficients and destination: -8 for a null
                // array, -6 for a count below 1, nothing written; a null
                // row after the first keeps the rows combined before it.
                auto dot = as<ZelStatus (*)(const Zel32f* const*, const Zel32f*, int, Zel32f*, int)>(f);
                const Zel32f r0[3] = {1, 2, 3}, r1[3] = {4, 5, 6}, k[2] = {2, -1};
                const Zel32f* rows[2] = {r0, r1};
                const Zel32f* broken[2] = {r0, nullptr};
                Zel32f out[4] = {9, 9, 9, 9};
                EXPECT_EQ(dot(nullptr, k, 2, out, 3), zelStatusNullPtr);
                EXPECT_EQ(dot(rows, nullptr, 2, out, 3), zelStatusNullPtr);
                EXPECT_EQ(dot(rows, k, 2, nullptr, 3), zelStatusNullPtr);
                EXPECT_EQ(dot(rows, k, 0, out, 3), zelStatusBadSize);
                EXPECT_EQ(dot(rows, k, 2, out, -1), zelStatusBadSize);
                for (Zel32f v : out) EXPECT_EQ(v, 9.f);
                EXPECT_EQ(dot(rows, k, 2, out, 3), zelStatusOk);
                EXPECT_EQ(out[0], -2.f);
                EXPECT_EQ(out[2], 0.f);
                EXPECT_EQ(out[3], 9.f);
                EXPECT_EQ(dot(broken, k, 2, out, 3), zelStatusNullPtr);
                EXPECT_EQ(out[1], 4.f);
                gCalls += 7;
                break;
            }
            case FrameKind::bufferSize: {
                // Work-buffer sizes of the user-kernel filters: one part per thread.
                auto query = as<ZelStatus (*)(ZeliSize, int, int*)>(f);
                int size = -1;
                EXPECT_EQ(query({3, 3}, 100, nullptr), zelStatusNullPtr);
                EXPECT_EQ(query({0, 3}, 100, &size), zelStatusBadSize);
                EXPECT_EQ(query({3, 3}, 0, &size), zelStatusBadSize);
                EXPECT_EQ(size, -1);
                zelSetNumThreads(2);
                EXPECT_EQ(query({3, 3}, 100, &size), zelStatusOk);
                EXPECT_EQ(size, 2 * (8 * 100 + 16 * 9 + 43));
                gCalls += 3;
                break;
            }
        }
    }
}

// ---- Random argument sets -----------------------------------------------

// Results that depend on the order of the rows, which an upward walk
// reverses: positions of the first extreme, 32f sums (rounded row by row).
bool rowOrderMatters(const CallEntry& e) {
    const std::string family = e.family, name = e.name;
    return family == "MinIndx" || family == "MaxIndx" ||
           ((family == "Sum" || family == "Mean") && name.find("_32f_") != std::string::npos);
}

TEST(ContractSweep, RandomArgumentSets) {
    const char* secondsText = std::getenv("ZELI_SWEEP_SECONDS");
    const char* seedText = std::getenv("ZELI_SWEEP_SEED");
    const double seconds = secondsText ? std::atof(secondsText) : 0;
    const std::uint32_t seed =
        seedText ? static_cast<std::uint32_t>(std::strtoul(seedText, nullptr, 0))
                 : secondsText ? static_cast<std::uint32_t>(std::random_device{}()) : 20261122u;
    // Without a time budget: a short fixed run, part of every test pass.
    const long draws = secondsText ? -1 : 600;
    std::printf("random sweep seed %u (ZELI_SWEEP_SEED=%u replays it)\n", seed, seed);
    std::fflush(stdout);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(+[] { std::fprintf(stderr, "\n*** during: %s\n", test::detail::faultCase); });
#endif
    test::ConfigGuard restore;
    const auto targets = simd::availableTargets();
    const auto start = std::chrono::steady_clock::now();
    SweepContext c;
    long made = 0, failures = 0, tightDraws = 0, upwardDraws = 0;
    for (long i = 0; draws < 0 || i < draws; ++i) {
        if (draws < 0 && std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() >= seconds)
            break;
        std::mt19937 rng(seed + static_cast<std::uint32_t>(i) * 0x9e3779b9u);
        const CallEntry& e = kCalls[std::uniform_int_distribution<std::size_t>(0, kCalls.size() - 1)(rng)];
        Geometry g;
        std::uniform_int_distribution<int> side(1, 40);
        g.roi = {side(rng), side(rng)};
        if (e.squareRoi) g.roi.height = g.roi.width;
        g.padElements = std::uniform_int_distribution<int>(0, 40)(rng);
        g.offsetElements = std::uniform_int_distribution<int>(0, 31)(rng);
        // Morphology needs room for the element's reach in every row.
        g.tight = rng() % 4 == 0 && !isMorphology(e);
        // Families that trust their steps walk a negative step upwards.
        const bool upward = !e.checksSteps && std::string(e.family) != "Transpose" && !rowOrderMatters(e) &&
                            rng() % 3 == 0;
        g.seed = static_cast<std::uint32_t>(rng());
        const int threads = std::uniform_int_distribution<int>(1, 4)(rng);
        const std::int64_t target = targets[std::uniform_int_distribution<std::size_t>(0, targets.size() - 1)(rng)];
        const std::uint32_t argSeed = static_cast<std::uint32_t>(rng());

        // Reference: one thread, the best target, the fork rule as it is.
        auto prepare = [&] {
            c.setup(e, g);
            std::mt19937 args(argSeed);
            c.randomizeArguments(args);
            c.snapshot();
        };
        simd::forceTarget(0);
        zelSetNumThreads(1);
        forkEagerlyForTests(false);
        prepare();
        const int refStatus = test::guardedCall("reference run of draw " + std::to_string(i) + " of seed " +
                                                    std::to_string(seed) + ": " + c.describe(),
                                                [&] { return run(c, e); });
        const auto reference = c.contents();

        simd::forceTarget(target);
        zelSetNumThreads(threads);
        forkEagerlyForTests(threads > 1 && (rng() & 1));
        g.upward = upward;
        tightDraws += g.tight;
        upwardDraws += upward;
        prepare();
        g.upward = false;
        const std::string what = "draw " + std::to_string(i) + " of seed " + std::to_string(seed) + ": " +
                                 c.describe() + ", " + simd::targetName(target) + ", " + std::to_string(threads) +
                                 " threads";
        const int status = test::guardedCall(what, [&] { return run(c, e); });
        made += 2;
        std::string fault;
        if (status < 0) fault = "status " + std::to_string(status) + " for a valid call";
        else if (status != refStatus) fault = "status " + std::to_string(status) + ", one thread gave " + std::to_string(refStatus);
        else if (std::string stray = c.strayWrite(); !stray.empty()) fault = stray;
        else if (c.contents() != reference) fault = "result differs from the one-thread run";

        if (fault.empty())
            checkSourceOnDestination(c, e, g, [&](SweepContext& cc) {
                std::mt19937 args(argSeed);
                cc.randomizeArguments(args);
                cc.snapshot();
            }, &fault);

        // One broken argument on the same layout.
        if (fault.empty()) {
            const auto broken = breakagesOf(e, g);
            const Breakage& b = broken[std::uniform_int_distribution<std::size_t>(0, broken.size() - 1)(rng)];
            prepare();
            b.apply(c);
            const int st = run(c, e);
            ++made;
            if (st != b.expected || !c.unchanged())
                fault = "with " + b.what + ": status " + std::to_string(st) + ", expected " +
                        std::to_string(b.expected) + (c.unchanged() ? "" : ", and an operand was written");
        }
        if (!fault.empty()) {
            ++failures;
            ADD_FAILURE() << "draw " << i << " of seed " << seed << ": " << c.describe() << ", "
                          << simd::targetName(target) << ", " << threads << " threads, pad " << g.padElements
                          << ", offset " << g.offsetElements << (g.tight ? ", tight rows" : "") << ": " << fault;
            if (failures >= 20) break;
        }
    }
    std::printf("random sweep: %ld calls (%ld draws with tight rows, %ld upward), %ld failures\n", made,
                tightDraws, upwardDraws, failures);
}

class Report : public ::testing::Environment {
public:
    void TearDown() override { std::printf("contract sweep: %ld calls in all\n", gCalls); }
};
const auto* const kReport = ::testing::AddGlobalTestEnvironment(new Report);

}  // namespace
}  // namespace zel::contract
