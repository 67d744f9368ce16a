#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/ColumnGaps.h"
#include "layout/tables/RowGrouper.h"
#include "layout/tables/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// Rows of text that the words' own columns make into a table.
struct AlignedRows {
    std::vector<PieceRow> rows;
    std::vector<ColumnGap> gaps;
    std::vector<RowGroup> groups;
    bool areSpaced = false; ///< space parts rows of several lines, which may be one; see groupBySpace()
};

/// Finds the columns of the rows, and cuts pieces there that run over several columns with narrow gaps (numbers, for
/// instance). A column of bullets is none: they belong to the texts beside them.
std::vector<ColumnGap> findTableColumns(std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                                        const LayoutParameters& parameters);

/// The grid of aligned rows: a piece that reaches over a gap is a cell over several columns. The outer edges lie
/// `margin` beyond the text, the inner ones in the middle between what they part.
TableGrid gridOf(const AlignedRows& aligned, double margin);

} // namespace orvane::layout
