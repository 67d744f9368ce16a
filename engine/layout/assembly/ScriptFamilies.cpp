#include "layout/assembly/ScriptFamilies.h"

#include <algorithm>
#include <map>

namespace orvane::layout {

ScriptFamilies::ScriptFamilies(const FontCatalog& fonts)
    : m_families{fonts.mainFamily(ScriptClass::Simple), fonts.mainFamily(ScriptClass::EastAsian),
                 fonts.mainFamily(ScriptClass::Complex)} {}

ScriptFamilies::ScriptFamilies(const DraftParagraph& paragraph, const FontCatalog& fonts)
    : ScriptFamilies(fonts) {
    std::array<std::map<std::string, std::size_t>, 3> counts;
    for (const DraftPiece& piece : paragraph.pieces)
        for (const Line& line : piece.text.lines)
            for (const Word& word : line.words)
                for (const Span& span : word.spans) {
                    const MappedFont& font = fonts.font(piece.page, span.look.font);
                    if (!font.isSymbol)
                        counts[static_cast<std::size_t>(scriptClassOf(span.text))][font.family] += span.text.size();
                }
    for (std::size_t kind = 0; kind < counts.size(); ++kind) {
        const auto most = std::max_element(counts[kind].begin(), counts[kind].end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most != counts[kind].end())
            m_families[kind] = most->first;
    }
}

} // namespace orvane::layout
