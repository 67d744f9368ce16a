#include "layout/tables/SideTableFinder.h"

#include "layout/support/BoxIndex.h"
#include "layout/tables/AlignedGrid.h"
#include "layout/tables/RuledAdmission.h"
#include "layout/tables/SideCells.h"
#include "layout/tables/SpacedRows.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <span>

namespace orvane::layout {
namespace {

/// What stands beside one filled cell: groups of rows of text.
struct RowsBeside {
    std::size_t first = 0; ///< rows of text [first, end)
    std::size_t end = 0;
    std::size_t firstGroup = 0; ///< groups of them [firstGroup, endGroup)
    std::size_t endGroup = 0;
};

Point middleOf(const TextPiece& piece) {
    return {piece.box.centerX(), piece.box.centerY()};
}

bool isAbove(double y, const TextPiece& piece) {
    return y < piece.box.centerY();
}

/// Reads the table of one column of filled cells.
class SideTableReader {
public:
    /// `pieces` are sorted by their middles, from top to bottom; `grounds` finds those of the page.
    SideTableReader(const PageText& page, const std::vector<TextPiece>& pieces, const BoxIndex& grounds,
                    const SideColumn& side, const LayoutParameters& parameters)
        : m_page(page)
        , m_grounds(grounds)
        , m_side(side)
        , m_layout(parameters)
        , m_parameters(parameters.tables) {
        m_box = side.front().box;
        for (const SideCell& cell : side)
            m_box = m_box.united(cell.box).united(cell.head.value_or(cell.box)).united(cell.row.value_or(cell.box));
        const auto first = std::upper_bound(pieces.begin(), pieces.end(), m_box.top, isAbove);
        for (auto piece = first; piece != pieces.end() && piece->box.centerY() < m_box.bottom; ++piece)
            sortIn(*piece);
    }

    std::optional<TableGrid> read() {
        if (m_hasTextsBefore || m_beside.empty() || !isBesideTexts() || areTextsFilled())
            return std::nullopt;
        readRows();
        if (!showsTable())
            return std::nullopt;
        TableGrid grid = makeGrid();
        const CellText text = assignWords(m_page.lines, grid, m_parameters);
        if (judgeRuledTable(m_page, grid, text, {}, m_parameters) != TableVerdict::Table)
            return std::nullopt;
        return grid;
    }

private:
    double right() const { return m_side.front().box.right; }

    /// Texts in the cells and their heads are told by the grid alone.
    void sortIn(const TextPiece& piece) {
        const double reach = m_parameters.groundNeighbour * piece.fontSize;
        if (piece.box.centerX() < m_side.front().box.left)
            m_hasTextsBefore = m_hasTextsBefore || piece.box.right > m_side.front().box.left - reach;
        else if (piece.box.centerX() < right())
            m_labels.push_back(piece);
        else if (!isInHead(piece))
            m_beside.push_back(piece);
    }

    bool isInHead(const TextPiece& piece) const {
        return std::any_of(m_side.begin(), m_side.end(),
                           [&](const SideCell& cell) { return cell.head && cell.head->contains(middleOf(piece)); });
    }

    /// Whether the texts begin right beside the cells.
    bool isBesideTexts() const {
        const auto first =
            std::min_element(m_beside.begin(), m_beside.end(),
                             [](const TextPiece& a, const TextPiece& b) { return a.box.left < b.box.left; });
        return first->box.left >= right() - m_parameters.filledSnap &&
               first->box.left <= right() + m_parameters.groundNeighbour * first->fontSize;
    }

    /// Whether a text beside stands on a ground of its own below the head: then the cells are filled row by row.
    bool areTextsFilled() const {
        return std::any_of(m_beside.begin(), m_beside.end(), [&](const TextPiece& piece) {
            const Point middle = middleOf(piece);
            if (m_side.front().row && m_side.front().row->contains(middle))
                return false;
            bool isFilled = false;
            m_grounds.visit({middle.x, middle.y, middle.x, middle.y}, [&](std::size_t i) {
                isFilled = isFilled || !m_page.grounds[i].box.contains(m_side.front().box);
            });
            return isFilled;
        });
    }

    void readRows() {
        for (const SideCell& cell : m_side) {
            std::vector<TextPiece> pieces;
            for (const TextPiece& piece : m_beside)
                if (piece.box.centerY() > cell.box.top && piece.box.centerY() < cell.box.bottom)
                    pieces.push_back(piece);
            const std::vector<PieceRow> rows = groupIntoRows(std::move(pieces), m_parameters);
            m_rows.push_back({m_aligned.rows.size(), m_aligned.rows.size() + rows.size(), 0, 0});
            m_aligned.rows.insert(m_aligned.rows.end(), rows.begin(), rows.end());
        }
        m_aligned.gaps = findTableColumns(m_aligned.rows, m_page.lines, m_layout);
        for (RowsBeside& beside : m_rows) {
            beside.firstGroup = m_aligned.groups.size();
            groupInto(beside);
            beside.endGroup = m_aligned.groups.size();
        }
    }

    void groupInto(const RowsBeside& beside) {
        if (beside.first == beside.end)
            return;
        // Without columns nothing but the filled cells shows rows.
        if (m_aligned.gaps.empty()) {
            m_aligned.groups.push_back({beside.first, beside.end});
            return;
        }
        const std::span<const PieceRow> rows(m_aligned.rows.data() + beside.first, beside.end - beside.first);
        const auto labelled = groupLabelsBySpace(rows, m_aligned.gaps, m_page.lines, m_parameters);
        for (const RowGroup& group :
             labelled ? *labelled : groupRows(rows, m_aligned.gaps, m_page.lines, {}, RowsPart::Any, m_parameters))
            m_aligned.groups.push_back({group.first + beside.first, group.end + beside.first});
    }

    /// Whether heads, labels in several cells with a text beside each, or rows that keep to columns show a table: a
    /// filled box beside running text is none.
    bool showsTable() const {
        const bool hasHeads = std::any_of(m_side.begin(), m_side.end(), [](const SideCell& cell) { return cell.head; });
        if (hasHeads)
            return true;
        const std::size_t first = m_side.front().row ? 1 : 0;
        std::size_t labelled = 0;
        for (std::size_t i = first; i < m_side.size(); ++i)
            labelled += m_rows[i].end > m_rows[i].first && countLabels(i) > 0;
        return (labelled >= m_parameters.fewestStripes && labelled == m_side.size() - first) || keepsColumns();
    }

    /// The texts within a filled cell.
    std::ptrdiff_t countLabels(std::size_t i) const {
        return std::count_if(m_labels.begin(), m_labels.end(),
                             [&](const TextPiece& label) { return m_side[i].box.contains(middleOf(label)); });
    }

    /// A text alone in the filled row above all columns heads them all.
    bool isTitle(std::size_t i) const {
        const RowsBeside& beside = m_rows[i];
        std::size_t texts = static_cast<std::size_t>(countLabels(i));
        for (std::size_t row = beside.first; row < beside.end; ++row)
            texts += m_aligned.rows[row].pieces.size();
        return m_side[i].row && texts <= 1;
    }

    bool keepsColumns() const {
        int parted = 0;
        for (const RowGroup& group : m_aligned.groups) {
            std::vector<int> columns;
            for (std::size_t i = group.first; i < group.end; ++i)
                for (const TextPiece& piece : m_aligned.rows[i].pieces) {
                    const ColumnRange range = columnsOf(piece, m_aligned.gaps);
                    if (range.first != range.last)
                        return false;
                    columns.push_back(range.first);
                }
            parted += std::adjacent_find(columns.begin(), columns.end(), std::not_equal_to<>()) != columns.end();
        }
        return parted >= m_parameters.fewestPartedRows;
    }

    TableGrid makeGrid() const {
        const TableGrid texts = gridOf(m_aligned, m_parameters.textMargin);
        TableGrid grid;
        grid.columnEdges = texts.columnEdges;
        grid.columnEdges.front() = right();
        grid.columnEdges.back() = std::max(grid.columnEdges.back(), m_box.right);
        grid.columnEdges.insert(grid.columnEdges.begin(), m_side.front().box.left);
        for (std::size_t i = 0; i < m_side.size(); ++i)
            addRows(i, texts, grid);
        grid.rowEdges.push_back(m_side.back().box.bottom);
        return grid;
    }

    /// The rows beside one filled cell: its head, and those of the texts.
    void addRows(std::size_t i, const TableGrid& texts, TableGrid& grid) const {
        const auto row = [&] { return static_cast<int>(grid.rowEdges.size()) - 1; };
        const int columns = grid.columns() - 1;
        grid.rowEdges.push_back(m_side[i].box.top);
        if (isTitle(i)) {
            grid.cells.push_back({row(), 0, 1, columns + 1});
            return;
        }
        const std::size_t side = grid.cells.size();
        const int firstRow = row();
        grid.cells.push_back({firstRow, 0, 1, 1});
        if (m_side[i].head) {
            grid.cells.push_back({firstRow, 1, 1, columns});
            grid.rowEdges.push_back(m_side[i].head->bottom);
        }
        if (m_rows[i].firstGroup == m_rows[i].endGroup)
            grid.cells.push_back({row(), 1, 1, columns});
        for (std::size_t group = m_rows[i].firstGroup; group < m_rows[i].endGroup; ++group) {
            if (group > m_rows[i].firstGroup)
                grid.rowEdges.push_back(texts.rowEdges[group]);
            for (const GridCell& cell : texts.cells)
                if (cell.row == static_cast<int>(group))
                    grid.cells.push_back({row(), cell.column + 1, 1, cell.columnSpan});
        }
        grid.cells[side].rowSpan = row() - firstRow + 1;
    }

    const PageText& m_page;
    const BoxIndex& m_grounds;
    const SideColumn& m_side;
    const LayoutParameters& m_layout;
    const TableParameters::Tables& m_parameters;
    Rect m_box;
    std::vector<TextPiece> m_labels;
    std::vector<TextPiece> m_beside;
    bool m_hasTextsBefore = false;
    AlignedRows m_aligned;
    std::vector<RowsBeside> m_rows;
};

} // namespace

std::vector<TableGrid> findSideGrids(const PageText& page, const LayoutParameters& parameters) {
    std::vector<TableGrid> grids;
    std::vector<TextPiece> pieces = cutIntoPieces(page, parameters.tables);
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const TextPiece& a, const TextPiece& b) { return a.box.centerY() < b.box.centerY(); });
    BoxIndex grounds(parameters.tables.stripeStep);
    for (std::size_t i = 0; i < page.grounds.size(); ++i)
        grounds.add(page.grounds[i].box, i);
    for (const SideColumn& side : findSideColumns(page.grounds, parameters.tables)) {
        std::optional<TableGrid> grid = SideTableReader(page, pieces, grounds, side, parameters).read();
        if (grid && !overlapsAny(*grid, grids))
            grids.push_back(std::move(*grid));
    }
    return grids;
}

} // namespace orvane::layout
