#pragma once

#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Strings the blocks of all pages together, page by page.
DocumentDraft buildDraft(std::vector<PageLayout> pages);

/// Adds a page to the draft's pages and returns its blocks.
std::vector<DraftBlock> addPage(DocumentDraft& draft, PageLayout page);

} // namespace orvane::layout
