#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// Sets `table` that much lower with an empty paragraph above it, as tables have no space of their own. A break before
/// the page goes to that paragraph. Units: points. Requires: `table` is a table.
void spaceTable(AssembledBlock& table, double points, const AssemblyContext& context);

/// Spaces the tables that follow another one; page space tells by how much. Requires: the blocks are measured.
void spaceTablesApart(std::vector<AssembledBlock>& blocks, const AssemblyContext& context);

} // namespace orvane::layout
