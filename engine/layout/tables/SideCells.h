#pragma once

#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// A filled cell beside the rows of a table, and the head that lies to the right of it if it has one.
struct SideCell {
    Rect box;
    std::optional<Rect> head; ///< filled too, begins level with the cell and ends far above its end
    std::optional<Rect> row;  ///< of the first cell where the whole row is filled, as the head of the table
};

/// Filled cells one below the other, with the same sides.
using SideColumn = std::vector<SideCell>;

/// The columns that the grounds of the page may be, each from top to bottom.
std::vector<SideColumn> findSideColumns(const std::vector<Ground>& grounds, const TableParameters::Tables& parameters);

} // namespace orvane::layout
