#pragma once

#include "pdf/PageContent.h"

namespace orvane::pdf {

/// Joins accents that are painted as glyphs of their own with the letters they stand over ("´" and "e" is "é"), as
/// TeX's older fonts and some typewriters of PDFs write them; the accent's glyph is dropped.
void composeAccents(PageContent& page);

} // namespace orvane::pdf
