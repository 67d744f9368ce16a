#pragma once

#include "layout/structure/BreakFinder.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Tells the tables whose rows stay whole: one over several pages, none of whose rows is cut, that left a page with
/// room for the first lines of the next row.
/// Requires: the tables have been joined.
void findWholeRows(DocumentDraft& draft, const BlockRange& range, const StructureParameters::PageSetup& parameters);

} // namespace orvane::layout
