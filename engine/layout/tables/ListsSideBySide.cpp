#include "layout/tables/ListsSideBySide.h"

#include "layout/support/Stretches.h"
#include "layout/support/Tally.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

std::vector<Stretch> linesThatFollow(const ColumnPieces& column, const TableParameters::Tables& parameters) {
    std::vector<double> baselines;
    double fontSize = 0;
    for (const TextPiece* piece : column.pieces) {
        baselines.push_back(piece->baseline);
        fontSize = std::max(fontSize, piece->fontSize);
    }
    return stretchesOf(std::move(baselines), parameters.proseLeading * fontSize);
}

/// Baselines of the texts of a row, from the top down.
std::vector<double> baselinesOf(const PieceRow& row) {
    std::vector<double> baselines;
    for (const TextPiece& piece : row.pieces)
        baselines.push_back(piece.baseline);
    std::sort(baselines.begin(), baselines.end());
    return baselines;
}

} // namespace

bool areListsSideBySide(std::span<const ColumnPieces> columns, const TableParameters::Tables& parameters) {
    if (columns.size() < 3)
        return false;
    std::vector<Stretch> last = linesThatFollow(columns.front(), parameters);
    for (const ColumnPieces& column : columns.subspan(1)) {
        std::vector<Stretch> next = linesThatFollow(column, parameters);
        if (!runPastEachOther(last, next, parameters.fewestPartedRows))
            return false;
        last = std::move(next);
    }
    return true;
}

bool areOutOfStep(std::span<const PieceRow> rows, const TableParameters::Tables& parameters) {
    int level = 0, all = 0;
    std::vector<double> drops; // from the text that stands highest to those that are level at the foot of their cells
    for (const PieceRow& row : rows) {
        const auto isComparable = [&](const TextPiece& piece) {
            return std::abs(piece.fontSize - row.pieces.front().fontSize) <= parameters.sameTextSize * row.fontSize;
        };
        if (row.pieces.size() < 2 || !std::all_of(row.pieces.begin(), row.pieces.end(), isComparable))
            continue;
        ++all;
        const std::vector<double> baselines = baselinesOf(row);
        if (baselines.back() - baselines.front() <= parameters.levelTexts * row.fontSize)
            ++level;
        else if (baselines.size() > 2 && baselines.back() - baselines[1] <= parameters.sameBaseline)
            drops.push_back(baselines.back() - baselines.front());
    }
    const auto alike = static_cast<int>(densestRange(std::move(drops), parameters.sameBaseline).count);
    return all >= parameters.fewestRowsInStep && level <= parameters.levelShare * all &&
           level + alike <= parameters.droppedShare * all;
}

} // namespace orvane::layout
