#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"
#include "support/TemporaryFolder.h"

#include <string>

namespace orvane::tests {

/// A document as writeRtf() wrote it.
class WrittenRtf {
public:
    explicit WrittenRtf(const document::Document& document);
    WrittenRtf(const document::Document& document, const PictureStore& pictures);

    const std::string& text() const { return m_text; }
    const Diagnostics& diagnostics() const { return m_diagnostics; }
    const std::filesystem::path& file() const { return m_file; }

    bool has(const std::string& piece) const { return m_text.find(piece) != std::string::npos; }
    std::size_t count(const std::string& piece) const;
    /// From the first `start` on, up to the first `end` after it and with it; empty when there is none.
    std::string between(const std::string& start, const std::string& end) const;
    /// What stands after the head of the file: the sections.
    std::string body() const { return m_text.substr(m_text.find("\\sectd")); }

private:
    void write(const document::Document& document, const PictureStore& pictures);

    TemporaryFolder m_folder;
    std::filesystem::path m_file;
    Diagnostics m_diagnostics;
    std::string m_text;
};

/// What is wrong with the groups, words and escapes of an RTF file; empty when nothing is.
std::string faultOfRtf(const std::string& text);

} // namespace orvane::tests
