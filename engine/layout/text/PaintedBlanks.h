#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

#include <vector>

namespace orvane::layout {

constexpr int kMostBlanks = 1000; ///< between two words; more are a slip of whoever made the file

/// Takes the blanks out, leaving a note of them at the cluster that follows.
void takeOutBlanks(TextRow& row, const TextParameters::Words& parameters);

/// Makes the strokes that stretch justified Arabic a part of the letter beside them: fonts and files need no character
/// for them.
void joinStrokes(std::vector<Cluster>& clusters);

} // namespace orvane::layout
