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

/* Threads the library may use for one call (default: the processor count).
   zelSetNumThreads rejects n < 1 with zelStatusBadArgument; zelGetNumThreads
   rejects a null pointer with zelStatusNullPtr. Results never depend on it. */
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

#ifdef __cplusplus
}
#endif

#endif /* ZELI_H */
