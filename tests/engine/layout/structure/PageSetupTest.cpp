#include "layout/structure/PageSetup.h"

#include "engine/layout/structure/SectionSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::addLine;
using tests::fillPage;
using tests::makeDraft;
using tests::makeLine;
using tests::sectionsOf;
using tests::setupBottom;

TEST(PageSetup, TakesMarginsFromTheText) {
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

TEST(PageSetup, TakesMarginsFromTablesThatFillThePages) {
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

TEST(PageSetup, AllowsForTheSpaceAboveWhatStartsAPage) {
    DocumentDraft draft = makeDraft(2);
    for (const std::size_t page : {0u, 1u})
        for (double baseline = 90; baseline <= 770; baseline += 20)
            addLine(draft, page, 72, baseline);
    sectionsOf(draft);
    // Without that space the margin would lie between 58 and 69 points, where nobody sets one.
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginBottom), 56.7, 0.1) << "two centimetres";
}

TEST(PageSetup, BelievesARoundMarginThatLeavesAHairLessThanALine) {
    DocumentDraft draft = makeDraft(2);
    constexpr double kPitch = 12.207; // lines without space between them
    for (const std::size_t page : {0u, 1u})
        for (int line = 0; line < 58; ++line)
            addLine(draft, page, 72, 60 + kPitch * line + (page == 1 && line > 30 ? 3.7 : 0));
    sectionsOf(draft);
    // A further line on the first page would have ended 71.5 points above the paper's edge.
    EXPECT_NEAR(pointsFromTwips(draft.sections.at(0).setup.marginBottom), 72, 0.1);
}

TEST(PageSetup, LeavesRoomBelowPagesThatEndByHand) {
    DocumentDraft draft = makeDraft(1);
    fillPage(draft, 0, 764);
    sectionsOf(draft);
    EXPECT_LE(setupBottom(draft, 0), 842 - 766 - 20) << "the page may come out somewhat longer than it was";
    EXPECT_GE(setupBottom(draft, 0), 14);
}

TEST(PageSetup, PutsNotesOfAPageThatEndsByHandWhereTheyStood) {
    DocumentDraft draft = makeDraft(1);
    fillPage(draft, 0, 500);
    draft.noteAreas = {{72, 720, 523, 760}};
    sectionsOf(draft);
    EXPECT_NEAR(setupBottom(draft, 0), 842 - 760, 0.1);
}

TEST(PageSetup, LeavesRoomBelowNotesThatTheTextReaches) {
    DocumentDraft draft = makeDraft(1);
    fillPage(draft, 0, 704);
    draft.noteAreas = {{72, 720, 523, 760}};
    sectionsOf(draft);
    EXPECT_LE(setupBottom(draft, 0), 842 - 760 - 20) << "a line that is higher than it was would push text over";
}

TEST(PageSetup, GivesTheSectionsOfABookOneMargin) {
    DocumentDraft draft = makeDraft(6);
    std::vector<PageRunningHeads> heads(6);
    for (std::size_t page = 0; page < 6; ++page) {
        const bool isFirst = page < 3;
        for (double baseline = isFirst ? 84 : 94; baseline <= (isFirst ? 744 : 734); baseline += 20)
            addLine(draft, page, 72, baseline);
        heads[page].header = RunningHead{tests::makePage(1), {}, isFirst ? "one chapter" : "another", {}};
        heads[page].header->content.lines.push_back(makeLine("a head", 72, 40));
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 2u);
    EXPECT_EQ(setupBottom(draft, 0), setupBottom(draft, 1));
    EXPECT_LE(setupBottom(draft, 0), 842 - 746) << "the lines of the first have room";
}

} // namespace
} // namespace orvane::layout
