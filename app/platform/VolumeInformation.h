#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

/// Serial number of the volume whose root is `root` ("C:\" on Windows, "/" elsewhere). Errors: nothing when it cannot
/// be read.
std::optional<std::int32_t> volumeSerial(const std::string& root);

} // namespace platform
