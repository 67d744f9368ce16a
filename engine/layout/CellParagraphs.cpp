#include "layout/CellParagraphs.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Appends `right` to `left`, both on one baseline.
void joinLines(Line& left, Line right, const LayoutParameters::Tables& parameters) {
    const double gap = right.box.left - left.box.right;
    right.words.front().gapBefore = gap > parameters.tabGap * left.fontSize ? Gap::Tab : Gap::Space;
    left.box = left.box.united(right.box);
    left.words.insert(left.words.end(), right.words.begin(), right.words.end());
}

std::vector<Line> joinLinesOfOneBaseline(std::vector<Line> lines, const LayoutParameters::Tables& parameters) {
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.box.top < b.box.top; });
    std::vector<Line> joined;
    for (Line& line : lines) {
        const bool continues =
            !joined.empty() && line.angle == 0 && joined.back().angle == 0 &&
            std::abs(joined.back().baseline - line.baseline) <= parameters.baselineSnap * line.fontSize;
        if (!continues)
            joined.push_back(std::move(line));
        else if (joined.back().box.left <= line.box.left)
            joinLines(joined.back(), std::move(line), parameters);
        else {
            joinLines(line, std::move(joined.back()), parameters);
            joined.back() = std::move(line);
        }
    }
    return joined;
}

/// Whether `next` goes on with the paragraph that `line` belongs to: close below it, with `line` so full that the first
/// word of `next` did not fit into the column any more.
bool goesOn(const Line& line, const Line& next, ColumnSpan column, const LayoutParameters::Tables& parameters) {
    if (next.baseline - line.baseline > parameters.paragraphPitch * line.fontSize || line.angle != 0)
        return false;
    const double margin = std::max(0.0, line.box.left - column.left);
    const double room = line.isRightToLeft ? line.box.left - column.left : column.right - margin - line.box.right;
    return next.words.front().box.width() + parameters.blankWidth * line.fontSize > room;
}

} // namespace

std::vector<ParagraphDraft> buildCellParagraphs(std::vector<Line> lines, ColumnSpan column,
                                                const LayoutParameters::Tables& parameters) {
    std::vector<ParagraphDraft> paragraphs;
    for (Line& line : joinLinesOfOneBaseline(std::move(lines), parameters)) {
        if (paragraphs.empty() || !goesOn(paragraphs.back().lines.back(), line, column, parameters))
            paragraphs.emplace_back();
        ParagraphDraft& paragraph = paragraphs.back();
        paragraph.box = paragraph.box.united(line.box);
        paragraph.leading =
            paragraph.lines.empty() ? line.box.height() : line.baseline - paragraph.lines.back().baseline;
        paragraph.lines.push_back(std::move(line));
    }
    return paragraphs;
}

} // namespace orvane::layout
