#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// What a file tells of the blanks between words.
enum class TypedBlanks : unsigned char {
    Unknown, ///< some files have none, and leave a gap
    Painted, ///< one for each that was typed: where there is a gap without one, a program made it
};

/// Reads it from all lines of the document. What stands first in a line may be a label, and tells nothing.
TypedBlanks typedBlanksOf(DocumentDraft& draft, const StructureParameters::Lists& limits);

} // namespace orvane::layout
