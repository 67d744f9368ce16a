#pragma once

#include "pdf/PageContent.h"

class GfxFont;
class XRef;

namespace orvane::pdf {

/// What a font of the file says about itself: name, style, measures. The embedded program is not opened.
Font readFont(const GfxFont& font, XRef& xref);

} // namespace orvane::pdf
