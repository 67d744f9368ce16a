#include "Extraction.h"
#include "IccProfile.h"
#include "SampleCoder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

using tests::pdfImage;

constexpr int kDepths[] = {1, 2, 4, 8, 16};

std::vector<std::string> takeRow(const std::string& entries, const std::string& data) {
    return rowOf(TakenPictures(pdfWithPicture(entries, data)).pixels());
}

/// The levels of one component: dark, light and what lies between them.
std::vector<int> levelsOf(int bits) {
    const int most = (1 << bits) - 1;
    return {0, most, most / 3, most - most / 4};
}

/// The level as one of 255; of 16 bits the upper 8 count.
int byteOf(int level, int bits) {
    return bits == 16 ? level >> 8 : level * 255 / ((1 << bits) - 1);
}

std::string gray(int level) {
    return fmt::format("{0:02X}{0:02X}{0:02X}FF", level);
}

/// Nearly the tone curve of sRGB.
constexpr const char* kCalibratedGray = "[/CalGray << /WhitePoint [0.9505 1 1.089] /Gamma 2.2 >>]";
/// By how many levels the two curves part at most.
constexpr int kCurveDifference = 8;

TEST(ColorSpaces, OfGreyComeAtAnyDepth) {
    for (const char* space : {"/DeviceGray", kCalibratedGray})
        for (const int bits : kDepths) {
            const std::string entries = pdfImage(4, 1, space, bits);
            const std::vector<std::string> row = takeRow(entries, packSamples(levelsOf(bits), bits, 4));
            const std::vector<std::string> inverted =
                takeRow(entries + " /Decode [1 0]", packSamples(levelsOf(bits), bits, 4));
            const std::vector<std::string> narrowed =
                takeRow(entries + " /Decode [0 0.5]", packSamples(levelsOf(bits), bits, 4));
            ASSERT_EQ(row.size(), 4u);
            for (std::size_t x = 0; x < 4; ++x) {
                const int level = byteOf(levelsOf(bits)[x], bits);
                const int tolerance = space == kCalibratedGray ? kCurveDifference : 1;
                const std::string why = fmt::format("{} of {} bits, level {}", space, bits, level);
                EXPECT_TRUE(isNear(row[x], gray(level), tolerance)) << why << ": " << row[x];
                EXPECT_TRUE(isNear(inverted[x], gray(255 - level), tolerance)) << why << ", inverted: " << inverted[x];
                EXPECT_TRUE(isNear(narrowed[x], gray(level / 2), tolerance)) << why << ", narrowed: " << narrowed[x];
            }
        }
}

/// That of sRGB, whose tone curve is nearly a gamma of 2.2.
constexpr const char* kCalibratedRgb = "[/CalRGB << /WhitePoint [0.9505 1 1.089] /Gamma [2.2 2.2 2.2] /Matrix [0.4124 "
                                       "0.2126 0.0193 0.3576 0.7152 0.1192 0.1805 0.0722 0.9505] >>]";
TEST(ColorSpaces, OfRedGreenAndBlueComeAtAnyDepth) {
    for (const char* space : {"/DeviceRGB", kCalibratedRgb})
        for (const int bits : kDepths) {
            const std::vector<int> levels = levelsOf(bits);
            const std::vector<int> samples = {levels[1], levels[0], levels[0], levels[0], levels[2], levels[3]};
            const std::string entries = pdfImage(2, 1, space, bits);
            const std::vector<std::string> row = takeRow(entries, packSamples(samples, bits, 6));
            const std::string mixed = fmt::format("00{:02X}{:02X}FF", byteOf(levels[2], bits), byteOf(levels[3], bits));
            const int tolerance = space == kCalibratedRgb ? kCurveDifference : 1;
            EXPECT_TRUE(isNear(row[0], "FF0000FF", tolerance)) << space << " of " << bits << " bits: " << row[0];
            EXPECT_TRUE(isNear(row[1], mixed, tolerance)) << space << " of " << bits << " bits: " << row[1];
            const std::vector<std::string> turned =
                takeRow(entries + " /Decode [0 1 1 0 0 1]", packSamples(samples, bits, 6));
            EXPECT_TRUE(isNear(turned[0], "FFFF00FF", tolerance))
                << space << " of " << bits << " bits, green inverted: " << turned[0];
        }
}

TEST(ColorSpaces, ThatAreCalibratedHaveTheirWhiteAsWhite) {
    // A gamma of 1 makes the middle light; the whites are those of daylight, of a lamp and of print.
    for (const char* white : {"[0.9505 1 1.089]", "[1.0985 1 0.3558]", "[0.9642 1 0.8249]"}) {
        const std::string grays = std::string("[/CalGray << /WhitePoint ") + white + " >>]";
        EXPECT_EQ(takeRow(pdfImage(3, 1, grays, 8), std::string("\0\x80\xFF", 3)),
                  (std::vector<std::string>{"000000FF", "BCBCBCFF", "FFFFFFFF"}))
            << white;
        EXPECT_EQ(takeRow(pdfImage(2, 1, grays, 1), "\x40"), (std::vector<std::string>{"000000FF", "FFFFFFFF"}));
    }
    const std::string samples("\xFF\xFF\xFF\x80\x80\x80", 6);
    for (const std::string& row : takeRow(pdfImage(2, 1, kCalibratedRgb, 8), samples))
        EXPECT_TRUE(row.substr(0, 2) == row.substr(2, 2) && row.substr(2, 2) == row.substr(4, 2)) << row;
    EXPECT_EQ(takeRow(pdfImage(2, 1, std::string("[/Indexed ") + kCalibratedRgb + " 1 <FFFFFF 000000>]", 1), "\x40"),
              (std::vector<std::string>{"FFFFFFFF", "000000FF"}));
}

TEST(ColorSpaces, OfInksComeAlikeAtAnyDepth) {
    for (const int bits : kDepths) {
        const int most = (1 << bits) - 1;
        const std::vector<int> samples = {0, 0, 0, 0, 0, 0, 0, most, most, 0, 0, 0, 0, most, most, 0};
        const std::string entries = pdfImage(4, 1, "/DeviceCMYK", bits);
        const std::vector<std::string> row = takeRow(entries, packSamples(samples, bits, 16));
        const char* expected[] = {"FFFFFFFF", "231F20FF", "00AEEFFF", "ED1C24FF"};
        for (std::size_t x = 0; x < 4; ++x)
            EXPECT_TRUE(isNear(row[x], expected[x], 3)) << bits << " bits: " << row[x];
        std::vector<int> inverted;
        for (const int sample : samples)
            inverted.push_back(most - sample);
        EXPECT_EQ(takeRow(entries + " /Decode [1 0 1 0 1 0 1 0]", packSamples(inverted, bits, 16)), row)
            << bits << " bits";
    }
}

TEST(ColorSpaces, OfPalettesComeAtAnyDepth) {
    const struct {
        const char* space;
        std::vector<std::string> colors;
    } rows[] = {
        {"[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", {"FF8000FF", "0080FFFF"}},
        {"[/Indexed /DeviceGray 1 <40 C0>]", {"404040FF", "C0C0C0FF"}},
        {"[/Indexed /DeviceCMYK 1 <00000000 000000FF>]", {"FFFFFFFF", "231F20FF"}},
        {"[/Indexed [/Separation /Spot /DeviceRGB << /FunctionType 2 /Domain [0 1] /C0 [1 1 1] /C1 [1 0 0] /N 1 >>] 1 "
         "<00 FF>]",
         {"FFFFFFFF", "FF0000FF"}},
    };
    for (const auto& [space, colors] : rows)
        for (const int bits : {1, 2, 4, 8}) {
            const std::string entries = pdfImage(3, 1, space, bits);
            EXPECT_EQ(takeRow(entries, packSamples({1, 0, 1}, bits, 3)),
                      (std::vector<std::string>{colors[1], colors[0], colors[1]}))
                << space << " of " << bits << " bits";
            EXPECT_EQ(takeRow(entries + " /Decode [1 0]", packSamples({1, 0, 1}, 1, 3)).size(), 3u);
        }
    EXPECT_EQ(takeRow(pdfImage(2, 1, "[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", 1) + " /Decode [1 0]", "\x40"),
              (std::vector<std::string>{"0080FFFF", "FF8000FF"}))
        << "the Decode array turns the palette around";
}

TEST(ColorSpaces, OfSpotColoursComeThroughTheirFunctions) {
    const char* separation =
        "[/Separation /Spot /DeviceRGB << /FunctionType 2 /Domain [0 1] /C0 [1 1 1] /C1 [1 0 0.2] /N 1 >>]";
    const std::string function = "{ 1 exch sub exch 1 exch sub exch 1 }"; // red and green are what the two leave
    for (const int bits : kDepths) {
        const int most = (1 << bits) - 1;
        EXPECT_EQ(takeRow(pdfImage(2, 1, separation, bits), packSamples({0, most}, bits, 2)),
                  (std::vector<std::string>{"FFFFFFFF", "FF0033FF"}))
            << bits << " bits";
        EXPECT_EQ(takeRow(pdfImage(2, 1, separation, bits) + " /Decode [1 0]", packSamples({0, most}, bits, 2)),
                  (std::vector<std::string>{"FF0033FF", "FFFFFFFF"}))
            << bits << " bits, inverted";
        tests::PdfBuilder pdf;
        const int tint = pdf.addStream("/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]", function);
        const std::string space = "[/DeviceN [/One /Two] /DeviceRGB " + tests::pdfRef(tint) + "]";
        const int image = pdf.addStream(pdfImage(3, 1, space, bits), packSamples({0, 0, most, 0, 0, most}, bits, 6));
        pdf.page(pageFilledWith(image));
        EXPECT_EQ(rowOf(TakenPictures(pdf).pixels()), (std::vector<std::string>{"FFFFFFFF", "00FFFFFF", "FF00FFFF"}))
            << bits << " bits";
    }
}

TEST(ColorSpaces, OfLabComeAsTheyLook) {
    // L* of 0, 53.6 and 100 without a hue is black, the middle grey of sRGB and white; the last is its red.
    const std::string space = "[/Lab << /WhitePoint [0.9642 1 0.8249] /Range [-128 127 -128 127] >>]";
    const std::string samples("\x00\x80\x80\x89\x80\x80\xFF\x80\x80\x8B\xD1\xC6", 12);
    const std::vector<std::string> row = takeRow(pdfImage(4, 1, space, 8), samples);
    EXPECT_TRUE(isNear(row[0], "000000FF", 4)) << row[0];
    EXPECT_TRUE(isNear(row[1], "808080FF", 4)) << row[1];
    EXPECT_TRUE(isNear(row[2], "FFFFFFFF", 4)) << row[2];
    EXPECT_TRUE(isNear(row[3], "FF0000FF", 24)) << row[3] << ": at the edge of what sRGB holds";
}

/// A PDF with a picture in the colours of a profile.
tests::PdfBuilder pdfWithProfile(const std::string& profile, int components, int bits, const std::string& samples) {
    tests::PdfBuilder pdf;
    const int stream = pdf.addStream("/N " + std::to_string(components), profile);
    const int width = components == 1 ? 3 : 2;
    const int image = pdf.addStream(pdfImage(width, 1, "[/ICCBased " + tests::pdfRef(stream) + "]", bits), samples);
    pdf.page(pageFilledWith(image));
    return pdf;
}

TEST(ColorSpaces, OfAProfileKeepTheirSamplesAndTheProfileWhereTheFormatHoldsIt) {
    const std::string profile = rgbProfile(Primaries::Turned);
    const tests::PdfBuilder pdf = pdfWithProfile(profile, 3, 8, std::string("\xFF\0\0\x40\x80\xC0", 6));
    const TakenPictures png(pdf);
    EXPECT_EQ(rowOf(png.pixels()), (std::vector<std::string>{"FF0000FF", "4080C0FF"}));
    EXPECT_NE(png.bytes(0).find("iCCP"), std::string::npos);
    for (const ImageFileFormat format : {ImageFileFormat::Tiff, ImageFileFormat::Jpg, ImageFileFormat::Psd})
        EXPECT_NE(TakenPictures(pdf, format).bytes(0).find(profile), std::string::npos);
}

TEST(ColorSpaces, OfAProfileAreConvertedWhereTheFormatHoldsNone) {
    for (const int bits : {8, 16}) {
        const std::vector<int> samples =
            bits == 8 ? std::vector<int>{255, 0, 0, 0, 255, 0} : std::vector<int>{0xFFFF, 0, 0, 0, 0xFFFF, 0};
        const tests::PdfBuilder pdf =
            pdfWithProfile(rgbProfile(Primaries::Turned), 3, bits, packSamples(samples, bits, 6));
        const std::string ppm = TakenPictures(pdf, ImageFileFormat::Ppm).bytes(0);
        const std::string header = "P6\n2 1\n255\n";
        ASSERT_EQ(ppm.substr(0, header.size()), header);
        const std::string pixels = ppm.substr(header.size());
        const std::string expected("\0\xFF\0\0\0\xFF", 6);
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_NEAR(static_cast<unsigned char>(pixels[i]), static_cast<unsigned char>(expected[i]), 3) << i;
    }
}

TEST(ColorSpaces, OfAGreyProfileKeepTheirSamples) {
    const TakenPictures png(pdfWithProfile(grayProfile(), 1, 8, std::string("\0\x80\xFF", 3)));
    EXPECT_EQ(rowOf(png.pixels()), (std::vector<std::string>{"000000FF", "808080FF", "FFFFFFFF"}));
    EXPECT_NE(png.bytes(0).find("iCCP"), std::string::npos);
}

TEST(ColorSpaces, OfADamagedProfileAreThoseOfAsManyComponents) {
    const TakenPictures png(pdfWithProfile("no profile", 3, 8, std::string("\xFF\0\0\x40\x80\xC0", 6)));
    EXPECT_EQ(rowOf(png.pixels()), (std::vector<std::string>{"FF0000FF", "4080C0FF"}));
    EXPECT_EQ(png.bytes(0).find("iCCP"), std::string::npos);
}

TEST(ColorSpaces, OfSixteenBitsStaySoInFormatsThatHoldThem) {
    const std::string samples("\x12\x34\xFE\xDC\x00\x01", 6);
    const tests::PdfBuilder pdf = pdfWithPicture(pdfImage(1, 1, "/DeviceRGB", 16), samples);
    EXPECT_EQ(TakenPictures(pdf).bytes(0)[24], 16) << "the depth in the PNG's header";
    for (const ImageFileFormat format : {ImageFileFormat::Ppm, ImageFileFormat::Pnm, ImageFileFormat::Psd})
        EXPECT_NE(TakenPictures(pdf, format).bytes(0).find(samples.substr(0, 4)), std::string::npos);
}

} // namespace
} // namespace orvane::pictures
