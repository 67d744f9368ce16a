#pragma once

#include "layout/fonts/FontCatalog.h"
#include "layout/frames/FrameParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Draws the characters of each line wider or narrower by so much that a word processor sets the line as wide as it is
/// on the page: what a family lacks on the average of a document is not what it lacks on a line, and typesetters
/// squeeze lines. Lines of families whose widths nobody knows stay as they are. Requires: frames of cutIntoFrames().
void fitLines(std::vector<DraftBlock>& frames, const FontCatalog& fonts, Tracking tracking,
              const FrameParameters::TextBoxes& parameters);

} // namespace orvane::layout
