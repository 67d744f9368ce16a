#include "layout/tables/AlignedGrid.h"

#include "layout/tables/CloseNumbers.h"
#include "layout/tables/GapCutter.h"
#include "layout/tables/GapTexts.h"
#include "layout/tables/TightGaps.h"

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

/// A bullet right before its text. Signs that also fill columns of their own, such as check marks, are none here.
bool isBulletOf(const TextPiece& piece, const TextPiece& text, const std::vector<Line>& lines,
                const LayoutParameters& parameters) {
    return piece.wordCount() == 1 && isBullet(textOf(piece, lines)) &&
           text.box.left - piece.box.right <= parameters.gutters.labelGap * piece.fontSize;
}

/// What stands in a column, and how often something stands beside it in the next one.
struct ColumnUse {
    int pieces = 0;
    int bullets = 0; ///< of these, right before their texts
    int parted = 0;  ///< rows with texts in both columns
};

ColumnUse useOf(std::size_t column, const std::vector<ColumnGap>& gaps, const std::vector<PieceRow>& rows,
                const std::vector<Line>& lines, const LayoutParameters& parameters) {
    ColumnUse use;
    for (const PieceRow& row : rows) {
        bool followsBullet = false;
        for (std::size_t i = 0; i < row.pieces.size(); ++i) {
            const bool hasNext = i + 1 < row.pieces.size();
            const bool isItsBullet = hasNext && isBulletOf(row.pieces[i], row.pieces[i + 1], lines, parameters);
            if (static_cast<std::size_t>(columnsOf(row.pieces[i], gaps).first) == column) {
                // Where lists are nested, the bullets of one level stand below the texts of another.
                use.pieces += !followsBullet;
                use.bullets += isItsBullet;
                use.parted +=
                    hasNext && static_cast<std::size_t>(columnsOf(row.pieces[i + 1], gaps).first) == column + 1;
            }
            followsBullet = isItsBullet;
        }
    }
    return use;
}

/// Whether the column is one of bullets, whose texts the next one holds; where a row has no bullet, its text may stand
/// in either.
bool partsBullets(const ColumnUse& use, const TableParameters::Tables& parameters) {
    return use.bullets > 0 && (use.bullets >= parameters.bulletShare * use.pieces || use.bullets == use.parted);
}

/// Whether several rows have texts in both columns beside a gap.
bool partsRows(const std::vector<ColumnGap>& gaps, std::size_t gap, const std::vector<PieceRow>& rows,
               const TableParameters::Tables& parameters) {
    const auto parted = std::count_if(rows.begin(), rows.end(), [&](const PieceRow& row) {
        const auto isIn = [&](std::size_t column) {
            return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
                const ColumnRange range = columnsOf(piece, gaps);
                return range.first == range.last && static_cast<std::size_t>(range.first) == column;
            });
        };
        return isIn(gap) && isIn(gap + 1);
    });
    return parted >= parameters.minimumRowsParted;
}

/// Adds the tight gaps that are too narrow to have been found, where no other lies.
void addTightGaps(std::vector<ColumnGap>& gaps, const std::vector<ColumnGap>& tight, const std::vector<PieceRow>& rows,
                  const TableParameters::Tables& parameters) {
    for (const ColumnGap& gap : tight) {
        const auto next =
            std::find_if(gaps.begin(), gaps.end(), [&](const ColumnGap& other) { return other.right > gap.left; });
        const bool isFree = next == gaps.end() || next->left >= gap.right;
        if (!isFree || gap.width() >= parameters.minimumColumnGap * rows.front().fontSize)
            continue;
        const auto added = gaps.insert(next, gap);
        if (!partsRows(gaps, static_cast<std::size_t>(added - gaps.begin()), rows, parameters))
            gaps.erase(added);
    }
}

} // namespace

std::vector<ColumnGap> findTableColumns(std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                                        const LayoutParameters& parameters) {
    std::vector<ColumnGap> gaps = findColumnGaps(rows, parameters.tables);
    cutAtGaps(rows, gaps, lines, parameters.tables);
    const std::vector<ColumnGap> tight = cutAtTightGaps(rows, lines, parameters.tables);
    const std::vector<ColumnGap> close = cutAtCloseNumbers(rows, lines, parameters.tables);
    gaps = findColumnGaps(rows, parameters.tables);
    addTightGaps(gaps, tight, rows, parameters.tables);
    addTightGaps(gaps, close, rows, parameters.tables);
    joinHeadsWithValues(gaps, rows, parameters.tables);
    narrowToTexts(gaps, rows, lines);
    std::vector<ColumnGap> kept;
    for (std::size_t i = 0; i < gaps.size(); ++i)
        if (!partsBullets(useOf(i, gaps, rows, lines, parameters), parameters.tables))
            kept.push_back(gaps[i]);
    return kept;
}

TableGrid gridOf(const AlignedRows& aligned, double margin) {
    TableGrid grid;
    Rect box;
    for (std::size_t row = 0; row < aligned.groups.size(); ++row) {
        const Rect text = boxOf(aligned, aligned.groups[row]);
        grid.rowEdges.push_back(row == 0 ? text.top : (box.bottom + text.top) / 2);
        box = box.united(text);
        for (const ColumnRange& range : cellRanges(aligned, aligned.groups[row]))
            grid.cells.push_back({static_cast<int>(row), range.first, 1, range.last - range.first + 1});
    }
    grid.rowEdges.push_back(box.bottom);
    grid.columnEdges.push_back(box.left - margin);
    for (const ColumnGap& gap : aligned.gaps)
        grid.columnEdges.push_back(std::max(gap.middle(), gap.right - margin));
    grid.columnEdges.push_back(box.right + margin);
    return grid;
}

} // namespace orvane::layout
