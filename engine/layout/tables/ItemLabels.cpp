#include "layout/tables/ItemLabels.h"

#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace orvane::layout {
namespace {

bool isLetterOrDigit(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

/// Whether the text is the label of an item below others, as long as it may be: "IX.A.1.", "12.3.4)".
bool isNestedLabel(std::string_view text) {
    if (text.size() < 4 || (text.back() != '.' && text.back() != ')'))
        return false;
    const std::string_view parts = text.substr(0, text.size() - 1);
    bool hasPoint = false;
    for (std::size_t i = 0, length = 0; i < parts.size(); ++i) {
        const bool isPoint = parts[i] == '.';
        if (isPoint ? length == 0 || i + 1 == parts.size() : !isLetterOrDigit(parts[i]) || length == 4)
            return false;
        hasPoint |= isPoint;
        length = isPoint ? 0 : length + 1;
    }
    return hasPoint;
}

/// "[7]", "[Knu84]": the label of a work that is referred to.
bool isReference(std::string_view text) {
    return text.size() > 2 && text.front() == '[' && text.back() == ']' &&
           std::all_of(text.begin() + 1, text.end() - 1, [](char c) { return c != ' ' && c != '[' && c != ']'; });
}

} // namespace

bool isItemLabel(std::string_view text) {
    const auto isAscii = [](char c) { return (static_cast<unsigned char>(c) & 0x80) == 0; };
    if (text == "(" || text == "[") // a place to tick
        return true;
    const bool isSymbol = text.size() <= 3 && (!isAscii(text.front()) || text == "-" || text == "*" || text == "o");
    const bool isNumber = text.size() <= 6 && (text.back() == '.' || text.back() == ')');
    return isSymbol || isNumber || isNestedLabel(text) || isReference(text);
}

bool countsItem(std::string_view text) {
    return text.size() >= 2 && text.size() <= 3 && isLetterOrDigit(text.front()) &&
           (text.back() == '.' || text.back() == ')');
}

bool isLetterInBrackets(std::string_view text) {
    return text.size() == 3 && text.front() == '(' && text[1] >= 'a' && text[1] <= 'z' && text.back() == ')';
}

bool hasSignsOfCode(std::string_view text) {
    return text.find_first_of("{}\\") != std::string_view::npos || text.ends_with(';');
}

bool isJoiningSign(std::string_view text) {
    static constexpr std::array<std::string_view, 10> kSigns{":",  "=",      ":=",     "::=",    "->",
                                                             "=>", "\u2190", "\u2192", "\u21D2", "\u2261"};
    return std::ranges::find(kSigns, text) != kSigns.end();
}

bool isMark(std::string_view text) {
    return !text.empty() && text.size() <= 3 && std::all_of(text.begin(), text.end(), [](char c) {
        return std::ispunct(static_cast<unsigned char>(c)) != 0;
    });
}

bool holdsPartOfBracket(std::string_view text) {
    const std::u32string characters = utf32FromUtf8(text);
    return std::any_of(characters.begin(), characters.end(), [](char32_t c) { return c >= 0x239B && c <= 0x23B3; });
}

std::optional<long> lineNumberOf(std::string_view text) {
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isCounted = error == std::errc{} && end + 1 == text.data() + text.size() && *end == ':';
    return isCounted ? std::optional(number) : std::nullopt;
}

} // namespace orvane::layout
