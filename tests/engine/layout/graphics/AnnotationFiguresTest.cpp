#include "layout/graphics/AnnotationFigures.h"

#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::AnnotationKind;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A page with one line of text, its baseline at 100.
PageContentBuilder pageWithText() {
    PageContentBuilder page;
    page.text(72, 100, "What the page says by itself", 10);
    return page;
}

std::vector<std::string> textsOf(const std::vector<Line>& lines) {
    std::vector<std::string> texts;
    for (const Line& line : lines)
        texts.push_back(textOf(line));
    return texts;
}

TEST(AnnotationFigures, OfTypedTextOverTextStandInFrontOfIt) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.text(90, 103, "Wrong", 14);
    page.annotation(AnnotationKind::FreeText, from, "Wrong");
    const PageText text = tests::read(page);
    EXPECT_THAT(textsOf(text.lines), ElementsAre("What the page says by itself")) << "as if nothing lay on it";
    ASSERT_THAT(text.figures, SizeIs(1));
    const Figure& figure = text.figures.front();
    EXPECT_TRUE(figure.isForeground);
    EXPECT_THAT(textsOf(figure.labels), ElementsAre("Wrong")) << "it stays text";
    EXPECT_FALSE(figure.showsLabels);
    EXPECT_FALSE(figure.needsPainting);
}

TEST(AnnotationFigures, LeaveWhatWasFilledInWithThePage) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.text(300, 100, "Jane", 10);
    page.annotation(AnnotationKind::FreeText, from, "Jane");
    const PageText text = tests::read(page);
    EXPECT_THAT(text.figures, IsEmpty());
    std::string all;
    for (const std::string& line : textsOf(text.lines))
        all += line;
    EXPECT_THAT(all, testing::HasSubstr("Jane"));
}

TEST(AnnotationFigures, LeaveWhatWasTypedOnALineOfDotsWithThePage) {
    PageContentBuilder page;
    page.text(72, 100, "Name ..................................", 10);
    const std::uint32_t from = page.paintOrder();
    page.text(110, 99, "Jane", 10);
    page.annotation(AnnotationKind::FreeText, from, "Jane");
    EXPECT_THAT(tests::read(page).figures, IsEmpty());
}

TEST(AnnotationFigures, OfInkAreShapes) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.line({80, 105}, {200, 88}, 2, {255, 0, 0});
    page.annotation(AnnotationKind::Ink, from);
    const PageText text = tests::read(page);
    EXPECT_THAT(text.lines, SizeIs(1));
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_TRUE(text.figures.front().isForeground);
    ASSERT_TRUE(text.figures.front().drawing);
    EXPECT_THAT(text.figures.front().drawing->shapes, SizeIs(1));
}

TEST(AnnotationFigures, OfStampsThatAreNoShapesArePaintedAlone) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.picture({80, 85, 200, 125});
    page.text(90, 104, "PAID", 20);
    page.annotation(AnnotationKind::Stamp, from, "Paid");
    const PageText text = tests::read(page);
    EXPECT_THAT(textsOf(text.lines), ElementsAre("What the page says by itself"));
    ASSERT_THAT(text.figures, SizeIs(1));
    const Figure& stamp = text.figures.front();
    EXPECT_TRUE(stamp.needsPainting);
    EXPECT_EQ(stamp.annotation, 0u);
    EXPECT_TRUE(stamp.showsLabels) << "its words are part of the picture";
    EXPECT_EQ(stamp.alternateText, "Paid");
    EXPECT_EQ(stamp.box.left, 80);
    EXPECT_EQ(stamp.box.bottom, 125);
}

TEST(AnnotationFigures, OfTurnedStampsArePaintedWithTheirWords) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.line({80, 105}, {200, 88}, 2);
    page.text(90, 104, "PAID", 20, {.angle = -10});
    page.annotation(AnnotationKind::Stamp, from, "Paid");
    const PageText text = tests::read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_TRUE(text.figures.front().needsPainting);
    EXPECT_TRUE(text.figures.front().showsLabels);
}

TEST(AnnotationFigures, LeaveFramesAroundTextWithThePage) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.strokedRectangle({70, 88, 250, 105});
    page.annotation(AnnotationKind::Shape, from);
    for (const Figure& figure : tests::read(page).figures)
        EXPECT_FALSE(figure.isForeground);
}

TEST(AnnotationFigures, OfDrawnShapesOverTextStandInFrontOfIt) {
    PageContentBuilder page = pageWithText();
    const std::uint32_t from = page.paintOrder();
    page.disk({120, 97}, 15);
    page.annotation(AnnotationKind::Shape, from);
    const PageText text = tests::read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_TRUE(text.figures.front().isForeground);
}

} // namespace
} // namespace orvane::layout
