#include "layout/fonts/CarriedFonts.h"

#include "base/Utf8.h"
#include "layout/fonts/FamilyWidths.h"
#include "layout/text/Characters.h"
#include "layout/text/ScriptClass.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// How often the text has each character.
using CharacterCounts = std::map<char32_t, std::size_t>;

bool isAscii(const std::string& name) {
    return std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

/// A face of a family with the text that is set in it.
struct Face {
    pdf::FontRequest request;
    std::map<int, std::map<char32_t, pdf::FontCharacter>> sources; ///< by number of the font's object
    CharacterCounts text;
    bool isFamilyKnown = false;
    bool isComplex = false; ///< has letters that take the shape of their neighbours
};

class FaceCollector {
public:
    explicit FaceCollector(const FontParameters::Carried& parameters)
        : m_parameters(parameters) {}

    void read(const PageText& page) {
        std::vector<Face*> faces;
        for (std::size_t i = 0; i < page.fonts.size(); ++i)
            faces.push_back(i < page.characters.size() ? faceOf(page.fonts[i], page.characters[i]) : nullptr);
        for (const Line& line : page.lines)
            for (const Word& word : line.words)
                for (const Span& span : word.spans)
                    if (span.look.font < faces.size() && faces[span.look.font])
                        addText(*faces[span.look.font], span.text);
    }

    std::vector<pdf::FontRequest> take() {
        std::vector<pdf::FontRequest> requests;
        for (auto& [name, face] : m_faces) {
            if (face.isComplex || !hasEnough(face) || (face.isFamilyKnown && isEastAsian(face)))
                continue;
            for (auto& [number, characters] : face.sources) {
                pdf::FontSource& source = face.request.sources.emplace_back();
                source.objectNumber = number;
                for (const auto& [character, shown] : characters)
                    source.characters.push_back(shown);
            }
            requests.push_back(std::move(face.request));
        }
        return requests;
    }

private:
    /// Null for fonts that stay at home whatever is set in them.
    Face* faceOf(const pdf::Font& font, const std::vector<pdf::FontCharacter>& characters) {
        const MappedFont mapped = mapFont(font);
        if (!font.isEmbedded || font.isType3 || font.isVertical || font.objectNumber == 0 || mapped.isStandIn ||
            mapped.isSymbol || hasKnownWidths(mapped.family) || !isAscii(mapped.family))
            return nullptr;
        const auto [found, isNew] = m_faces.try_emplace({mapped.family, font.isBold, font.isItalic});
        Face& face = found->second;
        if (isNew) {
            face.isFamilyKnown = mapped.isFamilyKnown;
            face.request.family = mapped.family;
            face.request.isBold = font.isBold;
            face.request.isItalic = font.isItalic;
            face.request.isFixedPitch = font.isFixedPitch;
            face.request.ascent = mapped.ascent;
            face.request.descent = mapped.descent;
            face.request.blankWidth = font.spaceWidth;
        }
        for (const pdf::FontCharacter& character : characters)
            face.sources[font.objectNumber].try_emplace(character.character, character);
        return &face;
    }

    static void addText(Face& face, const std::string& text) {
        face.isComplex |= scriptClassOf(text) == ScriptClass::Complex;
        for (const char32_t c : utf32FromUtf8(text))
            ++face.text[c];
    }

    bool hasEnough(const Face& face) const {
        std::size_t all = 0, there = 0;
        for (const auto& [character, count] : face.text) {
            all += count;
            const bool isThere =
                std::any_of(face.sources.begin(), face.sources.end(),
                            [wanted = character](const auto& source) { return source.second.contains(wanted); });
            there += isThere ? count : 0;
        }
        return all > 0 && static_cast<double>(there) >= m_parameters.leastCoverage * static_cast<double>(all);
    }

    static bool isEastAsian(const Face& face) {
        std::size_t all = 0, eastAsian = 0;
        for (const auto& [character, count] : face.text) {
            all += count;
            eastAsian += isSetWithoutBlanks(character) || isHangul(character) ? count : 0;
        }
        return 2 * eastAsian > all;
    }

    const FontParameters::Carried& m_parameters;
    std::map<std::tuple<std::string, bool, bool>, Face> m_faces;
};

} // namespace

std::vector<pdf::FontRequest> fontsToCarry(const std::vector<PageText>& pages, const FontParameters& parameters) {
    FaceCollector faces(parameters.carried);
    for (const PageText& page : pages)
        faces.read(page);
    return faces.take();
}

CarriedFonts::CarriedFonts(const std::vector<CarriedFont>& fonts) {
    for (const CarriedFont& font : fonts) {
        const pdf::FontRequest& request = font.request;
        auto advances = std::make_shared<std::map<char32_t, double>>();
        for (const pdf::FontSource& source : request.sources)
            for (const pdf::FontCharacter& character : source.characters)
                advances->try_emplace(character.character, character.advance);
        advances->try_emplace(U' ', request.blankWidth);
        for (const pdf::FontSource& source : request.sources)
            m_faces.try_emplace({source.objectNumber, request.isBold, request.isItalic},
                                Face{request.family, request.ascent, request.descent, advances});
    }
}

void CarriedFonts::apply(const pdf::Font& font, MappedFont& mapped) const {
    const auto found = m_faces.find({font.objectNumber, font.isBold, font.isItalic});
    if (found == m_faces.end())
        return;
    mapped.family = found->second.family;
    mapped.ascent = found->second.ascent;
    mapped.descent = found->second.descent;
    mapped.widthPercent = 100;
    mapped.isStandIn = false;
    mapped.isLineKnown = true;
    mapped.carriedAdvances = found->second.advances;
}

} // namespace orvane::layout
