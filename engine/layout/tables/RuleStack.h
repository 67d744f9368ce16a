#pragma once

#include "layout/tables/BorderLines.h"

#include <vector>

namespace orvane::layout {

/// Horizontal lines of one height, side by side with small gaps.
struct RuleLevel {
    double y = 0;
    double left = 0;
    double right = 0;
    std::vector<std::size_t> lines; ///< indices of the border lines
};

/// Levels of one extent, from top to bottom.
using RuleStack = std::vector<RuleLevel>;

/// The stacks that the horizontal lines make; many have one level only.
std::vector<RuleStack> findRuleStacks(const std::vector<BorderLine>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
