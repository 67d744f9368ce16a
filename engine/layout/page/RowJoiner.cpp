#include "layout/page/RowJoiner.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Appends what stands behind `line` in its direction.
void append(Line& line, Line next) {
    next.words.front().gapBefore = Gap::Tab;
    std::move(next.words.begin(), next.words.end(), std::back_inserter(line.words));
    line.firstPaintOrder = std::min(line.firstPaintOrder, next.firstPaintOrder);
    measureAnew(line);
}

bool isBefore(const Line& a, const Line& b) {
    return a.isRightToLeft ? a.box.right > b.box.right : a.box.left < b.box.left;
}

} // namespace

std::vector<Line> joinRows(std::vector<Line> lines, const ParagraphParameters::Paragraphs& parameters) {
    std::vector<Line> rows;
    for (std::size_t from = 0; from < lines.size();) {
        std::size_t to = from + 1;
        while (to < lines.size() && std::abs(lines[to].baseline - lines[from].baseline) <
                                        parameters.sameRow * std::min(lines[to].fontSize, lines[from].fontSize))
            ++to;
        const auto first = lines.begin() + static_cast<std::ptrdiff_t>(from);
        const auto last = lines.begin() + static_cast<std::ptrdiff_t>(to);
        std::stable_sort(first, last, isBefore);
        for (auto line = first; line != last; ++line) {
            const bool isBeside = line != first && overlap(rows.back().box.left, rows.back().box.right, line->box.left,
                                                           line->box.right) <= parameters.sameRow * line->fontSize;
            if (isBeside && rows.back().isRightToLeft == line->isRightToLeft)
                append(rows.back(), std::move(*line));
            else
                rows.push_back(std::move(*line));
        }
        from = to;
    }
    return rows;
}

} // namespace orvane::layout
