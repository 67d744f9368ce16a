#include "platform/SystemVersion.h"

#include <windows.h>

namespace platform {

SystemVersion systemVersion() {
    OSVERSIONINFOA record{};
    record.dwOSVersionInfoSize = sizeof record; // 148 bytes, with a service text of 128 characters
    if (!GetVersionExA(&record))
        return {};
    return {record.dwPlatformId, record.dwMajorVersion, record.dwMinorVersion};
}

} // namespace platform
