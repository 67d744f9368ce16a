#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

#include <span>

namespace orvane::write::doc {

/// Writes what stands in a line: text, pictures, links, fields, bookmarks, notes. `base` is how text looks by the
/// paragraph's style.
void writeInlines(Story& story, std::span<const document::Inline> inlines, const document::RunProperties& base);

} // namespace orvane::write::doc
