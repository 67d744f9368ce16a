#include "pdf/GlyphIndices.h"

#include <memory>

#include <GfxFont.h>
#include <fofi/FoFiTrueType.h>
#include <fofi/FoFiType1C.h>
#include <goo/gmem.h>

namespace orvane::pdf {
namespace {

using Indices = std::unordered_map<std::uint32_t, std::uint32_t>;

constexpr std::uint32_t kSimpleCodes = 256;

bool isTrueType(GfxFontType type) {
    return type == fontTrueType || type == fontTrueTypeOT;
}

Indices indicesOf(const int* map, std::uint32_t count) {
    Indices indices;
    for (std::uint32_t code = 0; map && code < count; ++code)
        if (map[code] > 0)
            indices.emplace(code, static_cast<std::uint32_t>(map[code]));
    return indices;
}

/// Other simple fonts find their glyphs by name.
Indices glyphsByName(const Gfx8BitFont& font, const FontProgram& program) {
    Indices indices;
    for (std::uint32_t code = 0; program.face() && code < kSimpleCodes; ++code)
        if (const char* name = font.getCharName(static_cast<int>(code)))
            if (const FT_UInt glyph = FT_Get_Name_Index(program.face(), const_cast<char*>(name)); glyph > 0)
                indices.emplace(code, glyph);
    return indices;
}

/// The glyphs of a program whose glyphs are named by numbers of their character collection; empty for others.
Indices glyphsOfCollection(GfxFontType type, const std::vector<unsigned char>& bytes) {
    int count = 0;
    int* map = nullptr;
    if (type == fontCIDType0C) {
        const std::unique_ptr<FoFiType1C> program(FoFiType1C::make(bytes.data(), static_cast<int>(bytes.size())));
        map = program ? program->getCIDToGIDMap(&count) : nullptr;
    } else if (type == fontCIDType0COT) {
        const auto program = FoFiTrueType::make(bytes.data(), static_cast<int>(bytes.size()));
        map = program ? program->getCIDToGIDMap(&count) : nullptr;
    }
    Indices indices = indicesOf(map, static_cast<std::uint32_t>(count));
    gfree(map);
    return indices;
}

} // namespace

std::unordered_map<std::uint32_t, std::uint32_t> trueTypeGlyphs(Gfx8BitFont& font,
                                                                const std::vector<unsigned char>& bytes) {
    const std::unique_ptr<FoFiTrueType> program = FoFiTrueType::make(bytes.data(), static_cast<int>(bytes.size()));
    int* const map = program ? font.getCodeToGIDMap(program.get()) : nullptr;
    Indices indices = indicesOf(map, kSimpleCodes);
    gfree(map);
    return indices;
}

GlyphIndices::GlyphIndices(GfxFont& font, const FontProgram& program, const std::vector<unsigned char>& bytes) {
    if (!font.isCIDFont()) {
        auto& simple = static_cast<Gfx8BitFont&>(font);
        m_glyphs = isTrueType(font.getType()) ? trueTypeGlyphs(simple, bytes) : glyphsByName(simple, program);
        return;
    }
    const auto& composite = static_cast<const GfxCIDFont&>(font);
    m_glyphs = composite.getCIDToGID() ? indicesOf(composite.getCIDToGID(), composite.getCIDToGIDLen())
                                       : glyphsOfCollection(font.getType(), bytes);
    m_isIdentity = !composite.getCIDToGID() && m_glyphs.empty();
}

std::unordered_map<std::uint32_t, std::uint32_t> GlyphIndices::all(std::uint32_t glyphCount) const {
    if (!m_isIdentity)
        return m_glyphs;
    Indices indices;
    for (std::uint32_t glyph = 1; glyph < glyphCount; ++glyph)
        indices.emplace(glyph, glyph);
    return indices;
}

std::uint32_t GlyphIndices::glyphOf(std::uint32_t code) const {
    if (m_isIdentity)
        return code;
    const auto found = m_glyphs.find(code);
    return found == m_glyphs.end() ? 0 : found->second;
}

} // namespace orvane::pdf
