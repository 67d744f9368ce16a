#include "pdf/UnicodeRepair.h"

#include "pdf/GlyphName.h"
#include "pdf/MathGlyphName.h"
#include "pdf/SymbolFont.h"
#include "pdf/UsualGlyphOrder.h"

#include <algorithm>
#include <unordered_map>

#include <fmt/format.h>

#include <GfxFont.h>

namespace orvane::pdf {
namespace {

bool isBlank(char32_t c) {
    return c == '\t' || c == '\n' || c == '\r';
}

bool isSayable(char32_t c) {
    const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0);
    const bool isNoCharacter = c == 0xFFFD || c > 0x10FFFF || (c & 0xFFFE) == 0xFFFE || (c >= 0xD800 && c < 0xE000);
    return !isControl && !isNoCharacter && !isPrivateUse(c);
}

bool isSayable(const std::u32string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char32_t c) { return isSayable(c); });
}

/// What the file itself says of a code of a font.
struct GivenCode {
    std::u32string meaning;
    double advance = 0; ///< of the font's size
};

GivenCode givenCode(const GfxFont& font, std::uint32_t code) {
    const char bytes[2] = {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
    const bool isOneByte = !font.isCIDFont();
    CharCode readCode = 0;
    const Unicode* text = nullptr;
    int length = 0;
    double dx = 0, dy = 0, originX = 0, originY = 0;
    font.getNextChar(isOneByte ? bytes + 1 : bytes, isOneByte ? 1 : 2, &readCode, &text, &length, &dx, &dy, &originX,
                     &originY);
    return {{text, text + length}, dx};
}

/// Signs at U+F000 + code are how Windows keeps symbol fonts; of fonts unknown by name the common bullets and arrows
/// are worth a guess, and letters stand at their own codes.
std::u32string fromPrivateDouble(std::uint8_t code) {
    switch (code) {
    case 0x96: // of Wingdings 2
    case 0x97:
    case 0x98:
        return U"\u25CF";
    case 0x9E:
    case 0x9F:
        return U"\u2022";
    case 0xA7:
        return U"\u25AA";
    case 0xB0:
        return U"\u00B0";
    case 0xB1:
        return U"\u00B1";
    case 0xB7:
        return U"\u2022";
    case 0xD8:
        return U"\u27A2";
    case 0xDF: // the arrows of Wingdings that word processors put for "<--", "-->", "<==", "==>" and "<=>"
    case 0xE0:
    case 0xE7:
    case 0xE8:
    case 0xF3:
        return std::u32string(1, symbolCharacter(SymbolFont::Wingdings, code));
    case 0xFC:
        return U"\u2713";
    default:
        return code < 0x7F ? std::u32string(1, code) : std::u32string();
    }
}

/// OpenSymbol stands in for fonts of signs whose codes it shows as theirs: Wingdings above all, and what that lacks is
/// of ZapfDingbats and its kin. Where these have nothing but pictures, which are wide, a narrow sign is one of
/// Symbol's.
std::u32string fromStandIn(std::uint8_t code, double advance) {
    constexpr std::uint8_t kFirstPicture = 0x21, kLastPicture = 0x2F;
    constexpr double kNarrow = 0.65; // of the font's size
    if (code >= kFirstPicture && code <= kLastPicture && advance > 0 && advance < kNarrow)
        return std::u32string(1, symbolCharacter(SymbolFont::Symbol, code));
    // The square that forms give to tick is one of Wingdings 2; Wingdings has a narrower circle there.
    constexpr std::uint8_t kSquare = 0xA3;
    constexpr double kWide = 0.85; // of the font's size
    if (code == kSquare && advance > kWide)
        return std::u32string(1, symbolCharacter(SymbolFont::Wingdings2, code));
    constexpr std::uint8_t kDegree = 0xB0, kPlusMinus = 0xB1, kBullet = 0xB7; // of the font Symbol
    if (code == kDegree || code == kPlusMinus || code == kBullet)
        return fromPrivateDouble(code);
    if (code >= 0x80 && code < 0xA0)
        return fromPrivateDouble(code); // the fonts agree on few of them
    for (const SymbolFont font : {SymbolFont::Wingdings, SymbolFont::ZapfDingbats})
        if (const char32_t sign = symbolCharacter(font, code))
            return std::u32string(1, sign);
    return {};
}

/// Whether the file tells nothing of a font's characters: the library then hands out the glyphs' numbers.
bool isUnmapped(const GfxFont& font) {
    if (!font.isCIDFont() || font.hasToUnicodeCMap())
        return false;
    const GooString* collection = static_cast<const GfxCIDFont&>(font).getCollection();
    return !collection || collection->toStr().ends_with("-Identity") || collection->toStr().ends_with("-UCS");
}

/// A map that is off by one number against the embedded program gives glyph numbers for characters.
bool isShifted(const GfxFont& font, const EmbeddedCharacters& program) {
    constexpr std::size_t kLeastCodes = 8;
    std::map<std::int64_t, std::size_t> differences;
    std::size_t compared = 0;
    for (const std::uint32_t code : program.codes()) {
        const std::u32string own = program.textOf(code);
        const std::u32string given = givenCode(font, code).meaning;
        if (own.size() != 1 || given.size() != 1)
            continue;
        ++compared;
        ++differences[std::int64_t{own[0]} - std::int64_t{given[0]}];
    }
    const auto most = std::max_element(differences.begin(), differences.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return compared >= kLeastCodes && most->first != 0 && most->second * 10 >= compared * 9;
}

/// What has been found out about one code of a font.
struct Meaning {
    std::u32string given; ///< by the file
    std::u32string text;
    bool isGuessed = false;
    std::size_t count = 0; ///< how often the page shows it
};

} // namespace

/// The codes of one font that the page uses, and what they mean.
class FontMeanings {
public:
    FontMeanings(const Font& facts, GfxFont& font, UnicodeRepair& repair)
        : m_facts(facts)
        , m_font(font)
        , m_repair(repair)
        , m_symbols(symbolFontOf(facts.name)) {}

    void note(const Glyph& glyph) {
        Meaning& meaning = m_meanings.try_emplace(glyph.charCode, Meaning{glyph.unicode, {}, false, 0}).first->second;
        ++meaning.count;
    }

    void findOut() {
        const bool isMapped = !isUnmapped(m_font) && !repeatsCodes();
        m_hasUsualOrder = !isMapped && isUsualOrderLikelier();
        m_hasNumberedSigns = hasNumberedSigns();
        const bool doubtGiven =
            !isMapped || (m_font.hasToUnicodeCMap() && (saysOneThing() || (hasFewSmallLetters() && isLying())));
        for (auto& [code, meaning] : m_meanings)
            findOut(code, meaning, doubtGiven);
    }
    const Meaning& of(std::uint32_t code) const { return m_meanings.at(code); }

private:
    void findOut(std::uint32_t code, Meaning& meaning, bool doubtGiven) {
        std::u32string sign = signOf(code, meaning.given);
        if (sign.empty())
            sign = namedSignOf(code, meaning.given);
        if (!sign.empty()) {
            meaning.isGuessed = sign != meaning.given;
            meaning.text = std::move(sign);
        } else if (!isNamed(code)) {
            meaning.text = program().textOf(code);
            meaning.isGuessed = !meaning.text.empty();
        } else if (isSayable(meaning.given) && !doubtGiven) {
            for (const char32_t c : meaning.given)
                meaning.text += withoutLigature(c);
        } else if (meaning.given.size() == 1 && isBlank(meaning.given[0]) && !doubtGiven) {
            meaning.text.assign(1, U' ');
        } else {
            meaning.text = guess(code, meaning.given);
            // Where nothing else is known the doubtful word of the file is better than none.
            if (meaning.text.empty() && isSayable(meaning.given) && !m_hasUsualOrder)
                meaning.text = meaning.given;
            meaning.isGuessed = !meaning.text.empty();
        }
    }

    bool isNamed(std::uint32_t code) {
        if (m_facts.objectNumber <= 0)
            return true;
        std::optional<NamedCodes>& named = knowledge().named;
        if (!named)
            named.emplace(m_font, m_repair.m_xref);
        return named->isNamed(code);
    }

    /// The meaning of a code of a font of signs; empty for other fonts and where the file's own map knows better.
    std::u32string signOf(std::uint32_t code, const std::u32string& given) const {
        if (!m_symbols)
            return {};
        std::uint32_t low = code & 0xFF;
        if (given.size() == 1 && isSayable(given) && given[0] >= 0x100)
            return {};
        const bool hasOwnNames = m_font.hasToUnicodeCMap() || (!m_font.isCIDFont() && m_font.getType() != fontTrueType);
        if (given.size() == 1 && hasOwnNames) {
            // The signs that Symbol shares with the letters' fonts are meant; a letter stands for the sign at its code.
            const bool isShared =
                m_symbols == SymbolFont::Symbol && given[0] >= 0xA0 && given[0] < 0x100 &&
                std::u32string_view(U"\u00B0\u00B1\u00D7\u00F7\u00AC\u00AE\u00A9\u00B5").find(given[0]) !=
                    std::u32string_view::npos;
            if (isShared)
                return given;
            if (given[0] < 0x100 || (given[0] >= 0xF000 && given[0] < 0xF100))
                low = given[0] & 0xFF;
        } else if (m_font.isCIDFont()) {
            return {};
        }
        const char32_t character = symbolCharacter(*m_symbols, static_cast<std::uint8_t>(low));
        return character == 0 ? std::u32string() : std::u32string(1, character);
    }

    /// The name that a simple font has for a code; empty without one.
    std::string_view glyphNameOf(std::uint32_t code) const {
        if (m_font.isCIDFont() || m_font.getType() == fontTrueType || code >= 256)
            return {};
        const char* name = static_cast<Gfx8BitFont&>(m_font).getCharName(static_cast<int>(code));
        return name ? name : std::string_view();
    }

    /// Whether the page shows nothing of the font but signs that publishers' fonts number.
    bool hasNumberedSigns() const {
        return m_facts.name.starts_with("Adv") &&
               std::all_of(m_meanings.begin(), m_meanings.end(),
                           [&](const auto& entry) { return characterOfNumberedSign(glyphNameOf(entry.first)) != 0; });
    }

    /// A sign of formulas by its glyph's name. Neither the library nor many writers know such names, and hand out the
    /// letter at the code: "S" for a union.
    std::u32string namedSignOf(std::uint32_t code, const std::u32string& given) const {
        const std::string_view name = glyphNameOf(code);
        if (m_hasNumberedSigns)
            return std::u32string(1, characterOfNumberedSign(name));
        if (name.empty() || given.size() != 1 || given[0] != code)
            return {};
        const char32_t character = characterOfMathGlyphName(name);
        return character == 0 ? std::u32string() : std::u32string(1, character);
    }

    std::u32string guess(std::uint32_t code, const std::u32string& given) {
        const bool hasNames = !m_font.isCIDFont() && m_font.getType() != fontTrueType;
        if (hasNames)
            if (std::u32string text = textOfName(code); isSayable(text))
                return text;
        if (std::u32string text = program().textOf(code); isSayable(text))
            return text;
        if (given.size() == 1) {
            if (const char32_t today = characterOfAdobePrivateUse(given[0]))
                return std::u32string(1, today);
            const bool isOpenSymbol = m_facts.name.starts_with("OpenSymbol");
            if (const char32_t sign = isOpenSymbol ? openSymbolCharacter(given[0]) : 0)
                return std::u32string(1, sign);
            if (given[0] >= 0xF020 && given[0] < 0xF100) {
                const auto low = static_cast<std::uint8_t>(given[0] & 0xFF);
                return isOpenSymbol ? fromStandIn(low, givenCode(m_font, code).advance) : fromPrivateDouble(low);
            }
        }
        if (!hasNames)
            if (std::u32string text = textOfName(code); isSayable(text))
                return text;
        const char32_t usual = m_hasUsualOrder ? characterInUsualOrder(glyphNumber(code)) : 0;
        return usual == 0 ? std::u32string() : withoutLigature(usual);
    }

    /// Of a composite TrueType font.
    std::uint32_t glyphNumber(std::uint32_t code) const {
        const auto& font = static_cast<const GfxCIDFont&>(m_font);
        const int* map = font.getCIDToGID();
        return !map ? code : code < font.getCIDToGIDLen() ? static_cast<std::uint32_t>(map[code]) : 0;
    }

    std::u32string textOfName(std::uint32_t code) const {
        if (m_font.isCIDFont() || code >= 256)
            return {};
        const char* name = static_cast<Gfx8BitFont&>(m_font).getCharName(static_cast<int>(code));
        return name ? textOfGlyphName(name) : std::u32string();
    }

    /// A composite font's map that gives each code itself is a placeholder where the codes are glyph numbers.
    bool repeatsCodes() const {
        constexpr std::size_t kLeastCodes = 3;
        if (!m_font.isCIDFont() || !m_font.hasToUnicodeCMap() || static_cast<GfxCIDFont&>(m_font).getCIDToGID())
            return false;
        return m_meanings.size() >= kLeastCodes &&
               std::all_of(m_meanings.begin(), m_meanings.end(), [](const auto& entry) {
                   return entry.second.given.size() == 1 && entry.second.given[0] == entry.first;
               });
    }

    /// Whether glyph numbers in the usual order make a likelier text than the numbers as characters: small letters and
    /// blanks.
    bool isUsualOrderLikelier() const {
        const bool isTrueType = m_font.getType() == fontCIDType2 || m_font.getType() == fontCIDType2OT;
        if (!isTrueType)
            return false;
        const auto isPlain = [](char32_t c) { return c == ' ' || (c >= 'a' && c <= 'z'); };
        std::size_t plainAsOrder = 0;
        std::size_t plainAsGiven = 0;
        bool isGivenSayable = true;
        for (const auto& [code, meaning] : m_meanings) {
            isGivenSayable = isGivenSayable && isSayable(meaning.given);
            plainAsOrder += isPlain(characterInUsualOrder(glyphNumber(code))) ? meaning.count : 0;
            plainAsGiven += meaning.given.size() == 1 && isPlain(meaning.given[0]) ? meaning.count : 0;
        }
        return plainAsOrder > plainAsGiven || (plainAsOrder == plainAsGiven && !isGivenSayable);
    }

    /// A map that gives all codes the same character is a placeholder.
    bool saysOneThing() const {
        constexpr std::size_t kLeastCodes = 4;
        if (m_meanings.size() < kLeastCodes)
            return false;
        const std::u32string& first = m_meanings.begin()->second.given;
        return std::all_of(m_meanings.begin(), m_meanings.end(),
                           [&](const auto& entry) { return entry.second.given == first; });
    }

    /// A cheap look before the program is opened: text that is off by a number has hardly a small letter.
    bool hasFewSmallLetters() const {
        const auto isSmall = [](const auto& entry) {
            return entry.second.given.size() == 1 && entry.second.given[0] >= 'a' && entry.second.given[0] <= 'z';
        };
        return static_cast<std::size_t>(std::count_if(m_meanings.begin(), m_meanings.end(), isSmall)) * 4 <
               m_meanings.size();
    }

    bool isLying() {
        std::optional<bool>& known = knowledge().isLying;
        if (!known)
            known = isShifted(m_font, program());
        return *known;
    }

    UnicodeRepair::Knowledge& knowledge() {
        return m_facts.objectNumber > 0 ? m_repair.m_knowledge[m_facts.objectNumber] : m_ownKnowledge;
    }
    const EmbeddedCharacters& program() {
        std::optional<EmbeddedCharacters>& program = knowledge().program;
        if (!program)
            program.emplace(m_font, m_repair.m_xref);
        return *program;
    }

    const Font& m_facts;
    GfxFont& m_font;
    UnicodeRepair& m_repair;
    std::optional<SymbolFont> m_symbols;
    std::unordered_map<std::uint32_t, Meaning> m_meanings;
    UnicodeRepair::Knowledge m_ownKnowledge;
    bool m_hasUsualOrder = false;
    bool m_hasNumberedSigns = false;
};

namespace {

/// A code without a glyph in a font that is not embedded paints nothing at all.
void dropEmptyGlyphs(PageContent& page, const std::vector<FontMeanings>& fonts) {
    std::erase_if(page.glyphs, [&](const Glyph& glyph) {
        return !page.fonts[glyph.font].isEmbedded && fonts[glyph.font].of(glyph.charCode).text.empty();
    });
}

struct Counts {
    int repaired = 0;
    int unknown = 0;
};

void tell(const PageContent& page, std::size_t font, const Counts& counts, Diagnostics& diagnostics) {
    const std::string name = page.fonts[font].name.empty() ? "without a name" : page.fonts[font].name;
    if (counts.repaired > 0)
        diagnostics.add(DiagnosticKind::TextRepaired, page.number,
                        fmt::format("{} characters of the font {} were found by other means than the file's map",
                                    counts.repaired, name));
    if (counts.unknown > 0)
        diagnostics.add(DiagnosticKind::TextUnmapped, page.number,
                        fmt::format("{} characters of the font {} are unknown", counts.unknown, name));
}

} // namespace

void UnicodeRepair::repair(PageContent& page, const std::vector<std::shared_ptr<GfxFont>>& sources,
                           Diagnostics& diagnostics) {
    std::vector<FontMeanings> fonts;
    fonts.reserve(sources.size());
    for (std::size_t i = 0; i < sources.size(); ++i)
        fonts.emplace_back(page.fonts[i], *sources[i], *this);
    for (const Glyph& glyph : page.glyphs)
        fonts[glyph.font].note(glyph);
    for (FontMeanings& font : fonts)
        font.findOut();

    dropEmptyGlyphs(page, fonts);
    std::vector<Counts> counts(fonts.size());
    for (Glyph& glyph : page.glyphs) {
        const Meaning& meaning = fonts[glyph.font].of(glyph.charCode);
        glyph.unicode = meaning.text;
        glyph.isUnicodeGuessed = meaning.isGuessed;
        counts[glyph.font].repaired += meaning.isGuessed ? 1 : 0;
        counts[glyph.font].unknown += meaning.text.empty() ? 1 : 0;
    }
    for (std::size_t i = 0; i < counts.size(); ++i)
        tell(page, i, counts[i], diagnostics);
}

} // namespace orvane::pdf
