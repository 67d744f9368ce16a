#pragma once

#include "write/rtf/RtfStream.h"

#include <filesystem>

namespace orvane::write::rtf {

/// Writes the bytes of a file as hexadecimal digits, piece by piece.
/// Errors: Failure(Internal) when the file cannot be read.
void writeHexFile(RtfStream& rtf, const std::filesystem::path& file);

} // namespace orvane::write::rtf
