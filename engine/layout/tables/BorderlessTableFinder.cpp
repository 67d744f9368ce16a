#include "layout/tables/BorderlessTableFinder.h"

#include "layout/tables/AlignedAdmission.h"
#include "layout/tables/FieldTexts.h"
#include "layout/tables/HeadSpans.h"
#include "layout/tables/ProseMask.h"
#include "layout/tables/RowStripes.h"
#include "layout/tables/RuledAdmission.h"
#include "layout/tables/SpacedRows.h"
#include "layout/tables/TableCaption.h"

#include <algorithm>
#include <span>

namespace orvane::layout {
namespace {

/// The texts of a page by what they may be.
struct PageRows {
    std::vector<PieceRow> rows;   ///< that may belong to a table
    std::vector<TextPiece> prose; ///< lines of running text
};

/// Running text and what lies within drawings belongs to no table.
PageRows readRows(const PageText& page, const TableParameters::Tables& parameters) {
    std::vector<TextPiece> pieces = cutIntoPieces(page, parameters);
    const std::vector<char> isProse = markProse(pieces, page.lines, parameters);
    PageRows found;
    std::vector<TextPiece> kept;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const bool isDrawn = std::any_of(page.figures.begin(), page.figures.end(), [&](const Figure& figure) {
            return !figure.isBackground && figure.box.intersects(pieces[i].box);
        });
        if (isProse[i])
            found.prose.push_back(std::move(pieces[i]));
        else if (!isDrawn)
            kept.push_back(std::move(pieces[i]));
    }
    found.rows = groupIntoRows(std::move(kept), parameters);
    return found;
}

/// Whether running text reaches into the grid, or goes on over its upper or lower edge.
bool takesProse(const TableGrid& grid, const std::vector<TextPiece>& prose, const TableParameters::Tables& parameters) {
    const Rect box = grid.box();
    const auto isWithin = [&](const TextPiece& piece) {
        return piece.box.centerX() > box.left && piece.box.centerX() < box.right && piece.baseline > box.top &&
               piece.baseline < box.bottom;
    };
    const auto reachesIn = [&](const TextPiece& piece) { return piece.box.intersects(box); };
    if (std::count_if(prose.begin(), prose.end(), reachesIn) >= parameters.proseLines)
        return true;
    for (const TextPiece& piece : prose) {
        if (!isWithin(piece))
            continue;
        for (const TextPiece& other : prose)
            if (!isWithin(other) && (followsOn(piece, other, parameters) || followsOn(other, piece, parameters)))
                return true;
    }
    return false;
}

/// Grows a table downwards from a row with at least two pieces.
class RegionGrower {
public:
    RegionGrower(const std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                 const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_lines(lines)
        , m_parameters(parameters)
        , m_gapsAt(rows.size()) {}

    /// One past the last row of the region that starts at `first`, texts that may go on from it included; `first` when
    /// there is none.
    std::size_t grow(std::size_t first) {
        if (!isMulti(first))
            return first;
        m_first = m_fullest = first;
        m_gaps.clear();
        m_leastSpace = 1e9;
        m_lastFull = m_rows[first].pieces.size();
        m_agreeing = m_knownEnd = 0;
        std::size_t end = first;
        for (std::size_t i = first + 1; i < m_rows.size() && isNear(i) && !isTableCaption(m_rows[i], m_lines); ++i) {
            if (isMulti(i) ? !takeMulti(i) : !takeSingle(i))
                break;
            end = i + 1;
        }
        m_lastEnd = end;
        return m_gaps.empty() ? first : end;
    }

private:
    /// Rows in turn with the gaps of the region before, from which on these are only looked at here and there: more
    /// than most pages have.
    static constexpr std::size_t kSettledRows = 32;

    bool isMulti(std::size_t i) const { return m_rows[i].pieces.size() >= 2; }

    /// Whether the space above the row is no larger than between rows of one table.
    bool isNear(std::size_t i) {
        const double space = m_rows[i].box.top - m_rows[i - 1].box.bottom;
        const double usual =
            std::max(m_leastSpace < 1e8 ? m_leastSpace * m_parameters.rowSpaceGrowth : 0.0,
                     (isFull(i) ? m_parameters.widestRowSpace : m_parameters.maximumRowSpace) * m_rows[i].fontSize);
        m_leastSpace = std::min(m_leastSpace, std::max(space, 0.0));
        return space <= usual;
    }

    /// Whether the row, and the last one with texts side by side, hold many: these may stand farther apart.
    bool isFull(std::size_t i) const {
        return (std::min(m_rows[i].pieces.size(), m_lastFull) >= m_parameters.fullRow &&
                m_rows[i].pieces.size() + 1 >= m_lastFull) ||
               keepsColumns(m_rows[i]);
    }

    /// Whether each of several texts stands above or below one of its own of the fullest row before, and no other.
    bool keepsColumns(const PieceRow& row) const {
        const PieceRow& fullest = m_rows[m_fullest];
        if (row.pieces.size() < m_parameters.alignedRow || fullest.pieces.size() < m_parameters.fullRow)
            return false;
        std::size_t last = fullest.pieces.size();
        return std::all_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
            std::vector<std::size_t> over;
            for (std::size_t i = 0; i < fullest.pieces.size(); ++i)
                if (piece.box.left < fullest.pieces[i].box.right && fullest.pieces[i].box.left < piece.box.right)
                    over.push_back(i);
            const bool isNext = over.size() == 1 && over.front() != last;
            last = over.empty() ? last : over.front();
            return isNext;
        });
    }

    /// A row with several pieces joins while the columns stay.
    bool takeMulti(std::size_t i) {
        std::vector<ColumnGap> gaps = gapsWith(i);
        if (gaps.empty() ||
            static_cast<double>(gaps.size()) < m_parameters.keptGapShare * static_cast<double>(m_gaps.size()))
            return false;
        m_gaps = std::move(gaps);
        m_gapsAt[i] = m_gaps;
        m_lastFull = m_rows[i].pieces.size();
        if (m_lastFull > m_rows[m_fullest].pieces.size())
            m_fullest = i;
        return true;
    }

    /// The gaps of the region down to row `i`.
    std::vector<ColumnGap> gapsWith(std::size_t i) {
        if (i < m_knownEnd)
            return m_gapsAt[i];
        std::vector<ColumnGap> gaps = findGapsTo(i);
        m_agreeing = isAsBefore(i, gaps) ? m_agreeing + 1 : 0;
        if (m_agreeing >= kSettledRows)
            lookAhead(i);
        return gaps;
    }

    /// A region of many rows that was no table is grown again from the next of them. Where it has long had the gaps
    /// that it had before, and has them again as far below, it has them between, too.
    void lookAhead(std::size_t i) {
        std::size_t ahead = std::min(i + m_agreeing, m_lastEnd - 1);
        while (!isMulti(ahead))
            --ahead;
        if (ahead > i && isAsBefore(ahead, findGapsTo(ahead))) {
            m_agreeing += ahead - i;
            m_knownEnd = ahead + 1;
        }
    }

    bool isAsBefore(std::size_t i, const std::vector<ColumnGap>& gaps) const {
        return i < m_lastEnd && gaps == m_gapsAt[i];
    }

    std::vector<ColumnGap> findGapsTo(std::size_t i) const {
        return findColumnGaps(std::span(m_rows).subspan(m_first, i + 1 - m_first), m_parameters);
    }

    /// A row with one piece joins within a column, or as a heading over several if a row of the table follows: one in
    /// much larger letters heads a table of its own.
    bool takeSingle(std::size_t i) {
        const ColumnRange range = columnsOf(m_rows[i].pieces.front(), m_gaps);
        const bool isWithin = range.first == range.last;
        if ((1 - m_parameters.rowSnap) * m_rows[i].fontSize > m_rows[i - 1].fontSize)
            return false;
        return isWithin || (i + 1 < m_rows.size() && isMulti(i + 1) && isMulti(i - 1));
    }

    const std::vector<PieceRow>& m_rows;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::size_t m_first = 0;   ///< row of the region
    std::size_t m_fullest = 0; ///< the first row with most pieces
    std::vector<ColumnGap> m_gaps;
    double m_leastSpace = 1e9;
    std::size_t m_lastFull = 0; ///< pieces in the last row that has several
    // Of the regions grown before:
    std::vector<std::vector<ColumnGap>> m_gapsAt; ///< down to each row, of the last one with it
    std::size_t m_lastEnd = 0;                    ///< one past the last row of the last one
    std::size_t m_agreeing = 0;                   ///< rows in turn at which the gaps were as before
    std::size_t m_knownEnd = 0;                   ///< the gaps are as before up to this row
};

/// The first line of the head whose last line is row `first`; the rows before `used` belong to another table.
std::size_t startOfHead(const std::vector<PieceRow>& rows, std::size_t first, std::size_t used,
                        const TableParameters::Tables& parameters) {
    std::size_t start = first;
    while (start > used && first - start + 1 < static_cast<std::size_t>(parameters.maximumHeaderRows) &&
           isUpperLineOf(rows[start - 1], rows[start], parameters))
        --start;
    return start;
}

AlignedRows alignRegion(const std::vector<PieceRow>& rows, std::size_t first, std::size_t end,
                        const std::vector<Line>& lines, const std::vector<BorderLine>& rules, const RowStripes& stripes,
                        const LayoutParameters& parameters) {
    AlignedRows aligned;
    aligned.rows.assign(rows.begin() + static_cast<std::ptrdiff_t>(first),
                        rows.begin() + static_cast<std::ptrdiff_t>(end));
    aligned.gaps = findTableColumns(aligned.rows, lines, parameters);
    if (auto spaced = groupBySpace(aligned.rows, aligned.gaps, lines, parameters.tables)) {
        aligned.groups = std::move(*spaced);
        aligned.areSpaced = true;
        return aligned;
    }
    aligned.groups = groupRows(aligned.rows, aligned.gaps, lines, rules, RowsPart::Any, parameters.tables);
    // What follows the last full row and is no part of it is other text, unless it is one more field, or a total on one
    // more stripe.
    const auto isTotal = [&](const TextPiece& piece) {
        const ColumnRange range = columnsOf(piece, aligned.gaps);
        return range.first > 0 && range.first == range.last && stripes.goOnTo(aligned.rows);
    };
    const bool holdsFields = areFields(aligned.rows, aligned.gaps, lines, parameters.tables);
    while (!aligned.groups.empty() && aligned.groups.back().first + 1 == aligned.groups.back().end &&
           aligned.rows.back().pieces.size() == 1 && !isTotal(aligned.rows.back().pieces.front()) &&
           !(holdsFields && isField(aligned.rows.back().pieces.front(), lines))) {
        aligned.groups.pop_back();
        aligned.rows.pop_back();
    }
    return aligned;
}

} // namespace

std::vector<TableGrid> findBorderlessGrids(const PageText& page, const LayoutParameters& parameters) {
    const PageRows texts = readRows(page, parameters.tables);
    const std::vector<PieceRow>& rows = texts.rows;
    const std::vector<BorderLine> rules = collectBorderLines(page.rules, parameters.tables);
    const RowStripes stripes(page, parameters.tables);
    RegionGrower grower(rows, page.lines, parameters.tables);
    std::vector<TableGrid> grids;
    std::size_t used = 0;
    for (std::size_t first = 0; first < rows.size();) {
        const std::size_t end = grower.grow(first);
        const std::size_t start = startOfHead(rows, first, used, parameters.tables);
        ++first;
        if (end < first)
            continue;
        const AlignedRows aligned = alignRegion(rows, start, end, page.lines, rules, stripes, parameters);
        const TableVerdict verdict = judgeAlignedTable(page, aligned, AlignedEvidence::Alignment, parameters.tables);
        // A few entries of these alone need not look like it.
        if (verdict == TableVerdict::Index || verdict == TableVerdict::SideBySide)
            first = used = end;
        if (verdict != TableVerdict::Table)
            continue;
        TableGrid grid =
            spanHeads(gridOf(aligned, parameters.tables.textMargin), aligned, page.lines, rules, parameters.tables);
        stripes.snap(grid, aligned);
        if (isDrawnOver(page, grid, parameters.tables) || takesProse(grid, texts.prose, parameters.tables))
            continue;
        grids.push_back(std::move(grid));
        first = used = start + aligned.rows.size();
    }
    return grids;
}

} // namespace orvane::layout
