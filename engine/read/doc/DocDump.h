#pragma once

#include <string>
#include <string_view>

namespace orvane::read::doc {

/// What is in a binary document, as text to read and to compare.
struct Dump {
    std::string text;
    std::string damage; ///< the first structure that is not as the format has it; empty for a whole document
};

/// Lists the structures of a binary document: streams, file information, pieces, styles, fonts, lists, sections, the
/// paragraphs of each part of the text with their characters' properties, fields, notes, comments, bookmarks, text
/// boxes, floating objects, shapes, pictures, document information. A structure that is damaged is told of in its place
/// and the others follow.
Dump dumpDoc(std::string_view file);

} // namespace orvane::read::doc
