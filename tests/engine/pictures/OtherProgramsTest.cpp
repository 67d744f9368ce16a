#include "Extraction.h"
#include "FaxCoder.h"
#include "IccProfile.h"
#include "Jbig2Coder.h"
#include "support/Files.h"
#include "support/ProgramRun.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

namespace orvane::pictures {
namespace {

using testing::HasSubstr;
using tests::PdfBuilder;
using tests::pdfImage;
using tests::pdfRef;

/// What programs of other people make of the files.
class OtherPrograms : public testing::Test {
protected:
    /// Lays a taken picture down as a file of its own name.
    std::string lay(const TakenPictures& taken, std::size_t file = 0) const {
        const std::string path = (m_folder.path() / taken.files().at(file).name).string();
        tests::writeFile(path, taken.bytes(file));
        return path;
    }

    static std::string run(const std::string& program, const std::vector<std::string>& arguments) {
        const auto result = tests::runProgram("/usr/bin/" + program, arguments, {});
        EXPECT_EQ(result.exitCode, 0) << program << ": " << result.errorOutput;
        return result.output;
    }

    std::string path(const std::string& name) const { return (m_folder.path() / name).string(); }

private:
    tests::TemporaryFolder m_folder;
};

/// Two pixels, red and blue, on a square inch of the page: 2 dots an inch across, 1 down.
PdfBuilder redAndBlue(const std::string& more = {}) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(2, 1, "/DeviceRGB", 8) + more, std::string("\xFF\0\0\0\0\xFF", 6));
    pdf.page({"q 72 0 0 72 0 0 cm /Im1 Do Q", 100, 100, {}, "/XObject << /Im1 " + pdfRef(image) + " >>", {}});
    return pdf;
}

TEST_F(OtherPrograms, FindTheResolutionInEveryFormatThatHasAPlaceForIt) {
    for (const ImageFileFormat format : {ImageFileFormat::Bmp, ImageFileFormat::Jpg, ImageFileFormat::Pcx,
                                         ImageFileFormat::Png, ImageFileFormat::Psd, ImageFileFormat::Tiff}) {
        PdfBuilder pdf;
        const int image = pdf.addStream(pdfImage(150, 75, "/DeviceGray", 8), std::string(150 * 75, '\x40'));
        pdf.page({"q 72 0 0 72 0 0 cm /Im1 Do Q", 100, 100, {}, "/XObject << /Im1 " + pdfRef(image) + " >>", {}});
        const std::string file = lay(TakenPictures(pdf, format));
        const std::string told = run("identify", {"-units", "PixelsPerInch", "-format", "%x %y\n", file + "[0]"});
        double x = 0;
        double y = 0;
        ASSERT_EQ(std::sscanf(told.c_str(), "%lf %lf", &x, &y), 2) << file << ": " << told;
        EXPECT_NEAR(x, 150, 0.5) << file;
        EXPECT_NEAR(y, 75, 0.5) << file;
    }
}

TEST_F(OtherPrograms, ReadTheNetpbmFormats) {
    EXPECT_THAT(run("pnmfile", {lay(TakenPictures(redAndBlue(), ImageFileFormat::Ppm))}), HasSubstr("PPM raw, 2 by 1"));
    EXPECT_THAT(run("pnmfile", {lay(TakenPictures(redAndBlue(), ImageFileFormat::Pnm))}), HasSubstr("PPM raw, 2 by 1"));
    EXPECT_THAT(run("pnmfile", {lay(TakenPictures(redAndBlue(), ImageFileFormat::Pbm))}), HasSubstr("PBM raw, 2 by 1"));
    const PdfBuilder gray = pdfWithPicture(pdfImage(2, 1, "/DeviceGray", 8), "\x20\x40");
    EXPECT_THAT(run("pnmfile", {lay(TakenPictures(gray, ImageFileFormat::Pnm))}), HasSubstr("PGM raw, 2 by 1"));
    EXPECT_THAT(run("pnmfile", {lay(TakenPictures(gray, ImageFileFormat::Ppm))}), HasSubstr("PPM raw, 2 by 1"));
    const PdfBuilder bilevel = pdfWithPicture(pdfImage(2, 1, "/DeviceGray", 1), "\x40");
    EXPECT_THAT(run("pnmfile", {lay(TakenPictures(bilevel, ImageFileFormat::Pnm))}), HasSubstr("PBM raw, 2 by 1"));
}

TEST_F(OtherPrograms, FindTheOpacityWhereTheFormatHoldsIt) {
    PdfBuilder pdf;
    const int soft = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), "\x80\xFF");
    const int image =
        pdf.addStream(pdfImage(2, 1, "/DeviceRGB", 8) + " /SMask " + pdfRef(soft), std::string("\xFF\0\0\0\0\xFF", 6));
    pdf.page(pageFilledWith(image));
    const std::string pixels("\xFF\0\0\x80\0\0\xFF\xFF", 8);
    const std::pair<ImageFileFormat, const char*> rows[] = {{ImageFileFormat::Png, ""},
                                                            {ImageFileFormat::Tiff, ""},
                                                            {ImageFileFormat::Bmp, ""},
                                                            {ImageFileFormat::Psd, "[1]"}};
    for (const auto& [format, layer] : rows) {
        const std::string file = lay(TakenPictures(pdf, format));
        EXPECT_EQ(run("convert", {file + layer, "-depth", "8", "rgba:-"}), pixels) << file;
    }
}

TEST_F(OtherPrograms, FindTheProfileWhereTheFormatHoldsIt) {
    PdfBuilder pdf;
    const std::string profile = rgbProfile(Primaries::Turned);
    const int stream = pdf.addStream("/N 3", profile);
    const int image =
        pdf.addStream(pdfImage(2, 1, "[/ICCBased " + pdfRef(stream) + "]", 8), std::string("\xFF\0\0\0\0\xFF", 6));
    pdf.page(pageFilledWith(image));
    for (const ImageFileFormat format :
         {ImageFileFormat::Jpg, ImageFileFormat::Png, ImageFileFormat::Psd, ImageFileFormat::Tiff}) {
        const std::string file = lay(TakenPictures(pdf, format));
        EXPECT_EQ(run("convert", {file + "[0]", "icc:-"}), profile) << file;
    }
    EXPECT_THAT(run("tiffinfo", {lay(TakenPictures(pdf, ImageFileFormat::Tiff))}), HasSubstr("ICC Profile: <present>"));
}

TEST_F(OtherPrograms, ReadTiffOfEveryKindOfPixels) {
    const struct {
        std::string entries;
        std::string data;
        const char* told;
        std::string pixels;
    } rows[] = {
        {pdfImage(2, 1, "/DeviceGray", 1), "\x40", "Bits/Sample: 1", std::string("\0\0\0\xFF\xFF\xFF", 6)},
        {pdfImage(2, 1, "/DeviceGray", 8), "\x20\x40", "Photometric Interpretation: min-is-black", "   @@@"},
        {pdfImage(2, 1, "/DeviceGray", 16), "  @@", "Bits/Sample: 16", "   @@@"},
        {pdfImage(2, 1, "[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", 1), "\x40",
         "Photometric Interpretation: palette color", std::string("\xFF\x80\0\0\x80\xFF", 6)},
        {pdfImage(2, 1, "/DeviceRGB", 8), "abcdef", "Photometric Interpretation: RGB color", "abcdef"},
        {pdfImage(2, 1, "/DeviceRGB", 16), "aabbccddeeff", "Bits/Sample: 16", "abcdef"},
    };
    for (const auto& row : rows) {
        const std::string file = lay(TakenPictures(pdfWithPicture(row.entries, row.data), ImageFileFormat::Tiff));
        EXPECT_THAT(run("tiffinfo", {file}), HasSubstr(row.told));
        EXPECT_EQ(run("convert", {file, "-depth", "8", "rgb:-"}), row.pixels) << row.told;
    }
}

const Raster kLetters = {"#..#.###.###....", "#..#.#....#.....", "####.##...#.....", "#..#.#....#.....",
                         "#..#.###.###...."};

/// The rows of a raw PBM.
Raster rasterOfPbm(const std::string& pbm, std::size_t width, std::size_t height) {
    const std::string pixels = pbm.substr(pbm.size() - height * width / 8);
    Raster rows(height);
    for (std::size_t i = 0; i < width * height; ++i)
        rows[i / width] += (static_cast<unsigned char>(pixels[i / 8]) >> (7 - i % 8) & 1) != 0 ? '#' : '.';
    return rows;
}

TEST_F(OtherPrograms, ReadFaxDataThatWasPassedThrough) {
    const struct {
        FaxCoding coding;
        const char* more;
        const char* told;
    } rows[] = {
        {{-1, false, false, true}, "", "CCITT Group 4"}, {{-1, false, false, true}, "/BlackIs1 true", "CCITT Group 4"},
        {{0, true, false, true}, "", "CCITT Group 3"},   {{4, true, false, true}, "", "CCITT Group 3"},
        {{0, false, true, false}, "", "CCITT RLE"},
    };
    for (const auto& row : rows) {
        const std::string entries =
            pdfImage(16, 5, "/DeviceGray", 1) +
            fmt::format(" /Filter /CCITTFaxDecode /DecodeParms << /K {} /Columns 16 /Rows 5 "
                        "/EndOfLine {} /EncodedByteAlign {} {} >>",
                        row.coding.k, row.coding.hasEndOfLine, row.coding.isByteAligned, row.more);
        const TakenPictures taken(pdfWithPicture(entries, codeFax(kLetters, row.coding)), ImageFileFormat::Tiff);
        ASSERT_EQ(taken.files().size(), 1u) << row.told;
        const std::string file = lay(taken);
        EXPECT_THAT(run("tiffinfo", {file}), HasSubstr(row.told));
        Raster expected = kLetters;
        if (row.more == std::string("/BlackIs1 true"))
            for (std::string& line : expected)
                for (char& pixel : line)
                    pixel = pixel == '#' ? '.' : '#';
        EXPECT_EQ(rasterOfPbm(run("tifftopnm", {"-quiet", file}), 16, 5), expected) << row.told;
    }
}

TEST_F(OtherPrograms, ReadJbig2DataThatWasPassedThrough) {
    const auto entries = [](const std::string& parameters) {
        return pdfImage(16, 5, "/DeviceGray", 1) + " /Filter /JBIG2Decode" + parameters;
    };
    const TakenPictures plain(pdfWithPicture(entries(""), codeJbig2(kLetters).own), ImageFileFormat::Original);
    run("jbig2dec", {"-t", "pbm", "-o", path("plain.pbm"), lay(plain)});
    EXPECT_EQ(rasterOfPbm(tests::readFile(path("plain.pbm")), 16, 5), kLetters);

    const Jbig2Segments tiled = codeTiledJbig2({"##..", "#...", "...#", "..##", "...."}, {"1010"});
    PdfBuilder pdf;
    const int globals = pdf.addStream("", tiled.globals);
    const int image = pdf.addStream(entries(" /DecodeParms << /JBIG2Globals " + pdfRef(globals) + " >>"), tiled.own);
    pdf.page(pageFilledWith(image));
    run("jbig2dec", {"-t", "pbm", "-o", path("tiled.pbm"), lay(TakenPictures(pdf, ImageFileFormat::Original))});
    EXPECT_EQ(
        rasterOfPbm(tests::readFile(path("tiled.pbm")), 16, 5),
        (Raster{"##......##......", "#.......#.......", "...#.......#....", "..##......##....", "................"}));
}

} // namespace
} // namespace orvane::pictures
