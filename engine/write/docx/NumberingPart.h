#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// The format's word for how numbers are written.
/// Source: ECMA-376 part 1, 17.18.59.
const char* numberFormatName(document::NumberFormat format);

/// Adds the part with the document's lists, when it has some. Lists of equal levels share a definition and start anew
/// by themselves.
/// Source: ECMA-376 part 1, 17.9.
void addNumberingPart(DocumentState& state, Relationships& relationships);

} // namespace orvane::write::docx
