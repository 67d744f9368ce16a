#include "pdf/GlyphName.h"

#include "pdf/MathGlyphName.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include <GlobalParams.h>

namespace orvane::pdf {
namespace {

bool isHexUpper(std::string_view digits) {
    return digits.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

char32_t hexValue(std::string_view digits) {
    std::uint32_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return value;
}

bool isScalar(char32_t character) {
    return character > 0 && character <= 0x10FFFF && (character < 0xD800 || character >= 0xE000);
}

/// "uni00410042" is a row of UTF-16 units, "u1F600" one character.
std::optional<std::u32string> fromHexName(std::string_view name) {
    std::u32string text;
    if (name.starts_with("uni") && name.size() >= 7 && (name.size() - 3) % 4 == 0 && isHexUpper(name.substr(3))) {
        for (std::size_t at = 3; at < name.size(); at += 4)
            text += hexValue(name.substr(at, 4));
    } else if (name.starts_with("u") && name.size() >= 5 && name.size() <= 7 && isHexUpper(name.substr(1))) {
        text += hexValue(name.substr(1));
    } else {
        return std::nullopt;
    }
    for (const char32_t character : text)
        if (!isScalar(character))
            return std::nullopt;
    return text;
}

std::u32string ofComponent(std::string_view name) {
    if (auto text = fromHexName(name))
        return *text;
    const std::string terminated(name);
    char32_t character = globalParams->mapNameToUnicodeText(terminated.c_str());
    if (character == 0)
        character = characterOfMathGlyphName(name);
    if (const char32_t today = characterOfAdobePrivateUse(character))
        character = today;
    return character == 0 ? std::u32string() : withoutLigature(character);
}

} // namespace

std::u32string withoutLigature(char32_t character) {
    switch (character) {
    case 0xFB00:
        return U"ff";
    case 0xFB01:
        return U"fi";
    case 0xFB02:
        return U"fl";
    case 0xFB03:
        return U"ffi";
    case 0xFB04:
        return U"ffl";
    case 0xFB05:
        return U"st";
    case 0xFB06:
        return U"st";
    default:
        return std::u32string(1, character);
    }
}

std::u32string textOfGlyphName(std::string_view name) {
    // What follows a full stop names a variant of the same character; ".notdef" is none.
    if (name.empty() || name.front() == '.')
        return {};
    name = name.substr(0, name.find('.'));
    std::u32string text;
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find('_', start), name.size());
        const std::u32string part = ofComponent(name.substr(start, end - start));
        if (part.empty())
            return {};
        text += part;
        start = end + 1;
    }
    return text;
}

} // namespace orvane::pdf
