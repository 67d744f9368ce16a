#include "pdf/GlyphInk.h"

#include "pdf/FontProgram.h"

#include <GfxFont.h>
#include <fofi/FoFiTrueType.h>
#include <fofi/FoFiType1C.h>
#include <goo/gmem.h>

#include FT_OUTLINE_H

namespace orvane::pdf {
namespace {

using GlyphOfCode = std::map<std::uint32_t, FT_UInt>;
using Bytes = std::vector<unsigned char>;

constexpr std::uint32_t kSimpleCodes = 256;

/// Simple fonts other than TrueType find their glyphs by name.
GlyphOfCode glyphsByName(Gfx8BitFont& font, FT_Face face) {
    GlyphOfCode glyphs;
    for (std::uint32_t code = 0; code < kSimpleCodes; ++code)
        if (const char* name = font.getCharName(static_cast<int>(code)))
            if (const FT_UInt glyph = FT_Get_Name_Index(face, name); glyph != 0)
                glyphs.emplace(code, glyph);
    return glyphs;
}

GlyphOfCode glyphsOfTrueType(Gfx8BitFont& font, const Bytes& bytes) {
    GlyphOfCode glyphs;
    const std::unique_ptr<FoFiTrueType> program = FoFiTrueType::make(bytes.data(), static_cast<int>(bytes.size()));
    int* const map = program ? font.getCodeToGIDMap(program.get()) : nullptr;
    for (std::uint32_t code = 0; map && code < kSimpleCodes; ++code)
        if (map[code] > 0)
            glyphs.emplace(code, static_cast<FT_UInt>(map[code]));
    gfree(map);
    return glyphs;
}

/// The glyphs of a composite font by character identifier, which is the code of its usual encodings.
GlyphOfCode glyphsOfCids(const GfxCIDFont& font, const Bytes& bytes, FT_Face face) {
    GlyphOfCode glyphs;
    if (!font.getEncodingName().starts_with("Identity"))
        return glyphs;
    const auto take = [&glyphs](const int* map, int length) {
        for (int cid = 0; map && cid < length; ++cid)
            if (map[cid] > 0)
                glyphs.emplace(static_cast<std::uint32_t>(cid), static_cast<FT_UInt>(map[cid]));
    };
    if (const int* map = font.getCIDToGID()) {
        take(map, static_cast<int>(font.getCIDToGIDLen()));
        return glyphs;
    }
    if (const std::unique_ptr<FoFiType1C> program{FoFiType1C::make(bytes.data(), static_cast<int>(bytes.size()))}) {
        int length = 0;
        int* const map = program->getCIDToGIDMap(&length);
        take(map, length);
        gfree(map);
    }
    if (glyphs.empty())
        for (FT_UInt glyph = 1; glyph < static_cast<FT_UInt>(face->num_glyphs); ++glyph)
            glyphs.emplace(glyph, glyph);
    return glyphs;
}

GlyphOfCode glyphsOf(GfxFont& font, const Bytes& bytes, FT_Face face) {
    if (font.isCIDFont())
        return glyphsOfCids(static_cast<const GfxCIDFont&>(font), bytes, face);
    auto& simple = static_cast<Gfx8BitFont&>(font);
    const bool isTrueType = font.getType() == fontTrueType || font.getType() == fontTrueTypeOT;
    return isTrueType ? glyphsOfTrueType(simple, bytes) : glyphsByName(simple, face);
}

Rect boxOf(FT_Face face, FT_UInt glyph) {
    if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_IGNORE_TRANSFORM) != 0 ||
        face->glyph->format != FT_GLYPH_FORMAT_OUTLINE || face->units_per_EM == 0)
        return {};
    FT_BBox box{};
    FT_Outline_Get_CBox(&face->glyph->outline, &box);
    const double unit = 1.0 / face->units_per_EM;
    return {static_cast<double>(box.xMin) * unit, static_cast<double>(box.yMin) * unit,
            static_cast<double>(box.xMax) * unit, static_cast<double>(box.yMax) * unit};
}

} // namespace

void GlyphInk::apply(PageContent& page, const std::vector<std::shared_ptr<GfxFont>>& sources) {
    std::vector<Boxes> boxes(page.fonts.size());
    for (std::size_t i = 0; i < sources.size(); ++i)
        if (page.fonts[i].isMathematical && page.fonts[i].isEmbedded && !page.fonts[i].isType3)
            boxes[i] = boxesOf(*sources[i], page.fonts[i].objectNumber);
    for (Glyph& glyph : page.glyphs) {
        const auto box = boxes[glyph.font].find(glyph.charCode);
        if (box == boxes[glyph.font].end() || glyph.angle != 0)
            continue;
        const double across = glyph.fontSize * glyph.horizontalScale;
        glyph.ink = {glyph.origin.x + box->second.left * across, glyph.origin.y - box->second.bottom * glyph.fontSize,
                     glyph.origin.x + box->second.right * across, glyph.origin.y - box->second.top * glyph.fontSize};
    }
}

const GlyphInk::Boxes& GlyphInk::boxesOf(GfxFont& source, int objectNumber) {
    const auto seen = m_seen.find(objectNumber);
    if (objectNumber > 0 && seen != m_seen.end())
        return seen->second;
    return m_seen[objectNumber] = measure(source);
}

GlyphInk::Boxes GlyphInk::measure(GfxFont& source) const {
    Boxes boxes;
    const auto bytes = source.readEmbFontFile(&m_xref);
    if (!bytes || bytes->empty())
        return boxes;
    const FontProgram program(*bytes);
    if (!program.face())
        return boxes;
    for (const auto& [code, glyph] : glyphsOf(source, *bytes, program.face()))
        if (const Rect box = boxOf(program.face(), glyph); !box.isEmpty())
            boxes.emplace(code, box);
    return boxes;
}

} // namespace orvane::pdf
