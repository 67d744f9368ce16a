#pragma once

#include "pdf/CodedPicture.h"
#include "pdf/PictureSource.h"

#include <optional>

namespace orvane::pdf {

/// Takes a picture's data out as it stands behind its last filter; nothing when it stands in no format of its own, or
/// is damaged at its start.
std::optional<CodedPicture> readCoded(const PictureSource& source);

} // namespace orvane::pdf
