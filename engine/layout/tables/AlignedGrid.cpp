#include "layout/tables/AlignedGrid.h"

#include "layout/tables/GapTexts.h"
#include "layout/tables/TightGaps.h"

#include <algorithm>
#include <cmath>
#include <optional>

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

/// A bullet right before its text, or the sign of a currency before its amount. Signs that also fill columns of their
/// own, such as check marks, are none here.
bool isBulletOf(const TextPiece& piece, const TextPiece& text, const std::vector<Line>& lines,
                const LayoutParameters& parameters) {
    if (piece.wordCount() != 1)
        return false;
    const std::string sign = textOf(piece, lines);
    return (isCurrencySign(sign) && isNumeric(text, lines)) ||
           (isBullet(sign) && text.box.left - piece.box.right <= parameters.gutters.labelGap * piece.fontSize);
}

/// A gap, and where the texts to the right of it begin if most of them keep one edge.
struct ColumnStart {
    ColumnGap gap;
    std::optional<double> left;
};

std::vector<ColumnStart> startsOf(const std::vector<ColumnGap>& gaps, const std::vector<PieceRow>& rows,
                                  const TableParameters::Tables& parameters) {
    std::vector<std::vector<double>> lefts(gaps.size() + 1);
    for (const PieceRow& row : rows)
        for (const TextPiece& piece : row.pieces)
            lefts[static_cast<std::size_t>(columnsOf(piece, gaps).first)].push_back(piece.box.left);
    std::vector<ColumnStart> starts;
    for (std::size_t i = 0; i < gaps.size(); ++i) {
        std::vector<double>& edges = lefts[i + 1];
        std::sort(edges.begin(), edges.end());
        std::size_t most = 0;
        starts.push_back({gaps[i], std::nullopt});
        for (std::size_t first = 0, end = 0; first < edges.size(); ++first) {
            while (end < edges.size() && edges[end] <= edges[first] + parameters.startSnap)
                ++end;
            if (end - first > most)
                starts.back().left = edges[first];
            most = std::max(most, end - first);
        }
        const double least = parameters.keptEdgeShareRuled * static_cast<double>(edges.size());
        if (most < static_cast<std::size_t>(parameters.minimumRowsParted) || static_cast<double>(most) < least)
            starts.back().left.reset();
    }
    return starts;
}

/// Whether the space before the word is unlike the blanks of its piece.
bool isSpacedUnlikeText(const Line& line, const TextPiece& piece, std::size_t index,
                        const TableParameters::Tables& parameters) {
    const auto spaceBefore = [&](std::size_t i) {
        const Rect& before = line.words[i - 1].box;
        const Rect& after = line.words[i].box;
        return std::max(after.left - before.right, before.left - after.right);
    };
    std::vector<double> blanks;
    for (std::size_t i = piece.firstWord + 1; i < piece.endWord; ++i)
        if (i != index)
            blanks.push_back(spaceBefore(i));
    if (blanks.empty())
        return false;
    const auto middle = blanks.begin() + static_cast<std::ptrdiff_t>(blanks.size() / 2);
    std::nth_element(blanks.begin(), middle, blanks.end());
    return std::abs(spaceBefore(index) - *middle) > parameters.blankSlack * line.fontSize;
}

/// Whether a gap of columns lies between two words of a piece, and the words are such as stand in two cells: numbers,
/// words with more than a blank between them, or words of which the second begins where its column does.
bool isCutBetween(const Line& line, const TextPiece& piece, std::size_t index, const ColumnStart& start,
                  const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const ColumnGap& gap = start.gap;
    const Rect& before = line.words[index - 1].box;
    const Rect& after = line.words[index].box;
    const Rect& left = before.left < after.left ? before : after;
    const Rect& right = before.left < after.left ? after : before;
    if (left.right > gap.right || right.left < gap.left)
        return false;
    const bool areNumbers = isNumeric(pieceOf(line, piece.line, index - 1, index), lines) &&
                            isNumeric(pieceOf(line, piece.line, index, index + 1), lines);
    const bool beginsColumn = start.left && std::abs(right.left - *start.left) <= parameters.startSnap &&
                              isSpacedUnlikeText(line, piece, index, parameters);
    return areNumbers || beginsColumn || right.left - left.right > parameters.pieceGap * line.fontSize;
}

/// Cuts the pieces of a row where gaps lie between their words.
void cutAtGaps(PieceRow& row, const std::vector<ColumnStart>& starts, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters) {
    std::vector<TextPiece> pieces;
    for (const TextPiece& piece : row.pieces) {
        const Line& line = lines[piece.line];
        std::size_t first = piece.firstWord;
        for (std::size_t i = first + 1; i < piece.endWord; ++i) {
            const bool isCut = std::any_of(starts.begin(), starts.end(), [&](const ColumnStart& start) {
                return crosses(piece, start.gap) && isCutBetween(line, piece, i, start, lines, parameters);
            });
            if (!isCut)
                continue;
            pieces.push_back(pieceOf(line, piece.line, first, i));
            pieces.back().filledCell = piece.filledCell;
            first = i;
        }
        pieces.push_back(pieceOf(line, piece.line, first, piece.endWord));
        pieces.back().filledCell = piece.filledCell;
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const TextPiece& a, const TextPiece& b) { return a.box.left < b.box.left; });
    row.pieces = std::move(pieces);
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
    const std::vector<ColumnStart> starts = startsOf(gaps, rows, parameters.tables);
    for (PieceRow& row : rows)
        cutAtGaps(row, starts, lines, parameters.tables);
    const std::vector<ColumnGap> tight = cutAtTightGaps(rows, lines, parameters.tables);
    gaps = findColumnGaps(rows, parameters.tables);
    addTightGaps(gaps, tight, rows, parameters.tables);
    joinHeadsWithValues(gaps, rows, parameters.tables);
    narrowToTexts(gaps, rows, lines);
    std::vector<int> pieces(gaps.size() + 1);
    std::vector<int> bullets(gaps.size() + 1);
    for (const PieceRow& row : rows) {
        bool followsBullet = false;
        for (std::size_t i = 0; i < row.pieces.size(); ++i) {
            const TextPiece& piece = row.pieces[i];
            const auto column = static_cast<std::size_t>(columnsOf(piece, gaps).first);
            const bool isItsBullet =
                i + 1 < row.pieces.size() && isBulletOf(piece, row.pieces[i + 1], lines, parameters);
            // Where lists are nested, the bullets of one level stand below the texts of another.
            pieces[column] += !followsBullet;
            bullets[column] += isItsBullet;
            followsBullet = isItsBullet;
        }
    }
    std::vector<ColumnGap> kept;
    for (std::size_t i = 0; i < gaps.size(); ++i)
        if (bullets[i] == 0 || bullets[i] < parameters.tables.bulletShare * pieces[i])
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
