#pragma once

#include "pdf/PdfDocument.h"

class PDFDoc;

namespace orvane::pdf {

/// An open file. The bytes are there only for a file that had to be repaired.
struct OpenDocument {
    std::unique_ptr<std::string> bytes; ///< outlives the document, which reads from it
    std::unique_ptr<::PDFDoc> document;
};

/// Opens a file for taking its content out. A password counts whichever of the two fields it was typed into.
/// Errors: as PdfDocument::open().
OpenDocument openDocument(const std::filesystem::path& file, const Passwords& passwords);

} // namespace orvane::pdf
