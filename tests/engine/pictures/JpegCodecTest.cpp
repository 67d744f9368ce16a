#include "Extraction.h"
#include "JpegCoder.h"

#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

constexpr int kBlock = 8; ///< pixels a side that are coded together

/// Two blocks side by side, each of one colour.
std::string twoBlocks(const std::string& left, const std::string& right) {
    std::string samples;
    for (int y = 0; y < kBlock; ++y)
        for (int x = 0; x < 2 * kBlock; ++x)
            samples += x < kBlock ? left : right;
    return samples;
}

struct JpegRow {
    JpegColors colors;
    std::string left;
    std::string right;
    const char* space;
    const char* entries;
    const char* expectedLeft;
    const char* expectedRight;
    bool isPassedThrough; ///< as a JPEG file
    const char* why;
};

const JpegRow kRows[] = {
    {JpegColors::Gray, "\x20", "\xD0", "/DeviceGray", "", "202020FF", "D0D0D0FF", true, "grey"},
    {JpegColors::Gray, "\x20", "\xD0", "/DeviceGray", "/Decode [1 0]", "DFDFDFFF", "2F2F2FFF", false, "inverted grey"},
    {JpegColors::YCbCr, "\xE0\x20\x10", "\x10\x40\xC0", "/DeviceRGB", "", "E02010FF", "1040C0FF", true, "colours"},
    {JpegColors::Rgb, "\xE0\x20\x10", "\x10\x40\xC0", "/DeviceRGB", "", "E02010FF", "1040C0FF", false,
     "red, green and blue by themselves"},
    {JpegColors::Gray, std::string(1, '\0'), "\x01", "[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", "", "FF8000FF",
     "0080FFFF", false, "a palette"},
    {JpegColors::Cmyk, std::string(4, '\0'), std::string("\0\0\0\xFF", 4), "/DeviceCMYK", "", "FFFFFFFF", "231F20FF",
     false, "inks"},
    {JpegColors::Ycck, std::string(4, '\0'), std::string("\0\0\0\xFF", 4), "/DeviceCMYK", "", "FFFFFFFF", "231F20FF",
     false, "inks as luminance and chrominance"},
    {JpegColors::Cmyk, std::string(4, '\xFF'), std::string("\xFF\xFF\xFF\0", 4), "/DeviceCMYK",
     "/Decode [1 0 1 0 1 0 1 0]", "FFFFFFFF", "231F20FF", true, "inverted inks, as image editors write them"},
    {JpegColors::Ycck, std::string(4, '\xFF'), std::string("\xFF\xFF\xFF\0", 4), "/DeviceCMYK",
     "/Decode [1 0 1 0 1 0 1 0]", "FFFFFFFF", "231F20FF", true, "inverted inks as luminance and chrominance"},
};

std::string entriesOf(const JpegRow& row) {
    return tests::pdfImage(2 * kBlock, kBlock, row.space, 8) + " /Filter /DCTDecode " + row.entries;
}

TEST(JpegPictures, ComeInTheirColours) {
    for (const JpegRow& row : kRows) {
        const std::string coded = codeJpeg(twoBlocks(row.left, row.right), 2 * kBlock, kBlock, row.colors);
        const pdf::Pixels pixels = TakenPictures(pdfWithPicture(entriesOf(row), coded)).pixels();
        constexpr int kLoss = 3;
        EXPECT_TRUE(isNear(pixels.at(0, 0), row.expectedLeft, kLoss)) << row.why << ": " << pixels.at(0, 0);
        EXPECT_TRUE(isNear(pixels.at(15, 7), row.expectedRight, kLoss)) << row.why << ": " << pixels.at(15, 7);
    }
}

TEST(JpegPictures, StayByteForByteWhereTheyShowTheirColoursByThemselves) {
    for (const JpegRow& row : kRows) {
        const std::string coded = codeJpeg(twoBlocks(row.left, row.right), 2 * kBlock, kBlock, row.colors);
        const tests::PdfBuilder pdf = pdfWithPicture(entriesOf(row), coded);
        EXPECT_EQ(TakenPictures(pdf, ImageFileFormat::Jpg).bytes(0) == coded, row.isPassedThrough) << row.why;
        EXPECT_EQ(TakenPictures(pdf, ImageFileFormat::Original).bytes(0), coded) << row.why;
    }
}

} // namespace
} // namespace orvane::pictures
