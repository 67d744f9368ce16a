#pragma once

#include "base/PictureData.h"
#include "pdf/PictureSource.h"

#include <optional>
#include <string>

namespace orvane::pdf {

/// Decodes a picture to a file of its own; of a source that breaks off what is there is kept and `trouble` says so.
/// Returns nothing, and says why in `trouble`, when there is nothing to show.
std::optional<PictureData> decodePicture(const PictureSource& source, std::string& trouble);

} // namespace orvane::pdf
