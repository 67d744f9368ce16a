#include "layout/fonts/FontCatalog.h"

#include "layout/fonts/FallbackFonts.h"
#include "layout/fonts/SqueezedLines.h"
#include "layout/structure/DraftWalk.h"

#include <algorithm>
#include <map>

namespace orvane::layout {

FontCatalog::FontCatalog(const DocumentDraft& draft, const FontParameters& parameters, Tracking tracking,
                         const CarriedFonts& carried)
    : m_unknown(mapFont(pdf::Font{})) {
    for (const PageLayout& page : draft.pages) {
        m_fonts.emplace_back();
        for (const pdf::Font& font : page.fonts)
            m_fonts.back().push_back(mapFont(font));
    }
    resolveFallbacks(m_fonts, draft, parameters.fallbacks);
    fitFonts(m_fonts, draft, tracking, parameters.fontFit);
    // What was found to stand in for fonts that are brought along is not needed.
    for (std::size_t page = 0; page < m_fonts.size(); ++page)
        for (std::size_t font = 0; font < m_fonts[page].size(); ++font)
            carried.apply(draft.pages[page].fonts[font], m_fonts[page][font]);
    std::array<std::map<std::string, std::size_t>, 3> counts;
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words)
                    for (const Span& span : word.spans) {
                        const MappedFont& mapped = font(piece.page, span.look.font);
                        if (!mapped.isSymbol)
                            counts[static_cast<std::size_t>(scriptClassOf(span.text))][mapped.family] +=
                                span.text.size();
                    }
    });
    for (std::size_t kind = 0; kind < counts.size(); ++kind) {
        const auto most = std::max_element(counts[kind].begin(), counts[kind].end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most != counts[kind].end())
            m_main[kind] = most->first;
    }
}

void FontCatalog::narrowSqueezed(const DocumentDraft& draft, const FontParameters& parameters) {
    narrowSqueezedFonts(m_fonts, draft, parameters.squeeze);
}

const MappedFont& FontCatalog::font(std::size_t page, std::uint32_t font) const {
    const std::vector<MappedFont>& fonts = m_fonts[page];
    return font < fonts.size() ? fonts[font] : m_unknown;
}

} // namespace orvane::layout
