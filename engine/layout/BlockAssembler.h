#pragma once

#include "layout/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// A block of the document with what the stages after it still need of its place on the page.
struct AssembledBlock {
    document::Block block;
    const DraftBlock* draft = nullptr;
    double top = 0;           ///< of its first line as a word processor sets it; page space
    double bottom = 0;        ///< of its last line, on the page where it ends
    std::size_t lastPage = 0; ///< index into DocumentDraft::pages, where it ends
    int lastColumn = 0;
};

/// Makes blocks of drafts, each for itself.
std::vector<AssembledBlock> assembleBlocks(const std::vector<DraftBlock>& drafts, const AssemblyContext& context);

/// Likewise for what stands in a cell or a note: with the space between the blocks.
std::vector<document::Block> assembleInside(const std::vector<DraftBlock>& drafts, const AssemblyContext& context);

} // namespace orvane::layout
