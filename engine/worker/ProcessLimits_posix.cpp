#include "worker/ProcessLimits.h"

#include "worker/BuildKind.h"

#include <algorithm>

#include <sys/resource.h>

namespace orvane::worker {
namespace {

// Threads that read pages use processor time side by side; this many of them at most are worth counting.
constexpr rlim_t kThreads = 8;

/// Lowers a limit; one that is lower already stays.
template<typename Resource>
void limit(Resource resource, rlim_t most) {
    rlimit current{};
    if (getrlimit(resource, &current) != 0)
        return;
    current.rlim_cur = std::min(current.rlim_cur, most);
    current.rlim_max = std::min(current.rlim_max, most);
    setrlimit(resource, &current);
}

} // namespace

void applyLimits(const protocol::Limits& limits) {
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, static_cast<rlim_t>(limits.seconds) * kThreads);
    if (kBuildKind == BuildKind::Plain)
        limit(RLIMIT_AS, static_cast<rlim_t>(limits.memoryMegabytes) * 1024 * 1024);
}

} // namespace orvane::worker
