#pragma once

#include "layout/page/PageParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Looks for margins as books have them, the left one of every second page the right one of the others, and moves what
/// stands on every second page to where it would stand on the others. Whether the margins are mirrored.
bool alignFacingPages(std::vector<PageText>& pages, const PageParameters::FacingPages& limits);

} // namespace orvane::layout
