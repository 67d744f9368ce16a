#pragma once

#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Strings the blocks of all pages together, page by page.
DocumentDraft buildDraft(std::vector<PageLayout> pages);

/// Adds a page to the draft's pages and returns its blocks.
std::vector<DraftBlock> addPage(DocumentDraft& draft, PageLayout page);

/// Lines that stand outside the page's columns, in a drawing for instance. Those that touch are one paragraph.
std::vector<DraftBlock> draftLabels(std::vector<Line> lines, std::size_t page);

} // namespace orvane::layout
