#pragma once

#include "pdf/PageContent.h"

class GfxFont;
class XRef;

namespace orvane::pdf {

/// What a font of the file says about itself: name, style, measures. The embedded program is not opened.
Font readFont(const GfxFont& font, XRef& xref);

/// The em of a font against the font size of the text state: 1 but for Type 3 fonts, whose glyph space has any unit;
/// there it is told from the widths of its letters.
double emOf(const GfxFont& font);

} // namespace orvane::pdf
