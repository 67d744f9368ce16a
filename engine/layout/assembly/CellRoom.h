#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/AssemblyParameters.h"

namespace orvane::layout {

/// Sets the space above and below the text of a table's cells: what lies between the inner edges of the borders, which
/// take up room of their own, and the text in its line spacing. The smallest that is seen holds for the whole table.
/// Requires: top and bottom of the blocks in the cells are known.
void fitCellRoom(AssembledBlock& table, const AssemblyParameters::TableCells& limits);

/// Sets the space before texts that begin a line or more below the highest of their row, though they stand at the top
/// of their cells: below a blank line. Requires: as above.
void lowerCellTexts(AssembledBlock& table, const AssemblyParameters::TableCells& limits);

} // namespace orvane::layout
