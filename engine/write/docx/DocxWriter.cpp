#include "write/docx/DocxWriter.h"

#include "write/docx/DocumentPart.h"
#include "write/docx/DocumentState.h"
#include "write/docx/PropertiesParts.h"

namespace orvane::write {

void writeDocx(const document::Document& document, const PictureStore& pictures, const std::filesystem::path& target,
               Diagnostics& diagnostics) {
    docx::DocumentState state(document, pictures, diagnostics);
    docx::addDocumentPart(state);
    docx::addPropertiesParts(document.metadata, state.package);
    state.package.save(target);
}

} // namespace orvane::write
