#include "png_writer.h"

#include <png.h>
#include <stdio.h>

int writePng(const char* path, const Zel8u* pixels, int step, ZeliSize size, int channels) {
    static const int colourTypes[5] = {0, PNG_COLOR_TYPE_GRAY, 0, PNG_COLOR_TYPE_RGB,
                                       PNG_COLOR_TYPE_RGB_ALPHA};
    FILE* file = fopen(path, "wb");
    if (!file) return -1;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, NULL, NULL, NULL);
    png_infop info = png ? png_create_info_struct(png) : NULL;
    if (!info || setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, info ? &info : NULL);
        fclose(file);
        return -1;
    }
    png_init_io(png, file);
    png_set_IHDR(png, info, (png_uint_32)size.width, (png_uint_32)size.height, 8,
                 colourTypes[channels], PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < size.height; ++y) png_write_row(png, (png_const_bytep)(pixels + (long)y * step));
    png_write_end(png, NULL);
    png_destroy_write_struct(&png, &info);
    fclose(file);
    return 0;
}
