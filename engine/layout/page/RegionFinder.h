#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/page/ColumnSplitter.h"
#include "layout/page/PageLayout.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// Lines that belong under each other, with the column they stand in.
struct Region {
    int band = 0;
    int column = 0;
    ColumnSpan span;         ///< the text's edges
    Rect box;                ///< around its lines, or its table
    std::vector<Line> lines; ///< top to bottom
};

struct PageRegions {
    std::vector<Band> bands;     ///< top to bottom
    std::vector<Region> regions; ///< in reading order
};

/// Parts upright lines into bands of columns. Lines that lead across a gutter are cut there. A table with text
/// beside it has a region without lines.
PageRegions findRegions(std::vector<Line> lines, const PageWalls& walls, const DocumentContext& context,
                        const LayoutParameters& parameters);

} // namespace orvane::layout
