#pragma once

#include "layout/structure/DocumentDraft.h"
#include "layout/structure/StructureParameters.h"

namespace orvane::layout {

/// Finds headings that are no larger than the text and no bolder, as the papers of engineers have them: "I." to "VI."
/// in capitals, or small ones, "A." to "D." slanted within these, and headings without a number that look like the
/// former. Their numbers must count on without a gap.
void findNumeralHeadings(DocumentDraft& draft, const StructureParameters::Headings& parameters);

} // namespace orvane::layout
