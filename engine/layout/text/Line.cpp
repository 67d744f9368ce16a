#include "layout/text/Line.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::layout {

Line splitLine(Line& line, std::size_t wordIndex) {
    Line rest = line;
    const auto cut = line.words.begin() + static_cast<std::ptrdiff_t>(wordIndex);
    rest.words.assign(std::make_move_iterator(cut), std::make_move_iterator(line.words.end()));
    line.words.erase(cut, line.words.end());
    rest.words.front().gapBefore = rest.words.front().leaderBefore == document::TabLeader::None ? Gap::None : Gap::Tab;
    rest.dropCapLines = 0;
    measureAnew(line);
    measureAnew(rest);
    return rest;
}

std::vector<Line> piecesOf(Line line) {
    std::vector<Line> pieces;
    for (std::size_t i = line.words.size(); i-- > 1;)
        if (line.words[i].gapBefore == Gap::Tab)
            pieces.push_back(splitLine(line, i));
    pieces.push_back(std::move(line));
    std::reverse(pieces.begin(), pieces.end());
    return pieces;
}

void joinLines(Line& line, Line next, Gap gap) {
    if (!next.words.empty())
        next.words.front().gapBefore = gap;
    line.firstPaintOrder = std::min(line.firstPaintOrder, next.firstPaintOrder);
    std::move(next.words.begin(), next.words.end(), std::back_inserter(line.words));
    measureAnew(line);
}

void addLines(PageText& page, std::vector<Line> lines) {
    if (lines.empty())
        return;
    std::move(lines.begin(), lines.end(), std::back_inserter(page.lines));
    std::stable_sort(page.lines.begin(), page.lines.end(),
                     [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
}

} // namespace orvane::layout
