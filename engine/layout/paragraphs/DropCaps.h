#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <span>

namespace orvane::layout {

/// Finds out for each drop cap whether the lines beside it are shorter or it stands in the margin, and lets what stands
/// beside it count as if it were not there: shorter lines are not indented, and a cap in the margin does not start its
/// line. Requires: the measures are those of the lines.
void settleDropCaps(std::span<const Line> lines, std::span<LineMeasure> measures,
                    const ParagraphParameters::Paragraphs& parameters);

/// Where the lines beside the drop cap of the first of them start. Requires: it has one, with text behind it.
double startBesideDropCap(std::span<const Line> lines);

/// Makes the drop caps of a page lines of their own, for a layout that keeps every line where it stood.
void partDropCaps(PageText& page);

} // namespace orvane::layout
