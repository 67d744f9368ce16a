#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a floating object, anchored in the open paragraph, and after it what the object cannot hold itself.
/// Requires: `block` is a Figure or a Frame.
void writeFloat(Story& story, const document::Block& block);

} // namespace orvane::write::rtf
