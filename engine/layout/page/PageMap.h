#pragma once

#include "layout/text/PageText.h"

namespace orvane::layout {

/// Moves or turns all that stands on a page. What was painted of it is shown turned. The page's size stays as it is.
/// Requires: the map is a shift, a turn by quarters, or both.
void mapPage(PageText& page, const Matrix& map);

} // namespace orvane::layout
