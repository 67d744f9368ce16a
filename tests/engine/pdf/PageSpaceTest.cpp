#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;

TEST(PageSpace, HasItsOriginAtTheTopLeftOfTheCropBoxAsShown) {
    struct Row {
        const char* entries;
        double width;
        double height;
        Point origin;
        double angle;
        const char* why;
    };
    // The text starts at 50,100 of a media box of 400 by 300.
    const Row rows[] = {
        {"", 400, 300, {50, 200}, 0, "y runs down"},
        {"/CropBox [20 30 320 280]", 300, 250, {30, 180}, 0, "the crop box is the page"},
        {"/Rotate 90", 300, 400, {100, 50}, 90, "turned clockwise"},
        {"/Rotate 180", 400, 300, {350, 100}, 180, "upside down"},
        {"/Rotate 270", 300, 400, {200, 350}, 270, "turned the other way"},
        {"/Rotate -90", 300, 400, {200, 350}, 270, "a negative angle"},
        {"/CropBox [20 30 320 280] /Rotate 90", 250, 300, {70, 30}, 90, "cropped and turned"},
        {"/UserUnit 2", 800, 600, {100, 400}, 0, "a unit of two points"},
    };
    for (const Row& row : rows) {
        PdfPage page{"BT /F1 10 Tf 50 100 Td (A) Tj ET", 400, 300, row.entries, {}, {}};
        OpenedPdf pdf(PdfBuilder().page(page));
        const PageContent content = pdf.page();
        EXPECT_NEAR(content.width, row.width, 1e-6) << row.why;
        EXPECT_NEAR(content.height, row.height, 1e-6) << row.why;
        EXPECT_NEAR(pdf.document().pageInfo(1).width, row.width, 1e-6) << row.why;
        ASSERT_EQ(content.glyphs.size(), 1u) << row.why;
        EXPECT_NEAR(content.glyphs[0].origin.x, row.origin.x, 1e-6) << row.why;
        EXPECT_NEAR(content.glyphs[0].origin.y, row.origin.y, 1e-6) << row.why;
        EXPECT_NEAR(content.glyphs[0].angle, row.angle, 1e-6) << row.why;
    }
}

TEST(PageSpace, ShrinksAPageToTheLargestPaper) {
    PdfPage page{"BT /F1 10 Tf 50 100 Td (A) Tj ET", 3168, 300, {}, {}, {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    const PageContent content = pdf.page();
    EXPECT_NEAR(content.width, 1584, 1e-6) << "22 inches";
    EXPECT_NEAR(content.height, 150, 1e-6);
    ASSERT_EQ(content.glyphs.size(), 1u);
    EXPECT_NEAR(content.glyphs[0].origin.x, 25, 1e-6);
    EXPECT_NEAR(content.glyphs[0].fontSize, 5, 1e-6);
    EXPECT_NEAR(pdf.document().pageInfo(1).width, 3168, 1e-6) << "the paper itself";
}

TEST(PageSpace, TakesPathsAndPicturesAlong) {
    PdfBuilder builder;
    const int image = builder.addStream(tests::pdfImage(1, 1, "/DeviceGray", 8), "\x40");
    PdfPage page{"10 20 30 40 re f q 60 0 0 80 100 150 cm /Im1 Do Q", 400, 300, "/Rotate 90",
                 "/XObject << /Im1 " + tests::pdfRef(image) + " >>",  {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.paths.size(), 1u);
    EXPECT_EQ(content.paths[0].box, (Rect{20, 10, 60, 40}));
    ASSERT_EQ(content.pictures.size(), 1u);
    EXPECT_EQ(content.pictures[0].box, (Rect{150, 100, 230, 160}));
    // The picture's upper left corner is at the upper right of the page's picture once the page is turned.
    const Point upperLeft = content.pictures[0].matrix.apply({0, 0});
    EXPECT_NEAR(upperLeft.x, 230, 1e-6);
    EXPECT_NEAR(upperLeft.y, 100, 1e-6);
}

} // namespace
} // namespace orvane::pdf
