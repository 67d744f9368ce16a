#include "pictures/Jpeg2000File.h"

#include "pictures/OutputFile.h"

#include <cstdint>

namespace orvane::pictures {
namespace {

constexpr std::string_view kCodestream("\xFF\x4F\xFF\x51", 4);
/// Bytes of a codestream up to the first component's depth. Source: A.5.1.
constexpr std::size_t kSizeSegmentReach = 43;
constexpr std::uint64_t kSrgb = 16;
constexpr std::uint64_t kGray = 17;

std::uint64_t numberAt(std::string_view bytes, std::size_t at, std::size_t length) {
    std::uint64_t value = 0;
    for (const char c : bytes.substr(at, length))
        value = value << 8 | static_cast<unsigned char>(c);
    return value;
}

void putBox(std::string_view type, std::string_view content, std::string& bytes) {
    putBigEndian<4>(bytes, content.size() + 8);
    bytes += type;
    bytes += content;
}

/// The box that tells what the codestream holds.
std::string headerBoxes(std::string_view codestream) {
    const std::uint64_t components = numberAt(codestream, 40, 2);
    std::string image;
    putBigEndian<4>(image, numberAt(codestream, 12, 4) - numberAt(codestream, 20, 4)); // height
    putBigEndian<4>(image, numberAt(codestream, 8, 4) - numberAt(codestream, 16, 4));
    putBigEndian<2>(image, components);
    putBigEndian<1>(image, numberAt(codestream, 42, 1)); // bits a component
    putBigEndian<1>(image, 7);                           // the one compression there is
    putBigEndian<2>(image, 0);
    std::string color("\x01\x00\x00", 3); // by number
    putBigEndian<4>(color, components < 3 ? kGray : kSrgb);
    std::string boxes;
    putBox("ihdr", image, boxes);
    putBox("colr", color, boxes);
    return boxes;
}

} // namespace

std::string jpeg2000File(std::string_view bytes) {
    if (!bytes.starts_with(kCodestream) || bytes.size() < kSizeSegmentReach)
        return std::string(bytes);
    std::string file;
    putBox("jP  ", "\r\n\x87\n", file);
    putBox("ftyp", std::string_view("jp2 \0\0\0\0jp2 ", 12), file);
    putBox("jp2h", headerBoxes(bytes), file);
    putBox("jp2c", bytes, file);
    return file;
}

} // namespace orvane::pictures
