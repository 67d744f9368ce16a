#include "write/IsoDate.h"

#include <chrono>

namespace orvane::write {
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
    return dateTimeFromIso(text).has_value();
}

std::optional<DateTime> dateTimeFromIso(std::string_view text) {
    constexpr std::string_view kForm = "0000-00-00T00:00:00";
    if (text.size() < kForm.size() || !matches(text.substr(0, kForm.size()), kForm))
        return std::nullopt;
    DateTime time{numberAt(text, 0, 4),  numberAt(text, 5, 2),  numberAt(text, 8, 2),
                  numberAt(text, 11, 2), numberAt(text, 14, 2), numberAt(text, 17, 2)};
    const std::chrono::year_month_day day{
        std::chrono::year(time.year),
        std::chrono::month(static_cast<unsigned>(time.month)),
        std::chrono::day(static_cast<unsigned>(time.day)),
    };
    if (!day.ok() || time.year == 0 || time.hour > 23 || time.minute > 59 || time.second > 59 ||
        !isZone(text.substr(kForm.size())))
        return std::nullopt;
    time.weekday = static_cast<int>(std::chrono::weekday(std::chrono::sys_days(day)).c_encoding());
    return time;
}

std::uint32_t packedDateTime(const DateTime& time) {
    constexpr int kFirstYear = 1900;
    if (time.year < kFirstYear)
        return 0;
    const auto bits = [](int value, int shift) { return static_cast<std::uint32_t>(value) << shift; };
    return bits(time.minute, 0) | bits(time.hour, 6) | bits(time.day, 11) | bits(time.month, 16) |
           bits(time.year - kFirstYear, 20) | bits(time.weekday, 29);
}

} // namespace orvane::write
