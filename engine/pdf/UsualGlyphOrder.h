#pragma once

#include <cstdint>

namespace orvane::pdf {

/// The character of a glyph number in the order that most TrueType text fonts keep for their first 258 glyphs (a blank
/// is number 3, an "A" 36); 0 beyond. Source: OpenType specification, 'post' table format 1.
char32_t characterInUsualOrder(std::uint32_t glyph);

} // namespace orvane::pdf
