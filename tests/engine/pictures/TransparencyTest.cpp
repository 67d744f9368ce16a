#include "Extraction.h"
#include "JpegCoder.h"

#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

using tests::PdfBuilder;
using tests::pdfImage;
using tests::pdfRef;

using Row = std::vector<std::string>;

constexpr const char* kStencil = "/Type /XObject /Subtype /Image /ImageMask true /BitsPerComponent 1 ";

/// A page with a picture of `entries` and the soft mask or stencil `mask` as its `key`.
PdfBuilder pdfWithMask(const std::string& entries, const std::string& data, const std::string& key,
                       const std::string& maskEntries, const std::string& mask) {
    PdfBuilder pdf;
    const int maskObject = pdf.addStream(maskEntries, mask);
    const int image = pdf.addStream(entries + " /" + key + " " + pdfRef(maskObject), data);
    pdf.page(pageFilledWith(image));
    return pdf;
}

TEST(Transparency, OfAColourKeyHidesItsColours) {
    const struct {
        std::string entries;
        std::string samples;
        Row expected;
        const char* why;
    } rows[] = {
        {pdfImage(3, 1, "/DeviceRGB", 8) + " /Mask [250 255 0 9 0 9]",
         std::string("\xFF\0\0\xFC\x05\x05\xF0\0\0", 9),
         {"-", "-", "F00000FF"},
         "a range of colours"},
        {pdfImage(3, 1, "/DeviceGray", 4) + " /Mask [15 15]", "\x0F\xE0", {"000000FF", "-", "EEEEEEFF"}, "one grey"},
        {pdfImage(2, 1, "[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", 1) + " /Mask [0 0]",
         "\x40",
         {"-", "0080FFFF"},
         "an entry of the palette"},
        {pdfImage(2, 1, "/DeviceGray", 8) + " /Mask [0 16] /Decode [1 0]",
         std::string("\x10\xF0", 2),
         {"-", "0F0F0FFF"},
         "samples count, not what they look like"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(rowOf(TakenPictures(pdfWithPicture(row.entries, row.samples)).pixels()), row.expected) << row.why;
}

TEST(Transparency, OfAStencilMaskCutsThePicture) {
    const std::string picture = pdfImage(2, 1, "/DeviceGray", 8);
    const std::string mask = std::string(kStencil) + "/Width 4 /Height 1";
    EXPECT_EQ(rowOf(TakenPictures(pdfWithMask(picture, "\x40\x50", "Mask", mask, "\x60")).pixels()),
              (Row{"404040FF", "-", "-", "505050FF"}))
        << "zeros are painted, and a finer mask keeps its edges";
    EXPECT_EQ(rowOf(TakenPictures(pdfWithMask(picture, "\x40\x50", "Mask", mask + " /Decode [1 0]", "\x60")).pixels()),
              (Row{"-", "404040FF", "505050FF", "-"}));
}

TEST(Transparency, OfASoftMaskIsOpacity) {
    const std::string picture = pdfImage(2, 1, "/DeviceRGB", 8);
    const std::string colors("\xFF\0\0\0\0\xFF", 6);
    const struct {
        std::string mask;
        std::string samples;
        Row expected;
        const char* why;
    } rows[] = {
        {pdfImage(2, 1, "/DeviceGray", 8), std::string("\x80\xFF", 2), {"FF000080", "0000FFFF"}, "of 8 bits"},
        {pdfImage(2, 1, "/DeviceGray", 1), "\x40", {"-", "0000FFFF"}, "of 1 bit"},
        {pdfImage(2, 1, "/DeviceGray", 8) + " /Decode [1 0]",
         std::string("\x40\xFF", 2),
         {"FF0000BF", "-"},
         "inverted"},
        {pdfImage(1, 1, "/DeviceGray", 8), "\x80", {"FF000080", "0000FF80"}, "coarser than the picture"},
        {pdfImage(2, 1, "/DeviceGray", 16), std::string("\x80\0\xFF\xFF", 4), {"FF000080", "0000FFFF"}, "of 16 bits"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(rowOf(TakenPictures(pdfWithMask(picture, colors, "SMask", row.mask, row.samples)).pixels()),
                  row.expected)
            << row.why;
}

TEST(Transparency, OfASoftMaskWithAGroundTakesTheGroundOut) {
    // Half red on a green ground; a ground alone; red by itself.
    const std::string mixed("\x80\x80\0\0\xFF\0\xFF\0\0", 9);
    const Row row = rowOf(
        TakenPictures(pdfWithMask(pdfImage(3, 1, "/DeviceRGB", 8), mixed, "SMask",
                                  pdfImage(3, 1, "/DeviceGray", 8) + " /Matte [0 1 0]", std::string("\x80\0\xFF", 3)))
            .pixels());
    EXPECT_TRUE(isNear(row[0], "FF000080", 2)) << row[0];
    EXPECT_EQ(row[1], "-");
    EXPECT_EQ(row[2], "FF0000FF");
}

TEST(Transparency, ComesOnWhiteWhereTheFormatHasNone) {
    const PdfBuilder pdf = pdfWithMask(pdfImage(2, 1, "/DeviceRGB", 8), std::string("\xFF\0\0\0\0\xFF", 6), "SMask",
                                       pdfImage(2, 1, "/DeviceGray", 8), std::string("\x80\0", 2));
    const std::string ppm = TakenPictures(pdf, ImageFileFormat::Ppm).bytes(0);
    EXPECT_EQ(ppm, std::string("P6\n2 1\n255\n\xFF\x7F\x7F\xFF\xFF\xFF"));
}

TEST(Transparency, StandsBesideAPictureThatIsPassedThrough) {
    const std::string coded = codeJpeg(std::string(64, '\x40'), 8, 8, JpegColors::Gray);
    const PdfBuilder pdf = pdfWithMask(pdfImage(8, 8, "/DeviceGray", 8) + " /Filter /DCTDecode", coded, "SMask",
                                       pdfImage(1, 1, "/DeviceGray", 8), "\x80");
    const TakenPictures original(pdf, ImageFileFormat::Original);
    ASSERT_EQ(original.files().size(), 2u);
    EXPECT_EQ(original.bytes(0), coded);
    EXPECT_EQ(original.files()[1].name, "a-p001-01-mask.png");
    EXPECT_EQ(original.pixels(1).at(0, 0), "808080FF");
    EXPECT_NE(TakenPictures(pdf, ImageFileFormat::Jpg).bytes(0), coded) << "on white it is another picture";
}

TEST(Transparency, OfAStencilIsItsShape) {
    PdfBuilder pdf;
    const int stencil = pdf.addStream(std::string(kStencil) + "/Width 2 /Height 1", "\x40");
    const int inverted = pdf.addStream(std::string(kStencil) + "/Width 2 /Height 1 /Decode [1 0]", "\x40");
    pdf.page(pageFilledWith(stencil, "1 0 0 rg")).page(pageFilledWith(inverted, "0 0 1 rg"));
    const TakenPictures taken(pdf);
    EXPECT_EQ(rowOf(taken.pixels(0)), (Row{"FF0000FF", "-"}));
    EXPECT_EQ(rowOf(taken.pixels(1)), (Row{"-", "0000FFFF"}));
}

/// A luminosity mask over the page of 100 by 100 points, painted by `content`.
int addMask(PdfBuilder& pdf, const std::string& content) {
    return pdf.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 100 100] /Resources << >> /Group << /S /Transparency "
        "/CS /DeviceGray >>",
        content);
}

tests::PdfPage maskedPage(int image, int mask, const std::string& content) {
    return {content,
            100,
            100,
            {},
            "/XObject << /Im1 " + pdfRef(image) + " >> /ExtGState << /Masked << /SMask << /S /Luminosity /G " +
                pdfRef(mask) + " >> >> /Plain << /SMask /None >> >>",
            {}};
}

constexpr const char* kLeftHalf = "1 g 0 0 50 100 re f";

TEST(Transparency, OfTheStateLiesOverThePicturesThatItHoldsFor) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(4, 1, "/DeviceGray", 8), "\x10\x20\x30\x40");
    const int mask = addMask(pdf, "0.5 g 25 0 25 100 re f 1 g 0 0 25 100 re f");
    pdf.page(maskedPage(image, mask, "q /Masked gs 100 0 0 100 0 0 cm /Im1 Do Q q 100 0 0 100 0 0 cm /Im1 Do Q"));
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 2u) << "the same picture without the mask is another one";
    EXPECT_EQ(rowOf(taken.pixels(0)), (Row{"101010FF", "20202080", "-", "-"}));
    EXPECT_EQ(rowOf(taken.pixels(1)), (Row{"101010FF", "202020FF", "303030FF", "404040FF"}));
    EXPECT_TRUE(taken.notes().empty());
}

TEST(Transparency, OfTheStateEndsWithTheState) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), "\x10\x20");
    const int mask = addMask(pdf, kLeftHalf);
    for (const char* before : {"q /Masked gs Q", "/Masked gs /Plain gs"})
        pdf.page(maskedPage(image, mask, std::string(before) + " q 100 0 0 100 0 0 cm /Im1 Do Q"));
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 1u);
    EXPECT_EQ(rowOf(taken.pixels()), (Row{"101010FF", "202020FF"}));
}

TEST(Transparency, OfTheStateLiesOverWholeGroups) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), "\x10\x20");
    const int group = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 100 100] /Group << /S /Transparency >> "
                                    "/Resources << /XObject << /Im1 " +
                                        pdfRef(image) + " >> /ExtGState << /Faint << /ca 0.5 >> >> >>",
                                    "/Faint gs 100 0 0 100 0 0 cm /Im1 Do");
    const int mask = addMask(pdf, kLeftHalf);
    pdf.page(maskedPage(group, mask, "/Masked gs /Im1 Do"));
    EXPECT_EQ(rowOf(TakenPictures(pdf).pixels()), (Row{"101010FF", "-"}));
}

TEST(Transparency, OfTheStateGivesWayToThePicturesOwn) {
    PdfBuilder pdf;
    const int soft = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), "\x80\x80");
    const int image = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8) + " /SMask " + pdfRef(soft), "\x10\x20");
    pdf.page(maskedPage(image, addMask(pdf, kLeftHalf), "/Masked gs 100 0 0 100 0 0 cm /Im1 Do"));
    EXPECT_EQ(rowOf(TakenPictures(pdf).pixels()), (Row{"10101080", "20202080"}));
}

TEST(Transparency, OfTheStateFollowsATurnedPicture) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(1, 2, "/DeviceGray", 8), "\x10\x20");
    // The picture's lower row lies on the left half of the page.
    pdf.page(maskedPage(image, addMask(pdf, kLeftHalf), "/Masked gs 0 -100 100 0 0 100 cm /Im1 Do"));
    const pdf::Pixels pixels = TakenPictures(pdf).pixels();
    EXPECT_EQ(rowOf(pixels, 0), Row{"-"});
    EXPECT_EQ(rowOf(pixels, 1), Row{"202020FF"});
}

TEST(Transparency, OfTheStateMadeByAPictureIsThatPicture) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), "\x10\x20");
    const int levels = pdf.addStream(pdfImage(2, 1, "/DeviceGray", 8), std::string("\x40\xFF", 2));
    const int mask = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 100 100] /Group << /S /Transparency /CS "
                                   "/DeviceGray >> /Resources << /XObject << /Im2 " +
                                       pdfRef(levels) + " >> >>",
                                   "100 0 0 100 0 0 cm /Im2 Do");
    pdf.page(maskedPage(image, mask, "/Masked gs 100 0 0 100 0 0 cm /Im1 Do"));
    const TakenPictures taken(pdf);
    ASSERT_EQ(taken.files().size(), 1u) << "what a mask is made of is no picture of the page";
    EXPECT_EQ(rowOf(taken.pixels()), (Row{"10101040", "202020FF"}));
}

} // namespace
} // namespace orvane::pictures
