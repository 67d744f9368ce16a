#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using tests::linesOf;
using tests::read;

TEST(ReadPageText, MakesLinesOfWords) {
    PageContentBuilder page;
    page.text(72, 100, "Hello world", 12);
    page.text(72, 115, "and good bye.", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Hello world", "and good bye."));
}

TEST(ReadPageText, MeasuresLinesInPageSpace) {
    PageContentBuilder page;
    const double end = page.text(72, 100, "Measure", 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    const Line& line = text.lines[0];
    EXPECT_NEAR(line.box.left, 72, 0.01);
    EXPECT_NEAR(line.box.right, end, 0.01);
    EXPECT_NEAR(line.box.top, 92, 0.01);
    EXPECT_NEAR(line.box.bottom, 102, 0.01);
    EXPECT_NEAR(line.baseline, 100, 0.01);
    EXPECT_NEAR(line.fontSize, 10, 0.01);
}

TEST(ReadPageText, SeesPicturesAndRules) {
    PageContentBuilder page;
    page.picture({100, 100, 200, 180});
    page.horizontalRule(72, 500, 300, 1);
    const PageText text = read(page);
    ASSERT_EQ(text.figures.size(), 1u);
    EXPECT_EQ(text.figures[0].box, (Rect{100, 100, 200, 180}));
    ASSERT_EQ(text.rules.size(), 1u);
    EXPECT_EQ(text.rules[0].direction, RuleDirection::Horizontal);
    EXPECT_EQ(text.rules[0].position, 300);
}

TEST(ReadPageText, CopesWithAnEmptyPage) {
    const PageText text = read(PageContentBuilder());
    EXPECT_TRUE(text.lines.empty());
    EXPECT_FALSE(text.isScanned);
}

} // namespace
} // namespace orvane::layout
