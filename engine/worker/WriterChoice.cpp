#include "worker/WriterChoice.h"

#include "write/doc/DocWriter.h"
#include "write/docx/DocxWriter.h"
#include "write/rtf/RtfWriter.h"

namespace orvane::worker {

void writeDocument(protocol::Format format, const document::Document& document, const PictureStore& pictures,
                   const std::filesystem::path& target, Diagnostics& diagnostics) {
    switch (format) {
    case protocol::Format::Docx:
        write::writeDocx(document, pictures, target, diagnostics);
        return;
    case protocol::Format::Rtf:
        write::writeRtf(document, pictures, target, diagnostics);
        return;
    case protocol::Format::Doc:
        write::writeDoc(document, pictures, target, diagnostics);
        return;
    }
}

} // namespace orvane::worker
