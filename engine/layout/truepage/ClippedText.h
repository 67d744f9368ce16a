#pragma once

#include "layout/frames/FrameParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Adds to a page's frames the lines that clip paths cut off. Lines that go on below a frame, from its left edge in
/// its pitch and type size, belong to it: it stays as low as it was seen, and who types into it finds the whole entry.
/// The others come as frames of hidden text, for who looks for them.
void addClippedText(std::vector<DraftBlock>& frames, std::vector<Line> clipped, std::size_t page,
                    const FrameParameters::TextBoxes& parameters);

} // namespace orvane::layout
