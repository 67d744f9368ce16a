#pragma once

#include "pdf/CodedPicture.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

#include <string>

namespace orvane::pictures {

/// The ending of the file that a coded picture becomes, "jpg" for instance; empty when no file format can hold it.
std::string extensionOf(const pdf::CodedPicture& picture);

/// Writes a picture's own data as a file: a JPEG byte for byte, the others with the little that makes a file of them.
/// Requires: extensionOf() is not empty.
void writeCoded(const pdf::CodedPicture& picture, int height, const Resolution& resolution, OutputFile& file);

} // namespace orvane::pictures
