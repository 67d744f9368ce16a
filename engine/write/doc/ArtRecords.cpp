#include "write/doc/ArtRecords.h"

#include <algorithm>
#include <cmath>

namespace orvane::write::doc::art {
namespace {

using namespace document;

constexpr int kIsComplex = 0x8000;
constexpr int kTag = 0xFF;
constexpr double kBinaryPlaces = 65536;

/// What tells one picture from another; it only has to differ.
std::string identity(int number) {
    return Bytes().u32(number).zeros(12).str();
}

/// The fixed part of a store's entry. Source: [MS-ODRAW] 2.2.32, 2.4.1 (MSOBLIPTYPE).
std::string entryHead(int number, PictureFormat format, std::uint64_t recordSize, std::uint32_t place) {
    const int kind = format == PictureFormat::Jpeg ? 5 : 6;
    Bytes entry;
    entry.u8(kind).u8(kind).raw(identity(number)).u16(kTag);
    entry.u32(static_cast<std::int64_t>(recordSize)).u32(1).u32(place).zeros(4);
    return entry.str();
}

int entryInstance(PictureFormat format) {
    return format == PictureFormat::Jpeg ? 5 : 6;
}

} // namespace

std::string record(int version, int instance, int type, const std::string& content, std::uint64_t more) {
    Bytes bytes;
    bytes.u16(version | instance << 4).u16(type).u32(static_cast<std::int64_t>(content.size() + more)).raw(content);
    return bytes.str();
}

std::string container(int type, const std::string& content, int instance) {
    return record(0xF, instance, type, content);
}

void Options::add(int number, std::int64_t value) {
    m_list.u16(number).u32(value);
    ++m_count;
}

void Options::addText(int number, const std::string& text) {
    Bytes characters;
    characters.characters(utf16FromUtf8(text)).u16(0);
    add(number | kIsComplex, static_cast<std::int64_t>(characters.size()));
    m_data.raw(characters.str());
}

void Options::addList(int number, std::size_t count, int itemSize, const std::string& items) {
    const auto length = static_cast<std::int64_t>(count);
    Bytes list;
    list.u16(length).u16(length).u16(itemSize).raw(items);
    add(number | kIsComplex, static_cast<std::int64_t>(list.size()));
    m_data.raw(list.str());
}

std::string Options::asRecord(int type) const {
    return record(3, m_count, type, m_list.str() + m_data.str());
}

std::string shapeHead(int shape, int id, int flags) {
    return record(2, shape, type::kShapeHead, Bytes().u32(id).u32(flags).str());
}

int flipFlags(const Picture& picture) {
    return (picture.isMirroredHorizontally ? kIsFlippedHorizontally : 0) |
           (picture.isMirroredVertically ? kIsFlippedVertically : 0);
}

void addPictureLook(Options& options, const Picture& picture) {
    constexpr int kRotation = 0x0004;
    constexpr int kCropTop = 0x0100;
    constexpr int kCropBottom = 0x0101;
    constexpr int kCropLeft = 0x0102;
    constexpr int kCropRight = 0x0103;
    const auto addCrop = [&options](int number, double share) {
        if (share > 0)
            options.add(number, std::llround(std::min(share, 1.0) * kBinaryPlaces));
    };
    if (picture.rotation != 0)
        options.add(kRotation, angle(picture.rotation));
    addCrop(kCropTop, picture.crop.top);
    addCrop(kCropBottom, picture.crop.bottom);
    addCrop(kCropLeft, picture.crop.left);
    addCrop(kCropRight, picture.crop.right);
}

std::int64_t angle(double degrees) {
    double turned = std::fmod(degrees, 360);
    if (turned < 0)
        turned += 360;
    return std::llround(turned * kBinaryPlaces);
}

std::string pictureHead(int number, PictureFormat format, std::uint64_t size) {
    // Source: [MS-ODRAW] 2.2.27, 2.2.28 (instances).
    const bool isJpeg = format == PictureFormat::Jpeg;
    return record(0, isJpeg ? 0x46A : 0x6E0, isJpeg ? type::kJpeg : type::kPng,
                  Bytes().raw(identity(number)).u8(kTag).str(), size);
}

std::string storeEntry(int number, PictureFormat format, std::uint64_t size, std::uint32_t place) {
    const std::uint64_t whole = pictureHead(number, format, size).size() + size;
    return record(2, entryInstance(format), type::kStoreEntry, entryHead(number, format, whole, place));
}

std::string storeEntryBefore(int number, PictureFormat format, std::uint64_t size) {
    const std::string picture = pictureHead(number, format, size);
    return record(2, entryInstance(format), type::kStoreEntry,
                  entryHead(number, format, picture.size() + size, 0) + picture, size);
}

} // namespace orvane::write::doc::art
