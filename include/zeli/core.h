/* zeli: library frame: version, image memory, threads, platform services. Included by <zeli.h>; callers include that. */
#ifndef ZELI_CORE_H
#define ZELI_CORE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ======================================================================== */
/* Library frame: version, image memory, threads, platform services          */
/* ======================================================================== */

/* Returns a pointer to one constant version record with static storage;
   the same pointer on every call. The caller must not free or modify it. */
ZELAPI const ZelLibraryVersion* zeliGetLibVersion(void);

/* Image allocator. zeliMalloc_<type>_<layout>(width, height, pStep) returns
   a pointer to the first pixel of a width x height image, 32-byte aligned,
   whose rows are padded to a multiple of 32 bytes; the step is written to
   *pStep. A null pStep gives null and writes nothing; a width or height < 1
   gives null and *pStep = 0; when the allocation fails *pStep keeps the
   computed step and the result is null.
   Sizes are formed in 64-bit arithmetic, so no request wraps round to a
   small block: a step that does not fit in 32 bits gives null and
   *pStep = 0, and a block too large for the system gives null.
   Release with zeliFree; zeliFree(NULL) does nothing. */
ZELAPI Zel8u* zeliMalloc_8u_C1(int width, int height, int* pStep);
ZELAPI Zel8u* zeliMalloc_8u_C2(int width, int height, int* pStep);
ZELAPI Zel8u* zeliMalloc_8u_C3(int width, int height, int* pStep);
ZELAPI Zel8u* zeliMalloc_8u_C4(int width, int height, int* pStep);
ZELAPI Zel8u* zeliMalloc_8u_AC4(int width, int height, int* pStep);
ZELAPI Zel16u* zeliMalloc_16u_C1(int width, int height, int* pStep);
ZELAPI Zel16u* zeliMalloc_16u_C2(int width, int height, int* pStep);
ZELAPI Zel16u* zeliMalloc_16u_C3(int width, int height, int* pStep);
ZELAPI Zel16u* zeliMalloc_16u_C4(int width, int height, int* pStep);
ZELAPI Zel16u* zeliMalloc_16u_AC4(int width, int height, int* pStep);
ZELAPI Zel16s* zeliMalloc_16s_C1(int width, int height, int* pStep);
ZELAPI Zel16s* zeliMalloc_16s_C2(int width, int height, int* pStep);
ZELAPI Zel16s* zeliMalloc_16s_C3(int width, int height, int* pStep);
ZELAPI Zel16s* zeliMalloc_16s_C4(int width, int height, int* pStep);
ZELAPI Zel16s* zeliMalloc_16s_AC4(int width, int height, int* pStep);
ZELAPI Zel32s* zeliMalloc_32s_C1(int width, int height, int* pStep);
ZELAPI Zel32s* zeliMalloc_32s_C2(int width, int height, int* pStep);
ZELAPI Zel32s* zeliMalloc_32s_C3(int width, int height, int* pStep);
ZELAPI Zel32s* zeliMalloc_32s_C4(int width, int height, int* pStep);
ZELAPI Zel32s* zeliMalloc_32s_AC4(int width, int height, int* pStep);
ZELAPI Zel32f* zeliMalloc_32f_C1(int width, int height, int* pStep);
ZELAPI Zel32f* zeliMalloc_32f_C2(int width, int height, int* pStep);
ZELAPI Zel32f* zeliMalloc_32f_C3(int width, int height, int* pStep);
ZELAPI Zel32f* zeliMalloc_32f_C4(int width, int height, int* pStep);
ZELAPI Zel32f* zeliMalloc_32f_AC4(int width, int height, int* pStep);
ZELAPI Zel32sc* zeliMalloc_32sc_C1(int width, int height, int* pStep);
ZELAPI Zel32sc* zeliMalloc_32sc_C2(int width, int height, int* pStep);
ZELAPI Zel32sc* zeliMalloc_32sc_C3(int width, int height, int* pStep);
ZELAPI Zel32sc* zeliMalloc_32sc_C4(int width, int height, int* pStep);
ZELAPI Zel32sc* zeliMalloc_32sc_AC4(int width, int height, int* pStep);
ZELAPI Zel32fc* zeliMalloc_32fc_C1(int width, int height, int* pStep);
ZELAPI Zel32fc* zeliMalloc_32fc_C2(int width, int height, int* pStep);
ZELAPI Zel32fc* zeliMalloc_32fc_C3(int width, int height, int* pStep);
ZELAPI Zel32fc* zeliMalloc_32fc_C4(int width, int height, int* pStep);
ZELAPI Zel32fc* zeliMalloc_32fc_AC4(int width, int height, int* pStep);
ZELAPI void zeliFree(void* ptr);

/* Threads the library may use for one call (default: the processor count,
   at most ZEL_MAX_THREADS). zelSetNumThreads rejects n < 1 with
   zelStatusBadArgument and takes values above ZEL_MAX_THREADS as
   ZEL_MAX_THREADS; zelGetNumThreads rejects a null pointer with
   zelStatusNullPtr and reads back the setting in force. A call uses fewer
   threads than the setting when its work is too small to pay for more, and
   runs on the calling thread when one is enough. Results never depend on
   the setting. */
#define ZEL_MAX_THREADS 256
ZELAPI ZelStatus zelSetNumThreads(int n);
ZELAPI ZelStatus zelGetNumThreads(int* pNumThreads);

/* Size in bytes of the processor's largest cache. Returns zelStatusNullPtr
   for a null pointer; when the size cannot be learnt, *pSizeByte is 0 and
   the result is zelStatusOk. */
ZELAPI ZelStatus zelGetMaxCacheSizeB(int* pSizeByte);

/* The NaN values written for undefined results. */
ZELAPI Zel32f zelConstantOfNAN_32f(void);
ZELAPI Zel64f zelConstantOfNAN_64f(void);

#ifdef __cplusplus
}
#endif

#endif /* ZELI_CORE_H */
