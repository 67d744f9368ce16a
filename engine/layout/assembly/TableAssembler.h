#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// A table with its grid, borders and shading; what stands in its cells is in AssembledBlock::cells. Columns are
/// counted from the left until fillCells().
AssembledBlock assembleTable(const DraftTable& draft, const DraftBlock& place, const AssemblyContext& context);

/// The paragraph that is read first; null for other blocks than tables and where something else stands there.
/// Requires: the cells are not filled yet.
document::Paragraph* firstParagraphOf(AssembledBlock& block);

/// Puts the blocks of AssembledBlock::cells into the table's cells, and these into the order in which they are read.
/// Requires: `assembled` was made by assembleTable().
void fillCells(AssembledBlock& assembled, const AssemblyContext& context);

} // namespace orvane::layout
