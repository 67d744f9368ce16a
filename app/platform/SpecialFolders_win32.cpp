#include "platform/SpecialFolders.h"

#include <array>

#include <windows.h>

#include <shlobj.h>

namespace platform {

std::optional<std::filesystem::path> specialFolder(SpecialFolder folder) {
    // The product's folder ids are the shell's.
    PIDLIST_ABSOLUTE list = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, static_cast<int>(folder), &list)))
        return std::nullopt;
    std::array<wchar_t, MAX_PATH> path{};
    const bool isFound = SHGetPathFromIDListW(list, path.data());
    CoTaskMemFree(list);
    return isFound ? std::optional<std::filesystem::path>(path.data()) : std::nullopt;
}

} // namespace platform
