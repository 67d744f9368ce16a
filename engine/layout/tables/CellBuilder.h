#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"
#include "layout/tables/BorderLines.h"
#include "layout/tables/CellText.h"
#include "layout/tables/ColumnRooms.h"
#include "layout/tables/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// Takes a table out of its page: the words of `text`, the pictures and the `nested` tables within its cells, its rules
/// and grounds.
TableDraft buildTable(PageText& page, const TableGrid& grid, const CellText& text, TableEdges edges,
                      const std::vector<BorderLine>& lines, std::vector<TableDraft> nested,
                      const DocumentContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
