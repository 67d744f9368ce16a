#include "layout/tables/LabelledTableFinder.h"

#include "base/Utf8.h"
#include "layout/tables/AlignedAdmission.h"
#include "layout/tables/AlignedGrid.h"
#include "layout/tables/ItemLabels.h"
#include "layout/tables/RuledAdmission.h"
#include "layout/tables/SpacedRows.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

namespace orvane::layout {
namespace {

/// "1", "2.1.3": the number of a heading or a clause.
bool isNumbering(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '.'; });
}

/// One label and what stands beside and below it.
struct LabelledRow {
    std::size_t first = 0; ///< rows of text [first, end)
    std::size_t end = 0;
    int labelLines = 0; ///< of the label itself; its value may take more or fewer
    int valueLines = 0;
};

/// Grows a table downwards from a row whose first text is a label and whose others are its value.
class LabelledBlock {
public:
    LabelledBlock(const std::vector<PieceRow>& rows, const PageText& page, const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_page(page)
        , m_parameters(parameters) {}

    /// One past the last row of the block that starts at `first`; `first` when there is none.
    std::size_t grow(std::size_t first) {
        m_labelled.clear();
        m_labelColumn = m_valueColumn = Rect{};
        m_first = first;
        if (m_rows[first].pieces.size() < 2)
            return first;
        m_labelLeft = m_rows[first].pieces[0].box.left;
        m_valueLeft = m_rows[first].pieces[1].box.left;
        std::size_t end = first;
        while (end < m_rows.size() && (end == first || isNear(end)) && take(end))
            ++end;
        m_rowSpace = leastRowSpace(std::span(m_rows).subspan(first, end - first), m_parameters);
        groupByLabels(end);
        while (!m_labelled.empty() && m_labelled.back().valueLines == 0)
            m_labelled.pop_back();
        return m_labelled.empty() ? first : m_labelled.back().end;
    }

    /// Whether the block is a table: values of several lines, or labels of some, show that these stand in a column of
    /// their own.
    bool isTable() const {
        const auto count = [&](auto&& predicate) {
            return static_cast<int>(std::count_if(m_labelled.begin(), m_labelled.end(), predicate));
        };
        const int rows = static_cast<int>(m_labelled.size());
        const int filled = count([](const LabelledRow& row) { return row.valueLines > 0; });
        const int wrapped = count([](const LabelledRow& row) { return row.valueLines > 1; });
        const bool isText =
            count([&](const LabelledRow& row) { return row.valueLines > m_parameters.longestValue; }) > 0;
        return filled >= m_parameters.fewestPartedRows && filled >= m_parameters.labelledRowShare * rows && !isText &&
               areLabels() && !isOfColumns() && !isPartedByFigure() &&
               (wrapped >= m_parameters.minimumRowsParted || hasWrappedLabel());
    }

    AlignedRows aligned() const {
        AlignedRows aligned;
        aligned.rows.assign(m_rows.begin() + static_cast<std::ptrdiff_t>(m_first),
                            m_rows.begin() + static_cast<std::ptrdiff_t>(m_labelled.back().end));
        aligned.gaps = {{m_labelColumn.right, m_valueColumn.left}};
        for (const LabelledRow& row : m_labelled)
            aligned.groups.push_back({row.first - m_first, row.end - m_first});
        return aligned;
    }

private:
    const std::vector<Line>& lines() const { return m_page.lines; }

    bool isNear(std::size_t i) const {
        return m_rows[i].box.top - m_rows[i - 1].box.bottom <= m_parameters.widestRowSpace * m_rows[i].fontSize;
    }

    bool isAtLeft(const TextPiece& piece, double left) const {
        return std::abs(piece.box.left - left) <= m_parameters.startSnap;
    }

    bool hasLabel(std::size_t i) const { return isAtLeft(m_rows[i].pieces.front(), m_labelLeft); }

    /// The first text at the right of the row's label; null without one.
    const TextPiece* valueOf(std::size_t i) const {
        const std::size_t first = hasLabel(i) ? 1 : 0;
        return m_rows[i].pieces.size() > first ? &m_rows[i].pieces[first] : nullptr;
    }

    /// How many lines of the value the row holds: several where the label stands beside the middle of them.
    int valueLinesOf(std::size_t i) const {
        const TextPiece* value = valueOf(i);
        if (!value)
            return 0;
        return 1 + static_cast<int>(
                       std::count_if(m_rows[i].pieces.begin(), m_rows[i].pieces.end(), [&](const TextPiece& piece) {
                           return isAtLeft(piece, m_valueLeft) && piece.baseline != value->baseline;
                       }));
    }

    /// Joins the row if it is a label, a value, or both.
    bool take(std::size_t i) {
        const TextPiece* value = valueOf(i);
        if (hasLabel(i) && !isLabel(i))
            return false;
        if (value && !isValue(*value, hasLabel(i)))
            return false;
        if (hasLabel(i))
            m_labelColumn = m_labelColumn.united(m_rows[i].pieces.front().box);
        if (value)
            m_valueColumn = m_valueColumn.united(value->box).united(m_rows[i].pieces.back().box);
        return true;
    }

    /// Each label begins a row of the table, unless it goes on from the one above.
    void groupByLabels(std::size_t end) {
        for (std::size_t i = m_first; i < end; ++i) {
            if (hasLabel(i) && (i == m_first || !goesOnFromLabelAbove(i)))
                m_labelled.push_back({i, i});
            m_labelled.back().end = i + 1;
            m_labelled.back().labelLines += hasLabel(i);
            m_labelled.back().valueLines += valueLinesOf(i);
        }
    }

    /// Labels end before the values begin, and those that stand alone look like the others.
    bool isLabel(std::size_t i) const {
        const TextPiece& piece = m_rows[i].pieces.front();
        if (piece.box.right > m_valueLeft - m_parameters.pieceGap * piece.fontSize)
            return false;
        const TextPiece& first = m_rows[m_first].pieces.front();
        return m_rows[i].pieces.size() > 1 || (lookOf(piece).isBold == lookOf(first).isBold &&
                                               std::abs(piece.fontSize - first.fontSize) <= m_parameters.startSnap);
    }

    /// The value beside a label begins where the others do; what follows below may be indented.
    bool isValue(const TextPiece& piece, bool isFirst) const {
        return isFirst ? isAtLeft(piece, m_valueLeft) : piece.box.left >= m_valueLeft - m_parameters.startSnap;
    }

    /// Whether the label of row `i` is the rest of the one above, which was too long for its column. Beside the rest of
    /// the value it is one only if it begins in lower case, or space parts the rows.
    bool goesOnFromLabelAbove(std::size_t i) const {
        const TextPiece& piece = m_rows[i].pieces.front();
        if (!hasLabel(i - 1) || m_rows[i].baseline - m_rows[i - 1].baseline > m_parameters.wrapPitch * piece.fontSize ||
            hasRoomBehind(m_rows[i - 1].pieces.front(), piece, m_labelColumn, lines(), m_parameters))
            return false;
        const TextPiece* value = valueOf(i);
        if (!value)
            return true;
        const bool isSpaced = m_rowSpace && spaceAbove(m_rows, i) < *m_rowSpace;
        return (startsLowerCase(piece) || isSpaced) && valueOf(i - 1) &&
               !hasRoomBehind(*valueOf(i - 1), *value, m_valueColumn, lines(), m_parameters);
    }

    /// Whether the labels are few words each, no numbers of items or clauses, and take less room than the values.
    bool areLabels() const {
        double words = 0;
        int items = 0;
        for (const LabelledRow& row : m_labelled) {
            const std::string text = textOf(m_rows[row.first].pieces.front(), lines());
            words += static_cast<double>(m_rows[row.first].pieces.front().wordCount());
            items += isItemLabel(text) || isNumbering(text);
        }
        const auto count = static_cast<double>(m_labelled.size());
        const double fontSize = m_rows[m_first].fontSize;
        return words <= m_parameters.proseWords * count && items <= (1 - m_parameters.labelShare) * count &&
               m_valueLeft - m_labelLeft >= m_parameters.leastLabelRoom * fontSize &&
               m_labelColumn.width() < m_valueColumn.width();
    }

    /// Whether some label takes several lines, and nothing speaks for a listing, an index or text in columns. What
    /// takes two lines more than the value beside it is several labels, some of them without values.
    bool hasWrappedLabel() const {
        const auto isAny = [this](auto&& predicate) {
            return std::any_of(m_labelled.begin(), m_labelled.end(), predicate);
        };
        if (!isAny([](const LabelledRow& row) { return row.labelLines > 1; }) ||
            isAny([](const LabelledRow& row) { return row.labelLines > row.valueLines + 1; }))
            return false;
        const TableVerdict verdict = judgeAlignedTable(m_page, aligned(), AlignedEvidence::Alignment, m_parameters);
        return verdict == TableVerdict::Table || verdict == TableVerdict::TooSmall;
    }

    /// Whether the text only makes room for a picture, or something filled, in it.
    bool isPartedByFigure() const {
        const Rect room{m_labelColumn.right, m_labelColumn.top, m_valueColumn.left, m_labelColumn.bottom};
        return std::any_of(m_page.figures.begin(), m_page.figures.end(),
                           [&](const Figure& figure) { return !figure.isBackground && figure.box.intersects(room); }) ||
               std::any_of(m_page.grounds.begin(), m_page.grounds.end(), [&](const Ground& ground) {
                   return ground.box.intersects(room) && ground.box.left > room.left && ground.box.right < room.right;
               });
    }

    /// Whether a label stands beside the middle of the lines of its value, as no line of a column of text would.
    bool hasCentredLabel() const {
        return std::any_of(m_labelled.begin(), m_labelled.end(),
                           [&](const LabelledRow& row) { return hasLabel(row.first) && valueLinesOf(row.first) > 1; });
    }

    /// Whether the values are a stretch of a column of text that runs on above or below, or from one label to the next.
    bool isOfColumns() const {
        const std::size_t end = m_labelled.back().end;
        const auto isOfColumn = [&](const PieceRow& row) {
            return std::any_of(row.pieces.begin(), row.pieces.end(),
                               [&](const TextPiece& piece) { return isAtLeft(piece, m_valueLeft); });
        };
        if ((m_first > 0 && isNear(m_first) && isOfColumn(m_rows[m_first - 1])) ||
            (end < m_rows.size() && isNear(end) && isOfColumn(m_rows[end])))
            return true;
        if (hasCentredLabel())
            return false;
        int begun = 0;
        int full = 0;
        for (std::size_t i = 1; i < m_labelled.size(); ++i) {
            const LabelledRow& row = m_labelled[i];
            const TextPiece* value = valueOf(row.first);
            const TextPiece* above = valueOf(m_labelled[i - 1].end - 1);
            const bool isFull = value && above && !hasRoomBehind(*above, *value, m_valueColumn, lines(), m_parameters);
            full += isFull;
            begun += startsLowerCase(m_rows[row.first].pieces.front()) || (isFull && startsLowerCase(*value));
        }
        const auto count = static_cast<double>(m_labelled.size());
        return begun > m_parameters.runningLabelShare * count || full > m_parameters.fullValueShare * count;
    }

    bool startsLowerCase(const TextPiece& piece) const {
        const char32_t start = utf32FromUtf8(textOf(piece, lines())).front();
        return u_islower(static_cast<UChar32>(start)) != 0;
    }

    const Look& lookOf(const TextPiece& piece) const {
        return lines()[piece.line].words[piece.firstWord].spans.front().look;
    }

    const std::vector<PieceRow>& m_rows;
    const PageText& m_page;
    const TableParameters::Tables& m_parameters;
    std::size_t m_first = 0;
    std::vector<LabelledRow> m_labelled;
    Rect m_labelColumn;
    Rect m_valueColumn;
    double m_labelLeft = 0;
    double m_valueLeft = 0;
    std::optional<double> m_rowSpace; ///< at least, where space parts the rows
};

} // namespace

std::vector<TableGrid> findLabelledGrids(const PageText& page, const LayoutParameters& parameters) {
    const std::vector<PieceRow> rows = groupIntoRows(cutIntoPieces(page, parameters.tables), parameters.tables);
    LabelledBlock block(rows, page, parameters.tables);
    std::vector<TableGrid> grids;
    for (std::size_t first = 0; first < rows.size();) {
        const std::size_t end = block.grow(first);
        if (end == first || !block.isTable()) {
            ++first;
            continue;
        }
        TableGrid grid = gridOf(block.aligned(), parameters.tables.textMargin);
        first = end;
        if (!isDrawnOver(page, grid, parameters.tables))
            grids.push_back(std::move(grid));
    }
    return grids;
}

} // namespace orvane::layout
