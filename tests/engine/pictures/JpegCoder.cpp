#include "JpegCoder.h"

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace orvane::pictures {
namespace {

struct Spaces {
    J_COLOR_SPACE given;
    J_COLOR_SPACE stored;
    int components;
};

Spaces spacesOf(JpegColors colors) {
    switch (colors) {
    case JpegColors::Gray:
        return {JCS_GRAYSCALE, JCS_GRAYSCALE, 1};
    case JpegColors::YCbCr:
        return {JCS_RGB, JCS_YCbCr, 3};
    case JpegColors::Rgb:
        return {JCS_RGB, JCS_RGB, 3};
    case JpegColors::Cmyk:
        return {JCS_CMYK, JCS_CMYK, 4};
    case JpegColors::Ycck:
        break;
    }
    return {JCS_CMYK, JCS_YCCK, 4};
}

} // namespace

std::string codeJpeg(const std::string& samples, int width, int height, JpegColors colors) {
    const Spaces spaces = spacesOf(colors);
    jpeg_compress_struct jpeg;
    jpeg_error_mgr errors;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* bytes = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&jpeg, &bytes, &length);
    jpeg.image_width = static_cast<JDIMENSION>(width);
    jpeg.image_height = static_cast<JDIMENSION>(height);
    jpeg.input_components = spaces.components;
    jpeg.in_color_space = spaces.given;
    jpeg_set_defaults(&jpeg);
    jpeg_set_colorspace(&jpeg, spaces.stored);
    jpeg_set_quality(&jpeg, 100, TRUE);
    for (int i = 0; i < jpeg.num_components; ++i)
        jpeg.comp_info[i].h_samp_factor = jpeg.comp_info[i].v_samp_factor = 1;
    if (colors == JpegColors::Rgb)
        jpeg.write_Adobe_marker = TRUE;
    jpeg_start_compress(&jpeg, TRUE);
    const std::size_t rowBytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(spaces.components);
    std::string row;
    while (jpeg.next_scanline < jpeg.image_height) {
        row = samples.substr(jpeg.next_scanline * rowBytes, rowBytes);
        JSAMPROW start = reinterpret_cast<JSAMPROW>(row.data());
        jpeg_write_scanlines(&jpeg, &start, 1);
    }
    jpeg_finish_compress(&jpeg);
    std::string coded(reinterpret_cast<const char*>(bytes), length);
    jpeg_destroy_compress(&jpeg);
    std::free(bytes);
    return coded;
}

} // namespace orvane::pictures
