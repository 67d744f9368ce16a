#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Blocks that follow each other: the body, a note, a running head.
struct BlockFlow {
    FlowKind kind = FlowKind::Body;
    std::vector<AssembledBlock> blocks;
};

/// Gives every paragraph its style and makes the styles: each has the look and format that most of its paragraphs have,
/// and those that differ by less than a reader sees take it on. Space before and after is left to SpacingFinder. The
/// first style is that of most body text.
std::vector<document::Style> makeStyles(std::vector<BlockFlow>& flows, const AssemblyContext& context);

} // namespace orvane::layout
