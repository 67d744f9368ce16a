#pragma once

#include "layout/structure/DocumentDraft.h"
#include "layout/structure/StructureParameters.h"

#include <cstddef>

namespace orvane::layout {

/// Whether text stands on a figure, by their boxes: one beside the other would leave it where it is.
bool standsOn(const Rect& text, const Rect& figure, const StructureParameters::Floats& parameters);

/// Marks the floating figures among the blocks from `first` to before `last` that text makes no way for: it stands on
/// them, or so near to the side of its column that a word processor would move it below, or it is no more than the
/// labels of a slide or a diagram, where one thing would push the other off the page. Those that text stands on go
/// behind it, unless they were painted over it.
void findOverlaidFigures(DocumentDraft& draft, std::size_t first, std::size_t last,
                         const StructureParameters::Floats& parameters);

} // namespace orvane::layout
