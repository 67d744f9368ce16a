#pragma once

#include "layout/text/TextStrip.h"

namespace orvane::layout {

/// Moves a few letters that stand higher or lower within a word, as large as those on both sides, onto the baseline of
/// these; those far off it are superscripts or subscripts. Requires: `strips` are sorted by frame and baseline; they
/// are no longer afterwards.
void joinShifted(std::vector<TextStrip>& strips, const TextParameters& parameters);

/// Finds strips that are superscripts or subscripts of a strip beside them and moves them onto its baseline: their
/// clusters take Look::verticalPosition, the host's size as Look::size and the host's baseline. Drop caps are found on
/// the way: their strip takes the baseline of its first line. Requires: `strips` are sorted by frame and baseline; they
/// are no longer afterwards.
void joinScripts(std::vector<TextStrip>& strips, const TextParameters& parameters);

} // namespace orvane::layout
