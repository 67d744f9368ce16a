#pragma once

#include "pdf/FontProgram.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

class Gfx8BitFont;
class GfxFont;

namespace orvane::pdf {

/// Glyph indices by code, of a simple font with a TrueType program, whose codes find their glyphs through the program's
/// maps.
std::unordered_map<std::uint32_t, std::uint32_t> trueTypeGlyphs(Gfx8BitFont& font,
                                                                const std::vector<unsigned char>& bytes);

/// Finds the glyphs of an embedded program by the codes of the PDF's font.
class GlyphIndices {
public:
    /// `program` is that of `bytes`, and both outlive this.
    GlyphIndices(GfxFont& font, const FontProgram& program, const std::vector<unsigned char>& bytes);

    /// All glyphs of the program that codes lead to, by code. `glyphCount`: of the program.
    std::unordered_map<std::uint32_t, std::uint32_t> all(std::uint32_t glyphCount) const;
    /// 0 where there is none. `code`: Glyph::charCode.
    std::uint32_t glyphOf(std::uint32_t code) const;

private:
    std::unordered_map<std::uint32_t, std::uint32_t> m_glyphs;
    bool m_isIdentity = false; ///< codes are glyph indices
};

} // namespace orvane::pdf
