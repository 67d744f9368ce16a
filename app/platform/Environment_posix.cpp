#include "platform/Environment.h"

#include <cstdlib>

namespace platform {

std::optional<std::string> environmentValue(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
}

std::filesystem::path programFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

} // namespace platform
