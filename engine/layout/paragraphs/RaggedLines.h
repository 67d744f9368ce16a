#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <span>

namespace orvane::layout {

/// How much room the lines of a column leave though the next word would have fitted. Word processors leave none;
/// programs that weigh the lines of a whole paragraph against each other do in ragged text. Learnt from the lines whose
/// sentence goes on in lower case. Units: of the font size; 0 where lines are as full as they can be, or are no prose.
double findRaggedRoom(std::span<const Line> lines, std::span<const LineMeasure> measures,
                      const ParagraphParameters::Paragraphs& parameters);

} // namespace orvane::layout
