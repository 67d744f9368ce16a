#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

#include <functional>

namespace orvane::write::docx {

/// What the blocks of a story begin and end with.
struct BlockFlow {
    std::function<void()> writeLead;                 ///< runs at the start of the first paragraph
    const document::Section* endedSection = nullptr; ///< that ends with the last paragraph
};

/// Writes blocks and sees to what the format asks of their order: floating objects are anchored in the paragraph that
/// follows them, two tables do not touch, and the last is a paragraph.
void writeBlocks(Story& story, const std::vector<document::Block>& blocks, const BlockFlow& flow = {});

} // namespace orvane::write::docx
