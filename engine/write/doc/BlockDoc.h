#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Writes blocks in an order that the format can hold. The last paragraph stays open, see endParagraph().
void writeBlocks(Story& story, const std::vector<document::Block>& blocks, const BlockFlow& flow = {});

} // namespace orvane::write::doc
