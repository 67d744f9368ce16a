#include "pdf/EmbeddedCharacters.h"

#include "pdf/FontProgram.h"
#include "pdf/GlyphIndices.h"
#include "pdf/GlyphOutline.h"

#include <algorithm>

#include <GfxFont.h>

namespace orvane::pdf {
namespace {

bool isTrueType(GfxFontType type) {
    return type == fontTrueType || type == fontTrueTypeOT;
}

GlyphTexts byTrueTypeCode(Gfx8BitFont& font, const std::vector<unsigned char>& bytes, const GlyphTexts& texts) {
    GlyphTexts byCode;
    for (const auto& [code, glyph] : trueTypeGlyphs(font, bytes))
        if (const auto text = texts.find(glyph); text != texts.end())
            byCode.emplace(code, text->second);
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

/// Glyphs that neither map nor name tells of are what is seen of them.
void addBullets(GlyphTexts& texts, const FontProgram& program) {
    if (!program.face())
        return;
    for (FT_UInt glyph = 1; glyph < static_cast<FT_UInt>(program.face()->num_glyphs); ++glyph)
        if (!texts.contains(glyph) && isBullet(outlineOf(program.face(), glyph)))
            texts.emplace(glyph, U"\u2022");
}

} // namespace

EmbeddedCharacters::EmbeddedCharacters(GfxFont& font, XRef& xref) {
    // Simple fonts of other kinds than TrueType find their glyphs by name, and names have been read before.
    if (!font.isCIDFont() && !isTrueType(font.getType()))
        return;
    const auto bytes = font.readEmbFontFile(&xref);
    if (!bytes || bytes->empty())
        return;
    const FontProgram program(*bytes);
    GlyphTexts texts = program.glyphTexts();
    addBullets(texts, program);
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
