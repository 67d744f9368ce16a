#include "layout/tables/ItemLabels.h"

#include <cctype>
#include <charconv>

namespace orvane::layout {

bool isItemLabel(std::string_view text) {
    const auto isAscii = [](char c) { return (static_cast<unsigned char>(c) & 0x80) == 0; };
    if (text == "(" || text == "[") // a place to tick
        return true;
    const bool isSymbol = text.size() <= 3 && (!isAscii(text.front()) || text == "-" || text == "*" || text == "o");
    const bool isNumber = text.size() <= 6 && (text.back() == '.' || text.back() == ')');
    return isSymbol || isNumber;
}

bool countsItem(std::string_view text) {
    return text.size() >= 2 && text.size() <= 3 && std::isalnum(static_cast<unsigned char>(text.front())) != 0 &&
           (text.back() == '.' || text.back() == ')');
}

std::optional<long> lineNumberOf(std::string_view text) {
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isCounted = error == std::errc{} && end + 1 == text.data() + text.size() && *end == ':';
    return isCounted ? std::optional(number) : std::nullopt;
}

} // namespace orvane::layout
