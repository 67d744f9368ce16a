#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Lets clusters of marks with an actual text say that text: the first cluster of the mark takes it, the others say
/// nothing and keep their place only as ink. A mark whose glyphs say the same already is left alone, so that its text
/// stays where it stands. Source: ISO 32000-1, 14.9.4.
void applyActualTexts(std::vector<Cluster>& clusters, const std::vector<pdf::Mark>& marks,
                      const TextParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
