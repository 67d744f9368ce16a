#include "platform/SystemVersion.h"

namespace platform {

SystemVersion systemVersion() {
    return {};
}

} // namespace platform
