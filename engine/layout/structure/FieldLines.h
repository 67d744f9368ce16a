#pragma once

#include "layout/frames/FrameParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes one paragraph of the lines that stand in one field of a form, one below the other: what was typed there is one
/// entry, of as many lines.
void joinFieldLines(DocumentDraft& draft, const FrameParameters::TextBoxes& parameters);

} // namespace orvane::layout
