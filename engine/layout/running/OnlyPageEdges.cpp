#include "layout/running/OnlyPageEdges.h"

#include "base/Utf8.h"
#include "layout/structure/NoteMark.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Points from the page's edge within which a foot stands that only its place tells from the text, ...
constexpr double kMargin = 62;
/// ... and its distance from that, of its font size.
constexpr double kLinesAbove = 4;

/// Whether a short rule stands right above the row, as above notes, which neither share their middle.
bool isBelowSeparator(const RunningRow& row, const PageText& page, const RunningParameters::RunningHeads& limits) {
    constexpr double kLongestSeparator = 0.5; // of the page's width
    return std::any_of(page.rules.begin(), page.rules.end(), [&](const Rule& rule) {
        const bool areCentred = std::abs((rule.from + rule.to) / 2 - row.box.centerX()) <= limits.sameSide;
        return !areCentred && rule.direction == RuleDirection::Horizontal &&
               rule.position <= row.box.top + row.fontSize / 2 && rule.position >= row.box.top - 2 * row.fontSize &&
               rule.to - rule.from < kLongestSeparator * page.width;
    });
}

/// Whether the row starts with a mark to which the text above it refers with a raised one: a note.
bool isNote(const RunningRow& row, const PageText& page) {
    const auto first = std::min_element(row.lines.begin(), row.lines.end(), [&](std::size_t a, std::size_t b) {
        return page.lines[a].box.left < page.lines[b].box.left;
    });
    const std::string mark = bareMark(markAtStart(page.lines[*first].words.front()));
    const auto refersToIt = [&](const Span& span) { return isRaisedMark(span) && bareMark(span.text) == mark; };
    return !mark.empty() && std::any_of(page.lines.begin(), page.lines.end(), [&](const Line& line) {
        return line.box.bottom < row.box.top &&
               std::any_of(line.words.begin(), line.words.end(), [&](const Word& word) {
                   return std::any_of(word.spans.begin(), word.spans.end(), refersToIt);
               });
    });
}

bool hasTextAbove(const EdgeRows& edge, const PageText& page) {
    return std::any_of(page.lines.begin(), page.lines.end(),
                       [&](const Line& line) { return line.box.bottom < edge.rows.back().box.top; });
}

/// The rows from the edge up to the first gap that parts them from the text, which may end out of reach; 0 where there
/// is none.
std::size_t countApart(const EdgeRows& edge, const PageText& page, const RunningParameters::RunningHeads& limits) {
    for (std::size_t i = 1; i <= std::min(edge.rows.size(), limits.longestOnlyFoot); ++i) {
        const RunningRow& outer = edge.rows[i - 1];
        const double end = endOf(outer);
        if (end > limits.onlyFootReach * page.height)
            return 0;
        const bool isApart =
            i == edge.rows.size()
                ? hasTextAbove(edge, page)
                : edge.rows[i].fromEdge - end >= limits.onlyFootGap * std::max(outer.fontSize, edge.rows[i].fontSize);
        if (isApart)
            return isBelowSeparator(outer, page, limits) ? 0 : i;
    }
    return 0;
}

/// Whether the rows stand within the margin that word processors leave below a text, far below it, or so far below that
/// it is out of reach.
bool areInMargin(const EdgeRows& edge, std::size_t count) {
    const RunningRow& last = edge.rows[count - 1];
    return count == edge.rows.size() ||
           (endOf(last) <= kMargin && edge.rows[count].fromEdge - endOf(last) >= kLinesAbove * last.fontSize);
}

/// The size that half of the lines above the rows do not reach.
double usualSize(const EdgeRows& edge, std::size_t count, const PageText& page) {
    std::vector<double> sizes;
    for (const Line& line : page.lines)
        if (line.box.bottom < edge.rows[count - 1].box.top)
            sizes.push_back(line.fontSize);
    if (sizes.empty())
        return 0;
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    return *middle;
}

/// Whether the row ends with "1 of 9" in whatever words, or shows a number apart from its text, as that of a page.
bool showsNumber(const RunningRow& row, const RunningParameters::RunningHeads& limits) {
    if (row.numbers.empty() || row.skeleton.size() < 2)
        return false;
    const bool isAtEdge = row.skeleton.front() == '#' || row.skeleton.back() == '#';
    if (isAtEdge && (row.numbers.front().standsAlone || row.numbers.back().standsAlone))
        return true;
    const std::size_t before = row.skeleton.find_last_of('#', row.skeleton.size() - 2);
    return row.numbers.size() > 1 && row.skeleton.back() == '#' && before != std::string::npos &&
           row.skeleton.size() - before - 2 <= limits.longestNumberLink &&
           row.numbers[row.numbers.size() - 2].value <= row.numbers.back().value;
}

/// Whether rules run through the row or down to it: it is the last one of a table or form.
bool isInTable(const RunningRow& row, const PageText& page) {
    return std::any_of(page.rules.begin(), page.rules.end(), [&](const Rule& rule) {
        return rule.direction == RuleDirection::Vertical && rule.from < row.box.centerY() &&
               rule.to > row.box.centerY();
    });
}

/// Whether the row says "1 of 1" in whatever words.
bool saysFirstOfOne(const RunningRow& row, const RunningParameters::RunningHeads& parameters) {
    return row.numbers.size() == 2 && row.numbers[0].value == 1 && row.numbers[1].value == 1 &&
           row.skeleton.ends_with('#') && row.skeleton.size() <= parameters.longestOnlyRow;
}

/// Whether the row is a number and perhaps dashes around it.
bool saysNumberOnly(const RunningRow& row) {
    const std::u32string text = utf32FromUtf8(row.skeleton);
    return row.numbers.size() == 1 && row.numbers[0].value > 0 &&
           std::none_of(text.begin(), text.end(), [](char32_t c) { return isLetter(c); });
}

/// Whether a wide gap parts "1", "Page 1" or the like from the rest of the row.
bool endsWithFirstNumber(const RunningRow& row, const PageText& page) {
    if (row.numbers.size() != 1 || row.numbers[0].value != 1)
        return false;
    const RowNumber& number = row.numbers[0];
    const std::vector<Word>& words = page.lines[number.line].words;
    const bool hasName = number.word > 0 && words[number.word].gapBefore != Gap::Tab;
    const std::size_t first = number.word - (hasName ? 1 : 0);
    const bool isPiece = first == 0 ? row.lines.size() > 1 : words[first].gapBefore == Gap::Tab;
    return isPiece && number.word + 1 == words.size();
}

} // namespace

std::optional<PageNumber> takeOnlyNumber(EdgeRows& edge, PageEdge side, const PageText& page,
                                         const RunningParameters::RunningHeads& parameters) {
    if (edge.rows.empty() || edge.rows[0].fromEdge > parameters.onlyNumberReach * page.height)
        return std::nullopt;
    const RunningRow& row = edge.rows[0];
    const bool isApart =
        edge.rows.size() == 1 || edge.rows[1].fromEdge - endOf(row) >= parameters.ownFootGap * row.fontSize;
    // At the top a number alone may be that of a chapter.
    const bool isNumber = saysFirstOfOne(row, parameters) || endsWithFirstNumber(row, page) ||
                          (side == PageEdge::Bottom && saysNumberOnly(row));
    if (!isNumber || !isApart)
        return std::nullopt;
    takeRows(edge, 1);
    return PageNumber{row.numbers[0].value, row.numbers[0].format};
}

void takeOnlyFoot(EdgeRows& edge, const PageText& page, const RunningParameters::RunningHeads& parameters) {
    const std::size_t count = countApart(edge, page, parameters);
    if (count == 0)
        return;
    const double usual = usualSize(edge, count, page);
    const auto first = edge.rows.begin(), last = first + static_cast<std::ptrdiff_t>(count);
    const bool isSmall =
        std::all_of(first, last, [&](const RunningRow& row) { return row.fontSize < usual - parameters.sameSize; });
    const bool isLarge =
        std::any_of(first, last, [&](const RunningRow& row) { return row.fontSize > usual + parameters.sameSize; });
    const bool isNumbered =
        !isLarge && std::any_of(first, last, [&](const RunningRow& row) { return showsNumber(row, parameters); });
    const bool isSetApart = !isLarge && areInMargin(edge, count);
    if ((!isSmall && !isNumbered && !isSetApart) ||
        std::any_of(first, last, [&](const RunningRow& row) { return isInTable(row, page) || isNote(row, page); }))
        return;
    takeRows(edge, count);
    for (auto row = first; row != last; ++row)
        row->numbers.clear(); // they count pages of another document, if any
}

} // namespace orvane::layout
