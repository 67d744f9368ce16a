#include "read/doc/ArtDump.h"

#include <map>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

constexpr std::size_t kHeadSize = 8;
constexpr std::uint32_t kContainer = 0xF;
constexpr int kDeepest = 16; ///< records within each other; files have six

std::string_view nameOfRecord(std::uint32_t type) {
    switch (type) {
    case 0xF000:
        return "drawings";
    case 0xF001:
        return "store";
    case 0xF002:
        return "drawing";
    case 0xF003:
        return "group";
    case 0xF004:
        return "shape";
    case 0xF006:
        return "numbers";
    case 0xF007:
        return "picture";
    case 0xF008:
        return "drawing's numbers";
    case 0xF009:
        return "group's box";
    case 0xF00A:
        return "shape's head";
    case 0xF00B:
        return "properties";
    case 0xF00D:
        return "text";
    case 0xF00F:
        return "box in the group";
    case 0xF010:
        return "anchor";
    case 0xF011:
        return "data";
    case 0xF01D:
        return "JPEG";
    case 0xF01E:
        return "PNG";
    case 0xF122:
        return "more properties";
    default:
        return "record";
    }
}

/// Numbers and values; lists and texts stand behind all of them. Source: [MS-ODRAW] 2.2.9, 2.3.1.
std::string propertiesText(const ByteView& content, std::size_t count) {
    constexpr std::uint32_t kIsLong = 0x8000;
    std::string text;
    std::size_t behind = 6 * count;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t number = content.u16(6 * i), value = content.u32(6 * i + 2);
        if ((number & kIsLong) == 0) {
            text += fmt::format(" {:04x}={}", number, static_cast<std::int32_t>(value));
            continue;
        }
        text += fmt::format(" {:04x}=", number & 0x3FFF);
        for (const char byte : content.part(behind, value).bytes())
            text += fmt::format("{:02x}", static_cast<unsigned char>(byte));
        behind += value;
    }
    return text;
}

std::string contentText(std::uint32_t type, std::uint32_t instance, const ByteView& content) {
    switch (type) {
    case 0xF00A:
        return fmt::format(" kind {} number {} flags {:x}", instance, content.u32(0), content.u32(4));
    case 0xF00B:
    case 0xF122:
        return propertiesText(content, instance);
    case 0xF00D:
        return fmt::format(" {}", content.u32(0) >> 16);
    case 0xF009:
    case 0xF00F:
        return fmt::format(" {},{} to {},{}", content.i32(0), content.i32(4), content.i32(8), content.i32(12));
    default:
        return fmt::format(", {} bytes", content.size());
    }
}

std::string recordText(const ByteView& bytes, std::size_t& at, int depth) {
    const std::uint32_t head = bytes.u16(at), type = bytes.u16(at + 2);
    const ByteView content = bytes.part(at + kHeadSize, bytes.u32(at + 4));
    at += kHeadSize + content.size();
    std::string text(2 * static_cast<std::size_t>(depth + 1), ' ');
    text += nameOfRecord(type);
    // A picture's entry has the picture in it, unless that stands elsewhere. Source: [MS-ODRAW] 2.2.32.
    constexpr std::size_t kEntryHead = 36;
    const bool isEntry = type == 0xF007 && content.size() > kEntryHead;
    if ((head & 0xF) != kContainer && !isEntry)
        return text + contentText(type, head >> 4, content) + '\n';
    text += '\n';
    if (depth >= kDeepest)
        throw Damage("records of shapes are within each other beyond reason");
    for (std::size_t inner = isEntry ? kEntryHead : 0; inner < content.size();)
        text += recordText(content, inner, depth + 1);
    return text;
}

/// What a character refers to in the data stream.
enum class DataKind { Picture, FormField };

/// Where pictures and form fields stand in the data stream, as their characters tell.
std::map<std::uint32_t, DataKind> dataPlaces(const WordFile& file) {
    constexpr std::uint32_t kPlace = 0x6A03;
    constexpr std::uint32_t kIsData = 0x0806;
    std::map<std::uint32_t, DataKind> places;
    for (const FormattedRange& look : file.looks()) {
        const ByteView list(look.properties, "a run's properties");
        if (list.size() < 6 || list.u16(0) != kPlace)
            continue;
        const bool isData = list.size() >= 9 && list.u16(6) == kIsData && list.u8(8) != 0;
        places[list.u32(2)] = isData ? DataKind::FormField : DataKind::Picture;
    }
    return places;
}

} // namespace

std::string dumpShapes(const WordFile& file) {
    constexpr std::size_t kShapes = 50;
    const ByteView bytes = file.table(kShapes);
    if (bytes.size() == 0)
        return {};
    std::size_t at = 0;
    std::string text = recordText(bytes, at, 0);
    while (at < bytes.size()) {
        text += fmt::format("  of {}\n", bytes.u8(at) == 0 ? "the body" : "headers and footers");
        text += recordText(bytes, ++at, 0);
    }
    return text;
}

std::string dumpPictures(const WordFile& file) {
    const ByteView data = file.stream("Data");
    std::string text;
    for (const auto& [place, kind] : dataPlaces(file)) {
        const ByteView picture = data.part(place, data.u32(place));
        if (kind == DataKind::FormField) {
            text += fmt::format("  at {}: {} bytes of a form field\n", place, picture.size());
            continue;
        }
        text += fmt::format("  at {}: {} bytes, {} by {} twips, scaled {} by {}\n", place, picture.size(),
                            picture.u16(28), picture.u16(30), picture.u16(32), picture.u16(34));
        for (std::size_t at = picture.u16(4); at < picture.size();)
            text += recordText(picture, at, 1);
    }
    return text;
}

} // namespace orvane::read::doc
