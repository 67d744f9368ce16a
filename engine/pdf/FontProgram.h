#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace orvane::pdf {

/// What glyphs say, by glyph index.
using GlyphTexts = std::unordered_map<std::uint32_t, std::u32string>;

/// A font program, opened. One that cannot be opened has no glyphs.
class FontProgram {
public:
    /// `bytes` have to outlive the program.
    explicit FontProgram(const std::vector<unsigned char>& bytes);
    ~FontProgram();
    FontProgram(const FontProgram&) = delete;
    FontProgram& operator=(const FontProgram&) = delete;

    /// By the character map, then by the glyphs' names.
    GlyphTexts glyphTexts() const;
    /// Null for a program that cannot be opened.
    FT_Face face() const { return m_face; }

private:
    void addFromCharacterMap(GlyphTexts& texts) const;
    void addFromNames(GlyphTexts& texts) const;

    FT_Library m_library = nullptr;
    FT_Face m_face = nullptr;
};

} // namespace orvane::pdf
