#pragma once

#include "base/XmlWriter.h"
#include "document/Document.h"
#include "write/ListLevels.h"

#include <optional>
#include <string_view>

namespace orvane::write::docx {

/// What a paragraph belongs to.
struct ParagraphIdentity {
    std::string_view style; ///< empty: the default style
    std::optional<ListPlace> list;
    const document::DropCap* dropCap = nullptr; ///< which the paragraph is
};

/// Writes the children of w:pPr that tell how a paragraph stands, where that differs from `base`. What follows them in
/// w:pPr (the mark's properties, the section) is the caller's.
/// Source: ECMA-376 part 1, 17.3.1.26 (order and meaning of the children).
void writeParagraphProperties(XmlWriter& xml, const document::ParagraphProperties& properties,
                              const document::ParagraphProperties& base, const ParagraphIdentity& identity);

} // namespace orvane::write::docx
