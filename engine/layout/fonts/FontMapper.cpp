#include "layout/fonts/FontMapper.h"

#include "pdf/FontName.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <unordered_map>
#include <vector>

namespace orvane::layout {
namespace {

bool isUpper(char c) {
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}
bool isLower(char c) {
    return std::islower(static_cast<unsigned char>(c)) != 0;
}
bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}
bool isAlphanumeric(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

std::string lowered(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return out;
}

/// Without "ABCDEF+", which names a subset.
std::string_view withoutSubsetMark(std::string_view name) {
    if (name.size() > 7 && name[6] == '+' && std::all_of(name.begin(), name.begin() + 6, isUpper))
        name.remove_prefix(7);
    return name;
}

/// The words of a name: cut at anything that is no letter or digit, and where a capital follows a small letter.
std::vector<std::string> wordsOf(std::string_view name) {
    std::vector<std::string> words(1);
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        // Bytes beyond ASCII are kept: names of East Asian fonts are written in their own script.
        if (!isAlphanumeric(c) && static_cast<unsigned char>(c) < 0x80) {
            words.emplace_back();
            continue;
        }
        const bool startsWord = i > 0 && isUpper(c) &&
                                (isLower(name[i - 1]) || (isUpper(name[i - 1]) && i + 1 < name.size() &&
                                                          isLower(name[i + 1]) && words.back().size() > 1));
        if (startsWord)
            words.emplace_back();
        words.back() += c;
    }
    std::erase(words, std::string());
    return words;
}

/// Words after a hyphen or comma that say a weight, a slant or an encoding. Weights that word processors list as
/// families of their own ("Segoe UI Semibold", "Arial Black") are not among them.
bool isStyleWord(std::string_view lowerWord) {
    static constexpr std::array kStyleWords = {"bold",     "italic",      "oblique", "regular", "roman",    "slanted",
                                               "normal",   "ital",        "medi",    "regu",    "reguital", "boldital",
                                               "mediital", "roma",        "bd",      "it",      "obl",      "bdit",
                                               "identity", "bolditalic",  "boldobl", "boldmt",  "italicmt", "mt",
                                               "psmt",     "boldoblique", "h",       "v",       "slant"};
    return std::find(kStyleWords.begin(), kStyleWords.end(), lowerWord) != kStyleWords.end();
}

/// Words that makers and programs add at the end of a family's name.
bool isSuffixWord(std::string_view lowerWord) {
    static constexpr std::array kSuffixWords = {"mt", "ps", "psmt", "bold", "italic", "regular", "oblique", "subset"};
    return std::find(kSuffixWords.begin(), kSuffixWords.end(), lowerWord) != kSuffixWords.end();
}

/// The words of the family: what stands before the first style word after a hyphen or comma, without suffixes.
std::vector<std::string> familyWords(std::string_view name) {
    name = withoutSubsetMark(name);
    const std::size_t cut = name.find_first_of(",-");
    std::vector<std::string> words = wordsOf(name.substr(0, cut));
    while (words.size() > 1 && isSuffixWord(lowered(words.back())))
        words.pop_back();
    if (cut == std::string_view::npos)
        return words;
    for (std::string& word : wordsOf(name.substr(cut + 1))) {
        if (isStyleWord(lowered(word)))
            break;
        words.push_back(std::move(word));
    }
    return words;
}

std::string joined(const std::vector<std::string>& words, std::string_view separator) {
    std::string out;
    for (const std::string& word : words)
        out += (out.empty() ? "" : std::string(separator)) + word;
    return out;
}

MappedFont fromFamily(const FontFamily& family) {
    MappedFont font;
    font.family = family.name;
    font.kind = family.kind;
    font.isSymbol = family.kind == FontClass::Symbol;
    font.isFamilyKnown = true;
    if (family.ascent > 0) {
        font.ascent = family.ascent;
        font.descent = family.descent;
        font.boldAscent = family.boldAscent;
        font.isLineKnown = true;
    }
    return font;
}

const std::unordered_map<std::string, MappedFont>& knownFonts() {
    static const std::unordered_map<std::string, MappedFont> kKnown = [] {
        std::unordered_map<std::string, MappedFont> known;
        for (const FontFamily& family : fontFamilies())
            known.emplace(fontKey(family.name), fromFamily(family));
        for (const FontAlias& alias : fontAliases()) {
            MappedFont font = known.at(fontKey(alias.family));
            if (alias.ascent > 0) {
                font.ascent = alias.ascent;
                font.descent = alias.descent;
                font.boldAscent = 0;
            }
            known.emplace(alias.key, font);
        }
        return known;
    }();
    return kKnown;
}

/// A known font, also when design sizes ("CMR10", "SFRM1095") follow the name.
std::optional<MappedFont> findKnown(std::string key) {
    const auto& known = knownFonts();
    if (const auto found = known.find(key); found != known.end())
        return found->second;
    while (!key.empty() && isDigit(key.back()))
        key.pop_back();
    if (const auto found = known.find(key); found != known.end())
        return found->second;
    return std::nullopt;
}

FontClass kindOf(const pdf::Font& font) {
    return font.isFixedPitch ? FontClass::Fixed : font.isSerif ? FontClass::Serif : FontClass::Sans;
}

MappedFont usualFontOfKind(const pdf::Font& font) {
    const FontClass kind = kindOf(font);
    return standIn(kind == FontClass::Fixed ? "Courier New" : kind == FontClass::Serif ? "Times New Roman" : "Arial");
}

/// The line that the file itself tells of, where it is believable.
void takeLineFromFile(MappedFont& mapped, const pdf::Font& font) {
    constexpr double kLowest = 1.0, kHighest = 1.8;
    const double line = font.ascent + font.descent;
    if (line < kLowest || line > kHighest)
        return;
    mapped.ascent = font.ascent;
    mapped.descent = font.descent;
}

} // namespace

std::string fontKey(std::string_view name) {
    return lowered(joined(familyWords(name), ""));
}

MappedFont standIn(std::string_view family) {
    MappedFont font = knownFonts().at(fontKey(family));
    font.isFamilyKnown = false;
    font.isStandIn = true;
    return font;
}

MappedFont mapFont(const pdf::Font& font) {
    for (const std::string& name : {font.name, font.family})
        if (const auto known = name.empty() ? std::nullopt : findKnown(fontKey(name)))
            return *known;
    const std::vector<std::string> words = familyWords(font.family.empty() ? font.name : font.family);
    if (words.empty() || font.isType3 || pdf::isMadeUpFontName(font.family.empty() ? font.name : font.family))
        return usualFontOfKind(font);
    MappedFont mapped;
    mapped.kind = kindOf(font);
    // A family name with blanks in it is written by people and stays as it is.
    mapped.family = font.family.find(' ') != std::string::npos ? font.family : joined(words, " ");
    mapped.isSymbol = font.isSymbolic && (lowered(mapped.family).find("symbol") != std::string::npos ||
                                          lowered(mapped.family).find("dingbat") != std::string::npos);
    if (mapped.isSymbol)
        mapped.kind = FontClass::Symbol;
    takeLineFromFile(mapped, font);
    return mapped;
}

} // namespace orvane::layout
