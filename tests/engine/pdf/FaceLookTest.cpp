#include "ReadPages.h"
#include "Type1Program.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;
using tests::Polygon;

/// How the stem of a made letter is drawn, in thousandths of the em.
struct Stem {
    int width = 85;
    int foot = 0; ///< how far the serifs reach beyond the stem on each side
    int lean = 0; ///< how far its top is to the right of its foot
};

/// A stem with feet at both ends, as of an "I" or "l".
Polygon stemOf(const Stem& stem) {
    const int left = 200, right = left + stem.width, top = 700, serif = 40;
    return {{left - stem.foot, 0},      {left - stem.foot, serif}, {left, serif},
            {left + stem.lean, top},    {right + stem.lean, top},  {right, serif},
            {right + stem.foot, serif}, {right + stem.foot, 0}};
}

/// The font of a page that shows "Il" in a face drawn like that.
Font fontDrawnAs(const Stem& stem, const std::string& name, int flags) {
    PdfBuilder builder;
    const std::string program = tests::type1Program({{"I", {stemOf(stem)}}, {"l", {stemOf(stem)}}});
    const int file =
        builder.addStream("/Length1 300 /Length2 " + std::to_string(program.size() - 300) + " /Length3 0", program);
    const int descriptor =
        builder.add("<< /Type /FontDescriptor /FontName /" + name + " /Flags " + std::to_string(flags) +
                    " /FontBBox [0 -200 1000 800] /ItalicAngle 0 /Ascent 800 /Descent -200 /CapHeight 700 /StemV 80 "
                    "/FontFile " +
                    pdfRef(file) + " >>");
    const int font = builder.add("<< /Type /Font /Subtype /Type1 /BaseFont /" + name +
                                 " /FirstChar 73 /LastChar 74 /Widths [600 500] /Encoding /WinAnsiEncoding "
                                 "/FontDescriptor " +
                                 pdfRef(descriptor) + " >>");
    OpenedPdf pdf(builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td (II) Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(font)}));
    return pdf.page().fonts.at(0);
}

constexpr int kNoFlags = 4;    // symbolic only
constexpr int kSerifFlag = 34; // serif, not symbolic

TEST(FaceLook, TellsSerifsByTheFeetOfLettersNotByFlags) {
    EXPECT_TRUE(fontDrawnAs({85, 80, 0}, "Fk", kNoFlags).isSerif);
    EXPECT_FALSE(fontDrawnAs({85, 0, 0}, "Fk", kNoFlags).isSerif);
    EXPECT_FALSE(fontDrawnAs({85, 0, 0}, "Somebody", kSerifFlag).isSerif) << "the flag is wrong";
}

TEST(FaceLook, TellsBoldFacesOfMadeUpNamesByTheirStems) {
    EXPECT_FALSE(fontDrawnAs({66, 80, 0}, "Fk", kNoFlags).isBold);
    EXPECT_TRUE(fontDrawnAs({114, 80, 0}, "Fk", kNoFlags).isBold) << "stems are thinner where there are serifs";
    EXPECT_FALSE(fontDrawnAs({114, 0, 0}, "Fk", kNoFlags).isBold);
    EXPECT_TRUE(fontDrawnAs({140, 0, 0}, "Fk", kNoFlags).isBold);
    EXPECT_FALSE(fontDrawnAs({140, 0, 0}, "Somebody", kNoFlags).isBold) << "a name that could have said so";
}

TEST(FaceLook, DoubtsTheFlagForBoldOfThinLetters) {
    constexpr int kForcedBold = 262144 + 32;
    EXPECT_FALSE(fontDrawnAs({85, 0, 0}, "Somebody", kForcedBold).isBold);
    EXPECT_TRUE(fontDrawnAs({140, 0, 0}, "Somebody", kForcedBold).isBold);
    EXPECT_TRUE(fontDrawnAs({85, 0, 0}, "Somebody-Bold", kForcedBold).isBold) << "the name says so";
}

TEST(FaceLook, TellsSlantedFacesOfMadeUpNames) {
    EXPECT_FALSE(fontDrawnAs({85, 0, 0}, "F7", kNoFlags).isItalic);
    EXPECT_TRUE(fontDrawnAs({85, 0, 150}, "F7", kNoFlags).isItalic);
}

} // namespace
} // namespace orvane::pdf
