#pragma once

#include <filesystem>

namespace orvane::worker {

/// Says what is wrong with a source before any library looks at it.
/// Errors: Failure(SourceUnreadable) when there is no such file or the system refuses to read it; Failure(NotAPdf) when
/// it is empty; Failure(TargetInUse) when another program holds it.
void checkSource(const std::filesystem::path& source);

} // namespace orvane::worker
