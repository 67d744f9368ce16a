#include "Extraction.h"
#include "SampleCoder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

using tests::PdfBuilder;
using tests::pdfImage;
using tests::pdfRef;

/// Objects as a page's resources: /Im1, /Im2 and so on.
std::string xObjects(const std::vector<int>& objects) {
    std::string entries = "/XObject << ";
    for (std::size_t i = 0; i < objects.size(); ++i)
        entries += fmt::format("/Im{} {} ", i + 1, pdfRef(objects[i]));
    return entries + ">>";
}

TEST(Extractor, JoinsStripsAndTellsOfTheirObjects) {
    PdfBuilder pdf;
    std::vector<int> strips;
    for (const char level : {'\x10', '\x20', '\x30'})
        strips.push_back(pdf.addStream(pdfImage(2, 2, "/DeviceGray", 8), std::string(4, level)));
    pdf.page({"q 20 0 0 20 0 40 cm /Im1 Do Q q 20 0 0 20 0 20 cm /Im2 Do Q q 20 0 0 20 0 0 cm /Im3 Do Q",
              100,
              100,
              {},
              xObjects(strips),
              {}});
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 1u);
    EXPECT_EQ(taken.files()[0].width, 2);
    EXPECT_EQ(taken.files()[0].height, 6);
    ASSERT_EQ(taken.files()[0].parts.size(), 3u);
    EXPECT_EQ(taken.files()[0].parts[1].objectNumber, strips[1]);
    EXPECT_EQ(taken.files()[0].parts[1].y, 2);
    const pdf::Pixels pixels = taken.pixels();
    EXPECT_EQ(pixels.at(0, 1), "101010FF");
    EXPECT_EQ(pixels.at(1, 2), "202020FF");
    EXPECT_EQ(pixels.at(1, 5), "303030FF");
}

TEST(Extractor, JoinsTilesOfDifferentColours) {
    PdfBuilder pdf;
    const std::vector<int> tiles = {
        pdf.addStream(pdfImage(2, 1, "[/Indexed /DeviceRGB 0 <FF0000>]", 8), std::string(2, '\0')),
        pdf.addStream(pdfImage(2, 1, "[/Indexed /DeviceRGB 0 <00FF00>]", 8), std::string(2, '\0')),
        pdf.addStream(pdfImage(2, 1, "[/Indexed /DeviceRGB 0 <0000FF>]", 8), std::string(2, '\0')),
        pdf.addStream(pdfImage(2, 1, "[/Indexed /DeviceRGB 0 <FFFFFF>]", 8), std::string(2, '\0')),
    };
    pdf.page(
        {"q 20 0 0 10 0 10 cm /Im1 Do Q q 20 0 0 10 20 10 cm /Im2 Do Q q 20 0 0 10 0 0 cm /Im3 Do Q q 20 0 0 10 20 "
         "0 cm /Im4 Do Q",
         100,
         100,
         {},
         xObjects(tiles),
         {}});
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 1u);
    const pdf::Pixels pixels = taken.pixels();
    EXPECT_EQ(rowOf(pixels, 0), (std::vector<std::string>{"FF0000FF", "FF0000FF", "00FF00FF", "00FF00FF"}));
    EXPECT_EQ(rowOf(pixels, 1), (std::vector<std::string>{"0000FFFF", "0000FFFF", "FFFFFFFF", "FFFFFFFF"}));
}

TEST(Extractor, LeavesAPlaceWhiteWhereAStripCannotBeRead) {
    PdfBuilder pdf;
    const std::vector<int> strips = {
        pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), "\x10\x10"),
        pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8) + " /Filter /FlateDecode", "no such data"),
    };
    pdf.page({"q 20 0 0 10 0 10 cm /Im1 Do Q q 20 0 0 10 0 0 cm /Im2 Do Q", 100, 100, {}, xObjects(strips), {}});
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 1u);
    EXPECT_EQ(taken.pixels().at(0, 0), "101010FF");
    EXPECT_EQ(taken.pixels().at(0, 1), "FFFFFFFF");
    ASSERT_EQ(taken.notes().size(), 1u);
    EXPECT_EQ(taken.notes()[0].kind, DiagnosticKind::PictureUnreadable);
}

TEST(Extractor, TakesAPictureOnceThatTenPagesPaint) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    for (int page = 0; page < 10; ++page)
        pdf.page(pageFilledWith(image, "q 5 0 0 5 0 0 cm /Im1 Do Q"));
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 1u);
    EXPECT_EQ(taken.files()[0].pages, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(taken.pictures(), 1);
}

TEST(Extractor, TakesEqualInlinePicturesOnce) {
    const std::string first = "q 5 0 0 5 0 0 cm BI /W 1 /H 1 /CS /G /BPC 8 ID \x60 EI Q ";
    const std::string second = "q 5 0 0 5 50 0 cm BI /W 1 /H 1 /CS /G /BPC 8 ID \x61 EI Q ";
    PdfBuilder pdf;
    pdf.page({first + second + first, 100, 100, {}, {}, {}}).page({second, 100, 100, {}, {}, {}});
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 2u);
    EXPECT_EQ(taken.pixels(0).at(0, 0), "606060FF");
    EXPECT_EQ(taken.pixels(1).at(0, 0), "616161FF");
    EXPECT_EQ(taken.files()[1].pages, (std::vector<int>{1, 2}));
    EXPECT_EQ(taken.files()[1].parts[0].objectNumber, 0);
}

TEST(Extractor, ReadsInlinePicturesOfEveryShortName) {
    const struct {
        std::string picture;
        std::vector<std::string> expected;
        const char* why;
    } rows[] = {
        {"BI /W 2 /H 1 /CS /RGB /BPC 8 /F /AHx ID FF00000000FF> EI", {"FF0000FF", "0000FFFF"}, "colours"},
        {"BI /W 2 /H 1 /CS /CMYK /BPC 8 /F /AHx ID 00000000000000FF> EI", {"FFFFFFFF", "231F20FF"}, "inks"},
        {"BI /W 2 /H 1 /CS [/I /RGB 1 <FF80000080FF>] /BPC 1 /F /AHx ID 40> EI", {"FF8000FF", "0080FFFF"}, "a palette"},
        {"BI /W 2 /H 1 /CS /G /BPC 8 /D [1 0] /F /AHx ID 10F0> EI", {"EFEFEFFF", "0F0F0FFF"}, "inverted"},
        {"1 0 0 rg BI /W 2 /H 1 /IM true /F /AHx ID 40> EI", {"FF0000FF", "-"}, "a stencil"},
        {"BI /W 2 /H 1 /CS /G /BPC 8 /F [/AHx /RL] ID 0110F080> EI", {"101010FF", "F0F0F0FF"}, "run lengths"},
    };
    for (const auto& row : rows) {
        PdfBuilder pdf;
        pdf.page({"q 100 0 0 100 0 0 cm " + row.picture + " Q", 100, 100, {}, {}, {}});
        const TakenPictures taken(pdf);
        ASSERT_EQ(taken.files().size(), 1u) << row.why;
        EXPECT_EQ(rowOf(taken.pixels()), row.expected) << row.why;
    }
}

TEST(Extractor, LooksIntoFormsInFormsAndAnnotations) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    const int other = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x30");
    const std::string form = "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /Resources << ";
    const int inner = pdf.addStream(form + xObjects({image}) + " >>", "9 0 0 9 0 0 cm /Im1 Do");
    const int outer = pdf.addStream(form + xObjects({inner}) + " >>", "/Im1 Do");
    const int look = pdf.addStream(form + xObjects({other}) + " >>", "9 0 0 9 0 0 cm /Im1 Do");
    const int stamp =
        pdf.add("<< /Type /Annot /Subtype /Stamp /Rect [10 10 19 19] /F 4 /AP << /N " + pdfRef(look) + " >> >>");
    pdf.page({"/Im1 Do", 100, 100, "/Annots [" + pdfRef(stamp) + "]", xObjects({outer}), {}});
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 2u);
    EXPECT_EQ(taken.files()[0].parts[0].objectNumber, image);
    EXPECT_EQ(taken.files()[1].parts[0].objectNumber, other);
}

TEST(Extractor, GoesOnBehindWhatItCannotRead) {
    const std::string bomb = codeFlate(codeFlate(std::string(50'000'000, '\0')));
    const struct {
        std::string entries;
        std::string data;
        const char* why;
    } rows[] = {
        {pdfImage(100000, 100000, "/DeviceGray", 8), "abc", "a header of 100,000 by 100,000"},
        {pdfImage(100000, 100000, "/DeviceGray", 1) +
             " /Filter /CCITTFaxDecode /DecodeParms << /K -1 /Columns 100000 /Rows 100000 >>",
         "abc", "the same of fax data"},
        {pdfImage(8, 8, "/DeviceGray", 8) + " /Filter /FlateDecode", "no such data", "broken Flate"},
        {pdfImage(8, 8, "/DeviceGray", 8) + " /Filter /DCTDecode", "no such data", "broken JPEG"},
        {pdfImage(8, 8, "/DeviceGray", 8) + " /Filter /JPXDecode", "no such data", "broken JPEG 2000"},
        {pdfImage(8, 8, "/DeviceGray", 1) + " /Filter /JBIG2Decode", "no such data", "broken JBIG2"},
        {pdfImage(8, 8, "/DeviceRGB", 7), std::string(200, 'a'), "samples of 7 bits"},
        {pdfImage(20000, 20000, "/DeviceGray", 8) + " /Filter [/FlateDecode /FlateDecode]", bomb,
         "more than it may have"},
    };
    for (const auto& row : rows) {
        PdfBuilder pdf;
        const int broken = pdf.addStream(row.entries, row.data);
        const int good = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
        pdf.page(pageFilledWith(broken)).page(pageFilledWith(good));
        const TakenPictures taken(pdf);
        ASSERT_EQ(taken.files().size(), 1u) << row.why;
        EXPECT_EQ(taken.files()[0].name, "a-p002-01.png") << row.why;
        EXPECT_FALSE(taken.notes().empty()) << row.why;
    }
}

TEST(Extractor, KeepsWhatIsThereOfDataThatBreaksOff) {
    const TakenPictures taken(pdfWithPicture(pdfImage(1, 3, "/DeviceGray", 8), "\x20\x30"));
    ASSERT_EQ(taken.files().size(), 1u);
    EXPECT_EQ(taken.pixels().at(0, 1), "303030FF");
    EXPECT_EQ(taken.pixels().at(0, 2), "FFFFFFFF");
    ASSERT_EQ(taken.notes().size(), 1u);
    EXPECT_EQ(taken.notes()[0].message.substr(0, 27), "a picture's data breaks off");
}

TEST(Extractor, SaysWhenAFormatCannotHoldAPicture) {
    const tests::PdfBuilder pdf = pdfWithPicture(pdfImage(66000, 1, "/DeviceGray", 8), std::string(66000, '\x20'));
    for (const ImageFileFormat format : {ImageFileFormat::Jpg, ImageFileFormat::Pcx, ImageFileFormat::Psd}) {
        const TakenPictures taken(pdf, format);
        EXPECT_TRUE(taken.files().empty());
        ASSERT_EQ(taken.notes().size(), 1u);
        EXPECT_EQ(taken.notes()[0].kind, DiagnosticKind::FormatLimitReached);
    }
    EXPECT_EQ(TakenPictures(pdf).files().size(), 1u);
}

} // namespace
} // namespace orvane::pictures
