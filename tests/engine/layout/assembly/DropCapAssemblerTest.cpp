#include "layout/assembly/DropCapAssembler.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

/// Three lines of 10 points, 12 apart, beside a letter 36 points high.
ParagraphDraft capParagraph(const std::string& first) {
    Line line = tests::makeLine(first, 72, 100);
    Span& word = line.words.front().spans.front();
    Span cap = word;
    cap.text = "O";
    cap.look.size = 36;
    cap.baseline = 124;
    cap.box = {72, 95, 98, 131};
    if (word.text == "O") {
        word = cap;
    } else {
        word.text.erase(0, 1);
        word.box.left = 100;
        line.words.front().spans.insert(line.words.front().spans.begin(), cap);
    }
    line.dropCapLines = 3;
    ParagraphDraft paragraph = tests::makeParagraph(
        {line, tests::makeLine("beside it, and then", 100, 112), tests::makeLine("a third line", 100, 124)});
    paragraph.indentStart = paragraph.firstLine = 0;
    paragraph.dropCap = document::DropCapKind::Dropped;
    return paragraph;
}

document::Paragraph assembled(const std::string& first) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(tests::makeBlock(capParagraph(first)));
    return tests::paragraphAt(tests::documentOf(draft), 0);
}

TEST(DropCapAssembler, StandsOverLinesWithItsLettersOnTheLastOfThem) {
    const document::Paragraph paragraph = assembled("Once upon a time");
    ASSERT_TRUE(paragraph.dropCap);
    EXPECT_EQ(paragraph.dropCap->lines, 3);
    EXPECT_EQ(paragraph.dropCap->height, twipsFromPoints(36));
    EXPECT_EQ(paragraph.dropCap->distance, twipsFromPoints(2));
    const auto& cap = std::get<document::Text>(paragraph.inlines.at(0).value);
    EXPECT_EQ(cap.text, "O");
    // A line 36 points high has its baseline 28.8 points below its top; it is to stand two lines below the first.
    EXPECT_LT(cap.properties.raise, twipsFromPoints(28.8 - 24 - 9));
    EXPECT_GT(cap.properties.raise, twipsFromPoints(28.8 - 24 - 12));
    EXPECT_EQ(std::get<document::Text>(paragraph.inlines.at(1).value).text.substr(0, 9), "nce upon ");
}

TEST(DropCapAssembler, LeavesTheBlankBehindAWordOfOneLetterToTheText) {
    const document::Paragraph paragraph = assembled("O sole mio");
    ASSERT_TRUE(paragraph.dropCap);
    EXPECT_EQ(std::get<document::Text>(paragraph.inlines.at(0).value).text, "O");
    EXPECT_EQ(std::get<document::Text>(paragraph.inlines.at(1).value).text.substr(0, 5), " sole");
}

TEST(DropCapAssembler, LeavesTheHeightOfTheFirstLineAlone) {
    const document::LineSpacing spacing = assembled("Once upon a time").properties.lineSpacing;
    EXPECT_EQ(spacing.rule, document::LineSpacingRule::Multiple);
    EXPECT_NEAR(spacing.multiple, 1, 0.05) << "12 points are what the font's lines take";
}

} // namespace
} // namespace orvane::layout
