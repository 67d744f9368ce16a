#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/FigureAnchors.h"
#include "layout/assembly/TextAssembler.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Makes blocks of drafts, each for itself: text and its own format. Styles, line spacing of single lines and the space
/// between blocks come after (StyleMaker, SpacingFinder).
std::vector<AssembledBlock> assembleBlocks(const std::vector<DraftBlock>& drafts, const AssemblyContext& context);

/// The blocks for the document, those of table cells put into their cells. `cell` is told of those in a cell.
std::vector<document::Block> finishBlocks(std::vector<AssembledBlock> blocks, const AssemblyContext& context,
                                          const std::optional<CellOrigin>& cell = {});

} // namespace orvane::layout
