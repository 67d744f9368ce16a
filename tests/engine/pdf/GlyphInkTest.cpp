#include "ReadPages.h"
#include "Type1Program.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;
using tests::Polygon;

/// The glyph of a page that shows "P" of a font in which it hangs from the baseline, at 20 points.
Glyph glyphOf(const std::string& fontName, const std::string& show) {
    PdfBuilder builder;
    const Polygon hanging{{100, 0}, {100, -1400}, {900, -1400}, {900, 0}};
    const std::string program = tests::type1Program({{"P", {hanging}}});
    const int file =
        builder.addStream("/Length1 300 /Length2 " + std::to_string(program.size() - 300) + " /Length3 0", program);
    const int descriptor =
        builder.add("<< /Type /FontDescriptor /FontName /" + fontName +
                    " /Flags 4 /FontBBox [0 -1400 1000 0] /ItalicAngle 0 /Ascent 40 /Descent -600 /CapHeight 0 "
                    "/StemV 47 /FontFile " +
                    pdfRef(file) + " >>");
    const int font = builder.add("<< /Type /Font /Subtype /Type1 /BaseFont /" + fontName +
                                 " /FirstChar 80 /LastChar 80 /Widths [1000] /Encoding << /Type /Encoding "
                                 "/Differences [80 /P] >> /FontDescriptor " +
                                 pdfRef(descriptor) + " >>");
    OpenedPdf pdf(builder.page(PdfPage{show, 612, 792, {}, {}, "/E1 " + pdfRef(font)}));
    return pdf.page().glyphs.at(0);
}

TEST(GlyphInk, MeasuresTheSignsOfFontsForFormulas) {
    const Rect ink = glyphOf("CMEX10", "BT /E1 20 Tf 50 500 Td (P) Tj ET").ink;
    EXPECT_NEAR(ink.left, 52, 0.01);
    EXPECT_NEAR(ink.right, 68, 0.01);
    EXPECT_NEAR(ink.top, 292, 0.01);
    EXPECT_NEAR(ink.bottom, 320, 0.01) << "far below what the font's descent tells";
}

TEST(GlyphInk, LeavesFontsOfTextsAndTurnedSignsAlone) {
    EXPECT_TRUE(glyphOf("Somebody", "BT /E1 20 Tf 50 500 Td (P) Tj ET").ink.isEmpty());
    EXPECT_TRUE(glyphOf("CMEX10", "BT /E1 20 Tf 0 1 -1 0 50 500 Tm (P) Tj ET").ink.isEmpty());
}

} // namespace
} // namespace orvane::pdf
