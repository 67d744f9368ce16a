#pragma once

#include "layout/LayoutParameters.h"
#include "layout/paragraphs/LineMeasures.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Whether the first row of `next` is the rest of the last row of `table`, cut by a page break: texts that run on, and
/// none that says otherwise. Requires: both have the same columns.
bool goesOnWithRow(DraftTable& table, DraftTable& next, const ParagraphContext& context,
                   const LayoutParameters& parameters);

/// Moves the first row of `next` into the last one of `table`, texts that run on into their paragraphs.
void joinRows(DraftTable& table, DraftTable& next, const ParagraphContext& context, const LayoutParameters& parameters);

/// Lets the merged cells that end `table` go on in the empty merged cells that begin `next`: a label beside the rows of
/// two pages. Requires: the rows of `next` are appended to `table` afterwards.
void joinMergedCells(DraftTable& table, DraftTable& next);

} // namespace orvane::layout
