#pragma once

#include "document/Document.h"
#include "write/docx/Package.h"

namespace orvane::write::docx {

/// Adds the parts with what the document says of itself: title, author, dates. No date but the document's own is
/// written.
/// Source: ECMA-376 part 2, 11; part 1, 22.2.
void addPropertiesParts(const document::Metadata& metadata, Package& package);

} // namespace orvane::write::docx
