#include "worker/FigurePainter.h"

#include "engine/pdf/Pixels.h"
#include "support/PdfBuilder.h"
#include "support/TemporaryFolder.h"

#include <ctime>
#include <string>

#include <gtest/gtest.h>

namespace orvane::worker {
namespace {

/// A page that is read, and painted in part.
struct PaintedPage {
    PaintedPage(const tests::PdfBuilder& builder, std::vector<layout::Figure> figures)
        : pictures(folder.path()) {
        const std::filesystem::path file = folder.path() / "test.pdf";
        builder.write(file);
        text.number = 1;
        text.figures = std::move(figures);
        paintFigures(pdf::PdfDocument::open(file, {}), text, pictures, diagnostics);
    }

    pdf::Pixels seen(std::size_t figure) const { return pdf::readPng(pictures, text.figures[figure].picture); }

    tests::TemporaryFolder folder;
    PictureStore pictures;
    layout::PageText text;
    Diagnostics diagnostics;
};

layout::Figure drawingAt(const Rect& box) {
    layout::Figure figure;
    figure.box = box;
    figure.needsPainting = true;
    return figure;
}

TEST(FigurePainter, TakesLittleTimeForManyDrawingsOnAFullPage) {
    std::string content;
    std::vector<layout::Figure> figures;
    for (int row = 0; row < 100; ++row)
        for (int column = 0; column < 100; ++column)
            content += "0 " + std::to_string(column / 100.0) + " " + std::to_string(row / 100.0) + " rg " +
                       std::to_string(6 * column) + " " + std::to_string(7 * row) + " 6 7 re f\n";
    for (int i = 0; i < 500; ++i)
        figures.push_back(
            drawingAt({6.0 * (i % 50), 792.0 - 7 * (i / 50) - 7, 6.0 * (i % 50) + 6, 792.0 - 7 * (i / 50)}));
    figures.push_back(drawingAt({5000, 5000, 5010, 5010}));
    const std::clock_t start = std::clock();
    const PaintedPage page(tests::PdfBuilder().page(content), figures);
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 2)
        << "the page's content is gone through once";
    EXPECT_EQ(page.seen(0).at(5, 5), "000000FF");
    EXPECT_EQ(page.seen(149).at(5, 5), "007D05FF") << "column 49, row 2";
    EXPECT_EQ(page.text.figures.back().picture.value, 0u) << "beyond the page";
}

TEST(FigurePainter, TakesLittleTimeForAFewDrawingsOverEachOther) {
    std::string content;
    for (int i = 0; i < 6000; ++i)
        content += std::to_string(20 + i * 37 % 560) + " " + std::to_string(20 + i * 91 % 750) + " m " +
                   std::to_string(20 + i * 53 % 560) + " " + std::to_string(20 + i * 29 % 750) + " l S\n";
    std::vector<layout::Figure> figures;
    for (int i = 0; i < 7; ++i)
        figures.push_back(drawingAt({10.0 + i, 10, 600, 780}));
    const std::clock_t start = std::clock();
    const PaintedPage page(tests::PdfBuilder().page(content + "1 0 0 rg 100 100 50 50 re f"), figures);
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 3)
        << "the page's content is gone through once";
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const pdf::Pixels pixels = page.seen(i);
        const double scale = pixels.height / figures[i].box.height();
        EXPECT_EQ(pixels.at(static_cast<int>(110 * scale), static_cast<int>(660 * scale)), "FF0000FF") << i;
    }
}

TEST(FigurePainter, PaintsDrawingsOfAPosterInParts) {
    tests::PdfPage poster{"1 0 0 rg 0 0 100 100 re f 0 0 1 rg 1400 1400 100 100 re f", 1500, 1500, "", {}, {}};
    std::vector<layout::Figure> figures;
    for (int i = 0; i < 10; ++i) {
        figures.push_back(drawingAt({10.0 * i, 1400, 10.0 * i + 10, 1500}));
        figures.push_back(drawingAt({1400 + 10.0 * i, 0, 1410 + 10.0 * i, 100}));
    }
    const PaintedPage page(tests::PdfBuilder().page(poster), figures);
    for (std::size_t i = 0; i < figures.size(); ++i) {
        EXPECT_GE(page.seen(i).height, 416) << "as sharp as on other pages";
        EXPECT_EQ(page.seen(i).at(5, 100), i % 2 == 0 ? "FF0000FF" : "0000FFFF");
    }
}

} // namespace
} // namespace orvane::worker
