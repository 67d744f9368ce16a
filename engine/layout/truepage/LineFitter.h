#pragma once

#include "layout/fonts/FontCatalog.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/truepage/TruePageParameters.h"

#include <vector>

namespace orvane::layout {

/// Draws the characters of each line wider or narrower by so much that a word processor sets the line as wide as it is
/// on the page: what a family lacks on the average of a document is not what it lacks on a line, and typesetters
/// squeeze lines. Lines of families whose widths nobody knows stay as they are. Requires: frames of cutIntoFrames().
void fitLines(std::vector<DraftBlock>& frames, const FontCatalog& fonts, Tracking tracking,
              const TruePageParameters::TruePage& parameters);

} // namespace orvane::layout
