#pragma once

#include "document/Document.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Gives the document mirrored margins: its sections those of odd pages, and what floats its place from the margin,
/// which is another on every second page. Requires: the sections are those of the draft.
void mirrorMargins(document::Document& document, const DocumentDraft& draft);

} // namespace orvane::layout
