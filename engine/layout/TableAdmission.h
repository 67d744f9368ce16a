#pragma once

#include "layout/CellText.h"
#include "layout/LayoutParameters.h"
#include "layout/PageText.h"
#include "layout/TableGrid.h"

namespace orvane::layout {

/// Whether something that looks like a grid is a table, and if not, what speaks against it.
enum class TableVerdict {
    Table,
    SinglePlace,     ///< a box around text
    BrokenGrid,      ///< the cells do not tile the grid, or had to be forced to
    StraddlingWords, ///< the words do not keep to the cells
    Empty,           ///< too few cells hold anything
    TooFlat,         ///< the rows are lower than a line of text: a staff, a bar code, a chart's grid
    Drawing,         ///< a drawing runs over several cells: a chart
    PageFrame,       ///< one cell holds most of the page: a frame around it
};

/// The verdict's name as it stands in dumps.
const char* toString(TableVerdict verdict);

/// What the finder of a drawn grid knows beside the grid.
struct GridEvidence {
    int forcedCells = 0; ///< see LatticeGrid
};

/// Judges a grid drawn with rules.
TableVerdict judgeRuledTable(const PageText& page, const TableGrid& grid, const CellText& text,
                             const GridEvidence& evidence, const LayoutParameters::Tables& parameters);

} // namespace orvane::layout
