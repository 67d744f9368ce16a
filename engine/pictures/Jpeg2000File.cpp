#include "pictures/Jpeg2000File.h"

#include "pdf/Jpeg2000Header.h"
#include "pictures/OutputFile.h"

#include <cstdint>
#include <optional>

namespace orvane::pictures {
namespace {

constexpr std::string_view kCodestream("\xFF\x4F\xFF\x51", 4);
constexpr std::uint64_t kSrgb = 16;
constexpr std::uint64_t kGray = 17;

void putBox(std::string_view type, std::string_view content, std::string& bytes) {
    putBigEndian<4>(bytes, content.size() + 8);
    bytes += type;
    bytes += content;
}

/// The box that tells what the codestream holds.
std::string headerBoxes(const pdf::Jpeg2000Header& codestream) {
    std::string image;
    putBigEndian<4>(image, static_cast<std::uint64_t>(codestream.height));
    putBigEndian<4>(image, static_cast<std::uint64_t>(codestream.width));
    putBigEndian<2>(image, static_cast<std::uint64_t>(codestream.components));
    putBigEndian<1>(image, codestream.depth);
    putBigEndian<1>(image, 7); // the one compression there is
    putBigEndian<2>(image, 0);
    std::string color("\x01\x00\x00", 3); // by number
    putBigEndian<4>(color, codestream.components < 3 ? kGray : kSrgb);
    std::string boxes;
    putBox("ihdr", image, boxes);
    putBox("colr", color, boxes);
    return boxes;
}

} // namespace

std::string jpeg2000File(std::string_view bytes) {
    const auto header = bytes.starts_with(kCodestream) ? pdf::readJpeg2000Header(bytes) : std::nullopt;
    if (!header)
        return std::string(bytes);
    std::string file;
    putBox("jP  ", "\r\n\x87\n", file);
    putBox("ftyp", std::string_view("jp2 \0\0\0\0jp2 ", 12), file);
    putBox("jp2h", headerBoxes(*header), file);
    putBox("jp2c", bytes, file);
    return file;
}

} // namespace orvane::pictures
