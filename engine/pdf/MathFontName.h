#pragma once

#include <string_view>

namespace orvane::pdf {

/// True of the PostScript names of fonts that were made for formulas: CMMI10, MSBM7, PazoMath-Italic, CambriaMath.
/// Fonts of signs that texts use as well, such as Symbol, are none.
bool isMathFontName(std::string_view name);

} // namespace orvane::pdf
