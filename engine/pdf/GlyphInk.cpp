#include "pdf/GlyphInk.h"

#include "pdf/FontProgram.h"
#include "pdf/GlyphIndices.h"

#include <GfxFont.h>

#include FT_OUTLINE_H

namespace orvane::pdf {
namespace {

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
    const GlyphIndices indices(source, program, *bytes);
    for (const auto& [code, glyph] : indices.all(static_cast<std::uint32_t>(program.face()->num_glyphs)))
        if (const Rect box = boxOf(program.face(), glyph); !box.isEmpty())
            boxes.emplace(code, box);
    return boxes;
}

} // namespace orvane::pdf
