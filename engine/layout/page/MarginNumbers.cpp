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

/// A number that begins a line or is all of it; in the other margin one that ends a line.
struct MarginNumber {
    std::size_t line = 0; ///< index into the page's lines
    int value = 0;
    double textStart = std::numeric_limits<double>::infinity(); ///< where the text beside it begins
    bool goesOn = false;                                        ///< that text, in lower case

    bool hasText() const { return std::isfinite(textStart); }
};

/// The numbers of one page, from the top down.
struct NumberColumn {
    std::vector<MarginNumber> numbers;
    std::vector<MarginNumber> facing; ///< in the other margin, for the second column of the text
    int step = 1;
    double right = 0; ///< where they end
};

std::optional<int> numberOf(const Word& word) {
    const std::string text = textOf(word);
    const bool isNumber =
        !text.empty() && text.size() <= kMostDigits && text.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? std::optional(std::atoi(text.c_str())) : std::nullopt;
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
        NumberColumn column;
        for (std::size_t i = 0; i < m_page.lines.size(); ++i)
            if (const auto number = readLine(i))
                column.numbers.push_back(*number);
        keepBelowEachOther(column.numbers, [](const Line& line) { return line.words.front().box; });
        if (column.numbers.empty())
            return std::nullopt;
        for (const MarginNumber& number : column.numbers)
            column.right = std::max(column.right, m_page.lines[number.line].words.front().box.right);
        const std::optional<int> step = isInMargin(column) ? stepOf(column.numbers) : std::nullopt;
        if (!step)
            return std::nullopt;
        column.step = *step;
        column.facing = findFacing(column);
        return column;
    }

private:
    bool isRead(const Line& line) const {
        return line.angle == 0 && !line.isVertical && !line.isRightToLeft && !line.words.empty();
    }

    /// Keeps the numbers that start or end at one edge, from the top down.
    template<typename BoxOf>
    void keepBelowEachOther(std::vector<MarginNumber>& numbers, const BoxOf& boxOf) const {
        std::vector<double> lefts, rights;
        for (const MarginNumber& number : numbers) {
            lefts.push_back(boxOf(m_page.lines[number.line]).left);
            rights.push_back(boxOf(m_page.lines[number.line]).right);
        }
        const auto left = mostFrequent(lefts, m_limits.sameEdge), right = mostFrequent(rights, m_limits.sameEdge);
        std::erase_if(numbers, [&](const MarginNumber& number) {
            const Rect& box = boxOf(m_page.lines[number.line]);
            return std::abs(box.left - *left) > m_limits.sameEdge && std::abs(box.right - *right) > m_limits.sameEdge;
        });
        std::stable_sort(numbers.begin(), numbers.end(), [&](const auto& a, const auto& b) {
            return m_page.lines[a.line].baseline < m_page.lines[b.line].baseline;
        });
    }

    /// The numbers in the margin across, which count on from those of the column or show the same.
    std::vector<MarginNumber> findFacing(const NumberColumn& column) const {
        std::vector<MarginNumber> numbers;
        for (std::size_t i = 0; i < m_page.lines.size(); ++i)
            if (const auto value = endingNumber(m_page.lines[i], column.right))
                numbers.push_back({.line = i, .value = *value});
        keepBelowEachOther(numbers, [](const Line& line) { return line.words.back().box; });
        if (numbers.empty())
            return {};
        const bool fits = stepOf(numbers) == column.step && standBehindText(numbers) &&
                          (numbers.front().value == column.numbers.back().value + column.step ||
                           numbers.front().value == column.numbers.front().value);
        return fits ? numbers : std::vector<MarginNumber>();
    }

    /// The number that ends a line right of `edge`, and is set apart.
    std::optional<int> endingNumber(const Line& line, double edge) const {
        if (!isRead(line) || line.words.back().box.left <= edge)
            return std::nullopt;
        const bool isApart = line.words.size() == 1 || line.words.back().box.left - line.words.rbegin()[1].box.right >=
                                                           m_limits.leastGap * line.fontSize;
        return isApart ? numberOf(line.words.back()) : std::nullopt;
    }

    /// Whether no text of the page reaches as far as the numbers across.
    bool standBehindText(const std::vector<MarginNumber>& numbers) const {
        std::vector<bool> isNumbered(m_page.lines.size(), false);
        double left = m_page.width;
        for (const MarginNumber& number : numbers) {
            isNumbered[number.line] = true;
            left = std::min(left, m_page.lines[number.line].words.back().box.left);
        }
        for (std::size_t i = 0; i < m_page.lines.size(); ++i)
            if (!isNumbered[i] && m_page.lines[i].angle == 0 && m_page.lines[i].box.right > left &&
                standsAmong(m_page.lines[i], numbers))
                return false;
        return true;
    }

    /// The line's number, with the text that stands beside it.
    std::optional<MarginNumber> readLine(std::size_t index) const {
        const Line& line = m_page.lines[index];
        const bool isOnTheLeft = isRead(line) && 2 * line.words.front().box.right < m_page.width;
        const std::optional<int> value = isOnTheLeft ? numberOf(line.words.front()) : std::nullopt;
        if (!value)
            return std::nullopt;
        MarginNumber number{.line = index, .value = *value};
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
                if (&other != &line && other.angle == 0 && !other.words.empty() && !isLoneNumber(other) &&
                    std::abs(other.baseline - line.baseline) <= m_limits.sameBaseline * line.fontSize)
                    consider(other, 0);
        }
        return number;
    }

    static bool isLoneNumber(const Line& line) { return line.words.size() == 1 && numberOf(line.words.front()); }

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
            if (!isNumbered[i] && m_page.lines[i].angle == 0 && m_page.lines[i].box.left < column.right &&
                standsAmong(m_page.lines[i], column.numbers))
                return false;
        return true;
    }

    bool standsAmong(const Line& line, const std::vector<MarginNumber>& numbers) const {
        return line.baseline >= m_page.lines[numbers.front().line].baseline &&
               line.baseline <= m_page.lines[numbers.back().line].baseline;
    }

    /// By how much most numbers are more than the one above; nullopt where they do not count.
    std::optional<int> stepOf(const std::vector<MarginNumber>& numbers) const {
        if (numbers.size() < m_limits.fewestOfPage)
            return std::nullopt;
        Tally<int> steps;
        for (std::size_t i = 1; i < numbers.size(); ++i)
            steps.add(numbers[i].value - numbers[i - 1].value);
        const int step = *steps.heaviest();
        const bool isSteady = steps.weightOf(step) >= m_limits.steadyShare * static_cast<double>(numbers.size() - 1);
        return step > 0 && isSteady ? std::optional(step) : std::nullopt;
    }

    const PageText& m_page;
    const PageParameters::LineNumbering& m_limits;
};

void takeNumbers(PageText& page, const NumberColumn& column) {
    for (const MarginNumber& number : column.facing) {
        Line& line = page.lines[number.line];
        line.words.pop_back();
        if (!line.words.empty())
            measureAnew(line);
    }
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
        std::size_t numbered = 0, faced = 0, numbers = 0, goingOn = 0;
        for (const auto& page : m_pages) {
            if (!page)
                continue;
            ++numbered;
            faced += !page->facing.empty();
            numbers +=
                static_cast<std::size_t>(std::count_if(page->numbers.begin(), page->numbers.end(),
                                                       [](const MarginNumber& number) { return number.hasText(); }));
            goingOn += static_cast<std::size_t>(std::count_if(
                page->numbers.begin(), page->numbers.end(), [](const MarginNumber& number) { return number.goesOn; }));
        }
        // No list is numbered on both sides of the page.
        const bool areOfLines = static_cast<double>(goingOn) >= limits.proseShare * static_cast<double>(numbers) ||
                                static_cast<double>(faced) >= limits.pageShare * static_cast<double>(numbered);
        return numbers > 0 && areOfLines &&
               static_cast<double>(numbered) >= limits.pageShare * static_cast<double>(textPages);
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
                if (number.hasText())
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
