#pragma once

#include "layout/BorderLines.h"
#include "layout/CellText.h"
#include "layout/LayoutParameters.h"
#include "layout/PageLayout.h"
#include "layout/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// What drew a table's edges.
enum class TableEdges {
    Ruled,     ///< rules; the text of a cell has the room between them
    HalfRuled, ///< rules between the rows; the words themselves between the columns, whose text takes all the room
               ///< there is
    Aligned,   ///< the words themselves
};

/// Takes a table out of its page: the words of `text`, the pictures and the `nested` tables within its cells, its rules
/// and grounds.
TableDraft buildTable(PageText& page, const TableGrid& grid, const CellText& text, TableEdges edges,
                      const std::vector<BorderLine>& lines, std::vector<TableDraft> nested,
                      const LayoutParameters::Tables& parameters);

} // namespace orvane::layout
