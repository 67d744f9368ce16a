#pragma once

#include <filesystem>
#include <string>

namespace orvane {

/// A file's name without its ending, cut so short that names made from it fit a file system; never empty.
std::string fileStem(const std::filesystem::path& file);

} // namespace orvane
