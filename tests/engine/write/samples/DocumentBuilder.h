#pragma once

#include "document/Document.h"

#include <string>
#include <utility>
#include <vector>

/// Short words for documents in tests.
namespace orvane::tests {

inline document::Inline text(std::string characters, document::RunProperties properties = {}) {
    return {document::Text{std::move(characters), std::move(properties)}};
}

inline document::Paragraph paragraph(std::vector<document::Inline> inlines) {
    document::Paragraph result;
    result.inlines = std::move(inlines);
    return result;
}

inline document::Paragraph paragraph(std::string characters) {
    return paragraph(std::vector<document::Inline>{text(std::move(characters))});
}

inline document::TableCell cell(std::string characters, int column = 0) {
    document::TableCell result;
    result.column = column;
    result.blocks.push_back({paragraph(std::move(characters))});
    return result;
}

inline document::Section section(std::vector<document::Block> blocks) {
    document::Section result;
    result.blocks = std::move(blocks);
    return result;
}

inline document::Document documentOf(std::vector<document::Block> blocks) {
    document::Document result;
    document::Style normal;
    normal.id = normal.name = "Normal";
    result.styles.push_back(normal);
    result.sections.push_back(section(std::move(blocks)));
    return result;
}

inline document::Document documentOf(document::Paragraph one) {
    return documentOf(std::vector<document::Block>{{std::move(one)}});
}

/// A document of one paragraph with one piece of text.
inline document::Document documentOf(std::string characters, document::RunProperties properties = {}) {
    return documentOf(paragraph({text(std::move(characters), std::move(properties))}));
}

} // namespace orvane::tests
