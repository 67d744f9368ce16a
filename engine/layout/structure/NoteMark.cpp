#include "layout/structure/NoteMark.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <string_view>

namespace orvane::layout {
namespace {

constexpr std::size_t kLongestNumber = 3;
constexpr std::size_t kLongestMark = 5;
constexpr std::u32string_view kSigns = U"*\u2020\u2021\u00A7\u00B6#";
// Asterisk and parallel lines of mathematics.
constexpr std::u32string_view kBorrowedSigns = U"\u2217\u2016\u2225";
constexpr std::u32string_view kNumerals = U"ivxlc";
constexpr std::u32string_view kAround = U"()[].:\u200E\u200F";

std::u32string_view bare(std::u32string_view text) {
    while (!text.empty() && kAround.find(text.front()) != std::u32string_view::npos)
        text.remove_prefix(1);
    while (!text.empty() && kAround.find(text.back()) != std::u32string_view::npos)
        text.remove_suffix(1);
    return text;
}

bool isDigit(char32_t c) {
    return u_isdigit(static_cast<UChar32>(c)) != 0;
}

bool isMadeOf(std::u32string_view text, std::u32string_view characters) {
    return text.find_first_not_of(characters) == std::u32string_view::npos;
}

bool isEastAsian(char32_t c) {
    const auto width = u_getIntPropertyValue(static_cast<UChar32>(c), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH;
}

/// "1)" of "1)한국": in East Asian texts no blank parts the number from the text. Its length, 0 for none.
std::size_t gluedMarkLength(std::u32string_view text) {
    std::size_t length = 0;
    while (length < text.size() && length < kLongestNumber && isDigit(text[length]))
        ++length;
    const bool isClosed = length > 0 && length + 1 < text.size() &&
                          std::u32string_view(U")\uFF09").find(text[length]) != std::u32string_view::npos;
    return isClosed && isEastAsian(text[length + 1]) ? length + 1 : 0;
}

} // namespace

bool isNoteMark(const std::string& text) {
    const std::u32string all = utf32FromUtf8(text);
    const std::u32string_view mark = bare(all);
    if (mark.empty() || mark.size() > kLongestMark)
        return false;
    const bool isNumber = mark.size() <= kLongestNumber && std::all_of(mark.begin(), mark.end(), isDigit);
    const bool isLetter = mark.size() == 1 && mark[0] >= U'a' && mark[0] <= U'z';
    return isNumber || isLetter || isMadeOf(mark, kSigns) || isMadeOf(mark, kBorrowedSigns) ||
           isMadeOf(mark, kNumerals);
}

bool isBorrowedMark(const std::string& mark) {
    return isMadeOf(utf32FromUtf8(mark), kBorrowedSigns);
}

std::string bareMark(const std::string& mark) {
    return utf8FromUtf32(bare(utf32FromUtf8(mark)));
}

std::string usualMark(const std::string& mark) {
    std::u32string usual = utf32FromUtf8(mark);
    std::replace(usual.begin(), usual.end(), U'\u2217', U'*');
    return utf8FromUtf32(usual);
}

std::string markAtStart(const Word& word) {
    if (word.spans.empty())
        return {};
    if (isRaisedMark(word.spans.front()))
        return word.spans.front().text;
    const std::string text = textOf(word);
    if (const std::size_t length = gluedMarkLength(word); length > 0)
        return utf8FromUtf32(utf32FromUtf8(word.spans.front().text).substr(0, length));
    // A letter on the line, "a" or "i", is a word like others.
    const std::u32string all = utf32FromUtf8(text);
    return isNoteMark(text) && !u_isalpha(static_cast<UChar32>(bare(all).front())) ? text : std::string();
}

std::size_t gluedMarkLength(const Word& word) {
    return word.spans.empty() ? 0 : gluedMarkLength(utf32FromUtf8(word.spans.front().text));
}

bool isRaisedMark(const Span& span) {
    return span.look.verticalPosition == document::VerticalPosition::Superscript && isNoteMark(span.text);
}

bool isLoneMark(const Line& line) {
    return line.words.size() == 1 && line.words.front().spans.size() == 1 &&
           isNoteMark(line.words.front().spans.front().text);
}

} // namespace orvane::layout
