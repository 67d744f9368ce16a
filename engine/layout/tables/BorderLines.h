#pragma once

#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// A straight line of a drawn grid: the rules of a page that continue or double each other, seen as one.
struct BorderLine {
    RuleDirection direction = RuleDirection::Horizontal;
    double position = 0; ///< y of a horizontal line, x of a vertical one
    double from = 0;     ///< along its direction
    double to = 0;
    bool isDouble = false;          ///< two rules side by side
    std::vector<std::size_t> rules; ///< indices into PageText::rules

    double length() const { return to - from; }
};

/// The lines that the page's rules make, horizontal ones first, each direction by position. Check boxes are left out.
std::vector<BorderLine> collectBorderLines(const std::vector<Rule>& rules, const TableParameters::Tables& parameters);

/// A line that nothing is drawn along; it has no rules.
BorderLine undrawnLine(RuleDirection direction, double position, double from, double to);

/// Puts lines among others that are in the order of collectBorderLines(), which they keep.
void addLines(std::vector<BorderLine>& lines, std::vector<BorderLine> added);

/// One side of a cell.
struct CellSide {
    RuleDirection direction = RuleDirection::Horizontal;
    double position = 0; ///< y of a horizontal side, x of a vertical one
    double from = 0;     ///< along its direction
    double to = 0;
};

/// What is drawn along a side; BorderKind::None where the rules do not cover at least `cover` of it.
document::Border borderAlong(const std::vector<Rule>& rules, const std::vector<BorderLine>& lines, const CellSide& side,
                             double cover, const TableParameters::Tables& parameters);

} // namespace orvane::layout
