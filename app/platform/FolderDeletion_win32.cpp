#include "platform/FolderDeletion.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

Deletion deleteFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (!std::filesystem::exists(std::filesystem::symlink_status(folder, error)))
        return Deletion::Done;
    // The shell takes a list of paths, which ends with an empty one.
    std::wstring paths = std::filesystem::absolute(folder, error).make_preferred().wstring();
    while (!paths.empty() && paths.back() == L'\\')
        paths.pop_back();
    paths.push_back(L'\0');
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = paths.c_str();
    operation.fFlags = FOF_SILENT | FOF_NOCONFIRMATION | FOF_NOERRORUI;
    const bool isDone = SHFileOperationW(&operation) == 0 && !operation.fAnyOperationsAborted;
    return isDone ? Deletion::Done : Deletion::Failed;
}

} // namespace platform
