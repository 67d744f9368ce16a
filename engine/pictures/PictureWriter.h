#pragma once

#include "base/ImageFileFormat.h"
#include "base/PictureRows.h"
#include "pdf/PagePictures.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

#include <memory>
#include <string>

namespace orvane::pictures {

/// In which colours pictures are to be read for a format.
pdf::PictureColors colorsFor(ImageFileFormat format);

/// The ending of the format's files. Original stands for PNG here, which holds every picture that is not passed
/// through.
std::string extensionOf(ImageFileFormat format);

/// Why the format cannot hold a picture of this size; empty when it can.
std::string findLimit(ImageFileFormat format, const PixelFormat& picture);

/// Whether a picture's data reached to its last row.
enum class DataEnd : std::uint8_t { Whole, CutShort };

/// Writes the picture in the plainest kind of pixels of the format that holds it. Requires: findLimit() is empty.
/// Errors: Failure(TargetUnwritable); std::bad_alloc.
DataEnd writePicture(std::unique_ptr<PictureRows> rows, ImageFileFormat format, const Resolution& resolution,
                     OutputFile& file);

} // namespace orvane::pictures
