#pragma once

#include "layout/tables/TableParameters.h"
#include "layout/tables/TextPiece.h"

#include <algorithm>
#include <limits>
#include <span>
#include <vector>

namespace orvane::layout {

/// The pieces that stand in one column only, from top to bottom.
struct ColumnPieces {
    std::vector<const TextPiece*> pieces;
    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();

    void add(const TextPiece& piece);

    /// On average; 0 without pieces.
    double wordsPerPiece() const;

    /// The share of the pieces for which `predicate` holds; 0 without pieces.
    template<typename Predicate>
    double share(const Predicate& predicate) const {
        if (pieces.empty())
            return 0;
        const auto count = std::count_if(pieces.begin(), pieces.end(), predicate);
        return static_cast<double>(count) / static_cast<double>(pieces.size());
    }
};

/// Whether each column behind the second holds far less texts than the second does. Requires: two columns or more.
bool areOthersFew(std::span<const ColumnPieces> columns, const TableParameters::Tables& parameters);

/// Whether most of the lines are as long as the column has room for.
bool isFull(const ColumnPieces& column, const TableParameters::Tables& parameters);

/// Whether the column runs on from line to line: many long lines that fill it.
bool isProse(const ColumnPieces& column, const TableParameters::Tables& parameters);

/// Whether the texts of the column begin as sentences do: lines of one text go on with whatever word comes next.
bool holdsEntries(const ColumnPieces& column, const std::vector<Line>& lines,
                  const TableParameters::Tables& parameters);

/// Whether most texts of the column are numbers.
bool isOfNumbers(const ColumnPieces& column, const std::vector<Line>& lines, const TableParameters::Tables& parameters);

/// Whether the column holds nothing but whole numbers of which none is less than the one above.
bool isRising(const ColumnPieces& column, const std::vector<Line>& lines);

/// Whether the column's numbers are often less than the ones above.
bool isFalling(const ColumnPieces& column, const std::vector<Line>& lines, const TableParameters::Tables& parameters);

/// The share of the pieces that have a comma or a point, as amounts do.
double brokenNumberShare(const ColumnPieces& column, const std::vector<Line>& lines);

/// The largest share of the pieces that keep one edge, or the place of their points. Requires: the column has pieces.
double keptShare(const ColumnPieces& column, const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
