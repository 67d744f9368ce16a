#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes blocks in an order that the format can hold.
void writeBlocks(Story& story, const std::vector<document::Block>& blocks, const BlockFlow& flow = {});

} // namespace orvane::write::docx
