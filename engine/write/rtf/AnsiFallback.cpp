#include "write/rtf/AnsiFallback.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <unicode/unorm2.h>

namespace orvane::write::rtf {
namespace {

constexpr int kFirstHighCode = 0x80;
/// What the code page 1252 has from 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<char32_t, 32> kHighCodes{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

/// The byte of the code page; 0 when it does not have the character.
int ansiByte(char32_t c) {
    if (c >= 0xA0 && c <= 0xFF)
        return static_cast<int>(c);
    const auto* const found = std::find(kHighCodes.begin(), kHighCodes.end(), c);
    return c == 0 || found == kHighCodes.end() ? 0 : kFirstHighCode + static_cast<int>(found - kHighCodes.begin());
}

/// The letter that a letter with accents is made of; 0 when there is none in ASCII.
char plainLetter(char32_t c) {
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* const decomposer = unorm2_getNFKDInstance(&error);
    std::array<UChar, 32> parts{};
    if (U_FAILURE(error))
        return 0;
    const std::int32_t count = unorm2_getDecomposition(decomposer, static_cast<UChar32>(c), parts.data(),
                                                       static_cast<std::int32_t>(parts.size()), &error);
    if (U_FAILURE(error) || count < 1)
        return 0;
    const UChar first = parts[0];
    const bool isLetter = (first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z');
    return isLetter ? static_cast<char>(first) : 0;
}

std::string fallback(char32_t c) {
    if (const int byte = ansiByte(c); byte != 0)
        return fmt::format("\\'{:02x}", byte);
    if (const char letter = plainLetter(c); letter != 0)
        return {letter};
    return "?";
}

/// The word's value is a signed number of 16 bits.
int signedUnit(char32_t unit) {
    return unit > 0x7FFF ? static_cast<int>(unit) - 0x10000 : static_cast<int>(unit);
}

} // namespace

std::string unicodeCharacter(char32_t c) {
    if (c < 0x10000)
        return fmt::format("\\u{}{}", signedUnit(c), fallback(c));
    const char32_t offset = c - 0x10000;
    return fmt::format("\\u{}?\\u{}?", signedUnit(0xD800 + (offset >> 10)), signedUnit(0xDC00 + (offset & 0x3FF)));
}

} // namespace orvane::write::rtf
