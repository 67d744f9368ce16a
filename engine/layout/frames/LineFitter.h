#pragma once

#include "layout/fonts/FontCatalog.h"
#include "layout/frames/FrameParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Brings each word to where it stands on the page: draws the characters of a line wider or narrower by so much that a
/// word processor sets its words as wide as they are there, and sets the blanks between them. What a family lacks on
/// the average of a document is not what it lacks on a line, and typesetters stretch and squeeze blanks. Lines of
/// families whose widths nobody knows stay as they are, and are not justified any more. Requires: frames of
/// cutIntoFrames(). Finds the lines that wrap in words (ParagraphDraft::wrappingLines).
void fitLines(std::vector<DraftBlock>& frames, const FontCatalog& fonts, Tracking tracking,
              const FrameParameters::TextBoxes& parameters);

/// The room behind the lines of a frame with lines that wrap in words; `width` of its text. Units: points.
double tightRoom(double width, const FrameParameters::TextBoxes& parameters);

} // namespace orvane::layout
