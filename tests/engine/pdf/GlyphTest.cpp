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

} // namespace
} // namespace orvane::pdf
