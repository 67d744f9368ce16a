#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::tests {

/// One entry of a zip file.
struct ZipEntry {
    std::string name;
    std::string bytes;
    bool isCompressed = false;
};

/// The entries of a zip file, in order. Throws std::runtime_error for a file that is none or damaged.
std::vector<ZipEntry> readZip(const std::filesystem::path& file);

/// Writes a zip file of these entries.
void writeZip(const std::filesystem::path& file, const std::vector<ZipEntry>& entries);

} // namespace orvane::tests
