#include "layout/tables/ListsSideBySide.h"

#include "layout/support/Stretches.h"

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
    for (const PieceRow& row : rows) {
        const auto isComparable = [&](const TextPiece& piece) {
            return std::abs(piece.fontSize - row.pieces.front().fontSize) <= parameters.sameTextSize * row.fontSize;
        };
        if (row.pieces.size() < 2 || !std::all_of(row.pieces.begin(), row.pieces.end(), isComparable))
            continue;
        ++all;
        const auto [high, low] =
            std::minmax_element(row.pieces.begin(), row.pieces.end(),
                                [](const TextPiece& a, const TextPiece& b) { return a.baseline < b.baseline; });
        level += low->baseline - high->baseline <= parameters.levelTexts * row.fontSize;
    }
    return all >= parameters.fewestRowsInStep && level <= parameters.levelShare * all;
}

} // namespace orvane::layout
