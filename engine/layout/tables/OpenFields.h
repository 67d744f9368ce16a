#pragma once

#include "layout/tables/BorderLines.h"

#include <vector>

namespace orvane::layout {

/// The lines with those that a form leaves out around its last field of a row: a rule runs on over it beyond the last
/// upright line, and as far as the next rule below, but nothing is drawn behind and below the field. Nothing is drawn
/// along the lines added; they have no rules.
std::vector<BorderLine> closeOpenFields(std::vector<BorderLine> lines, const std::vector<Line>& text,
                                        const TableParameters::Tables& parameters);

} // namespace orvane::layout
