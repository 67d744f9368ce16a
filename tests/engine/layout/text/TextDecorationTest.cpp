#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::UnderlineKind;
using pdf::tests::PageContentBuilder;
using tests::read;

const Look& lookOfWord(const PageText& text, std::size_t word) {
    return text.lines.at(0).words.at(word).spans.at(0).look;
}

/// "one two three" at 12 points with the edges of its second word.
struct ThreeWords {
    PageContentBuilder page;
    double left = 72 + PageContentBuilder::widthOf("one ", 12);
    double right = 72 + PageContentBuilder::widthOf("one two", 12);

    ThreeWords() { page.text(72, 100, "one two three", 12); }
};

TEST(TextDecoration, TakesARuleBelowAWordAsItsUnderline) {
    ThreeWords words;
    words.page.horizontalRule(words.left, words.right, 101.5, 0.6);
    const PageText text = read(words.page);
    EXPECT_EQ(lookOfWord(text, 0).underline, UnderlineKind::None);
    EXPECT_EQ(lookOfWord(text, 1).underline, UnderlineKind::Single);
    EXPECT_EQ(lookOfWord(text, 2).underline, UnderlineKind::None);
    EXPECT_TRUE(text.rules.at(0).isUsed);
}

TEST(TextDecoration, TakesADoubleRuleAsADoubleUnderline) {
    ThreeWords words;
    words.page.horizontalRule(words.left, words.right, 101.2, 0.4);
    words.page.horizontalRule(words.left, words.right, 102.4, 0.4);
    EXPECT_EQ(lookOfWord(read(words.page), 1).underline, UnderlineKind::Double);
}

TEST(TextDecoration, TakesADoubleRuleThickerThanASingleUnderlineMayBe) {
    ThreeWords words;
    words.page.horizontalRule(words.left, words.right, 101, 0.5);
    words.page.horizontalRule(words.left, words.right, 102.7, 0.5);
    EXPECT_EQ(lookOfWord(read(words.page), 1).underline, UnderlineKind::Double);

    ThreeWords thick;
    thick.page.horizontalRule(thick.left, thick.right, 101.85, 2.2);
    EXPECT_EQ(lookOfWord(read(thick.page), 1).underline, UnderlineKind::None);
}

TEST(TextDecoration, TakesARuleThroughAWordAsItsStrike) {
    ThreeWords words;
    words.page.horizontalRule(words.left, words.right, 97, 0.6);
    const PageText text = read(words.page);
    EXPECT_TRUE(lookOfWord(text, 1).isStruck);
    EXPECT_FALSE(lookOfWord(text, 0).isStruck);
    EXPECT_EQ(lookOfWord(text, 1).underline, UnderlineKind::None);
}

TEST(TextDecoration, TakesAGroundBehindAWordAsItsHighlight) {
    ThreeWords words;
    words.page.filledRectangle({words.left, 90, words.right, 103}, {255, 255, 0});
    const PageText text = read(words.page);
    EXPECT_FALSE(lookOfWord(text, 0).highlight);
    EXPECT_EQ(lookOfWord(text, 1).highlight, (Color{255, 255, 0}));
    EXPECT_TRUE(text.grounds.at(0).isUsed);
}

TEST(TextDecoration, LeavesAGroundThatIsMoreThanAHighlightAlone) {
    ThreeWords words;
    words.page.filledRectangle({60, 80, 400, 120}, {255, 255, 0});
    const PageText text = read(words.page);
    EXPECT_FALSE(lookOfWord(text, 1).highlight);
    EXPECT_FALSE(text.grounds.at(0).isUsed);
}

TEST(TextDecoration, LeavesBordersAndLinesToWriteOnAlone) {
    ThreeWords bordered;
    bordered.page.strokedRectangle({72, 88, 72 + PageContentBuilder::widthOf("one two three", 12), 102});
    EXPECT_EQ(lookOfWord(read(bordered.page), 0).underline, UnderlineKind::None);

    ThreeWords lined;
    lined.page.horizontalRule(72, 400, 102, 0.5);
    const PageText text = read(lined.page);
    EXPECT_EQ(lookOfWord(text, 0).underline, UnderlineKind::None);
    EXPECT_FALSE(text.rules.at(0).isUsed);
}

TEST(TextDecoration, GivesWordsTheirLink) {
    ThreeWords words;
    words.page.link({words.left, 90, words.right, 103}, "https://example.org/");
    const PageText text = read(words.page);
    EXPECT_EQ(lookOfWord(text, 0).link, -1);
    EXPECT_EQ(lookOfWord(text, 1).link, 0);
}

TEST(TextDecoration, GivesPartOfAWordItsLink) {
    PageContentBuilder page;
    page.text(72, 100, "(link)", 12);
    const double left = 72 + PageContentBuilder::widthOf("(", 12),
                 right = 72 + PageContentBuilder::widthOf("(link", 12);
    page.link({left, 90, right, 103}, "https://example.org/");
    const PageText text = read(page);
    ASSERT_EQ(text.lines.at(0).words.size(), 1u);
    ASSERT_EQ(text.lines[0].words[0].spans.size(), 3u);
    EXPECT_EQ(text.lines[0].words[0].spans[1].text, "link");
    EXPECT_EQ(text.lines[0].words[0].spans[1].look.link, 0);
}

} // namespace
} // namespace orvane::layout
