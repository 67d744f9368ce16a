#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"
#include "support/TemporaryFolder.h"
#include "support/docx/ZipEntries.h"

#include <string>
#include <vector>

namespace orvane::tests {

/// A document as writeDocx() wrote it, unpacked.
class WrittenDocument {
public:
    explicit WrittenDocument(const document::Document& document);
    WrittenDocument(const document::Document& document, const PictureStore& pictures);

    /// The bytes of a part; empty when there is none.
    std::string part(const std::string& name) const;
    const std::vector<ZipEntry>& entries() const { return m_entries; }
    const Diagnostics& diagnostics() const { return m_diagnostics; }
    const std::filesystem::path& file() const { return m_file; }

    /// The elements of a part that the XPath selects, each in one normal form, one after the other.
    std::string select(const std::string& part, const std::string& xpath) const;
    /// The same of the body.
    std::string body(const std::string& xpath) const { return select("word/document.xml", xpath); }
    /// How many nodes of the body the XPath selects.
    std::size_t count(const std::string& xpath) const;

private:
    void write(const document::Document& document, const PictureStore& pictures);

    TemporaryFolder m_folder;
    std::filesystem::path m_file;
    Diagnostics m_diagnostics;
    std::vector<ZipEntry> m_entries;
};

/// Elements in the normal form that WrittenDocument::select() gives; throws std::runtime_error for what is no XML.
std::string normalXml(const std::string& elements);

} // namespace orvane::tests
