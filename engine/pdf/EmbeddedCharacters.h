#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

class GfxFont;
class XRef;

namespace orvane::pdf {

/// What the font program inside the file knows about the characters of its glyphs, by its character map, its glyphs'
/// names and the shape of bullets. A program that cannot be opened knows nothing.
class EmbeddedCharacters {
public:
    EmbeddedCharacters(GfxFont& font, XRef& xref);

    /// What the program says of the glyph that `code` of the PDF's font shows; empty when it is silent.
    std::u32string textOf(std::uint32_t code) const;
    /// The codes that textOf() knows something about, ascending.
    const std::vector<std::uint32_t>& codes() const { return m_codes; }

private:
    std::unordered_map<std::uint32_t, std::u32string> m_texts; ///< by code
    std::vector<std::uint32_t> m_codes;
};

} // namespace orvane::pdf
