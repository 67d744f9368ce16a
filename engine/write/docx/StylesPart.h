#pragma once

#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Adds the part with the document's styles, each as its difference against the style it is based on.
/// Source: ECMA-376 part 1, 17.7.
void addStylesPart(DocumentState& state, Relationships& relationships);

} // namespace orvane::write::docx
