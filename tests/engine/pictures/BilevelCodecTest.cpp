#include "Extraction.h"
#include "FaxCoder.h"
#include "Jbig2Coder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

/// Edges that stay, move by one to three pixels and further, begin and end: every mode of two-dimensional coding.
const Raster kRaster = {
    "................", "..####....##....", "..####....##....", "...###...####...", "#..##..........#",
    "######......####", "..............##", "#.#.#.#.#.#.#.#.", "................",
};

Raster inverted(Raster rows) {
    for (std::string& row : rows)
        for (char& pixel : row)
            pixel = pixel == '#' ? '.' : '#';
    return rows;
}

/// Black pixels as '#'; those that are neither black nor white as '?'.
Raster rasterOf(const pdf::Pixels& pixels) {
    Raster rows(static_cast<std::size_t>(pixels.height));
    for (int y = 0; y < pixels.height; ++y)
        for (const std::string& pixel : rowOf(pixels, y))
            rows[static_cast<std::size_t>(y)] += pixel == "000000FF" ? '#' : pixel == "FFFFFFFF" ? '.' : '?';
    return rows;
}

std::string bilevelEntries(const Raster& rows, const std::string& filter) {
    return tests::pdfImage(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()), "/DeviceGray", 1) +
           " /Filter " + filter;
}

std::string faxEntries(const FaxCoding& coding, const std::string& more = {}) {
    return bilevelEntries(kRaster,
                          fmt::format("/CCITTFaxDecode /DecodeParms << /K {} /Columns {} /Rows {} /EndOfLine {} "
                                      "/EncodedByteAlign {} /EndOfBlock {} {} >>",
                                      coding.k, kRaster.front().size(), kRaster.size(), coding.hasEndOfLine,
                                      coding.isByteAligned, coding.hasEndOfBlock, more));
}

struct FaxRow {
    FaxCoding coding;
    const char* endingInTiff; ///< of the file when TIFF or the original is asked for
    const char* why;
};

const FaxRow kFaxRows[] = {
    {{-1, false, false, true}, "tif", "group 4"},
    {{-1, false, false, false}, "tif", "group 4 without an end"},
    {{-1, false, true, true}, "png", "group 4 whose rows begin at bytes, which TIFF has no name for"},
    {{0, true, false, true}, "tif", "group 3, one-dimensional"},
    {{0, false, false, true}, "png", "group 3 without ends of lines, which readers of TIFF look for"},
    {{0, false, true, false}, "tif", "group 3 in bytes without ends of lines: the compression 2 of TIFF"},
    {{0, true, true, true}, "png", "group 3 in bytes with ends of lines, which TIFF fills in another way"},
    {{4, true, false, true}, "tif", "group 3, mixed"},
    {{4, true, true, true}, "png", "group 3, mixed, in bytes"},
    {{4, false, false, false}, "png", "group 3, mixed, without ends of lines"},
};

TEST(FaxPictures, ComeAsTheyWereCoded) {
    for (const FaxRow& row : kFaxRows)
        EXPECT_EQ(
            rasterOf(TakenPictures(pdfWithPicture(faxEntries(row.coding), codeFax(kRaster, row.coding))).pixels()),
            kRaster)
            << row.why;
}

TEST(FaxPictures, ComeInvertedWhereThePdfInvertsThem) {
    const std::string coded = codeFax(kRaster, {});
    EXPECT_EQ(rasterOf(TakenPictures(pdfWithPicture(faxEntries({}, "/BlackIs1 true"), coded)).pixels()),
              inverted(kRaster));
    EXPECT_EQ(rasterOf(TakenPictures(pdfWithPicture(faxEntries({}) + " /Decode [1 0]", coded)).pixels()),
              inverted(kRaster));
    EXPECT_EQ(
        rasterOf(TakenPictures(pdfWithPicture(faxEntries({}, "/BlackIs1 true") + " /Decode [1 0]", coded)).pixels()),
        kRaster);
}

TEST(FaxPictures, StayFaxDataWhereTiffCanHoldThem) {
    for (const FaxRow& row : kFaxRows) {
        const std::string coded = codeFax(kRaster, row.coding);
        const TakenPictures taken(pdfWithPicture(faxEntries(row.coding), coded), ImageFileFormat::Original);
        ASSERT_EQ(taken.files().size(), 1u) << row.why;
        EXPECT_EQ(taken.files()[0].name, std::string("a-p001-01.") + row.endingInTiff) << row.why;
        if (row.endingInTiff == std::string("tif")) {
            EXPECT_NE(taken.bytes(0).find(coded), std::string::npos) << row.why;
        }
    }
}

TEST(Jbig2Pictures, ComeAsTheyWereCoded) {
    // A row that only passes over those above it is left out: the library's decoder of JBIG2 loses its place there.
    const Raster raster(kRaster.begin(), kRaster.end() - 1);
    const Jbig2Segments coded = codeJbig2(raster);
    const TakenPictures taken(pdfWithPicture(bilevelEntries(raster, "/JBIG2Decode"), coded.own));
    EXPECT_EQ(rasterOf(taken.pixels()), raster);
    EXPECT_TRUE(taken.notes().empty());
}

TEST(Jbig2Pictures, ComeWithTheSegmentsThatTheyShare) {
    const Jbig2Segments coded = codeTiledJbig2({"##..", "#...", "...#", "..##"}, {"1010", "0110"});
    const Raster expected = {"##......##......", "#.......#.......", "...#.......#....", "..##......##....",
                             "....##..##......", "....#...#.......", ".......#...#....", "......##..##...."};
    tests::PdfBuilder pdf;
    const int globals = pdf.addStream("", coded.globals);
    const int image = pdf.addStream(
        bilevelEntries(expected, "/JBIG2Decode /DecodeParms << /JBIG2Globals " + tests::pdfRef(globals) + " >>"),
        coded.own);
    pdf.page(pageFilledWith(image));
    EXPECT_EQ(rasterOf(TakenPictures(pdf).pixels()), expected);

    const TakenPictures original(pdf, ImageFileFormat::Original);
    ASSERT_EQ(original.files().size(), 1u);
    EXPECT_EQ(original.files()[0].name, "a-p001-01.jb2");
    const std::string file = original.bytes(0);
    EXPECT_EQ(file.substr(0, 8), "\x97JB2\r\n\x1A\n");
    EXPECT_NE(file.find(coded.globals + coded.own), std::string::npos);
}

} // namespace
} // namespace orvane::pictures
