#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Notes the fonts that the properties name.
void collectFonts(DocumentState& state, const document::RunProperties& properties);

/// Adds the part that tells what kind of fonts the document uses, so that a reader without one of them finds one like
/// it.
/// Source: ECMA-376 part 1, 17.8.3.
void addFontTablePart(DocumentState& state, Relationships& relationships);

} // namespace orvane::write::docx
