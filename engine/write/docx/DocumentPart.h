#pragma once

#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Adds the body, and with it all parts that it leads to.
/// Source: ECMA-376 part 1, 11.3.10.
void addDocumentPart(DocumentState& state);

} // namespace orvane::write::docx
