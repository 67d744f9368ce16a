#include "layout/running/RunningHeads.h"

#include "engine/layout/LineArt.h"
#include "engine/layout/running/RunningPages.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::FieldCode;
using document::NumberFormat;
using tests::linesOf;
using tests::makeLine;
using tests::makePage;
using tests::pagesWith;
using tests::ruleAt;

TEST(RunningHeads, TakesRepeatedLinesOffAllPages) {
    auto pages = pagesWith(4, [](PageText& page, int) {
        page.lines.push_back(makeLine("Annual report", 72, 50));
        page.lines.push_back(makeLine("Confidential", 72, 800));
    });
    const auto heads = takeRunningHeads(pages, {});
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_EQ(linesOf(heads[i].header), "Annual report");
        EXPECT_EQ(linesOf(heads[i].footer), "Confidential");
        EXPECT_EQ(pages[i].lines.size(), 30u);
        EXPECT_EQ(heads[i].header->key, heads[0].header->key);
    }
}

TEST(RunningHeads, TakesTheRowAboveThePictureInTheFoot) {
    for (const int last : {4, 2}) {
        auto pages = pagesWith(4, [&](PageText& page, int number) {
            if (number <= last)
                page.lines.push_back(makeLine("Marking", 72, 725));
            page.lines.push_back(makeLine(fmt::format("Page {}", number), 72, 800));
        });
        EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[0].footer), last == 4 ? "Marking|Page 1" : "Page 1")
            << "on " << last << " pages";
    }
}

TEST(RunningHeads, LeavesWhatRepeatsFarBelowTheHead) {
    auto pages = pagesWith(4, [](PageText& page, int) {
        page.lines.push_back(makeLine("Annual report", 72, 30));
        page.lines.push_back(makeLine("Marking", 72, 84));
    });
    EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[0].header), "Annual report");
}

TEST(RunningHeads, LeavesTheOnlyTextOfThePages) {
    std::vector<PageText> pages;
    for (int number = 1; number <= 6; ++number) {
        pages.push_back(makePage(number));
        pages.back().lines.push_back(makeLine(fmt::format("Potato {}", number), 72, 60));
    }
    for (const PageRunningHeads& heads : takeRunningHeads(pages, {}))
        EXPECT_FALSE(heads.header || heads.footer);
    for (const PageText& page : pages)
        EXPECT_EQ(page.lines.size(), 1u);
}

TEST(RunningHeads, KnowsPageNumbers) {
    auto pages = pagesWith(12, [](PageText& page, int number) {
        page.lines.push_back(makeLine(fmt::format("Page {} of 12", number), 280, 800));
    });
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[10].footer);
    ASSERT_EQ(heads[10].footer->fields.size(), 2u);
    const Line& line = heads[10].footer->content.lines[0];
    for (const RunningField& field : heads[10].footer->fields)
        EXPECT_EQ(field.box, line.words[field.code == FieldCode::Page ? 1 : 3].spans[0].box);
    EXPECT_EQ(heads[10].number, (PageNumber{11, NumberFormat::Decimal}));
}

TEST(RunningHeads, LeavesANumberThatStaysTheSame) {
    auto pages = pagesWith(4, [](PageText& page, int number) {
        page.lines.push_back(makeLine("Volume 1", 72, 790));
        page.lines.push_back(makeLine(fmt::format("Page {}", number), 280, 810));
    });
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[0].footer);
    ASSERT_EQ(heads[0].footer->fields.size(), 1u);
    EXPECT_EQ(heads[0].footer->fields[0].box, heads[0].footer->content.lines[1].words[1].spans[0].box);
}

TEST(RunningHeads, LeavesANumberBehindThePagesThatIsNotTheirs) {
    const auto fieldsWith = [](const char* behind) {
        auto pages = pagesWith(4, [&](PageText& page, int number) {
            page.lines.push_back(makeLine(fmt::format("Page {} {}", number, behind), 280, 800));
        });
        return takeRunningHeads(pages, {})[1].footer->fields.size();
    };
    EXPECT_EQ(fieldsWith("of 4"), 2u);
    EXPECT_EQ(fieldsWith("of 9"), 1u) << "some pages of another document";
    EXPECT_EQ(fieldsWith("June 27"), 1u);
}

TEST(RunningHeads, CutsNumbersOutOfWords) {
    auto pages = pagesWith(
        3, [](PageText& page, int number) { page.lines.push_back(makeLine(fmt::format("-{}-", number), 290, 800)); });
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[1].footer);
    const Word& word = heads[1].footer->content.lines[0].words[0];
    ASSERT_EQ(word.spans.size(), 3u);
    EXPECT_EQ(word.spans[1].text, "2");
    ASSERT_EQ(heads[1].footer->fields.size(), 1u);
    EXPECT_EQ(heads[1].footer->fields[0].box, word.spans[1].box);
}

TEST(RunningHeads, TakesTheLoneNumberOfAChaptersFirstPage) {
    auto pages = pagesWith(9, [](PageText& page, int number) {
        if (number == 5)
            page.lines.push_back(makeLine("5", 290, 800));
        else if (number == 7)
            page.lines.push_back(makeLine("55", 290, 800)); // of the text
        else
            page.lines.push_back(makeLine(fmt::format("{} A book of it", number), 72, 800));
        if (number % 2 == 1)
            page.lines.push_back(makeLine("printed at home", 72, 820));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(linesOf(heads[4].footer), "5|printed at home");
    EXPECT_EQ(heads[4].number, (PageNumber{5, NumberFormat::Decimal}));
    ASSERT_EQ(heads[4].footer->fields.size(), 1u);
    EXPECT_EQ(heads[4].footer->fields[0].code, FieldCode::Page);
    EXPECT_EQ(linesOf(heads[6].footer), "printed at home");
}

TEST(RunningHeads, CountsInRomanNumerals) {
    const char* kNumerals[] = {"vii", "viii", "ix", "x"};
    auto pages = pagesWith(
        4, [&](PageText& page, int number) { page.lines.push_back(makeLine(kNumerals[number - 1], 290, 800)); });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(heads[2].number, (PageNumber{9, NumberFormat::LowerRoman}));
    EXPECT_EQ(linesOf(heads[2].footer), "ix");
}

TEST(RunningHeads, ComparesOddAndEvenPagesByThemselves) {
    auto pages = pagesWith(6, [](PageText& page, int number) {
        page.lines.push_back(number % 2 ? makeLine("Odd pages", 440, 50) : makeLine("Even pages", 72, 50));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(linesOf(heads[2].header), "Odd pages");
    EXPECT_EQ(linesOf(heads[3].header), "Even pages");
}

TEST(RunningHeads, TakesALineOfAnotherSizeThatTouchesTheText) {
    for (const double size : {8.0, 10.0}) {
        auto pages = pagesWith(
            2, [&](PageText& page, int) { page.lines.push_back(makeLine("Annual report", 72, 91, {.size = size})); });
        EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[0].header), size == 8 ? "Annual report" : "");
    }
}

TEST(RunningHeads, LeavesWhatRepeatsWhereSomePagesStartTheirText) {
    auto pages = pagesWith(8, [](PageText& page, int number) {
        if (number < 3)
            page.lines.push_back(makeLine(fmt::format("Text {}", char('a' + number)), 72, 82));
        else
            page.lines.push_back(makeLine("Year\tSum", 72, 80));
    });
    for (const PageRunningHeads& heads : takeRunningHeads(pages, {}))
        EXPECT_FALSE(heads.header);
}

TEST(RunningHeads, SayAnotherThingWithAnotherNumberThatDoesNotCount) {
    auto pages = pagesWith(6, [](PageText& page, int number) {
        page.lines.push_back(makeLine(fmt::format("Chapter {}\t{}", number < 4 ? 1 : 2, number), 72, 50));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(heads[0].header->key, heads[2].header->key);
    EXPECT_NE(heads[2].header->key, heads[3].header->key);
}

TEST(RunningHeads, LeavesWhatRepeatsWhereOtherPagesHaveTheirText) {
    auto pages = pagesWith(9, [](PageText& page, int number) {
        page.lines.push_back(makeLine("Annual report", 72, 50));
        if (number > 6)
            page.lines.push_back(makeLine("Year\tSum", 72, 80));
        else
            page.lines.push_back(makeLine(fmt::format("Text {}{}", char('a' + number), char('f' + number)), 72, 80));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(linesOf(heads[7].header), "Annual report");
    EXPECT_EQ(pages[7].lines.size(), 31u);
}

TEST(RunningHeads, TellsThePageNumberFromOthersThatCount) {
    auto pages = pagesWith(9, [](PageText& page, int number) {
        page.lines.push_back(makeLine(fmt::format("{}", number + 20), 290, 50));
        if (number == 4 || number == 5)
            page.lines.push_back(makeLine(fmt::format("{}", number - 2), 72, 760)); // of a note
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(heads[3].number, (PageNumber{24, NumberFormat::Decimal}));
    EXPECT_FALSE(heads[3].footer);
    EXPECT_EQ(linesOf(heads[3].header), "24");
}

TEST(RunningHeads, TakesTitlesThatChangeBesideThePageNumber) {
    const char* kTitles[] = {"Aims", "Means", "Results", "Outlook"};
    auto pages = pagesWith(4, [&](PageText& page, int number) {
        page.lines.push_back(makeLine(fmt::format("{}\t{}", number, kTitles[number - 1]), 72, 50));
    });
    EXPECT_EQ(linesOf(takeRunningHeads(pages, {})[2].header), "3\tResults");
}

TEST(RunningHeads, NeverEatsTextThatOnlyLooksAlike) {
    const struct {
        const char* why;
        std::function<void(PageText&, int)> addHeads;
    } cases[] = {
        {"chapters of one page each",
         [](PageText& page, int number) {
             page.lines.insert(page.lines.begin(), makeLine(fmt::format("Chapter {}", number), 72, 60, {.size = 18}));
         }},
        {"numbers that do not count the pages",
         [](PageText& page, int number) {
             page.lines.insert(page.lines.begin(), makeLine(fmt::format("Total {}", number * number * 7), 72, 80));
         }},
        {"in the middle of the page",
         [](PageText& page, int) { page.lines.push_back(makeLine("the same words", 300, 400)); }},
    };
    for (const auto& [why, addHeads] : cases) {
        auto pages = pagesWith(4, addHeads);
        for (const PageRunningHeads& heads : takeRunningHeads(pages, {}))
            EXPECT_FALSE(heads.header || heads.footer) << why;
    }
}

TEST(RunningHeads, LeavesTheHeadsOfTablesThatGoOn) {
    auto pages = pagesWith(3, [](PageText& page, int) {
        page.lines.insert(page.lines.begin(), makeLine("Name\tTown\tStreet", 72, 80));
        Rule rule;
        rule.direction = RuleDirection::Vertical;
        rule.position = 100;
        rule.from = 70;
        rule.to = 700;
        page.rules.push_back(rule);
    });
    EXPECT_FALSE(takeRunningHeads(pages, {})[1].header);
}

TEST(RunningHeads, LeavesTheSidesOfBoxesThatReachIntoTheText) {
    auto pages = pagesWith(3, [](PageText& page, int) {
        page.lines.push_back(makeLine("Annual report", 72, 40));
        for (const double y : {55.0, 60.0})
            page.rules.push_back(ruleAt(RuleDirection::Horizontal, y, 72, 523));
        for (const double x : {72.0, 523.0})
            page.rules.push_back(ruleAt(RuleDirection::Vertical, x, 60, 140));
    });
    const auto heads = takeRunningHeads(pages, {});
    for (std::size_t i = 0; i < pages.size(); ++i) {
        ASSERT_EQ(heads[i].header->content.rules.size(), 1u) << "the rule below the head";
        EXPECT_EQ(heads[i].header->content.rules[0].position, 55);
        EXPECT_EQ(pages[i].rules.size(), 3u) << "the box begins between head and text";
    }
}

} // namespace
} // namespace orvane::layout
