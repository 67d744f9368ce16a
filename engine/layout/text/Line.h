#pragma once

#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Cuts the line before words[wordIndex], counted in logical order, and returns what follows. Both keep baseline, angle
/// and direction; boxes and font sizes are measured anew. Requires: 0 < wordIndex < line.words.size().
Line splitLine(Line& line, std::size_t wordIndex);

/// The parts of a line that wide gaps set apart, each a line of its own, in its order. Requires: at least one word.
std::vector<Line> piecesOf(Line line);

/// Puts `next` behind `line`, with `gap` in between.
/// Requires: both have the same angle and direction of writing.
void joinLines(Line& line, Line next, Gap gap = Gap::Tab);

/// Puts lines among those of the page, by their baselines. Does nothing without lines.
void addLines(PageText& page, std::vector<Line> lines);

} // namespace orvane::layout
