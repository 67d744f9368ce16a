#pragma once

#include "pdf/PdfDocument.h"

class PDFDoc;

namespace orvane::pdf {

/// The structure tree's top elements, types after the role map. Source: ISO 32000-1, 14.7 and 14.8.
std::vector<StructureElement> readStructureTree(::PDFDoc& document);

} // namespace orvane::pdf
