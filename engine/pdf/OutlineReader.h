#pragma once

#include "pdf/PdfDocument.h"

class PDFDoc;

namespace orvane::pdf {

/// The outline with its children. Entries that a damaged file repeats within themselves are left out.
std::vector<OutlineEntry> readOutline(::PDFDoc& document);

} // namespace orvane::pdf
