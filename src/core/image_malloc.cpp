// zeliMalloc_<type>_<layout>: one block per image, rows padded to 32 bytes.
#include <cstdint>
#include <limits>

#include "core/memory.h"
#include "zeli.h"

namespace zel {
namespace {

template <class T, int Channels>
T* mallocImage(int width, int height, int* pStep) {
    if (pStep == nullptr) return nullptr;
    *pStep = 0;
    if (width < 1 || height < 1) return nullptr;
    const std::int64_t rowBytes = std::int64_t{width} * Channels * std::int64_t{sizeof(T)};
    const std::int64_t step = (rowBytes + 31) & ~std::int64_t{31};
    if (step > std::numeric_limits<int>::max()) return nullptr;
    *pStep = static_cast<int>(step);
    return static_cast<T*>(mallocAligned(static_cast<std::size_t>(step) * height));
}

}  // namespace
}  // namespace zel

#define ZELI_MALLOC(type, layout, channels)                                   \
    Zel##type* zeliMalloc_##type##_##layout(int width, int height, int* pStep) { \
        return zel::mallocImage<Zel##type, channels>(width, height, pStep);   \
    }
#define ZELI_MALLOC_ALL_LAYOUTS(type)                                          \
    ZELI_MALLOC(type, C1, 1)                                                   \
    ZELI_MALLOC(type, C2, 2)                                                   \
    ZELI_MALLOC(type, C3, 3)                                                   \
    ZELI_MALLOC(type, C4, 4)                                                   \
    ZELI_MALLOC(type, AC4, 4) /* the alpha channel is stored too */

ZELI_MALLOC_ALL_LAYOUTS(8u)
ZELI_MALLOC_ALL_LAYOUTS(16u)
ZELI_MALLOC_ALL_LAYOUTS(16s)
ZELI_MALLOC_ALL_LAYOUTS(32s)
ZELI_MALLOC_ALL_LAYOUTS(32f)
ZELI_MALLOC_ALL_LAYOUTS(32sc)
ZELI_MALLOC_ALL_LAYOUTS(32fc)

void zeliFree(void* ptr) { zelsFree(ptr); }
