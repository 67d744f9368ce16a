#include "layout/AlignedGrid.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// The pieces of a group as ranges of columns that do not overlap, left to right; between them every column is a cell.
std::vector<ColumnRange> cellRanges(const AlignedRows& aligned, const RowGroup& group) {
    std::vector<ColumnRange> ranges;
    for (std::size_t i = group.first; i < group.end; ++i)
        for (const TextPiece& piece : aligned.rows[i].pieces)
            ranges.push_back(columnsOf(piece, aligned.gaps));
    const int lastColumn = static_cast<int>(aligned.gaps.size());
    // A text alone in its row that begins at the left and does not keep to a column heads the rows below in all
    // columns.
    if (ranges.size() == 1 && ranges.front().first == 0 && ranges.front().last > 0)
        return {{0, lastColumn}};
    std::sort(ranges.begin(), ranges.end(),
              [](const ColumnRange& a, const ColumnRange& b) { return a.first < b.first; });
    std::vector<ColumnRange> cells;
    int next = 0;
    for (const ColumnRange& range : ranges) {
        if (!cells.empty() && range.first <= cells.back().last) {
            cells.back().last = std::max(cells.back().last, range.last);
        } else {
            for (; next < range.first; ++next)
                cells.push_back({next, next});
            cells.push_back(range);
        }
        next = cells.back().last + 1;
    }
    for (; next <= lastColumn; ++next)
        cells.push_back({next, next});
    return cells;
}

Rect boxOf(const AlignedRows& aligned, const RowGroup& group) {
    Rect box;
    for (std::size_t i = group.first; i < group.end; ++i)
        box = box.united(aligned.rows[i].box);
    return box;
}

} // namespace

TableGrid gridOf(const AlignedRows& aligned, double margin) {
    TableGrid grid;
    Rect box;
    for (std::size_t row = 0; row < aligned.groups.size(); ++row) {
        const Rect text = boxOf(aligned, aligned.groups[row]);
        grid.rowEdges.push_back(row == 0 ? text.top - margin : (box.bottom + text.top) / 2);
        box = box.united(text);
        for (const ColumnRange& range : cellRanges(aligned, aligned.groups[row]))
            grid.cells.push_back({static_cast<int>(row), range.first, 1, range.last - range.first + 1});
    }
    grid.rowEdges.push_back(box.bottom + margin);
    grid.columnEdges.push_back(box.left - margin);
    for (const ColumnGap& gap : aligned.gaps)
        grid.columnEdges.push_back(gap.middle());
    grid.columnEdges.push_back(box.right + margin);
    return grid;
}

} // namespace orvane::layout
