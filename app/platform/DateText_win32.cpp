#include "platform/DateText.h"

#include <array>

#include <windows.h>

namespace platform {
namespace {

SYSTEMTIME systemTimeOf(const std::tm& local) {
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(local.tm_year + 1900);
    time.wMonth = static_cast<WORD>(local.tm_mon + 1);
    time.wDay = static_cast<WORD>(local.tm_mday);
    time.wDayOfWeek = static_cast<WORD>(local.tm_wday);
    time.wHour = static_cast<WORD>(local.tm_hour);
    time.wMinute = static_cast<WORD>(local.tm_min);
    time.wSecond = static_cast<WORD>(local.tm_sec);
    return time;
}

} // namespace

std::string generalDateText(std::time_t moment) {
    std::tm local{};
    if (localtime_s(&local, &moment) != 0)
        return {};
    const SYSTEMTIME time = systemTimeOf(local);
    std::array<char, 128> date{};
    std::array<char, 128> timeOfDay{};
    // No format of our own: the short date and the time as the user's regional settings write them.
    if (!GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, date.data(),
                        static_cast<int>(date.size())))
        return {};
    if (!GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &time, nullptr, timeOfDay.data(), static_cast<int>(timeOfDay.size())))
        return {};
    return std::string(date.data()) + ' ' + timeOfDay.data();
}

} // namespace platform
