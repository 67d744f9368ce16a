#include "layout/running/OnlyPageEdges.h"

#include "engine/layout/LineArt.h"
#include "engine/layout/running/RunningPages.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::linesOf;
using tests::makeLine;
using tests::makePage;
using tests::pagesWith;
using tests::ruleAt;

TEST(OnlyPageEdges, LeavesWordsOfSinglePagesAlone) {
    auto pages = pagesWith(1, [](PageText& page, int) { page.lines.push_back(makeLine("one", 290, 730)); });
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].footer);
    EXPECT_EQ(pages[0].lines.size(), 31u);
}

TEST(OnlyPageEdges, LeavesANumberAtTheHeadOfASinglePageAlone) {
    auto pages = pagesWith(1, [](PageText& page, int) { page.lines.push_back(makeLine("7", 290, 40)); });
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].header) << "it may be a chapter's";
}

TEST(OnlyPageEdges, KnowsTheNumberOfASinglePage) {
    const struct {
        const char* text;
        std::size_t fields;
    } rows[] = {{"Page 1 of 1", 2},
                {"1/1", 2},
                {"- 1 | 1", 2},
                {"Article 1 of law 1 is in force", 0},
                {"1 a 1 b", 0},
                {"7", 1},
                {"- 15 -", 1},
                {"Figure 7", 0},
                {"Annual report\tPage 1", 1},
                {"Annual report\t1", 1},
                {"Annual report 1", 0},
                {"Annual report\tRoom 12", 0}};
    for (const auto& row : rows) {
        auto pages = pagesWith(1, [&](PageText& page, int) { page.lines.push_back(makeLine(row.text, 290, 770)); });
        const auto heads = takeRunningHeads(pages, {});
        EXPECT_EQ(heads[0].footer ? heads[0].footer->fields.size() : 0, row.fields) << row.text;
        EXPECT_EQ(pages[0].lines.size(), row.fields > 0 ? 30u : 31u) << row.text;
    }
}

TEST(OnlyPageEdges, TakesTheFootOfASinglePage) {
    const struct {
        const char* text;
        double size;
        double baseline;
        bool isFoot;
        const char* why;
    } rows[] = {{"Page 1 of 2", 10, 800, true, "it counts the pages of a longer document"},
                {"Bank of Somewhere, account 12 34", 8, 800, true, "in small letters at the edge"},
                {"and so the text ends", 10, 760, false, "in the letters of the text, above the margin"},
                {"a street and a town", 10, 800, true, "far below the text in the margin"},
                {"A TITLE", 14, 800, false, "larger than the text"},
                {"and so the text ends", 8, 703, false, "right below the text"},
                {"a note in small letters", 8, 730, false, "far from the edge"}};
    for (const auto& row : rows) {
        auto pages = pagesWith(1, [&](PageText& page, int) {
            page.lines.push_back(makeLine(row.text, 290, row.baseline, {.size = row.size}));
        });
        const auto heads = takeRunningHeads(pages, {});
        EXPECT_EQ(heads[0].footer.has_value(), row.isFoot) << row.text << ": " << row.why;
        EXPECT_EQ(linesOf(heads[0].footer), row.isFoot ? row.text : "");
        EXPECT_FALSE(heads[0].number) << "the page itself has no number";
    }
}

TEST(OnlyPageEdges, TakesTheFootOfAPageThatIsMostlyBlankButNoNotes) {
    const auto hasFoot = [](double separatorEnd) {
        std::vector<PageText> pages{makePage(1)};
        pages[0].lines = {makeLine("a short letter", 72, 100), makeLine("of two lines", 72, 120),
                          makeLine("a street and a town", 72, 770)};
        pages[0].rules = {ruleAt(RuleDirection::Horizontal, 750, 72, separatorEnd)};
        return takeRunningHeads(pages, {})[0].footer.has_value();
    };
    EXPECT_TRUE(hasFoot(400)) << "below a long rule";
    EXPECT_TRUE(hasFoot(167)) << "below the middle of the rule";
    EXPECT_FALSE(hasFoot(200)) << "a note";
}

TEST(OnlyPageEdges, LeavesNotesInTheMarginOfASinglePage) {
    const auto hasFoot = [](bool hasSeparator, bool isReferredTo) {
        auto pages = pagesWith(1, [&](PageText& page, int) {
            page.lines.push_back(makeLine("1", 72, 787, {.size = 5}));
            page.lines.push_back(makeLine("In 1.4 this was otherwise.", 80, 790, {.size = 8}));
            if (hasSeparator)
                page.rules = {ruleAt(RuleDirection::Horizontal, 780, 72, 172)};
            Word& word = page.lines[0].words.back();
            word.spans.push_back(word.spans[0]);
            word.spans.back().text = isReferredTo ? "1" : "2";
            word.spans.back().look.verticalPosition = document::VerticalPosition::Superscript;
        });
        return takeRunningHeads(pages, {})[0].footer.has_value();
    };
    EXPECT_TRUE(hasFoot(false, false));
    EXPECT_FALSE(hasFoot(true, false)) << "below a short rule";
    EXPECT_FALSE(hasFoot(false, true)) << "the text refers to it";
}

} // namespace
} // namespace orvane::layout
