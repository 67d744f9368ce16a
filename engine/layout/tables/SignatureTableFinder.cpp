#include "layout/tables/SignatureTableFinder.h"

#include "layout/tables/AlignedAdmission.h"
#include "layout/tables/AlignedGrid.h"
#include "layout/tables/RuledAdmission.h"
#include "layout/tables/SpacedRows.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

/// Grows a block up and down from the row that holds the lines to sign on.
class SignatureBlock {
public:
    SignatureBlock(const std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                   const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_lines(lines)
        , m_parameters(parameters) {}

    /// Whether row `i` holds nothing but room to sign, which may go on with a name in brackets or between strokes.
    bool isToSign(std::size_t i) const {
        const std::vector<TextPiece>& pieces = m_rows[i].pieces;
        return pieces.size() >= 2 && std::all_of(pieces.begin(), pieces.end(), [&](const TextPiece& piece) {
                   const std::string text = textOf(piece, m_lines);
                   return text.size() >= m_parameters.leastUnderscores &&
                          text.find_first_not_of('_') >= m_parameters.leastUnderscores;
               });
    }

    /// The rows around row `i`, which is to be signed; nothing without any above it, or among others to be signed:
    /// these are lines to fill in with their names below.
    std::optional<AlignedRows> grow(std::size_t i) {
        m_gaps.clear();
        for (std::size_t piece = 1; piece < m_rows[i].pieces.size(); ++piece)
            m_gaps.push_back({m_rows[i].pieces[piece - 1].box.right, m_rows[i].pieces[piece].box.left});
        std::size_t first = i;
        while (first > 0 && isNear(first, i) && take(first - 1))
            --first;
        std::size_t end = i + 1;
        while (end < m_rows.size() && isNear(end, i) && take(end))
            ++end;
        if ((first > 0 && isNear(first, i) && isToSign(first - 1)) ||
            (end < m_rows.size() && isNear(end, i) && isToSign(end)))
            return std::nullopt;
        while (m_rows[first].pieces.size() < 2)
            ++first;
        return first < i ? std::optional(align(first, end)) : std::nullopt;
    }

private:
    /// Whether row `i` stands so close below the one before that both are of one block; to sign takes more room.
    bool isNear(std::size_t i, std::size_t signedRow) const {
        const double reach = i == signedRow ? m_parameters.widestRowSpace : m_parameters.maximumRowSpace;
        return spaceAbove(m_rows, i) <= reach * m_rows[i].fontSize;
    }

    /// Narrows the gaps to what row `i` leaves of them, if it keeps to the columns, holds more than numbers and is not
    /// to be signed.
    bool take(std::size_t i) {
        if (isToSign(i))
            return false;
        std::vector<ColumnGap> gaps = m_gaps;
        for (const TextPiece& piece : m_rows[i].pieces) {
            const auto right = std::find_if(gaps.begin(), gaps.end(),
                                            [&](const ColumnGap& gap) { return piece.box.centerX() < gap.middle(); });
            if (right != gaps.end())
                right->left = std::max(right->left, piece.box.right);
            if (right != gaps.begin())
                (right - 1)->right = std::min((right - 1)->right, piece.box.left);
        }
        const double least = m_parameters.minimumColumnGap * m_rows[i].fontSize;
        const auto isNumber = [&](const TextPiece& piece) { return isNumeric(piece, m_lines); };
        if (std::any_of(gaps.begin(), gaps.end(), [&](const ColumnGap& gap) { return gap.width() < least; }) ||
            std::all_of(m_rows[i].pieces.begin(), m_rows[i].pieces.end(), isNumber))
            return false;
        m_gaps = std::move(gaps);
        return true;
    }

    AlignedRows align(std::size_t first, std::size_t end) const {
        AlignedRows aligned;
        aligned.areSpaced = true;
        aligned.gaps = m_gaps;
        aligned.rows.assign(m_rows.begin() + static_cast<std::ptrdiff_t>(first),
                            m_rows.begin() + static_cast<std::ptrdiff_t>(end));
        aligned.groups = groupsFrom(aligned.rows.size(), [&](std::size_t i) {
            return spaceAbove(aligned.rows, i) > m_parameters.widestLineSpace * aligned.rows[i].fontSize;
        });
        return aligned;
    }

    const std::vector<PieceRow>& m_rows;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::vector<ColumnGap> m_gaps; ///< of the block
};

} // namespace

std::vector<TableGrid> findSignatureGrids(const PageText& page, const LayoutParameters& parameters) {
    const std::vector<PieceRow> rows = groupIntoRows(cutIntoPieces(page, parameters.tables), parameters.tables);
    SignatureBlock block(rows, page.lines, parameters.tables);
    std::vector<TableGrid> grids;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (!block.isToSign(i))
            continue;
        const std::optional<AlignedRows> aligned = block.grow(i);
        if (!aligned ||
            judgeAlignedTable(page, *aligned, AlignedEvidence::Alignment, parameters.tables) != TableVerdict::Table)
            continue;
        TableGrid grid = gridOf(*aligned, parameters.tables.textMargin);
        if (!isDrawnOver(page, grid, parameters.tables) && !overlapsAny(grid, grids))
            grids.push_back(std::move(grid));
    }
    return grids;
}

} // namespace orvane::layout
