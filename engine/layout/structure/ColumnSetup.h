#pragma once

#include "layout/structure/DocumentDraft.h"
#include "layout/structure/StructureParameters.h"

#include <vector>

namespace orvane::layout {

/// The columns of a section, in reading order, from what was seen of them on the pages: columns of equal width if those
/// explain where the lines start. `area` is what the page's margins leave.
std::vector<ColumnSpan> fitColumns(const std::vector<ColumnSpan>& seen, const Rect& area,
                                   const StructureParameters::PageSetup& parameters);

/// The same columns as the document model has them.
std::vector<document::Column> columnWidths(std::vector<ColumnSpan> columns);

} // namespace orvane::layout
