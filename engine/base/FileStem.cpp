#include "base/FileStem.h"

namespace orvane {
namespace {

/// File systems take names of 255 bytes; the rest wants its place.
constexpr std::size_t kMaxBytes = 200;

} // namespace

std::string fileStem(const std::filesystem::path& file) {
    std::string stem = file.stem().string();
    if (stem.size() > kMaxBytes) {
        std::size_t end = kMaxBytes;
        while (end > 0 && (stem[end] & 0xC0) == 0x80) // not within a character
            --end;
        stem.resize(end);
    }
    return stem.empty() ? "file" : stem;
}

} // namespace orvane
