#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Writes the mark of a comment in the body, and the comment into the text of comments. One in a text box stands beside
/// it; in headers, footers, notes and comments there are none: these are told of.
/// Source: [MS-DOC] 2.3.4 (comment document).
void writeCommentReference(Story& story, const document::CommentReference& reference);

/// The tables of comments: where their marks stand and whose they are, where each begins, their authors, and when they
/// were made.
struct CommentTables {
    std::string references;
    std::string texts;
    std::string authors;
    std::string details;
};
CommentTables commentTables(const CommentTexts& comments, std::uint32_t bodyLength);

} // namespace orvane::write::doc
