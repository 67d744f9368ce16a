#pragma once

#include "pdf/PdfDocument.h"

class PDFDoc;

namespace orvane::pdf {

/// Opens a file for taking its content out. A password counts whichever of the two fields it was typed into.
/// Errors: as PdfDocument::open().
std::unique_ptr<::PDFDoc> openDocument(const std::filesystem::path& file, const Passwords& passwords);

} // namespace orvane::pdf
