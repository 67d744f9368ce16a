#pragma once

#include "document/Document.h"
#include "layout/assembly/AssembledBlock.h"

namespace orvane::layout {

/// The style that word processors have for a paragraph of that role in that place, without its looks.
document::Style namedStyle(const DraftParagraph* paragraph, FlowKind place);

} // namespace orvane::layout
