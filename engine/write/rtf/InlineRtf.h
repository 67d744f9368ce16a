#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

#include <span>

namespace orvane::write::rtf {

/// Writes what stands in a line: runs, links, fields, bookmarks, references, form fields. `base` is how runs look by
/// the paragraph's style.
void writeInlines(Story& story, std::span<const document::Inline> inlines, const document::RunProperties& base);

} // namespace orvane::write::rtf
