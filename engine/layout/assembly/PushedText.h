#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Makes a header so tall that the text below it starts at `top`: with space behind its last paragraph, or with an
/// empty one. `distance`: from the page's top to the header. Units: points, page space. Requires: the header's blocks
/// are measured.
void pushText(std::vector<AssembledBlock>& header, double distance, double top, const AssemblyContext& context);

} // namespace orvane::layout
