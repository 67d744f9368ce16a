#pragma once

#include "layout/tables/ColumnGaps.h"
#include "layout/tables/RowGrouper.h"

#include <optional>
#include <span>
#include <vector>

namespace orvane::layout {

/// The space above row `i`, which is not the first; points.
double spaceAbove(std::span<const PieceRow> rows, std::size_t i);

/// The rows of text as groups; `starts(i)` tells whether row `i` begins one, as the first does anyway.
template<typename Starts>
std::vector<RowGroup> groupsFrom(std::size_t rows, const Starts& starts) {
    std::vector<RowGroup> groups;
    for (std::size_t i = 0; i < rows; ++i) {
        if (i == 0 || starts(i))
            groups.push_back({i, i});
        groups.back().end = i + 1;
    }
    return groups;
}

/// The least space that parts two rows, where spaces are of two kinds, at least two of each; points.
std::optional<double> leastRowSpace(std::span<const PieceRow> rows, const TableParameters::Tables& parameters);

/// The rows of a table whose labels end with colons and may take several lines, where the space between rows is clearly
/// larger than the one between lines: each row has one of them. Nothing where that is not so.
std::optional<std::vector<RowGroup>> groupLabelsBySpace(std::span<const PieceRow> rows,
                                                        const std::vector<ColumnGap>& gaps,
                                                        const std::vector<Line>& lines,
                                                        const TableParameters::Tables& parameters);

/// The rows of a table whose texts run over several lines, where the space between rows is clearly larger than the one
/// between lines; nothing where it is not, or where the lines are neither running texts nor labels of several lines.
std::optional<std::vector<RowGroup>> groupBySpace(std::span<const PieceRow> lines, const std::vector<ColumnGap>& gaps,
                                                  const std::vector<Line>& pageLines,
                                                  const TableParameters::Tables& parameters);

} // namespace orvane::layout
