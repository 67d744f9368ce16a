#pragma once

#include "base/Diagnostic.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"

#include <vector>

namespace orvane::layout {

/// Takes the tables out of a page, from top to bottom: their words leave `page.lines` (a line that runs on beyond a
/// cell's edge is cut there), their pictures leave `page.figures`, their rules and grounds are marked as used. What is
/// no table stays untouched.
std::vector<TableDraft> findTables(PageText& page, const DocumentContext& context, const LayoutParameters& parameters,
                                   Diagnostics& diagnostics);

} // namespace orvane::layout
