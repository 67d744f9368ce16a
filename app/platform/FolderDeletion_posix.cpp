#include "platform/FolderDeletion.h"

namespace platform {

Deletion deleteFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::remove_all(folder, error);
    return error ? Deletion::Failed : Deletion::Done;
}

} // namespace platform
