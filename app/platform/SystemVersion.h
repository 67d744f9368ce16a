#pragma once

#include <cstdint>

namespace platform {

/// What the system says of its own release. The platform ids are Windows': 1 the line of 95, 2 the line of NT.
struct SystemVersion {
    std::uint32_t platformId = 0; ///< 0 on systems that are not Windows
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
};

SystemVersion systemVersion();

} // namespace platform
