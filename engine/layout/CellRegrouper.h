#pragma once

#include "layout/LineMeasures.h"
#include "layout/PageLayout.h"

namespace orvane::layout {

/// Makes the paragraphs of a table's cells anew, by the same rules as those of the page: a line goes on with the one
/// above when its first word had no room in the cell. Tables within cells are regrouped too.
void regroupCells(TableDraft& table, const ParagraphContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
