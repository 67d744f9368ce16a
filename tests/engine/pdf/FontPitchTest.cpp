#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

constexpr int kFixedPitchFlag = 33; // fixed pitch, not symbolic

/// The font of a page that shows characters from `first` on, all 581 thousandths of the em wide.
Font fontOfOneWidth(char first) {
    PdfBuilder builder;
    const int descriptor =
        builder.add("<< /Type /FontDescriptor /FontName /Somebody-Bold /Flags " + std::to_string(kFixedPitchFlag) +
                    " /FontBBox [0 -200 1000 800] /ItalicAngle 0 /Ascent 800 /Descent -200 "
                    "/CapHeight 700 /StemV 80 >>");
    const int font = builder.add("<< /Type /Font /Subtype /Type1 /BaseFont /Somebody-Bold /FirstChar " +
                                 std::to_string(first) + " /LastChar " + std::to_string(first + 3) +
                                 " /Widths [581 581 581 581] /Encoding /WinAnsiEncoding /FontDescriptor " +
                                 pdfRef(descriptor) + " >>");
    const std::string text(2, first);
    OpenedPdf pdf(
        builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td (" + text + ") Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(font)}));
    return pdf.page().fonts.at(0);
}

TEST(FontPitch, IsNotToldByDigits) {
    EXPECT_FALSE(fontOfOneWidth('0').isFixedPitch) << "they are of one width in most faces";
    EXPECT_TRUE(fontOfOneWidth('l').isFixedPitch);
}

} // namespace
} // namespace orvane::pdf
