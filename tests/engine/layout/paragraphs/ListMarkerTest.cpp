#include "layout/paragraphs/ListMarker.h"

#include "engine/layout/TextBuilder.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;

TEST(ListMarker, ReadsTheLabelOfALine) {
    struct Row {
        const char* text;
        std::optional<MarkerKind> kind;
        int ordinal;
        const char* why;
    };
    const Row rows[] = {
        {"1. Text", MarkerKind::Decimal, 1, "a number"},
        {"(12) Text", MarkerKind::Decimal, 12, "in brackets"},
        {"3.2.1 Text", MarkerKind::Compound, 1, "several levels"},
        {"a) Text", MarkerKind::LowerLetter, 1, "a letter"},
        {"B. Text", MarkerKind::UpperLetter, 2, "a capital"},
        {"iv. Text", MarkerKind::LowerRoman, 4, "roman"},
        {"XIX) Text", MarkerKind::UpperRoman, 19, "roman capitals"},
        {"\xE2\x80\xA2 Text", MarkerKind::Bullet, 0, "a bullet"},
        {"\xE2\x80\xA2Text", MarkerKind::Bullet, 0, "a bullet without a gap"},
        {"\xEF\x82\xB7 Text", MarkerKind::Bullet, 0, "a bullet of a symbol font"},
        {"\uFFFD Text", MarkerKind::Bullet, 0, "a sign that nobody can name"},
        {"\u275D Text", MarkerKind::Bullet, 0, "an ornament that sign fonts have where others have an arrow"},
        {"\u21E7 Text", MarkerKind::Bullet, 0, "an arrow that stands alone"},
        {"- Text", MarkerKind::Dash, 0, "a hyphen"},
        {"\xE2\x91\xA2Text", MarkerKind::EastAsian, 3, "a circled number"},
        {"\xE4\xBA\x8C\xE3\x80\x81Text", MarkerKind::EastAsian, 2, "a numeral of Han"},
        {"\xE3\x83\xBB\xE6\xA6\x82\xE8\xA6\x81", MarkerKind::Bullet, 0, "a middle dot before text without blanks"},
        {"3.\xE6\xA6\x82\xE8\xA6\x81", MarkerKind::Decimal, 3, "a number before text without blanks"},
        {"\xEF\xBC\x88\xEF\xBC\x92\xEF\xBC\x89\xE6\xA6\x82", MarkerKind::Decimal, 2, "full width"},
        {"2014.\xE6\xA6\x82", std::nullopt, 0, "a year before text without blanks"},
        {"Text 1.", std::nullopt, 0, "not at the start"},
        {"1999. Text", std::nullopt, 0, "a year"},
        {"14 September", std::nullopt, 0, "a date"},
        {"2\tMethods", MarkerKind::Decimal, 2, "a bare number that stands apart"},
        {"and Text", std::nullopt, 0, "a word"},
        {"(see Text", std::nullopt, 0, "an open bracket"},
        {"1.", std::nullopt, 0, "nothing behind it"},
        {"-5 Text", std::nullopt, 0, "a negative number"},
    };
    for (const Row& row : rows) {
        const auto marker = findListMarker(makeLine(row.text, 0, 0), {});
        ASSERT_EQ(marker.has_value(), row.kind.has_value()) << row.text << ": " << row.why;
        if (marker) {
            EXPECT_EQ(marker->kind, *row.kind) << row.text << ": " << row.why;
            EXPECT_EQ(marker->ordinal, row.ordinal) << row.text << ": " << row.why;
        }
    }
}

TEST(ListMarker, ReadsABoxToTickOnlyWhereItIsAField) {
    Line line = makeLine("\u2612 Text", 0, 0);
    EXPECT_EQ(findListMarker(line, {})->kind, MarkerKind::Bullet);
    line.words.front().spans.front().look.field = 0;
    const auto on = findListMarker(line, {});
    ASSERT_TRUE(on);
    EXPECT_EQ(on->kind, MarkerKind::Box);
    Line other = makeLine("\u2610 Text", 0, 0);
    other.words.front().spans.front().look.field = 1;
    EXPECT_TRUE(isSuccessor(*on, *findListMarker(other, {})));
    Line number = makeLine("1. Text", 0, 0);
    number.words.front().spans.front().look.field = 0;
    EXPECT_FALSE(findListMarker(number, {})) << "what was typed into a field";
}

TEST(ListMarker, KnowsWhatComesNextInAList) {
    const auto marker = [](const char* text) { return *findListMarker(makeLine(text, 0, 0), {}); };
    EXPECT_TRUE(isSuccessor(marker("1. a"), marker("2. b")));
    EXPECT_FALSE(isSuccessor(marker("1. a"), marker("3. b")));
    EXPECT_FALSE(isSuccessor(marker("1. a"), marker("b) b")));
    EXPECT_TRUE(isSuccessor(marker("- a"), marker("- b")));
    EXPECT_FALSE(isSuccessor(marker("- a"), marker("* b")));
}

} // namespace
} // namespace orvane::layout
