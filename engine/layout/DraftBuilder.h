#pragma once

#include "layout/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Strings the blocks of all pages together, page by page.
DocumentDraft buildDraft(std::vector<PageLayout> pages);

} // namespace orvane::layout
