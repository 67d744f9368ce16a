#include "platform/Environment.h"

#include <windows.h>

namespace platform {

std::optional<std::string> environmentValue(const std::string& name) {
    std::string value;
    DWORD needed = GetEnvironmentVariableA(name.c_str(), nullptr, 0);
    // The variable may grow between two questions.
    while (needed > value.size()) {
        value.resize(needed);
        needed = GetEnvironmentVariableA(name.c_str(), value.data(), static_cast<DWORD>(value.size()));
    }
    if (needed == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND)
        return std::nullopt;
    value.resize(needed);
    return value;
}

std::filesystem::path programFile() {
    constexpr DWORD kLongestPath = 32768; // of any path of the system
    std::wstring path(kLongestPath, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), kLongestPath);
    path.resize(length < kLongestPath ? length : 0);
    return path;
}

} // namespace platform
