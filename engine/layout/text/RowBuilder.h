#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Puts clusters that share a baseline into rows across the whole page, each in the order of its direction of writing.
/// Superscripts and subscripts join the row of the text they stand at, with Look::verticalPosition and Look::size set;
/// a drop cap joins the row of its first line. Blanks stay in as clusters of their own.
std::vector<TextRow> buildRows(std::vector<Cluster> clusters, const TextParameters& parameters,
                               Diagnostics& diagnostics);

} // namespace orvane::layout
