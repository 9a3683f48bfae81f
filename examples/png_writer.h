/* Writes 8-bit grey or RGB images as PNG files. */
#ifndef ZELI_EXAMPLES_PNG_WRITER_H
#define ZELI_EXAMPLES_PNG_WRITER_H

#include "zeli.h"

/* channels: 1 (grey), 3 (RGB) or 4 (RGBA). Returns 0 on success. */
int writePng(const char* path, const Zel8u* pixels, int step, ZeliSize size, int channels);

#endif
