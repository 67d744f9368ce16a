#pragma once

#include "layout/tables/RuleStack.h"
#include "layout/tables/TextPiece.h"

#include <vector>

namespace orvane::layout {

/// Whether the row begins with a text and ends with a number, as totals do.
bool isLabelWithAmount(const PieceRow& row, const std::vector<Line>& lines);

/// The rows of texts side by side that stand right above a rule, between its ends: the head of a table that has no rule
/// above it. The last of them may be `rowSpace` points above the rule. `pieces` are sorted by their baselines.
std::vector<PieceRow> headAbove(const RuleLevel& level, double rowSpace, const std::vector<TextPiece>& pieces,
                                const TableParameters::Tables& parameters);

/// The rows of texts side by side above a rule, between its ends, for as long as they follow each other closely: what
/// stands above the first total of a table that has rules at its totals only. The last of them has a label and amounts.
std::vector<PieceRow> rowsAbove(const RuleLevel& level, const std::vector<TextPiece>& pieces,
                                const std::vector<Line>& lines, const TableParameters::Tables& parameters);

/// The rows below a rule, between its ends, for as long as they follow each other closely and are no running text: the
/// body of a table that has no rule below it. `pieces` are sorted by their baselines.
std::vector<PieceRow> rowsBelow(const RuleLevel& level, const std::vector<TextPiece>& pieces,
                                const TableParameters::Tables& parameters);

/// The rows of labels and amounts right below a rule that closes the body of a table: its totals.
std::vector<PieceRow> totalsBelow(const RuleLevel& level, const std::vector<TextPiece>& pieces,
                                  const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
