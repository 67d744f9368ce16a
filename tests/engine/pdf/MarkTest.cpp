#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

/// The mark a glyph stands in; a mark without a tag when it stands in none.
Mark markOf(const PageContent& page, const char32_t* text) {
    for (const Glyph& glyph : page.glyphs)
        if (glyph.unicode == text)
            return glyph.mark < 0 ? Mark{} : page.marks.at(static_cast<std::size_t>(glyph.mark));
    ADD_FAILURE() << "no such glyph";
    return {};
}

TEST(Marks, SurroundWhatIsPaintedInThem) {
    OpenedPdf pdf(PdfBuilder().page(
        "/P << /MCID 3 /Lang (de) >> BDC BT /F1 10 Tf 50 500 Td (a) Tj ET "
        "/Span << /ActualText <FEFF00660069> >> BDC BT /F1 10 Tf 80 500 Td (b) Tj ET EMC "
        "BT /F1 10 Tf 90 500 Td (c) Tj ET EMC "
        "/Artifact BMC /Span BMC BT /F1 10 Tf 50 20 Td (d) Tj ET EMC EMC "
        "/Figure << /Alt (A cat) /MCID 4 >> BDC 10 10 20 20 re f EMC BT /F1 10 Tf 50 90 Td (e) Tj ET"));
    const PageContent page = pdf.page();
    EXPECT_EQ(markOf(page, U"a").tag, "P");
    EXPECT_EQ(markOf(page, U"a").mcid, 3);
    EXPECT_EQ(markOf(page, U"a").language, "de");
    EXPECT_EQ(markOf(page, U"b").actualText, "fi");
    EXPECT_EQ(markOf(page, U"b").parent, 0);
    EXPECT_EQ(markOf(page, U"c").mcid, 3) << "back in the outer sequence";
    EXPECT_TRUE(markOf(page, U"d").isArtifact) << "within an artifact";
    EXPECT_EQ(markOf(page, U"e").tag, "");
    ASSERT_EQ(page.paths.size(), 1u);
    EXPECT_EQ(page.marks.at(static_cast<std::size_t>(page.paths[0].mark)).alternateText, "A cat");
}

TEST(Marks, TakeNoDictionaryThatEndsInANameForANamedPropertyList) {
    PdfBuilder builder;
    const int properties = builder.add("<< /MCID 7 >>");
    OpenedPdf pdf(builder.page({"/P /MC0 BDC BT /F1 10 Tf 50 500 Td (a) Tj ET EMC "
                                "/Artifact << /Subtype /Header /Type /Pagination >> BDC EMC "
                                "/Span << /ActualText <0041> /O /Layout >> BDC EMC BT /F1 10 Tf 70 500 Td (b) Tj ET",
                                612,
                                792,
                                {},
                                "/Properties << /MC0 " + pdfRef(properties) + " >>",
                                {}}));
    const PageContent page = pdf.page();
    EXPECT_EQ(markOf(page, U"a").mcid, 7);
    EXPECT_EQ(markOf(page, U"b").tag, "") << "every sequence was closed";
    EXPECT_EQ(page.marks.size(), 3u);
}

TEST(Marks, KnowNamedPropertyLists) {
    PdfBuilder builder;
    const int properties = builder.add("<< /MCID 7 /ActualText (EMC BDC) >>");
    // Words in strings, dictionaries, comments and pictures are no operators.
    PdfPage page{"/P /M#430 BDC BT /F1 10 Tf 50 500 Td (a) Tj (/P /MC0 BDC) pop ET % /P /MC0 BDC\n"
                 "BI /W 12 /H 1 /CS /G /BPC 8 ID /P /MC0 BDC  EI BT /F1 10 Tf 60 500 Td (b) Tj ET EMC BT /F1 10 Tf 70 "
                 "500 Td (c) Tj ET",
                 612,
                 792,
                 {},
                 "/Properties << /MC0 " + pdfRef(properties) + " >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    EXPECT_EQ(markOf(content, U"a").mcid, 7);
    EXPECT_EQ(markOf(content, U"a").tag, "P");
    EXPECT_EQ(markOf(content, U"a").actualText, "EMC BDC");
    EXPECT_EQ(markOf(content, U"b").mcid, 7);
    EXPECT_EQ(markOf(content, U"c").mcid, -1);
    EXPECT_EQ(content.marks.size(), 1u);
}

TEST(Marks, OfLayersDoNotEndOthers) {
    PdfBuilder builder;
    const int layer = builder.add("<< /Type /OCG /Name (Shown) >>");
    builder.catalog("/OCProperties << /OCGs [" + pdfRef(layer) + "] /D << >> >>");
    PdfPage page{
        "/P << /MCID 1 >> BDC /OC /L1 BDC BT /F1 10 Tf 50 500 Td (a) Tj ET EMC BT /F1 10 Tf 60 500 Td (b) Tj ET EMC",
        612,
        792,
        {},
        "/Properties << /L1 " + pdfRef(layer) + " >>",
        {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    EXPECT_EQ(markOf(content, U"a").tag, "OC");
    EXPECT_EQ(markOf(content, U"b").mcid, 1);
}

TEST(Marks, DoNotLeakOutOfForms) {
    PdfBuilder builder;
    const int form = builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 600 700] /Resources << >>",
                                       "EMC EMC /Span BMC 10 10 20 20 re f");
    PdfPage page{"/P << /MCID 1 >> BDC /Fm1 Do BT /F1 10 Tf 50 500 Td (a) Tj ET EMC BT /F1 10 Tf 60 500 Td (b) Tj ET",
                 612,
                 792,
                 {},
                 "/XObject << /Fm1 " + pdfRef(form) + " >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    EXPECT_EQ(markOf(content, U"a").mcid, 1);
    EXPECT_EQ(markOf(content, U"b").tag, "");
}

TEST(Marks, OfSwitchedOffLayersHideTheirContent) {
    PdfBuilder builder;
    const int layer = builder.add("<< /Type /OCG /Name (Hidden) >>");
    builder.catalog("/OCProperties << /OCGs [" + pdfRef(layer) + "] /D << /OFF [" + pdfRef(layer) + "] >> >>");
    PdfPage page{"/OC /L1 BDC BT /F1 10 Tf 50 500 Td (a) Tj ET 10 10 20 20 re f EMC BT /F1 10 Tf 60 500 Td (b) Tj ET",
                 612,
                 792,
                 {},
                 "/Properties << /L1 " + pdfRef(layer) + " >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    EXPECT_EQ(visibleTextOf(content), "b");
    EXPECT_TRUE(content.paths.empty());
}

} // namespace
} // namespace orvane::pdf
