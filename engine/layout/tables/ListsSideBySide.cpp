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

} // namespace orvane::layout
