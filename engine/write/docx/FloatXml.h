#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes the run that anchors a floating object in the open paragraph, and after it what the object cannot hold
/// itself.
/// Requires: `block` is a Figure or a Frame.
void writeFloat(Story& story, const document::Block& block);

} // namespace orvane::write::docx
