#pragma once

#include "layout/tables/BorderLines.h"

#include <vector>

namespace orvane::layout {

/// The lines of a grid that no rule draws but its grounds show: where grounds of one height meet at the same places
/// again and again, they are the cells of every other row or of all. The lines go on through the rows between such
/// bands, and those beside them, as long as no text stands over them.
std::vector<BorderLine> linesOfGrounds(const PageText& page, const std::vector<BorderLine>& drawn,
                                       const TableParameters::Tables& parameters);

} // namespace orvane::layout
