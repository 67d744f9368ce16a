#include "layout/text/LabelText.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvane::layout {
namespace {

bool isBullet(char32_t c) {
    static constexpr char32_t kBullets[] =
        U"\x2022\x25CF\x25CB\x25AA\x25AB\x25A0\x25A1\x25E6\x2023\x2013\x2014-*\xB7\x2756"
        U"\x2751\x2752\x27A2\x27A4\x2713\x2714\x25BA\x25B6\x25C6\x25C7\x2605\x2666\x2610"
        U"\x2611\x2612";
    return std::u32string_view(kBullets).find(c) != std::u32string_view::npos || (c >= 0xE000 && c <= 0xF8FF);
}

} // namespace

bool isLabelText(const std::u32string& text, std::size_t longest) {
    if (text.empty() || text.size() > longest)
        return false;
    if (text.size() == 1 && (isBullet(text.front()) || text.front() == U'o'))
        return true;
    const char32_t last = text.back();
    const bool isClosed = last == U'.' || last == U')' || last == U']' || last == U':';
    const bool isNumber = std::all_of(text.begin(), text.end(), [](char32_t c) { return isDigit(c) || c == U'.'; });
    const auto letters = std::count_if(text.begin(), text.end(), [](char32_t c) { return isLetter(c); });
    const bool isCompound = isNumber && text.find(U'.') != std::u32string::npos;
    return isCompound ||
           (isClosed && (letters <= 1 || text.front() == U'(' || letters == static_cast<long>(text.size()) - 1));
}

bool isListSign(const std::u32string& text) {
    constexpr char32_t kFirst = 0x2022; // dashes and the middle dot come before it
    return text.size() == 1 && text.front() >= kFirst && isBullet(text.front());
}

bool isDash(std::string_view text) {
    static constexpr std::array<std::string_view, 4> kDashes{"-", "\u2013", "\u2014", "\u2212"};
    return std::ranges::find(kDashes, text) != kDashes.end();
}

} // namespace orvane::layout
