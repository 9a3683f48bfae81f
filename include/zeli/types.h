/* zeli: element types, records, status codes and shared enumerations.
   Included by <zeli.h>; callers include that. */
#ifndef ZELI_TYPES_H
#define ZELI_TYPES_H

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
    zelMaskCode1x3 = 13,
    zelMaskCode1x5 = 15,
    zelMaskCode3x1 = 31,
    zelMaskCode5x1 = 51,
    zelMaskCode3x3 = 33,
    zelMaskCode5x5 = 55
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

#ifdef __cplusplus
}
#endif

#endif /* ZELI_TYPES_H */
