#include "layout/tables/CellParagraphs.h"

#include "layout/paragraphs/ParagraphBuilder.h"
#include "layout/tables/BrokenWords.h"
#include "layout/text/Line.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

bool isUpright(const Line& line) {
    return line.angle == 0 && !line.isVertical;
}

/// Joins two lines of one baseline in the order they are read.
Line joinInOrder(Line a, Line b, const TableParameters::Tables& parameters) {
    const bool aIsFirst = (a.box.left <= b.box.left) != a.isRightToLeft;
    Line& first = aIsFirst ? a : b;
    Line& second = aIsFirst ? b : a;
    const double gap = std::max(second.box.left - first.box.right, first.box.left - second.box.right);
    joinLines(first, std::move(second), gap > parameters.tabGap * first.fontSize ? Gap::Tab : Gap::Space);
    return std::move(first);
}

std::vector<Line> joinLinesOfOneBaseline(std::vector<Line> lines, const TableParameters::Tables& parameters) {
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    std::vector<Line> joined;
    for (Line& line : lines) {
        const bool continues = !joined.empty() && std::abs(joined.back().baseline - line.baseline) <=
                                                      parameters.baselineSnap * line.fontSize;
        if (continues)
            joined.back() = joinInOrder(std::move(joined.back()), std::move(line), parameters);
        else
            joined.push_back(std::move(line));
    }
    return joined;
}

/// Turned lines as one paragraph, in the order they are read: of text that reads upwards the leftmost line first.
ParagraphDraft turnedParagraph(std::vector<Line> lines) {
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) {
        return a.angle > 180 ? a.box.left < b.box.left : a.box.left > b.box.left;
    });
    ParagraphDraft paragraph;
    for (const Line& line : lines)
        paragraph.box = paragraph.box.united(line.box);
    paragraph.leading = paragraph.box.width() / static_cast<double>(lines.size());
    paragraph.lines = std::move(lines);
    return paragraph;
}

} // namespace

std::vector<ParagraphDraft> buildCellParagraphs(std::vector<Line> lines, const Rect& cell, ColumnSpan room,
                                                const ParagraphContext& context,
                                                const std::unordered_set<std::string>& vocabulary,
                                                const LayoutParameters& parameters) {
    const auto firstTurned = std::stable_partition(lines.begin(), lines.end(), isUpright);
    std::vector<Line> turned(std::make_move_iterator(firstTurned), std::make_move_iterator(lines.end()));
    lines.erase(firstTurned, lines.end());
    std::vector<Line> upright = joinLinesOfOneBaseline(std::move(lines), parameters.tables);
    mendBrokenWords(upright, room, vocabulary);
    std::vector<ParagraphDraft> paragraphs = buildParagraphs(upright, room, context, parameters);
    for (ParagraphDraft& paragraph : paragraphs) {
        const bool isRightToLeft = paragraph.lines.front().isRightToLeft;
        paragraph.indentStart += isRightToLeft ? cell.right - room.right : room.left - cell.left;
        if (paragraph.alignment == document::Alignment::Justified)
            paragraph.indentEnd += isRightToLeft ? room.left - cell.left : cell.right - room.right;
    }
    if (!turned.empty())
        paragraphs.push_back(turnedParagraph(std::move(turned)));
    return paragraphs;
}

} // namespace orvane::layout
