#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Whether the object floats in the file: those over the body, headers and footers do.
bool floatsInFile(const Story& story, const document::Block& block);

/// Writes the character that stands for a floating object in the open paragraph, and the text of a box into the boxes'
/// own.
/// Requires: floatsInFile().
void writeAnchor(Story& story, const document::Block& block);

/// Writes what does not float in the file as part of the text, before the paragraph that it is anchored in: a picture
/// as a paragraph of its own, a text box as its paragraphs. Drawings and pictures behind the text are left out and told
/// of. What floats in a text box stands beside that box.
/// Requires: `block` is a Figure or a Frame.
void writeFloat(Story& story, const document::Block& block);

} // namespace orvane::write::doc
