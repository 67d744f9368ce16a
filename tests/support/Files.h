#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orvane::tests {

inline std::string readFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void writeFile(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

} // namespace orvane::tests
