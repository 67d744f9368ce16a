#pragma once

#include <filesystem>

namespace orvane::tests {

/// Writes a PDF that takes a while: each page has a picture of its own, of noise, `side` pixels wide and high.
void writeNoisePictures(const std::filesystem::path& file, int pages, int side);

} // namespace orvane::tests
