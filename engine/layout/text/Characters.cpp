#include "layout/text/Characters.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>

#include <algorithm>

namespace orvane::layout {
namespace {

UChar32 toIcu(char32_t c) {
    return static_cast<UChar32>(c);
}

icu::UnicodeString toIcu(std::u32string_view text) {
    icu::UnicodeString result;
    for (const char32_t c : text)
        result.append(toIcu(c));
    return result;
}

std::u32string fromIcu(const icu::UnicodeString& text) {
    std::u32string result;
    for (int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1))
        result += static_cast<char32_t>(text.char32At(i));
    return result;
}

UCharDirection directionOf(char32_t c) {
    return u_charDirection(toIcu(c));
}

/// Forms that stand for base letters and say nothing of their own. Left out are the word-long ligatures U+FDF0 to
/// U+FDFF.
bool isPresentationForm(char32_t c) {
    return (c >= 0xFB00 && c <= 0xFB06) || (c >= 0xFB13 && c <= 0xFB17) || (c >= 0xFB1D && c <= 0xFDCF) ||
           (c >= 0xFE70 && c <= 0xFEFC);
}

/// They speak of the logical order; glyphs come in the order of the page.
bool isDirectionMark(char32_t c) {
    return c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

std::u32string baseLettersOf(char32_t c) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFKCInstance(status);
    if (U_FAILURE(status))
        return {c};
    std::u32string letters = fromIcu(normalizer->normalize(icu::UnicodeString(toIcu(c)), status));
    // The isolated forms of Arabic marks decompose into a blank and the mark; the mark alone is meant.
    if (letters.size() > 1 && letters.front() == U' ')
        letters.erase(0, 1);
    return U_FAILURE(status) ? std::u32string{c} : letters;
}

} // namespace

bool isBlank(char32_t c) {
    return u_isUWhiteSpace(toIcu(c)) || c == 0x200B;
}

bool isBlank(std::u32string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char32_t c) { return isBlank(c); });
}

bool isCombiningMark(char32_t c) {
    const int8_t type = u_charType(toIcu(c));
    return type == U_NON_SPACING_MARK || type == U_ENCLOSING_MARK;
}

bool isSetWithoutBlanks(char32_t c) {
    if (c < 0x2E80)
        return false;
    if (c >= 0x3000 && c <= 0x303F)
        return true;
    // Full-width forms and the punctuation of vertical writing belong to the text around them.
    if ((c >= 0xFF01 && c <= 0xFF60) || (c >= 0xFE10 && c <= 0xFE19) || (c >= 0xFE30 && c <= 0xFE4F) || c == 0x30FC)
        return true;
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(toIcu(c), &status)) {
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_BOPOMOFO:
        return true;
    default:
        return false;
    }
}

bool isHangul(char32_t c) {
    UErrorCode status = U_ZERO_ERROR;
    return c >= 0x1100 && uscript_getScript(toIcu(c), &status) == USCRIPT_HANGUL;
}

bool isShapeless(char32_t c) {
    return u_charType(toIcu(c)) == U_FORMAT_CHAR && c != 0xAD;
}

bool isLetter(char32_t c) {
    return u_isalpha(toIcu(c));
}

bool isUpperCase(char32_t c) {
    return u_isupper(toIcu(c));
}

bool isLowerCase(char32_t c) {
    return u_islower(toIcu(c));
}

bool isDigit(char32_t c) {
    return u_isdigit(toIcu(c));
}

std::size_t countLetters(std::u32string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char32_t c) { return isLetter(c) || isDigit(c); }));
}

char32_t toLowerCase(char32_t c) {
    return static_cast<char32_t>(u_tolower(toIcu(c)));
}

bool isRightToLeftLetter(char32_t c) {
    const UCharDirection direction = directionOf(c);
    return direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC;
}

bool isLeftToRightLetter(char32_t c) {
    return directionOf(c) == U_LEFT_TO_RIGHT;
}

char32_t combiningAccent(char32_t c) {
    struct Accent {
        char32_t spacing;
        char32_t combining;
    };
    static constexpr Accent kAccents[] = {
        {0x60, 0x300},  {0xB4, 0x301}, {0x2C6, 0x302}, {0x2DC, 0x303}, {0xAF, 0x304},  {0x2C9, 0x304}, {0x2D8, 0x306},
        {0x2D9, 0x307}, {0xA8, 0x308}, {0x2DA, 0x30A}, {0x2DD, 0x30B}, {0x2C7, 0x30C}, {0xB8, 0x327},  {0x2DB, 0x328},
    };
    const auto* found =
        std::find_if(std::begin(kAccents), std::end(kAccents), [c](Accent a) { return a.spacing == c; });
    return found == std::end(kAccents) ? U'\0' : found->combining;
}

std::u32string compose(std::u32string_view base, char32_t mark) {
    std::u32string decomposed(base);
    decomposed += mark;
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status))
        return decomposed;
    const std::u32string composed = fromIcu(normalizer->normalize(toIcu(decomposed), status));
    return U_FAILURE(status) ? decomposed : composed;
}

std::u32string normalizeGlyphText(std::u32string_view text) {
    std::u32string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        const bool isLead = c >= 0xD800 && c <= 0xDBFF;
        if (isLead && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF)
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00);
        else if (c >= 0xD800 && c <= 0xDFFF)
            c = 0xFFFD;
        if (isPresentationForm(c))
            result += baseLettersOf(c);
        else if (c == U'\t' || c == U'\n' || c == U'\r')
            result += U' ';
        else if (u_charType(toIcu(c)) != U_CONTROL_CHAR && c != 0xFEFF && c <= 0x10FFFF && !isDirectionMark(c))
            result += c;
    }
    return result;
}

} // namespace orvane::layout
