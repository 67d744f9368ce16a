#pragma once

#include <cstdint>

namespace orvane::pdf {

/// The character of a glyph number in the order that most TrueType text fonts keep for their first 256 glyphs (a blank
/// is number 3, an "A" 36); 0 beyond. Source: OpenType specification, 'post' table format 1, without the blank that
/// does not break and the apple, and with the euro for the sign of any currency, as fonts for Windows are numbered.
char32_t characterInUsualOrder(std::uint32_t glyph);

} // namespace orvane::pdf
