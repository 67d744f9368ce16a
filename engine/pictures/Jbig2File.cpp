#include "pictures/Jbig2File.h"

#include "pictures/OutputFile.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace orvane::pictures {
namespace {

constexpr std::uint64_t kPageInformation = 48;
constexpr std::uint64_t kEndOfPage = 49;
constexpr std::uint64_t kEndOfFile = 51;
constexpr std::uint64_t kUnknownLength = 0xFFFFFFFF;

struct Segment {
    std::uint64_t number = 0;
    std::uint64_t type = 0;
    std::uint64_t page = 0;
    std::size_t headerLength = 0;
    std::uint64_t dataLength = 0;
};

std::optional<std::uint64_t> numberAt(std::string_view bytes, std::size_t at, std::size_t length) {
    if (at > bytes.size() || length > bytes.size() - at)
        return std::nullopt;
    std::uint64_t value = 0;
    for (const char c : bytes.substr(at, length))
        value = value << 8 | static_cast<unsigned char>(c);
    return value;
}

std::optional<Segment> readSegment(std::string_view bytes) {
    const auto number = numberAt(bytes, 0, 4);
    const auto flags = numberAt(bytes, 4, 1);
    const auto count = numberAt(bytes, 5, 1);
    if (!number || !flags || !count)
        return std::nullopt;
    std::uint64_t references = *count >> 5;
    std::size_t at = 6;
    if (references == 7) {
        references = numberAt(bytes, 5, 4).value_or(0) & 0x1FFFFFFF;
        at = 9 + static_cast<std::size_t>((references + 8) / 8);
    }
    at += static_cast<std::size_t>(references) * (*number <= 256 ? 1 : *number <= 65536 ? 2 : 4);
    const std::size_t pageLength = (*flags & 0x40) != 0 ? 4 : 1;
    const auto page = numberAt(bytes, at, pageLength);
    const auto length = numberAt(bytes, at + pageLength, 4);
    if (!page || !length)
        return std::nullopt;
    return Segment{*number, *flags & 0x3F, *page, at + pageLength + 4, *length};
}

/// What the segments that end the file have to know of those before them.
struct Extent {
    std::uint64_t lastNumber = 0;
    std::uint64_t page = 1;
    bool hasEndOfPage = false;
};

void measure(std::string_view bytes, Extent& extent) {
    while (const auto segment = readSegment(bytes)) {
        extent.lastNumber = std::max(extent.lastNumber, segment->number);
        if (segment->type == kPageInformation)
            extent.page = segment->page;
        extent.hasEndOfPage = extent.hasEndOfPage || segment->type == kEndOfPage;
        // A region of unknown length is the last of its page where it stands in a PDF.
        if (segment->dataLength == kUnknownLength || segment->dataLength > bytes.size() - segment->headerLength)
            return;
        bytes.remove_prefix(segment->headerLength + static_cast<std::size_t>(segment->dataLength));
    }
}

void putEmptySegment(std::uint64_t number, std::uint64_t type, std::uint64_t page, std::string& bytes) {
    putBigEndian<4>(bytes, number);
    putBigEndian<1>(bytes, type);
    putBigEndian<1>(bytes, 0); // refers to nothing
    putBigEndian<1>(bytes, page);
    putBigEndian<4>(bytes, 0);
}

} // namespace

std::string jbig2File(std::string_view globals, std::string_view segments) {
    Extent extent;
    measure(globals, extent);
    measure(segments, extent);
    std::string bytes("\x97JB2\r\n\x1A\n\x01", 9); // sequential, and the number of pages is known:
    putBigEndian<4>(bytes, 1);
    bytes += globals;
    bytes += segments;
    if (!extent.hasEndOfPage)
        putEmptySegment(++extent.lastNumber, kEndOfPage, extent.page, bytes);
    putEmptySegment(++extent.lastNumber, kEndOfFile, 0, bytes);
    return bytes;
}

} // namespace orvane::pictures
