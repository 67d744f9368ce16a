#pragma once

#include "document/Document.h"
#include "write/doc/PropertyList.h"

namespace orvane::write::doc {

/// Adds what differs from `base`.
/// Source: [MS-DOC] 2.6.2.
void addParagraphProperties(PropertyList& list, const document::ParagraphProperties& properties,
                            const document::ParagraphProperties& base);

} // namespace orvane::write::doc
