#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Down to where the columns of a page's band could reach: to the end of the text area, or the page's notes, when
/// nothing stands below the band. Units: points.
double floorOf(const DocumentDraft& draft, std::size_t page, int band, const Rect& area);

} // namespace orvane::layout
