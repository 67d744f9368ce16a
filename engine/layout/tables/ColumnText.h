#pragma once

#include "layout/tables/ColumnGaps.h"

#include <array>

namespace orvane::layout {

/// Which edge the texts of a column keep.
enum class KeptEdge : std::size_t { Left, Middle, Right };

/// Where the texts of one column stand.
struct ColumnText {
    std::vector<Rect> boxes;
    Rect box; ///< around them
    KeptEdge kept = KeptEdge::Left;
    std::array<double, 3> edges{}; ///< by KeptEdge, of the text in the middle
};

/// Finds the edge that the boxes of a column keep.
void measure(ColumnText& column);

/// Whether the middle of a head is that of the columns in `range`: of their texts, or of the cells that these show by
/// the edge which they keep.
bool isInTheMiddle(const Rect& head, const std::vector<ColumnText>& columns, const ColumnRange& range,
                   const TableParameters::Tables& parameters);

} // namespace orvane::layout
