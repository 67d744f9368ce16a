#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using testing::IsEmpty;
using testing::SizeIs;
using tests::read;

TEST(FigureFinder, ShowsAPictureAsItStands) {
    PageContentBuilder page;
    page.picture({100, 100, 300, 250});
    const std::vector<Figure> figures = read(page).figures;
    ASSERT_THAT(figures, SizeIs(1));
    EXPECT_EQ(figures[0].box, (Rect{100, 100, 300, 250}));
    EXPECT_EQ(figures[0].picture.value, 1u);
    EXPECT_FALSE(figures[0].needsPainting);
    EXPECT_FALSE(figures[0].isBackground);
    EXPECT_EQ(figures[0].crop, document::Crop{});
}

TEST(FigureFinder, CropsAPictureToItsClip) {
    PageContentBuilder page;
    page.picture({100, 100, 300, 300}).clip = {150, 100, 300, 200};
    const std::vector<Figure> figures = read(page).figures;
    ASSERT_THAT(figures, SizeIs(1));
    EXPECT_EQ(figures[0].box, (Rect{150, 100, 300, 200}));
    EXPECT_EQ(figures[0].crop, (document::Crop{0.25, 0, 0, 0.5}));
}

TEST(FigureFinder, JoinsTheStripsOfAPicture) {
    PageContentBuilder page;
    for (int i = 0; i < 6; ++i)
        page.picture({100, 100.0 + i * 20, 300, 120.0 + i * 20});
    page.picture({400, 100, 500, 200});
    const std::vector<Figure> figures = read(page).figures;
    ASSERT_THAT(figures, SizeIs(2));
    EXPECT_EQ(figures[0].box, (Rect{100, 100, 300, 220}));
    EXPECT_TRUE(figures[0].needsPainting);
    EXPECT_FALSE(figures[1].needsPainting);
}

TEST(FigureFinder, PaintsAPictureWithWhatIsDrawnOverIt) {
    PageContentBuilder page;
    page.picture({100, 100, 300, 250});
    page.disk({200, 180}, 20);
    page.content().paths.back().paintOrder = 1;
    const std::vector<Figure> figures = read(page).figures;
    ASSERT_THAT(figures, SizeIs(1));
    EXPECT_EQ(figures[0].box, (Rect{100, 100, 300, 250}));
    EXPECT_TRUE(figures[0].needsPainting) << "shapes would leave the picture out";
    EXPECT_FALSE(figures[0].drawing);

    page.picture({302, 110, 312, 120});
    page.disk({285, 130}, 30);
    EXPECT_THAT(read(page).figures, SizeIs(1)) << "another disk lies over both pictures";
}

TEST(FigureFinder, PaintsAPatternThatNobodyWritesOn) {
    PageContentBuilder page;
    page.filledRectangle({100, 100, 300, 250}, {200, 100, 100});
    page.content().paths.back().fill->isPattern = true;
    ASSERT_THAT(read(page).figures, SizeIs(1));
    EXPECT_TRUE(read(page).figures[0].needsPainting);
    page.text(120, 180, "words", 12);
    const PageText written = read(page);
    EXPECT_THAT(written.figures, IsEmpty());
    EXPECT_THAT(written.grounds, SizeIs(1)) << "the ground of words has one colour";
}

TEST(FigureFinder, LeavesSpacersOut) {
    PageContentBuilder page;
    page.picture({100, 100, 101, 101});
    pdf::Picture& pixel = page.picture({100, 200, 300, 201});
    pixel.pixelWidth = pixel.pixelHeight = 1;
    EXPECT_THAT(read(page).figures, IsEmpty());
}

TEST(FigureFinder, MarksWhatLiesBehindThePageOrItsText) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    EXPECT_TRUE(read(page).figures.at(0).isBackground);

    PageContentBuilder poster;
    poster.picture({60, 60, 400, 300});
    poster.text(72, 100, "Running text that was set on top of a picture says more than labels do", 10);
    EXPECT_TRUE(read(poster).figures.at(0).isBackground);
}

// A faint mark in the middle of the page, which the entries of a table of contents run over.
TEST(FigureFinder, KnowsABackgroundByTheLinesThatRunOverItsSides) {
    PageContentBuilder page;
    page.line({200, 150}, {300, 200});
    page.line({300, 200}, {250, 320});
    page.line({250, 320}, {200, 150});
    for (int i = 0; i < 6; ++i)
        page.text(120, 160 + 20.0 * i, "Contents of this chapter and more", 16);
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_TRUE(text.figures[0].isBackground);
    EXPECT_THAT(text.lines, SizeIs(6));
}

// A gradient of bands, each painted down to the foot of all: what lies on it belongs to the text there, but not they.
TEST(FigureFinder, UsesUpTheGroundsThatABackgroundIsMadeOf) {
    PageContentBuilder page;
    for (int i = 0; i < 32; ++i) {
        const auto shade = static_cast<std::uint8_t>(220 - 2 * i);
        page.filledRectangle({72, 72 + 20.0 * i, 567, 712}, {shade, shade, 240});
    }
    page.filledRectangle({278, 20, 504, 257}, {68, 84, 106});
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_TRUE(text.figures[0].isBackground);
    for (const Ground& ground : text.grounds)
        EXPECT_EQ(ground.isUsed, ground.box.left < 200) << "but the box over it";
}

// The labels below the axis stand in one line but say nothing together.
TEST(FigureFinder, TakesTheLabelsOfAnAxisForNoText) {
    PageContentBuilder page;
    for (int i = 0; i < 24; ++i)
        page.line({60.0 + i * 18, 200.0 - i}, {78.0 + i * 18, 199.0 - i});
    page.horizontalRule(55, 500, 210);
    page.verticalRule(55, 120, 230);
    for (int i = 0; i < 9; ++i)
        page.text(60.0 + i * 50, 220, "Jan " + std::to_string(i), 6);
    page.horizontalRule(55, 500, 230);
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_FALSE(text.figures[0].isBackground);
}

/// A framed chart whose curves lie far apart, with numbers along two sides and names around it.
void paintChart(PageContentBuilder& page, double left) {
    page.horizontalRule(left, left + 200, 200);
    page.horizontalRule(left, left + 200, 350);
    page.verticalRule(left, 200, 350);
    page.verticalRule(left + 200, 200, 350);
    for (const double top : {215.0, 320.0})
        for (int i = 0; i < 6; ++i)
            page.line({left + 20 + i * 25.0, top + i % 2}, {left + 45 + i * 25.0, top + (i + 1) % 2 + 12});
    for (int i = 0; i < 4; ++i)
        page.text(left - 12, 203.0 + i * 49, std::to_string(3 - i), 6);
    for (int i = 0; i < 5; ++i)
        page.text(left + i * 50.0 - 4, 357, std::to_string(i * 100), 6);
    page.text(left + 75, 370, "Number of tasks", 6);
    page.text(left + 80, 194, "Weakly parallel", 6);
}

TEST(FigureFinder, MakesOneDrawingOfAChartWithItsScales) {
    PageContentBuilder page;
    paintChart(page, 80);
    paintChart(page, 330);
    page.text(72, 400, "Figure 1: What the two of them took, in letters of the text", 10);
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(2));
    for (const Figure& figure : text.figures) {
        std::size_t words = 0;
        for (const Line& label : figure.labels)
            words += label.words.size();
        EXPECT_EQ(words, 4u + 5u + 3u + 2u) << "numbers at the side and below, what they count, and the title";
    }
    ASSERT_THAT(text.lines, SizeIs(1)) << "the caption stays text";
}

TEST(FigureFinder, MakesOneDrawingOfChartsWhoseLabelsRunOn) {
    PageContentBuilder page;
    paintChart(page, 80);
    paintChart(page, 330);
    for (int i = 0; i < 16; ++i)
        page.text(285 + i * 16.0, 352, "Jan", 6, {.angle = 270});
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1)) << "or the second would be seen twice";
    EXPECT_GE(text.figures[0].box.right, 530);
}

TEST(FigureFinder, KeepsThePointsOfAChart) {
    PageContentBuilder page;
    page.horizontalRule(100, 300, 200);
    page.horizontalRule(100, 300, 350);
    page.verticalRule(100, 200, 350);
    page.verticalRule(300, 200, 350);
    for (int i = 0; i < 4; ++i) {
        page.disk({130 + i * 40.0, 330 - i * 30.0}, 3);
        page.text(88, 203.0 + i * 49, std::to_string(3 - i), 6);
        page.text(100 + i * 60.0, 360, std::to_string(i), 6);
    }
    page.disk({500, 700}, 3); // no chart around it
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_THAT(text.figures[0].paths, SizeIs(testing::Ge(4u)));
    EXPECT_LE(text.figures[0].box.right, 310);
}

TEST(FigureFinder, LeavesTheTextBesideADrawingThatIsNoChart) {
    PageContentBuilder page;
    for (int i = 0; i < 6; ++i)
        page.line({100 + i * 25.0, 200.0 + i % 2 * 60}, {125 + i * 25.0, 200.0 + (i + 1) % 2 * 60});
    page.text(150, 275, "Our house", 8);
    page.text(72, 230, "7", 8);
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_THAT(text.figures[0].labels, IsEmpty()) << "one number makes no scale";
    EXPECT_THAT(text.lines, SizeIs(2));
}

TEST(FigureFinder, MakesAChartOfBarsADrawing) {
    PageContentBuilder page;
    const Color blue{20, 40, 200};
    for (int i = 0; i < 5; ++i)
        page.filledRectangle({100.0 + i * 30, 200.0 - i * 17, 115.0 + i * 30, 250}, blue);
    page.horizontalRule(90, 260, 250);
    page.horizontalRule(90, 260, 200);
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_TRUE(text.figures[0].drawing);
    EXPECT_NEAR(text.figures[0].box.left, 90, 0.5);
}

TEST(FigureFinder, TakesShadedCellsForNoBars) {
    PageContentBuilder page;
    const Color grey{220, 220, 220};
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            page.filledRectangle({100.0 + column * 60, 100.0 + row * 20, 160.0 + column * 60, 120.0 + row * 20}, grey);
    EXPECT_THAT(read(page).figures, SizeIs(0));
}

TEST(FigureFinder, MakesOneDrawingOfShapesThatLinesConnect) {
    PageContentBuilder page;
    page.disk({120, 120}, 20);
    page.disk({120, 300}, 20);
    page.verticalRule(120, 140, 280);
    page.disk({400, 500}, 10);
    EXPECT_THAT(read(page).figures, SizeIs(2));
}

TEST(FigureFinder, MakesOneDrawingOfShapesThatStandTogether) {
    PageContentBuilder page;
    page.disk({120, 120}, 20);
    page.disk({150, 130}, 20);
    page.line({110, 150}, {180, 90});
    page.disk({400, 500}, 10);
    const std::vector<Figure> figures = read(page).figures;
    ASSERT_THAT(figures, SizeIs(2));
    EXPECT_FALSE(figures[0].needsPainting) << "three shapes are easily told one by one";
    EXPECT_THAT(figures[0].paths, SizeIs(3));
    EXPECT_NEAR(figures[0].box.left, 100, 0.5);
    EXPECT_NEAR(figures[0].box.right, 180, 0.5);
}

TEST(FigureFinder, TakesTheAxesOfAChartIntoItsDrawing) {
    PageContentBuilder page;
    for (int i = 0; i < 8; ++i)
        page.line({110.0 + i * 20, 200.0 - i * i}, {130.0 + i * 20, 200.0 - (i + 1) * (i + 1)});
    page.horizontalRule(105, 290, 210);
    page.verticalRule(105, 120, 210);
    page.text(150, 180, "growth", 8);
    const PageText text = read(page);
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_NEAR(text.figures[0].box.left, 105, 0.5);
    EXPECT_NEAR(text.figures[0].box.bottom, 210, 0.5);
    EXPECT_EQ(text.figures[0].alternateText, "growth");
    for (const Rule& rule : text.rules)
        EXPECT_TRUE(rule.isUsed) << "an axis is no border of a table";
    EXPECT_THAT(text.lines, IsEmpty());
    EXPECT_THAT(text.figures[0].labels, SizeIs(1));
}

TEST(FigureFinder, PaintsLabelsOnlyWhereNobodyKnowsWhatTheySay) {
    PageContentBuilder page;
    page.disk({120, 120}, 40);
    page.text(105, 124, "inlet", 10);
    EXPECT_FALSE(read(page).figures.at(0).showsLabels);
    page.glyph(110, 136, U"", 6, 10);
    EXPECT_TRUE(read(page).figures.at(0).showsLabels);
}

TEST(FigureFinder, TakesTablesAndSeparatorsForNoDrawings) {
    PageContentBuilder page;
    page.strokedRectangle({72, 100, 300, 200});
    page.horizontalRule(72, 300, 150);
    page.verticalRule(180, 100, 200);
    page.horizontalRule(72, 500, 400, 1);
    page.filledRectangle({72, 450, 300, 480}, {220, 220, 220});
    EXPECT_THAT(read(page).figures, IsEmpty());
}

} // namespace
} // namespace orvane::layout
