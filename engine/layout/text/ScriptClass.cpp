#include "layout/text/ScriptClass.h"

#include "base/Utf8.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include <array>

namespace orvane::layout {

ScriptClass scriptClassOf(char32_t character) {
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(static_cast<UChar32>(character), &status)) {
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_BOPOMOFO:
    case USCRIPT_HANGUL:
        return ScriptClass::EastAsian;
    case USCRIPT_ARABIC:
    case USCRIPT_HEBREW:
    case USCRIPT_SYRIAC:
    case USCRIPT_THAANA:
    case USCRIPT_THAI:
    case USCRIPT_LAO:
    case USCRIPT_KHMER:
    case USCRIPT_MYANMAR:
    case USCRIPT_TIBETAN:
    case USCRIPT_SINHALA:
    case USCRIPT_DEVANAGARI:
    case USCRIPT_BENGALI:
    case USCRIPT_GURMUKHI:
    case USCRIPT_GUJARATI:
    case USCRIPT_ORIYA:
    case USCRIPT_TAMIL:
    case USCRIPT_TELUGU:
    case USCRIPT_KANNADA:
    case USCRIPT_MALAYALAM:
        return ScriptClass::Complex;
    default:
        break;
    }
    const int width = u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_FULLWIDTH || width == U_EA_WIDE ? ScriptClass::EastAsian : ScriptClass::Simple;
}

ScriptClass scriptClassOf(std::string_view text) {
    std::array<int, 3> counts{};
    for (const char32_t character : utf32FromUtf8(text)) {
        const ScriptClass kind = scriptClassOf(character);
        if (kind != ScriptClass::Simple || u_isalpha(static_cast<UChar32>(character)))
            ++counts[static_cast<std::size_t>(kind)];
    }
    const int eastAsian = counts[static_cast<std::size_t>(ScriptClass::EastAsian)];
    const int complex = counts[static_cast<std::size_t>(ScriptClass::Complex)];
    if (eastAsian + complex <= counts[static_cast<std::size_t>(ScriptClass::Simple)])
        return ScriptClass::Simple;
    return eastAsian >= complex ? ScriptClass::EastAsian : ScriptClass::Complex;
}

} // namespace orvane::layout
