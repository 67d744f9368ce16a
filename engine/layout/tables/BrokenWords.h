#pragma once

#include "layout/page/PageLayout.h"
#include "layout/text/PageText.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace orvane::layout {

/// Puts words together that were too long for a narrow cell and so were broken anywhere, without a hyphen: a line of
/// one word that fills the room, and below it letters that are no word. `vocabulary` are words that stand whole
/// somewhere in the document, lower case.
void mendBrokenWords(std::vector<Line>& lines, ColumnSpan room, const std::unordered_set<std::string>& vocabulary);

} // namespace orvane::layout
