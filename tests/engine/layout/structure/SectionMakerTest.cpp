#include "layout/structure/SectionMaker.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::SectionStart;
using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

void addLine(DocumentDraft& draft, std::size_t page, double left, double baseline) {
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("some words", left, baseline)}), page));
}

/// Lines from the top of the page down to its foot, or to `last`.
void fillPage(DocumentDraft& draft, std::size_t page, double last = 760) {
    for (double baseline = 84; baseline <= last; baseline += 20)
        addLine(draft, page, 72, baseline);
}

/// Three pages, of which the first starts higher than the others.
DocumentDraft draftOfPushedText() {
    DocumentDraft draft = makeDraft(3);
    for (const std::size_t page : {0u, 1u, 2u})
        for (double baseline = page == 0 ? 64 : 84; baseline <= 760; baseline += 20)
            addLine(draft, page, 72, baseline);
    return draft;
}

void sectionsOf(DocumentDraft& draft, std::vector<PageRunningHeads> heads = {}) {
    heads.resize(draft.pages.size());
    Diagnostics diagnostics;
    makeSections(draft, heads, {}, {}, diagnostics);
}

const DraftBlock& firstOn(const DocumentDraft& draft, std::size_t page) {
    return *std::find_if(draft.blocks.begin(), draft.blocks.end(), [&](const DraftBlock& b) { return b.page == page; });
}

/// The margin below the text of a section. Units: points.
double setupBottom(const DocumentDraft& draft, std::size_t section) {
    return pointsFromTwips(draft.sections.at(section).setup.marginBottom);
}

TEST(SectionMaker, TakesMarginsFromTheText) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0);
    fillPage(draft, 1);
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 1u);
    const document::Section& setup = draft.sections[0].setup;
    EXPECT_EQ(setup.pageWidth, twipsFromPoints(595));
    EXPECT_EQ(setup.marginLeft, twipsFromPoints(72));
    EXPECT_EQ(setup.marginRight, setup.marginLeft) << "nothing shows the right edge, so it is like the left";
    EXPECT_LE(setup.marginBottom, twipsFromPoints(842 - 746.5)) << "the last line has room";
    EXPECT_GE(setup.marginBottom, twipsFromPoints(842 - 746.5 - 12.2)) << "but no other line";
}

TEST(SectionMaker, TakesMarginsFromTablesThatFillThePages) {
    DocumentDraft draft = makeDraft(1);
    addLine(draft, 0, 200, 84);
    addLine(draft, 0, 300, 104);
    DraftTable table;
    table.table.box = {72, 120, 533, 200};
    table.table.rowEdges = {120, 140, 160, 180, 200};
    DraftBlock block;
    block.box = table.table.box;
    block.value = table;
    draft.blocks.push_back(block);
    sectionsOf(draft);
    const document::Section& setup = draft.sections.at(0).setup;
    EXPECT_NEAR(pointsFromTwips(setup.marginLeft), 72, 0.1) << "not where the titles start";
    EXPECT_NEAR(pointsFromTwips(setup.marginRight), 595 - 533, 0.5);
}

TEST(SectionMaker, AllowsForTheSpaceAboveWhatStartsAPage) {
    DocumentDraft draft = makeDraft(2);
    for (const std::size_t page : {0u, 1u})
        for (double baseline = 90; baseline <= 770; baseline += 20)
            addLine(draft, page, 72, baseline);
    sectionsOf(draft);
    // Without that space the margin would lie between 58 and 69 points, where nobody sets one.
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginBottom), 56.7, 0.1) << "two centimetres";
}

TEST(SectionMaker, BelievesARoundMarginThatLeavesAHairLessThanALine) {
    DocumentDraft draft = makeDraft(2);
    constexpr double kPitch = 12.207; // lines without space between them
    for (const std::size_t page : {0u, 1u})
        for (int line = 0; line < 58; ++line)
            addLine(draft, page, 72, 60 + kPitch * line + (page == 1 && line > 30 ? 3.7 : 0));
    sectionsOf(draft);
    // A further line on the first page would have ended 71.5 points above the paper's edge.
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginBottom), 72, 0.1);
}

TEST(SectionMaker, StartsASectionWhereThePaperTurns) {
    DocumentDraft draft = makeDraft(3);
    std::swap(draft.pages[1].width, draft.pages[1].height);
    for (const std::size_t page : {0u, 1u, 2u})
        addLine(draft, page, 72, 84);
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 3u);
    EXPECT_EQ(draft.sections[1].setup.pageWidth, twipsFromPoints(842));
    EXPECT_EQ(draft.sections[1].setup.start, SectionStart::NextPage);
    EXPECT_EQ(draft.sections[2].firstBlock, 2u);
}

TEST(SectionMaker, MakesHeadsThatShowTheSameOnce) {
    const char* kKeys[] = {"same", "same", "other", "other", "same", "same"};
    DocumentDraft draft = makeDraft(6);
    std::vector<PageRunningHeads> heads(6);
    for (std::size_t page = 0; page < 6; ++page) {
        addLine(draft, page, 72, 84);
        heads[page].header = RunningHead{tests::makePage(1), {}, kKeys[page]};
        heads[page].header->content.lines.push_back(makeLine("a head", 72, 40));
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 3u);
    const auto pageOf = [&](std::size_t section) { return draft.sections[section].header.standard->front().page; };
    EXPECT_EQ(pageOf(0), pageOf(2));
    EXPECT_NE(pageOf(0), pageOf(1));
}

TEST(SectionMaker, MarksPagesThatWereStartedByHand) {
    DocumentDraft draft = makeDraft(3);
    fillPage(draft, 0, 300);
    fillPage(draft, 1);
    fillPage(draft, 2, 200);
    sectionsOf(draft);
    EXPECT_TRUE(firstOn(draft, 1).startsPage) << "the first page had room";
    EXPECT_FALSE(firstOn(draft, 2).startsPage) << "the second page was full";
}

TEST(SectionMaker, LeavesRoomBelowPagesThatEndByHand) {
    DocumentDraft draft = makeDraft(1);
    fillPage(draft, 0, 764);
    sectionsOf(draft);
    EXPECT_LE(setupBottom(draft, 0), 842 - 766 - 20) << "the page may come out somewhat longer than it was";
    EXPECT_GE(setupBottom(draft, 0), 14);
}

TEST(SectionMaker, GivesTheSectionsOfABookOneMargin) {
    DocumentDraft draft = makeDraft(6);
    std::vector<PageRunningHeads> heads(6);
    for (std::size_t page = 0; page < 6; ++page) {
        const bool isFirst = page < 3;
        for (double baseline = isFirst ? 84 : 94; baseline <= (isFirst ? 744 : 734); baseline += 20)
            addLine(draft, page, 72, baseline);
        heads[page].header = RunningHead{tests::makePage(1), {}, isFirst ? "one chapter" : "another"};
        heads[page].header->content.lines.push_back(makeLine("a head", 72, 40));
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 2u);
    EXPECT_EQ(setupBottom(draft, 0), setupBottom(draft, 1));
    EXPECT_LE(setupBottom(draft, 0), 842 - 746) << "the lines of the first have room";
}

/// Two full pages, the second with the rest of the first one's last paragraph on top.
DocumentDraft draftOfOneFlow() {
    DocumentDraft draft = makeDraft(3);
    fillPage(draft, 0);
    DraftParagraph& split = *draft.blocks.back().paragraph();
    split.pieces.push_back({1, 0, 0, tests::kColumn, makeParagraph({makeLine("its rest", 72, 84)})});
    for (double baseline = 104; baseline <= 760; baseline += 20)
        addLine(draft, 1, 72, baseline);
    return draft;
}

TEST(SectionMaker, TakesAPageThatStartsLowForOneStartedByHand) {
    DocumentDraft draft = draftOfOneFlow();
    addLine(draft, 2, 72, 84 + 24);
    sectionsOf(draft);
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 74.3, 0.1);
    EXPECT_TRUE(firstOn(draft, 2).startsPage) << "the page before was full, but space above was kept";
    const auto document = tests::documentOf(draft);
    const auto& last = std::get<document::Paragraph>(document.sections[0].blocks.back().value);
    EXPECT_NEAR(pointsFromTwips(last.properties.spaceBefore), 24, 0.1);
}

TEST(SectionMaker, TakesTheTopMarginFromWhereParagraphsGoOn) {
    DocumentDraft draft = draftOfOneFlow();
    addLine(draft, 2, 72, 40); // a stray head
    sectionsOf(draft);
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 74.3, 0.1);
    EXPECT_FALSE(firstOn(draft, 2).startsPage);
}

TEST(SectionMaker, LetsAHeaderPushTheTextOfAllPagesButTheFirst) {
    DocumentDraft draft = draftOfPushedText();
    std::vector<PageRunningHeads> heads(3);
    for (const std::size_t page : {1u, 2u}) {
        heads[page].header = RunningHead{tests::makePage(1), {}, "head"};
        heads[page].header->content.lines.push_back(makeLine("a head", 72, 40));
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 1u);
    EXPECT_NEAR(pointsFromTwips(draft.sections[0].setup.marginTop), 54, 0.1) << "three quarters of an inch";
    EXPECT_NEAR(draft.sections[0].tops.pushed.value_or(0), 74.3, 0.1);
    EXPECT_FALSE(firstOn(draft, 1).startsPage) << "it starts where its header lets it";
    const auto document = tests::documentOf(draft);
    const auto& header = document.sections[0].header;
    ASSERT_TRUE(header.firstPage && header.firstPage->empty());
    ASSERT_TRUE(header.standard && header.standard->size() == 1u);
    const auto& line = std::get<document::Paragraph>(header.standard->front().value);
    EXPECT_NEAR(pointsFromTwips(line.properties.spaceAfter), 74.3 - 42.5, 0.1) << "the header's line ends at 42.5";
}

TEST(SectionMaker, PushesTextWithABlankHeaderWhereNoneIsSeen) {
    DocumentDraft draft = draftOfPushedText();
    std::vector<PageRunningHeads> heads(3);
    for (const std::size_t page : {1u, 2u}) {
        heads[page].footer = RunningHead{tests::makePage(1), {}, "foot"};
        heads[page].footer->content.lines.push_back(makeLine("a foot", 72, 800));
    }
    sectionsOf(draft, heads);
    const auto document = tests::documentOf(draft);
    const document::Section& section = document.sections.at(0);
    ASSERT_TRUE(section.header.standard && section.header.standard->size() == 1u);
    const auto& filler = std::get<document::Paragraph>(section.header.standard->front().value);
    EXPECT_EQ(filler.properties.lineSpacing.rule, document::LineSpacingRule::Exact);
    EXPECT_NEAR(pointsFromTwips(section.headerDistance + filler.properties.lineSpacing.height), 74.3, 0.1);
    EXPECT_TRUE(section.header.firstPage && section.header.firstPage->empty());
}

TEST(SectionMaker, FloatsAPictureThatHangsAboveTheText) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks.push_back(tests::makePictureBlock({72, 40, 172, 120}));
    addLine(draft, 0, 72, 160);
    fillPage(draft, 1);
    draft.blocks.push_back(tests::makePictureBlock({72, 300, 172, 400}));
    draft.blocks.back().page = 1;
    sectionsOf(draft);
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 74.3, 0.1);
    EXPECT_FALSE(std::get<FigureDraft>(draft.blocks.front().value).isInline);
    EXPECT_TRUE(std::get<FigureDraft>(draft.blocks.back().value).isInline);
}

TEST(SectionMaker, FloatsAPictureThatStandsBesideTheOneBeforeIt) {
    DocumentDraft draft = makeDraft(1);
    fillPage(draft, 0, 200);
    draft.blocks.push_back(tests::makePictureBlock({72, 220, 372, 320}));
    draft.blocks.push_back(tests::makePictureBlock({300, 230, 460, 250}));
    draft.blocks.push_back(tests::makePictureBlock({72, 319, 372, 400}));
    sectionsOf(draft);
    const std::size_t first = draft.blocks.size() - 3;
    EXPECT_FALSE(std::get<FigureDraft>(draft.blocks[first].value).isInline);
    EXPECT_EQ(draft.blocks[first].box.left, 300) << "it hangs on what stands on its page";
    EXPECT_TRUE(std::get<FigureDraft>(draft.blocks[first + 1].value).isInline);
    EXPECT_TRUE(std::get<FigureDraft>(draft.blocks[first + 2].value).isInline)
        << "below the first, whose edge it meets";
}

/// A table of one row at `top`, drawn with rules or not.
DraftBlock tableAt(std::size_t page, double top, bool isRuled) {
    DraftBlock block;
    block.page = page;
    block.box = {72, top, 523, top + 20};
    DraftTable table;
    table.table.columnEdges = {72, 523};
    table.table.rowEdges = {top, top + 20};
    table.table.isRuled = isRuled;
    block.value = std::move(table);
    return block;
}

TEST(SectionMaker, LetsTheSecondOfTwoTablesStartItsPage) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0, 740);
    draft.blocks.push_back(tableAt(0, 745, true));
    draft.blocks.push_back(tableAt(1, 74.3, true));
    fillPage(draft, 1);
    sectionsOf(draft);
    EXPECT_TRUE(firstOn(draft, 1).startsPage);
}

TEST(SectionMaker, TakesTheTopMarginFromTablesThatAreDrawn) {
    const struct {
        bool isRuled;
        double margin;
        const char* why;
    } rows[] = {{true, 89.5, "half a border stands above the row's edge"}, {false, 74.3, "the edge is only guessed"}};
    for (const auto& row : rows) {
        DocumentDraft draft = makeDraft(2);
        fillPage(draft, 0, 700);
        DraftBlock block = tableAt(0, 720, row.isRuled);
        auto& table = std::get<DraftTable>(block.value);
        table.table.rowEdges.push_back(760);
        table.furtherParts.push_back({1, {72, 90, 523, 110}, 1});
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.row = 1;
        cell.cell.borders.top = {document::BorderKind::Single, EighthPoints(8), {}, 0};
        draft.blocks.push_back(std::move(block));
        sectionsOf(draft);
        EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), row.margin, 0.1) << row.why;
    }
}

TEST(SectionMaker, CountsTheTopOfASingleLineWithTheSpacingOfTheOthers) {
    DocumentDraft draft = makeDraft(1);
    const auto exact = [](double baseline) {
        // Closer than the letters are high: exact spacing, of which four fifths are above the baseline.
        return makeParagraph({makeLine("one", 72, baseline), makeLine("two", 72, baseline + 7)});
    };
    addLine(draft, 0, 72, 84);
    draft.blocks.push_back(makeBlock(exact(100)));
    draft.blocks.push_back(makeBlock(exact(120)));
    sectionsOf(draft);
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 84 - 0.8 * 7, 0.3);
}

TEST(SectionMaker, CountsATableToWhereItsLastPartEnds) {
    DocumentDraft draft = makeDraft(3);
    DraftBlock table;
    table.box = {72, 74.3, 523, 760};
    DraftTable made;
    made.table.columnEdges = {72, 523};
    made.table.rowEdges = {74.3, 400, 760};
    made.furtherParts.push_back({1, {72, 74.3, 523, 750}});
    table.value = std::move(made);
    draft.blocks.push_back(std::move(table));
    addLine(draft, 2, 72, 84);
    sectionsOf(draft);
    EXPECT_FALSE(firstOn(draft, 2).startsPage) << "the table's last page is full";
}

TEST(SectionMaker, ReadsTheEndEdgeThatMostLinesAgreeOn) {
    DocumentDraft draft = makeDraft(1);
    // Forty letters of five points each, and a word that had no room behind them.
    const std::string full(80, 'x');
    for (int i = 0; i < 6; ++i)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine(full, 72, 84 + 30 * i), makeLine("overflowing", 72, 96 + 30 * i)})));
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(std::string(95, 'x'), 72, 300)}))); // in a box of its own
    sectionsOf(draft);
    const double end = 595 - pointsFromTwips(draft.sections.at(0).setup.marginRight);
    EXPECT_GE(end, 72 + 400);
    EXPECT_LT(end, 72 + 400 + 57.5) << "else the next word would have had room";
}

TEST(SectionMaker, PrefersMarginsOfOneWidthThoughALineWasEndedByHand) {
    DocumentDraft draft = makeDraft(1);
    const std::string full(90, 'x'); // 450 points, so that less than a point is free before the right margin
    for (int i = 0; i < 20; ++i)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine(full, 72, 84 + 30 * i), makeLine("overflowing", 72, 96 + 30 * i)})));
    draft.blocks.push_back(
        makeBlock(makeParagraph({makeLine(std::string(80, 'x'), 72, 700), makeLine("by hand", 72, 712)})));
    sectionsOf(draft);
    const document::Section& setup = draft.sections.at(0).setup;
    EXPECT_EQ(setup.marginRight, setup.marginLeft);
}

TEST(SectionMaker, LetsEastAsianFullStopsHangOverTheEndEdge) {
    DocumentDraft draft = makeDraft(1);
    for (int i = 0; i < 20; ++i) {
        Line hanging = makeLine("一二。", 72, 84 + 30 * i);
        hanging.box.right = 523 + 8;
        draft.blocks.push_back(makeBlock(makeParagraph({hanging, makeLine("三", 72, 96 + 30 * i)})));
    }
    sectionsOf(draft);
    const document::Section& setup = draft.sections.at(0).setup;
    EXPECT_EQ(setup.marginRight, setup.marginLeft);
}

TEST(SectionMaker, ReadsNoEndEdgeFromLinesMuchNarrowerThanOthers) {
    DocumentDraft draft = makeDraft(1);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(std::string(80, 'x'), 72, 84)})));
    for (int i = 0; i < 6; ++i)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine("w", 72, 114 + 30 * i), makeLine("w", 72, 126 + 30 * i)})));
    sectionsOf(draft);
    EXPECT_LT(pointsFromTwips(draft.sections.at(0).setup.marginRight), 595 - (72 + 400));
}

TEST(SectionMaker, MakesContinuousSectionsOfColumns) {
    DocumentDraft draft = makeDraft(1);
    draft.pages[0].bands = {{72, 100, {tests::kColumn}, false},
                            {110, 400, {{72, 285.5}, {309.5, 523}}, true},
                            {420, 500, {tests::kColumn}, false}};
    const struct {
        double left;
        double baseline;
        int band;
        int column;
    } lines[] = {{72, 84, 0, 0}, {72, 120, 1, 0}, {72, 140, 1, 0}, {309.5, 120, 1, 1}, {72, 430, 2, 0}};
    for (const auto& line : lines) {
        addLine(draft, 0, line.left, line.baseline);
        draft.blocks.back().band = line.band;
        draft.blocks.back().column = line.column;
        draft.blocks.back().paragraph()->pieces[0].band = line.band;
        draft.blocks.back().paragraph()->pieces[0].columnIndex = line.column;
    }
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 3u);
    EXPECT_EQ(draft.sections[1].firstBlock, 1u);
    EXPECT_EQ(draft.sections[1].setup.start, SectionStart::Continuous);
    ASSERT_EQ(draft.sections[1].setup.columns.size(), 2u);
    EXPECT_TRUE(draft.sections[1].setup.hasColumnSeparator);
    EXPECT_NEAR(draft.blocks[3].paragraph()->pieces[0].column.left, 309.5, 0.1);
    EXPECT_TRUE(draft.blocks[3].startsColumn) << "the first column had room";
    EXPECT_EQ(draft.sections[2].firstBlock, 4u);
}

/// A running head of one line that ends at `baseline`, with a key of its own.
RunningHead makeHead(int page, double baseline, const std::string& text) {
    RunningHead head;
    head.key = text;
    head.content = tests::makePage(page);
    head.content.lines.push_back(makeLine(text, 290, baseline));
    return head;
}

TEST(SectionMaker, KeepsFootersOfOddAndEvenPagesAtTheirHeights) {
    constexpr int kPages = 6;
    DocumentDraft draft = makeDraft(kPages);
    std::vector<PageRunningHeads> heads(kPages);
    for (int i = 0; i < kPages; ++i) {
        fillPage(draft, static_cast<std::size_t>(i), 700);
        const bool isEven = i % 2 == 1;
        heads[static_cast<std::size_t>(i)].header = makeHead(i + 1, isEven ? 40 : 50, isEven ? "Title" : "Chapter");
        heads[static_cast<std::size_t>(i)].footer = makeHead(i + 1, isEven ? 800 : 780, isEven ? "address" : "odd");
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 1u);
    const document::Section& setup = draft.sections[0].setup;
    EXPECT_NEAR(pointsFromTwips(setup.footerDistance), 842 - 802.5, 0.1) << "of the lower one";
    EXPECT_NEAR(pointsFromTwips(setup.headerDistance), 40 - 9.5, 0.5) << "of the higher one";
    const document::Document document = tests::documentOf(draft);
    const auto propertiesOf = [](const std::optional<std::vector<document::Block>>& text) {
        return std::get<document::Paragraph>(text.value().at(0).value).properties;
    };
    const document::Section& section = document.sections.at(0);
    EXPECT_NEAR(pointsFromTwips(propertiesOf(section.footer.standard).spaceAfter), 20, 0.1);
    EXPECT_EQ(propertiesOf(section.footer.evenPages).spaceAfter.value, 0);
    EXPECT_NEAR(pointsFromTwips(propertiesOf(section.header.standard).spaceBefore), 10, 0.1);
    EXPECT_EQ(propertiesOf(section.header.evenPages).spaceBefore.value, 0);
}

/// One page of two bands of columns, one above the other; lines at these baselines in each column. The upper band ends
/// with its longest column.
DocumentDraft draftOfColumns(const std::vector<std::vector<double>>& upper,
                             const std::vector<std::vector<double>>& lower) {
    DocumentDraft draft = makeDraft(1);
    const double bottom = std::max(upper[0].back(), upper[1].back()) + 2.5;
    draft.pages[0].bands = {{72, bottom, {{72, 285.5}, {309.5, 523}}, false},
                            {220, 400, {{72, 285.5}, {309.5, 523}}, false}};
    int band = 0;
    for (const auto* columns : {&upper, &lower}) {
        for (int column = 0; column < 2; ++column)
            for (const double baseline : columns->at(static_cast<std::size_t>(column))) {
                addLine(draft, 0, column == 0 ? 72 : 309.5, baseline);
                draft.blocks.back().band = band;
                draft.blocks.back().column = column;
                draft.blocks.back().paragraph()->pieces[0].band = band;
                draft.blocks.back().paragraph()->pieces[0].columnIndex = column;
            }
        ++band;
    }
    return draft;
}

TEST(SectionMaker, MakesASectionOfEachBandOfColumns) {
    DocumentDraft draft = draftOfColumns({{84, 96}, {84, 96}}, {{240, 252}, {240, 252}});
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 2u);
    EXPECT_EQ(draft.sections[1].firstBlock, 4u);
    EXPECT_EQ(draft.sections[1].setup.start, SectionStart::Continuous);
}

TEST(SectionMaker, BreaksColumnsThatAreNotOfOneHeight) {
    DocumentDraft even = draftOfColumns({{84, 96, 108}, {84, 96, 108}}, {{240}, {240}});
    sectionsOf(even);
    EXPECT_FALSE(even.blocks[3].startsColumn) << "they come out so of themselves";
    DocumentDraft uneven = draftOfColumns({{84, 96, 108, 120, 132, 198}, {84, 96}}, {{240}, {240}});
    sectionsOf(uneven);
    EXPECT_TRUE(uneven.blocks[6].startsColumn);
}

TEST(SectionMaker, GivesRunningHeadsToTheSection) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0);
    fillPage(draft, 1);
    std::vector<PageRunningHeads> heads(2);
    for (int i = 0; i < 2; ++i) {
        RunningHead& footer = heads[static_cast<std::size_t>(i)].footer.emplace();
        footer.key = "#";
        footer.content = tests::makePage(i + 1);
        footer.content.lines.push_back(makeLine(std::to_string(i + 5), 290, 800));
        footer.fields.push_back({document::FieldCode::Page, footer.content.lines[0].words[0].spans[0].box});
        heads[static_cast<std::size_t>(i)].number = PageNumber{i + 5, document::NumberFormat::Decimal};
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 1u);
    ASSERT_TRUE(draft.sections[0].footer.standard);
    EXPECT_EQ(draft.sections[0].setup.firstPageNumber, 5);
    EXPECT_NEAR(pointsFromTwips(draft.sections[0].setup.footerDistance), 842 - 802.5, 0.1);
    const auto document = tests::documentOf(draft);
    const auto& footer = document.sections[0].footer.standard;
    ASSERT_TRUE(footer && footer->size() == 1u);
    EXPECT_NE(document::dump(std::get<document::Paragraph>(footer->front().value), document).find("page["),
              std::string::npos);
}

} // namespace
} // namespace orvane::layout
