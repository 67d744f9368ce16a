#pragma once

#include <string>
#include <string_view>

namespace orvane::pdf {

/// What a glyph's name says: "A", "ffi", "uni0041", "u1F600", "f_f_i", "a.sc"; empty for names that number glyphs
/// ("g32", "cid7"). Source: Adobe Glyph List Specification, 2. Requires: preparePoppler() has been called.
std::u32string textOfGlyphName(std::string_view name);

/// The letters of a Latin ligature ("ffi" for U+FB03); the character itself otherwise.
std::u32string withoutLigature(char32_t character);

/// True of characters that mean what their font says. Source: The Unicode Standard, 23.5.
constexpr bool isPrivateUse(char32_t character) {
    return (character >= 0xE000 && character < 0xF900) || character >= 0xF0000;
}

} // namespace orvane::pdf
