/*
 * zeli: image-processing primitives.
 *
 * Every image operand is described at each call by a pointer to the first
 * pixel of the region of interest (ROI), a row step in bytes and a ROI size
 * in pixels shared by all operands. Every function returns a ZelStatus:
 * 0 for success, a negative error code (nothing was written), or a positive
 * warning (the whole result was produced, some elements under a special rule).
 *
 * Arguments are checked in a fixed order and the first failure is returned:
 * null pointers, then the ROI size, then the steps, then the operation's own
 * arguments. Families that depart from that order say so below.
 *
 * Promises every function keeps:
 *
 * - Image size. Any image zeliMalloc_* can return can be processed whole:
 *   up to 2^31 - 1 pixels per row and 2^31 - 1 rows, with row steps up to
 *   2^31 - 1 bytes, so well over 2^31 elements per call. Element counts and
 *   offsets are 64-bit inside the library.
 * - Untouched bytes. Bytes a function leaves alone (the alpha channel of
 *   AC4 images, the other channels of a channel-of-interest call, pixels a
 *   mask excludes, everything outside the ROI) are never written, not even
 *   with their own value, and the ones the function does not need are not
 *   read. Another thread may update them during the call.
 * - Floating-point environment. Results never depend on the caller's SSE
 *   rounding mode, flush-to-zero or denormals-are-zero setting: functions
 *   that compute in floating point run under round-to-nearest without
 *   flushing, with exceptions masked, and give the caller's control word
 *   back on return (exception flags raised by the call are added to it).
 * - Operand overlap. Defined overlaps are exactly the in-place members (I),
 *   where one image is both source and destination, and a source passed
 *   with the destination's own pointer and step to a pixelwise member whose
 *   source and destination have the same type and layout (the arithmetic
 *   families, Copy and SwapChannels within one layout): that call equals
 *   the in-place form. Transpose states its own rule. Any other overlap of
 *   a source with a destination, such as a destination one element after
 *   its source, gives undefined results.
 * - Threads. A call divides its work among threads only when each thread
 *   gets enough work to pay for it; results never depend on the thread
 *   count or on the SIMD instructions of the processor.
 */
#ifndef ZELI_H
#define ZELI_H

#include <stdint.h>

#if defined(ZELI_BUILDING) && defined(__GNUC__)
#define ZELAPI __attribute__((visibility("default")))
#else
#define ZELAPI
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ======================================================================== */
/* Element types and records                                                */
/* ======================================================================== */

typedef uint8_t  Zel8u;
typedef int8_t   Zel8s;
typedef uint16_t Zel16u;
typedef int16_t  Zel16s;
typedef uint32_t Zel32u;
typedef int32_t  Zel32s;
typedef float    Zel32f;
typedef int64_t  Zel64s;
typedef double   Zel64f;

/* Complex elements: real part first, then the imaginary part. */
typedef struct { Zel16s re; Zel16s im; } Zel16sc;
typedef struct { Zel32s re; Zel32s im; } Zel32sc;
typedef struct { Zel32f re; Zel32f im; } Zel32fc;

typedef struct { int32_t width; int32_t height; } ZeliSize;
typedef struct { int32_t x; int32_t y; int32_t width; int32_t height; } ZeliRect;
typedef struct { int32_t x; int32_t y; } ZeliPoint;

/* Version record returned by zeliGetLibVersion. */
typedef struct {
    int32_t     major;
    int32_t     minor;
    int32_t     majorBuild;
    int32_t     build;
    char        targetCpu[4];
    const char* Name;
    const char* Version;
    const char* BuildDate;
} ZelLibraryVersion;

/* ======================================================================== */
/* Status codes                                                             */
/* ======================================================================== */

typedef enum {
    zelStatusOk                    = 0,
    zelStatusQuadNotConvex         = -4,
    zelStatusBadArgument           = -5,
    zelStatusBadSize               = -6,
    zelStatusBadRange              = -7,
    zelStatusNullPtr               = -8,
    zelStatusNoMemory              = -9,
    zelStatusDivByZero             = -10,
    zelStatusBadBitSize            = -11,
    zelStatusEmptyRange            = -13,
    zelStatusBadStep               = -14,
    zelStatusBadFFTOrder           = -15,
    zelStatusBadFFTFlag            = -16,
    zelStatusBadContext            = -17,
    zelStatusThresholdsCrossed     = -18,
    zelStatusMomentTooSmall        = -20,
    zelStatusBadMirrorAxis         = -21,
    zelStatusBadInterpolation      = -22,
    zelStatusBadResizeFactor       = -23,
    zelStatusBadTapCount           = -26,
    zelStatusBadPhase              = -28,
    zelStatusBadUpDownFactor       = -29,
    zelStatusBadMaskSize           = -33,
    zelStatusBadAnchor             = -34,
    zelStatusNegativeEpsilon       = -36,
    zelStatusStepTooSmall          = -37,
    zelStatusBadChannelIndex       = -47,
    zelStatusBadAlphaType          = -50,
    zelStatusZeroDivisor           = -51,
    zelStatusBadChannelCount       = -53,
    zelStatusBadTransform          = -56,
    zelStatusRoiTooSmall           = -57,
    zelStatusBadQuad               = -58,
    zelStatusZeroMask              = -59,
    zelStatusBadChannelOrder       = -60,
    zelStatusBadLUTLevels          = -106,
    zelStatusBadHistLevels         = -107,
    zelStatusStepNotAligned        = -108,
    zelStatusBadNoiseLevel         = -125,
    zelStatusResizeTooSmall        = -201,
    zelStatusQualityIndexUndefined = -210,
    zelStatusBadWeight             = -211,
    zelStatusBadRoundMode          = -213,
    zelStatusUnsupportedMode       = -9999,
    zelStatusWarnSqrtOfNegative    = 3,
    zelStatusWarnDivByZero         = 6,
    zelStatusWarnLogOfZero         = 7,
    zelStatusWarnLogOfNegative     = 8,
    zelStatusWarnNotParallelogram  = 28,
    zelStatusWarnNoIntersection    = 29,
    zelStatusWarnNoOverlap         = 30,
    zelStatusWarnEvenWeight        = 39
} ZelStatus;

/* ======================================================================== */
/* Enumerations shared by several families                                  */
/* ======================================================================== */

/* Rounding of float-to-integer work. */
typedef enum {
    zelRoundTowardZero  = 0,
    zelRoundNearestEven = 1,
    zelRoundHalfAway    = 2   /* ties away from zero */
} ZelRoundingMode;

/* Accuracy hint of the floating-point statistics: only zelAccuracyHigh
   changes the computation (64-bit accumulation); the value is never checked. */
typedef enum {
    zelAccuracyDefault = 0,
    zelAccuracyFast    = 1,
    zelAccuracyHigh    = 2
} ZelAccuracyHint;

typedef enum {
    zelCompareLess           = 0,
    zelCompareLessOrEqual    = 1,
    zelCompareEqual          = 2,
    zelCompareGreaterOrEqual = 3,
    zelCompareGreater        = 4
} ZelCompareOp;

/* Fixed-kernel mask sizes: width * 10 + height. */
typedef enum {
    zelMskSize1x3 = 13,
    zelMskSize1x5 = 15,
    zelMskSize3x1 = 31,
    zelMskSize5x1 = 51,
    zelMskSize3x3 = 33,
    zelMskSize5x5 = 55
} ZeliMaskCode;

/* Interpolation codes; the top bit requests edge smoothing in the warps. */
enum {
    zelInterpNearest = 1,
    zelInterpLinear  = 2,
    zelInterpCubic   = 4,
    zelInterpSuper   = 8,
    zelInterpLanczos = 16,
    zelInterpSmoothEdge = (int32_t)0x80000000
};

/* Normalisation flags of the Fourier transforms. */
enum {
    zelFftScaleForward = 1,  /* forward multiplied by 1/N, inverse unscaled */
    zelFftScaleInverse = 2,  /* forward unscaled, inverse multiplied by 1/N */
    zelFftScaleBoth    = 4,  /* both multiplied by 1/sqrt(N) */
    zelFftScaleNone    = 8   /* both unscaled */
};

/* Alpha-composition operations: 0..5 take straight colours, 6..11
   premultiplied ones. */
typedef enum {
    zelCompositeOver = 0,
    zelCompositeIn   = 1,
    zelCompositeOut  = 2,
    zelCompositeATop = 3,
    zelCompositeXor  = 4,
    zelCompositePlus = 5,
    zelCompositeOverPremultiplied = 6,
    zelCompositeInPremultiplied   = 7,
    zelCompositeOutPremultiplied  = 8,
    zelCompositeATopPremultiplied = 9,
    zelCompositeXorPremultiplied  = 10,
    zelCompositePlusPremultiplied = 11
} ZelAlphaType;

/* Mirror axes. */
typedef enum {
    zelAxsHorizontal = 0,  /* rows reversed: the top row becomes the bottom row */
    zelAxsVertical   = 1,  /* columns reversed */
    zelAxsBoth       = 2   /* rows and columns reversed */
} ZelAxis;

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

/* ==== Data exchange: copy, set and channel exchange ====================== */

/* Set: every pixel of the ROI takes the value (a scalar for C1, an array of
   3 or 4 values otherwise; AC4 uses the first three and leaves alpha as it
   was). Checks: null pointers, then the ROI size; steps are not checked, so
   a negative step walks the rows upwards. */
ZELAPI ZelStatus zeliSet_8u_C1R(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_C3R(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_C4R(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_AC4R(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C1R(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C3R(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C4R(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_AC4R(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C1R(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C3R(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C4R(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_AC4R(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C1R(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C3R(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C4R(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_AC4R(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C1R(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C3R(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C4R(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_AC4R(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi);

/* Set, masked (C1MR, C3MR, C4MR, AC4MR): only pixels whose mask byte is
   non-zero are filled. Channel of interest (C3CR, C4CR): pDst points at one
   channel of 3-/4-channel pixels and only that channel takes the value.
   Checks as above (the mask pointer is one of the null checks). */
ZELAPI ZelStatus zeliSet_8u_C1MR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C3MR(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C4MR(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_AC4MR(const Zel8u value[], Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C3CR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_8u_C4CR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C1MR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C3MR(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C4MR(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_AC4MR(const Zel16u value[], Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C3CR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16u_C4CR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C1MR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C3MR(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C4MR(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_AC4MR(const Zel16s value[], Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C3CR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_16s_C4CR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C1MR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C3MR(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C4MR(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_AC4MR(const Zel32s value[], Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C3CR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32s_C4CR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C1MR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C3MR(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C4MR(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_AC4MR(const Zel32f value[], Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C3CR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliSet_32f_C4CR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roi);

/* Copy: pixels move bit for bit (16u and 16s, 32s and 32f behave alike).
   C1R/C3R/C4R copy all channels; AC4R channels 0-2 (destination alpha kept).
   MR: only pixels whose mask byte is non-zero. C1C3R/C1C4R: a grey image
   into the channel of the destination at which pDst points; C3C1R/C4C1R:
   the channel at which pSrc points into a grey image; C3CR/C4CR: one channel
   (pointed at in both) to the same channel; C3AC4R/AC4C3R: three channels
   between 3- and 4-channel pixels (alpha kept); C3P3R/C4P4R and
   P3C3R/P4C4R: interleaved to planes (channel k to plane k) and back, the
   planes sharing one step. Checks: null pointers (each plane pointer
   included), then the ROI size; steps are not checked (a negative step walks
   the rows upwards). Large contiguous copies bypass the caches. */
ZELAPI ZelStatus zeliCopy_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C1MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C3MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C4MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_AC4MR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C1C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C1C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3CR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4CR(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_AC4C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C3P3R(const Zel8u* pSrc, int srcStep, Zel8u* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_C4P4R(const Zel8u* pSrc, int srcStep, Zel8u* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_P3C3R(const Zel8u* const pSrc[3], int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_8u_P4C4R(const Zel8u* const pSrc[4], int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C1MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C3MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C4MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_AC4MR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C1C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C1C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3CR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4CR(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_AC4C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C3P3R(const Zel16u* pSrc, int srcStep, Zel16u* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_C4P4R(const Zel16u* pSrc, int srcStep, Zel16u* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_P3C3R(const Zel16u* const pSrc[3], int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16u_P4C4R(const Zel16u* const pSrc[4], int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C1MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C3MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C4MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_AC4MR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C1C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C1C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3CR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4CR(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_AC4C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C3P3R(const Zel16s* pSrc, int srcStep, Zel16s* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_C4P4R(const Zel16s* pSrc, int srcStep, Zel16s* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_P3C3R(const Zel16s* const pSrc[3], int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_16s_P4C4R(const Zel16s* const pSrc[4], int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_AC4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C1MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C3MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C4MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_AC4MR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C1C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C1C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3CR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4CR(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3AC4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_AC4C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C3P3R(const Zel32s* pSrc, int srcStep, Zel32s* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_C4P4R(const Zel32s* pSrc, int srcStep, Zel32s* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_P3C3R(const Zel32s* const pSrc[3], int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32s_P4C4R(const Zel32s* const pSrc[4], int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C1MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C3MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C4MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_AC4MR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C1C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C1C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4C1R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3CR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4CR(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_AC4C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C3P3R(const Zel32f* pSrc, int srcStep, Zel32f* const pDst[3], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_C4P4R(const Zel32f* pSrc, int srcStep, Zel32f* const pDst[4], int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_P3C3R(const Zel32f* const pSrc[3], int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliCopy_32f_P4C4R(const Zel32f* const pSrc[4], int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi);

/* CopyManaged: the plain 8-bit copy; flags bit 0 (value 1) asks for
   non-temporal stores, every other bit is ignored. Checks as Copy. */
ZELAPI ZelStatus zeliCopyManaged_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, int flags);

/* Dup: each grey value goes to all three channels. Checks as Copy. */
ZELAPI ZelStatus zeliDup_8u_C1C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);

/* SwapChannels: destination channel k takes source channel dstOrder[k].
   C3R, AC4R (alpha kept), C3IR: three entries, each 0..2; checks null
   pointers, size, steps (zelStatusBadStep), then the entries
   (zelStatusBadChannelOrder). C4IR: four entries 0..3; checks the step
   before the size. C4C3R: three entries 0..3; steps not checked.
   C3C4R: four entries: 0..2 take that source channel, 3 writes val (8u;
   the other types have no fill value and keep the channel), any other value
   keeps the destination channel; only the first three entries are checked
   and only for being negative; steps not checked. */
ZELAPI ZelStatus zeliSwapChannels_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_AC4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C4C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C3C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi, const int dstOrder[4], Zel8u val);
ZELAPI ZelStatus zeliSwapChannels_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_AC4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_C4C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_C3C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_AC4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_C4C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_C3C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_32s_C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_AC4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_C4C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_C3C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);
ZELAPI ZelStatus zeliSwapChannels_32f_C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_AC4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_C4C3R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_C3C4R(const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roi, const int dstOrder[4]);

/* Transpose: destination pixel (x, y) = source pixel (y, x); roi is the
   source size (the destination is roi.height wide, roi.width high). The
   in-place members (IR) accept square ROIs only: a non-square ROI gives
   zelStatusBadSize. Checks: null pointers, then the size; steps are not
   checked. An out-of-place member (R) called with pSrc == pDst transposes
   in place when roi is square and srcStep == dstStep; any other call with
   pSrc == pDst returns zelStatusBadArgument (after the null and size
   checks) and writes nothing. Other overlaps of source and destination are
   not supported. */
ZELAPI ZelStatus zeliTranspose_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C3R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C4R(const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C3R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C4R(const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C1R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C3R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C4R(const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C1R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C3R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C3IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C4R(const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliTranspose_32s_C4IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roi);

/* ==== Image arithmetic ==================================================== */
/* Add: pDst = pSrc1 + pSrc2 (in place: pSrcDst += pSrc). Integer results are
   multiplied by 2^-scaleFactor, rounded half to even and saturated; a scale
   factor that makes every result 0 fills the ROI with 0. AC4 members leave the
   fourth channel as it is. Steps are not checked except by the 16sc and 32fc
   members. */
ZELAPI ZelStatus zeliAdd_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* AddC: pDst = pSrc + value per channel (in place: the value comes first).
   Scaled and saturated as Add. */
ZELAPI ZelStatus zeliAddC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C3IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C4IRSfs(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_AC4IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C3IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C4IRSfs(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_AC4IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C3IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C4IRSfs(const Zel16s value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_AC4IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C3IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_AC4IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C3IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_AC4IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C3IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C4IR(const Zel32f value[4], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_AC4IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C3IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_AC4IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Sub: pDst = pSrc2 - pSrc1, the first source is subtracted from the second
   (in place: pSrcDst -= pSrc). Scaled and saturated as Add. */
ZELAPI ZelStatus zeliSub_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* SubC: pDst = pSrc - value per channel. Scaled and saturated as Add. */
ZELAPI ZelStatus zeliSubC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C3IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C4IRSfs(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_AC4IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C3IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C4IRSfs(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_AC4IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C3IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C4IRSfs(const Zel16s value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_AC4IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C3IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_AC4IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C3IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_AC4IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C3IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C4IR(const Zel32f value[4], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_AC4IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C3IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_AC4IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* Mul: pDst = pSrc1 * pSrc2; complex products (re1 re2 - im1 im2,
   re1 im2 + im1 re2) are formed exactly and each part is scaled. */
ZELAPI ZelStatus zeliMul_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* MulC: pDst = pSrc * value per channel. Scaled and saturated as Mul. */
ZELAPI ZelStatus zeliMulC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C3IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C4IRSfs(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_AC4IRSfs(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C3IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C4IRSfs(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_AC4IRSfs(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C3IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C4IRSfs(const Zel16s value[4], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_AC4IRSfs(const Zel16s value[3], Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C3IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[3], Zel16sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_AC4IRSfs(const Zel16sc value[3], Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C3IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[3], Zel32sc* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_AC4IRSfs(const Zel32sc value[3], Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C3IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C4IR(const Zel32f value[4], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_AC4IR(const Zel32f value[3], Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C3IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[3], Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_AC4IR(const Zel32fc value[3], Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* MulScale: a * b as a fraction of the type maximum, (p + 1 + (p >> n)) >> n
   for p = a * b and n = 8 or 16. Checks the step before the ROI size. */
ZELAPI ZelStatus zeliMulScale_8u_C1R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C1IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C3R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C3IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_AC4R(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_AC4IR(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C1R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C1IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C3R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C3IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_AC4R(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_AC4IR(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* MulCScale: pSrc * value per channel as MulScale. */
ZELAPI ZelStatus zeliMulCScale_8u_C1R(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C3R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C3IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C4R(const Zel8u* pSrc, int srcStep, const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C4IR(const Zel8u value[4], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_AC4R(const Zel8u* pSrc, int srcStep, const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_AC4IR(const Zel8u value[3], Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C1R(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C3R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C3IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C4R(const Zel16u* pSrc, int srcStep, const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C4IR(const Zel16u value[4], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_AC4R(const Zel16u* pSrc, int srcStep, const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_AC4IR(const Zel16u value[3], Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Image arithmetic: division ======================================== */

/* Div: destination = source 2 / source 1 (the first source is the divisor);
   in place, image = image / source. Integer members: the exact quotient
   times 2^-scaleFactor, rounded to nearest even and saturated; complex
   members divide by (b * conj(a)) / |a|^2 and scale each part. A zero
   divisor gives the saturated sign of the dividend (0 for 0 / 0) and the
   call returns zelStatusWarnDivByZero after computing the whole ROI; 32f
   and 32fc divide in IEEE single precision and warn the same way. Checks:
   null pointers, ROI size, then steps. */
ZELAPI ZelStatus zeliDiv_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C1RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2,
    int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C1IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C3RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2,
    int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C3IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_AC4RSfs(const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2,
    int src2Step, Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_AC4IRSfs(const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C1RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2,
    int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C1IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C3RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2,
    int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C3IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_AC4RSfs(const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2,
    int src2Step, Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_AC4IRSfs(const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst,
    int srcDstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32f_C1R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C1IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C3R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C3IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_C4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_AC4R(const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2,
    int src2Step, Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32f_AC4IR(const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst,
    int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C1R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2,
    int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C1IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst,
    int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C3R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2,
    int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_C3IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst,
    int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_AC4R(const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2,
    int src2Step, Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDiv_32fc_AC4IR(const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst,
    int srcDstStep, ZeliSize roi);

/* Div_Round: Div for 8u, 16u and 16s with the rounding mode of the scaled
   quotient given (toward zero, nearest even, half away from zero); any
   other mode returns zelStatusBadRoundMode after the step check. */
ZELAPI ZelStatus zeliDiv_Round_8u_C1RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C1IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C3RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C3IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_AC4RSfs(const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2,
    int src2Step, Zel8u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_AC4IRSfs(const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C1RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C1IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C3RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C3IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_AC4RSfs(const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2,
    int src2Step, Zel16u* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_AC4IRSfs(const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C1RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C1IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C3RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C3IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_AC4RSfs(const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2,
    int src2Step, Zel16s* pDst, int dstStep, ZeliSize roi, ZelRoundingMode rndMode,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_AC4IRSfs(const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst,
    int srcDstStep, ZeliSize roi, ZelRoundingMode rndMode, int scaleFactor);

/* DivC: destination = source / constant (a scalar for C1, 3 values for C3
   and AC4, 4 for C4); the in-place members take the constant first. A zero
   constant in any channel returns zelStatusDivByZero after the pointer,
   size and step checks, with nothing written. Integer and complex members
   round as Div does; 32f members multiply by the single-precision
   reciprocal, x * (1 / c). */
ZELAPI ZelStatus zeliDivC_8u_C1RSfs(const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst,
    int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C1IRSfs(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roi,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C3RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[],
    Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C3IRSfs(const Zel8u value[], Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[],
    Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C4IRSfs(const Zel8u value[], Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_AC4RSfs(const Zel8u* pSrc, int srcStep, const Zel8u value[],
    Zel8u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_AC4IRSfs(const Zel8u value[], Zel8u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C1RSfs(const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst,
    int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C1IRSfs(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roi,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C3RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[],
    Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C3IRSfs(const Zel16u value[], Zel16u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[],
    Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C4IRSfs(const Zel16u value[], Zel16u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_AC4RSfs(const Zel16u* pSrc, int srcStep, const Zel16u value[],
    Zel16u* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_AC4IRSfs(const Zel16u value[], Zel16u* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C1RSfs(const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst,
    int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C1IRSfs(Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roi,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C3RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[],
    Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C3IRSfs(const Zel16s value[], Zel16s* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[],
    Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C4IRSfs(const Zel16s value[], Zel16s* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_AC4RSfs(const Zel16s* pSrc, int srcStep, const Zel16s value[],
    Zel16s* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_AC4IRSfs(const Zel16s value[], Zel16s* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C1RSfs(const Zel16sc* pSrc, int srcStep, Zel16sc value,
    Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C1IRSfs(Zel16sc value, Zel16sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C3RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[],
    Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C3IRSfs(const Zel16sc value[], Zel16sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_AC4RSfs(const Zel16sc* pSrc, int srcStep, const Zel16sc value[],
    Zel16sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_AC4IRSfs(const Zel16sc value[], Zel16sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C1RSfs(const Zel32sc* pSrc, int srcStep, Zel32sc value,
    Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C1IRSfs(Zel32sc value, Zel32sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C3RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[],
    Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C3IRSfs(const Zel32sc value[], Zel32sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_AC4RSfs(const Zel32sc* pSrc, int srcStep, const Zel32sc value[],
    Zel32sc* pDst, int dstStep, ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_AC4IRSfs(const Zel32sc value[], Zel32sc* pSrcDst, int srcDstStep,
    ZeliSize roi, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32f_C1R(const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst,
    int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C3R(const Zel32f* pSrc, int srcStep, const Zel32f value[],
    Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C3IR(const Zel32f value[], Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C4R(const Zel32f* pSrc, int srcStep, const Zel32f value[],
    Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_C4IR(const Zel32f value[], Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_AC4R(const Zel32f* pSrc, int srcStep, const Zel32f value[],
    Zel32f* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32f_AC4IR(const Zel32f value[], Zel32f* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C1R(const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst,
    int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C1IR(Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C3R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[],
    Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_C3IR(const Zel32fc value[], Zel32fc* pSrcDst, int srcDstStep,
    ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_AC4R(const Zel32fc* pSrc, int srcStep, const Zel32fc value[],
    Zel32fc* pDst, int dstStep, ZeliSize roi);
ZELAPI ZelStatus zeliDivC_32fc_AC4IR(const Zel32fc value[], Zel32fc* pSrcDst, int srcDstStep,
    ZeliSize roi);

#ifdef __cplusplus
}
#endif

#endif /* ZELI_H */
