#pragma once

#include "layout/assembly/StyleMaker.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// A single line shows no line spacing, so it was given that of its style. Where what follows stands too near for that,
/// it has single spacing; so has a style most of whose lines are too near to what follows them. Lines too near for that
/// keep their distance, and one alone in a cell that is lower yet has the cell's height.
/// Requires: the blocks are measured; they are measured anew.
void tightenLines(std::vector<BlockFlow>& flows, std::vector<document::Style>& styles, const AssemblyContext& context);

} // namespace orvane::layout
