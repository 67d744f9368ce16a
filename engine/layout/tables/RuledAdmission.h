#pragma once

#include "layout/tables/CellText.h"
#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/tables/TableVerdict.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Judges a grid drawn with rules.
TableVerdict judgeRuledTable(const PageText& page, const TableGrid& grid, const CellText& text,
                             const GridEvidence& evidence, const TableParameters::Tables& parameters);

/// Whether a drawing (no picture) lies over several cells: the labels of a chart stand in rows and columns, too.
bool isDrawnOver(const PageText& page, const TableGrid& grid, const TableParameters::Tables& parameters);

} // namespace orvane::layout
