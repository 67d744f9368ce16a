#include "write/doc/DocWriter.h"

#include "write/doc/DocFile.h"

namespace orvane::write {

void writeDoc(const document::Document& document, const PictureStore& pictures, const std::filesystem::path& target,
              Diagnostics& diagnostics) {
    doc::DocState state(document, pictures, diagnostics);
    doc::writeDocFile(state, target);
}

} // namespace orvane::write
