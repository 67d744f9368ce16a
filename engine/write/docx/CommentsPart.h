#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes the place that a comment is about. In a text box it waits until the box is written: the format has comments
/// in the body only.
/// Source: ECMA-376 part 1, 17.13.4.
void writeCommentReference(Story& story, const document::CommentReference& reference);

/// Adds the part with the comments, as far as references led to them; `relationships` are those of the body.
void addCommentsPart(DocumentState& state, Relationships& relationships);

} // namespace orvane::write::docx
