#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;

TEST(Glyphs, StandWhereTheTextMatrixPutsThem) {
    OpenedPdf pdf(PdfBuilder().page("BT /F3 10 Tf 2 0 0 2 100 500 Tm (AB) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 2u);
    const Glyph& first = page.glyphs[0];
    EXPECT_EQ(first.unicode, U"A");
    EXPECT_NEAR(first.fontSize, 20, 1e-6);
    EXPECT_NEAR(first.origin.x, 100, 1e-6);
    EXPECT_NEAR(first.origin.y, 292, 1e-6);
    EXPECT_NEAR(first.advance, 12, 1e-6) << "Courier's letters are 0.6 em wide";
    EXPECT_NEAR(first.box.left, 100, 1e-6);
    EXPECT_NEAR(first.box.right, 112, 1e-6);
    EXPECT_LT(first.box.top, 292 - 20 * 0.5);
    EXPECT_GT(first.box.bottom, 292);
    EXPECT_NEAR(page.glyphs[1].origin.x, 112, 1e-6);
}

TEST(Glyphs, KeepSpacingOutOfTheirAdvance) {
    OpenedPdf pdf(PdfBuilder().page("BT /F3 10 Tf 5 Tc 7 Tw 100 500 Td (A B) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 3u);
    for (const Glyph& glyph : page.glyphs)
        EXPECT_NEAR(glyph.advance, 6, 1e-6);
    EXPECT_NEAR(page.glyphs[1].origin.x, 111, 1e-6);
    EXPECT_NEAR(page.glyphs[2].origin.x, 129, 1e-6) << "a blank takes word spacing too";
}

TEST(Glyphs, KnowTheirScaleRiseAndAngle) {
    OpenedPdf pdf(PdfBuilder().page("BT /F3 10 Tf 150 Tz 100 500 Td (A) Tj 100 Tz 4 Ts (B) Tj ET "
                                    "BT /F3 10 Tf 0 1 -1 0 300 400 Tm (C) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 3u);
    EXPECT_NEAR(page.glyphs[0].horizontalScale, 1.5, 1e-6);
    EXPECT_NEAR(page.glyphs[0].advance, 9, 1e-6);
    EXPECT_NEAR(page.glyphs[0].fontSize, 10, 1e-6);
    EXPECT_NEAR(page.glyphs[1].origin.y, page.glyphs[0].origin.y - 4, 1e-6) << "raised text stands higher";
    EXPECT_NEAR(page.glyphs[2].angle, 270, 1e-6) << "reads upwards";
    EXPECT_NEAR(page.glyphs[2].box.bottom, 392, 1e-6);
    EXPECT_NEAR(page.glyphs[2].box.top, 386, 1e-6);
}

TEST(Glyphs, TellWhetherTheyCanBeSeen) {
    OpenedPdf pdf(PdfBuilder().page("BT /F1 10 Tf 100 500 Td (a) Tj 3 Tr (b) Tj 0 Tr ET "
                                    "q 0 0 50 50 re W n BT /F1 10 Tf 100 500 Td (c) Tj ET Q "
                                    "BT /F1 10 Tf -100 500 Td (d) Tj ET "
                                    "BT /F1 10 Tf 7 Tr 100 300 Td (e) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 5u);
    EXPECT_EQ(page.glyphs[0].visibility, Visibility::Visible);
    EXPECT_EQ(page.glyphs[1].visibility, Visibility::Invisible);
    EXPECT_EQ(page.glyphs[2].visibility, Visibility::ClippedAway);
    EXPECT_EQ(page.glyphs[3].visibility, Visibility::OffPage);
    EXPECT_EQ(page.glyphs[4].visibility, Visibility::Invisible);
}

TEST(Glyphs, AreCutOffWhereTheClipPathShowsNoInkOfThem) {
    // The clip path ends 3 points above the baseline.
    OpenedPdf pdf(PdfBuilder().page(
        "q 0 503 200 50 re W n BT /F1 10 Tf 100 500 Td (.) Tj ET BT /F1 10 Tf 150 500 Td (x.) Tj ET Q"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 3u);
    EXPECT_EQ(page.glyphs[0].visibility, Visibility::ClippedAway) << "a dot is no higher than that";
    EXPECT_EQ(page.glyphs[1].visibility, Visibility::Visible);
    EXPECT_EQ(page.glyphs[2].visibility, Visibility::Visible) << "it ends what shows in part";
}

TEST(Glyphs, AreCutOffWhereOnlyTheRoomForAccentsIsLeft) {
    // The clip path ends 8.2 points above the baseline, below the top of the letters' boxes.
    OpenedPdf pdf(PdfBuilder().page("q 0 508.2 200 50 re W n BT /F1 10 Tf 100 500 Td (x\\326) Tj ET "
                                    "BT /F1 10 Tf 150 500.6 Td (x) Tj ET Q"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 3u);
    ASSERT_LT(page.glyphs[0].box.top, 792 - 508.2);
    EXPECT_EQ(page.glyphs[0].visibility, Visibility::ClippedAway);
    EXPECT_EQ(page.glyphs[1].visibility, Visibility::ClippedAway) << "an accent is none without its line";
    EXPECT_EQ(page.glyphs[2].visibility, Visibility::Visible);
}

TEST(Glyphs, TakeTheColourTheyArePaintedIn) {
    OpenedPdf pdf(PdfBuilder().page(
        "BT 1 0 0 rg 0 0 1 RG /F1 10 Tf 100 500 Td (a) Tj 1 Tr (b) Tj 2 Tr (c) Tj 1 0 0 RG (d) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 4u);
    const Color red{255, 0, 0};
    const Color blue{0, 0, 255};
    EXPECT_EQ(page.glyphs[0].color, red);
    EXPECT_FALSE(page.glyphs[0].isOutlined);
    EXPECT_EQ(page.glyphs[1].color, blue);
    EXPECT_TRUE(page.glyphs[1].isOutlined);
    EXPECT_EQ(page.glyphs[2].color, red);
    EXPECT_EQ(page.glyphs[2].edge, blue);
    EXPECT_FALSE(page.glyphs[3].edge);
    EXPECT_FALSE(page.glyphs[2].isFakeBold) << "an outline of another colour is an ornament";
    EXPECT_TRUE(page.glyphs[3].isFakeBold) << "an outline of the same colour thickens the letters";
}

TEST(Glyphs, ShareTheirFont) {
    OpenedPdf pdf(PdfBuilder().page(
        "BT /F1 10 Tf 100 500 Td (a) Tj /F4 10 Tf (b) Tj /F1 8 Tf (c) Tj 1 0 0.3 1 100 400 Tm (d) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 4u);
    EXPECT_EQ(page.glyphs[0].font, page.glyphs[2].font);
    EXPECT_EQ(page.fonts[page.glyphs[0].font].name, "Helvetica");
    EXPECT_FALSE(page.fonts[page.glyphs[0].font].isBold);
    EXPECT_TRUE(page.fonts[page.glyphs[1].font].isBold);
    EXPECT_TRUE(page.fonts[page.glyphs[3].font].isItalic) << "an upright face that leans is italic to its reader";
    EXPECT_NEAR(page.fonts[page.glyphs[0].font].spaceWidth, 0.278, 1e-6);
}

TEST(Glyphs, ShareABlankNoWiderThanTheirLettersTell) {
    struct Row {
        const char* blank;
        double expected;
    };
    for (const Row& row : {Row{"250", 0.25}, Row{"500", 0.2}}) {
        std::string widths = row.blank;
        for (int code = '!'; code <= 'z'; ++code)
            widths += " 400";
        PdfBuilder builder;
        const int font = builder.add("<< /Type /Font /Subtype /Type1 /BaseFont /Somebody /FirstChar 32 /LastChar 122 "
                                     "/Encoding << /Type /Encoding /Differences [97 /a /b] >> /Widths [" +
                                     widths + "] >>");
        OpenedPdf pdf(builder.page(
            tests::PdfPage{"BT /E1 10 Tf 50 500 Td (ab) Tj ET", 612, 792, {}, {}, "/E1 " + tests::pdfRef(font)}));
        const PageContent page = pdf.page();
        EXPECT_NEAR(page.fonts.at(0).spaceWidth, row.expected, 1e-6)
            << "a typesetter's font has another sign where encodings have the blank";
    }
}

TEST(Glyphs, OfVerticalWritingFollowEachOtherDownwards) {
    PdfBuilder builder;
    const int map = builder.addStream(
        "", "begincmap 1 begincodespacerange <0000> <FFFF> endcodespacerange 2 beginbfchar <0001> <7E26> "
            "<0002> <66F8> endbfchar endcmap");
    const int child = builder.add(
        "<< /Type /Font /Subtype /CIDFontType0 /BaseFont /Mincho /CIDSystemInfo << /Registry (Adobe) /Ordering "
        "(Identity) /Supplement 0 >> /DW 1000 >>");
    const int font = builder.add(
        "<< /Type /Font /Subtype /Type0 /BaseFont /Mincho-Identity-V /Encoding /Identity-V /DescendantFonts [" +
        tests::pdfRef(child) + "] /ToUnicode " + tests::pdfRef(map) + " >>");
    OpenedPdf pdf(builder.page(tests::PdfPage{
        "BT /E1 20 Tf -3 Tc 300 700 Td <00010002> Tj ET", 612, 792, {}, {}, "/E1 " + tests::pdfRef(font)}));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 2u);
    EXPECT_TRUE(page.fonts.at(page.glyphs[0].font).isVertical);
    EXPECT_EQ(page.fonts.at(page.glyphs[0].font).name, "Mincho") << "the encoding is no part of a font's name";
    EXPECT_EQ(page.glyphs[0].unicode, U"縦");
    EXPECT_EQ(page.glyphs[0].angle, 0);
    EXPECT_NEAR(page.glyphs[0].origin.x, 300, 1e-6);
    EXPECT_NEAR(page.glyphs[0].origin.y, 92, 1e-6);
    EXPECT_NEAR(page.glyphs[0].advance, 20, 1e-6);
    EXPECT_NEAR(page.glyphs[0].box.left, 290, 1e-6) << "centred below its origin";
    EXPECT_NEAR(page.glyphs[0].box.right, 310, 1e-6);
    EXPECT_NEAR(page.glyphs[0].box.top, 92, 1e-6);
    EXPECT_NEAR(page.glyphs[0].box.bottom, 112, 1e-6);
    EXPECT_NEAR(page.glyphs[1].origin.y, 115, 1e-6) << "downwards, negative spacing widens";
}

TEST(Glyphs, OfType3FontsHaveTheSizeTheirLettersShow) {
    // A glyph space of pixels: letters 50 units wide at a font size of 1 and a matrix of 0.24.
    PdfBuilder builder;
    const int glyph = builder.addStream("", "50 0 0 0 45 70 d1 0 0 45 70 re f");
    const int font = builder.add(
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 50 70] /FontMatrix [0.24 0 0 0.24 0 0] /CharProcs << /a " +
        tests::pdfRef(glyph) + " /n " + tests::pdfRef(glyph) +
        " >> /Encoding << /Differences [97 /a 110 /n] >> /FirstChar 97 /LastChar 110 /Widths "
        "[44.4 0 0 0 0 0 0 0 0 0 0 0 0 50] >>");
    OpenedPdf pdf(builder.page(
        tests::PdfPage{"BT /E1 1 Tf 100 700 Td (an) Tj ET", 612, 792, {}, {}, "/E1 " + tests::pdfRef(font)}));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 2u);
    EXPECT_EQ(textOf(page), "an");
    EXPECT_NEAR(page.glyphs[0].fontSize, 24, 0.1);
    EXPECT_NEAR(page.glyphs[0].advance, 44.4 * 0.24, 1e-6);
    EXPECT_NEAR(page.glyphs[0].origin.x, 100, 1e-6);
    EXPECT_NEAR(page.glyphs[0].origin.y, 92, 1e-6);
    EXPECT_NEAR(page.glyphs[1].origin.x, 100 + 44.4 * 0.24, 1e-6);
    EXPECT_TRUE(page.paths.empty()) << "letters are text, not drawings";
}

TEST(Glyphs, OfType3FontsWithEastAsianLettersAreAsWideAsTheEm) {
    PdfBuilder builder;
    const int glyph = builder.addStream("", "83 0 0 0 83 83 d1 0 0 83 83 re f");
    const int font =
        builder.add("<< /Type /Font /Subtype /Type3 /FontBBox [0 0 83 600] /FontMatrix [0.012 0 0 0.012 0 0] "
                    "/CharProcs << /uniAC00 " +
                    tests::pdfRef(glyph) +
                    " >> /Encoding << /Differences [97 /uniAC00] >> /FirstChar 97 /LastChar 97 /Widths [83] >>");
    OpenedPdf pdf(builder.page(
        tests::PdfPage{"BT /E1 10 Tf 100 700 Td (aa) Tj ET", 612, 792, {}, {}, "/E1 " + tests::pdfRef(font)}));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 2u);
    EXPECT_EQ(textOf(page), "\uAC00\uAC00");
    EXPECT_NEAR(page.glyphs[0].fontSize, 10, 0.1);
}

} // namespace
} // namespace orvane::pdf
