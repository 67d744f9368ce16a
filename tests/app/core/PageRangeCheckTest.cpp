#include "core/PageRangeCheck.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavrelion::tests {
namespace {

enum class Expected { Accepted, BelowOne, Format, FormatWithoutFocus, TooLong };

struct Row {
    const char* text;
    Expected expected;
    const char* why;
};

Expected outcome(const PageRangeVerdict& verdict) {
    switch (verdict.fault) {
    case PageRangeFault::BelowOne:
        return Expected::BelowOne;
    case PageRangeFault::Format:
        return verdict.box == PageRangeBox::Enabled ? Expected::FormatWithoutFocus : Expected::Format;
    case PageRangeFault::TooLong:
        return Expected::TooLong;
    case PageRangeFault::None:
        break;
    }
    return Expected::Accepted;
}

void check(PageRangeRules rules, const std::vector<Row>& rows) {
    for (const Row& row : rows)
        EXPECT_EQ(static_cast<int>(outcome(checkPageRange(row.text, rules))), static_cast<int>(row.expected))
            << '"' << row.text << "\": " << row.why;
}

TEST(PageRangeCheck, TheMainWindowTestsEveryNumber) {
    check(PageRangeRules::MainWindow,
          {
              {"", Expected::Accepted, "an empty box is judged later"},
              {"   ", Expected::Accepted, "blanks count for nothing"},
              {"1", Expected::Accepted, "one page"},
              {"1-3,5", Expected::Accepted, "a list"},
              {"1-3,7,10-12", Expected::Accepted, "a longer list"},
              {"  2-4  ", Expected::Accepted, "blanks around a range"},
              {"5-3", Expected::Accepted, "the order is free"},
              {"9-3", Expected::Accepted, "the order is free"},
              {"2,2,1-3", Expected::Accepted, "repetitions are free"},
              {"00007", Expected::Accepted, "leading zeros"},
              {"99999", Expected::Accepted, "the longest number"},
              {"0", Expected::BelowOne, "no page"},
              {"0-3", Expected::BelowOne, "starts below 1"},
              {"0,5", Expected::BelowOne, "starts below 1"},
              {"abc", Expected::BelowOne, "no number at the start"},
              {",5", Expected::BelowOne, "no number at the start; told before the separator"},
              {"-5", Expected::BelowOne, "no number at the start; told before the separator"},
              {"\t", Expected::BelowOne, "a tab is no blank"},
              {"3-0", Expected::BelowOne, "ends below 1"},
              {"5,0", Expected::BelowOne, "a later number below 1"},
              {"5,0-2", Expected::BelowOne, "a later number below 1"},
              {"1,x", Expected::BelowOne, "a later item without a number"},
              {"1-3,", Expected::Format, "ends in a separator"},
              {"4-", Expected::Format, "ends in a separator"},
              {"1,,2", Expected::Format, "two separators side by side"},
              {"1-,2", Expected::Format, "two separators side by side"},
              {"1,-2", Expected::Format, "two separators side by side"},
              {"1--2", Expected::Format, "two separators side by side"},
              {"0,,2", Expected::BelowOne, "the start is looked at first"},
              {"1-2-3", Expected::FormatWithoutFocus, "three numbers in an item"},
              {"5,1-2-3,0", Expected::FormatWithoutFocus, "the first fault counts"},
              {"0-2-3", Expected::BelowOne, "the start is looked at first"},
              {"1,2-3-0", Expected::FormatWithoutFocus, "the number of pieces is looked at before their values"},
              {"123456", Expected::TooLong, "six characters"},
              {"123456,7", Expected::TooLong, "a single number at any place"},
              {"7,123456", Expected::TooLong, "a single number at any place"},
              {"7,123456,8", Expected::TooLong, "a single number at any place"},
              {"1, 23456", Expected::TooLong, "a blank inside is a character"},
              {"100000-100001,5", Expected::Accepted, "two numbers are measured in the last item alone"},
              {"5,100000-100001", Expected::TooLong, "two numbers are measured in the last item alone"},
              {"5-100000", Expected::TooLong, "either of them"},
              {"000000", Expected::BelowOne, "the value is looked at before the length"},
              {"99999999999999999999-1,2", Expected::Accepted, "a number beyond every integer is a number"},
          });
}

TEST(PageRangeCheck, TheConversionWizardTestsTheFirstNumberAndMeasuresTheLastItem) {
    check(PageRangeRules::ConversionWizard,
          {
              {"", Expected::Accepted, "an empty box is judged by the buttons"},
              {"   ", Expected::BelowOne, "blanks alone have no number at their start"},
              {"1-3,5", Expected::Accepted, "a list"},
              {"  2-4  ", Expected::Accepted, "blanks before the first number"},
              {"9-3", Expected::Accepted, "the order is free"},
              {"0", Expected::BelowOne, "no page"},
              {"0-3", Expected::BelowOne, "starts below 1"},
              {",5", Expected::BelowOne, "the first number is looked at before the separators"},
              {"5,", Expected::Format, "ends in a separator"},
              {"1,,2", Expected::Format, "two separators side by side"},
              {"1,-2", Expected::Format, "two separators side by side"},
              {"1-2-3", Expected::FormatWithoutFocus, "three numbers in an item"},
              {"3-0", Expected::Accepted, "later numbers are not looked at"},
              {"5,0", Expected::Accepted, "later numbers are not looked at"},
              {"123456,7", Expected::Accepted, "only the last item is measured"},
              {"7,123456", Expected::TooLong, "only the last item is measured"},
              {"123456", Expected::TooLong, "the only item is the last"},
              {"100000-100001,5", Expected::Accepted, "only the last item is measured"},
              {"5,100000-100001", Expected::TooLong, "both numbers of the last item"},
              {"123456,1-2-3", Expected::FormatWithoutFocus, "after that nothing is measured"},
              {"1-2-3,123456", Expected::FormatWithoutFocus, "the rest is not looked at"},
          });
}

TEST(PageRangeCheck, TheExtractionWizardLeavesTheFirstNumberToItsButtons) {
    check(PageRangeRules::ExtractionWizard, {
                                                {"", Expected::Accepted, "an empty box is judged by the buttons"},
                                                {"   ", Expected::Accepted, "blanks are judged by the buttons"},
                                                {"1-3,5", Expected::Accepted, "a list"},
                                                {"0", Expected::Accepted, "judged by the buttons"},
                                                {"0-3", Expected::Accepted, "judged by the buttons"},
                                                {"abc", Expected::Accepted, "judged by the buttons"},
                                                {",5", Expected::Format, "starts with a separator"},
                                                {"5,", Expected::Format, "ends in a separator"},
                                                {"1,,2", Expected::Format, "two separators side by side"},
                                                {"1-2-3", Expected::FormatWithoutFocus, "three numbers in an item"},
                                                {"3-0", Expected::Accepted, "values are not looked at"},
                                                {"123456,7", Expected::Accepted, "only the last item is measured"},
                                                {"7,123456", Expected::TooLong, "only the last item is measured"},
                                            });
}

TEST(PageRangeCheck, OnlyTheMainWindowsFirstNumberBringsTheFocusBack) {
    EXPECT_EQ(checkPageRange("0", PageRangeRules::MainWindow).box, PageRangeBox::EnabledWithFocus);
    EXPECT_EQ(checkPageRange("0", PageRangeRules::ConversionWizard).box, PageRangeBox::Untouched);
    EXPECT_EQ(checkPageRange("1,", PageRangeRules::ConversionWizard).box, PageRangeBox::EnabledWithFocus);
    EXPECT_EQ(checkPageRange("7,123456", PageRangeRules::ConversionWizard).box, PageRangeBox::EnabledWithFocus);
    EXPECT_EQ(checkPageRange("1", PageRangeRules::MainWindow).box, PageRangeBox::Untouched);
}

TEST(PageRangeCheck, ReadsTheNumberAtTheStartOfAText) {
    const struct {
        const char* text;
        bool expected;
    } rows[] = {{"7", true}, {"  7", true},  {"007", true},   {"7abc", true}, {"0", false},  {"000", false},
                {"", false}, {"   ", false}, {"abc7", false}, {"-7", false},  {"\t7", false}};
    for (const auto& row : rows)
        EXPECT_EQ(startsWithPageNumber(row.text), row.expected) << row.text;
    EXPECT_FALSE(startsWithPageNumber(QString(QChar(0x0665)))) << "digits of other scripts are none here";
}

TEST(PageRangeCheck, FiltersKeys) {
    const struct {
        int key;
        const char* text;
        bool passes;
        const char* why;
    } rows[] = {
        {8, "", true, "backspace"},
        {'0', "", true, "a digit"},
        {'9', "1,", true, "a digit"},
        {',', "1", true, "behind a digit"},
        {'-', "1", true, "behind a digit"},
        {',', "", false, "nothing stands before it"},
        {'-', "", false, "nothing before"},
        {',', "1,", false, "behind a separator"},
        {'-', "1,", false, "behind one"},
        {',', "1-", false, "behind a separator"},
        {',', "1 ", true, "behind a blank"},
        {' ', "1", false, "a blank"},
        {'a', "1", false, "a letter"},
        {13, "1", false, "the Return key"},
        {0x0665, "1", false, "a digit of another script"},
    };
    for (const auto& row : rows) {
        int key = row.key;
        filterPageRangeKey(key, row.text);
        EXPECT_EQ(key, row.passes ? row.key : 0) << row.key << " at \"" << row.text << "\": " << row.why;
    }
}

} // namespace
} // namespace tavrelion::tests
