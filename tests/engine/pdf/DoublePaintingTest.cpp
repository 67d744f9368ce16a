#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;

TEST(DoublePainting, LeavesOneText) {
    struct Row {
        const char* content;
        const char* text;
        bool isBold;
        const char* why;
    };
    const Row rows[] = {
        {"BT /F1 10 Tf 50 500 Td (ll) Tj 0.3 0 Td (ll) Tj ET", "ll", true, "a second time a hair to the right: bold"},
        {"BT /F1 10 Tf 50 500 Td (ll) Tj 0 0 Td (ll) Tj ET", "ll", false, "twice on the same spot looks like once"},
        {"BT 0.7 g /F1 10 Tf 50.5 499.5 Td (ll) Tj 0 g -0.5 0.5 Td (ll) Tj ET", "ll", false, "a shadow is no text"},
        {"BT 3 Tr /F1 10 Tf 50 500 Td (ll) Tj 0 Tr 0 0 Td (ll) Tj ET", "ll", false,
         "what is seen outlives its invisible copy"},
        {"BT /F1 10 Tf 50 500 Td (ll) Tj 4.44 0 Td (ll) Tj ET", "llll", false, "letters side by side"},
        {"BT /F1 10 Tf 50 500 Td (ll) Tj /F4 10 Tf 0.3 0 Td (ll) Tj ET", "llll", false,
         "another font says something else"},
    };
    for (const Row& row : rows) {
        OpenedPdf pdf(PdfBuilder().page(row.content));
        const PageContent page = pdf.page();
        EXPECT_EQ(visibleTextOf(page), row.text) << row.why;
        EXPECT_EQ(textOf(page), row.text) << row.why;
        EXPECT_EQ(page.glyphs.at(0).isFakeBold, row.isBold) << row.why;
        EXPECT_EQ(page.glyphs.at(0).color, kBlack) << row.why;
    }
}

TEST(DoublePainting, TellsTheColourAroundAText) {
    OpenedPdf pdf(PdfBuilder().page("BT 0 g /F1 10 Tf 50 500 Td (a) Tj 1 g 0.3 0.3 Td (a) Tj "
                                    "0 g 50 0 Td (b) Tj 1 g 0 0 Td (b) Tj ET"));
    const PageContent page = pdf.page();
    ASSERT_EQ(textOf(page), "ab");
    EXPECT_EQ(page.glyphs[0].color, kWhite);
    EXPECT_EQ(page.glyphs[0].edge, kBlack);
    EXPECT_FALSE(page.glyphs[1].edge) << "on the same spot nothing of the lower one is seen";
}

} // namespace
} // namespace orvane::pdf
