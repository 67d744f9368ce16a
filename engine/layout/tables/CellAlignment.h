#pragma once

#include "layout/paragraphs/ParagraphParameters.h"
#include "layout/tables/ColumnRooms.h"
#include "layout/tables/TableParameters.h"

namespace orvane::layout {

/// Sets the paragraphs' alignment between the sides of their cells. One line in one cell may stand anywhere; the cells
/// of a column together show which edge they keep. A list stands at the start.
void alignAcross(TableDraft& table, const ColumnRooms& rooms, const TableParameters::Tables& parameters,
                 const ParagraphParameters::Markers& markers);

/// Sets where the cells' text stands between top and bottom.
void alignUpright(TableDraft& table, const TableParameters::Tables& parameters);

} // namespace orvane::layout
