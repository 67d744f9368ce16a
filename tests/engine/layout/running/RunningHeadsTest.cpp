#include "layout/running/RunningHeads.h"

#include "layout/text/LineText.h"

#include "engine/layout/TextBuilder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <functional>

namespace orvane::layout {
namespace {

using document::FieldCode;
using document::NumberFormat;
using tests::makeLine;
using tests::makePage;

/// Pages of text, each with what `addHeads(page, number)` puts on it.
std::vector<PageText> pagesWith(int count, const std::function<void(PageText&, int)>& addHeads) {
    const char* kTexts[] = {"one line of some text", "other words are here", "nothing repeats below",
                            "a fourth kind of words", "yet another line"};
    std::vector<PageText> pages;
    for (int number = 1; number <= count; ++number) {
        pages.push_back(makePage(number));
        for (int i = 0; i < 30; ++i)
            pages.back().lines.push_back(
                makeLine(fmt::format("{} {}{}", kTexts[(i + 2 * number) % 5], char('a' + number), char('a' + i)), 72,
                         100 + i * 20));
        addHeads(pages.back(), number);
    }
    return pages;
}

std::string linesOf(const std::optional<RunningHead>& head) {
    std::string text;
    if (head)
        for (const Line& line : head->content.lines)
            text += fmt::format("{}{}", text.empty() ? "" : "|", textOf(line));
    return text;
}

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

TEST(RunningHeads, TakesTheFirstPagesOwnHead) {
    auto pages = pagesWith(4, [](PageText& page, int number) {
        page.lines.push_back(makeLine(number == 1 ? "Draft" : "Annual report", 72, 50));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(linesOf(heads[0].header), "Draft");
    EXPECT_NE(heads[0].header->key, heads[1].header->key);
}

TEST(RunningHeads, LeavesWhatStandsOtherwiseThanTheHeads) {
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

TEST(RunningHeads, TakesTheFirstPagesOwnHeadWhereItsTextComesNear) {
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

TEST(RunningHeads, TakesAFootThatOnlyTheFirstPageHas) {
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

/// Four pages of text from 92 points on, the first with these lines on it.
std::vector<PageText> pagesWithLetterhead(const std::vector<Line>& lines) {
    return pagesWith(4, [&](PageText& page, int number) {
        for (const Line& line : lines)
            if (number == 1)
                page.lines.push_back(line);
    });
}

TEST(RunningHeads, TakesALetterheadThatStandsAboveThePlaceOfAllText) {
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

TEST(RunningHeads, TakesALetterheadWithWhatIsInItsFrame) {
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

TEST(RunningHeads, LeavesATitleWhereLogosPushTheTextOfOtherPagesDown) {
    auto pages = pagesWithLetterhead({makeLine("The statutes", 72, 40)});
    for (std::size_t i = 1; i < pages.size(); ++i) {
        Figure logo;
        logo.box = {250, 30, 350, 80};
        pages[i].figures.push_back(logo);
    }
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].header);
}

TEST(RunningHeads, LeavesALetterheadWhereOtherPagesBeginAsHigh) {
    auto pages = pagesWithLetterhead({makeLine("The firm", 72, 40)});
    pages[2].lines.push_back(makeLine("text from the top", 72, 42));
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].header);
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

TEST(RunningHeads, LeavesWordsOfSinglePagesAlone) {
    auto pages = pagesWith(1, [](PageText& page, int) { page.lines.push_back(makeLine("one", 290, 800)); });
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].footer);
    EXPECT_EQ(pages[0].lines.size(), 31u);
}

TEST(RunningHeads, LeavesANumberAtTheHeadOfASinglePageAlone) {
    auto pages = pagesWith(1, [](PageText& page, int) { page.lines.push_back(makeLine("7", 290, 40)); });
    EXPECT_FALSE(takeRunningHeads(pages, {})[0].header) << "it may be a chapter's";
}

TEST(RunningHeads, KnowsTheNumberOfASinglePage) {
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
        auto pages = pagesWith(1, [&](PageText& page, int) { page.lines.push_back(makeLine(row.text, 290, 800)); });
        const auto heads = takeRunningHeads(pages, {});
        EXPECT_EQ(heads[0].footer ? heads[0].footer->fields.size() : 0, row.fields) << row.text;
        EXPECT_EQ(pages[0].lines.size(), row.fields > 0 ? 30u : 31u) << row.text;
    }
}

TEST(RunningHeads, TakesTheFootOfASinglePage) {
    const struct {
        const char* text;
        double size;
        double baseline;
        bool isFoot;
        const char* why;
    } rows[] = {{"Page 1 of 2", 10, 800, true, "it counts the pages of a longer document"},
                {"Bank of Somewhere, account 12 34", 8, 800, true, "in small letters at the edge"},
                {"and so the text ends", 10, 800, false, "in the letters of the text"},
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

TEST(RunningHeads, TakesLogosAndRulesAlong) {
    auto pages = pagesWith(3, [](PageText& page, int) {
        page.lines.push_back(makeLine("Annual report", 72, 50));
        Rule rule;
        rule.position = 55;
        rule.from = 72;
        rule.to = 523;
        page.rules.push_back(rule);
        Figure logo;
        logo.picture = PictureId{7};
        logo.box = {480, 20, 523, 60};
        page.figures.push_back(logo);
        Figure picture;
        picture.picture = PictureId{static_cast<std::uint32_t>(10 + page.number)};
        picture.box = {100, 300, 300, 400};
        page.figures.push_back(picture);
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_EQ(heads[1].header->content.rules.size(), 1u);
    ASSERT_EQ(heads[1].header->content.figures.size(), 1u);
    EXPECT_EQ(heads[1].header->content.figures[0].picture, PictureId{7});
    ASSERT_EQ(pages[1].figures.size(), 1u) << "the page's own picture stays";
    EXPECT_EQ(pages[1].figures[0].picture, PictureId{12});
}

Rule ruleAt(double y) {
    Rule rule;
    rule.position = y;
    rule.from = 72;
    rule.to = 523;
    return rule;
}

TEST(RunningHeads, TakesRulesWithoutTextBeyondTheBody) {
    auto pages = pagesWith(5, [](PageText& page, int number) {
        if (number > 1)
            page.rules.push_back(ruleAt(60));
        page.rules.push_back(ruleAt(760));
        page.rules.push_back(ruleAt(205));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_FALSE(heads[0].header) << "the first page has none";
    for (std::size_t i = 0; i < pages.size(); ++i) {
        ASSERT_TRUE(heads[i].footer);
        EXPECT_EQ(heads[i].footer->content.rules.size(), 1u);
        EXPECT_EQ(heads[i].footer->key, heads[0].footer->key);
        EXPECT_EQ(pages[i].rules.size(), 1u) << "what stands within the text stays";
    }
    ASSERT_TRUE(heads[1].header);
    EXPECT_EQ(heads[1].header->content.rules.front().position, 60);
}

TEST(RunningHeads, LeavesRulesThatFewPagesHaveOrThatAreOfTheText) {
    const struct {
        const char* why;
        std::function<void(PageText&, int)> addRules;
    } rows[] = {{"two pages of five",
                 [](PageText& page, int number) {
                     if (number > 3)
                         page.rules.push_back(ruleAt(60));
                 }},
                {"a table that goes on",
                 [](PageText& page, int) {
                     page.rules.push_back(ruleAt(60));
                     Rule side = ruleAt(72);
                     side.direction = RuleDirection::Vertical;
                     side.from = 60;
                     side.to = 700;
                     page.rules.push_back(side);
                 }},
                {"text of other pages stands beyond", [](PageText& page, int number) {
                     if (number > 2)
                         page.rules.push_back(ruleAt(60));
                     else
                         page.lines.push_back(makeLine(fmt::format("page {} starts here", char('a' + number)), 72,
                                                       number == 1 ? 50 : 40));
                 }}};
    for (const auto& row : rows) {
        auto pages = pagesWith(5, row.addRules);
        for (const PageRunningHeads& heads : takeRunningHeads(pages, {}))
            EXPECT_FALSE(heads.header || heads.footer) << row.why;
    }
}

TEST(RunningHeads, LeavesThePictureOfOnePageThatHangsDownFromTheRows) {
    auto pages = pagesWith(3, [](PageText& page, int) { page.lines.push_back(makeLine("Annual report", 72, 50)); });
    Figure ribbon;
    ribbon.picture = PictureId{7};
    ribbon.box = {480, 20, 523, 68};
    pages[0].figures.push_back(ribbon);
    const auto heads = takeRunningHeads(pages, {});
    ASSERT_TRUE(heads[0].header);
    EXPECT_TRUE(heads[0].header->content.figures.empty());
    EXPECT_EQ(pages[0].figures.size(), 1u);
}

} // namespace
} // namespace orvane::layout
