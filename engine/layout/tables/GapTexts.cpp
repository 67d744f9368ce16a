#include "layout/tables/GapTexts.h"

#include <algorithm>

namespace orvane::layout {
namespace {

bool standsWithin(const TextPiece& piece, const ColumnGap& gap) {
    return piece.box.left >= gap.left && piece.box.right <= gap.right;
}

bool hasTextIn(const PieceRow& row, int column, const TextPiece& but, const std::vector<ColumnGap>& gaps) {
    return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
        const ColumnRange range = columnsOf(piece, gaps);
        return &piece != &but && range.first <= column && column <= range.last;
    });
}

} // namespace

void narrowToTexts(std::vector<ColumnGap>& gaps, std::span<const PieceRow> rows, const std::vector<Line>& lines) {
    const std::vector<ColumnGap> wide = gaps;
    const auto last = static_cast<int>(gaps.size());
    for (int i = 0; i < last; ++i) {
        ColumnGap gap = wide[static_cast<std::size_t>(i)];
        for (const PieceRow& row : rows) {
            for (const TextPiece& piece : row.pieces) {
                if (piece.box.left >= gap.right && piece.signLeft > gap.left)
                    gap.right = std::min(gap.right, piece.signLeft);
                if (row.pieces.size() < 2 || !standsWithin(piece, gap))
                    continue;
                // No text but a label begins in the column that is read first.
                const bool isRightToLeft = lines[piece.line].isRightToLeft;
                const bool isLeftTaken = (i == 0 && !isRightToLeft) || hasTextIn(row, i, piece, wide);
                const bool isRightTaken = (i + 1 == last && isRightToLeft) || hasTextIn(row, i + 1, piece, wide);
                if (isLeftTaken && !isRightTaken)
                    gap.right = piece.box.left;
                else if (isRightTaken && !isLeftTaken)
                    gap.left = piece.box.right;
            }
        }
        if (gap.width() > 0)
            gaps[static_cast<std::size_t>(i)] = gap;
    }
}

} // namespace orvane::layout
