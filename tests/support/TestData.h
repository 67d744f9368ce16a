#pragma once

#include <filesystem>

namespace orvane::tests {

/// A file under tests/data, "pdf/locked-with-user-password.pdf" for instance.
inline std::filesystem::path testData(const std::filesystem::path& name) { return std::filesystem::path(TAVRELION_TEST_DATA) / name; }

} // namespace orvane::tests
