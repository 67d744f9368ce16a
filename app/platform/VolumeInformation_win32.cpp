#include "platform/VolumeInformation.h"

#include <windows.h>

namespace platform {

std::optional<std::int32_t> volumeSerial(const std::string& root) {
    DWORD serial = 0;
    if (!GetVolumeInformationA(root.c_str(), nullptr, 0, &serial, nullptr, nullptr, nullptr, 0))
        return std::nullopt;
    return static_cast<std::int32_t>(serial);
}

} // namespace platform
