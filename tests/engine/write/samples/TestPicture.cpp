#include "TestPicture.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <jpeglib.h>
#include <png.h>

namespace orvane::tests {
namespace {

std::vector<unsigned char> pixelsOf(int width, int height, Color color) {
    std::vector<unsigned char> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            Color pixel = x < width / 2 ? color : kWhite;
            if (y < height / 4)
                pixel = Color{0x40, 0x40, 0x40};
            pixels.insert(pixels.end(), {pixel.red, pixel.green, pixel.blue});
        }
    return pixels;
}

} // namespace

PictureData pngPicture(int width, int height, Color color) {
    const std::vector<unsigned char> pixels = pixelsOf(width, height, color);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    png_alloc_size_t size = 0;
    png_image_write_to_memory(&image, nullptr, &size, 0, pixels.data(), 0, nullptr);
    PictureData picture{PictureFormat::Png, width, height, std::vector<std::byte>(size)};
    png_image_write_to_memory(&image, picture.bytes.data(), &size, 0, pixels.data(), 0, nullptr);
    return picture;
}

PictureData jpegPicture(int width, int height, Color color) {
    std::vector<unsigned char> pixels = pixelsOf(width, height, color);
    jpeg_compress_struct compressor{};
    jpeg_error_mgr errors{};
    compressor.err = jpeg_std_error(&errors);
    jpeg_create_compress(&compressor);
    unsigned char* out = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&compressor, &out, &size);
    compressor.image_width = static_cast<JDIMENSION>(width);
    compressor.image_height = static_cast<JDIMENSION>(height);
    compressor.input_components = 3;
    compressor.in_color_space = JCS_RGB;
    jpeg_set_defaults(&compressor);
    jpeg_start_compress(&compressor, TRUE);
    while (compressor.next_scanline < compressor.image_height) {
        JSAMPROW row = pixels.data() + std::size_t{compressor.next_scanline} * static_cast<std::size_t>(width) * 3;
        jpeg_write_scanlines(&compressor, &row, 1);
    }
    jpeg_finish_compress(&compressor);
    jpeg_destroy_compress(&compressor);
    PictureData picture{PictureFormat::Jpeg, width, height, std::vector<std::byte>(size)};
    std::memcpy(picture.bytes.data(), out, size);
    std::free(out);
    return picture;
}

} // namespace orvane::tests
