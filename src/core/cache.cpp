// Largest cache of the processor, for the streaming-store and blocking
// decisions of the copy family.
#include <unistd.h>

#include <initializer_list>

#include "zeli.h"

ZelStatus zelGetMaxCacheSizeB(int* pSizeByte) {
    if (pSizeByte == nullptr) return zelStatusNullPtr;
    long largest = 0;
#if defined(_SC_LEVEL1_DCACHE_SIZE)
    for (int name : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE,
                     _SC_LEVEL4_CACHE_SIZE}) {
        const long size = sysconf(name);
        if (size > largest) largest = size;
    }
#endif
    *pSizeByte = largest > 0x7fffffffL ? 0x7fffffff : static_cast<int>(largest);
    return zelStatusOk;
}
