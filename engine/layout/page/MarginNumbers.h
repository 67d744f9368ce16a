#pragma once

#include "document/Document.h"
#include "layout/page/PageParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Takes the numbers out of the pages that stand in the left margin beside the lines of their text, with those in the
/// right one that count on, and tells how they count. Nothing is taken where they are few, do not count evenly, or
/// number a list.
std::optional<document::LineNumbers> takeLineNumbers(std::vector<PageText>& pages,
                                                     const PageParameters::LineNumbering& limits);

} // namespace orvane::layout
