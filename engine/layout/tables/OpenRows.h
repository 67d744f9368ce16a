#pragma once

#include "layout/tables/BorderLines.h"

#include <vector>

namespace orvane::layout {

/// The lines with one more above each row that is drawn open: short lines side by side that stand on a line, with words
/// between them and more of the cell above. Nothing is drawn along the lines added; they have no rules.
std::vector<BorderLine> closeOpenRows(std::vector<BorderLine> lines, const std::vector<Line>& text,
                                      const TableParameters::Tables& parameters);

} // namespace orvane::layout
