#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a comment where it stands. In a text box it waits until the box is written: the format has comments in the
/// body only.
/// Source: RTF 1.9.1, "Comments (Annotations)".
void writeCommentReference(Story& story, const document::CommentReference& reference);

} // namespace orvane::write::rtf
