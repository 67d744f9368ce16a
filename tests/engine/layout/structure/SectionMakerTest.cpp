#include "layout/structure/SectionMaker.h"

#include "engine/layout/structure/SectionSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::SectionStart;
using tests::addLine;
using tests::fillPage;
using tests::firstOn;
using tests::makeDraft;
using tests::makeLine;
using tests::sectionsOf;
using tests::setupBottom;
using tests::tableAt;

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

TEST(SectionMaker, GivesABlankPageOfItsOwnSizeASection) {
    DocumentDraft draft = makeDraft(3);
    addLine(draft, 0, 72, 84);
    draft.pages[1].width = 842;
    addLine(draft, 2, 72, 84);
    DocumentDraft running = draft;
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 3u);
    EXPECT_EQ(draft.sections[1].setup.pageWidth, twipsFromPoints(842));
    EXPECT_EQ(draft.sections[1].tops.firstPage, 1u);
    EXPECT_EQ(draft.sections[2].firstBlock, 1u);

    DraftParagraph& text = *running.blocks[0].paragraph();
    text.pieces.push_back(text.pieces[0]);
    text.pieces[1].page = 1;
    sectionsOf(running);
    EXPECT_EQ(running.sections.size(), 2u) << "what goes on there is no start of a section";
}

TEST(SectionMaker, MakesHeadsThatShowTheSameOnce) {
    const char* kKeys[] = {"same", "same", "other", "other", "same", "same"};
    DocumentDraft draft = makeDraft(6);
    std::vector<PageRunningHeads> heads(6);
    for (std::size_t page = 0; page < 6; ++page) {
        addLine(draft, page, 72, 84);
        heads[page].header = RunningHead{tests::makePage(1), {}, kKeys[page], {}};
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

/// Two pages: the first ends at `end`, a picture starts the second.
DocumentDraft typesetPages(double end) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0, end);
    draft.blocks.push_back(tests::makePictureBlock({72, 75, 372, 178}));
    draft.blocks.back().page = 1;
    for (double baseline = 200; baseline <= 760; baseline += 20)
        addLine(draft, 1, 72, baseline);
    return draft;
}

DocumentContext typesetText() {
    DocumentContext context;
    context.making = PageMaking::Program;
    return context;
}

TEST(SectionMaker, TakesPagesOfALineEachForStartedByHand) {
    DocumentDraft draft = makeDraft(3);
    for (std::size_t page = 0; page < 3; ++page)
        addLine(draft, page, 72, 190);
    sectionsOf(draft);
    EXPECT_TRUE(firstOn(draft, 1).startsPage);
    EXPECT_TRUE(firstOn(draft, 2).startsPage);
    EXPECT_LT(setupBottom(draft, 0), 200) << "the pages are as high as others";
}

TEST(SectionMaker, LeavesPicturesWhereProgramsPutThem) {
    DocumentDraft draft = typesetPages(660);
    sectionsOf(draft, {}, typesetText());
    EXPECT_FALSE(firstOn(draft, 1).startsPage) << "the program moved it there";
    DocumentDraft byHand = typesetPages(660);
    sectionsOf(byHand);
    EXPECT_TRUE(firstOn(byHand, 1).startsPage);
}

TEST(SectionMaker, KnowsPagesThatNoProgramLeavesSoEmpty) {
    DocumentDraft draft = typesetPages(300);
    sectionsOf(draft, {}, typesetText());
    EXPECT_TRUE(firstOn(draft, 1).startsPage);
}

TEST(SectionMaker, DoesNotBreakFullPagesOfProgramsThoughTextStandsBelowWhatFloatsOnTheNext) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0);
    draft.blocks.push_back(tests::makePictureBlock({72, 75, 372, 178}));
    draft.blocks.back().page = 1;
    std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
    for (double baseline = 200; baseline <= 760; baseline += 20)
        addLine(draft, 1, 72, baseline);
    DocumentDraft byHand = draft;
    sectionsOf(draft, {}, typesetText());
    EXPECT_FALSE(draft.blocks[draft.blocks.size() - 29].startsPage) << "a line too many would cost a page";
    sectionsOf(byHand);
    EXPECT_TRUE(byHand.blocks[byHand.blocks.size() - 29].startsPage);
}

TEST(SectionMaker, KnowsThatProgramsSetFirstLinesByTheirBaselines) {
    const auto draftFrom = [](double baseline) {
        DocumentDraft draft = makeDraft(2);
        fillPage(draft, 0);
        for (; baseline <= 760; baseline += 20)
            addLine(draft, 1, 72, baseline);
        return draft;
    };
    DocumentDraft byHand = draftFrom(92);
    sectionsOf(byHand);
    EXPECT_TRUE(firstOn(byHand, 1).startsPage) << "word processors leave no space there";
    const struct {
        double baseline;
        bool startsPage;
        const char* why;
    } rows[] = {{92, false, "letters smaller than others"}, {124, true, "a chapter's head"}};
    for (const auto& row : rows) {
        DocumentDraft draft = draftFrom(row.baseline);
        for (DraftBlock& block : draft.blocks)
            if (block.page == 1) {
                block.paragraph()->role = ParagraphRole::Heading;
                break;
            }
        sectionsOf(draft, {}, typesetText());
        EXPECT_EQ(firstOn(draft, 1).startsPage, row.startsPage) << row.why;
    }
}

TEST(SectionMaker, LeavesPagesOfProgramsAllTheRoomThatTheirBreaksAllow) {
    const auto bottomOf = [](const DocumentContext& context) {
        DocumentDraft draft = makeDraft(3);
        for (const std::size_t page : {0u, 1u, 2u})
            fillPage(draft, page, 720);
        sectionsOf(draft, {}, context);
        EXPECT_FALSE(firstOn(draft, 1).startsPage);
        return setupBottom(draft, 0);
    };
    const double end = tests::makePage(1).height - 706, line = 10 * 1.3;
    EXPECT_LT(bottomOf(typesetText()), bottomOf({}));
    EXPECT_GT(bottomOf(typesetText()), end - line) << "no further line would have room";
}

TEST(SectionMaker, TakesAPictureAtThePagesTopForItsStart) {
    DocumentDraft draft = typesetPages(760);
    sectionsOf(draft);
    EXPECT_FALSE(firstOn(draft, 1).startsPage) << "nothing stands above it, and the page before was full";
}

TEST(SectionMaker, LetsAPictureBelowATableStartItsPage) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0, 730);
    draft.blocks.push_back(tableAt(0, 741, true));
    draft.blocks.push_back(tests::makePictureBlock({72, 74.3, 372, 178}));
    draft.blocks.back().page = 1;
    fillPage(draft, 1);
    sectionsOf(draft);
    EXPECT_TRUE(firstOn(draft, 1).startsPage);
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

TEST(SectionMaker, LetsTheSecondOfTwoTablesStartItsPage) {
    DocumentDraft draft = makeDraft(2);
    fillPage(draft, 0, 740);
    draft.blocks.push_back(tableAt(0, 745, true));
    draft.blocks.push_back(tableAt(1, 74.3, true));
    fillPage(draft, 1);
    sectionsOf(draft);
    EXPECT_TRUE(firstOn(draft, 1).startsPage);
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

/// A running head of one line that ends at `baseline`, with a key of its own.
RunningHead makeHead(int page, double baseline, const std::string& text) {
    RunningHead head;
    head.key = text;
    head.content = tests::makePage(page);
    head.content.lines.push_back(makeLine(text, 290, baseline));
    return head;
}

TEST(SectionMaker, FloatsPicturesOfHeadsThatReachFarIntoThePage) {
    DocumentDraft draft = makeDraft(1);
    fillPage(draft, 0);
    std::vector<PageRunningHeads> heads(1);
    heads[0].header = RunningHead{tests::makePage(1), {}, "pictures", {}};
    for (const Rect& box : {Rect{72, 30, 300, 80}, Rect{72, 200, 300, 700}}) {
        Figure picture;
        picture.picture = PictureId{static_cast<std::uint32_t>(heads[0].header->content.figures.size() + 1)};
        picture.box = box;
        heads[0].header->content.figures.push_back(picture);
    }
    sectionsOf(draft, heads);
    const auto& header = draft.sections.at(0).header.standard.value();
    ASSERT_EQ(header.size(), 2u);
    for (const DraftBlock& block : header)
        EXPECT_EQ(std::get<FigureDraft>(block.value).isInline, block.box.bottom < 100) << block.box.bottom;
}

TEST(SectionMaker, SetsHeadsInTheColumnOfEachSection) {
    DocumentDraft draft = makeDraft(4);
    std::vector<PageRunningHeads> heads(4);
    for (std::size_t page = 0; page < 4; ++page) {
        draft.pages[page].width = page < 2 ? 595 : 842;
        for (double baseline = 84; baseline <= 760; baseline += 20)
            addLine(draft, page, page < 2 ? 72 : 300, baseline);
        heads[page].header = RunningHead{tests::makePage(1), {}, "head", {}};
        heads[page].header->content.lines.push_back(makeLine("a head", 72, 40));
    }
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 2u);
    const auto startOf = [&](std::size_t section) {
        const DraftParagraph& head = *draft.sections[section].header.standard.value().front().paragraph();
        return head.firstLine().box.left - head.pieces.front().column.left;
    };
    EXPECT_NEAR(startOf(0), 0, 1);
    EXPECT_NEAR(startOf(1), 72 - 300, 1) << "out in the margin";
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

TEST(SectionMaker, LeavesRoomForTheBordersOfHeads) {
    struct Head {
        document::Section setup;
        int space = 0; ///< between the head and the ground's upper edge
    };
    const auto headAt = [](double baseline) {
        DocumentDraft draft = makeDraft(3);
        std::vector<PageRunningHeads> heads(3);
        for (std::size_t page = 0; page < 3; ++page) {
            fillPage(draft, page, 700);
            heads[page].header = makeHead(static_cast<int>(page) + 1, baseline, "Title");
            const Rect text = heads[page].header->content.lines.front().box;
            const Rect ground{72, std::max(0.0, text.top - 6), 523, text.bottom + 1};
            heads[page].header->content.grounds = {{ground, {0, 0, 0x80}, 1, false, 0, {}}};
        }
        sectionsOf(draft, heads);
        const DraftBlock& head = draft.sections.at(0).header.standard.value().front();
        return Head{draft.sections[0].setup, head.paragraph()->pieces.front().text.borders.top.spacePoints};
    };
    const Head usual = headAt(50);
    EXPECT_EQ(usual.space, 6);
    EXPECT_NEAR(pointsFromTwips(usual.setup.headerDistance), 50 - 9.5 - 6, 1);
    const Head high = headAt(13);
    EXPECT_LT(high.space, 5) << "no border reaches over the edge of the page and pushes the text down";
    EXPECT_LT(pointsFromTwips(high.setup.headerDistance), 1);
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

TEST(SectionMaker, PartsPagesThatAreCountedInOtherSigns) {
    DocumentDraft draft = makeDraft(4);
    std::vector<PageRunningHeads> heads(4);
    for (std::size_t page = 0; page < 4; ++page) {
        fillPage(draft, page);
        heads[page].footer.emplace().key = "#";
        heads[page].footer->content = tests::makePage(static_cast<int>(page) + 1);
    }
    heads[0].number = PageNumber{1, document::NumberFormat::LowerRoman};
    heads[1].number = PageNumber{2, document::NumberFormat::LowerRoman};
    heads[3].number = PageNumber{2, document::NumberFormat::Decimal}; // the first page of the text shows none
    sectionsOf(draft, heads);
    ASSERT_EQ(draft.sections.size(), 2u);
    EXPECT_EQ(draft.sections[0].setup.pageNumberFormat, document::NumberFormat::LowerRoman);
    EXPECT_EQ(draft.sections[1].setup.pageNumberFormat, document::NumberFormat::Decimal);
    EXPECT_EQ(draft.sections[1].setup.firstPageNumber, 1);
    EXPECT_EQ(draft.blocks[draft.sections[1].firstBlock].page, 2u);
}

} // namespace
} // namespace orvane::layout
