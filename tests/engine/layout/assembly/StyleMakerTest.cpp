#include "layout/assembly/StyleMaker.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::documentOf;
using tests::draftOfLines;
using tests::kColumn;
using tests::makeBlock;
using tests::makeLine;
using tests::makeParagraph;
using tests::makePictureBlock;
using tests::paragraphAt;
using tests::styleOf;

TEST(StyleMaker, MakesNormalOfMostText) {
    const auto document = documentOf(
        draftOfLines({{"Short", 100, {.size = 20}}, {"much more text than that", 130}, {"and even more of it", 150}}));
    ASSERT_EQ(document.styles.size(), 1u);
    EXPECT_EQ(document.styles[0].id, "Normal");
    EXPECT_EQ(document.styles[0].run.size, HalfPoints(20));
    EXPECT_EQ(document.styles[0].run.fontFamily, "Calibri");
}

TEST(StyleMaker, GivesHeadingsTheirBuiltInStyles) {
    DocumentDraft draft = draftOfLines({{"Chapter", 100, {.size = 16, .isBold = true}}, {"text of it", 130}});
    draft.blocks[0].paragraph()->role = ParagraphRole::Heading;
    draft.blocks[0].paragraph()->level = 1;
    const auto document = documentOf(draft);
    const document::Style& heading = styleOf(document, "Heading1");
    EXPECT_EQ(heading.name, "heading 1");
    EXPECT_EQ(heading.basedOn, "Normal");
    EXPECT_EQ(heading.next, "Normal");
    EXPECT_TRUE(heading.run.isBold);
    EXPECT_EQ(heading.run.size, HalfPoints(32));
    EXPECT_EQ(heading.paragraph.outlineLevel, 1);
    EXPECT_TRUE(heading.paragraph.keepWithNext);
    EXPECT_EQ(paragraphAt(document, 0).style, "Heading1");
}

/// A justified text of two lines, which end long before their column.
DraftBlock justifiedText(double baseline) {
    ParagraphDraft text = makeParagraph({makeLine("one two", 72, baseline), makeLine("three", 72, baseline + 12.2)});
    text.alignment = document::Alignment::Justified;
    return makeBlock(text);
}

DocumentDraft draftWithJustifiedText() {
    DocumentDraft draft = draftOfLines({{"A last line", 200}});
    draft.blocks.insert(draft.blocks.begin(), justifiedText(100));
    return draft;
}

TEST(StyleMaker, TakesSingleLinesForJustifiedWhereTheRestIs) {
    const auto document = documentOf(draftWithJustifiedText());
    EXPECT_EQ(document.styles[0].paragraph.alignment, document::Alignment::Justified);
    EXPECT_EQ(paragraphAt(document, 1).properties.alignment, document::Alignment::Justified);
}

TEST(StyleMaker, KeepsAlignmentsThatAreSeen) {
    DocumentDraft draft = draftWithJustifiedText();
    draft.blocks[1].paragraph()->pieces[0].text.alignment = document::Alignment::Center;
    EXPECT_EQ(paragraphAt(documentOf(draft), 1).properties.alignment, document::Alignment::Center);
}

TEST(StyleMaker, KeepsTheIndentThatATabulatorGoesTo) {
    const auto formatWith = [](Gap gap) {
        DocumentDraft draft = draftOfLines({{"A line of the text", 200}, {"Another line of it", 230}});
        ParagraphDraft entry = makeParagraph({makeLine("2.1 Title", 72, 260)});
        entry.lines[0].words[1].gapBefore = gap;
        entry.indentStart = 30;
        entry.firstLine = -30;
        draft.blocks.push_back(makeBlock(entry));
        return paragraphAt(documentOf(draft), 2).properties;
    };
    EXPECT_EQ(formatWith(Gap::Tab).firstLine, twipsFromPoints(-30));
    EXPECT_EQ(formatWith(Gap::Space).firstLine, Twips(0));
}

TEST(StyleMaker, GivesSingleLinesTheLineSpacingOfTheRest) {
    DocumentDraft draft = draftOfLines({{"A last line", 200}});
    draft.blocks.insert(draft.blocks.begin(),
                        makeBlock(makeParagraph({makeLine("one two", 72, 100), makeLine("three", 72, 118.31)})));
    const auto document = documentOf(draft);
    EXPECT_DOUBLE_EQ(document.styles[0].paragraph.lineSpacing.multiple, 1.5);
    EXPECT_DOUBLE_EQ(paragraphAt(document, 1).properties.lineSpacing.multiple, 1.5);
}

TEST(StyleMaker, TakesNoHeightThatCutsItsLetters) {
    DocumentDraft draft =
        draftOfLines({{"A line of the text", 200}, {"Another line of it", 230}, {"A third one", 260}});
    draft.blocks.push_back(
        makeBlock(makeParagraph({makeLine("m", 72, 300, {.size = 6}), makeLine("n", 72, 305, {.size = 6})})));
    const auto document = documentOf(draft);
    EXPECT_EQ(document.styles[0].paragraph.lineSpacing.rule, document::LineSpacingRule::Multiple);
    EXPECT_EQ(paragraphAt(document, 3).properties.lineSpacing.rule, document::LineSpacingRule::Exact);
}

TEST(StyleMaker, SetsRunningHeadsInSingleSpacing) {
    DocumentDraft draft = draftOfLines({});
    draft.blocks.push_back(
        makeBlock(makeParagraph({makeLine("one", 72, 100), makeLine("two", 72, 118.3), makeLine("three", 72, 136.6)})));
    DraftSection& section = draft.sections.emplace_back();
    section.footer.standard = {makeBlock(makeParagraph({makeLine("1", 72, 800)}))};
    const auto document = documentOf(draft);
    EXPECT_DOUBLE_EQ(styleOf(document, "Normal").paragraph.lineSpacing.multiple, 1.5);
    EXPECT_DOUBLE_EQ(styleOf(document, "Footer").paragraph.lineSpacing.multiple, 1);
}

TEST(StyleMaker, LeavesPicturesTheirHeight) {
    DocumentDraft draft = draftOfLines({});
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("one two", 72, 100), makeLine("three", 72, 109.7)})));
    draft.blocks.push_back(makePictureBlock({72, 120, 272, 220}));
    const auto document = documentOf(draft);
    EXPECT_EQ(document.styles[0].paragraph.lineSpacing.rule, document::LineSpacingRule::Exact);
    EXPECT_EQ(paragraphAt(document, 1).properties.lineSpacing, document::LineSpacing{})
        << "closer spacing would cut the picture";
}

TEST(StyleMaker, LeavesALineBeyondTheEdgeItsRoom) {
    DocumentDraft draft = draftOfLines({{"one", 100}, {"two", 120}, {"three", 140}});
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("a remark in the margin", kColumn.right + 10, 160)})));
    const auto document = documentOf(draft);
    EXPECT_LT(paragraphAt(document, 3).properties.indentEnd, Twips(0)) << "it would break after each letter";
    EXPECT_EQ(paragraphAt(document, 2).properties.indentEnd, Twips(0));
}

TEST(StyleMaker, LeavesALineTheRoomThatTheRestDoesNotTake) {
    DocumentDraft draft =
        draftOfLines({{"short", 200}, {"a line that takes nearly all of the room in its column", 220}});
    Line& full = draft.blocks[1].paragraph()->pieces[0].text.lines[0];
    full.box.right = kColumn.right - 30;
    draft.blocks.insert(draft.blocks.begin(), justifiedText(100));
    const auto document = documentOf(draft);
    const Twips usual = document.styles[0].paragraph.indentEnd;
    ASSERT_GT(usual, twipsFromPoints(100));
    EXPECT_EQ(paragraphAt(document, 1).properties.indentEnd, usual);
    EXPECT_EQ(paragraphAt(document, 2).properties.indentEnd, Twips(0)) << "it would break";
}

TEST(StyleMaker, KeepsTheEndsOfLinesThatAreSetToTheEnd) {
    DocumentDraft draft = draftOfLines({{"1.00", 100}, {"2.00", 120}, {"3.00", 140}});
    for (std::size_t i = 0; i < 3; ++i) {
        ParagraphDraft& number = draft.blocks[i].paragraph()->pieces[0].text;
        number.alignment = document::Alignment::End;
        number.shadedSpan = ColumnSpan{kColumn.left, kColumn.right - (i == 2 ? 60 : 20)};
    }
    const auto document = documentOf(draft);
    ASSERT_EQ(document.styles[0].paragraph.indentEnd, twipsFromPoints(20));
    EXPECT_EQ(paragraphAt(document, 2).properties.indentEnd, twipsFromPoints(60));
}

TEST(StyleMaker, TakesNoIndentsFromTextThatIsAlignedOtherwise) {
    DocumentDraft draft = draftOfLines({{"North", 200}, {"South", 220}, {"East", 240}});
    for (DraftBlock& block : draft.blocks)
        block.paragraph()->pieces[0].text.alignment = document::Alignment::Center;
    draft.blocks.push_back(justifiedText(260));
    const auto document = documentOf(draft);
    ASSERT_EQ(document.styles[0].paragraph.alignment, document::Alignment::Center);
    EXPECT_EQ(document.styles[0].paragraph.indentEnd, Twips(0));
    EXPECT_GT(paragraphAt(document, 3).properties.indentEnd, twipsFromPoints(100));
}

TEST(StyleMaker, TakesTheIndentsOfLinesWhereLongerParagraphsAreFew) {
    const auto usualIndent = [](std::size_t lines) {
        DocumentDraft draft = draftOfLines({});
        for (std::size_t i = 0; i < lines; ++i)
            draft.blocks.push_back(makeBlock(makeParagraph({makeLine("text", 72, 100 + 20 * static_cast<double>(i))})));
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine("one two", 132, 400), makeLine("three", 132, 412.2)})));
        return pointsFromTwips(documentOf(draft).styles[0].paragraph.indentStart);
    };
    EXPECT_NEAR(usualIndent(2), 60, 0.01);
    EXPECT_NEAR(usualIndent(6), 0, 0.01);
}

TEST(StyleMaker, OverlooksSmallDifferencesOfIndents) {
    DocumentDraft draft = draftOfLines({});
    for (const double left : {90.0, 90.3, 89.8, 108.0})
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("text", left, 100 + left)})));
    const auto document = documentOf(draft);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(paragraphAt(document, i).properties.indentStart, document.styles[0].paragraph.indentStart) << i;
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 3).properties.indentStart), 36, 0.01);
}

} // namespace
} // namespace orvane::layout
