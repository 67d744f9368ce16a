#pragma once

#include "layout/LayoutParameters.h"
#include "layout/page/ColumnStrips.h"
#include "layout/text/PageText.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// A part of the page: lines, or columns side by side, or slices one below the other.
struct PagePart {
    enum class Kind : std::uint8_t { Lines, Columns, Slices } kind = Kind::Lines;
    std::vector<Line> lines = {};     ///< top to bottom
    std::vector<PagePart> parts = {}; ///< left to right, or top to bottom
    Rect object = {};                 ///< the table that stands in place of lines, or around those of a strip
};

/// What no gutter crosses.
struct PageWalls {
    std::span<const Rect> all;    ///< tables and pictures
    std::span<const Rect> tables; ///< of these
    double pageWidth = 0;         ///< points
    std::span<const ColumnStrip> strips = {};
};

/// Parts lines at the rules between strips, then at the strongest gutter, and what comes out again, until there are no
/// columns left. Lines that lead across a gutter are cut there; lines side by side that no gutter parts are joined with
/// a tabulator. A table with text beside it is a column, too. Requires: `lines` upright, from top to bottom.
PagePart splitIntoColumns(std::vector<Line> lines, const PageWalls& walls, const LayoutParameters& parameters);

} // namespace orvane::layout
