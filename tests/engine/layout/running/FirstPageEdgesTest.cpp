#include "layout/running/FirstPageEdges.h"

#include "engine/layout/LineArt.h"
#include "engine/layout/running/RunningPages.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::linesOf;
using tests::makeLine;
using tests::pagesWith;
using tests::ruleAt;

TEST(FirstPageEdges, TakesTheFirstPagesOwnHead) {
    auto pages = pagesWith(4, [](PageText& page, int number) {
        page.lines.push_back(makeLine(number == 1 ? "Draft" : "Annual report", 72, 50));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(linesOf(heads[0].header), "Draft");
    EXPECT_NE(heads[0].header->key, heads[1].header->key);
}

TEST(FirstPageEdges, LeavesWhatStandsOtherwiseThanTheHeads) {
    struct Row {
        Line line;
        const char* why;
    };
    const Row kRows[] = {{makeLine("A title of its own", 72, 50, {.size = 16}), "it is larger"},
                         {makeLine("Aside", 200, 50), "it stands elsewhere between the sides"},
                         {makeLine("Above", 72, 42), "it stands higher"}};
    for (const Row& row : kRows) {
        auto pages = pagesWith(4, [&](PageText& page, int number) {
            page.lines.push_back(number == 1 ? row.line : makeLine("Annual report", 72, 50));
        });
        const auto heads = takeRunningHeads(pages, {});
        EXPECT_FALSE(heads[0].header) << row.why;
        EXPECT_EQ(pages[0].lines.size(), 31u) << row.why;
        EXPECT_EQ(linesOf(heads[1].header), "Annual report");
    }
}

TEST(FirstPageEdges, TakesTheFirstPagesOwnHeadWhereItsTextComesNear) {
    const struct {
        const char* why;
        Line text;
        const char* header;
    } rows[] = {{"of another size", makeLine("Title", 72, 74, {.size = 16}), "Draft"},
                {"beside it", makeLine("Title", 300, 56), "Draft"},
                {"a line like it", makeLine("more of this", 72, 64), ""}};
    for (const auto& row : rows) {
        auto pages = pagesWith(4, [&](PageText& page, int number) {
            page.lines.push_back(makeLine(number == 1 ? "Draft" : "Annual report", 72, 50));
            if (number == 1)
                page.lines.push_back(row.text);
        });
        EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[0].header), row.header) << row.why;
    }
}

TEST(FirstPageEdges, TakesAFootThatOnlyTheFirstPageHas) {
    const struct {
        const char* why;
        double baseline;
        int page;
        const char* footer;
    } rows[] = {{"below the text of all pages", 790, 1, "The authors"},
                {"as near as lines of the text", 760, 1, ""},
                {"on a later page", 790, 2, ""}};
    for (const auto& row : rows) {
        auto pages = pagesWith(4, [&](PageText& page, int number) {
            page.lines.push_back(makeLine(fmt::format("the end of {}", char('a' + number)), 72, 740));
            if (number == row.page)
                page.lines.push_back(makeLine("The authors", 72, row.baseline));
        });
        const auto heads = takeRunningHeads(pages, {});
        EXPECT_EQ(linesOf(heads[static_cast<std::size_t>(row.page) - 1].footer), row.footer) << row.why;
    }
}

TEST(FirstPageEdges, TakesTheFootOfAFullFirstPageThatNoOtherPageCanShow) {
    const struct {
        const char* why;
        double firstEnds;
        bool isTable;
        double secondEnds;
        const char* footer;
    } rows[] = {{"the second page is short", 740, false, 200, "a street and a town"},
                {"the second page has its text there", 740, false, 820, ""},
                {"a cover", 600, false, 200, ""},
                {"a table goes on", 740, true, 200, ""}};
    for (const auto& row : rows) {
        auto pages = pagesWith(2, [&](PageText& page, int number) {
            page.lines.resize(number == 1 ? 20 : 3);
            page.lines.push_back(makeLine("so it ends", 72, number == 1 ? row.firstEnds : row.secondEnds));
            if (number == 1)
                page.lines.push_back(makeLine("a street and a town", 72, 800));
            if (number == 1 && row.isTable)
                page.rules = {ruleAt(RuleDirection::Vertical, 70, 90, 750),
                              ruleAt(RuleDirection::Vertical, 500, 90, 750)};
        });
        EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[0].footer), row.footer) << row.why;
    }
}

/// Four pages of text from 92 points on, the first with these lines on it.
std::vector<PageText> pagesWithLetterhead(const std::vector<Line>& lines) {
    return pagesWith(4, [&](PageText& page, int number) {
        for (const Line& line : lines)
            if (number == 1)
                page.lines.push_back(line);
    });
}

TEST(FirstPageEdges, TakesALetterheadThatStandsAboveThePlaceOfAllText) {
    const struct {
        const char* why;
        std::vector<Line> lines;
        const char* header;
    } rows[] = {{"above it", {makeLine("The firm", 72, 40), makeLine("its street", 72, 52)}, "The firm|its street"},
                {"with a gap", {makeLine("The firm", 72, 40), makeLine("its street", 72, 70)}, "The firm|its street"},
                {"running on into the text", {makeLine("The firm", 72, 76), makeLine("its street", 72, 88)}, ""},
                {"not higher than the text", {makeLine("The firm", 72, 95)}, ""},
                {"a title", {makeLine("The report", 72, 50, {.size = 20})}, ""}};
    for (const auto& row : rows) {
        auto pages = pagesWithLetterhead(row.lines);
        const auto heads = takeRunningHeads(pages, {});
        EXPECT_EQ(linesOf(heads[0].header), row.header) << row.why;
        EXPECT_FALSE(heads[1].header) << row.why;
    }
}

TEST(FirstPageEdges, TakesALetterheadWithWhatIsInItsFrame) {
    auto pages = pagesWith(4, [](PageText& page, int number) {
        if (number == 1) {
            page.lines = {makeLine("The firm", 80, 60), makeLine("Made by", 300, 60), makeLine("Date", 300, 110),
                          makeLine("Text", 72, 160), makeLine("and more", 72, 172)};
            for (const double x : {72.0, 290.0, 500.0}) {
                Rule& rule = page.rules.emplace_back();
                rule.direction = RuleDirection::Vertical;
                rule.position = x;
                rule.from = 40;
                rule.to = 130;
            }
        }
    });
    EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[0].header), "The firm|Made by|Date");
    EXPECT_EQ(pages[0].lines.size(), 2u);
}

TEST(FirstPageEdges, LeavesATitleWhereLogosPushTheTextOfOtherPagesDown) {
    auto pages = pagesWithLetterhead({makeLine("The statutes", 72, 40)});
    for (std::size_t i = 1; i < pages.size(); ++i) {
        Figure logo;
        logo.box = {250, 30, 350, 80};
        pages[i].figures.push_back(logo);
    }
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].header);
}

TEST(FirstPageEdges, LeavesALetterheadWhereOtherPagesBeginAsHigh) {
    auto pages = pagesWithLetterhead({makeLine("The firm", 72, 40)});
    pages[2].lines.push_back(makeLine("text from the top", 72, 42));
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].header);
}

} // namespace
} // namespace orvane::layout
