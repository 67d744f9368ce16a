#pragma once

#include "layout/tables/TextPiece.h"

namespace orvane::layout {

/// An upright strip between two columns that (nearly) no piece enters. Units: points.
struct ColumnGap {
    double left = 0;
    double right = 0;

    double middle() const { return (left + right) / 2; }
    double width() const { return right - left; }
    bool operator==(const ColumnGap&) const = default;
};

/// The gaps that part the pieces of `rows` into columns, left to right. Few rows may cross a gap: headings over several
/// columns.
std::vector<ColumnGap> findColumnGaps(std::span<const PieceRow> rows, const TableParameters::Tables& parameters);

/// Takes out the gaps between a head and the values of its column that stand all to the other side: "Weight" set to the
/// left and short numbers below it to the right.
void joinHeadsWithValues(std::vector<ColumnGap>& gaps, std::span<const PieceRow> rows,
                         const TableParameters::Tables& parameters);

/// Whether the piece reaches over the gap.
inline bool crosses(const TextPiece& piece, const ColumnGap& gap) {
    return piece.box.left < gap.left + 0.01 && piece.box.right > gap.right - 0.01;
}

/// The columns from first to last that a piece stands in, counted by the gaps to the left of them. A piece within a
/// gap, as a heading over two columns may be, stands in both.
struct ColumnRange {
    int first = 0;
    int last = 0;
};
ColumnRange columnsOf(const TextPiece& piece, const std::vector<ColumnGap>& gaps);

} // namespace orvane::layout
