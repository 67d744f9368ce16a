#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Finds capitals that were set smaller to stand for small letters: they become small letters with Look::isSmallCaps
/// and the size of the capitals around them. Requires: the words of `line` are known.
void findSmallCaps(TextRow& line, const TextParameters& parameters);

} // namespace orvane::layout
