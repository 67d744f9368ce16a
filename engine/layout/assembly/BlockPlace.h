#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Sets from where to where the block's lines reach in their line spacing.
void measureLines(AssembledBlock& block, const AssemblyContext& context);

/// Whether the blocks stand one below the other on one page.
bool standsBelow(const AssembledBlock& lower, const AssembledBlock& upper);

/// A picture or frame that floats, or what the engine added: none takes room that was measured.
bool hasNoPlace(const AssembledBlock& block);

/// Calls `visit(upper, lower)` for blocks that stand one below the other, those in cells too.
template<typename Visit>
void forEachPair(std::vector<AssembledBlock>& blocks, const Visit& visit) {
    AssembledBlock* upper = nullptr;
    for (AssembledBlock& lower : blocks) {
        for (std::vector<AssembledBlock>& cell : lower.cells)
            forEachPair(cell, visit);
        if (hasNoPlace(lower))
            continue;
        if (upper && standsBelow(lower, *upper))
            visit(*upper, lower);
        upper = &lower;
    }
}

} // namespace orvane::layout
