#pragma once

#include "layout/fonts/FontMapper.h"
#include "layout/fonts/FontParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// What the blanks between letters, beyond the font's own widths, are to be.
enum class Tracking : unsigned char {
    InWidths, ///< the letters are stretched to take their room too
    Kept,     ///< the runs say them
};

/// Chooses for every font that word processors do not have the family whose letters take the room of the font's with
/// the least error over the document's text, and how far to stretch them, so that lines break where they broke. Fonts
/// that go by the name of a family with other widths are stretched only. Families without known widths stay as they
/// are. `fonts`: those of each page, as mapFont() gives them.
void fitFonts(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft, Tracking tracking,
              const FontParameters::FontFit& parameters);

} // namespace orvane::layout
