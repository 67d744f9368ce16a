#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/ColumnRooms.h"

namespace orvane::layout {

/// Sets the paragraphs' alignment between the sides of their cells. One line in one cell may stand anywhere; the cells
/// of a column together show which edge they keep.
void alignAcross(TableDraft& table, const ColumnRooms& rooms, const LayoutParameters::Tables& parameters);

/// Sets where the cells' text stands between top and bottom.
void alignUpright(TableDraft& table, const LayoutParameters::Tables& parameters);

} // namespace orvane::layout
