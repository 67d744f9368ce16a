#pragma once

#include "layout/frames/FrameParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Makes one frame of the frames whose single lines stand on one baseline, such as a table's row, with tabulators in
/// between: a page of numbers would be hundreds of boxes, which word processors take minutes to lay out. Each part
/// stays where it stood, for there is room before the next. Requires: frames of cutIntoFrames(), in reading order.
std::vector<DraftBlock> joinFrames(std::vector<DraftBlock> frames, const FrameParameters::TextBoxes& parameters);

} // namespace orvane::layout
