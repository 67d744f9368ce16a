#pragma once

#include "pdf/PdfDocument.h"
#include "support/PdfBuilder.h"
#include "support/TemporaryFolder.h"

#include <memory>
#include <string>

namespace orvane::pdf {

/// A built PDF, opened, with what its pages read as.
class OpenedPdf {
public:
    explicit OpenedPdf(const tests::PdfBuilder& builder)
        : m_file(m_folder.path() / "test.pdf")
        , m_document(open(builder, m_file))
        , m_pictures(m_folder.path()) {}

    PdfDocument& document() { return m_document; }
    PictureStore& pictures() { return m_pictures; }
    Diagnostics& diagnostics() { return m_diagnostics; }
    const std::filesystem::path& file() const { return m_file; }

    PageContent page(int number = 1) {
        PageReadOptions options;
        options.pictures = &m_pictures;
        return m_document.readPage(number, options, m_diagnostics);
    }
    /// How many diagnostics of a kind there are.
    int count(DiagnosticKind kind) const {
        int count = 0;
        for (const Diagnostic& diagnostic : m_diagnostics.entries())
            count += diagnostic.kind == kind ? 1 : 0;
        return count;
    }

private:
    static PdfDocument open(const tests::PdfBuilder& builder, const std::filesystem::path& file) {
        builder.write(file);
        return PdfDocument::open(file, {});
    }

    tests::TemporaryFolder m_folder;
    std::filesystem::path m_file;
    PdfDocument m_document;
    PictureStore m_pictures;
    Diagnostics m_diagnostics;
};

/// The page's text in paint order, without a thought for words.
std::string textOf(const PageContent& page);
/// As above, only what can be seen.
std::string visibleTextOf(const PageContent& page);

} // namespace orvane::pdf
