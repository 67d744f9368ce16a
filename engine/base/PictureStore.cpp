#include "base/PictureStore.h"

#include "base/Failure.h"

#include <fstream>
#include <iterator>
#include <string_view>

#include <fmt/format.h>

namespace orvane {
namespace {

std::string_view asText(const std::vector<std::byte>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool holdsBytes(const std::filesystem::path& file, std::string_view bytes) {
    std::error_code error;
    if (std::filesystem::file_size(file, error) != bytes.size() || error)
        return false;
    std::ifstream in(file, std::ios::binary);
    return std::equal(bytes.begin(), bytes.end(), std::istreambuf_iterator<char>(in), {});
}

} // namespace

PictureStore::PictureStore(std::filesystem::path folder) : m_folder(std::move(folder)) {}

PictureStore::~PictureStore() {
    std::error_code ignored;
    for (const Entry& entry : m_entries)
        std::filesystem::remove(entry.file, ignored);
}

PictureId PictureStore::add(const PictureData& picture) {
    const std::string_view bytes = asText(picture.bytes);
    const std::size_t hash = std::hash<std::string_view>{}(bytes);

    const std::lock_guard lock(m_mutex);
    const auto [first, last] = m_byHash.equal_range(hash);
    for (auto it = first; it != last; ++it)
        if (holdsBytes(m_entries[it->second.value - 1].file, bytes))
            return it->second;

    const char* extension = picture.format == PictureFormat::Jpeg ? "jpg" : "png";
    Entry entry{picture.format, picture.pixelWidth, picture.pixelHeight,
                m_folder / fmt::format("picture-{}.{}", m_entries.size() + 1, extension)};
    std::ofstream out(entry.file, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        std::error_code ignored;
        std::filesystem::remove(entry.file, ignored);
        throw Failure(FailureCode::TargetUnwritable,
                      fmt::format("cannot write pictures to {}: is the disk full?", m_folder.string()));
    }
    m_entries.push_back(std::move(entry));
    const PictureId id{static_cast<std::uint32_t>(m_entries.size())};
    m_byHash.emplace(hash, id);
    return id;
}

PictureStore::Entry PictureStore::at(PictureId id) const {
    const std::lock_guard lock(m_mutex);
    return m_entries.at(id.value - 1);
}

std::size_t PictureStore::size() const {
    const std::lock_guard lock(m_mutex);
    return m_entries.size();
}

} // namespace orvane
