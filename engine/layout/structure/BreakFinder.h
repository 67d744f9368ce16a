#pragma once

#include "layout/structure/DocumentDraft.h"
#include "layout/structure/PageMaking.h"
#include "layout/structure/PageSetup.h"
#include "layout/structure/StructureParameters.h"

#include <vector>

namespace orvane::layout {

/// Blocks `first` to `last` (one behind the last), set within `area`.
struct BlockRange {
    std::size_t first = 0;
    std::size_t last = 0;
    const TextArea& area;
    PageMaking making = PageMaking::Author;
};

/// Marks blocks that start a page or a column though there was room for them on the page or in the column before, or
/// with space above them, which pages that follow by themselves do not have.
void markBreaks(DocumentDraft& draft, const std::vector<PageFill>& fills, const BlockRange& range,
                const StructureParameters::PageSetup& parameters);

} // namespace orvane::layout
