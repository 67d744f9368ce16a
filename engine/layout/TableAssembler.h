#pragma once

#include "layout/TextAssembler.h"

namespace orvane::layout {

/// A table with its grid, borders, shading, and what stands in its cells.
document::Table assembleTable(const DraftTable& draft, const DraftBlock& place, const AssemblyContext& context);

} // namespace orvane::layout
