#include "Pixels.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <png.h>

namespace orvane::pdf {

std::string Pixels::at(int x, int y) const {
    const std::size_t pixel =
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) * 4;
    return fmt::format("{:02X}{:02X}{:02X}{:02X}", rgba.at(pixel), rgba.at(pixel + 1), rgba.at(pixel + 2),
                       rgba.at(pixel + 3));
}

Pixels readPng(const std::vector<std::byte>& bytes) {
    Pixels pixels;
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size())) {
        ADD_FAILURE() << "not a PNG: " << image.message;
        return pixels;
    }
    // The library takes 16 bits for linear light; read as such they stay as they are.
    const bool isDeep = (image.format & PNG_FORMAT_FLAG_LINEAR) != 0;
    image.format = isDeep ? PNG_FORMAT_LINEAR_RGB_ALPHA : PNG_FORMAT_RGBA;
    pixels.width = static_cast<int>(image.width);
    pixels.height = static_cast<int>(image.height);
    std::vector<std::uint8_t> read(PNG_IMAGE_SIZE(image));
    EXPECT_TRUE(png_image_finish_read(&image, nullptr, read.data(), 0, nullptr)) << image.message;
    if (!isDeep) {
        pixels.rgba = std::move(read);
        return pixels;
    }
    for (std::size_t at = 0; at + 1 < read.size(); at += 2) {
        std::uint16_t sample = 0;
        std::copy_n(read.begin() + static_cast<std::ptrdiff_t>(at), 2, reinterpret_cast<std::uint8_t*>(&sample));
        pixels.rgba.push_back(static_cast<std::uint8_t>(sample >> 8));
    }
    return pixels;
}

std::string bytesOf(const PictureStore& store, PictureId id) {
    std::ifstream in(store.at(id).file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

Pixels readPng(const PictureStore& store, PictureId id) {
    const std::string bytes = bytesOf(store, id);
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    return readPng(std::vector<std::byte>(first, first + bytes.size()));
}

} // namespace orvane::pdf
