#include "Pixels.h"
#include "ReadPages.h"

#include "base/Failure.h"

#include <ctime>
#include <random>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;

/// Lines from anywhere to anywhere within a box.
std::string linesWithin(const Rect& box, int count) {
    std::minstd_rand random(7);
    const auto between = [&](double from, double to) {
        return std::to_string(from + (to - from) * static_cast<double>(random() % 10000) / 10000) + " ";
    };
    const auto somewhere = [&] { return between(box.left, box.right) + between(box.top, box.bottom); };
    std::string content;
    for (int i = 0; i < count; ++i)
        content += somewhere() + "m " + somewhere() + "l S\n";
    return content;
}

/// Curves from anywhere to anywhere on the page.
std::string curvesOnPage(int count) {
    std::minstd_rand random(7);
    const auto somewhere = [&] {
        return std::to_string(20 + random() % 570) + " " + std::to_string(20 + random() % 750) + " ";
    };
    std::string content;
    for (int i = 0; i < count; ++i)
        content += somewhere() + "m " + somewhere() + somewhere() + somewhere() + "c S\n";
    return content;
}

/// The picture of a region of the first page at 200 dots an inch.
Pixels paint(OpenedPdf& pdf, const Rect& region) {
    return readPng(pdf.document().renderRegion(1, region, {200}, PaintedText::Shown, pdf.diagnostics())->bytes);
}

/// Whether the picture has pixels between black and white.
bool isSmooth(const Pixels& pixels) {
    for (std::size_t i = 0; i < pixels.rgba.size(); i += 4)
        if (pixels.rgba[i] > 0 && pixels.rgba[i] < 255)
            return true;
    return false;
}

/// Source: PNG specification, third edition, 11.2.1.
bool hasPalette(const PictureData& png) {
    return static_cast<int>(png.bytes[25]) == 3;
}

TEST(Rendering, PaintsManyRegionsInOneGo) {
    OpenedPdf pdf(PdfBuilder().page("1 0 0 rg 50 700 60 40 re f 0 0 1 rg 320.2 90.3 60.1 70.3 re f"));
    const std::vector<Rect> regions{{40, 40, 120, 150}, {700, 0, 800, 10}, {300, 590.3, 410.7, 760}, {600, 0, 630, 20}};
    const auto painted = pdf.document().renderRegions(1, regions, {144}, PaintedText::Shown, pdf.diagnostics());
    ASSERT_EQ(painted.size(), regions.size());
    EXPECT_FALSE(painted[1]) << "beyond the page";
    for (const std::size_t i : {0, 2, 3}) {
        ASSERT_TRUE(painted[i]);
        const auto alone = pdf.document().renderRegion(1, regions[i], {144}, PaintedText::Shown, pdf.diagnostics());
        EXPECT_EQ(painted[i]->bytes, alone->bytes) << i;
    }
    EXPECT_THROW(pdf.document().renderRegions(1, {{700, 0, 800, 10}}, {144}, PaintedText::Shown, pdf.diagnostics()),
                 Failure);
}

TEST(Rendering, TakesLittleTimeForAPageThatThousandsOfLinesCross) {
    OpenedPdf pdf(PdfBuilder().page(linesWithin({20, 20, 590, 770}, 60000)));
    const std::clock_t start = std::clock();
    EXPECT_EQ(paint(pdf, {0, 0, 612, 792}).at(850, 1100), "000000FF");
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 4);
    EXPECT_EQ(pdf.count(DiagnosticKind::DrawingSimplified), 1);
}

TEST(Rendering, PaintsWhatThousandsOfLinesCrossCoarser) {
    for (const auto& [lines, isUsual] : {std::pair{1500, true}, std::pair{5500, false}}) {
        OpenedPdf pdf(PdfBuilder().page(linesWithin({20, 20, 590, 770}, lines) + "1 0 0 rg 0 0 612 10 re f"));
        const auto painted =
            pdf.document().renderRegion(1, {0, 0, 612, 792}, {300, 200}, PaintedText::Shown, pdf.diagnostics());
        const Pixels pixels = readPng(painted->bytes);
        EXPECT_EQ(pixels.width, isUsual ? 2550 : 1700) << lines;
        EXPECT_EQ(pixels.at(pixels.width / 2, pixels.height - 5), "FF0000FF");
        EXPECT_EQ(isSmooth(pixels), isUsual);
    }
}

TEST(Rendering, PaintsManyLinesAsFineAsTheyAreSmooth) {
    OpenedPdf pdf(PdfBuilder().page(linesWithin({20, 20, 590, 770}, 3500)));
    const auto painted =
        pdf.document().renderRegion(1, {0, 0, 612, 792}, {300, 100}, PaintedText::Shown, pdf.diagnostics());
    EXPECT_GT(painted->pixelWidth, 900);
    EXPECT_LT(painted->pixelWidth, 2500);
    EXPECT_TRUE(isSmooth(readPng(painted->bytes)));
    EXPECT_EQ(pdf.count(DiagnosticKind::DrawingSimplified), 0);
}

TEST(Rendering, PaintsAreasOverEachOtherCoarser) {
    const auto width = [](int areas, const Rect& region) {
        std::string content;
        for (int i = 0; i < areas; ++i)
            content += fmt::format("0 0 {} rg 10 10 m 500 {} l 580 780 l f\n", i / 100.0, 10 + i);
        OpenedPdf pdf(PdfBuilder().page(content));
        return pdf.document().renderRegion(1, region, {300, 100}, PaintedText::Shown, pdf.diagnostics())->pixelWidth;
    };
    EXPECT_EQ(width(5, {0, 0, 612, 792}), 2550);
    EXPECT_LT(width(100, {0, 0, 612, 792}), 2000);
    EXPECT_EQ(width(100, {0, 0, 306, 100}), 1275) << "beside them";
}

TEST(Rendering, KeepsEveryColorWhetherAPaletteHoldsThemOrNot) {
    for (const int count : {256, 257, 600}) {
        std::string content;
        for (int i = 1; i < count; ++i) // white is one
            content += fmt::format("{} {} 0 rg {} {} 1 1 re f\n", (i % 32) / 32.0, i / 32 / 32.0, i % 32, i / 32);
        OpenedPdf pdf(PdfBuilder().page(content));
        const auto painted =
            pdf.document().renderRegion(1, {0, 692, 100, 792}, {72}, PaintedText::Shown, pdf.diagnostics());
        const Pixels pixels = readPng(painted->bytes);
        std::set<std::string> colors;
        for (int y = 0; y < pixels.height; ++y)
            for (int x = 0; x < pixels.width; ++x)
                colors.insert(pixels.at(x, y));
        EXPECT_EQ(colors.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(pixels.at(5, 99 - 2), "281000FF");
        EXPECT_EQ(hasPalette(*painted), count <= 256);
    }
}

TEST(Rendering, CountsACurveAsTheManyLinesThatItIsPaintedAs) {
    OpenedPdf curves(PdfBuilder().page(curvesOnPage(700)));
    paint(curves, {0, 0, 612, 792});
    EXPECT_EQ(curves.count(DiagnosticKind::DrawingSimplified), 1);
    OpenedPdf lines(PdfBuilder().page(linesWithin({20, 20, 590, 770}, 3 * 700)));
    EXPECT_TRUE(isSmooth(paint(lines, {0, 0, 612, 792})));
    EXPECT_EQ(lines.count(DiagnosticKind::DrawingSimplified), 0);
}

TEST(Rendering, KeepsEdgesSmoothWhereFewLinesCross) {
    OpenedPdf pdf(PdfBuilder().page(linesWithin({20, 20, 300, 770}, 20000) + "400 100 m 500 300 l S"));
    EXPECT_TRUE(isSmooth(paint(pdf, {390, 480, 510, 700}))) << "the lines beside it do not count";
    EXPECT_EQ(pdf.count(DiagnosticKind::DrawingSimplified), 0);
    paint(pdf, {0, 0, 612, 792});
    EXPECT_EQ(pdf.count(DiagnosticKind::DrawingSimplified), 1);
}

TEST(Rendering, KeepsBroadLinesBroad) {
    OpenedPdf pdf(PdfBuilder().page(linesWithin({20, 20, 590, 770}, 60000) + "1 0 0 RG 10 w 100 0 m 100 792 l S"));
    EXPECT_EQ(paint(pdf, {0, 0, 612, 792}).at(static_cast<int>(96.5 * 200 / 72), 1100), "FF0000FF");
}

} // namespace
} // namespace orvane::pdf
