#include "layout/text/GlyphFilter.h"

#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::Visibility;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::linesOf;
using tests::read;

TEST(GlyphFilter, LeavesOutWhatIsNotSeen) {
    for (const Visibility visibility :
         {Visibility::OffPage, Visibility::ClippedAway, Visibility::HiddenLayer, Visibility::Invisible}) {
        PageContentBuilder page;
        page.text(72, 100, "not seen", 10, {.visibility = visibility});
        EXPECT_THAT(linesOf(page), IsEmpty());
    }
}

TEST(GlyphFilter, KeepsWhatIsClippedAwayBesideTheText) {
    PageContentBuilder page;
    page.text(72, 100, "the start ", 10);
    page.text(122, 100, "and the end", 10, {.visibility = Visibility::ClippedAway});
    page.text(300, 100, "beyond", 10, {.visibility = Visibility::OffPage});
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_EQ(textOf(text.lines[0]), "the start");
    ASSERT_EQ(text.clippedLines.size(), 1u);
    EXPECT_EQ(textOf(text.clippedLines[0]), "and the end");
    EXPECT_TRUE(text.clippedLines[0].words[0].spans[0].look.isClippedAway);
}

TEST(GlyphFilter, LeavesOutWhatIsSeenInAnotherStrip) {
    PageContentBuilder page;
    page.text(72, 100, "in strips", 10, {.visibility = Visibility::ClippedAway});
    page.text(72, 100, "in strips", 10);
    page.text(72, 300, "never seen", 10, {.visibility = Visibility::ClippedAway});
    page.text(72, 300, "never seen", 10, {.visibility = Visibility::ClippedAway});
    const PageText text = read(page);
    ASSERT_EQ(text.clippedLines.size(), 1u);
    EXPECT_EQ(textOf(text.clippedLines[0]), "never seen");
}

TEST(GlyphFilter, TakesTheRecognisedTextOfAScannedPage) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    page.text(72, 100, "recognised words", 10, {.visibility = Visibility::Invisible});
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_TRUE(text.lines[0].words[0].spans[0].look.isInvisible);
    EXPECT_TRUE(text.isScanned);
}

TEST(GlyphFilter, TakesTextUnderALaterPictureAsRecognised) {
    PageContentBuilder page;
    page.text(72, 100, "recognised words", 10, {.color = {255, 255, 255}});
    page.picture({0, 0, 595, 842}).isOpaque = true;
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_TRUE(text.lines[0].words[0].spans[0].look.isInvisible);
    EXPECT_EQ(text.lines[0].words[0].spans[0].look.color, kBlack) << "nobody has seen its colour";
    EXPECT_TRUE(text.isScanned);
}

TEST(GlyphFilter, TakesTextOverAPictureOrUnderAVeilAsSeen) {
    PageContentBuilder over;
    over.picture({0, 0, 595, 842}).isOpaque = true;
    over.text(72, 100, "on a photograph", 10);
    EXPECT_FALSE(read(over).isScanned);

    PageContentBuilder under;
    under.text(72, 100, "under a watermark", 10);
    under.picture({0, 0, 595, 842}).isOpaque = false;
    EXPECT_FALSE(read(under).isScanned);
}

TEST(GlyphFilter, TakesAStampedScanAsScanned) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    for (int line = 0; line < 10; ++line)
        page.text(72, 100 + 14 * line, "a line of recognised words", 10, {.visibility = Visibility::Invisible});
    page.text(72, 800, "Received 3 May", 10);
    EXPECT_TRUE(read(page).isScanned);
}

TEST(GlyphFilter, TakesTextOnceWhereItIsVisibleAsWell) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    page.text(72, 100, "written twice", 10);
    page.text(72, 100.8, "written twice", 10, {.visibility = Visibility::Invisible});
    EXPECT_THAT(linesOf(page), ElementsAre("written twice"));
    EXPECT_FALSE(read(page).isScanned);
}

TEST(GlyphFilter, TakesAShadowAndItsTextAsOne) {
    PageContentBuilder page;
    page.text(73, 101, "Shadow", 12, {.color = {128, 128, 128}});
    page.text(72, 100, "Shadow", 12, {.color = {0, 0, 255}});
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_EQ(textOf(text.lines[0]), "Shadow");
    EXPECT_EQ(text.lines[0].words[0].spans[0].look.color, (Color{0, 0, 255})) << "the text lies on top of its shadow";
}

TEST(GlyphFilter, TakesLettersFilledLikeThePaperByTheirEdges) {
    const Color blue{0, 0, 255};
    const Color yellow{255, 255, 0};
    PageContentBuilder page;
    page.filledRectangle({60, 180, 300, 220}, blue);
    page.text(72, 100, "outlined", 12, {.color = kWhite, .edge = blue});
    page.text(200, 100.8, "raised", 12, {.color = kBlack});
    page.text(200.8, 100, "raised", 12, {.color = kWhite});
    page.text(72, 200, "white on blue", 12, {.color = kWhite, .edge = kBlack});
    page.text(72, 300, "yellow", 12, {.color = yellow, .edge = kBlack});
    page.text(200, 300, "nowhere", 12, {.color = kWhite, .edge = Color{250, 250, 250}});
    const auto looks = [&](std::size_t line, std::size_t word) {
        const Look& look = read(page).lines.at(line).words.at(word).spans.at(0).look;
        return std::pair(look.color, look.isOutlined);
    };
    EXPECT_EQ(looks(0, 0), std::pair(blue, true)) << "white within its outline";
    EXPECT_EQ(looks(0, 1), std::pair(kBlack, true)) << "white over the same text in black, a little aside";
    EXPECT_EQ(looks(1, 0), std::pair(kWhite, false)) << "white is seen on a ground";
    EXPECT_EQ(looks(2, 0), std::pair(yellow, false)) << "yellow is seen on white";
    EXPECT_EQ(looks(2, 1), std::pair(kWhite, false)) << "an edge like the paper shows nothing";
}

TEST(GlyphFilter, TakesTextPaintedTwiceWithASmallOffsetAsBold) {
    PageContentBuilder page;
    page.text(72, 100, "Bold by painting", 12);
    page.text(72.4, 100, "Bold by painting", 12);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_EQ(textOf(text.lines[0]), "Bold by painting");
    EXPECT_TRUE(text.lines[0].words[0].spans[0].look.isBold);
}

TEST(GlyphFilter, TakesTextPaintedTwiceAtOnePlaceAsItIs) {
    PageContentBuilder page;
    page.text(72, 100, "Painted twice", 12);
    page.text(72, 100, "Painted twice", 12);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_FALSE(text.lines[0].words[0].spans[0].look.isBold);
}

TEST(GlyphFilter, KeepsEqualNarrowLettersSideBySide) {
    PageContentBuilder page;
    page.text(72, 100, "lilli... iii", 6);
    EXPECT_THAT(linesOf(page), ElementsAre("lilli... iii"));
}

} // namespace
} // namespace orvane::layout
