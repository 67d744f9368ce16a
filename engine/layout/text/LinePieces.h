#pragma once

#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The parts of a line that wide gaps set apart, each a line of its own, in its order. Requires: at least one word.
std::vector<Line> piecesOf(const Line& line);

} // namespace orvane::layout
