#include "layout/page/ColumnGutter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::layout {
namespace {

Word wordAt(double left, double right, double top) {
    Word word;
    word.box = {left, top, right, top + 10};
    return word;
}

/// A line of 10 points with such words.
Line lineOf(std::vector<Word> words) {
    Line line;
    line.fontSize = 10;
    for (const Word& word : words)
        line.box = line.box.united(word.box);
    line.baseline = line.box.top + 8;
    line.words = std::move(words);
    return line;
}

/// Two columns of a list, 50 to 250 and 300 to 500; every sixth line is blank, in the right one `shift` lines later.
std::vector<Line> listsWithBlanks(int shift) {
    std::vector<Line> lines;
    for (int row = 0; row < 24; ++row) {
        const double right = row == 4 ? 200 : 40; // of one long line and many short ones
        if (row % 6 != 0)
            lines.push_back(lineOf({wordAt(50, 50 + right, 100 + 12 * row)}));
        if ((row + 6 - shift) % 6 != 0)
            lines.push_back(lineOf({wordAt(300, 300 + right, 100 + 12 * row)}));
    }
    return lines;
}

bool areColumns(const std::vector<Line>& lines) {
    return findColumnGutter(lines, {}, PageParameters::Regions{}).has_value();
}

TEST(ColumnGutter, PartsEntriesThatLeadToTheirPages) {
    const auto entries = [](document::TabLeader leader) {
        std::vector<Line> lines;
        for (int row = 0; row < 8; ++row) {
            for (const double left : {50.0, 300.0}) {
                Word page = wordAt(left + 190, left + 200, 100 + 12 * row);
                page.leaderBefore = leader;
                lines.push_back(lineOf({wordAt(left, left + 60, 100 + 12 * row), page}));
            }
        }
        return lines;
    };
    EXPECT_TRUE(areColumns(entries(document::TabLeader::Dots)));
    EXPECT_FALSE(areColumns(entries(document::TabLeader::None))) << "they may be four columns of a table";
}

TEST(ColumnGutter, LeavesNamesInTheMarginBesideWhatTheyBelongTo) {
    const auto namesEvery = [](int lines) {
        std::vector<Line> page;
        for (int row = 0; row < 24; ++row) {
            if (row % lines == 0)
                page.push_back(lineOf({wordAt(50, 130, 100 + 12 * row)}));
            page.push_back(lineOf({wordAt(160, 500, 100 + 12 * row)}));
        }
        return page;
    };
    EXPECT_FALSE(areColumns(namesEvery(3)));
    EXPECT_TRUE(areColumns(namesEvery(1))) << "the lines of a narrow column are a text";
}

TEST(ColumnGutter, LeavesRowsThatStandApart) {
    const auto rowsEvery = [](double leading) {
        std::vector<Line> page;
        for (int row = 0; row < 5; ++row) {
            page.push_back(lineOf({wordAt(50, 150, 100 + leading * row)}));
            if (row != 3)
                page.push_back(lineOf({wordAt(250, 400, 100 + leading * row)}));
        }
        return page;
    };
    EXPECT_FALSE(areColumns(rowsEvery(24)));
    EXPECT_TRUE(areColumns(rowsEvery(12))) << "lines that follow each other are two texts side by side";
}

TEST(ColumnGutter, PartsListsThatHaveNoRowsInCommon) {
    EXPECT_TRUE(areColumns(listsWithBlanks(3)));
    EXPECT_FALSE(areColumns(listsWithBlanks(0))) << "the blank lines part rows of both";
}

/// A sender's line over the address of the recipient on the left, beside it the sender's address, `shift` points lower,
/// and 36 points below them the invoice's number with its date.
std::vector<Line> headOfInvoice(double shift) {
    std::vector<Line> lines;
    const double widths[] = {200, 40, 100, 30, 30, 40};
    for (int row = 0; row < 6; ++row) {
        lines.push_back(lineOf({wordAt(50, 50 + widths[row], 100 + 12 * row)}));
        lines.push_back(lineOf({wordAt(400, 490, 100 + shift + 12 * row)}));
    }
    lines.push_back(lineOf({wordAt(50, 90, 196), wordAt(400, 490, 196)}));
    return lines;
}

TEST(ColumnGutter, PartsAddressesOutOfStep) {
    const auto gutter = findColumnGutter(headOfInvoice(5), {}, PageParameters::Regions{});
    ASSERT_TRUE(gutter);
    EXPECT_LT(gutter->bottom, 196) << "the row with the date leads across";
    EXPECT_FALSE(areColumns(headOfInvoice(0))) << "names with their values";
}

TEST(ColumnGutter, LeavesAddressesThatTakeTurns) {
    const auto letterhead = [](double receiver) {
        std::vector<Line> page{lineOf({wordAt(400, 490, 40)})};
        for (int row = 0; row < 4; ++row) {
            page.push_back(lineOf({wordAt(50, 110, 55 + 12 * row)}));
            page.push_back(lineOf({wordAt(350, 440, receiver + 12 * row)}));
            page.push_back(lineOf({wordAt(50, 200, 205 + 12 * row)}));
        }
        std::ranges::sort(page, {}, [](const Line& line) { return line.box.top; });
        return page;
    };
    EXPECT_FALSE(areColumns(letterhead(130)));
    EXPECT_TRUE(areColumns(letterhead(62))) << "the addresses stand side by side";
}

TEST(ColumnGutter, LeavesNamesHalfWayUpTheirTexts) {
    std::vector<Line> page;
    for (int row = 0; row < 6; ++row) {
        const double top = 100 + 30 * row;
        page.push_back(lineOf({wordAt(300, row == 2 ? 500 : 340, top)}));
        page.push_back(lineOf({wordAt(50, row == 2 ? 200 : 90, top + 6)}));
        page.push_back(lineOf({wordAt(300, 340, top + 12)}));
    }
    EXPECT_FALSE(areColumns(page));
}

TEST(ColumnGutter, TakesTheSignsOfABraceForNoText) {
    const auto besideATerm = [](double width) {
        std::vector<Line> page{lineOf({wordAt(50, 150, 40), wordAt(250, 300, 45)})};
        for (int row = 0; row < 6; ++row) {
            page.push_back(lineOf({wordAt(150 - width, 150, 100 + 10 * row)}));
            page.push_back(lineOf({wordAt(250, row == 2 ? 450 : 300, 105 + 10 * row)}));
        }
        return page;
    };
    EXPECT_FALSE(areColumns(besideATerm(8)));
    EXPECT_TRUE(areColumns(besideATerm(40))) << "words";
}

} // namespace
} // namespace orvane::layout
