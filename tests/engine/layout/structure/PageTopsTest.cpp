#include "layout/structure/PageTops.h"

#include "engine/layout/structure/SectionSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::addLine;
using tests::fillPage;
using tests::firstOn;
using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;
using tests::sectionsOf;
using tests::tableAt;

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

TEST(PageTops, TakesAPageThatStartsLowForOneStartedByHand) {
    DocumentDraft draft = draftOfOneFlow();
    addLine(draft, 2, 72, 84 + 24);
    sectionsOf(draft);
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 74.3, 0.1);
    EXPECT_TRUE(firstOn(draft, 2).startsPage) << "the page before was full, but space above was kept";
    const auto document = tests::documentOf(draft);
    const auto& last = std::get<document::Paragraph>(document.sections[0].blocks.back().value);
    EXPECT_NEAR(pointsFromTwips(last.properties.spaceBefore), 24, 0.1);
}

TEST(PageTops, TakesTheTopMarginFromWhereParagraphsGoOn) {
    DocumentDraft draft = draftOfOneFlow();
    addLine(draft, 2, 72, 40); // a stray head
    sectionsOf(draft);
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 74.3, 0.1);
    EXPECT_FALSE(firstOn(draft, 2).startsPage);
}

TEST(PageTops, DoesNotTakeTheTopFromWhatGoesOnBelowAPicture) {
    for (const bool isInline : {true, false}) {
        DocumentDraft draft = makeDraft(2);
        fillPage(draft, 0);
        DraftParagraph& split = *draft.blocks.back().paragraph();
        split.pieces.push_back({1, 0, 0, tests::kColumn, makeParagraph({makeLine("its rest", 72, 300)})});
        draft.blocks.push_back(tests::makePictureBlock({72, 74.3, 372, 274}));
        draft.blocks.back().page = 1;
        std::get<FigureDraft>(draft.blocks.back().value).isInline = isInline;
        addLine(draft, 1, 72, 320);
        sectionsOf(draft);
        EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginTop), 74.3, 0.1);
    }
}

/// Three pages, of which the first starts higher than the others.
DocumentDraft draftOfPushedText() {
    DocumentDraft draft = makeDraft(3);
    for (const std::size_t page : {0u, 1u, 2u})
        for (double baseline = page == 0 ? 64 : 84; baseline <= 760; baseline += 20)
            addLine(draft, page, 72, baseline);
    return draft;
}

TEST(PageTops, LetsAHeaderPushTheTextOfAllPagesButTheFirst) {
    DocumentDraft draft = draftOfPushedText();
    std::vector<PageRunningHeads> heads(3);
    for (const std::size_t page : {1u, 2u}) {
        heads[page].header = RunningHead{tests::makePage(1), {}, "head", {}};
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

TEST(PageTops, PushesTextWithABlankHeaderWhereNoneIsSeen) {
    DocumentDraft draft = draftOfPushedText();
    std::vector<PageRunningHeads> heads(3);
    for (const std::size_t page : {1u, 2u}) {
        heads[page].footer = RunningHead{tests::makePage(1), {}, "foot", {}};
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

TEST(PageTops, TakesTheTopMarginFromTablesThatAreDrawn) {
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

TEST(PageTops, CountsTheTopOfASingleLineWithTheSpacingOfTheOthers) {
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

} // namespace
} // namespace orvane::layout
