#include "platform/DateText.h"

#include <array>

namespace platform {

std::string generalDateText(std::time_t moment) {
    std::tm local{};
    if (!localtime_r(&moment, &local))
        return {};
    std::array<char, 128> text{};
    // %x and %X are the date and the time as the locale's LC_TIME writes them.
    const std::size_t length = std::strftime(text.data(), text.size(), "%x %X", &local);
    return {text.data(), length};
}

} // namespace platform
