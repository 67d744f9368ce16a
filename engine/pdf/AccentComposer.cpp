#include "pdf/AccentComposer.h"

#include <algorithm>
#include <cmath>

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace orvane::pdf {
namespace {

/// The combining form of an accent that stands alone; 0 for what is none.
char32_t combiningForm(char32_t c) {
    switch (c) {
    case 0x0060:
        return 0x0300;
    case 0x00B4:
    case 0x02CA:
        return 0x0301;
    case 0x02C6:
        return 0x0302;
    case 0x02DC:
        return 0x0303;
    case 0x00AF:
        return 0x0304;
    case 0x02D8:
        return 0x0306;
    case 0x02D9:
        return 0x0307;
    case 0x00A8:
        return 0x0308;
    case 0x02DA:
        return 0x030A;
    case 0x02DD:
        return 0x030B;
    case 0x02C7:
        return 0x030C;
    case 0x00B8:
        return 0x0327;
    case 0x02DB:
        return 0x0328;
    default:
        return c >= 0x0300 && c < 0x0370 ? c : 0;
    }
}

bool isLatinLetter(char32_t c) {
    return (c < 0x0250 || (c >= 0x1E00 && c < 0x1F00)) && u_isalpha(static_cast<UChar32>(c));
}

/// An accent stands over its letter when their middles are closer than those of neighbours ever are.
bool standsOver(const Glyph& accent, const Glyph& letter) {
    if (accent.angle != letter.angle || std::abs(accent.fontSize - letter.fontSize) > 0.05 * letter.fontSize)
        return false;
    const bool isUpright = letter.angle == 0 || letter.angle == 180;
    const double along =
        isUpright ? accent.box.centerX() - letter.box.centerX() : accent.box.centerY() - letter.box.centerY();
    const double across = isUpright ? accent.origin.y - letter.origin.y : accent.origin.x - letter.origin.x;
    return std::abs(along) < 0.3 * std::max(letter.advance, 0.2 * letter.fontSize) &&
           std::abs(across) < 0.5 * letter.fontSize;
}

std::u32string composed(char32_t letter, char32_t combining) {
    // A letter without its dot gets the accent in the dot's place.
    if (combining < 0x0323)
        letter = letter == 0x0131 ? U'i' : letter == 0x0237 ? U'j' : letter;
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFCInstance(error);
    icu::UnicodeString text;
    text.append(static_cast<UChar32>(letter)).append(static_cast<UChar32>(combining));
    if (U_SUCCESS(error))
        text = normalizer->normalize(text, error);
    std::u32string result;
    for (int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1))
        result += static_cast<char32_t>(text.char32At(i));
    return result;
}

} // namespace

void composeAccents(PageContent& page) {
    std::vector<Glyph>& glyphs = page.glyphs;
    std::vector<bool> isTaken(glyphs.size(), false);
    bool isAnyTaken = false;
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        const char32_t combining = glyphs[i].unicode.size() == 1 ? combiningForm(glyphs[i].unicode[0]) : 0;
        if (combining == 0)
            continue;
        // TeX paints the accent first; others the letter.
        for (const std::size_t neighbour : {i + 1, i - 1}) {
            if (neighbour >= glyphs.size() || isTaken[neighbour])
                continue;
            Glyph& letter = glyphs[neighbour];
            if (letter.unicode.size() != 1 || !isLatinLetter(letter.unicode[0]) || !standsOver(glyphs[i], letter))
                continue;
            letter.unicode = composed(letter.unicode[0], combining);
            letter.isComposed = true;
            isTaken[i] = isAnyTaken = true;
            break;
        }
    }
    if (!isAnyTaken)
        return;
    std::vector<Glyph> kept;
    kept.reserve(glyphs.size());
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        if (!isTaken[i])
            kept.push_back(std::move(glyphs[i]));
    glyphs = std::move(kept);
}

} // namespace orvane::pdf
