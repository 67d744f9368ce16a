#pragma once

#include "DocReader.h"

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"
#include "support/TemporaryFolder.h"
#include "write/doc/DocWriter.h"

#include <optional>

namespace orvane::tests {

/// A document as writeDoc() wrote it, read back.
class WrittenDoc {
public:
    explicit WrittenDoc(const document::Document& document)
        : WrittenDoc(document, PictureStore(TemporaryFolder().path())) {}
    WrittenDoc(const document::Document& document, const PictureStore& pictures) {
        write::writeDoc(document, pictures, file(), m_diagnostics);
        m_reader.emplace(file());
    }

    const DocReader& read() const { return *m_reader; }
    std::string dump() const { return m_reader->dump(); }
    const Diagnostics& diagnostics() const { return m_diagnostics; }
    std::filesystem::path file() const { return m_folder.path() / "document.doc"; }

private:
    TemporaryFolder m_folder;
    Diagnostics m_diagnostics;
    std::optional<DocReader> m_reader;
};

} // namespace orvane::tests
