#include "layout/page/MarginNumbers.h"

#include "layout/text/LineText.h"

#include "engine/layout/TextBuilder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::CountStart;
using tests::makeLine;
using tests::makePage;

constexpr const char* kFull = "and the words of the line go on and on up to the edge of the text";
constexpr const char* kShort = "apples and pears";

struct Numbered {
    int first = 1;
    int step = 1;
    const char* text = kFull;
};

/// A page of twelve lines, each `step`th with its number in the margin.
PageText numberedPage(int number, const Numbered& numbered) {
    PageText page = makePage(number);
    for (int i = 0; i < 12; ++i) {
        const int value = numbered.first + i;
        const double y = 100 + 14 * i;
        if (value % numbered.step == 0)
            page.lines.push_back(makeLine(fmt::format("{}", value), value < 10 ? 55 : 50, y));
        page.lines.push_back(makeLine(numbered.text, 90, y));
    }
    return page;
}

std::size_t numbersLeft(const std::vector<PageText>& pages) {
    std::size_t count = 0;
    for (const PageText& page : pages)
        count += page.lines.size() - 12;
    return count;
}

TEST(MarginNumbers, AreTakenFromTheTextAndCountOn) {
    std::vector<PageText> pages{numberedPage(1, {}), numberedPage(2, {.first = 13})};
    const auto numbers = takeLineNumbers(pages, {});
    ASSERT_TRUE(numbers);
    EXPECT_EQ(numbers->every, 1);
    EXPECT_EQ(numbers->start, 1);
    EXPECT_EQ(numbers->count, CountStart::Continuous);
    EXPECT_EQ(numbers->distance, twipsFromPoints(30));
    EXPECT_EQ(numbersLeft(pages), 0u);
}

TEST(MarginNumbers, MayCountOnEachPage) {
    std::vector<PageText> pages{numberedPage(1, {}), numberedPage(2, {}), numberedPage(3, {})};
    const auto numbers = takeLineNumbers(pages, {});
    ASSERT_TRUE(numbers);
    EXPECT_EQ(numbers->count, CountStart::EachPage);
}

TEST(MarginNumbers, MayStandBesideEverySecondLine) {
    std::vector<PageText> pages{numberedPage(1, {.step = 2}), numberedPage(2, {.first = 13, .step = 2})};
    const auto numbers = takeLineNumbers(pages, {});
    ASSERT_TRUE(numbers);
    EXPECT_EQ(numbers->every, 2);
    EXPECT_EQ(numbers->start, 1);
    EXPECT_EQ(numbersLeft(pages), 0u);
}

TEST(MarginNumbers, MayBeFewOfEveryFifthLine) {
    const auto fifth = [](int first, const char* text) { return Numbered{.first = first, .step = 5, .text = text}; };
    std::vector<PageText> pages{numberedPage(1, fifth(4, kShort)), numberedPage(2, fifth(19, kShort))};
    const auto numbers = takeLineNumbers(pages, {});
    ASSERT_TRUE(numbers) << "5 to 15, then 20 to 30; no text goes on";
    EXPECT_EQ(numbers->every, 5);
    EXPECT_EQ(numbersLeft(pages), 0u);

    std::vector<PageText> again{numberedPage(1, fifth(4, kShort)), numberedPage(2, fifth(4, kShort))};
    EXPECT_FALSE(takeLineNumbers(again, {})) << "they do not count on";
}

TEST(MarginNumbers, AreThoseOfATableWhereNoLinesLieBetween) {
    PageText page = makePage(1);
    for (int i = 1; i <= 12; ++i)
        page.lines.push_back(makeLine(fmt::format("{}\t{}", 10 * i, kShort), 50, 100 + 14 * i));
    std::vector<PageText> pages{page};
    EXPECT_FALSE(takeLineNumbers(pages, {}));
}

TEST(MarginNumbers, MayBeginALineOfText) {
    PageText page = makePage(1);
    for (int i = 0; i < 8; ++i)
        page.lines.push_back(makeLine(fmt::format("{}\t{}", i + 1, kFull), 55, 100 + 14 * i));
    std::vector<PageText> pages{page};
    ASSERT_TRUE(takeLineNumbers(pages, {}));
    EXPECT_EQ(textOf(pages[0].lines[3]), kFull);
    EXPECT_EQ(pages[0].lines[3].box.left, pages[0].lines[3].words[0].box.left);
}

/// A page of two columns with numbers in both margins, those across from `across` on; some without text beside them.
PageText facingPage(int number, int first, int across) {
    PageText page = makePage(number);
    for (int i = 0; i < 12; ++i) {
        const double y = 100 + 14 * i;
        page.lines.push_back(makeLine(fmt::format("{}", first + i), 50, y));
        page.lines.push_back(makeLine(fmt::format("{}", across + i), 560, y));
        if (i % 3 == 0)
            continue;
        page.lines.push_back(makeLine(kShort, 90, y));
        page.lines.push_back(makeLine(kShort, 330, y));
    }
    return page;
}

TEST(MarginNumbers, MayStandInBothMargins) {
    std::vector<PageText> pages{facingPage(1, 5, 17), facingPage(2, 29, 41)};
    const auto numbers = takeLineNumbers(pages, {});
    ASSERT_TRUE(numbers);
    EXPECT_EQ(numbers->every, 1);
    EXPECT_EQ(numbers->start, 5);
    EXPECT_EQ(numbers->count, CountStart::Continuous);
    for (const PageText& page : pages)
        EXPECT_EQ(page.lines.size(), 16u);

    std::vector<PageText> others{facingPage(1, 5, 60)};
    EXPECT_FALSE(takeLineNumbers(others, {})) << "what stands across counts something else";
}

/// Twenty numbers, so many of them, each in a part of its own, beside a line that goes on; `blank` of the others beside
/// nothing.
PageText pageWithBlanks(int blank, int goingOn) {
    PageText page = makePage(1);
    for (int i = 0; i < 20; ++i) {
        const double y = 100 + 14 * i;
        page.lines.push_back(makeLine(fmt::format("{}", i + 1), i < 9 ? 55 : 50, y));
        if (i % 5 == 1)
            page.lines.push_back(makeLine(i < 5 * goingOn ? kFull : kShort, 90, y));
        else if (i % 5 != 3 || i >= 5 * blank)
            page.lines.push_back(makeLine(kShort, 90, y));
    }
    return page;
}

TEST(MarginNumbers, CountBlankLinesAsNoListDoes) {
    std::vector<PageText> pages{pageWithBlanks(3, 2)};
    EXPECT_TRUE(takeLineNumbers(pages, {}));
    pages = {pageWithBlanks(0, 2)};
    EXPECT_FALSE(takeLineNumbers(pages, {})) << "few lines go on, and none is blank";
    pages = {pageWithBlanks(0, 4)};
    EXPECT_TRUE(takeLineNumbers(pages, {})) << "no list goes on in one item of five";
    pages = {pageWithBlanks(3, 0)};
    EXPECT_FALSE(takeLineNumbers(pages, {})) << "a form has lines to fill in";
}

TEST(MarginNumbers, AreThoseOfAListWhereNoTextGoesOn) {
    std::vector<PageText> pages{numberedPage(1, {.text = kShort}), numberedPage(2, {.first = 13, .text = kShort})};
    EXPECT_FALSE(takeLineNumbers(pages, {}));
    EXPECT_EQ(numbersLeft(pages), 24u);
}

TEST(MarginNumbers, AreNotTakenWhereFewPagesHaveThem) {
    std::vector<PageText> pages{numberedPage(1, {})};
    for (int i = 0; i < 3; ++i) {
        pages.push_back(makePage(2 + i));
        for (int line = 0; line < 12; ++line)
            pages.back().lines.push_back(makeLine(kFull, 90, 100 + 14 * line));
    }
    EXPECT_FALSE(takeLineNumbers(pages, {}));
}

} // namespace
} // namespace orvane::layout
