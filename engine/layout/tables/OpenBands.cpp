#include "layout/tables/OpenBands.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace orvane::layout {
namespace {

bool isBetweenEnds(const PieceRow& row, const RuleLevel& level, const TableParameters::Tables& parameters) {
    return row.box.left >= level.left - parameters.endSnap && row.box.right <= level.right + parameters.endSnap;
}

std::vector<TextPiece>::const_iterator firstBelow(const std::vector<TextPiece>& pieces, double y) {
    return std::lower_bound(pieces.begin(), pieces.end(), y,
                            [](const TextPiece& piece, double at) { return piece.baseline < at; });
}

bool meets(const TextPiece& piece, const RuleLevel& level) {
    return piece.box.right > level.left && piece.box.left < level.right;
}

/// Whether the text begins where one does in the row above that is not its first: a long text beside a label.
bool goesOnBesideLabel(const TextPiece& piece, const PieceRow& above, const TableParameters::Tables& parameters) {
    return std::any_of(above.pieces.begin() + 1, above.pieces.end(), [&](const TextPiece& other) {
        return std::abs(other.box.left - piece.box.left) <= parameters.startSnap;
    });
}

} // namespace

bool isLabelWithAmount(const PieceRow& row, const std::vector<Line>& lines) {
    return row.pieces.size() > 1 && !isNumeric(row.pieces.front(), lines) && isNumeric(row.pieces.back(), lines);
}

std::vector<PieceRow> headAbove(const RuleLevel& level, double rowSpace, const std::vector<TextPiece>& pieces,
                                const TableParameters::Tables& parameters) {
    std::vector<TextPiece> above;
    double reach = 0;
    for (auto piece = std::make_reverse_iterator(firstBelow(pieces, level.y)); piece != pieces.rend(); ++piece) {
        if (above.empty())
            reach = parameters.headReach * piece->fontSize;
        if (piece->baseline < level.y - reach)
            break;
        if (meets(*piece, level))
            above.push_back(*piece);
    }
    const std::vector<PieceRow> rows = groupIntoRows(std::move(above), parameters);
    double bottom = level.y;
    auto first = rows.end();
    while (first != rows.begin()) {
        const PieceRow& row = *(first - 1);
        const double usual = parameters.headSpace * row.fontSize;
        const bool isNear = bottom - row.box.bottom <= (first == rows.end() ? std::max(usual, rowSpace) : usual);
        const bool isOfHead = row.pieces.size() > 1 || (first != rows.end() && isUpperLineOf(row, *first, parameters));
        if (!isNear || !isOfHead || !isBetweenEnds(row, level, parameters))
            break;
        bottom = row.box.top;
        --first;
    }
    if (rows.end() - first > parameters.maximumHeaderRows)
        return {};
    return {first, rows.end()};
}

std::vector<PieceRow> rowsAbove(const RuleLevel& level, const std::vector<TextPiece>& pieces,
                                const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    std::vector<TextPiece> above;
    double last = level.y;
    for (auto piece = std::make_reverse_iterator(firstBelow(pieces, level.y)); piece != pieces.rend(); ++piece) {
        if (piece->baseline < last - parameters.bodyReach * piece->fontSize)
            break;
        if (!meets(*piece, level))
            continue;
        last = piece->baseline;
        above.push_back(*piece);
    }
    std::vector<PieceRow> rows = groupIntoRows(std::move(above), parameters);
    double top = level.y;
    const auto end = std::find_if(rows.rbegin(), rows.rend(), [&](const PieceRow& row) {
        const bool isFar = top - row.box.bottom > parameters.maximumRowSpace * row.fontSize;
        top = row.box.top;
        return isFar || row.pieces.size() < 2 || !isBetweenEnds(row, level, parameters);
    });
    rows.erase(rows.begin(), end.base());
    if (!rows.empty() && !isLabelWithAmount(rows.back(), lines))
        rows.clear();
    return rows;
}

std::vector<PieceRow> rowsBelow(const RuleLevel& level, const std::vector<TextPiece>& pieces,
                                const TableParameters::Tables& parameters) {
    std::vector<TextPiece> below;
    double last = level.y;
    for (auto piece = firstBelow(pieces, level.y); piece != pieces.end(); ++piece) {
        if (piece->baseline > last + parameters.bodyReach * piece->fontSize)
            break;
        if (!meets(*piece, level))
            continue;
        last = piece->baseline;
        below.push_back(*piece);
    }
    std::vector<PieceRow> rows = groupIntoRows(std::move(below), parameters);
    double bottom = level.y;
    const PieceRow* parted = nullptr;
    const auto end = std::find_if(rows.begin(), rows.end(), [&](const PieceRow& row) {
        const bool isFar = row.box.top - bottom > parameters.maximumRowSpace * row.fontSize;
        const bool runsOn = row.pieces.size() == 1 &&
                            row.box.width() > parameters.openProseShare * (level.right - level.left) &&
                            !(parted && goesOnBesideLabel(row.pieces.front(), *parted, parameters));
        bottom = row.box.bottom;
        if (row.pieces.size() > 1)
            parted = &row;
        return isFar || runsOn || !isBetweenEnds(row, level, parameters);
    });
    rows.erase(end, rows.end());
    return rows;
}

std::vector<PieceRow> totalsBelow(const RuleLevel& level, const std::vector<TextPiece>& pieces,
                                  const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    std::vector<PieceRow> rows = rowsBelow(level, pieces, parameters);
    const auto end =
        std::find_if_not(rows.begin(), rows.end(), [&](const PieceRow& row) { return isLabelWithAmount(row, lines); });
    rows.erase(end, rows.end());
    return rows;
}

} // namespace orvane::layout
