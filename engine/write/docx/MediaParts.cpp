#include "write/docx/MediaParts.h"

#include "write/docx/Package.h"

#include <fmt/format.h>

namespace orvane::write::docx {

std::string MediaParts::nameOf(PictureId id) {
    if (id.value == 0 || id.value > m_pictures.size())
        return {};
    const auto [found, isNew] = m_names.try_emplace(id);
    if (isNew) {
        const PictureStore::Entry entry = m_pictures.at(id);
        const char* extension = entry.format == PictureFormat::Jpeg ? "jpeg" : "png";
        found->second = fmt::format("media/image{}.{}", m_names.size(), extension);
        m_package.addFile("word/" + found->second, entry.file);
    }
    return found->second;
}

} // namespace orvane::write::docx
