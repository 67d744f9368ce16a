#pragma once

#include "layout/text/TextStrip.h"

namespace orvane::layout {

/// The clusters of strips that stand side by side on one row, from its start to its end. Blanks that were painted apart
/// come between the words they stand between. A word that begins on the end of another is read after it: letters of
/// two words never come in turn.
/// Requires: strips sorted by their starts.
std::vector<Cluster> inReadingOrder(std::vector<TextStrip> strips, const TextParameters& parameters);

} // namespace orvane::layout
