#pragma once

#include "layout/assembly/AssembledBlock.h"

#include <vector>

namespace orvane::layout {

/// Word processors draw boxes of paragraphs that follow each other as one where their indents are equal, too. Moves
/// those that stood apart by the least there is. Requires: styles are made.
void setBoxesApart(std::vector<AssembledBlock>& blocks);

} // namespace orvane::layout
