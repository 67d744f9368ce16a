#pragma once

#include "layout/tables/BorderLines.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The boxes of a page that may be fields to fill in: places closed by rules on all four sides that belong to no drawn
/// table and hold no other box, by their top.
std::vector<Rect> findBoxedFields(const PageText& page, const std::vector<BorderLine>& lines,
                                  const TableParameters::Tables& parameters);

} // namespace orvane::layout
