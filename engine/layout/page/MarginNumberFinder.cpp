#include "layout/page/MarginNumberFinder.h"

#include "base/Utf8.h"
#include "layout/support/Tally.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cstdlib>

namespace orvane::layout {
namespace {

constexpr std::size_t kMostDigits = 5;

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
        column.rowsOfStep = shareOfRows(column);
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

    /// How many of the lines that the numbers pass over have some text.
    double shareOfRows(const NumberColumn& column) const {
        std::vector<double> rows;
        for (const Line& line : m_page.lines)
            if (line.angle == 0 && standsAmong(line, column.numbers))
                rows.push_back(line.baseline);
        std::sort(rows.begin(), rows.end());
        const auto isSame = [&](double a, double b) { return b - a <= m_limits.sameEdge; };
        const auto count = std::unique(rows.begin(), rows.end(), isSame) - rows.begin();
        const auto numbers = static_cast<double>(column.numbers.size());
        const double between = (numbers - 1) * (column.step - 1);
        return between > 0 ? (static_cast<double>(count) - numbers) / between : 0;
    }

    /// By how much most numbers are more than the one above; nullopt where they do not count.
    std::optional<int> stepOf(const std::vector<MarginNumber>& numbers) const {
        if (numbers.size() < m_limits.fewestOfSteps)
            return std::nullopt;
        Tally<int> steps;
        for (std::size_t i = 1; i < numbers.size(); ++i)
            steps.add(numbers[i].value - numbers[i - 1].value);
        const int step = *steps.heaviest();
        const bool isSteady = steps.weightOf(step) >= m_limits.steadyShare * static_cast<double>(numbers.size() - 1);
        const bool areMany = step > 1 || numbers.size() >= m_limits.fewestOfPage;
        return step > 0 && areMany && isSteady ? std::optional(step) : std::nullopt;
    }

    const PageText& m_page;
    const PageParameters::LineNumbering& m_limits;
};

} // namespace

std::optional<NumberColumn> findMarginNumbers(const PageText& page, const PageParameters::LineNumbering& limits) {
    return NumberFinder(page, limits).find();
}

} // namespace orvane::layout
