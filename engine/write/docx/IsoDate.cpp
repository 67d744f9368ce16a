#include "write/docx/IsoDate.h"

#include <chrono>

namespace orvane::write::docx {
namespace {

/// Whether the text has the form of the pattern, in which a 0 stands for any digit.
bool matches(std::string_view text, std::string_view pattern) {
    if (text.size() != pattern.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (pattern[i] == '0' ? !isDigit : text[i] != pattern[i])
            return false;
    }
    return true;
}

int numberAt(std::string_view text, std::size_t start, std::size_t length) {
    int number = 0;
    for (const char digit : text.substr(start, length))
        number = number * 10 + (digit - '0');
    return number;
}

bool isZone(std::string_view zone) {
    if (zone.empty() || zone == "Z")
        return true;
    const bool hasForm = matches(zone, "+00:00") || matches(zone, "-00:00");
    // An offset of more than 14 hours is no zone on earth and no valid one.
    return hasForm && numberAt(zone, 1, 2) * 60 + numberAt(zone, 4, 2) <= 14 * 60 && numberAt(zone, 4, 2) < 60;
}

} // namespace

bool isIsoDateTime(std::string_view text) {
    constexpr std::string_view kForm = "0000-00-00T00:00:00";
    if (text.size() < kForm.size() || !matches(text.substr(0, kForm.size()), kForm))
        return false;
    const std::chrono::year_month_day day{
        std::chrono::year(numberAt(text, 0, 4)),
        std::chrono::month(static_cast<unsigned>(numberAt(text, 5, 2))),
        std::chrono::day(static_cast<unsigned>(numberAt(text, 8, 2))),
    };
    return day.ok() && numberAt(text, 0, 4) > 0 && numberAt(text, 11, 2) < 24 && numberAt(text, 14, 2) < 60 &&
           numberAt(text, 17, 2) < 60 && isZone(text.substr(kForm.size()));
}

} // namespace orvane::write::docx
