#include "platform/VolumeInformation.h"

#include <sys/statvfs.h>

namespace platform {

std::optional<std::int32_t> volumeSerial(const std::string& root) {
    struct statvfs volume {};
    if (statvfs(root.c_str(), &volume) != 0)
        return std::nullopt;
    // Drives have no letters here, so "C:\" is a folder that does not exist and has no number.
    return static_cast<std::int32_t>(volume.f_fsid);
}

} // namespace platform
