#pragma once

#include "document/Document.h"
#include "layout/DocumentContext.h"
#include "pdf/PdfDocument.h"

namespace orvane::layout {

/// What the file says of itself, in the document's words.
document::Metadata metadataOf(const pdf::Metadata& source, const DocumentContext& context);

} // namespace orvane::layout
