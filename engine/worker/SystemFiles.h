#pragma once

#include <filesystem>

namespace orvane::worker {

enum class Access { Read, Write };

/// True when another program keeps the file from being used like this: it holds a lock on it, or runs it.
bool isHeldByAnother(const std::filesystem::path& file, Access access);

} // namespace orvane::worker
