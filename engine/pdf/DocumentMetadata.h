#pragma once

#include "pdf/PdfDocument.h"

class PDFDoc;

namespace orvane::pdf {

Metadata readMetadata(::PDFDoc& document);

} // namespace orvane::pdf
