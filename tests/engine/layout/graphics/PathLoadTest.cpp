#include "engine/layout/PageContentBuilder.h"
#include "engine/layout/PageReading.h"
#include "layout/tables/TableFinder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <random>

/// Pages of 20,000 path segments go through all stages that look at paths: bars, rules, figures, tables.
namespace orvane::layout::tests {
namespace {

using pdf::tests::PageContentBuilder;

/// Of the processor, so that other work on the machine does not count.
constexpr double kMostSeconds = 2;

double secondsFor(const PageContentBuilder& page) {
    const std::clock_t start = std::clock();
    PageText text = read(page);
    Diagnostics diagnostics;
    findTables(text, {}, {}, diagnostics);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(PageOfPaths, TakesLittleTimeAsAMapOfShortLines) {
    PageContentBuilder page;
    for (int i = 0; i < 20000; ++i) {
        const double x = 20 + (i * 37) % 550;
        const double y = 20 + (i * 91) % 800;
        page.line({x, y}, {x + 3 * std::cos(i), y + 3 * std::sin(i)});
    }
    EXPECT_LT(secondsFor(page), kMostSeconds);
}

TEST(PageOfPaths, TakesLittleTimeAsAPlanOfLinesAcrossAndDown) {
    PageContentBuilder page;
    for (int i = 0; i < 10000; ++i) {
        const double across = 20 + (i * 37) % 5000 * 0.1;
        const double along = 20 + (i * 53) % 400;
        page.horizontalRule(along, along + 100, across);
        page.verticalRule(across, along, along + 100);
    }
    for (int i = 0; i < 500; ++i)
        page.text(20 + i % 5 * 100, 50 + i, "street name", 8);
    EXPECT_LT(secondsFor(page), kMostSeconds);
}

TEST(PageOfPaths, TakesLittleTimeAsATablePaintedCellByCell) {
    PageContentBuilder page;
    for (int row = 0; row < 160; ++row) {
        for (int column = 0; column < 25; ++column) {
            const Rect cell{20 + 22.0 * column, 20 + 5.0 * row, 42 + 22.0 * column, 25 + 5.0 * row};
            page.filledRectangle(cell, {220, 230, static_cast<std::uint8_t>(row)});
            page.strokedRectangle(cell, 0.25);
            page.text(cell.left + 1, cell.bottom - 1, "1.2", 3);
        }
    }
    EXPECT_LT(secondsFor(page), kMostSeconds) << "4,000 cells";
}

TEST(PageOfPaths, TakesLittleTimeAsABarChart) {
    PageContentBuilder page;
    for (int i = 0; i < 5000; ++i) {
        const double x = 20 + 0.11 * i;
        page.filledRectangle({x, 800.0 - (i * 31) % 700, x + 0.1, 800}, {30, 60, 120});
    }
    EXPECT_LT(secondsFor(page), kMostSeconds) << "5,000 bars";
}

TEST(PageOfPaths, TakesLittleTimeAsAFormOfBoxesToTick) {
    PageContentBuilder page;
    for (int row = 0; row < 80; ++row)
        for (int column = 0; column < 60; ++column)
            page.strokedRectangle({20 + 9.0 * column, 20 + 10.0 * row, 26 + 9.0 * column, 26 + 10.0 * row});
    EXPECT_LT(secondsFor(page), kMostSeconds) << "4,800 boxes";
}

TEST(PageOfPaths, TakesLittleTimeAsCurvesThatEachGoOverThePage) {
    PageContentBuilder page;
    for (int i = 0; i < 20000; ++i)
        page.disk({300 + (i * 37) % 100 * 0.1, 400 + (i * 53) % 100 * 0.1}, 270 + (i * 91) % 100 * 0.1);
    EXPECT_LT(secondsFor(page), kMostSeconds);
}

TEST(PageOfPaths, TakesLittleTimeAsSmallBoxesAnywhere) {
    PageContentBuilder page(2000, 2000);
    std::minstd_rand random(7);
    for (int i = 0; i < 20000; ++i) {
        const double x = random() % 19900 / 10.0, y = random() % 19900 / 10.0;
        page.strokedRectangle({x, y, x + 5, y + 4});
    }
    const std::clock_t start = std::clock();
    read(page);
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 0.75);
}

TEST(PageOfPaths, TakesLittleTimeAsBoxesWithTextsAnywhere) {
    PageContentBuilder page(2000, 2000);
    std::minstd_rand random(7);
    const auto upTo = [&](int most) { return static_cast<double>(random() % static_cast<unsigned>(10 * most)) / 10; };
    for (int i = 0; i < 4000; ++i) {
        const double x = upTo(1900), y = upTo(1900);
        page.strokedRectangle({x + 14, y, x + 34 + upTo(30), y + 8 + upTo(17)}, 1);
        page.text(x, y + 6, "ab", 6);
    }
    EXPECT_LT(secondsFor(page), kMostSeconds);
}

} // namespace
} // namespace orvane::layout::tests
