#pragma once

#include "layout/tables/RowContent.h"

#include <span>

namespace orvane::layout {

/// Whether rules part each row of a table from the next, whose texts may have several lines then: of the parts between
/// the rules none holds rows of numbers, and those of several lines have a column with one line only.
/// `parts` are the contents of the rows of text between the rules, the head's left out.
bool areRowsRuled(const std::vector<std::span<const RowContent>>& parts, const std::vector<Line>& lines,
                  const TableParameters::Tables& parameters);

} // namespace orvane::layout
