#pragma once

#include "layout/page/PageLayout.h"
#include "layout/tables/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// What drew a table's edges.
enum class TableEdges {
    Ruled,     ///< rules; the text of a cell has the room between them
    HalfRuled, ///< rules between the rows; the words themselves between the columns, whose text takes all the room
               ///< there is
    Boxed,     ///< rules around some of the cells; the others have no borders of their own
    Aligned,   ///< the words themselves
};

/// The room that text has within the columns of a grid.
class ColumnRooms {
public:
    /// `linesOfCell` by index into TableGrid::cells.
    ColumnRooms(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell, TableEdges edges);

    /// The room of a cell over `columnSpan` columns from `column` on.
    ColumnSpan roomOf(int column, int columnSpan) const {
        return {m_columns[static_cast<std::size_t>(column)].left,
                m_columns[static_cast<std::size_t>(column + columnSpan - 1)].right};
    }

private:
    void takeEdges(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell);
    void takeTexts(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell);

    std::vector<ColumnSpan> m_columns;
};

} // namespace orvane::layout
