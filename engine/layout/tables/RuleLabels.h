#pragma once

#include "layout/tables/OpenBands.h"
#include "layout/tables/RuleStack.h"

namespace orvane::layout {

/// Widens the stacks whose rules leave out the labels: rows of numbers between or below them, and to their left a text
/// beside nearly each row. Rules under the heads of the number columns alone are set so. Stacks that are of one extent
/// then become one.
/// Requires: `pieces` are sorted by their baselines.
std::vector<RuleStack> withLabels(std::vector<RuleStack> stacks, const std::vector<TextPiece>& pieces,
                                  const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
