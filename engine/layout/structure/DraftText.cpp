#include "layout/structure/DraftText.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

namespace orvane::layout {

std::string textOf(const DraftParagraph& paragraph) {
    std::string text;
    for (const DraftPiece& piece : paragraph.pieces)
        for (const Line& line : piece.text.lines)
            for (const Word& word : line.words) {
                if (!text.empty())
                    text += ' ';
                text += textOf(word);
            }
    return text;
}

std::string comparable(std::string_view text) {
    std::u32string kept;
    for (const char32_t c : utf32FromUtf8(text)) {
        const auto character = static_cast<UChar32>(c);
        if (u_isalnum(character) || u_charType(character) == U_NON_SPACING_MARK)
            kept += static_cast<char32_t>(u_tolower(character));
    }
    return utf8FromUtf32(kept);
}

std::string comparableWithoutNumber(std::string_view text) {
    const std::u32string all = utf32FromUtf8(text);
    std::size_t start = 0;
    bool hasDigit = false;
    // Digits and full stops, up to the first blank or letter.
    while (start < all.size() &&
           (u_isdigit(static_cast<UChar32>(all[start])) || all[start] == U'.' || all[start] == U')')) {
        hasDigit = hasDigit || u_isdigit(static_cast<UChar32>(all[start]));
        ++start;
    }
    return comparable(hasDigit ? utf8FromUtf32(std::u32string_view(all).substr(start)) : text);
}

std::size_t letterCount(const DraftParagraph& paragraph) {
    std::size_t count = 0;
    for (const DraftPiece& piece : paragraph.pieces)
        for (const Line& line : piece.text.lines)
            for (const Word& word : line.words)
                for (const Span& span : word.spans)
                    count += utf32FromUtf8(span.text).size();
    return count;
}

} // namespace orvane::layout
