#pragma once

#include "document/Document.h"
#include "write/StyleIndex.h"
#include "write/doc/DocFonts.h"

#include <map>
#include <string>
#include <vector>

namespace orvane::write::doc {

/// The styles of a file; paragraphs name them by number. Headings have numbers of their own.
/// Source: [MS-DOC] 2.9.271 (STSH), 2.9.260 (STD).
class DocStyles {
public:
    DocStyles(const document::Document& document, const StyleIndex& styles);

    int numberOf(const document::Style& style) const;
    std::string table(DocFonts& fonts) const;

private:
    std::string record(const document::Style& style, DocFonts& fonts) const;

    const document::Document& m_document;
    const StyleIndex& m_styles;
    std::map<const document::Style*, int> m_numbers;
    std::map<int, const document::Style*> m_byNumber;
    int m_count = 0;
};

} // namespace orvane::write::doc
