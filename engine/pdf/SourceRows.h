#pragma once

#include "base/PictureRows.h"
#include "pdf/PictureSource.h"

#include <memory>
#include <string>

namespace orvane::pdf {

/// How deep the samples of a picture are read.
enum class SampleDepth : std::uint8_t {
    Byte, ///< of samples of 16 bits the upper 8
    Full, ///< greys and colours of 16 bits stay so, where the colour space needs no conversion
};

/// Opens a picture for reading. Nothing comes back, and `trouble` says why, when it is beyond limits or has no data.
/// Requires: `source` and what it points to outlive the rows.
std::unique_ptr<PictureRows> openRows(const PictureSource& source, SampleDepth depth, std::string& trouble);

/// Opens the opacity that a mask gives: Bilevel for a mask of 1 bit, otherwise Gray; white is opaque. Nothing comes
/// back when it is beyond limits or has no data. Requires: `mask` and what it points to outlive the rows.
std::unique_ptr<PictureRows> openMaskRows(const PictureMask& mask);

} // namespace orvane::pdf
