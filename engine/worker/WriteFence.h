#pragma once

#include "worker/Sandbox.h"

#include <filesystem>
#include <vector>

namespace orvane::worker {

/// Where a process may write.
struct WritablePlaces {
    std::vector<std::filesystem::path> folders; ///< with all below; of one that does not exist the nearest that does
    std::vector<std::filesystem::path> files;   ///< existing ones
};

/// Keeps this process, for good, from making, changing or removing files anywhere else. Reading stays as it is.
/// Thread: to be called while there is one.
Sandbox fenceWrites(const WritablePlaces& places);

} // namespace orvane::worker
