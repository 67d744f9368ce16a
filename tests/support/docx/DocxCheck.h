#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::tests {

/// What is wrong with a document: its package (parts, content types, relationships), its elements and their order, and
/// whatever one part says of another. Empty when nothing is.
/// Source: ECMA-376 parts 1 and 2.
std::vector<std::string> faultsOfDocx(const std::filesystem::path& file);

} // namespace orvane::tests
