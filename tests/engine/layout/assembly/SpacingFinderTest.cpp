#include "layout/assembly/SpacingFinder.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

// Lines of Carlito at 10 points are 12.207 points high: baselines that far apart have no space between them.
constexpr double kLine = 12.207;

using tests::documentOf;
using tests::draftOfLines;
using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;
using tests::makePictureBlock;
using tests::paragraphAt;
using tests::styleOf;

TEST(SpacingFinder, PutsTheUsualSpaceIntoTheStyle) {
    const double step = kLine + 8;
    const auto document = documentOf(
        draftOfLines({{"one", 100}, {"two", 100 + step}, {"three", 100 + 2 * step}, {"four", 100 + 3 * step + 0.2}}));
    EXPECT_NEAR(pointsFromTwips(styleOf(document, "Normal").paragraph.spaceAfter), 8, 0.15);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(paragraphAt(document, i).properties, styleOf(document, "Normal").paragraph) << i;
}

TEST(SpacingFinder, FindsNoSpaceWhereBaselinesAreToldCoarsely) {
    DocumentDraft draft = draftOfLines({{"one", 100}});
    for (int line = 1; line < 20; ++line)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine("next", 72, 100 + kLine * line + (line % 2 == 0 ? 0 : 0.1))})));
    EXPECT_EQ(styleOf(documentOf(draft), "Normal").paragraph.spaceAfter, Twips(0));
}

TEST(SpacingFinder, FindsNoSpaceWhereHeightsOfLinesAreRounded) {
    DocumentDraft draft = draftOfLines({{"one", 100}});
    for (int line = 1; line < 20; ++line)
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("next", 72, 100 + (kLine + 0.05) * line)})));
    EXPECT_EQ(styleOf(documentOf(draft), "Normal").paragraph.spaceAfter, Twips(0)) << "a page has dozens of lines";
}

TEST(SpacingFinder, SetsAnUnusualSpaceOnTheParagraph) {
    const auto document = documentOf(
        draftOfLines({{"one", 100}, {"two", 100 + kLine}, {"three", 100 + 2 * kLine}, {"far below", 130 + 3 * kLine}}));
    EXPECT_EQ(styleOf(document, "Normal").paragraph.spaceAfter, Twips(0));
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 2).properties.spaceAfter), 30, 0.1);
    EXPECT_EQ(paragraphAt(document, 1).properties.spaceAfter, Twips(0));
}

TEST(SpacingFinder, TakesSpaceAwayWhereLinesStandCloser) {
    const double step = kLine + 8;
    const auto document = documentOf(draftOfLines({{"one", 100},
                                                   {"two", 100 + step},
                                                   {"three", 100 + 2 * step},
                                                   {"close", 100 + 2 * step + kLine},
                                                   {"five", 100 + 3 * step + kLine}}));
    EXPECT_EQ(paragraphAt(document, 2).properties.spaceAfter, Twips(0));
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 3).properties.spaceAfter), 8, 0.15);
}

TEST(SpacingFinder, GivesHeadingsTheSpaceAboveThem) {
    const double step = kLine + 6;
    DocumentDraft draft = draftOfLines({{"one", 100},
                                        {"two", 100 + step},
                                        {"Heading", 100 + 2 * step + 18},
                                        {"three", 100 + 3 * step + 18},
                                        {"four", 100 + 4 * step + 18}});
    draft.blocks[2].paragraph()->role = ParagraphRole::Heading;
    draft.blocks[2].paragraph()->level = 2;
    const auto document = documentOf(draft);
    const auto& heading = styleOf(document, "Heading2").paragraph;
    EXPECT_NEAR(pointsFromTwips(heading.spaceBefore), 24, 0.2);
    EXPECT_NEAR(pointsFromTwips(heading.spaceAfter), 6, 0.2);
    EXPECT_EQ(paragraphAt(document, 1).properties, styleOf(document, "Normal").paragraph)
        << "the greater of both spaces holds, so the paragraph above keeps its own";
}

TEST(SpacingFinder, LetsItemsStandCloseWithSpaceBehindTheList) {
    const double step = kLine + 8;
    DocumentDraft draft = draftOfLines({{"one", 100},
                                        {"two", 100 + step},
                                        {"item", 100 + 2 * step},
                                        {"item", 100 + 2 * step + kLine},
                                        {"item", 100 + 2 * step + 2 * kLine},
                                        {"three", 100 + 3 * step + 2 * kLine}});
    for (const std::size_t i : {2u, 3u, 4u})
        draft.blocks[i].paragraph()->role = ParagraphRole::ListItem;
    const auto document = documentOf(draft);
    const auto& item = styleOf(document, "ListParagraph").paragraph;
    EXPECT_TRUE(item.isContextualSpacing);
    EXPECT_NEAR(pointsFromTwips(item.spaceAfter), 8, 0.15);
    for (const std::size_t i : {2u, 3u, 4u})
        EXPECT_EQ(paragraphAt(document, i).properties, item);
}

TEST(SpacingFinder, OpensAGapWithinAListWithoutTheSpaceAboveTheList) {
    // Two lists with the same space before and behind them; within the second, one item stands apart.
    const double apart = 8;
    DocumentDraft draft = draftOfLines({{"one", 100},
                                        {"item", 100 + kLine + apart},
                                        {"item", 100 + 2 * kLine + apart},
                                        {"two", 100 + 3 * kLine + 2 * apart},
                                        {"more", 100 + 4 * kLine + 2 * apart},
                                        {"text", 100 + 5 * kLine + 2 * apart},
                                        {"item", 100 + 6 * kLine + 3 * apart},
                                        {"item", 100 + 7 * kLine + 3 * apart},
                                        {"item", 100 + 8 * kLine + 6 * apart},
                                        {"three", 100 + 9 * kLine + 9 * apart}});
    for (const std::size_t i : {1u, 2u, 6u, 7u, 8u})
        draft.blocks[i].paragraph()->role = ParagraphRole::ListItem;
    const auto document = documentOf(draft);
    const auto& item = styleOf(document, "ListParagraph").paragraph;
    ASSERT_TRUE(item.isContextualSpacing);
    ASSERT_NEAR(pointsFromTwips(item.spaceBefore), apart, 0.15);
    const auto& wide = paragraphAt(document, 7).properties;
    EXPECT_FALSE(wide.isContextualSpacing);
    EXPECT_NEAR(pointsFromTwips(wide.spaceAfter), 3 * apart, 0.15);
    EXPECT_EQ(wide.spaceBefore, Twips(0)) << "it stands close to the item above";
    const auto& last = paragraphAt(document, 8).properties;
    EXPECT_NEAR(pointsFromTwips(last.spaceAfter), 3 * apart, 0.15);
    EXPECT_TRUE(last.isContextualSpacing) << "else its space before would count towards the items above";
}

TEST(SpacingFinder, CountsTheSpaceBelowAPictureFromItsEdge) {
    DocumentDraft draft = draftOfLines({{"below", 251.5}});
    draft.blocks.insert(draft.blocks.begin(), makePictureBlock({72, 120, 272, 220}));
    const auto document = documentOf(draft);
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 0).properties.spaceAfter), 251.5 - 9.71 - 220, 0.1);
    EXPECT_LE(paragraphAt(document, 0).markProperties.size, HalfPoints(2)) << "else its descenders add to the space";
}

TEST(SpacingFinder, KeepsTheEmptyPartOfAPage) {
    const auto document = documentOf(draftOfLines({{"title", 100}, {"far below", 600}}));
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 0).properties.spaceAfter), 500 - kLine, 0.1);
    EXPECT_EQ(styleOf(document, "Normal").paragraph.spaceAfter, Twips(0)) << "no style has so much";
}

/// A table of one row, 20 points high.
DraftBlock tableAt(double top) {
    DraftTable table;
    table.table.columnEdges = {72, 523};
    table.table.rowEdges = {top, top + 20};
    table.table.box = {72, top, 523, top + 20};
    DraftCell& cell = table.cells.emplace_back();
    cell.cell.box = table.table.box;
    cell.blocks.push_back(makeBlock(makeParagraph({makeLine("cell", 78, top + 12)})));
    DraftBlock block;
    block.box = table.table.box;
    block.value = std::move(table);
    return block;
}

/// A cell of the column's width, from `top` down to `bottom`.
DraftCell cellOf(ParagraphDraft paragraph, int row, double top, double bottom) {
    DraftCell cell;
    cell.cell.row = row;
    cell.cell.box = {72, top, 523, bottom};
    cell.blocks.push_back(makeBlock(std::move(paragraph)));
    return cell;
}

TEST(SpacingFinder, LetsNoRowGrowByTheSpacingOfItsOnlyLine) {
    for (const double missing : {0.0, 0.3}) {
        const double step = 1.5 * kLine, top = 100 - 0.952 * 10;
        const double edge = top + 3 * step + 1, last = edge + step + 0.1 - missing;
        DraftTable table;
        table.table.columnEdges = {72, 523};
        table.table.rowEdges = {top, edge, last};
        table.table.box = {72, top, 523, last};
        table.cells.push_back(cellOf(makeParagraph({makeLine("one", 72, 100), makeLine("two", 72, 100 + step),
                                                    makeLine("three", 72, 100 + 2 * step)}),
                                     0, top, edge));
        table.cells.push_back(cellOf(makeParagraph({makeLine("alone", 72, edge + 0.952 * 10)}), 1, edge, last));
        DraftBlock block;
        block.box = table.table.box;
        block.value = std::move(table);
        DocumentDraft draft = makeDraft(1);
        draft.blocks = {std::move(block)};
        const auto document = documentOf(draft);
        const auto& written = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
        const auto& alone = std::get<document::Paragraph>(written.rows.at(1).cells.at(0).blocks.at(0).value);
        EXPECT_DOUBLE_EQ(alone.properties.lineSpacing.multiple, missing > 0 ? 1.0 : 1.5) << missing;
    }
}

TEST(SpacingFinder, SetsTablesApartWithAnEmptyParagraph) {
    DocumentDraft draft = makeDraft(1);
    draft.blocks = {tableAt(100), tableAt(150)};
    const auto document = documentOf(draft);
    ASSERT_EQ(document.sections.at(0).blocks.size(), 3u);
    const document::Paragraph& between = paragraphAt(document, 1);
    EXPECT_TRUE(between.inlines.empty());
    EXPECT_EQ(between.properties.lineSpacing.rule, document::LineSpacingRule::Exact);
    EXPECT_EQ(between.properties.lineSpacing.height, twipsFromPoints(30));

    draft.blocks = {tableAt(100), tableAt(120.5)};
    EXPECT_EQ(documentOf(draft).sections.at(0).blocks.size(), 2u) << "no space to speak of";
}

TEST(SpacingFinder, SetsATableLowerThatStartsItsPageThere) {
    DocumentDraft draft = makeDraft(1);
    draft.sections.emplace_back().setup.marginTop = twipsFromPoints(72);
    draft.blocks = {tableAt(90)};
    draft.blocks[0].startsPage = true;
    const auto document = documentOf(draft);
    ASSERT_EQ(document.sections.at(0).blocks.size(), 2u);
    EXPECT_EQ(paragraphAt(document, 0).properties.lineSpacing.height, twipsFromPoints(18));
    EXPECT_TRUE(paragraphAt(document, 0).properties.pageBreakBefore) << "else it would stay on the page before";
    const auto& table = std::get<document::Table>(document.sections.at(0).blocks.at(1).value);
    EXPECT_FALSE(
        std::get<document::Paragraph>(table.rows.at(0).cells.at(0).blocks.at(0).value).properties.pageBreakBefore);
}

/// A long column, a short one that starts by hand or is flowed into, and 20 points below the long one a line over both.
DocumentDraft draftOfColumns(bool startsByHand, double baselineOfShort = 100) {
    DocumentDraft draft = draftOfLines(
        {{"long", 100}, {"column", 100 + kLine}, {"short", baselineOfShort}, {"below both", 100 + 2 * kLine + 20}});
    draft.blocks[2].column = 1;
    draft.blocks[2].paragraph()->pieces[0].columnIndex = 1;
    draft.blocks[2].startsColumn = startsByHand;
    draft.blocks[3].band = 1;
    draft.blocks[3].paragraph()->pieces[0].band = 1;
    return draft;
}

TEST(SpacingFinder, CountsTheSpaceBelowColumnsFromTheLongest) {
    const auto spaceBehind = [](const DocumentDraft& draft, std::size_t i) {
        return pointsFromTwips(paragraphAt(documentOf(draft), i).properties.spaceAfter);
    };
    for (const std::size_t last : {1u, 2u})
        EXPECT_NEAR(spaceBehind(draftOfColumns(true), last), 20, 0.1) << last;
    EXPECT_NEAR(spaceBehind(draftOfColumns(false), 2), 20, 0.1);
    EXPECT_EQ(spaceBehind(draftOfColumns(false), 1), 0) << "text flows from it into the next column";
}

TEST(SpacingFinder, StartsColumnsAsFarBelowTheFirstAsOnThePage) {
    const auto spaceAbove = [](double baseline, bool startsByHand) {
        const auto document = documentOf(draftOfColumns(startsByHand, baseline));
        return pointsFromTwips(paragraphAt(document, 2).properties.spaceBefore);
    };
    EXPECT_NEAR(spaceAbove(110, true), 10, 0.1);
    EXPECT_EQ(spaceAbove(100, true), 0);
    EXPECT_EQ(spaceAbove(95, true), 0) << "it cannot stand higher";
    EXPECT_EQ(spaceAbove(110, false), 0) << "text flows into it";
}

TEST(SpacingFinder, EndsHeadersAndFootersWithTheirLastLines) {
    DocumentDraft draft = makeDraft(1);
    DraftSection& section = draft.sections.emplace_back();
    const auto add = [](DraftRunningText& text, double baseline) {
        text.standard.emplace();
        for (int line = 0; line < 3; ++line)
            text.standard->push_back(makeBlock(makeParagraph({makeLine("line", 72, baseline + 20.0 * line)})));
    };
    add(section.header, 46);
    add(section.footer, 764);
    const auto document = documentOf(draft);
    const document::Section& written = document.sections.at(0);
    for (const auto* text : {&written.header, &written.footer}) {
        const auto spaceBehind = [&](std::size_t i) {
            return pointsFromTwips(std::get<document::Paragraph>(text->standard->at(i).value).properties.spaceAfter);
        };
        EXPECT_NEAR(spaceBehind(1), 20 - kLine, 0.1);
        EXPECT_EQ(spaceBehind(2), 0);
    }
}

TEST(SpacingFinder, CountsTheSpaceAboveAPageFromAHeaderThatPushesItsTextDown) {
    DocumentDraft draft = makeDraft(2);
    DraftSection& section = draft.sections.emplace_back();
    section.setup.marginTop = twipsFromPoints(40);
    section.header.standard = {makeBlock(makeParagraph({makeLine("of odd pages", 72, 60)}))};
    section.header.evenPages.emplace();
    const double end = section.header.standard->front().box.bottom;
    for (const std::size_t page : {0u, 1u}) {
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("starts the page", 72, 100)}), page));
        draft.blocks.back().startsPage = true;
    }
    const auto document = documentOf(draft);
    const auto spaceAbove = [&](std::size_t i) {
        return pointsFromTwips(paragraphAt(document, i).properties.spaceBefore);
    };
    EXPECT_NEAR(spaceAbove(0) - spaceAbove(1), 40 - end, 0.1);
    EXPECT_GT(spaceAbove(0), 20);
}

TEST(SpacingFinder, BringsARuleInTheMarginNearerToTheTextThatStartsThePage) {
    DocumentDraft draft = draftOfLines({{"below the rule", 72 + 9.71 + 10}});
    draft.sections.emplace_back().setup.marginTop = twipsFromPoints(72);
    draft.blocks[0].startsPage = true;
    draft.blocks[0].paragraph()->pieces[0].text.borders.top = {document::BorderKind::Single, EighthPoints(4), {}, 20};
    EXPECT_EQ(paragraphAt(documentOf(draft), 0).properties.borders.top.spacePoints, 9) << "half a point is the rule's";
}

/// Two paragraphs of three lines with half as much space again between the lines, and two headings close above text.
DocumentDraft draftOfCloseHeadings(double headingPitch) {
    const double step = 1.5 * kLine;
    DocumentDraft draft = makeDraft(1);
    double baseline = 100;
    for (int part = 0; part < 2; ++part) {
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Heading", 72, baseline)})));
        draft.blocks.back().paragraph()->role = ParagraphRole::Heading;
        draft.blocks.back().paragraph()->level = 1;
        baseline += headingPitch;
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine("one", 72, baseline), makeLine("two", 72, baseline + step),
                                     makeLine("three", 72, baseline + 2 * step)})));
        baseline += 2 * step + 60;
    }
    return draft;
}

TEST(SpacingFinder, GivesSingleLinesThatStandVeryCloseTheirDistance) {
    const auto document = documentOf(draftOfLines({{"one", 100}, {"two", 110}, {"three", 120}, {"far below", 160}}));
    const document::LineSpacing close{document::LineSpacingRule::Exact, 1.0, Twips(200)};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(paragraphAt(document, i).properties.lineSpacing, close) << i;
    EXPECT_EQ(paragraphAt(document, 3).properties.lineSpacing, document::LineSpacing());
    EXPECT_EQ(styleOf(document, "Normal").paragraph.lineSpacing, close) << "most of its paragraphs have it";
}

TEST(SpacingFinder, GivesSingleLinesTheSpacingOfBodyTextWhereThereIsRoom) {
    const auto document = documentOf(draftOfCloseHeadings(2 * kLine));
    EXPECT_DOUBLE_EQ(styleOf(document, "Heading1").paragraph.lineSpacing.multiple, 1.5);
}

TEST(SpacingFinder, TakesLineSpacingFromSingleLinesThatStandCloseAboveOthers) {
    const auto document = documentOf(draftOfCloseHeadings(1.2 * kLine));
    EXPECT_DOUBLE_EQ(styleOf(document, "Heading1").paragraph.lineSpacing.multiple, 1);
    EXPECT_NEAR(pointsFromTwips(styleOf(document, "Heading1").paragraph.spaceAfter), 0.2 * kLine, 0.15);
    EXPECT_DOUBLE_EQ(styleOf(document, "Normal").paragraph.lineSpacing.multiple, 1.5);
}

TEST(SpacingFinder, TakesAnExactHeightFromSingleLinesThatItWouldPushIntoOthers) {
    // Lines closer than their letters are high have an exact height; a single line close below others has no room for
    // as much of it as letters twice as large are set apart.
    DocumentDraft draft = makeDraft(1);
    for (const double baseline : {100.0, 300.0})
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("one", 72, baseline, {.size = 40}),
                                                        makeLine("two", 72, baseline + 30, {.size = 40}),
                                                        makeLine("three", 72, baseline + 60, {.size = 40})})));
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("small", 72, 380)})));
    const auto document = documentOf(draft);
    EXPECT_EQ(paragraphAt(document, 0).properties.lineSpacing.rule, document::LineSpacingRule::Exact);
    EXPECT_EQ(paragraphAt(document, 2).properties.lineSpacing.rule, document::LineSpacingRule::Multiple);
}

} // namespace
} // namespace orvane::layout
