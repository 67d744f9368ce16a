#include "core/PageRangeCheck.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int kLongestNumber = 5; ///< characters of a page number
constexpr int kBackspace = 8;

bool isSeparator(QChar character) {
    return character == ',' || character == '-';
}

bool isDigit(QChar character) {
    return character >= '0' && character <= '9';
}

bool hasMisplacedSeparator(const QString& range) {
    const auto bothAreSeparators = [](QChar first, QChar second) { return isSeparator(first) && isSeparator(second); };
    return isSeparator(range.front()) || isSeparator(range.back()) ||
           std::adjacent_find(range.begin(), range.end(), bothAreSeparators) != range.end();
}

bool isTooLong(const QString& number) {
    return number.size() > kLongestNumber;
}

/// What is wrong with one item, a number or two with a hyphen between them.
PageRangeVerdict checkItem(const QStringList& numbers, PageRangeRules rules) {
    if (numbers.size() > 2)
        return {PageRangeFault::Format, PageRangeBox::Enabled};
    if (rules != PageRangeRules::MainWindow)
        return {};
    if (!std::all_of(numbers.begin(), numbers.end(), startsWithPageNumber))
        return {PageRangeFault::BelowOne, PageRangeBox::EnabledWithFocus};
    if (numbers.size() == 1 && isTooLong(numbers.front()))
        return {PageRangeFault::TooLong, PageRangeBox::EnabledWithFocus};
    return {};
}

PageRangeVerdict checkItems(const QStringList& items, PageRangeRules rules) {
    QStringList numbers;
    for (const QString& item : items) {
        numbers = item.split('-');
        if (const PageRangeVerdict verdict = checkItem(numbers, rules); !verdict.isAccepted())
            return verdict;
    }
    // Only the numbers of the item that stands last are measured: 100000-100001,5 has always been taken.
    if (std::any_of(numbers.begin(), numbers.end(), isTooLong))
        return {PageRangeFault::TooLong, PageRangeBox::EnabledWithFocus};
    return {};
}

} // namespace

PageRangeVerdict checkPageRange(const QString& text, PageRangeRules rules) {
    const QString range = withoutOuterBlanks(text);
    if (rules == PageRangeRules::MainWindow && !range.isEmpty() && !startsWithPageNumber(range))
        return {PageRangeFault::BelowOne, PageRangeBox::EnabledWithFocus};
    // The wizard looks at the text with its blanks, so blanks alone are refused there.
    if (rules == PageRangeRules::ConversionWizard && !text.isEmpty() && !startsWithPageNumber(text))
        return {PageRangeFault::BelowOne, PageRangeBox::Untouched};
    if (range.isEmpty())
        return {};
    if (hasMisplacedSeparator(range))
        return {PageRangeFault::Format, PageRangeBox::EnabledWithFocus};
    return checkItems(range.split(','), rules);
}

bool startsWithPageNumber(const QString& text) {
    const auto start = std::find_if(text.begin(), text.end(), [](QChar character) { return character != ' '; });
    const auto end = std::find_if_not(start, text.end(), isDigit);
    return std::any_of(start, end, [](QChar digit) { return digit != '0'; });
}

QString withoutOuterBlanks(const QString& text) {
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == ' ')
        ++start;
    while (end > start && text[end - 1] == ' ')
        --end;
    return text.mid(start, end - start);
}

void filterPageRangeKey(int& keyCode, const QString& text) {
    const bool isDigitKey = keyCode >= '0' && keyCode <= '9';
    const bool isSeparatorKey = keyCode == ',' || keyCode == '-';
    const bool mayFollow = !text.isEmpty() && !isSeparator(text.back());
    if (keyCode != kBackspace && !isDigitKey && !(isSeparatorKey && mayFollow))
        keyCode = 0;
}
