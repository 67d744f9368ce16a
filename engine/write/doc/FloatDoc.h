#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Writes what floats as part of the text, before the paragraph that it is anchored in: a picture as a paragraph of its
/// own, a text box as its paragraphs. Drawings and pictures behind the text are left out and told of.
/// Requires: `block` is a Figure or a Frame.
void writeFloat(Story& story, const document::Block& block);

} // namespace orvane::write::doc
