#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Makes the finished lines: logical order, words of spans of one look each, boxes in page space; from top to bottom.
std::vector<Line> finishLines(std::vector<TextRow> rows, const std::vector<TextFrame>& frames,
                              const pdf::PageContent& page, const TextParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
