#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Lets paragraphs end where they did beside figures that no text makes way for: their lines were broken before these,
/// and would run over them in the whole width of the column. Requires: the drafts of the blocks.
void endBesideFigures(std::vector<AssembledBlock>& blocks, const AssemblyContext& context);

} // namespace orvane::layout
