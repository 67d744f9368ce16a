#pragma once

#include "protocol/Job.h"

#include <filesystem>

namespace orvane::protocol {

/// The file that `target` leads to: where it is a symbolic link, the link stays and what it points to is written.
std::filesystem::path finalTarget(const std::filesystem::path& target);

/// The file whose part a job writes: its target, or in the folder of its pictures one that stands for each in turn.
std::filesystem::path writtenTarget(const Job& job);

/// The file that a job writes before it becomes the target, in the same folder.
std::filesystem::path partPath(const std::filesystem::path& target);

/// Removes what a job that is no longer alive has left of `target`'s part file. That of a running job, which holds a
/// lock on it, stays.
void removeAbandonedPart(const std::filesystem::path& target);

} // namespace orvane::protocol
