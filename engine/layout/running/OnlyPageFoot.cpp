#include "layout/running/OnlyPageFoot.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// The rows from the edge up to the first gap that parts them from the text; 0 where there is none.
std::size_t countApart(const EdgeRows& edge, const PageText& page, const RunningParameters::RunningHeads& limits) {
    for (std::size_t i = 1; i < edge.rows.size() && i <= limits.longestOnlyFoot; ++i) {
        const RunningRow& outer = edge.rows[i - 1];
        const double end = outer.fromEdge + outer.box.height();
        if (end > limits.onlyFootReach * page.height)
            return 0;
        if (edge.rows[i].fromEdge - end >= limits.onlyFootGap * std::max(outer.fontSize, edge.rows[i].fontSize))
            return i;
    }
    return 0;
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

} // namespace

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
    if ((!isSmall && !isNumbered) ||
        std::any_of(first, last, [&](const RunningRow& row) { return isInTable(row, page); }))
        return;
    std::fill_n(edge.matches.begin(), count, RowMatch::Text);
    for (auto row = first; row != last; ++row)
        row->numbers.clear(); // they count pages of another document, if any
    edge.taken = count;
}

} // namespace orvane::layout
