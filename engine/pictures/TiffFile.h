#pragma once

#include "base/PictureRows.h"
#include "pdf/CodedPicture.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

namespace orvane::pictures {

/// Writes a picture as a TIFF file, losslessly compressed. Requires: any kind but Stencil, and no more than
/// kMaxTiffBytes of pixels.
/// Errors: Failure(TargetUnwritable); std::bad_alloc.
void writeTiff(PictureRows& rows, const Resolution& resolution, OutputFile& file);

inline constexpr std::int64_t kMaxTiffBytes = 0xF0000000;

/// Whether TIFF has a name for the way in which fax data is coded.
bool canHoldFax(const pdf::CodedPicture& picture);

/// Puts fax data into a TIFF file as it stands. Requires: canHoldFax().
void writeFaxTiff(const pdf::CodedPicture& picture, int height, const Resolution& resolution, OutputFile& file);

} // namespace orvane::pictures
