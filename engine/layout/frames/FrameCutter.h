#pragma once

#include "layout/frames/FrameParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Cuts blocks into paragraphs that can keep every line where it stood, in reading order: those in table cells too, a
/// paragraph whose lines are not regular into several, a line at the tabulators that no leader fills. Each has one
/// piece whose column is what its lines cover, whose alignment and indents say how the lines stand in it, and in which
/// every line ends by hand. Of figures only the labels are taken.
std::vector<DraftBlock> cutIntoFrames(std::vector<DraftBlock> blocks, const FrameParameters::TextBoxes& parameters);

} // namespace orvane::layout
