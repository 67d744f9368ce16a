#include "pdf/FontName.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace orvane::pdf {
namespace {

bool isUpper(char c) {
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}
bool isLower(char c) {
    return std::islower(static_cast<unsigned char>(c)) != 0;
}
bool isAlpha(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}
bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

/// The words of a name in lower case: cut at what is no letter, and where a capital follows a small letter
/// ("SemiboldIt") or starts a word after a row of capitals ("PSBold").
std::vector<std::string> wordsOf(std::string_view name) {
    std::vector<std::string> words;
    std::string word;
    const auto endWord = [&] {
        if (!word.empty())
            words.push_back(std::move(word));
        word.clear();
    };
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        if (!isAlpha(c)) {
            endWord();
            continue;
        }
        const bool afterSmall = i > 0 && isLower(name[i - 1]);
        const bool beforeSmall = i > 0 && isUpper(name[i - 1]) && i + 1 < name.size() && isLower(name[i + 1]);
        if (isUpper(c) && (afterSmall || beforeSmall))
            endWord();
        word += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    endWord();
    return words;
}

struct WeightWord {
    std::string_view word;
    int weight;
};

constexpr std::array kWeightWords{
    WeightWord{"thin", 100},       WeightWord{"hairline", 100},   WeightWord{"extralight", 200},
    WeightWord{"ultralight", 200}, WeightWord{"light", 300},      WeightWord{"lt", 300},
    WeightWord{"regular", 400},    WeightWord{"book", 400},       WeightWord{"roman", 400},
    WeightWord{"medium", 500},     WeightWord{"semibold", 600},   WeightWord{"demibold", 600},
    WeightWord{"demi", 600},       WeightWord{"semi", 600},       WeightWord{"bold", 700},
    WeightWord{"bd", 700},         WeightWord{"bolditalic", 700}, WeightWord{"boldoblique", 700},
    WeightWord{"boldmt", 700},     WeightWord{"extrabold", 800},  WeightWord{"ultrabold", 800},
    WeightWord{"heavy", 800},      WeightWord{"black", 900},      WeightWord{"medi", 700}, // as URW shortens its bold
    WeightWord{"bk", 400},         WeightWord{"hv", 800},         WeightWord{"blk", 900},
};
constexpr std::array<std::string_view, 9> kItalicWords{"italic",  "oblique", "ital",       "it",         "obl",
                                                       "slanted", "kursiv",  "bolditalic", "boldoblique"};

/// Weight words that only speak of weight at the end of a name; within it they are part of the family ("Times New
/// Roman").
bool needsToEndTheName(std::string_view word) {
    return word == "roman" || word == "lt" || word == "semi" || word == "book" || word == "bk" || word == "hv" ||
           word == "blk";
}

/// TeX's fonts are named by shape in two to five letters and a size: CMBX10, SFTI1200, LMRoman needs no help.
/// Source: the Computer Modern family and its followers (CM, SF, EC, TC).
std::optional<FontNameStyle> styleFromTexName(std::string_view name) {
    std::size_t letters = 0;
    while (letters < name.size() && isUpper(name[letters]))
        ++letters;
    if (letters < 3 || letters == name.size() ||
        !std::all_of(name.begin() + static_cast<std::ptrdiff_t>(letters), name.end(), isDigit))
        return std::nullopt;
    const std::string_view family = name.substr(0, 2);
    if (family != "CM" && family != "SF" && family != "EC" && family != "TC")
        return std::nullopt;
    const std::string_view shape = name.substr(2, letters - 2);
    FontNameStyle style;
    const auto isOneOf = [&](std::initializer_list<std::string_view> shapes) {
        return std::find(shapes.begin(), shapes.end(), shape) != shapes.end();
    };
    if (isOneOf({"BX", "B", "BXTI", "BXSL", "SSBX", "MIB", "BSY", "BXCC", "RB", "BI", "BL", "XC", "SX", "SO"}))
        style.weight = 700;
    style.isItalic =
        isOneOf({"TI", "SL", "MI", "MIB", "BXTI", "BXSL", "SSI", "SLTT", "ITT", "U", "BI", "BL", "SI", "SO"});
    style.isFixedPitch = isOneOf({"TT", "ITT", "SLTT", "TCSC"});
    return style;
}

} // namespace

std::string withoutSubsetPrefix(std::string_view name) {
    // Six capitals and a plus; some writers prefix twice. Source: ISO 32000-1, 9.6.4.
    while (name.size() > 7 && name[6] == '+' && std::all_of(name.begin(), name.begin() + 6, isUpper))
        name.remove_prefix(7);
    return std::string(name);
}

bool isMadeUpFontName(std::string_view name) {
    const std::string own = withoutSubsetPrefix(name);
    std::string key;
    for (const char c : own.substr(0, own.find_first_of(",-")))
        // Bytes beyond ASCII are letters: names of East Asian fonts are written in their own script.
        if (isAlpha(c) || isDigit(c) || static_cast<unsigned char>(c) >= 0x80)
            key += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const auto letters = std::count_if(key.begin(), key.end(), [](char c) { return !isDigit(c); });
    return letters < 3 || key.starts_with("cidfont") || key.starts_with("type3") || key.starts_with("gd0") ||
           key.starts_with("untitled") || key.starts_with("unnamed");
}

FontNameStyle styleFromFontName(std::string_view name) {
    if (const auto style = styleFromTexName(name))
        return *style;
    FontNameStyle style;
    const std::vector<std::string> words = wordsOf(name);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const auto weightWord = std::find_if(kWeightWords.begin(), kWeightWords.end(),
                                             [&](const WeightWord& entry) { return entry.word == word; });
        if (weightWord != kWeightWords.end() && (!needsToEndTheName(word) || i + 1 == words.size()))
            style.weight = weightWord->weight;
        // "Semi Bold", "Extra Light": the first word bends the second.
        if (i > 0 && (word == "bold" || word == "light")) {
            const bool isExtreme = words[i - 1] == "extra" || words[i - 1] == "ultra";
            const bool isHalf = words[i - 1] == "semi" || words[i - 1] == "demi";
            if (isExtreme)
                style.weight = word == "bold" ? 800 : 200;
            else if (isHalf)
                style.weight = word == "bold" ? 600 : 350;
        }
        if (std::find(kItalicWords.begin(), kItalicWords.end(), word) != kItalicWords.end())
            style.isItalic = true;
        if (word == "mono" || word == "monospace" || word == "monospaced" || word == "courier" || word == "typewriter")
            style.isFixedPitch = true;
    }
    return style;
}

} // namespace orvane::pdf
