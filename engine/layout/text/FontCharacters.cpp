#include "layout/text/FontCharacters.h"

#include "layout/text/Characters.h"

#include <string>
#include <unordered_set>

namespace orvane::layout {

std::vector<std::vector<pdf::FontCharacter>> charactersOf(const pdf::PageContent& page) {
    std::vector<std::vector<pdf::FontCharacter>> characters(page.fonts.size());
    std::vector<std::unordered_set<char32_t>> seen(page.fonts.size());
    for (const pdf::Glyph& glyph : page.glyphs) {
        if (glyph.font >= page.fonts.size() || glyph.isComposed || glyph.fontSize <= 0 || glyph.horizontalScale <= 0)
            continue;
        const std::u32string text = normalizeGlyphText(glyph.unicode);
        if (text.size() != 1 || !seen[glyph.font].insert(text.front()).second)
            continue;
        characters[glyph.font].push_back(
            {text.front(), glyph.charCode, glyph.advance / (glyph.fontSize * glyph.horizontalScale)});
    }
    return characters;
}

} // namespace orvane::layout
