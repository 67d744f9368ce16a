#pragma once

#include "layout/page/PageLayout.h"
#include "layout/paragraphs/LineMeasures.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// Joins the lines of one column into the paragraphs that their author typed: a line goes on with the one above when
/// its first word had no room there, and when nothing else (a label, space, look, indent) tells a new start. Requires:
/// `lines` from top to bottom.
std::vector<ParagraphDraft> buildParagraphs(std::span<const Line> lines, ColumnSpan column,
                                            const ParagraphContext& context, const ParagraphParameters& parameters);

} // namespace orvane::layout
