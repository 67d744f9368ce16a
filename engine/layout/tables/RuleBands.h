#pragma once

#include "layout/tables/RuleStack.h"
#include "layout/tables/TextPiece.h"

#include <vector>

namespace orvane::layout {

/// Rows of text between two levels of a stack, or beyond its ends.
struct RuleBand {
    double top = 0;
    double bottom = 0;
    std::vector<PieceRow> rows;
    bool hasRuleAbove = true;
    bool hasRuleBelow = true;
    std::size_t level = 0;   ///< index of a level that it touches
    bool isFollowed = false; ///< by running text, which ends the table
    bool isTotal = false;    ///< a row below the rule that closes the body
};

/// The bands of a stack from top to bottom: those between its levels, cut where a paragraph stands between two tables,
/// and where the stack is open the head or rows above its first level and the rows below its last. `pieces` are sorted
/// by their baselines.
std::vector<RuleBand> bandsOf(const RuleStack& stack, const std::vector<TextPiece>& pieces,
                              const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
