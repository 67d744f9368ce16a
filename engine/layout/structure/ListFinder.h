#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes lists of paragraphs whose labels go on with each other: bullets of one sign, numbers that count, letters,
/// numerals, each set at one edge; what is set further in and starts anew is a level below. The labels are then the
/// numbering's to write, those of numbered headings too where the file shows that nobody typed them. What looks like a
/// label but belongs to no list stays text. Requires: headings are known.
void findLists(DocumentDraft& draft, const LayoutParameters& parameters);

} // namespace orvane::layout
