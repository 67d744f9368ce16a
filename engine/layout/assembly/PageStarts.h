#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Sets what starts a page by hand, or with its section, as far below the margin as on its page; or below a header that
/// reaches beyond the margin and pushes the text down.
void setPageStarts(std::vector<AssembledBlock>& body, const AssemblyContext& context);

/// Sets what starts a column by hand as far below the first column's start as on its page.
void setColumnStarts(std::vector<AssembledBlock>& body, const AssemblyParameters::Spacing& limits);

} // namespace orvane::layout
