#include "base/PngEncoder.h"

#include <gtest/gtest.h>

#include <array>

#include <png.h>

namespace orvane {
namespace {

/// The picture's pixels as red, green, blue and alpha, read back with the library's simple reader.
std::vector<std::uint8_t> pixelsOf(const PictureData& picture) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_NE(png_image_begin_read_from_memory(&image, picture.bytes.data(), picture.bytes.size()), 0) << image.message;
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(image));
    EXPECT_NE(png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr), 0) << image.message;
    return pixels;
}

TEST(PngEncoder, WritesEveryLayoutOfPixels) {
    using Pixels = std::vector<std::uint8_t>;
    const std::vector<PngPaletteEntry> palette{{{1, 2, 3}, 255}, {{4, 5, 6}, 128}};
    struct Row {
        PngPixels layout;
        Pixels row; ///< two pixels
        Pixels expected;
        const char* why;
    };
    const Row rows[] = {
        {PngPixels::Gray1, {0x40}, {0, 0, 0, 255, 255, 255, 255, 255}, "the highest bit comes first, 1 is white"},
        {PngPixels::Gray8, {7, 200}, {7, 7, 7, 255, 200, 200, 200, 255}, "grey"},
        {PngPixels::Palette1, {0x40}, {1, 2, 3, 255, 4, 5, 6, 128}, "a palette of two"},
        {PngPixels::Palette8, {1, 0}, {4, 5, 6, 128, 1, 2, 3, 255}, "a palette of bytes"},
        {PngPixels::Rgb8, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 255, 4, 5, 6, 255}, "colour"},
        {PngPixels::GrayAlpha8, {9, 50, 8, 255}, {9, 9, 9, 50, 8, 8, 8, 255}, "grey with alpha"},
        {PngPixels::RgbAlpha8, {1, 2, 3, 50, 4, 5, 6, 0}, {1, 2, 3, 50, 4, 5, 6, 0}, "colour with alpha"},
    };
    for (const Row& row : rows) {
        ASSERT_EQ(pngRowBytes(row.layout, 2), row.row.size()) << row.why;
        const bool hasPalette = row.layout == PngPixels::Palette1 || row.layout == PngPixels::Palette8;
        PngEncoder encoder(2, 3, row.layout, hasPalette ? palette : std::vector<PngPaletteEntry>{});
        for (int y = 0; y < 3; ++y)
            encoder.writeRow(row.row.data());
        const PictureData picture = encoder.finish();
        EXPECT_EQ(picture.format, PictureFormat::Png);
        EXPECT_EQ(picture.pixelWidth, 2);
        EXPECT_EQ(picture.pixelHeight, 3);
        Pixels expected;
        for (int y = 0; y < 3; ++y)
            expected.insert(expected.end(), row.expected.begin(), row.expected.end());
        EXPECT_EQ(pixelsOf(picture), expected) << row.why;
    }
}

TEST(PngEncoder, PacksEightPixelsAByte) {
    EXPECT_EQ(pngRowBytes(PngPixels::Gray1, 8), 1u);
    EXPECT_EQ(pngRowBytes(PngPixels::Gray1, 9), 2u);
    EXPECT_EQ(pngRowBytes(PngPixels::RgbAlpha8, 9), 36u);
}

} // namespace
} // namespace orvane
