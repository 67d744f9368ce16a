#pragma once

#include "pdf/PageContent.h"

namespace orvane::pdf {

/// Text that is painted twice with a tiny offset looks bold, or like letters with a shadow, and is one text to its
/// reader: one of each pair of glyphs is dropped. Of two in one colour the first is kept and is a fake bold; of two
/// colours the upper one is kept; an invisible copy gives way to what is seen.
void dropDoublePaintedGlyphs(PageContent& page);

} // namespace orvane::pdf
