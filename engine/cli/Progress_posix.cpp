#include "cli/Progress.h"

#include <unistd.h>

namespace orvane::cli {

Audience errorOutputAudience() {
    return isatty(STDERR_FILENO) != 0 ? Audience::Terminal : Audience::Nobody;
}

} // namespace orvane::cli
