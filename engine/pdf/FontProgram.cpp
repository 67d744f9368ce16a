#include "pdf/FontProgram.h"

#include "pdf/GlyphName.h"

#include <utility>

namespace orvane::pdf {

FontProgram::FontProgram(const std::vector<unsigned char>& bytes) {
    if (FT_Init_FreeType(&m_library) == 0 &&
        FT_New_Memory_Face(m_library, bytes.data(), static_cast<FT_Long>(bytes.size()), 0, &m_face) != 0)
        m_face = nullptr;
}

FontProgram::~FontProgram() {
    if (m_face)
        FT_Done_Face(m_face);
    if (m_library)
        FT_Done_FreeType(m_library);
}

GlyphTexts FontProgram::glyphTexts() const {
    GlyphTexts texts;
    if (!m_face)
        return texts;
    addFromCharacterMap(texts);
    addFromNames(texts);
    return texts;
}

void FontProgram::addFromCharacterMap(GlyphTexts& texts) const {
    if (FT_Select_Charmap(m_face, FT_ENCODING_UNICODE) != 0)
        return;
    FT_UInt glyph = 0;
    for (FT_ULong character = FT_Get_First_Char(m_face, &glyph); glyph != 0;
         character = FT_Get_Next_Char(m_face, character, &glyph))
        // The first of several is the plain one: U+0020 comes before U+00A0.
        if (!isPrivateUse(static_cast<char32_t>(character)) && character >= 0x20)
            texts.try_emplace(glyph, withoutLigature(static_cast<char32_t>(character)));
}

void FontProgram::addFromNames(GlyphTexts& texts) const {
    if (!FT_HAS_GLYPH_NAMES(m_face))
        return;
    for (FT_UInt glyph = 1; glyph < static_cast<FT_UInt>(m_face->num_glyphs); ++glyph) {
        char name[128] = {};
        if (texts.contains(glyph) || FT_Get_Glyph_Name(m_face, glyph, name, sizeof name) != 0)
            continue;
        if (std::u32string text = textOfGlyphName(name); !text.empty())
            texts.emplace(glyph, std::move(text));
    }
}

} // namespace orvane::pdf
