/*
 * A short tour of zeli on a built-in test picture: allocate images, run a
 * small pipeline, print what each step did and how long it took, and write
 * the results as PNG files.
 *
 *   zeli_demo [output directory]     (default: out)
 */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>

#include "png_writer.h"
#include "zeli.h"

static const char* outDir = "out";

static double nowMs(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

/* Runs one library call, reports its status and time, stops on an error. */
#define STEP(description, call)                                                         \
    do {                                                                                \
        double started_ = nowMs();                                                      \
        ZelStatus status_ = (call);                                                     \
        printf("  %-52s %7.3f ms  status %d\n", description, nowMs() - started_, status_); \
        if (status_ < 0) exit(1);                                                       \
    } while (0)

static void save(const char* name, const Zel8u* pixels, int step, ZeliSize size, int channels) {
    char path[512];
    snprintf(path, sizeof path, "%s/%s", outDir, name);
    if (writePng(path, pixels, step, size, channels) != 0) {
        fprintf(stderr, "cannot write %s\n", path);
        exit(1);
    }
    printf("  wrote %s\n", path);
}

/* The built-in picture: colour gradients with a few discs, drawn in code. */
static void drawTestPicture(Zel8u* rgb, int step, ZeliSize size) {
    for (int y = 0; y < size.height; ++y) {
        Zel8u* row = rgb + (long)y * step;
        for (int x = 0; x < size.width; ++x) {
            double fx = (double)x / size.width, fy = (double)y / size.height;
            double r = 255 * fx, g = 255 * fy, b = 255 * (1 - fx) * (1 - fy);
            for (int k = 0; k < 3; ++k) {
                double cx = (0.25 + 0.25 * k) * size.width, cy = (0.35 + 0.15 * k) * size.height;
                double d = hypot(x - cx, y - cy);
                if (d < size.height * 0.18) {
                    double shade = 1 - d / (size.height * 0.18);
                    r = k == 0 ? 255 * shade + r * (1 - shade) : r;
                    g = k == 1 ? 255 * shade + g * (1 - shade) : g;
                    b = k == 2 ? 255 * shade + b * (1 - shade) : b;
                }
            }
            row[3 * x + 0] = (Zel8u)r;
            row[3 * x + 1] = (Zel8u)g;
            row[3 * x + 2] = (Zel8u)b;
        }
    }
}

/* Grey levels falling from 255 at the centre to 0 in the corners. */
static void drawVignette(Zel8u* rgb, int step, ZeliSize size) {
    const double radius = hypot(size.width / 2.0, size.height / 2.0);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            double d = hypot(x - size.width / 2.0, y - size.height / 2.0) / radius;
            Zel8u level = (Zel8u)(255 * (1 - d * d));
            for (int c = 0; c < 3; ++c) rgb[(long)y * step + 3 * x + c] = level;
        }
}

/* Gives an image of `channels` 8-bit channels, whose ROI starts `border`
   pixels into an allocation `border` pixels larger on every side, a border
   that repeats its outermost pixels: the pixels a neighbourhood filter
   reads around its ROI. Built from copies: the ROI's first and last rows
   upwards and downwards, then every row's first and last pixels sideways. */
static void replicateBorder(Zel8u* roi, int step, ZeliSize size, int border, int channels) {
    const ZeliSize row = {size.width, 1};
    for (int k = 1; k <= border; ++k) {
        zeliCopy_8u_C1R(roi, step, roi - (long)k * step, step, (ZeliSize){size.width * channels, 1});
        zeliCopy_8u_C1R(roi + (long)(size.height - 1) * step, step, roi + (long)(size.height - 1 + k) * step, step,
                        (ZeliSize){row.width * channels, 1});
    }
    const ZeliSize column = {channels, size.height + 2 * border};
    Zel8u* top = roi - (long)border * step;
    for (int k = 1; k <= border; ++k) {
        zeliCopy_8u_C1R(top, step, top - k * channels, step, column);
        zeliCopy_8u_C1R(top + (size.width - 1) * channels, step, top + (size.width - 1 + k) * channels, step,
                        column);
    }
}

int main(int argc, char** argv) {
    if (argc > 1) outDir = argv[1];
    if (mkdir(outDir, 0755) != 0 && errno != EEXIST) {
        fprintf(stderr, "cannot create %s\n", outDir);
        return 1;
    }
    const ZelLibraryVersion* version = zeliGetLibVersion();
    int threads = 0;
    zelGetNumThreads(&threads);
    printf("%s %s (%s), %d thread(s)\n", version->Name, version->Version, version->BuildDate, threads);

    const ZeliSize size = {640, 480};
    int rgbStep = 0, framedStep = 0;
    Zel8u* rgb = zeliMalloc_8u_C3(size.width, size.height, &rgbStep);
    Zel8u* framed = zeliMalloc_8u_C3(size.width, size.height, &framedStep);
    if (!rgb || !framed) return 1;
    printf("images %dx%d, steps %d and %d bytes\n", size.width, size.height, rgbStep, framedStep);

    drawTestPicture(rgb, rgbStep, size);
    save("input.png", rgb, rgbStep, size, 3);

    /* A frame: fill with a colour, then paint the picture's centre back in
       row by row through a smaller ROI. */
    const Zel8u frameColour[3] = {40, 40, 48};
    const ZeliSize inner = {size.width - 64, size.height - 64};
    STEP("Set_8u_C3R: fill with the frame colour", zeliSet_8u_C3R(frameColour, framed, framedStep, size));
    const Zel8u marker[3] = {255, 255, 255};
    STEP("Set_8u_C3R: white band in a ROI", zeliSet_8u_C3R(marker, framed + 16 * framedStep + 3 * 16,
                                                          framedStep, (ZeliSize){inner.width + 32, 8}));
    STEP("Copy_8u_C3R: the picture's centre into the frame",
         zeliCopy_8u_C3R(rgb + 32 * rgbStep + 3 * 32, rgbStep, framed + 32 * framedStep + 3 * 32,
                         framedStep, inner));
    save("framed.png", framed, framedStep, size, 3);

    /* Channel exchange: red and blue swapped in place of a copy, then the
       picture turned on its side. */
    int swappedStep = 0, turnedStep = 0;
    Zel8u* swapped = zeliMalloc_8u_C3(size.width, size.height, &swappedStep);
    Zel8u* turned = zeliMalloc_8u_C3(size.height, size.width, &turnedStep);
    if (!swapped || !turned) return 1;
    const int blueRedGreen[3] = {2, 0, 1};
    STEP("SwapChannels_8u_C3R: channels to B, R, G",
         zeliSwapChannels_8u_C3R(rgb, rgbStep, swapped, swappedStep, size, blueRedGreen));
    save("swapped.png", swapped, swappedStep, size, 3);
    STEP("Transpose_8u_C3R: rows become columns",
         zeliTranspose_8u_C3R(rgb, rgbStep, turned, turnedStep, size));
    save("transposed.png", turned, turnedStep, (ZeliSize){size.height, size.width}, 3);

    /* Arithmetic: the average of the picture and its channel swap (sum
       halved, ties to even), their difference doubled (saturating at 0
       and 255), and a vignette multiplied in as a fraction of 255. */
    int averageStep = 0, differenceStep = 0, vignetteStep = 0, shadedStep = 0;
    Zel8u* average = zeliMalloc_8u_C3(size.width, size.height, &averageStep);
    Zel8u* difference = zeliMalloc_8u_C3(size.width, size.height, &differenceStep);
    Zel8u* vignette = zeliMalloc_8u_C3(size.width, size.height, &vignetteStep);
    Zel8u* shaded = zeliMalloc_8u_C3(size.width, size.height, &shadedStep);
    if (!average || !difference || !vignette || !shaded) return 1;
    STEP("Add_8u_C3RSfs: (picture + swap) / 2",
         zeliAdd_8u_C3RSfs(rgb, rgbStep, swapped, swappedStep, average, averageStep, size, 1));
    save("average.png", average, averageStep, size, 3);
    STEP("Sub_8u_C3RSfs: (picture - swap) * 2",
         zeliSub_8u_C3RSfs(swapped, swappedStep, rgb, rgbStep, difference, differenceStep, size, -1));
    save("difference.png", difference, differenceStep, size, 3);
    drawVignette(vignette, vignetteStep, size);
    STEP("MulScale_8u_C3R: picture * vignette / 255",
         zeliMulScale_8u_C3R(rgb, rgbStep, vignette, vignetteStep, shaded, shadedStep, size));
    save("vignette.png", shaded, shadedStep, size, 3);
    const Zel8u quarter[3] = {4, 4, 4};
    STEP("DivC_8u_C3IRSfs: in place, / 4 then * 2", zeliDivC_8u_C3IRSfs(quarter, shaded, shadedStep, size, -1));
    save("vignette_dark.png", shaded, shadedStep, size, 3);

    /* Filters read pixels around their ROI: the picture gets a replicated
       2-pixel border for a 5x5 Gaussian blur, and the Sobel derivatives of
       the framed picture's green channel make an edge map, (|gx| + |gy|) / 4. */
    int borderedStep = 0, blurredStep = 0, greyStep = 0, gxStep = 0, gyStep = 0, edgesStep = 0;
    const ZeliSize withBorder = {size.width + 4, size.height + 4};
    Zel8u* bordered = zeliMalloc_8u_C3(withBorder.width, withBorder.height, &borderedStep);
    Zel8u* blurred = zeliMalloc_8u_C3(size.width, size.height, &blurredStep);
    Zel8u* grey = zeliMalloc_8u_C1(withBorder.width, withBorder.height, &greyStep);
    Zel16s* gx = zeliMalloc_16s_C1(size.width, size.height, &gxStep);
    Zel16s* gy = zeliMalloc_16s_C1(size.width, size.height, &gyStep);
    Zel8u* edges = zeliMalloc_8u_C1(size.width, size.height, &edgesStep);
    if (!bordered || !blurred || !grey || !gx || !gy || !edges) return 1;
    Zel8u* inside = bordered + 2 * borderedStep + 2 * 3;
    STEP("Copy_8u_C3R: the picture inside a larger image", zeliCopy_8u_C3R(rgb, rgbStep, inside, borderedStep, size));
    replicateBorder(inside, borderedStep, size, 2, 3);
    STEP("FilterGauss_8u_C3R: 5x5 Gaussian blur",
         zeliFilterGauss_8u_C3R(inside, borderedStep, blurred, blurredStep, size, zelMaskCode5x5));
    save("blurred.png", blurred, blurredStep, size, 3);
    Zel8u* greyInside = grey + 2 * greyStep + 2;
    STEP("Copy_8u_C3C1R: the framed picture's green channel",
         zeliCopy_8u_C3C1R(framed + 1, framedStep, greyInside, greyStep, size));
    replicateBorder(greyInside, greyStep, size, 2, 1);
    STEP("FilterSobelVert_8u16s_C1R: left minus right",
         zeliFilterSobelVert_8u16s_C1R(greyInside, greyStep, gx, gxStep, size, zelMaskCode3x3));
    STEP("FilterSobelHoriz_8u16s_C1R: below minus above",
         zeliFilterSobelHoriz_8u16s_C1R(greyInside, greyStep, gy, gyStep, size, zelMaskCode3x3));
    STEP("Abs_16s_C1IR: |gx|, in place", zeliAbs_16s_C1IR(gx, gxStep, size));
    STEP("Abs_16s_C1IR: |gy|, in place", zeliAbs_16s_C1IR(gy, gyStep, size));
    STEP("Add_16s_C1IRSfs: (|gx| + |gy|) / 4 into gy", zeliAdd_16s_C1IRSfs(gx, gxStep, gy, gyStep, size, 2));
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            int m = gy[(long)y * gyStep / 2 + x];
            edges[(long)y * edgesStep + x] = (Zel8u)(m > 255 ? 255 : m);
        }
    save("edges.png", edges, edgesStep, size, 1);

    /* Thresholds and comparisons: Otsu's grey level of the green channel,
       the channel cut at it (dark to 0, bright to 255), and a mask of the
       pixels that are brighter in the picture than in its blur. */
    Zel8u level = 0;
    STEP("ComputeThreshold_Otsu_8u_C1R: green channel",
         zeliComputeThreshold_Otsu_8u_C1R(greyInside, greyStep, size, &level));
    printf("  Otsu threshold of the green channel: %d\n", level);
    int cutStep, brighterStep;
    Zel8u* cut = zeliMalloc_8u_C1(size.width, size.height, &cutStep);
    Zel8u* brighter = zeliMalloc_8u_C1(size.width, size.height, &brighterStep);
    if (!cut || !brighter) return 1;
    STEP("Threshold_LTValGTVal_8u_C1R: black and white at Otsu's level",
         zeliThreshold_LTValGTVal_8u_C1R(greyInside, greyStep, cut, cutStep, size, level, 0, level, 255));
    /* Comparisons are strict: the level itself was kept; it joins the dark class. */
    STEP("Threshold_LTVal_8u_C1IR: the level itself to 0", zeliThreshold_LTVal_8u_C1IR(cut, cutStep, size, 255, 0));
    save("otsu.png", cut, cutStep, size, 1);
    STEP("Compare_8u_C3R: brighter than the blur in every channel",
         zeliCompare_8u_C3R(rgb, rgbStep, blurred, blurredStep, brighter, brighterStep, size, zelCompareGreater));
    save("brighter.png", brighter, brighterStep, size, 1);

    {
        /* Statistics of the picture: channel means, extrema with the first
           position of the brightest value, a count in a range; then the
           picture clipped at mid-grey by an element-wise minimum. */
        Zel64f mean[3];
        Zel8u lo[3], hi[3], top[3];
        int topX[3], topY[3], inside[3];
        const Zel8u lower[3] = {64, 64, 64}, upper[3] = {191, 191, 191}, grey[3] = {128, 128, 128};
        STEP("Mean_8u_C3R: channel means", zeliMean_8u_C3R(rgb, rgbStep, size, mean));
        STEP("MinMax_8u_C3R: channel extrema", zeliMinMax_8u_C3R(rgb, rgbStep, size, lo, hi));
        STEP("MaxIndx_8u_C3R: first brightest pixel", zeliMaxIndx_8u_C3R(rgb, rgbStep, size, top, topX, topY));
        STEP("CountInRange_8u_C3R: values in 64..191", zeliCountInRange_8u_C3R(rgb, rgbStep, size, inside, lower, upper));
        for (int c = 0; c < 3; ++c)
            printf("    channel %d: mean %.2f, range %d..%d, first %d at (%d, %d), %d in 64..191\n", c, mean[c], lo[c],
                   hi[c], top[c], topX[c], topY[c], inside[c]);
        int clippedStep = 0;
        Zel8u* clipped = zeliMalloc_8u_C3(size.width, size.height, &clippedStep);
        if (!clipped) return 1;
        STEP("Set_8u_C3R: mid-grey", zeliSet_8u_C3R(grey, clipped, clippedStep, size));
        STEP("MinEvery_8u_C3IR: the picture clipped at mid-grey",
             zeliMinEvery_8u_C3IR(rgb, rgbStep, clipped, clippedStep, size));
        save("clipped.png", clipped, clippedStep, size, 3);
        zeliFree(clipped);
    }

    /* Look-up tables: an S-shaped tone curve through five points (shadows
       darker, highlights brighter), the same for the three channels, and a
       warmer one that lifts red and lowers blue. */
    {
        static const Zel32s levels[5] = {0, 64, 128, 192, 256};
        static const Zel32s contrast[5] = {0, 40, 128, 216, 255};
        static const Zel32s red[5] = {0, 80, 160, 230, 255};
        static const Zel32s blue[5] = {0, 40, 100, 170, 255};
        const Zel32s* sameValues[3] = {contrast, contrast, contrast};
        const Zel32s* warmValues[3] = {red, contrast, blue};
        const Zel32s* sameLevels[3] = {levels, levels, levels};
        const int counts[3] = {5, 5, 5};
        int tonedStep;
        Zel8u* toned = zeliMalloc_8u_C3(size.width, size.height, &tonedStep);
        if (!toned) return 1;
        STEP("LUT_Cubic_8u_C3R: S-shaped tone curve",
             zeliLUT_Cubic_8u_C3R(rgb, rgbStep, toned, tonedStep, size, sameValues, sameLevels, counts));
        save("tone_curve.png", toned, tonedStep, size, 3);
        STEP("LUT_Cubic_8u_C3IR: warmer, in place",
             zeliLUT_Cubic_8u_C3IR(toned, tonedStep, size, warmValues, sameLevels, counts));
        save("tone_warm.png", toned, tonedStep, size, 3);
        zeliFree(toned);
    }

    {
        /* Median denoise: salt-and-pepper noise on a copy of the picture
           (one pixel in twelve black or white, from a fixed pseudo-random
           sequence), a replicated 1-pixel border, then the 3x3 median. */
        int noisyStep = 0, cleanStep = 0;
        const ZeliSize withBorder = {size.width + 2, size.height + 2};
        Zel8u* noisy = zeliMalloc_8u_C3(withBorder.width, withBorder.height, &noisyStep);
        Zel8u* clean = zeliMalloc_8u_C3(size.width, size.height, &cleanStep);
        if (!noisy || !clean) return 1;
        Zel8u* inside = noisy + noisyStep + 3;
        STEP("Copy_8u_C3R: the picture inside a larger image", zeliCopy_8u_C3R(rgb, rgbStep, inside, noisyStep, size));
        unsigned int seed = 12345u;
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) {
                seed = seed * 1103515245u + 12345u;
                const unsigned int draw = (seed >> 16) % 24u;
                if (draw < 2) memset(inside + (long)y * noisyStep + 3 * x, draw == 0 ? 0 : 255, 3);
            }
        replicateBorder(inside, noisyStep, size, 1, 3);
        save("noisy.png", inside, noisyStep, size, 3);
        STEP("FilterMedian_8u_C3R: 3x3 median of the noisy copy",
             zeliFilterMedian_8u_C3R(inside, noisyStep, clean, cleanStep, size, (ZeliSize){3, 3}, (ZeliPoint){1, 1}));
        save("denoised.png", clean, cleanStep, size, 3);
        zeliFree(clean);
        zeliFree(noisy);
    }

    /* Conversions: the picture to 32f, a gamma-like brightening in floating
       point (x * x / 255 mixed with x), and back to 8u with each rounding
       mode; then a 1-bit dithered copy of the green channel, unpacked. */
    {
        int floatStep, backStep, bitsStep, ditherStep;
        Zel32f* light = zeliMalloc_32f_C3(size.width, size.height, &floatStep);
        Zel32f* squared = zeliMalloc_32f_C3(size.width, size.height, &floatStep);
        Zel8u* back = zeliMalloc_8u_C3(size.width, size.height, &backStep);
        Zel8u* bits = zeliMalloc_8u_C1((size.width + 7) / 8, size.height, &bitsStep);
        Zel8u* dither = zeliMalloc_8u_C1(size.width, size.height, &ditherStep);
        const Zel32f inverse[3] = {1.0f / 255, 1.0f / 255, 1.0f / 255};
        const Zel32f half[3] = {0.5f, 0.5f, 0.5f};
        const char* names[3] = {"converted_zero.png", "converted_even.png", "converted_away.png"};
        const ZelRoundingMode modes[3] = {zelRoundTowardZero, zelRoundNearestEven, zelRoundHalfAway};
        int m;
        if (!light || !squared || !back || !bits || !dither) return 1;
        STEP("Convert_8u32f_C3R: the picture to 32f", zeliConvert_8u32f_C3R(rgb, rgbStep, light, floatStep, size));
        STEP("Mul_32f_C3R: x * x", zeliMul_32f_C3R(light, floatStep, light, floatStep, squared, floatStep, size));
        STEP("MulC_32f_C3IR: / 255", zeliMulC_32f_C3IR(inverse, squared, floatStep, size));
        STEP("Add_32f_C3IR: + x", zeliAdd_32f_C3IR(light, floatStep, squared, floatStep, size));
        STEP("MulC_32f_C3IR: / 2", zeliMulC_32f_C3IR(half, squared, floatStep, size));
        for (m = 0; m < 3; ++m) {
            STEP("Convert_32f8u_C3R: back to 8u", zeliConvert_32f8u_C3R(squared, floatStep, back, backStep, size, modes[m]));
            save(names[m], back, backStep, size, 3);
        }
        STEP("Convert_8u1u_C1R: green channel dithered to 1 bit",
             zeliConvert_8u1u_C1R(greyInside, greyStep, bits, bitsStep, 0, size, 128));
        STEP("Convert_1u8u_C1R: the bits back to 0 and 255",
             zeliConvert_1u8u_C1R(bits, bitsStep, 0, dither, ditherStep, size));
        save("dithered.png", dither, ditherStep, size, 1);
        zeliFree(dither);
        zeliFree(bits);
        zeliFree(back);
        zeliFree(squared);
        zeliFree(light);
    }

    {
        /* Compositing: the picture under a soft round alpha, and diagonal
           stripes whose alpha rises from left to right, composited Over and
           ATop. The results are premultiplied; each is shown Over an opaque
           checkerboard (premultiplied Over) so the PNG needs no alpha. */
        int pictureStep = 0, stripesStep = 0, boardStep = 0, mixedStep = 0, shownStep = 0;
        Zel8u* picture = zeliMalloc_8u_AC4(size.width, size.height, &pictureStep);
        Zel8u* stripes = zeliMalloc_8u_AC4(size.width, size.height, &stripesStep);
        Zel8u* board = zeliMalloc_8u_AC4(size.width, size.height, &boardStep);
        Zel8u* mixed = zeliMalloc_8u_AC4(size.width, size.height, &mixedStep);
        Zel8u* shown = zeliMalloc_8u_AC4(size.width, size.height, &shownStep);
        if (!picture || !stripes || !board || !mixed || !shown) return 1;
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) {
                Zel8u* p = picture + (long)y * pictureStep + 4 * x;
                Zel8u* q = stripes + (long)y * stripesStep + 4 * x;
                Zel8u* c = board + (long)y * boardStep + 4 * x;
                const Zel8u* src = rgb + (long)y * rgbStep + 3 * x;
                double d = hypot(x - size.width / 2.0, y - size.height / 2.0) / (size.height * 0.45);
                p[0] = src[0], p[1] = src[1], p[2] = src[2];
                p[3] = (Zel8u)(d < 0.7 ? 255 : d > 1 ? 0 : 255 * (1 - d) / 0.3);
                int band = ((x + y) / 24) % 2;
                q[0] = band ? 250 : 30, q[1] = band ? 200 : 60, q[2] = band ? 40 : 220;
                q[3] = (Zel8u)(255 * x / (size.width - 1));
                Zel8u grey = ((x / 32 + y / 32) % 2) ? 200 : 110;
                c[0] = c[1] = c[2] = grey, c[3] = 255;
            }
        const int types[2] = {zelCompositeOver, zelCompositeATop};
        const char* steps[2] = {"AlphaComp_8u_AC4R: picture Over stripes", "AlphaComp_8u_AC4R: picture ATop stripes"};
        const char* files[2] = {"composite_over.png", "composite_atop.png"};
        for (int k = 0; k < 2; ++k) {
            STEP(steps[k], zeliAlphaComp_8u_AC4R(picture, pictureStep, stripes, stripesStep, mixed, mixedStep, size,
                                                 types[k]));
            STEP("AlphaComp_8u_AC4R: the result Over a checkerboard",
                 zeliAlphaComp_8u_AC4R(mixed, mixedStep, board, boardStep, shown, shownStep, size,
                                       zelCompositeOverPremultiplied));
            save(files[k], shown, shownStep, size, 4);
        }
        zeliFree(shown);
        zeliFree(mixed);
        zeliFree(board);
        zeliFree(stripes);
        zeliFree(picture);
    }

    /* User kernels on the bordered picture: an emboss (a true convolution,
       so the kernel is mirrored over the picture: light seems to come from
       the lower right) and a horizontal motion blur of five pixels. */
    {
        static const Zel32s emboss[9] = {-2, -1, 0, -1, 1, 1, 0, 1, 2};
        static const Zel32f streak[5] = {0.2f, 0.2f, 0.2f, 0.2f, 0.2f};
        int embossedStep = 0, streakedStep = 0;
        Zel8u* embossed = zeliMalloc_8u_C3(size.width, size.height, &embossedStep);
        Zel8u* streaked = zeliMalloc_8u_C3(size.width, size.height, &streakedStep);
        if (!embossed || !streaked) return 1;
        STEP("Filter_8u_C3R: 3x3 emboss kernel, divisor 1",
             zeliFilter_8u_C3R(inside, borderedStep, embossed, embossedStep, size, emboss, (ZeliSize){3, 3},
                               (ZeliPoint){1, 1}, 1));
        save("embossed.png", embossed, embossedStep, size, 3);
        STEP("FilterRow32f_8u_C3R: 5-pixel motion blur",
             zeliFilterRow32f_8u_C3R(inside, borderedStep, streaked, streakedStep, size, streak, 5, 2));
        save("motion_blur.png", streaked, streakedStep, size, 3);
        zeliFree(streaked);
        zeliFree(embossed);
    }

    /* Morphology: an opening of the thresholded picture, an erosion and
       then a dilation with the same 5x5 disc, removes the bright specks
       and threads narrower than the disc and keeps the larger shapes as
       they were. */
    {
        static const Zel8u disc[25] = {0, 1, 1, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 1, 1, 1, 0};
        const ZeliSize discSize = {5, 5};
        const ZeliPoint centre = {2, 2};
        const ZeliSize padded = {size.width + 4, size.height + 4};
        int paddedStep = 0, erodedStep = 0, openedStep = 0;
        Zel8u* cutPadded = zeliMalloc_8u_C1(padded.width, padded.height, &paddedStep);
        Zel8u* eroded = zeliMalloc_8u_C1(padded.width, padded.height, &erodedStep);
        Zel8u* opened = zeliMalloc_8u_C1(size.width, size.height, &openedStep);
        if (!cutPadded || !eroded || !opened) return 1;
        Zel8u* cutInside = cutPadded + 2 * paddedStep + 2;
        Zel8u* erodedInside = eroded + 2 * erodedStep + 2;
        STEP("Copy_8u_C1R: the thresholded picture inside a larger one",
             zeliCopy_8u_C1R(cut, cutStep, cutInside, paddedStep, size));
        replicateBorder(cutInside, paddedStep, size, 2, 1);
        STEP("Erode_8u_C1R: 5x5 disc",
             zeliErode_8u_C1R(cutInside, paddedStep, erodedInside, erodedStep, size, disc, discSize, centre));
        replicateBorder(erodedInside, erodedStep, size, 2, 1);
        STEP("Dilate_8u_C1R: 5x5 disc, completing the opening",
             zeliDilate_8u_C1R(erodedInside, erodedStep, opened, openedStep, size, disc, discSize, centre));
        save("opened.png", opened, openedStep, size, 1);
        zeliFree(opened);
        zeliFree(eroded);
        zeliFree(cutPadded);
    }

    zeliFree(brighter);
    zeliFree(cut);
    zeliFree(edges);
    zeliFree(gy);
    zeliFree(gx);
    zeliFree(grey);
    zeliFree(blurred);
    zeliFree(bordered);
    zeliFree(shaded);
    zeliFree(vignette);
    zeliFree(difference);
    zeliFree(average);
    zeliFree(turned);
    zeliFree(swapped);
    zeliFree(framed);
    zeliFree(rgb);
    return 0;
}
