#include "layout/structure/ColumnSetup.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace orvane::layout {
namespace {

bool startsBefore(const SeenColumn& a, const SeenColumn& b) {
    return a.span.left < b.span.left;
}

bool isOpen(const SeenColumn& column) {
    return column.lines == ColumnLines::EndedByHand;
}

/// Columns of one width that start where the seen ones start; empty when there are none.
std::vector<ColumnSpan> equalColumns(const std::vector<ColumnSpan>& seen, const Rect& area, double widestGap,
                                     const StructureParameters::PageSetup& limits) {
    const auto count = static_cast<double>(seen.size());
    // From one column's start to the next.
    const double step = (seen.back().left - seen.front().left) / (count - 1);
    const double gap = count * step - area.width();
    const double width = step - gap;
    if (gap < limits.smallestColumnGap || gap >= std::min(width, widestGap))
        return {};
    std::vector<ColumnSpan> columns;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const double left = area.left + static_cast<double>(i) * step;
        if (std::abs(left - seen[i].left) > limits.sameColumn || seen[i].right > left + width + limits.sameColumn)
            return {};
        columns.push_back({left, left + width});
    }
    return columns;
}

} // namespace

ColumnLines linesOf(const DraftParagraph& paragraph, const DraftPiece& piece) {
    const bool areEnded = paragraph.pieces.size() == 1 && piece.text.alignment == document::Alignment::Start &&
                          piece.text.hardBreaks.size() + 1 >= piece.text.lines.size();
    return areEnded ? ColumnLines::EndedByHand : ColumnLines::Wrapped;
}

std::vector<ColumnSpan> fitColumns(const std::vector<SeenColumn>& seen, const Rect& area,
                                   const StructureParameters::PageSetup& parameters) {
    if (seen.size() < 2)
        return {{area.left, area.right}};
    const bool isRightToLeft = seen.front().span.left > seen.back().span.left;
    std::vector<SeenColumn> sorted = seen;
    std::sort(sorted.begin(), sorted.end(), startsBefore);
    std::vector<ColumnSpan> columns;
    for (const SeenColumn& column : sorted)
        columns.push_back(column.span);
    const bool areOpen = !isRightToLeft && std::all_of(sorted.begin(), std::prev(sorted.end()), isOpen);
    const double widestGap = areOpen ? parameters.widestColumnGap : area.width();
    if (std::vector<ColumnSpan> equal = equalColumns(columns, area, widestGap, parameters); !equal.empty()) {
        columns = std::move(equal);
    } else {
        columns.front().left = std::min(columns.front().left, area.left);
        columns.back().right = std::max(columns.back().right, area.right);
        for (std::size_t i = 0; i + 1 < columns.size(); ++i) {
            const double farthest = columns[i + 1].left - parameters.smallestColumnGap;
            columns[i].right = !isRightToLeft && isOpen(sorted[i]) ? farthest : std::min(columns[i].right, farthest);
        }
    }
    if (isRightToLeft)
        std::reverse(columns.begin(), columns.end());
    return columns;
}

std::vector<document::Column> columnWidths(std::vector<ColumnSpan> columns) {
    std::vector<document::Column> widths;
    if (columns.size() < 2)
        return widths;
    const bool isRightToLeft = columns.front().left > columns.back().left;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        document::Column column;
        column.width = twipsFromPoints(columns[i].right - columns[i].left);
        if (i + 1 < columns.size())
            column.spaceAfter = twipsFromPoints(isRightToLeft ? columns[i].left - columns[i + 1].right
                                                              : columns[i + 1].left - columns[i].right);
        widths.push_back(column);
    }
    return widths;
}

} // namespace orvane::layout
