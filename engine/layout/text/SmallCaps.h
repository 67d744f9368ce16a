#pragma once

#include "layout/LayoutParameters.h"
#include "layout/text/TextDraft.h"

namespace orvane::layout {

/// Finds capitals that were set smaller to stand for small letters: they become small letters with Look::isSmallCaps
/// and the size of the capitals around them. Requires: the words of `line` are known.
void findSmallCaps(TextRow& line, const LayoutParameters& parameters);

} // namespace orvane::layout
