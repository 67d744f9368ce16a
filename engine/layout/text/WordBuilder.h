#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Finds where words end: Cluster::gapBefore of every cluster is filled in, and the clusters that are blanks are taken
/// out. A gap ends a word when it is wide against the font's own blank and against the gaps between the letters around
/// it, so that letter-spaced and tightly set text both come out right.
std::vector<TextRow> findWordGaps(std::vector<TextRow> rows, const TextParameters& parameters,
                                  Diagnostics& diagnostics);

} // namespace orvane::layout
