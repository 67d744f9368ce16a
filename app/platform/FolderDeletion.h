#pragma once

#include <filesystem>

namespace platform {

/// What became of a deletion.
enum class Deletion { Done, Failed };

/// Deletes a folder with all it holds, silently and without asking. Links inside it are removed, not followed.
Deletion deleteFolder(const std::filesystem::path& folder);

} // namespace platform
