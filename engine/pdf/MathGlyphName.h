#pragma once

#include <string_view>

namespace orvane::pdf {

/// What the names of mathematical fonts mean that the Adobe glyph list does not know: "braceleftBigg",
/// "summationdisplay", "owner"; 0 for others. Source: the encodings of the Computer Modern, AMS and Lucida mathematical
/// fonts.
char32_t characterOfMathGlyphName(std::string_view name);

/// What the glyphs of the fonts of signs mean that some publishers of science set papers with ("AdvMacMthSyN"): "C0"
/// and the like count as TeX's font of symbols does, and four signs go by the name of the letter that stands at their
/// place in others ("eth" is a parenthesis); 0 for other names. Source: the OMS encoding of The TeXbook, appendix F,
/// and papers so set.
char32_t characterOfNumberedSign(std::string_view name);

/// What a private character of Adobe's older glyph lists is in Unicode today (U+F8EB is the upper part of a large
/// parenthesis, U+239B); 0 for others. Source: Adobe Glyph List, corporate use subarea.
char32_t characterOfAdobePrivateUse(char32_t character);

} // namespace orvane::pdf
