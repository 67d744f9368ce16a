#include "Extraction.h"
#include "support/Files.h"
#include "support/ProgramRun.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

constexpr int kSide = 16;

/// A JP2 file of one colour ("rgb(224,32,16)"), coded without loss by ImageMagick.
std::string codeJpeg2000(const std::string& color, const std::string& type) {
    const tests::TemporaryFolder folder;
    const std::string file = (folder.path() / "a.jp2").string();
    const auto run =
        tests::runProgram("/usr/bin/convert", {"-size", fmt::format("{0}x{0}", kSide), "xc:" + color, "-type", type,
                                               "-depth", "8", "-quality", "0", "jp2:" + file});
    EXPECT_EQ(run.exitCode, 0) << run.errorOutput;
    return tests::readFile(file);
}

std::string entriesOf(const std::string& more) {
    return fmt::format("/Type /XObject /Subtype /Image /Width {0} /Height {0} /Filter /JPXDecode {1}", kSide, more);
}

TEST(Jpeg2000Pictures, ComeInTheirColours) {
    const struct {
        const char* color;
        const char* type;
        const char* entries;
        const char* expected;
        const char* why;
    } rows[] = {
        {"gray(64)", "Grayscale", "/ColorSpace /DeviceGray", "404040FF", "grey"},
        {"gray(64)", "Grayscale", "/ColorSpace /DeviceGray /Decode [1 0]", "BFBFBFFF", "inverted grey"},
        {"rgb(224,32,16)", "TrueColor", "/ColorSpace /DeviceRGB", "E02010FF", "colours"},
        {"rgb(224,32,16)", "TrueColor", "", "E02010FF", "colours that the data alone tells of"},
    };
    for (const auto& row : rows) {
        const TakenPictures taken(pdfWithPicture(entriesOf(row.entries), codeJpeg2000(row.color, row.type)));
        ASSERT_EQ(taken.files().size(), 1u) << row.why;
        const std::string pixel = taken.pixels().at(kSide / 2, kSide / 2);
        EXPECT_TRUE(isNear(pixel, row.expected, 2)) << row.why << ": " << pixel;
    }
}

TEST(Jpeg2000Pictures, ComeWithTheOpacityOfTheirData) {
    const std::string coded = codeJpeg2000("rgba(224,32,16,0.5)", "TrueColorMatte");
    const struct {
        const char* entries;
        const char* expected;
        const char* why;
    } rows[] = {
        {"/SMaskInData 1", "E0201080", "colours and opacity"},
        {"/SMaskInData 2 /Matte [0 0 0]", "FF402080", "the colours are on black"},
        {"", "E02010FF", "opacity that the PDF does not speak of is none"},
    };
    for (const auto& row : rows) {
        const TakenPictures taken(
            pdfWithPicture(entriesOf(std::string("/ColorSpace /DeviceRGB ") + row.entries), coded));
        ASSERT_EQ(taken.files().size(), 1u) << row.why;
        const std::string pixel = taken.pixels().at(kSide / 2, kSide / 2);
        EXPECT_TRUE(isNear(pixel, row.expected, 3)) << row.why << ": " << pixel;
    }
}

TEST(Jpeg2000Pictures, StayByteForByte) {
    const std::string coded = codeJpeg2000("rgb(224,32,16)", "TrueColor");
    const TakenPictures taken(pdfWithPicture(entriesOf("/ColorSpace /DeviceRGB"), coded), ImageFileFormat::Original);
    ASSERT_EQ(taken.files().size(), 1u);
    EXPECT_EQ(taken.files()[0].name, "a-p001-01.jp2");
    EXPECT_EQ(taken.bytes(0), coded);
}

TEST(Jpeg2000Pictures, OfABareCodestreamGetTheBoxesOfAFile) {
    const std::string coded = codeJpeg2000("rgb(224,32,16)", "TrueColor");
    const std::string bare = coded.substr(coded.find("\xFF\x4F\xFF\x51"));
    const TakenPictures taken(pdfWithPicture(entriesOf("/ColorSpace /DeviceRGB"), bare), ImageFileFormat::Original);
    ASSERT_EQ(taken.files().size(), 1u);
    const tests::TemporaryFolder folder;
    tests::writeFile(folder.path() / "a.jp2", taken.bytes(0));
    const auto seen = tests::runProgram("/usr/bin/convert",
                                        {(folder.path() / "a.jp2").string() + "[1x1+8+8]", "-depth", "8", "rgb:-"});
    EXPECT_EQ(seen.output, "\xE0\x20\x10") << seen.errorOutput;
}

} // namespace
} // namespace orvane::pictures
