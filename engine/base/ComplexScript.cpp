#include "base/ComplexScript.h"

#include "base/Utf8.h"

#include <algorithm>
#include <iterator>

namespace orvane {
namespace {

struct CharacterRange {
    char32_t first;
    char32_t last;
};

constexpr CharacterRange kComplexScripts[] = {
    {0x0590, 0x08FF}, // Hebrew, Arabic, Syriac, Thaana, NKo and their extensions
    {0x0900, 0x0DFF}, // the scripts of India
    {0x0E00, 0x109F}, // Thai, Lao, Tibetan, Myanmar
    {0x1780, 0x17FF}, // Khmer
    {0x200F, 0x200F}, // right-to-left mark
    {0xFB1D, 0xFDFF}, // presentation forms of Hebrew and Arabic
    {0xFE70, 0xFEFC},
};

bool isComplex(char32_t c) {
    return std::any_of(std::begin(kComplexScripts), std::end(kComplexScripts),
                       [c](const CharacterRange& range) { return c >= range.first && c <= range.last; });
}

} // namespace

bool hasComplexScript(std::string_view utf8) {
    // U+0590 is the first of them; its lead byte is above that of all European letters.
    constexpr char kFirstLeadByte = '\xD6';
    const auto mayBeComplex = [](char c) {
        return static_cast<unsigned char>(c) >= static_cast<unsigned char>(kFirstLeadByte);
    };
    if (std::none_of(utf8.begin(), utf8.end(), mayBeComplex))
        return false;
    const std::u32string characters = utf32FromUtf8(utf8);
    return std::any_of(characters.begin(), characters.end(), isComplex);
}

} // namespace orvane
