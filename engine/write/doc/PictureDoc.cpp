#include "write/doc/PictureDoc.h"

#include "write/doc/Bytes.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

namespace orvane::write::doc {
namespace {

using namespace document;

constexpr int kHeaderSize = 68;
constexpr int kShapeMode = 100;  // Source: [MS-DOC] 2.9.158 (MFPF)
constexpr int kFullScale = 1000; // tenths of a percent
constexpr std::int64_t kMostTwips = 32767;
constexpr double kEmuATwip = 635;
constexpr double kBinaryPlaces = 65536;

// Source: [MS-ODRAW] 2.2.14, 2.2.40, 2.2.9, 2.2.32, 2.2.23.
constexpr int kShapeContainer = 0xF004;
constexpr int kStoreEntry = 0xF007;
constexpr int kShapeRecord = 0xF00A;
constexpr int kOptionsRecord = 0xF00B;
constexpr int kAnchorRecord = 0xF010;
constexpr int kJpegRecord = 0xF01D;
constexpr int kPngRecord = 0xF01E;
constexpr int kPictureFrame = 75;

std::string record(int version, int instance, int type, const std::string& content, std::uint64_t more = 0) {
    Bytes bytes;
    bytes.u16(version | instance << 4).u16(type).u32(static_cast<std::int64_t>(content.size() + more)).raw(content);
    return bytes.str();
}

/// Properties of a shape, ascending by number.
class Options {
public:
    void add(int number, std::int64_t value) {
        m_list.u16(number).u32(value);
        ++m_count;
    }
    void addText(int number, const std::string& text) {
        constexpr int kIsComplex = 0x8000;
        Bytes characters;
        characters.characters(utf16FromUtf8(text)).u16(0);
        add(number | kIsComplex, static_cast<std::int64_t>(characters.size()));
        m_texts.raw(characters.str());
    }
    std::string asRecord() const { return record(3, m_count, kOptionsRecord, m_list.str() + m_texts.str()); }

private:
    Bytes m_list;
    Bytes m_texts;
    int m_count = 0;
};

std::int64_t angle(double degrees) {
    double turned = std::fmod(degrees, 360);
    if (turned < 0)
        turned += 360;
    return std::llround(turned * kBinaryPlaces);
}

std::string options(const Picture& picture) {
    // Source: [MS-ODRAW] 2.3.18.5 (rotation), 2.3.23 (crop, pib), 2.3.4.2 (description).
    constexpr int kRotation = 0x0004;
    constexpr int kCropTop = 0x0100;
    constexpr int kCropBottom = 0x0101;
    constexpr int kCropLeft = 0x0102;
    constexpr int kCropRight = 0x0103;
    constexpr int kPictureInStore = 0x4104;
    constexpr int kDescription = 0x0381;
    Options list;
    const auto addCrop = [&list](int number, double share) {
        if (share > 0)
            list.add(number, std::llround(std::min(share, 1.0) * kBinaryPlaces));
    };
    if (picture.rotation != 0)
        list.add(kRotation, angle(picture.rotation));
    addCrop(kCropTop, picture.crop.top);
    addCrop(kCropBottom, picture.crop.bottom);
    addCrop(kCropLeft, picture.crop.left);
    addCrop(kCropRight, picture.crop.right);
    list.add(kPictureInStore, 1);
    if (!picture.alternateText.empty())
        list.addText(kDescription, picture.alternateText);
    return list.asRecord();
}

std::string shape(const Picture& picture, int id) {
    // Source: [MS-ODRAW] 2.2.40 (OfficeArtFSP).
    constexpr int kHasAnchorAndType = 0xA00;
    constexpr int kFlippedHorizontally = 0x40;
    constexpr int kFlippedVertically = 0x80;
    const int flags = kHasAnchorAndType | (picture.isMirroredHorizontally ? kFlippedHorizontally : 0) |
                      (picture.isMirroredVertically ? kFlippedVertically : 0);
    std::string content = record(2, kPictureFrame, kShapeRecord, Bytes().u32(id).u32(flags).str());
    content += options(picture);
    content += record(0, 0, kAnchorRecord, Bytes().u32(0x80000000).str());
    return record(0xF, 0, kShapeContainer, content);
}

/// What tells one picture from another; it only has to differ.
std::string identity(const Picture& picture) {
    Bytes bytes;
    bytes.u32(picture.id.value).zeros(12);
    return bytes.str();
}

/// The head of a picture's entry; the picture's own bytes, `size` of them, follow.
std::string storeEntry(const Picture& picture, PictureFormat format, std::uint64_t size) {
    const bool isJpeg = format == PictureFormat::Jpeg;
    // Source: [MS-ODRAW] 2.4.1 (MSOBLIPTYPE), 2.2.27, 2.2.28 (instances).
    const int kind = isJpeg ? 5 : 6;
    const int instance = isJpeg ? 0x46A : 0x6E0;
    constexpr int kTag = 0xFF;
    const std::string blip =
        record(0, instance, isJpeg ? kJpegRecord : kPngRecord, Bytes().raw(identity(picture)).u8(kTag).str(), size);
    Bytes entry;
    entry.u8(kind).u8(kind).raw(identity(picture)).u16(kTag);
    entry.u32(static_cast<std::int64_t>(blip.size() + size)).u32(1).u32(0).zeros(4).raw(blip);
    return record(2, kind, kStoreEntry, entry.str(), size);
}

/// What of a side stays when both its ends are cut.
double rest(double first, double second) {
    constexpr double kLeast = 0.01;
    return std::max(kLeast, 1 - std::clamp(first, 0.0, 1.0) - std::clamp(second, 0.0, 1.0));
}

std::int64_t twips(Emu length, double share) {
    return std::clamp<std::int64_t>(std::llround(static_cast<double>(length.value) / kEmuATwip / share), 1, kMostTwips);
}

std::int64_t cut(double share, std::int64_t whole) {
    return std::llround(std::clamp(share, 0.0, 1.0) * static_cast<double>(whole));
}

/// The head of a picture. Its size is written as it were without the cut, which stands here as editions before 2000 had
/// it: there are readers that look for it here. Source: [MS-DOC] 2.9.190 (PICF), 2.9.194 (PICMID).
std::string header(const Picture& picture, std::uint64_t size) {
    const Crop& crop = picture.crop;
    const std::int64_t width = twips(picture.width, rest(crop.left, crop.right));
    const std::int64_t height = twips(picture.height, rest(crop.top, crop.bottom));
    Bytes bytes;
    bytes.u32(static_cast<std::int64_t>(size)).u16(kHeaderSize).u16(kShapeMode).zeros(6 + 14);
    bytes.u16(width).u16(height).u16(kFullScale).u16(kFullScale);
    bytes.u16(cut(crop.left, width)).u16(cut(crop.top, height));
    bytes.u16(cut(crop.right, width)).u16(cut(crop.bottom, height));
    bytes.zeros(kHeaderSize - bytes.size());
    return bytes.str();
}

} // namespace

std::uint32_t PictureData::placeOf(const Picture& picture) {
    const std::string key =
        fmt::format("{} {} {} {} {} {} {} {} {} {} {}", picture.id.value, picture.width.value, picture.height.value,
                    picture.crop.left, picture.crop.top, picture.crop.right, picture.crop.bottom, picture.rotation,
                    picture.isMirroredHorizontally, picture.isMirroredVertically, picture.alternateText);
    const auto [found, isNew] = m_places.try_emplace(key, 0);
    if (isNew)
        found->second = add(picture);
    return found->second;
}

std::uint32_t PictureData::add(const Picture& picture) {
    const PictureStore::Entry entry = m_pictures.at(picture.id);
    const auto place = static_cast<std::uint32_t>(m_data.size());
    const std::uint64_t size = std::filesystem::file_size(entry.file);
    const std::string art = shape(picture, m_nextShape++) + storeEntry(picture, entry.format, size);
    m_data.add(header(picture, kHeaderSize + art.size() + size) + art);
    m_data.addFile(entry.file);
    return place;
}

} // namespace orvane::write::doc
