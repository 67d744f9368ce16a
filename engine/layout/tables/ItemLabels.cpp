#include "layout/tables/ItemLabels.h"

#include <algorithm>
#include <cctype>

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

bool isLineNumber(std::string_view text) {
    return text.size() > 1 && text.back() == ':' && std::all_of(text.begin(), text.end() - 1, [](char c) {
               return std::isdigit(static_cast<unsigned char>(c)) != 0;
           });
}

} // namespace orvane::layout
