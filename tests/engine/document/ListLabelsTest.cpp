#include "document/ListLabels.h"

#include <gmock/gmock.h>

namespace orvane::document {
namespace {

NumberingLevel level(std::string text, NumberFormat format = NumberFormat::Decimal, int start = 1) {
    NumberingLevel result;
    result.text = std::move(text);
    result.format = format;
    result.start = start;
    return result;
}

Document documentWith(std::vector<Numbering> numberings) {
    Document document;
    document.numberings = std::move(numberings);
    return document;
}

TEST(ListLabels, CountEachListAndLevelOnItsOwn) {
    const Document document =
        documentWith({{{level("%1."), level("%1.%2", NumberFormat::LowerLetter)}}, {{level("(%1)", {}, 5)}}});
    ListLabels labels(document);
    EXPECT_EQ(labels.next({0, 0}), "1.");
    EXPECT_EQ(labels.next({0, 1}), "1.a");
    EXPECT_EQ(labels.next({1, 0}), "(5)");
    EXPECT_EQ(labels.next({0, 1}), "1.b");
    EXPECT_EQ(labels.next({0, 0}), "2.");
    EXPECT_EQ(labels.next({0, 1}), "2.a") << "a level begins anew below the next number above it";
    EXPECT_EQ(labels.next({1, 0}), "(6)");
}

TEST(ListLabels, AreBulletsOrNothingToo) {
    Document document = documentWith({{{level("\u2022", NumberFormat::Bullet)}}});
    ListLabels labels(document);
    EXPECT_EQ(labels.next({0, 0}), "\u2022");
    EXPECT_EQ(labels.next({0, 7}), "\u2022") << "a level that the list does not have is its last";
    EXPECT_EQ(labels.next({3, 0}), "");
}

TEST(ListLabels, AreAllDecimalInLegalLevels) {
    NumberingLevel legal = level("%1.%2");
    legal.isLegal = true;
    const Document document = documentWith({{{level("%1", NumberFormat::UpperRoman), legal}}});
    ListLabels labels(document);
    EXPECT_EQ(labels.next({0, 0}), "I");
    EXPECT_EQ(labels.next({0, 1}), "1.1");
}

TEST(FormatNumber, KnowsTheFormats) {
    struct Row {
        int number;
        NumberFormat format;
        const char* expected;
    };
    const Row rows[] = {
        {4, NumberFormat::LowerRoman, "iv"},  {1999, NumberFormat::UpperRoman, "MCMXCIX"},
        {26, NumberFormat::LowerLetter, "z"}, {28, NumberFormat::UpperLetter, "BB"},
        {7, NumberFormat::DecimalZero, "07"}, {12, NumberFormat::DecimalZero, "12"},
        {0, NumberFormat::LowerRoman, "0"},   {-3, NumberFormat::LowerLetter, "-3"},
        {9, NumberFormat::None, ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(formatNumber(row.number, row.format), row.expected);
}

} // namespace
} // namespace orvane::document
