#pragma once

#include <ctime>
#include <string>

namespace platform {

/// A moment in the system's general date format: short date, a blank, time of day, in local time.
std::string generalDateText(std::time_t moment);

} // namespace platform
