#pragma once

#include "base/PictureStore.h"

#include <map>
#include <string>

namespace orvane::write::docx {

class Package;

/// The pictures of a package: each goes in once, however often it is shown, and only when it is.
class MediaParts {
public:
    MediaParts(const PictureStore& pictures, Package& package)
        : m_pictures(pictures)
        , m_package(package) {}

    /// The picture's name beside the document part, "media/image1.png"; empty when the store has no such picture.
    std::string nameOf(PictureId id);

private:
    const PictureStore& m_pictures;
    Package& m_package;
    std::map<PictureId, std::string> m_names;
};

} // namespace orvane::write::docx
