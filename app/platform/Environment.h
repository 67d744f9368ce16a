#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace platform {

/// The value of an environment variable; nothing when it is not set.
std::optional<std::string> environmentValue(const std::string& name);

/// Full path of the program's own file. Errors: empty when the system does not tell.
std::filesystem::path programFile();

} // namespace platform
