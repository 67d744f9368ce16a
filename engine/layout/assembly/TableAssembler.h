#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// A table with its grid, borders and shading; what stands in its cells is in AssembledBlock::cells.
AssembledBlock assembleTable(const DraftTable& draft, const DraftBlock& place, const AssemblyContext& context);

/// Puts the blocks of AssembledBlock::cells into the table's cells.
/// Requires: `table` was made by assembleTable().
void fillCells(AssembledBlock& table, const AssemblyContext& context);

} // namespace orvane::layout
