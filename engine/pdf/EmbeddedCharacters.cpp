#include "pdf/EmbeddedCharacters.h"

#include "pdf/GlyphName.h"

#include <algorithm>
#include <memory>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <GfxFont.h>
#include <fofi/FoFiTrueType.h>
#include <goo/gmem.h>

namespace orvane::pdf {
namespace {

using GlyphTexts = std::unordered_map<std::uint32_t, std::u32string>;

bool isTrueType(GfxFontType type) {
    return type == fontTrueType || type == fontTrueTypeOT;
}

bool isPrivate(char32_t c) {
    return (c >= 0xE000 && c < 0xF900) || c >= 0xF0000;
}

/// A font program, opened.
class FontProgram {
public:
    explicit FontProgram(const std::vector<unsigned char>& bytes) {
        if (FT_Init_FreeType(&m_library) == 0 &&
            FT_New_Memory_Face(m_library, bytes.data(), static_cast<FT_Long>(bytes.size()), 0, &m_face) != 0)
            m_face = nullptr;
    }
    ~FontProgram() {
        if (m_face)
            FT_Done_Face(m_face);
        if (m_library)
            FT_Done_FreeType(m_library);
    }
    FontProgram(const FontProgram&) = delete;
    FontProgram& operator=(const FontProgram&) = delete;

    GlyphTexts glyphTexts() const {
        GlyphTexts texts;
        if (!m_face)
            return texts;
        addFromCharacterMap(texts);
        addFromNames(texts);
        return texts;
    }

private:
    void addFromCharacterMap(GlyphTexts& texts) const {
        if (FT_Select_Charmap(m_face, FT_ENCODING_UNICODE) != 0)
            return;
        FT_UInt glyph = 0;
        for (FT_ULong character = FT_Get_First_Char(m_face, &glyph); glyph != 0;
             character = FT_Get_Next_Char(m_face, character, &glyph))
            // The first of several is the plain one: U+0020 comes before U+00A0.
            if (!isPrivate(static_cast<char32_t>(character)) && character >= 0x20)
                texts.try_emplace(glyph, withoutLigature(static_cast<char32_t>(character)));
    }
    void addFromNames(GlyphTexts& texts) const {
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

    FT_Library m_library = nullptr;
    FT_Face m_face = nullptr;
};

/// Texts of the codes of a simple TrueType font, whose codes find their glyphs through the program's maps.
GlyphTexts byTrueTypeCode(Gfx8BitFont& font, const std::vector<unsigned char>& bytes, const GlyphTexts& texts) {
    GlyphTexts byCode;
    const std::unique_ptr<FoFiTrueType> program = FoFiTrueType::make(bytes.data(), static_cast<int>(bytes.size()));
    int* const map = program ? font.getCodeToGIDMap(program.get()) : nullptr;
    for (std::uint32_t code = 0; map && code < 256; ++code)
        if (const auto text = texts.find(static_cast<std::uint32_t>(map[code])); map[code] > 0 && text != texts.end())
            byCode.emplace(code, text->second);
    gfree(map);
    return byCode;
}

/// Texts of the codes of a composite font with the identity encoding. Other encodings name their characters by
/// themselves, through their character collection.
GlyphTexts byCid(const GfxCIDFont& font, GlyphTexts texts) {
    if (!font.getEncodingName().starts_with("Identity"))
        return {};
    const int* map = font.getCIDToGID();
    if (!map)
        return texts;
    GlyphTexts byCode;
    for (std::uint32_t cid = 0; cid < font.getCIDToGIDLen(); ++cid)
        if (const auto text = texts.find(static_cast<std::uint32_t>(map[cid])); map[cid] > 0 && text != texts.end())
            byCode.emplace(cid, text->second);
    return byCode;
}

} // namespace

EmbeddedCharacters::EmbeddedCharacters(GfxFont& font, XRef& xref) {
    // Simple fonts of other kinds than TrueType find their glyphs by name, and names have been read before.
    if (!font.isCIDFont() && !isTrueType(font.getType()))
        return;
    const auto bytes = font.readEmbFontFile(&xref);
    if (!bytes || bytes->empty())
        return;
    GlyphTexts texts = FontProgram(*bytes).glyphTexts();
    if (font.isCIDFont())
        m_texts = byCid(static_cast<const GfxCIDFont&>(font), std::move(texts));
    else
        m_texts = byTrueTypeCode(static_cast<Gfx8BitFont&>(font), *bytes, texts);
    for (const auto& entry : m_texts)
        m_codes.push_back(entry.first);
    std::sort(m_codes.begin(), m_codes.end());
}

std::u32string EmbeddedCharacters::textOf(std::uint32_t code) const {
    const auto text = m_texts.find(code);
    return text == m_texts.end() ? std::u32string() : text->second;
}

} // namespace orvane::pdf
