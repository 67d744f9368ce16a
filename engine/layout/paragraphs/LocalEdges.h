#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <span>

namespace orvane::layout {

/// Finds lines that were set to an edge of their own within the column (indented at their end, or in a text box) and
/// measures them against it: blanks spread to one edge tell it, or sentences that go on from line to line though the
/// column has room.
void applyLocalEdges(std::span<const Line> lines, std::span<LineMeasure> measures, const ParagraphContext& context,
                     const ParagraphParameters::Paragraphs& parameters);

} // namespace orvane::layout
