#include "Extraction.h"
#include "SampleCoder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

constexpr int kWidth = 5;
constexpr int kHeight = 6;

/// Red, green and blue that rise and fall, so that no predictor is right by chance.
std::vector<int> rgbSamples(int bits) {
    std::vector<int> samples;
    for (int i = 0; i < kWidth * kHeight * 3; ++i)
        samples.push_back((i * i * 7 + i * 31) & ((1 << bits) - 1));
    return samples;
}

/// The same, each as a level of 255.
std::vector<std::string> expectedRow(const std::vector<int>& samples, int bits, int y) {
    const int most = (1 << bits) - 1;
    std::vector<std::string> row;
    for (int x = 0; x < kWidth; ++x) {
        std::string pixel;
        for (int c = 0; c < 3; ++c)
            pixel += fmt::format("{:02X}", samples[static_cast<std::size_t>((y * kWidth + x) * 3 + c)] * 255 / most);
        row.push_back(pixel + "FF");
    }
    return row;
}

void expectPicture(const std::string& filter, const std::string& coded, int bits, const std::string& why) {
    const TakenPictures taken(
        pdfWithPicture(tests::pdfImage(kWidth, kHeight, "/DeviceRGB", bits) + " /Filter " + filter, coded));
    ASSERT_EQ(taken.files().size(), 1u) << why;
    const pdf::Pixels pixels = taken.pixels();
    for (int y = 0; y < kHeight; ++y)
        EXPECT_EQ(rowOf(pixels, y), expectedRow(rgbSamples(bits), bits, y)) << why << ", row " << y;
}

TEST(Filters, ExpandSamples) {
    const std::string samples = packSamples(rgbSamples(8), 8, kWidth * 3);
    expectPicture("/FlateDecode", codeFlate(samples), 8, "Flate");
    expectPicture("/LZWDecode", codeLzw(samples), 8, "LZW");
    expectPicture("/RunLengthDecode", codeRunLength(samples), 8, "run lengths");
    expectPicture("[/LZWDecode /FlateDecode]", codeLzw(codeFlate(samples)), 8, "one in another");
}

TEST(Filters, UndoThePredictorsOfPng) {
    const std::string samples = packSamples(rgbSamples(8), 8, kWidth * 3);
    using enum PngFilter;
    const std::pair<std::vector<PngFilter>, const char*> rows[] = {
        {{None}, "none"},
        {{Sub}, "the pixel to the left"},
        {{Up}, "the pixel above"},
        {{Average}, "their mean"},
        {{Paeth}, "the nearest of three"},
        {{Paeth, Sub, None, Average, Up}, "another one each row"},
    };
    const std::string parameters =
        fmt::format(" /DecodeParms << /Predictor 15 /Colors 3 /BitsPerComponent 8 /Columns {} >>", kWidth);
    for (const auto& [filters, why] : rows) {
        const std::string filtered = filterPng(samples, kWidth * 3, 3, filters);
        expectPicture("/FlateDecode" + parameters, codeFlate(filtered), 8, why);
        expectPicture("/LZWDecode" + parameters, codeLzw(filtered), 8, why);
    }
}

TEST(Filters, UndoThePredictorOfTiff) {
    for (const int bits : {1, 4, 8}) {
        const std::string parameters =
            fmt::format(" /DecodeParms << /Predictor 2 /Colors 3 /BitsPerComponent {} /Columns {} >>", bits, kWidth);
        const std::string differences = differenceTiff(rgbSamples(bits), bits, kWidth * 3, 3);
        expectPicture("/FlateDecode" + parameters, codeFlate(differences), bits, fmt::format("{} bits", bits));
        expectPicture("/LZWDecode" + parameters, codeLzw(differences), bits, fmt::format("{} bits, LZW", bits));
    }
}

} // namespace
} // namespace orvane::pictures
