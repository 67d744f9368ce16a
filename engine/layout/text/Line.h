#pragma once

#include "layout/text/PageText.h"

namespace orvane::layout {

/// Cuts the line before words[wordIndex], counted in logical order, and returns what follows. Both keep baseline, angle
/// and direction; boxes and font sizes are measured anew. Requires: 0 < wordIndex < line.words.size().
Line splitLine(Line& line, std::size_t wordIndex);

/// Puts `next` behind `line`, with `gap` in between.
/// Requires: both have the same angle and direction of writing.
void joinLines(Line& line, Line next, Gap gap = Gap::Tab);

} // namespace orvane::layout
