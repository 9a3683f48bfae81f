#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "core/memory.h"
#include "zeli.h"

namespace {

bool aligned32(const void* p) { return reinterpret_cast<std::uintptr_t>(p) % 32 == 0; }

struct MallocCase {
    const char* name;
    void* (*alloc)(int, int, int*);
    int width, expectedStep;
};

template <class T, T* (*F)(int, int, int*)>
void* erase(int w, int h, int* step) { return F(w, h, step); }

TEST(ImageMalloc, StepIsRowPaddedTo32Bytes) {
    const MallocCase cases[] = {
        {"8u_C1 1", erase<Zel8u, zeliMalloc_8u_C1>, 1, 32},
        {"8u_C3 11", erase<Zel8u, zeliMalloc_8u_C3>, 11, 64},
        {"8u_AC4 8", erase<Zel8u, zeliMalloc_8u_AC4>, 8, 32},
        {"16s_C3 10", erase<Zel16s, zeliMalloc_16s_C3>, 10, 64},
        {"16u_C2 9", erase<Zel16u, zeliMalloc_16u_C2>, 9, 64},
        {"32f_C3 3", erase<Zel32f, zeliMalloc_32f_C3>, 3, 64},
        {"32s_C4 2", erase<Zel32s, zeliMalloc_32s_C4>, 2, 32},
        {"32fc_C4 3", erase<Zel32fc, zeliMalloc_32fc_C4>, 3, 96},
        {"32sc_AC4 1", erase<Zel32sc, zeliMalloc_32sc_AC4>, 1, 32},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        int step = -1;
        void* p = c.alloc(c.width, 7, &step);
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(aligned32(p));
        EXPECT_EQ(step, c.expectedStep);
        static_cast<volatile char*>(p)[step * 7 - 1] = 1;  // the last byte is ours
        zeliFree(p);
    }
}

TEST(ImageMalloc, BadArgumentsGiveNull) {
    int step = 123;
    EXPECT_EQ(zeliMalloc_8u_C1(0, 5, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 123;
    EXPECT_EQ(zeliMalloc_32f_C3(5, -1, &step), nullptr);
    EXPECT_EQ(step, 0);
    EXPECT_EQ(zeliMalloc_8u_C1(5, 5, nullptr), nullptr);
    // A row too long for a 32-bit step is refused rather than wrapped.
    step = 123;
    EXPECT_EQ(zeliMalloc_32fc_C4(INT_MAX / 16, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    zeliFree(nullptr);
}

TEST(ImageMalloc, FailedAllocationKeepsTheStep) {
    int step = 0;
    // 2^31 - 32 bytes a row, 2^20 rows: 2 PiB, more than any system gives.
    EXPECT_EQ(zeliMalloc_8u_C1(INT_MAX - 64, 1 << 20, &step), nullptr);
    EXPECT_EQ(step, (INT_MAX - 64 + 31) / 32 * 32);
}

TEST(ElementMalloc, AlignedBlocksWithTheRawAddressInFront) {
    for (int len : {1, 3, 31, 32, 33, 1000}) {
        Zel16sc* p = zelsMalloc_16sc(len);
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(aligned32(p));
        const auto raw = reinterpret_cast<std::uintptr_t>(reinterpret_cast<void**>(p)[-1]);
        const auto distance = reinterpret_cast<std::uintptr_t>(p) - raw;
        EXPECT_GE(distance, sizeof(void*));
        EXPECT_LE(distance, sizeof(void*) + 31);
        p[len - 1] = Zel16sc{1, 2};
        zelsFree(p);
    }
    EXPECT_EQ(zelsMalloc_8u(0), nullptr);
    EXPECT_EQ(zelsMalloc_64s(-5), nullptr);
    zelsFree(nullptr);
}

}  // namespace
