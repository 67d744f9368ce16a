#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

#include <vector>

namespace orvane::layout {

/// Some programs that recognise scans set every word where it begins, but in a font too narrow for the letters on the
/// paper, so that all words seem far apart. Where the words of a page have much more room than they fill, they are
/// stretched into it. Requires: the page is a scan; its blanks are still among the clusters.
void fillRecognisedWidths(std::vector<TextRow>& rows, const TextParameters::Recognition& parameters);

} // namespace orvane::layout
