#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/TableGrid.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids of blocks in which parties sign side by side: one row of text has lines of underscores in all its columns,
/// and above them stand the names. What stands at the distance of lines is one cell, a party's name and address, say.
std::vector<TableGrid> findSignatureGrids(const PageText& page, const LayoutParameters& parameters);

} // namespace orvane::layout
