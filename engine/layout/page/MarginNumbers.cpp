#include "layout/page/MarginNumbers.h"

#include "base/Utf8.h"
#include "layout/support/Tally.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace orvane::layout {
namespace {

using document::CountStart;
using document::LineNumbers;

constexpr std::size_t kMostDigits = 5;

/// A number that begins a line or is all of it.
struct MarginNumber {
    std::size_t line = 0; ///< index into the page's lines
    int value = 0;
    double textStart = 0; ///< where the text beside it begins
    bool goesOn = false;  ///< that text, in lower case
};

/// The numbers of one page, from the top down.
struct NumberColumn {
    std::vector<MarginNumber> numbers;
    int step = 1;
    double right = 0; ///< where they end
};

int numberOf(const Word& word) {
    const std::string text = textOf(word);
    const bool isNumber =
        !text.empty() && text.size() <= kMostDigits && text.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? std::atoi(text.c_str()) : 0;
}

bool startsLowerCase(const Word& word) {
    const std::u32string text = utf32FromUtf8(textOf(word));
    return !text.empty() && u_islower(static_cast<UChar32>(text.front()));
}

class NumberFinder {
public:
    NumberFinder(const PageText& page, const PageParameters::LineNumbering& limits)
        : m_page(page)
        , m_limits(limits) {}

    std::optional<NumberColumn> find() const {
        std::vector<MarginNumber> all;
        std::vector<double> rights;
        for (std::size_t i = 0; i < m_page.lines.size(); ++i)
            if (const auto number = readLine(i)) {
                all.push_back(*number);
                rights.push_back(edgeOf(i));
            }
        const auto right = mostFrequent(rights, m_limits.sameEdge);
        if (!right)
            return std::nullopt;
        NumberColumn column{{}, 1, *right};
        for (const MarginNumber& number : all)
            if (std::abs(edgeOf(number.line) - *right) <= m_limits.sameEdge)
                column.numbers.push_back(number);
        std::stable_sort(column.numbers.begin(), column.numbers.end(), [&](const auto& a, const auto& b) {
            return m_page.lines[a.line].baseline < m_page.lines[b.line].baseline;
        });
        return isInMargin(column) && countsEvenly(column) ? std::optional(std::move(column)) : std::nullopt;
    }

private:
    double edgeOf(std::size_t line) const { return m_page.lines[line].words.front().box.right; }

    /// The line's number, if text stands beside it.
    std::optional<MarginNumber> readLine(std::size_t index) const {
        const Line& line = m_page.lines[index];
        if (line.angle != 0 || line.isVertical || line.isRightToLeft || line.words.empty() ||
            numberOf(line.words.front()) == 0)
            return std::nullopt;
        MarginNumber number{index, numberOf(line.words.front()), std::numeric_limits<double>::infinity(), false};
        const double least = line.words.front().box.right + m_limits.leastGap * line.fontSize;
        const auto consider = [&](const Line& text, std::size_t first) {
            const Word& word = text.words[first];
            if (word.box.left < least || word.box.left >= number.textStart)
                return;
            number.textStart = word.box.left;
            number.goesOn = startsLowerCase(word) && isFull(text, first);
        };
        if (line.words.size() > 1) {
            consider(line, 1);
        } else {
            for (const Line& other : m_page.lines)
                if (&other != &line && other.angle == 0 && !other.words.empty() &&
                    std::abs(other.baseline - line.baseline) <= m_limits.sameBaseline * line.fontSize)
                    consider(other, 0);
        }
        return std::isfinite(number.textStart) ? std::optional(number) : std::nullopt;
    }

    /// Whether the line, from a word on, is as long as those of prose are, and nothing parts it as in tables.
    bool isFull(const Line& line, std::size_t first) const {
        const auto begin = line.words.begin() + static_cast<std::ptrdiff_t>(first);
        return line.box.right - begin->box.left >= m_limits.fullWidth * m_page.width &&
               std::none_of(begin + 1, line.words.end(), [](const Word& word) { return word.gapBefore == Gap::Tab; });
    }

    /// Whether no text of the page stands in the numbers' column or before it.
    bool isInMargin(const NumberColumn& column) const {
        std::vector<bool> isNumbered(m_page.lines.size(), false);
        for (const MarginNumber& number : column.numbers)
            isNumbered[number.line] = true;
        for (std::size_t i = 0; i < m_page.lines.size(); ++i)
            if (!isNumbered[i] && m_page.lines[i].box.left < column.right && standsAmong(m_page.lines[i], column))
                return false;
        return true;
    }

    bool standsAmong(const Line& line, const NumberColumn& column) const {
        return line.baseline >= m_page.lines[column.numbers.front().line].baseline &&
               line.baseline <= m_page.lines[column.numbers.back().line].baseline;
    }

    bool countsEvenly(NumberColumn& column) const {
        const std::vector<MarginNumber>& numbers = column.numbers;
        if (numbers.size() < m_limits.fewestOfPage)
            return false;
        Tally<int> steps;
        for (std::size_t i = 1; i < numbers.size(); ++i)
            steps.add(numbers[i].value - numbers[i - 1].value);
        column.step = *steps.heaviest();
        return column.step > 0 &&
               steps.weightOf(column.step) >= m_limits.steadyShare * static_cast<double>(numbers.size() - 1);
    }

    const PageText& m_page;
    const PageParameters::LineNumbering& m_limits;
};

void takeNumbers(PageText& page, const NumberColumn& column) {
    for (const MarginNumber& number : column.numbers) {
        Line& line = page.lines[number.line];
        line.words.erase(line.words.begin());
        if (line.words.empty())
            continue;
        line.words.front().gapBefore = Gap::None;
        line.words.front().leaderBefore = document::TabLeader::None;
        measureAnew(line);
    }
    std::erase_if(page.lines, [](const Line& line) { return line.words.empty(); });
}

/// The numbers of all pages, as far as they have some.
class Numbering {
public:
    explicit Numbering(std::vector<std::optional<NumberColumn>> pages)
        : m_pages(std::move(pages)) {}

    bool isSure(std::size_t textPages, const PageParameters::LineNumbering& limits) const {
        std::size_t numbered = 0, numbers = 0, goingOn = 0;
        for (const auto& page : m_pages) {
            if (!page)
                continue;
            ++numbered;
            numbers += page->numbers.size();
            goingOn += static_cast<std::size_t>(std::count_if(
                page->numbers.begin(), page->numbers.end(), [](const MarginNumber& number) { return number.goesOn; }));
        }
        return numbered > 0 && static_cast<double>(numbered) >= limits.pageShare * static_cast<double>(textPages) &&
               static_cast<double>(goingOn) >= limits.proseShare * static_cast<double>(numbers);
    }

    LineNumbers describe() const {
        Tally<int> steps;
        std::vector<double> distances;
        int firsts = 0, restarts = 0;
        std::optional<int> start;
        for (const auto& page : m_pages) {
            if (!page)
                continue;
            steps.add(page->step);
            if (start)
                ++firsts;
            else
                start = page->numbers.front().value;
            restarts += page->numbers.front().value == *start;
            for (const MarginNumber& number : page->numbers)
                distances.push_back(number.textStart - page->right);
        }
        LineNumbers numbers;
        numbers.every = *steps.heaviest();
        // Of every fifth line's numbers 5 is the first, and the lines count from 1.
        numbers.start = *start <= numbers.every ? 1 : *start;
        numbers.count = 2 * (restarts - 1) > firsts ? CountStart::EachPage : CountStart::Continuous;
        numbers.distance = twipsFromPoints(*mostFrequent(distances, 1));
        return numbers;
    }

    const std::vector<std::optional<NumberColumn>>& pages() const { return m_pages; }

private:
    std::vector<std::optional<NumberColumn>> m_pages;
};

} // namespace

std::optional<LineNumbers> takeLineNumbers(std::vector<PageText>& pages, const PageParameters::LineNumbering& limits) {
    std::vector<std::optional<NumberColumn>> columns;
    std::size_t textPages = 0;
    for (const PageText& page : pages) {
        columns.push_back(NumberFinder(page, limits).find());
        textPages += page.lines.size() >= limits.fewestOfPage;
    }
    const Numbering numbering(std::move(columns));
    if (!numbering.isSure(textPages, limits))
        return std::nullopt;
    for (std::size_t i = 0; i < pages.size(); ++i)
        if (numbering.pages()[i])
            takeNumbers(pages[i], *numbering.pages()[i]);
    return numbering.describe();
}

} // namespace orvane::layout
