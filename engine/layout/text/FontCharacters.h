#pragma once

#include "pdf/FontRequest.h"
#include "pdf/PageContent.h"

#include <vector>

namespace orvane::layout {

/// The characters that each font of the page shows by a glyph of their own, by index of font. Of several glyphs for one
/// character the first painted counts.
std::vector<std::vector<pdf::FontCharacter>> charactersOf(const pdf::PageContent& page);

} // namespace orvane::layout
