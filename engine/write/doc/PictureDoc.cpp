#include "write/doc/PictureDoc.h"

#include "write/doc/ArtRecords.h"
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

std::string shape(const Picture& picture, int id) {
    // Source: [MS-ODRAW] 2.3.23.5 (pib), 2.3.4.2 (description).
    constexpr int kPictureInStore = 0x4104;
    constexpr int kDescription = 0x0381;
    art::Options options;
    art::addPictureLook(options, picture);
    options.add(kPictureInStore, 1);
    if (!picture.alternateText.empty())
        options.addText(kDescription, picture.alternateText);
    std::string content =
        art::shapeHead(art::kPictureFrame, id, art::kHasAnchor | art::kHasType | art::flipFlags(picture));
    content += options.asRecord();
    content += art::record(0, 0, art::type::kAnchor, Bytes().u32(0x80000000).str());
    return art::container(art::type::kShape, content);
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

std::uint32_t PictureData::addBytes(const std::string& bytes) {
    const auto place = static_cast<std::uint32_t>(m_data.size());
    m_data.add(bytes);
    return place;
}

std::uint32_t PictureData::add(const Picture& picture) {
    const PictureStore::Entry entry = m_pictures.at(picture.id);
    const auto place = static_cast<std::uint32_t>(m_data.size());
    const std::uint64_t size = std::filesystem::file_size(entry.file);
    const std::string art =
        shape(picture, m_nextShape++) + art::storeEntryBefore(m_numbers.of(picture.id), entry.format, size);
    m_data.add(header(picture, kHeaderSize + art.size() + size) + art);
    m_data.addFile(entry.file);
    return place;
}

} // namespace orvane::write::doc
