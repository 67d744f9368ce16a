#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

TEST(Paths, TellTheirShapeAndPaint) {
    OpenedPdf pdf(PdfBuilder().page("1 0 0 rg 100 700 200 10 re f 0 0 1 RG 2 w [3 1] 0 d 100 600 m 300 600 l S "
                                    "100 500 m 150 550 200 550 250 500 c h f*"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.paths.size(), 3u);

    const Path& filled = page.paths[0];
    EXPECT_EQ(filled.box, (Rect{100, 82, 300, 92}));
    ASSERT_TRUE(filled.fill);
    EXPECT_EQ(filled.fill->color, (Color{255, 0, 0}));
    EXPECT_FALSE(filled.stroke);
    ASSERT_EQ(filled.segments.size(), 5u);
    EXPECT_EQ(filled.segments.back().verb, PathVerb::Close);

    const Path& line = page.paths[1];
    EXPECT_EQ(line.box, (Rect{100, 192, 300, 192}));
    ASSERT_TRUE(line.stroke);
    EXPECT_EQ(line.stroke->color, (Color{0, 0, 255}));
    EXPECT_DOUBLE_EQ(line.stroke->width, 2);
    EXPECT_EQ(line.stroke->dash, (std::vector<double>{3, 1}));

    const Path& curve = page.paths[2];
    ASSERT_EQ(curve.segments.size(), 3u) << "start, curve and close";
    EXPECT_EQ(curve.segments[1].verb, PathVerb::Curve);
    EXPECT_EQ(curve.segments[1].control1, (Point{150, 242}));
    EXPECT_TRUE(curve.fill->isEvenOdd);
}

TEST(Paths, ScaleTheirLinesWithTheMatrix) {
    OpenedPdf pdf(PdfBuilder().page("3 0 0 3 0 0 cm 2 w [1 2] 0 d 10 10 m 50 10 l S"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.paths.size(), 1u);
    EXPECT_NEAR(page.paths[0].stroke->width, 6, 1e-9);
    EXPECT_NEAR(page.paths[0].stroke->dash.at(1), 6, 1e-9);
}

TEST(Paths, JoinFillAndStrokeOfOneShape) {
    OpenedPdf pdf(PdfBuilder().page("10 10 50 50 re B 10 10 50 50 re f 20 20 50 50 re S"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.paths.size(), 3u);
    EXPECT_TRUE(page.paths[0].fill && page.paths[0].stroke);
    EXPECT_TRUE(page.paths[1].fill && !page.paths[1].stroke);
    EXPECT_TRUE(!page.paths[2].fill && page.paths[2].stroke) << "another shape";
}

TEST(Paths, TellTheirClip) {
    OpenedPdf pdf(PdfBuilder().page("q 0 0 100 100 re W n 50 50 200 200 re f 300 300 10 10 re f Q 700 10 10 10 re f"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.paths.size(), 3u);
    EXPECT_EQ(page.paths[0].clip, (Rect{0, 692, 100, 792}));
    EXPECT_EQ(page.paths[0].box, (Rect{50, 542, 250, 742})) << "the box is the path's own";
    EXPECT_EQ(page.paths[0].visibility, Visibility::Visible);
    EXPECT_EQ(page.paths[1].visibility, Visibility::ClippedAway);
    EXPECT_EQ(page.paths[2].visibility, Visibility::OffPage);
}

TEST(Paths, LeaveOutWhatTheyDrawOffThePage) {
    // Marks around the page for the printer, as one path, and a broad line whose edge reaches in.
    OpenedPdf pdf(PdfBuilder().page("-20 100 m -5 100 l 700 100 m 720 100 l 100 800 m 100 820 l S "
                                    "-20 50 m -5 50 l 100 100 m 200 100 l 700 50 m 720 50 l S "
                                    "4 w -1 100 m -1 200 l -10 300 m -10 400 l S"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.paths.size(), 3u);
    EXPECT_EQ(page.paths[0].visibility, Visibility::OffPage) << "though it goes all around the page";
    EXPECT_EQ(page.paths[1].box, (Rect{100, 692, 200, 692}));
    EXPECT_EQ(page.paths[2].box, (Rect{-1, 592, -1, 692}));
}

const char* const kRedToBlue =
    "/ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 100 0] /Function << /FunctionType 2 /Domain [0 1] "
    "/C0 [1 0 0] /C1 [0 0 1] /N 1 >>";

TEST(Paths, SayWhenTheyAreNotAllThatIsSeen) {
    OpenedPdf pdf(PdfBuilder().page("q 0 0 100 100 re W n 10 10 20 20 re f Q "
                                    "q 0 0 m 100 0 l 50 100 l h W n q 0 0 100 100 re W n 10 10 20 20 re f Q Q "
                                    "10 10 30 30 re f"));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.paths.size(), 3u);
    EXPECT_FALSE(page.paths[0].isSimplified) << "the box of a rectangle says all";
    EXPECT_TRUE(page.paths[1].isSimplified) << "a triangle cuts it";
    EXPECT_FALSE(page.paths[2].isSimplified);
}

TEST(Paths, StandForShadings) {
    const std::string shading = kRedToBlue;
    PdfPage page{"q 10 10 80 40 re W n /Sh1 sh Q /Pattern cs /P1 scn 200 200 50 50 re f",
                 612,
                 792,
                 {},
                 "/Shading << /Sh1 << " + shading + " >> >> /Pattern << /P1 << /PatternType 2 /Shading << " + shading +
                     " >> >> >>",
                 {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.paths.size(), 2u);
    const Rect boxes[] = {{10, 742, 90, 782}, {200, 542, 250, 592}};
    for (std::size_t i = 0; i < 2; ++i) {
        ASSERT_TRUE(content.paths[i].fill);
        EXPECT_TRUE(content.paths[i].fill->isPattern);
        EXPECT_EQ(content.paths[i].box, boxes[i]);
        EXPECT_NEAR(content.paths[i].fill->color.red, 128, 2);
        EXPECT_NEAR(content.paths[i].fill->color.blue, 128, 2);
        EXPECT_EQ(content.paths[i].fill->color.green, 0);
    }
}

TEST(Paths, TellHowTheColoursOfShadingsChange) {
    const std::string radial =
        "/ShadingType 3 /ColorSpace /DeviceRGB /Coords [50 50 0 50 50 40] /Extend [false true] /Function "
        "<< /FunctionType 3 /Domain [0 1] /Bounds [0.5] /Encode [0 1 0 1] /Functions [ "
        "<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 1 0] /N 1 >> "
        "<< /FunctionType 2 /Domain [0 1] /C0 [0 1 0] /C1 [0 0 1] /N 1 >> ] >>";
    PdfPage page{"q 2 0 0 2 0 0 cm 0 0 m 100 0 l 50 100 l h W n /Sh1 sh Q q 0 0 100 100 re W n /Sh2 sh Q", 612, 792, {},
                 std::string("/Shading << /Sh1 << ") + kRedToBlue + " >> /Sh2 << " + radial + " >> >>",    {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.paths.size(), 2u);
    EXPECT_FALSE(content.paths[0].isSimplified) << "the triangle is the shape, nothing else cuts it";
    ASSERT_TRUE(content.paths[0].fill->gradient);
    const Gradient& axial = *content.paths[0].fill->gradient;
    EXPECT_EQ(axial.kind, GradientKind::Axial);
    EXPECT_EQ(axial.from, (Point{0, 792}));
    EXPECT_EQ(axial.to, (Point{200, 792}));
    ASSERT_EQ(axial.stops.size(), 2u);
    EXPECT_EQ(axial.stops[1].color, (Color{0, 0, 255}));
    ASSERT_TRUE(content.paths[1].fill->gradient);
    const Gradient& circles = *content.paths[1].fill->gradient;
    EXPECT_EQ(circles.kind, GradientKind::Radial);
    EXPECT_EQ(circles.from, (Point{50, 742}));
    EXPECT_EQ(circles.toRadius, 40);
    EXPECT_FALSE(circles.extendsBefore);
    EXPECT_TRUE(circles.extendsAfter);
    ASSERT_EQ(circles.stops.size(), 3u);
    EXPECT_EQ(circles.stops[1].position, 0.5);
    EXPECT_EQ(circles.stops[1].color, (Color{0, 255, 0}));
}

TEST(Paths, AreMasksOfASingleDot) {
    PdfPage page{"q 100 0 0 2 50 600 cm 1 0 0 rg BI /W 1 /H 1 /BPC 1 /IM true /D [1 0] ID \x80 EI Q "
                 "q 100 0 0 2 50 500 cm BI /W 1 /H 1 /BPC 1 /IM true ID \x80 EI Q",
                 612,
                 792,
                 {},
                 {},
                 {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    const PageContent content = pdf.page();
    EXPECT_TRUE(content.pictures.empty());
    ASSERT_EQ(content.paths.size(), 1u) << "the second mask lets nothing through";
    EXPECT_EQ(content.paths[0].box, (Rect{50, 190, 150, 192}));
    EXPECT_EQ(content.paths[0].fill->color, (Color{255, 0, 0}));
}

TEST(Paths, StandForPatternsInTheirMeanColour) {
    PdfBuilder builder;
    const int half = builder.addStream("/Type /Pattern /PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 10 10] "
                                       "/XStep 10 /YStep 10 /Resources << >>",
                                       "1 0 0 rg 0 0 5 10 re f");
    const int plain = builder.addStream("/Type /Pattern /PatternType 1 /PaintType 2 /TilingType 1 /BBox [0 0 10 10] "
                                        "/XStep 10 /YStep 10 /Resources << >>",
                                        "0 0 10 10 re f");
    PdfPage page{"/Pattern cs /P1 scn 100 100 200 100 re f /CS1 cs 0 0 1 /P2 scn 100 300 200 100 re f",
                 612,
                 792,
                 {},
                 "/Pattern << /P1 " + pdfRef(half) + " /P2 " + pdfRef(plain) +
                     " >> /ColorSpace << /CS1 [/Pattern /DeviceRGB] >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.paths.size(), 2u);
    EXPECT_TRUE(content.paths[0].fill->isPattern);
    EXPECT_EQ(content.paths[0].box, (Rect{100, 592, 300, 692}));
    EXPECT_EQ(content.paths[0].fill->color, (Color{255, 128, 128})) << "half red, half paper";
    EXPECT_EQ(content.paths[1].fill->color, (Color{0, 0, 255}))
        << "an uncoloured pattern takes the colour it is used with";
}

TEST(Paths, TakeTheOpacityOfTheirStateAndGroup) {
    PdfBuilder builder;
    const int group = builder.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 600 700] /Group << /S /Transparency >> /Resources << /ExtGState "
        "<< /Half << /ca 0.5 >> >> >>",
        "100 100 50 50 re f /Half gs 200 100 50 50 re f");
    PdfPage page{"q /Half gs 10 10 50 50 re f /Fm1 Do Q 300 300 10 10 re f",
                 612,
                 792,
                 {},
                 "/ExtGState << /Half << /ca 0.5 >> >> /XObject << /Fm1 " + pdfRef(group) + " >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.paths.size(), 4u);
    const double expected[] = {0.5, 0.5, 0.25, 1};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(content.paths[i].fill->opacity, expected[i], 1e-9) << i;
}

TEST(Paths, OfASoftMaskAreNoPartOfThePage) {
    PdfBuilder builder;
    const int mask = builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 100 100] /Group << /S /Transparency "
                                       "/CS /DeviceGray >> /Resources << >>",
                                       "1 g 0 0 50 100 re f");
    PdfPage page{"q /Masked gs 0 0 100 100 re f Q 200 200 10 10 re f",
                 612,
                 792,
                 {},
                 "/ExtGState << /Masked << /SMask << /S /Luminosity /G " + pdfRef(mask) + " >> >> >>",
                 {}};
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.paths.size(), 2u);
    EXPECT_EQ(content.paths[0].box, (Rect{0, 692, 100, 792}));
    EXPECT_NEAR(content.paths[0].fill->opacity, 0.5, 0.01) << "the mask leaves the left half";
    EXPECT_TRUE(content.paths[0].fill->isPattern);
    EXPECT_EQ(content.paths[1].fill->opacity, 1);
}

TEST(Paths, ThroughTextColourItsLetters) {
    PdfPage page{"q BT /F1 40 Tf 7 Tr 100 500 Td (Ab) Tj ET /Sh1 sh Q 10 10 20 20 re f",
                 612,
                 792,
                 {},
                 std::string("/Shading << /Sh1 << ") + kRedToBlue + " >> >>",
                 {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.glyphs.size(), 2u);
    EXPECT_EQ(content.glyphs[0].visibility, Visibility::Visible);
    EXPECT_NEAR(content.glyphs[0].color.red, 128, 2);
    ASSERT_EQ(content.paths.size(), 1u) << "the gradient is the letters' colour, not a drawing";
    EXPECT_EQ(content.paths[0].box, (Rect{10, 762, 30, 782}));
}

} // namespace
} // namespace orvane::pdf
