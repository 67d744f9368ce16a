#pragma once

#include "layout/fonts/FontMapper.h"
#include "layout/fonts/FontParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Takes the fonts that only helped out for those that were chosen: a word processor whose font has no Arabic or Hebrew
/// letters takes them from another font, but digits and punctuation between them from the chosen one. `fonts`: by page.
void resolveFallbacks(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft,
                      const FontParameters::Fallbacks& parameters);

} // namespace orvane::layout
