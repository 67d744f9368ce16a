#include "layout/fonts/FallbackFonts.h"

#include "layout/structure/DraftWalk.h"
#include "layout/text/ScriptClass.h"

#include <algorithm>
#include <map>
#include <string>

namespace orvane::layout {
namespace {

/// What is set in a family in text from right to left.
struct FamilyUse {
    std::size_t letters = 0;                    ///< bytes of complex scripts
    std::size_t others = 0;                     ///< bytes of digits, punctuation, other scripts
    std::map<std::string, std::size_t> besides; ///< families of the digits and punctuation beside its letters
};

class FallbackFinder {
public:
    explicit FallbackFinder(const std::vector<std::vector<MappedFont>>& fonts)
        : m_fonts(fonts) {}

    void read(const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                readLine(line, piece.page);
    }

    /// The family that was chosen where `family` was seen; empty where it was the chosen one.
    std::string chosenFor(const std::string& family, const FontParameters::Fallbacks& limits) const {
        const auto found = m_uses.find(family);
        if (found == m_uses.end())
            return {};
        const FamilyUse& use = found->second;
        std::size_t all = 0;
        for (const auto& [other, bytes] : use.besides)
            all += bytes;
        const auto most = std::max_element(use.besides.begin(), use.besides.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        const auto isMost = [&limits](std::size_t part, std::size_t whole) {
            return static_cast<double>(part) >= limits.sureShare * static_cast<double>(whole);
        };
        const bool isSure = all >= limits.fewestSigns && isMost(use.letters, use.letters + use.others) &&
                            isMost(most->second, all) && most->first != family;
        return isSure ? most->first : std::string();
    }

private:
    const std::string* familyOf(const Span& span, std::size_t page) const {
        const auto& fonts = m_fonts[page];
        return span.look.font < fonts.size() ? &fonts[span.look.font].family : nullptr;
    }

    void readLine(const Line& line, std::size_t page) {
        const std::string* letters = nullptr;
        for (const Word& word : line.words)
            for (const Span& span : word.spans) {
                const std::string* family = familyOf(span, page);
                if (!family)
                    continue;
                const bool isComplex = scriptClassOf(span.text) == ScriptClass::Complex;
                (isComplex ? m_uses[*family].letters : m_uses[*family].others) += span.text.size();
                if (isComplex)
                    letters = family;
                else if (letters && span.isRightToLeft)
                    m_uses[*letters].besides[*family] += span.text.size();
            }
    }

    const std::vector<std::vector<MappedFont>>& m_fonts;
    std::map<std::string, FamilyUse> m_uses;
};

} // namespace

void resolveFallbacks(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft,
                      const FontParameters::Fallbacks& parameters) {
    FallbackFinder finder(fonts);
    forEachParagraph(draft.blocks, [&finder](const DraftParagraph& paragraph) { finder.read(paragraph); });
    std::map<std::string, MappedFont> families;
    for (const auto& page : fonts)
        for (const MappedFont& font : page)
            families.emplace(font.family, font);
    std::map<std::string, const MappedFont*> chosen;
    for (const auto& [family, font] : families)
        if (const std::string other = finder.chosenFor(family, parameters); !other.empty())
            chosen.emplace(family, &families.at(other));
    for (auto& page : fonts)
        for (MappedFont& font : page)
            if (const auto found = chosen.find(font.family); found != chosen.end())
                font = *found->second;
}

} // namespace orvane::layout
