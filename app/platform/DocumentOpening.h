#pragma once

#include <filesystem>

namespace platform {

/// What became of a start.
enum class Launch { Started, Failed };

/// Starts a program in `folder` with the document as its one argument, and does not wait for it. No shell reads the
/// path: blanks, quotes and other characters reach the program as they are. A relative document is one of `folder`, so
/// that a name with a leading dash is not taken for an option. `program`: a path, or a name of the search path.
Launch openWith(const std::filesystem::path& program, const std::filesystem::path& document,
                const std::filesystem::path& folder);

/// The same with the program that the desktop associates with the document.
Launch openByAssociation(const std::filesystem::path& document, const std::filesystem::path& folder);

} // namespace platform
