#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/TableGrid.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids of tables of labels and values: at the left short labels that begin at one place, far to the right of them
/// texts that begin at another, some of which take several lines while nothing stands below their labels.
std::vector<TableGrid> findLabelledGrids(const PageText& page, const LayoutParameters& parameters);

} // namespace orvane::layout
