#include "write/rtf/PictureData.h"

#include "base/Failure.h"

#include <array>
#include <fstream>

#include <fmt/format.h>

namespace orvane::write::rtf {
namespace {

/// How many bytes a line of the file holds.
constexpr std::size_t kBytesALine = 64;

} // namespace

void writeHexFile(RtfStream& rtf, const std::filesystem::path& file) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::ifstream in(file, std::ios::binary);
    std::array<char, kBytesALine> bytes{};
    std::string line;
    while (in.read(bytes.data(), bytes.size()) || in.gcount() > 0) {
        line.clear();
        for (std::size_t i = 0; i < static_cast<std::size_t>(in.gcount()); ++i) {
            const auto byte = static_cast<unsigned char>(bytes[i]);
            line += kDigits[byte >> 4];
            line += kDigits[byte & 0x0F];
        }
        rtf.raw(line);
        rtf.newLine();
    }
    if (!in.eof())
        throw Failure(FailureCode::Internal, fmt::format("the picture {} cannot be read", file.string()));
}

} // namespace orvane::write::rtf
