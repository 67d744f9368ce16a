#include "layout/running/RepeatedFigures.h"

#include "engine/layout/running/RunningPages.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;
using tests::pagesWith;

TEST(RepeatedFigures, TakesLogosAndRulesAlong) {
    auto pages = pagesWith(3, [](PageText& page, int) {
        page.lines.push_back(makeLine("Annual report", 72, 50));
        Rule rule;
        rule.position = 55;
        rule.from = 72;
        rule.to = 523;
        page.rules.push_back(rule);
        Figure logo;
        logo.picture = PictureId{7};
        logo.box = {480, 20, 523, 60};
        page.figures.push_back(logo);
        Figure picture;
        picture.picture = PictureId{static_cast<std::uint32_t>(10 + page.number)};
        picture.box = {100, 300, 300, 400};
        page.figures.push_back(picture);
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(heads[1].header->content.rules.size(), 1u);
    ASSERT_EQ(heads[1].header->content.figures.size(), 1u);
    EXPECT_EQ(heads[1].header->content.figures[0].picture, PictureId{7});
    ASSERT_EQ(pages[1].figures.size(), 1u) << "the page's own picture stays";
    EXPECT_EQ(pages[1].figures[0].picture, PictureId{12});
}

TEST(RepeatedFigures, LeavesThePictureOfOnePageThatHangsDownFromTheRows) {
    auto pages = pagesWith(3, [](PageText& page, int) { page.lines.push_back(makeLine("Annual report", 72, 50)); });
    Figure ribbon;
    ribbon.picture = PictureId{7};
    ribbon.box = {480, 20, 523, 68};
    pages[0].figures.push_back(ribbon);
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[0].header);
    EXPECT_TRUE(heads[0].header->content.figures.empty());
    EXPECT_EQ(pages[0].figures.size(), 1u);
}

TEST(RepeatedFigures, LeavesTheWordsOverADrawingToTheirPage) {
    auto pages = pagesWith(3, [](PageText& page, int number) {
        Figure watermark;
        watermark.drawing.emplace();
        watermark.drawing->shapes.resize(2);
        watermark.box = {72, 90, 500, 700};
        watermark.labels = {makeLine("Words of page " + std::to_string(number), 72, 310)};
        watermark.alternateText = "Words";
        page.figures.push_back(watermark);
    });
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[1].header);
    ASSERT_EQ(heads[1].header->content.figures.size(), 1u);
    EXPECT_TRUE(heads[1].header->content.figures[0].labels.empty());
    EXPECT_TRUE(heads[1].header->content.figures[0].alternateText.empty());
    EXPECT_TRUE(heads[1].header->content.figures[0].isBackground) << "the words stand on it";
    ASSERT_EQ(pages[1].lines.size(), 31u);
    EXPECT_EQ(textOf(pages[1].lines[11]), "Words of page 2") << "among the lines around it";
}

TEST(RepeatedFigures, LeavesAChartThatIsShownAgain) {
    for (const double top : {300.0, 40.0}) {
        auto pages = pagesWith(3, [top](PageText& page, int) {
            Figure chart;
            chart.drawing.emplace();
            chart.drawing->shapes.resize(2);
            chart.box = {72, top, 500, top + 300};
            chart.labels = {makeLine("Specificity", 72, top + 290)};
            page.figures.push_back(chart);
            page.lines.erase(page.lines.begin(), page.lines.begin() + 15);
        });
        const auto heads = takeRunningHeads(pages, {});
        for (const std::size_t page : {0U, 1U, 2U}) {
            EXPECT_FALSE(heads[page].header) << top;
            ASSERT_EQ(pages[page].figures.size(), 1u) << top;
            EXPECT_EQ(pages[page].figures[0].labels.size(), 1u) << "its words stay in it";
        }
    }
}

TEST(RepeatedFigures, LeavesDrawingsThatOnlyShareTheirPlace) {
    auto pages = pagesWith(3, [](PageText& page, int number) {
        page.lines.push_back(makeLine("Annual report", 72, 50));
        Figure figure;
        figure.box = {480, 60, 523, 90};
        document::Shape shape;
        shape.segments.resize(number == 1 ? 4 : 5, {document::Shape::Verb::Line, {}});
        shape.fill = number == 3 ? Color(0xFF, 0, 0) : Color(0, 0, 0xFF);
        figure.drawing.emplace().shapes = {shape};
        page.figures.push_back(figure);
    });
    const auto heads = takeRunningHeads(pages, {});
    for (const std::size_t page : {0U, 1U, 2U}) {
        EXPECT_TRUE(heads[page].header->content.figures.empty()) << page;
        EXPECT_EQ(pages[page].figures.size(), 1u) << page;
    }
}

TEST(RepeatedFigures, LeavesThePicturesBelowTheTextOfAShortPage) {
    auto pages = pagesWith(
        3, [](PageText& page, int number) { page.lines.push_back(makeLine(std::to_string(number), 290, 800)); });
    pages[1].lines.erase(pages[1].lines.begin() + 3, pages[1].lines.end() - 1);
    Figure picture;
    picture.picture = PictureId{7};
    picture.box = {100, 590, 300, 650};
    pages[1].figures.push_back(picture);
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[1].footer);
    EXPECT_TRUE(heads[1].footer->content.figures.empty());
    EXPECT_EQ(pages[1].figures.size(), 1u);
}

} // namespace
} // namespace orvane::layout
