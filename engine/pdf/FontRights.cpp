#include "pdf/FontRights.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace orvane::pdf {
namespace {

constexpr std::uint16_t kKinds = 0x000F; ///< of embedding; one of them
constexpr std::uint16_t kInstallable = 0;
constexpr std::uint16_t kEditable = 8;
constexpr std::uint16_t kNoSubsets = 0x0100;
constexpr std::uint16_t kBitmapsOnly = 0x0200;

/// Reads numbers of a program, high byte first; 0 beyond its end.
class Reader {
public:
    explicit Reader(std::string_view bytes)
        : m_bytes(bytes) {}

    std::uint32_t at(std::size_t offset, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = offset; i < offset + size; ++i)
            value = value << 8U | (i < m_bytes.size() ? static_cast<unsigned char>(m_bytes[i]) : 0U);
        return value;
    }

private:
    std::string_view m_bytes;
};

bool isTableFile(std::string_view program) {
    using namespace std::string_view_literals;
    return program.starts_with("\0\1\0\0"sv) || program.starts_with("true") || program.starts_with("OTTO");
}

/// Of a file of tables: the field of the table "OS/2".
std::optional<std::uint16_t> bitsOfTables(std::string_view program) {
    constexpr std::size_t kHead = 12, kEntry = 16, kBits = 8;
    const Reader reader(program);
    const std::size_t count = reader.at(4, 2);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = kHead + i * kEntry;
        if (program.substr(std::min(entry, program.size()), 4) != "OS/2")
            continue;
        const std::size_t offset = reader.at(entry + 8, 4), length = reader.at(entry + 12, 4);
        if (length < kBits + 2 || offset + kBits + 2 > program.size())
            return std::nullopt;
        return static_cast<std::uint16_t>(reader.at(offset + kBits, 2));
    }
    return std::nullopt;
}

/// Of a PostScript font, bare or in the compact format: "/FSType 8 def".
std::optional<std::uint16_t> bitsOfPostScript(std::string_view program) {
    constexpr std::string_view kKey = "/FSType ";
    std::size_t at = program.find(kKey);
    if (at == std::string_view::npos)
        return std::nullopt;
    at += kKey.size();
    std::uint32_t bits = 0;
    const std::size_t first = at;
    for (; at < program.size() && at - first < 5 && program[at] >= '0' && program[at] <= '9'; ++at)
        bits = bits * 10 + static_cast<std::uint32_t>(program[at] - '0');
    return at == first || bits > 0xFFFF ? std::nullopt : std::optional(static_cast<std::uint16_t>(bits));
}

} // namespace

std::optional<std::uint16_t> embeddingBits(const std::vector<unsigned char>& program) {
    const std::string_view bytes(reinterpret_cast<const char*>(program.data()), program.size());
    return isTableFile(bytes) ? bitsOfTables(bytes) : bitsOfPostScript(bytes);
}

bool mayBeEdited(std::uint16_t embeddingBits) {
    const std::uint16_t kind = embeddingBits & kKinds;
    return (kind == kInstallable || kind == kEditable) && (embeddingBits & (kNoSubsets | kBitmapsOnly)) == 0;
}

} // namespace orvane::pdf
