#include "Pixels.h"
#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::pdfImage;
using tests::PdfPage;
using tests::pdfRef;

/// A grey JPEG of 8 by 8 pixels of one tone, written by hand: one block whose mean is 0.
const std::string kGrayJpeg = [] {
    std::string bytes = "\xFF\xD8";
    bytes += std::string("\xFF\xDB\x00\x43\x00", 5) + std::string(64, '\x01');
    bytes += std::string("\xFF\xC0\x00\x0B\x08\x00\x08\x00\x08\x01\x01\x11\x00", 13);
    // One code a table: category 0 for the mean, end of block for the rest.
    bytes += std::string("\xFF\xC4\x00\x14\x00\x01", 6) + std::string(15, '\0') + std::string(1, '\0');
    bytes += std::string("\xFF\xC4\x00\x14\x10\x01", 6) + std::string(15, '\0') + std::string(1, '\0');
    bytes += std::string("\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00", 10) + "\x3F";
    return bytes + "\xFF\xD9";
}();

/// A page with the picture /Im1 on a square of 100 points.
PdfPage pageWith(int image, const std::string& before = {}) {
    return {before + " q 100 0 0 100 50 600 cm /Im1 Do Q", 612, 792, {},
            "/XObject << /Im1 " + pdfRef(image) + " >>",   {}};
}

TEST(Pictures, KeepAJpegByteForByte) {
    for (const char* space : {"/DeviceGray", "[/CalGray << /WhitePoint [0.95 1 1.09] >>]"}) {
        PdfBuilder builder;
        const int image = builder.addStream(pdfImage(8, 8, space, 8) + " /Filter /DCTDecode", kGrayJpeg);
        OpenedPdf pdf(builder.page(pageWith(image)));
        const PageContent page = pdf.page();
        ASSERT_EQ(page.pictures.size(), 1u);
        ASSERT_NE(page.pictures[0].id.value, 0u) << space;
        EXPECT_EQ(pdf.pictures().at(page.pictures[0].id).format, PictureFormat::Jpeg);
        EXPECT_EQ(bytesOf(pdf.pictures(), page.pictures[0].id), kGrayJpeg);
        EXPECT_EQ(page.pictures[0].pixelWidth, 8);
    }
}

TEST(Pictures, DecodeAJpegThatReadersOutsideWouldShowDifferently) {
    for (const char* entries : {"/Decode [1 0]", "/Mask [0 0]"}) {
        PdfBuilder builder;
        const int image =
            builder.addStream(pdfImage(8, 8, "/DeviceGray", 8) + " /Filter /DCTDecode " + entries, kGrayJpeg);
        OpenedPdf pdf(builder.page(pageWith(image)));
        const PageContent page = pdf.page();
        ASSERT_EQ(page.pictures.size(), 1u) << entries;
        const Pixels pixels = readPng(pdf.pictures(), page.pictures[0].id);
        const bool isInverted = std::string(entries).starts_with("/Decode");
        EXPECT_EQ(pixels.at(0, 0), isInverted ? "7F7F7FFF" : "808080FF") << entries;
    }
}

TEST(Pictures, ComeInTheColoursOfTheirSpace) {
    struct Row {
        const char* space;
        int bits;
        std::string samples; ///< of two pixels side by side
        const char* entries;
        const char* left;
        const char* right;
    };
    const Row rows[] = {
        {"/DeviceGray", 8, "\x10\xF0", "", "101010FF", "F0F0F0FF"},
        {"/DeviceGray", 1, "\x40", "", "000000FF", "FFFFFFFF"},
        {"/DeviceGray", 1, "\x40", "/Decode [1 0]", "FFFFFFFF", "000000FF"},
        {"/DeviceGray", 2, "\x70", "", "555555FF", "FFFFFFFF"},
        {"/DeviceGray", 4, "\x0F", "", "000000FF", "FFFFFFFF"},
        {"/DeviceGray", 16, std::string("\x10\xFF\xF0\x01", 4), "", "101010FF", "F0F0F0FF"},
        {"/DeviceRGB", 8, std::string("\xFF\x00\x00\x00\x00\xFF", 6), "", "FF0000FF", "0000FFFF"},
        {"/DeviceCMYK", 8, std::string("\x00\x00\x00\x00\x00\x00\x00\xFF", 8), "", "FFFFFFFF", "231F20FF"},
        {"[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", 8, std::string("\x01\x00", 2), "", "0080FFFF", "FF8000FF"},
        {"[/Indexed /DeviceRGB 1 <FF8000 0080FF>]", 1, "\x80", "", "0080FFFF", "FF8000FF"},
        {"[/Separation /Spot /DeviceRGB << /FunctionType 2 /Domain [0 1] /C0 [1 1 1] /C1 [1 0 0] /N 1 >>]", 8,
         std::string("\x00\xFF", 2), "", "FFFFFFFF", "FF0000FF"},
        {"/DeviceRGB", 8, std::string("\xFF\x00\x00\x00\x00\xFF", 6), "/Mask [250 255 0 0 0 0]", "FF000000",
         "0000FFFF"},
    };
    for (const Row& row : rows) {
        PdfBuilder builder;
        const int image = builder.addStream(pdfImage(2, 1, row.space, row.bits) + " " + row.entries, row.samples);
        OpenedPdf pdf(builder.page(pageWith(image)));
        const PageContent page = pdf.page();
        ASSERT_EQ(page.pictures.size(), 1u) << row.space;
        const Pixels pixels = readPng(pdf.pictures(), page.pictures[0].id);
        ASSERT_EQ(pixels.width, 2);
        EXPECT_EQ(pixels.at(0, 0), row.left) << row.space << " of " << row.bits << " bits " << row.entries;
        EXPECT_EQ(pixels.at(1, 0), row.right) << row.space << " of " << row.bits << " bits " << row.entries;
    }
}

TEST(Pictures, TurnMasksIntoOpacity) {
    PdfBuilder builder;
    const int soft = builder.addStream(pdfImage(2, 1, "/DeviceGray", 8), std::string("\x00\x80", 2));
    const int hard = builder.addStream(
        "/Type /XObject /Subtype /Image /ImageMask true /Width 4 /Height 1 /BitsPerComponent 1", "\x60");
    const int withSoft = builder.addStream(pdfImage(2, 1, "/DeviceGray", 8) + " /SMask " + pdfRef(soft), "\x40\x40");
    const int withHard = builder.addStream(pdfImage(2, 1, "/DeviceGray", 8) + " /Mask " + pdfRef(hard), "\x40\x50");
    builder.page(pageWith(withSoft)).page(pageWith(withHard));
    OpenedPdf pdf(builder);

    const PageContent first = pdf.page(1);
    ASSERT_EQ(first.pictures.size(), 1u);
    const Pixels faded = readPng(pdf.pictures(), first.pictures[0].id);
    EXPECT_EQ(faded.at(0, 0), "40404000");
    EXPECT_EQ(faded.at(1, 0), "40404080");

    const PageContent second = pdf.page(2);
    ASSERT_EQ(second.pictures.size(), 1u);
    const Pixels cut = readPng(pdf.pictures(), second.pictures[0].id);
    ASSERT_EQ(cut.width, 4) << "a mask finer than the picture keeps its edges";
    EXPECT_EQ(cut.at(0, 0), "404040FF") << "zeros of a mask are painted";
    EXPECT_EQ(cut.at(1, 0), "40404000");
    EXPECT_EQ(cut.at(2, 0), "50505000");
    EXPECT_EQ(cut.at(3, 0), "505050FF");
}

TEST(Pictures, PaintAStencilInTheFillColour) {
    PdfBuilder builder;
    const int image = builder.addStream(
        "/Type /XObject /Subtype /Image /ImageMask true /Width 2 /Height 1 /BitsPerComponent 1", "\x40");
    OpenedPdf pdf(builder.page(pageWith(image, "1 0 0 rg")));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.pictures.size(), 1u);
    EXPECT_TRUE(page.pictures[0].isStencil);
    const Pixels pixels = readPng(pdf.pictures(), page.pictures[0].id);
    EXPECT_EQ(pixels.at(0, 0), "FF0000FF");
    EXPECT_EQ(pixels.at(1, 0), "FF000000");
}

TEST(Pictures, AreOpaqueWhereNothingShowsThrough) {
    PdfBuilder builder;
    const int soft = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x80");
    const int plain = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x40");
    const int faded = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8) + " /SMask " + pdfRef(soft), "\x40");
    const int keyed = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8) + " /Mask [0 9]", "\x40");
    const int stencil = builder.addStream(
        "/Type /XObject /Subtype /Image /ImageMask true /Width 2 /Height 1 /BitsPerComponent 1", "\x40");
    builder.page(pageWith(plain)).page(pageWith(faded)).page(pageWith(keyed)).page(pageWith(stencil));
    PdfPage multiplied = pageWith(plain, "/Multiply gs");
    multiplied.resources += " /ExtGState << /Multiply << /BM /Multiply >> >>";
    OpenedPdf pdf(builder.page(multiplied));
    EXPECT_TRUE(pdf.page(1).pictures.at(0).isOpaque);
    for (int page = 2; page <= 5; ++page)
        EXPECT_FALSE(pdf.page(page).pictures.at(0).isOpaque) << "page " << page;
}

TEST(Pictures, AreFoundInlineAndInForms) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    const int form = builder.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 1 1] /Matrix [2 0 0 2 0 0] /Resources << /XObject << /Im1 " +
            pdfRef(image) + " >> >>",
        "/Im1 Do");
    PdfPage page{"q 10 0 0 10 20 30 cm /Fm1 Do Q q 5 0 0 5 100 100 cm BI /W 1 /H 1 /CS /G /BPC 8 ID \x60 EI Q",
                 612,
                 792,
                 {},
                 "/XObject << /Fm1 " + pdfRef(form) + " >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.pictures.size(), 2u);
    EXPECT_EQ(content.pictures[0].box, (Rect{20, 742, 40, 762}));
    EXPECT_EQ(content.pictures[0].clip, (Rect{20, 742, 40, 762})) << "the form's box cuts it";
    EXPECT_EQ(content.pictures[0].objectNumber, image);
    EXPECT_EQ(content.pictures[1].objectNumber, 0);
    EXPECT_EQ(readPng(pdf.pictures(), content.pictures[1].id).at(0, 0), "606060FF");
}

TEST(Pictures, AreStoredOnceHoweverOftenTheyArePainted) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    const int copy = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    builder.page(pageWith(image)).page(pageWith(image)).page(pageWith(copy));
    OpenedPdf pdf(builder);
    const PictureId id = pdf.page(1).pictures.at(0).id;
    EXPECT_EQ(pdf.page(2).pictures.at(0).id, id);
    EXPECT_EQ(pdf.page(3).pictures.at(0).id, id) << "equal pictures of different objects";
    EXPECT_EQ(pdf.pictures().size(), 1u);
}

TEST(Pictures, StandUprightInTheirMatrix) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    OpenedPdf pdf(builder.page(pageWith(image)));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.pictures.size(), 1u);
    EXPECT_EQ(page.pictures[0].matrix, (Matrix{100, 0, 0, 100, 50, 92}));
    EXPECT_EQ(page.pictures[0].box, (Rect{50, 92, 150, 192}));
}

TEST(Pictures, ThatClaimToBeHugeCostNothing) {
    struct Row {
        int width;
        int height;
        const char* filter;
        const char* why;
    };
    const Row rows[] = {
        {100000, 100000, "", "raw samples"},
        {100000, 100000, "/Filter /CCITTFaxDecode /DecodeParms << /K -1 /Columns 100000 /Rows 100000 >>", "fax"},
        {2147483647, 2147483647, "", "the product overflows"},
        {0, 5, "", "no width"},
    };
    for (const Row& row : rows) {
        PdfBuilder builder;
        const int image = builder.addStream(pdfImage(row.width, row.height, "/DeviceGray", 1) + row.filter, "abc");
        OpenedPdf pdf(builder.page(pageWith(image)));
        const PageContent page = pdf.page();
        EXPECT_EQ(pdf.pictures().size(), 0u) << row.why;
        for (const Picture& picture : page.pictures)
            EXPECT_EQ(picture.id.value, 0u) << row.why;
        EXPECT_EQ(pdf.count(DiagnosticKind::PictureUnreadable), static_cast<int>(page.pictures.size())) << row.why;
    }
}

TEST(Pictures, KeepWhatIsThereOfDataThatBreaksOff) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 3, "/DeviceGray", 8), "\x20\x30");
    OpenedPdf pdf(builder.page(pageWith(image)));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.pictures.size(), 1u);
    const Pixels pixels = readPng(pdf.pictures(), page.pictures[0].id);
    EXPECT_EQ(pixels.at(0, 0), "202020FF");
    EXPECT_EQ(pixels.at(0, 1), "303030FF");
    EXPECT_EQ(pixels.at(0, 2), "FFFFFFFF") << "what is missing is paper";
    EXPECT_EQ(pdf.count(DiagnosticKind::PictureUnreadable), 1);
}

TEST(Pictures, AreLeftAloneWithoutAStore) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    OpenedPdf pdf(builder.page(pageWith(image)));
    Diagnostics diagnostics;
    const PageContent page = pdf.document().readPage(1, {}, diagnostics);
    ASSERT_EQ(page.pictures.size(), 1u);
    EXPECT_EQ(page.pictures[0].id.value, 0u);
    EXPECT_EQ(page.pictures[0].pixelWidth, 1);
    EXPECT_TRUE(diagnostics.entries().empty());
}

TEST(Pictures, PaintedThroughAPatternOfOneCellAreRead) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    const int pattern = builder.addStream(
        "/Type /Pattern /PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 300 300] /XStep 300 /YStep 300 "
        "/Resources << /XObject << /Im1 " +
            pdfRef(image) + " >> >>",
        "q 100 0 0 100 50 50 cm /Im1 Do Q");
    PdfPage page{"/Pattern cs /P1 scn 50 50 100 100 re f",     300, 300, {},
                 "/Pattern << /P1 " + pdfRef(pattern) + " >>", {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.pictures.size(), 1u);
    EXPECT_NEAR(content.pictures[0].box.left, 50, 1e-6);
    EXPECT_NEAR(content.pictures[0].box.top, 150, 1e-6);
}

TEST(Pictures, UnderASoftMaskOfTheStateAreFadedByIt) {
    PdfBuilder builder;
    const int image = builder.addStream(pdfImage(1, 1, "/DeviceRGB", 8), std::string("\xFF\x00\x00", 3));
    const int mask = builder.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 300 300] /Group << /S /Transparency /CS /DeviceGray >> "
        "/Resources << >>",
        "1 g 0 0 150 300 re f");
    PdfPage page{"0 0 1 rg 0 0 300 300 re f q /Masked gs q 100 0 0 100 100 100 cm /Im1 Do Q Q BT /F1 20 Tf 110 150 Td "
                 "(over) Tj ET",
                 300,
                 300,
                 {},
                 "/XObject << /Im1 " + pdfRef(image) + " >> /ExtGState << /Masked << /SMask << /S /Luminosity /G " +
                     pdfRef(mask) + " >> >> >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.pictures.size(), 1u);
    const Picture& picture = content.pictures[0];
    EXPECT_NEAR(picture.box.left, 100, 1);
    EXPECT_NEAR(picture.box.bottom, 200, 1);
    const Pixels pixels = readPng(pdf.pictures(), picture.id);
    const int middle = pixels.height / 2;
    EXPECT_EQ(pixels.at(pixels.width / 4, middle), "FF0000FF") << "neither the ground nor the text over it is in it";
    EXPECT_EQ(pixels.at(pixels.width * 3 / 4, middle).substr(6), "00");
    EXPECT_EQ(pdf.count(DiagnosticKind::PictureSimplified), 0);
}

TEST(Pictures, CodedLargerThanTheyMayBeAreNotDecoded) {
    // The dictionary speaks of 8 by 8 pixels, the coded data of 65000 by 65000.
    std::string huge = kGrayJpeg;
    const std::size_t frame = huge.find("\xFF\xC0");
    huge.replace(frame + 5, 4, std::string("\xFD\xE8\xFD\xE8", 4));
    const std::string jpeg2000 =
        std::string("\xFF\x4F\xFF\x51\x00\x29\x00\x00\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF", 16) + std::string(64, '\0');
    const std::string jbig2 =
        std::string("\x00\x00\x00\x00\x30\x00\x01\x00\x00\x00\x13\x00\x0F\x00\x00\x00\x0F\x00\x00", 19) +
        std::string(32, '\0');
    const std::pair<std::string, std::string> rows[] = {
        {"/DCTDecode /Decode [1 0]", huge}, {"/JPXDecode", jpeg2000}, {"/JBIG2Decode", jbig2}};
    for (const auto& [filter, data] : rows) {
        PdfBuilder builder;
        const int bits = filter == "/JBIG2Decode" ? 1 : 8;
        const int image = builder.addStream(pdfImage(8, 8, "/DeviceGray", bits) + " /Filter " + filter, data);
        OpenedPdf pdf(builder.page(pageWith(image)));
        const PageContent page = pdf.page();
        ASSERT_EQ(page.pictures.size(), 1u) << filter;
        EXPECT_EQ(page.pictures[0].id.value, 0u) << filter;
        EXPECT_EQ(pdf.count(DiagnosticKind::PictureUnreadable), 1) << filter;
    }
}

} // namespace
} // namespace orvane::pdf
