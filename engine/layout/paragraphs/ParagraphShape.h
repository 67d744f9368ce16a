#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <span>

namespace orvane::layout {

/// Sets alignment, indents, leading and box of a paragraph whose lines are known.
/// Requires: at least one line, `measures` one for each.
void shapeParagraph(ParagraphDraft& paragraph, std::span<const LineMeasure> measures, const ParagraphContext& context,
                    const ParagraphParameters::Paragraphs& parameters);

} // namespace orvane::layout
