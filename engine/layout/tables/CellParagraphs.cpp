#include "layout/tables/CellParagraphs.h"

#include "base/Utf8.h"
#include "layout/paragraphs/ParagraphBuilder.h"
#include "layout/tables/BrokenWords.h"
#include "layout/text/Line.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

bool isUpright(const Line& line) {
    return line.angle == 0 && !line.isVertical;
}

/// An arrow, a box: fonts of signs have baselines of their own.
bool isSign(const Line& line) {
    constexpr std::size_t kLongestSign = 1; // characters
    return line.words.size() == 1 && utf32FromUtf8(textOf(line)).size() <= kLongestSign;
}

bool areOneLine(const Line& above, const Line& below, const TableParameters::Tables& parameters) {
    const double step = std::abs(above.baseline - below.baseline);
    const bool standApart = above.box.right <= below.box.left || below.box.right <= above.box.left;
    return step <= parameters.baselineSnap * below.fontSize ||
           ((isSign(above) || isSign(below)) && standApart &&
            step <= parameters.signSnap * std::min(above.fontSize, below.fontSize));
}

/// The lines of one row as one line, in the order they are read.
Line joinRow(std::vector<Line> row, const TableParameters::Tables& parameters) {
    std::stable_sort(row.begin(), row.end(), [](const Line& a, const Line& b) {
        return a.isRightToLeft ? a.box.left > b.box.left : a.box.left < b.box.left;
    });
    Line joined = std::move(row.front());
    for (std::size_t i = 1; i < row.size(); ++i) {
        const double gap = std::max(row[i].box.left - joined.box.right, joined.box.left - row[i].box.right);
        const Gap between = gap > parameters.tabGap * joined.fontSize ? Gap::Tab : Gap::Space;
        joinLines(joined, std::move(row[i]), between);
    }
    return joined;
}

std::vector<Line> joinLinesOfOneBaseline(std::vector<Line> lines, const TableParameters::Tables& parameters) {
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    std::vector<std::vector<Line>> rows;
    for (Line& line : lines) {
        if (rows.empty() || !areOneLine(rows.back().back(), line, parameters))
            rows.emplace_back();
        rows.back().push_back(std::move(line));
    }
    std::vector<Line> joined;
    for (std::vector<Line>& row : rows)
        joined.push_back(joinRow(std::move(row), parameters));
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
