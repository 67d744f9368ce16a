#pragma once

#include "layout/tables/ColumnGaps.h"

#include <map>

namespace orvane::layout {

/// The pieces of a row of text by column; a piece over several columns stands at its first.
struct RowContent {
    std::map<int, const TextPiece*> byColumn;
    bool hasSpan = false;
    bool hasNumber = false;
    bool isOfNumbers = false; ///< a third of the texts: a head may hold a number, too
    bool isLabelled = false;  ///< a text that is no number stands in the first column
    bool isNumbering = false; ///< "(1)", "(2)", "(3)": the columns are numbered
    bool isBold = true;
    bool isItalic = true;

    /// Whether it is set in another look, as heads, units and totals are.
    bool looksUnlike(const RowContent& other) const { return isBold != other.isBold || isItalic != other.isItalic; }
};

/// What stands in `row`, whose pieces must outlive the result.
RowContent contentOf(const PieceRow& row, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters);

} // namespace orvane::layout
