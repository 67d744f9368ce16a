#pragma once

#include "document/Document.h"

#include <cstddef>
#include <optional>

namespace orvane::write {

/// Lists of word processors have no more levels.
inline constexpr std::size_t kMostListLevels = 9;

/// Which list a paragraph belongs to, in the file's words.
struct ListPlace {
    int id = 0; ///< from 1
    int level = 0;
};

/// The level that a paragraph of a list stands on.
struct ListLevel {
    const document::NumberingLevel* properties = nullptr; ///< null: the paragraph is in no list of the document
    ListPlace place;
};

ListLevel findLevel(const document::Document& document, const std::optional<document::ListReference>& list);

/// What a paragraph stands in without properties of its own: its style's, with the indents of its list.
document::ParagraphProperties inheritedProperties(const document::Style& style, const ListLevel& level);

/// The number format as the binary formats of word processors have it.
/// Source: [MS-OSHARED] 2.2.1.3 (MSONFC); RTF 1.9.1, list levels.
int numberFormatCode(document::NumberFormat format);

/// Where notes are counted anew, as the binary format has it. Source: [MS-DOC] 2.6.4 (sprmSRncFtn).
int countStartCode(document::CountStart start);

} // namespace orvane::write
